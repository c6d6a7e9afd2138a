"""The loader's own tables in a Mach-O image: what to slide, what to bind, what is exported.
Each is a small byte code, run here with every step inside the image."""

from collections.abc import Callable
from dataclasses import dataclass

from checker.bounded import BadImage, Block, Cursor

POINTER_TYPE = 1
WEAK_IMPORT_FLAG = 1
EXPORT_REEXPORT_FLAG = 0x08
EXPORT_RESOLVER_FLAG = 0x10
MASK_64 = (1 << 64) - 1


@dataclass(frozen=True)
class Bind:
    """A pointer that the loader fills: `library` counts from 1, 0 is the image, below 0 special."""

    address: int
    symbol: str
    library: int
    addend: int
    kind: str
    weak_import: bool


@dataclass(frozen=True)
class Export:
    """A symbol of the export trie; `address` counts from the image's start."""

    name: str
    address: int
    flags: int


class Places:
    """Where a byte code may write: the segments' ranges and the size of a pointer in bytes."""

    def __init__(self, ranges: list[tuple[int, int]], pointer: int, most: int) -> None:
        self.ranges = ranges
        self.pointer = pointer
        self._left = most

    def address(self, segment: int, offset: int, what: str) -> int:
        """Returns the address of a whole pointer inside a segment, counting it as used."""
        self._left -= 1
        if self._left < 0:
            raise BadImage(f"{what} name more pointers than the image can hold")
        if not 0 <= segment < len(self.ranges):
            raise BadImage(f"{what} name segment {segment}, which does not exist")
        start, size = self.ranges[segment]
        if offset + self.pointer > size:
            raise BadImage(f"{what} write at offset {offset:#x} of segment {segment}, outside it")
        return start + offset


def rebases(code: Block, places: Places) -> list[int]:
    """Returns the addresses of the pointers to slide, in the table's order."""
    return _RebaseRun(code, places).run()


def binds(code: Block, places: Places, kind: str) -> list[tuple[int, Bind]]:
    """Returns the bindings of one stream ("bind", "lazy" or "weak"), each after the offset in the
    stream at which its entry begins; only lazy entries begin anew after each end mark."""
    return _BindRun(code, places, kind).run()


def exports(trie: Block) -> list[Export]:
    """Returns the symbols of an export trie; an empty trie has none."""
    found: list[Export] = []
    seen: set[int] = set()
    waiting = [(0, "")] if len(trie) else []
    while waiting:
        offset, name = waiting.pop()
        if offset in seen:
            raise BadImage(f"{trie.what} reaches its node at {offset} twice")
        seen.add(offset)
        cursor = Cursor(trie, offset)
        size = cursor.unsigned()
        children = cursor.position + size
        if size:
            found.append(_exported(cursor, name, children))
        cursor = Cursor(trie, children)
        for _ in range(cursor.byte()):
            edge = name + cursor.string()
            waiting.append((cursor.unsigned(), edge))
    return found


def _exported(cursor: Cursor, name: str, end: int) -> Export:
    flags, address = cursor.unsigned(), 0
    if flags & EXPORT_REEXPORT_FLAG:
        cursor.unsigned()
        cursor.string()
    else:
        address = cursor.unsigned()
        if flags & EXPORT_RESOLVER_FLAG:
            cursor.unsigned()
    if cursor.position != end:
        raise BadImage(f"{cursor.block.what} has an entry of the wrong size for '{name}'")
    return Export(name, address, flags)


class _Run:
    """What both byte codes share: a place to write that moves on."""

    def __init__(self, code: Block, places: Places) -> None:
        self.cursor = Cursor(code)
        self.places = places
        self.segment = -1
        self.offset = 0

    def advance(self, distance: int) -> None:
        # A distance of 2^64 minus n moves back by n, as in the loader.
        self.offset = (self.offset + distance) & MASK_64

    def place(self) -> int:
        address = self.places.address(self.segment, self.offset, self.cursor.block.what)
        self.advance(self.places.pointer)
        return address

    def set_place(self, segment: int) -> None:
        self.segment, self.offset = segment, self.cursor.unsigned()

    def require_pointer(self, kind: int) -> None:
        if kind != POINTER_TYPE:
            raise BadImage(f"{self.cursor.block.what} change code: only pointers may be changed")

    def unknown(self, opcode: int) -> BadImage:
        return BadImage(f"{self.cursor.block.what} have the unknown operation {opcode:#04x}")


