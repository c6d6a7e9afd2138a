"""Reader of the instructions that leave the straight way, as far as their words tell where to."""

from dataclasses import dataclass

from checker.stubs import signed

WORD = 4
# armv7: how far ahead of an instruction its pc reads.
ARMV7_PC_AHEAD = 8
ARMV7_ALWAYS, ARMV7_NO_CONDITION = 0xE, 0xF
# Instructions without their operands, each after the mask of what is left. Those that never go on:
ARMV7_LEAVES = (
    (0xFFFFFFFF, 0xE7FFDEFE),  # trap
    (0xFFFFFFF0, 0xE12FFF10),  # bx r
    (0xFFFF8000, 0xE8BD8000),  # pop {..., pc}
    (0xFFFFFFFF, 0xE49DF004),  # pop {pc}
    (0xFFF0FFF0, 0xE080F000),  # add pc, r, r
)
ARM64_JUMP_BY_REGISTER = (0xFFFFFC1F, 0xD61F0000)  # br
ARM64_LEAVES = (
    (0xFFFFFC1F, 0xD65F0000),  # ret
    ARM64_JUMP_BY_REGISTER,
    (0xFFE0001F, 0xD4200000),  # brk
)
ARM64_CALL_BY_REGISTER = (0xFFFFFC1F, 0xD63F0000)  # blr


@dataclass(frozen=True)
class Branch:
    """A direct branch, from an instruction to one at a distance; `always` without a condition."""

    distance: int
    is_call: bool
    always: bool


def branch(wide: bool, word: int) -> Branch | None:
    """Returns where an instruction branches to, None for those that do not or by a register."""
    return _arm64_branch(word) if wide else _armv7_branch(word)


def leaves(wide: bool, word: int) -> bool:
    """Tells whether an instruction leaves the function or the way for good, without a distance."""
    return any(matches(word, pattern) for pattern in (ARM64_LEAVES if wide else ARMV7_LEAVES))


def matches(word: int, pattern: tuple[int, int]) -> bool:
    """Tells whether a word is an instruction given as mask and value."""
    return word & pattern[0] == pattern[1]


def _armv7_branch(word: int) -> Branch | None:
    condition = word >> 28
    if word >> 25 & 7 != 5 or condition == ARMV7_NO_CONDITION:
        return None
    distance = ARMV7_PC_AHEAD + WORD * signed(word, 24)
    return Branch(distance, bool(word >> 24 & 1), condition == ARMV7_ALWAYS)


def _arm64_branch(word: int) -> Branch | None:
    if word >> 26 & 0x1F == 0x05:  # b, bl
        return Branch(WORD * signed(word, 26), bool(word >> 31), True)
    if word >> 24 == 0x54 or word >> 25 & 0x3F == 0x1A:  # on a condition, on a register being zero
        return Branch(WORD * signed(word >> 5, 19), False, False)
    if word >> 25 & 0x3F == 0x1B:  # on a bit being zero
        return Branch(WORD * signed(word >> 5, 14), False, False)
    return None
