"""What a function's code for arm64 says of its frame, in the terms of the unwind index."""

from collections.abc import Sequence

from checker.stubs import signed

FRAMELESS, WITH_FRAME = 0x02000000, 0x04000000
STACK_SHIFT, MOST_STACK_UNITS, STACK_UNIT = 12, 0xFFF, 16
PAIR_SIZE = 16
# The registers that a frame may have saved, the lower one of each pair in the order from the frame's
# top down, and their bits. Registers d0 to d31 count from 32.
PAIRS = {19: 0x1, 21: 0x2, 23: 0x4, 25: 0x8, 27: 0x10, 40: 0x100, 42: 0x200, 44: 0x400, 46: 0x800}
FRAME_AND_LINK = (29, 30)
# Instructions without their operands, and the mask of what is left of them.
OPERAND_MASK = 0xFFC003FF
LOWER_STACK, LOWER_STACK_FAR, SET_FRAME = 0xD10003FF, 0xD14003FF, 0x910003FD
PAIR_MASK = 0xFFC003E0
SAVE, PUSH = {0xA90003E0: 0, 0x6D0003E0: 32}, {0xA98003E0: 0, 0x6D8003E0: 32}


class _Stack:
    """What the instructions that make a frame have done so far; offsets count from sp."""

    def __init__(self) -> None:
        self.size = 0
        self.saved: dict[int, tuple[int, int]] = {}

    def lower(self, size: int) -> None:
        self.size += size
        self.saved = {offset + size: pair for offset, pair in self.saved.items()}

    def follow(self, word: int) -> bool:
        """Does what an instruction does; returns whether it is one that makes a frame."""
        operation, pair = word & OPERAND_MASK, word & PAIR_MASK
        if operation in (LOWER_STACK, LOWER_STACK_FAR):
            self.lower((word >> 10 & 0xFFF) << (12 if operation == LOWER_STACK_FAR else 0))
        elif pair in SAVE or pair in PUSH:
            offset, first = 8 * signed(word >> 15, 7), SAVE.get(pair, PUSH.get(pair, 0))
            if pair in PUSH:
                self.lower(-offset)
                offset = 0
            self.saved[offset] = (first + (word & 0x1F), first + (word >> 10 & 0x1F))
        else:
            return False
        return True

    def pairs_below(self, top: int) -> int | None:
        """Returns the bits of the pairs saved below an offset, None if others are saved, too."""
        bits = 0
        for register, bit in PAIRS.items():
            if self.saved.get(top - PAIR_SIZE) == (register + 1, register):
                bits |= bit
                top -= PAIR_SIZE
        kept = [pair for pair in self.saved.values() if pair[1] in PAIRS]
        return bits if len(kept) == bits.bit_count() else None


def encoding(code: Sequence[int]) -> int | None:
    """Returns the encoding of a function's frame, None if the index has none for it. The frame may
    be made anywhere: a function that often returns early makes it late."""
    stack = _Stack()
    for word in code:
        if stack.follow(word):
            continue
        if word & OPERAND_MASK == SET_FRAME:
            return _with_frame(stack, word >> 10 & 0xFFF)
        if stack.size:
            break
    units, bits = stack.size // STACK_UNIT, stack.pairs_below(stack.size)
    if bits is None or units > MOST_STACK_UNITS or FRAME_AND_LINK in stack.saved.values():
        return None
    return FRAMELESS | units << STACK_SHIFT | bits


def _with_frame(stack: _Stack, frame: int) -> int | None:
    bits = stack.pairs_below(frame)
    if bits is None or stack.saved.get(frame) != FRAME_AND_LINK:
        return None
    return WITH_FRAME | bits