class _RebaseRun(_Run):
    def __init__(self, code: Block, places: Places) -> None:
        super().__init__(code, places)
        self.found: list[int] = []

    def run(self) -> list[int]:
        steps: dict[int, Callable[[int], None]] = {
            0x10: self.require_pointer,
            0x20: self.set_place,
            0x30: lambda _: self.advance(self.cursor.unsigned()),
            0x40: lambda count: self.advance(count * self.places.pointer),
            0x50: lambda count: self.slide(count, 0),
            0x60: lambda _: self.slide(self.cursor.unsigned(), 0),
            0x70: lambda _: self.slide(1, self.cursor.unsigned()),
            0x80: lambda _: self.slide(self.cursor.unsigned(), self.cursor.unsigned()),
        }
        while not self.cursor.at_end():
            opcode = self.cursor.byte()
            if opcode & 0xF0 == 0:
                break
            if opcode & 0xF0 not in steps:
                raise self.unknown(opcode)
            steps[opcode & 0xF0](opcode & 0x0F)
        return self.found

    def slide(self, count: int, gap: int) -> None:
        for _ in range(count):
            self.found.append(self.place())
            self.advance(gap)


class _BindRun(_Run):
    def __init__(self, code: Block, places: Places, kind: str) -> None:
        super().__init__(code, places)
        self.kind = kind
        self.found: list[tuple[int, Bind]] = []
        self.start_entry()

    def start_entry(self) -> None:
        self.entry, self.segment, self.offset = self.cursor.position, -1, 0
        self.symbol, self.flags = "", 0
        self.library, self.addend = 0, 0

    def run(self) -> list[tuple[int, Bind]]:
        steps: dict[int, Callable[[int], None]] = {
            0x10: self.set_library,
            0x20: lambda _: self.set_library(self.cursor.unsigned()),
            0x30: lambda low: self.set_library(low - 16 if low else 0),
            0x40: self.set_symbol,
            0x50: self.require_pointer,
            0x60: lambda _: self.set_addend(),
            0x70: self.set_place,
            0x80: lambda _: self.advance(self.cursor.unsigned()),
            0x90: lambda _: self.bind(1, 0),
            0xA0: lambda _: self.bind(1, self.cursor.unsigned()),
            0xB0: lambda count: self.bind(1, count * self.places.pointer),
            0xC0: lambda _: self.bind(self.cursor.unsigned(), self.cursor.unsigned()),
        }
        while not self.cursor.at_end():
            opcode = self.cursor.byte()
            if opcode & 0xF0 == 0:
                if self.kind != "lazy":
                    break
                self.start_entry()
            elif opcode & 0xF0 in steps:
                steps[opcode & 0xF0](opcode & 0x0F)
            else:
                raise self.unknown(opcode)
        return self.found

    def set_library(self, ordinal: int) -> None:
        self.library = ordinal

    def set_symbol(self, flags: int) -> None:
        self.symbol, self.flags = self.cursor.string(), flags

    def set_addend(self) -> None:
        self.addend = self.cursor.signed()

    def bind(self, count: int, gap: int) -> None:
        if not self.symbol:
            raise BadImage(f"{self.cursor.block.what} bind a pointer before they name a symbol")
        weak = bool(self.flags & WEAK_IMPORT_FLAG)
        for _ in range(count):
            made = Bind(self.place(), self.symbol, self.library, self.addend, self.kind, weak)
            self.found.append((self.entry, made))
            self.advance(gap)
