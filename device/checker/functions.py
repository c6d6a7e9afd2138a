"""The functions of the code: where each begins and ends, and what of it is data."""

import struct
from collections.abc import Iterator
from dataclasses import dataclass

from checker.bounded import BadImage, Block, Cursor
from checker.branches import WORD
from checker.macho import LC_DATA_IN_CODE, LC_FUNCTION_STARTS, Slice, body

CODE = ("__TEXT", "__text")


@dataclass(frozen=True)
class Function:
    """A function's range of addresses, and its words."""

    start: int
    end: int
    code: tuple[int, ...]

    def word(self, address: int) -> int | None:
        """Returns the word at an address, None outside the function."""
        index, rest = divmod(address - self.start, WORD)
        return None if rest or not 0 <= index < len(self.code) else self.code[index]


@dataclass(frozen=True)
class Data:
    """A stretch of data amid the code, by its addresses; `kind` is what it is for."""

    start: int
    end: int
    kind: int


def function_starts(image: Slice) -> list[int]:
    """Returns the addresses at which functions begin, in order; empty without the table."""
    starts: list[int] = []
    address = image.segments[0].address if image.segments else 0
    for command in image.commands_of(LC_FUNCTION_STARTS):
        offset, size = body(command).numbers("<2I", 8)
        cursor = Cursor(Block(image.block.take(offset, size), "the table of function starts"))
        while not cursor.at_end():
            step = cursor.unsigned()
            if not step:  # the end, and what fills the table up
                break
            address += step
            starts.append(address)
    return starts


def read_functions(image: Slice) -> list[Function]:
    """Returns the functions in order: they fill the code without a gap."""
    code, starts = image.section(*CODE), function_starts(image)
    if code is None or not starts or starts[0] != code.address or not code.holds(starts[-1]):
        raise BadImage("the table of function starts does not fit the code")
    found = []
    for start, end in zip(starts, [*starts[1:], code.address + code.size]):
        if start % WORD or end % WORD:
            raise BadImage(f"the function at {start:#x} is not made of whole instructions")
        words = image.block.numbers(
            f"<{(end - start) // WORD}I", code.offset + start - code.address
        )
        found.append(Function(start, end, words))
    return found


def data_in_code(image: Slice) -> Iterator[Data]:
    """Yields the stretches of data amid the code, in the table's order."""
    base = image.segments[0].address if image.segments else 0
    for command in image.commands_of(LC_DATA_IN_CODE):
        offset, size = body(command).numbers("<2I", 8)
        for at in range(0, size - size % 8, 8):
            start, length, kind = struct.unpack("<IHH", image.block.take(offset + at, 8))
            yield Data(base + start, base + start + length, kind)
