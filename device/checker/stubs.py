"""Reader of the few instructions that linkers write: stubs, and the helper behind lazy pointers."""

from checker.macho import Slice
from checker.records import Section

HELPER_SECTION = ("__TEXT", "__stub_helper")
STUB_SECTION = ("__TEXT", "__stubs")
STUB_BINDER = "dyld_stub_binder"
STUB_SIZES = {"armv7": 16, "arm64": 12}

# armv7: ldr ip, [pc, #4]; add ip, pc, ip; ldr pc, [ip]; distance from the second one's pc.
ARMV7_STUB = (0xE59FC004, 0xE08FC00C, 0xE59CF000)
ARMV7_PC_IN_STUB = 12
# arm64: adrp x16, page; ldr x16, [x16, offset]; br x16, as masks and values without operands.
ADRP_X16, LDR_X16, BR_X16 = (
    (0x9F00001F, 0x90000010),
    (0xFFC003FF, 0xF9400210),
    (0xFFFFFFFF, 0xD61F0200),
)
ARM64_STUB = (ADRP_X16, LDR_X16, BR_X16)
# The helper's beginning pushes ip or x16, and the address of a word that is the loader's own, and
# jumps through the pointer to the binder. armv7 ends in the two distances from the pcs below.
ARMV7_HELPER = (
    0xE52DC004,  # push ip
    0xE59FC010,  # ldr ip, [pc, #16]
    0xE08FC00C,  # add ip, pc, ip
    0xE52DC004,  # push ip
    0xE59FC008,  # ldr ip, [pc, #8]
    0xE08FC00C,  # add ip, pc, ip
    0xE59CF000,  # ldr pc, [ip]
)
ARMV7_PCS_IN_HELPER = (16, 28)
ARM64_HELPER = (
    (0x9F00001F, 0x90000011),  # adrp x17, page
    (0xFFC003FF, 0x91000231),  # add x17, x17, offset
    (0xFFFFFFFF, 0xA9BF47F0),  # stp x16, x17, [sp, #-16]!
    ADRP_X16,
    LDR_X16,
    BR_X16,
)
# An entry of the stub helper: load the lazy binding's offset, branch to the common part, offset.
HELPER_LOADS = {"armv7": 0xE59FC000, "arm64": 0x18000050}


def _code(
    image: Slice, section: Section | None, address: int, count: int
) -> tuple[int, ...] | None:
    """Returns `count` words of code at an address, None unless all lie in that section."""
    if section is None or not section.holds(address, 4 * count):
        return None
    return image.block.numbers(f"<{count}I", section.offset + address - section.address)


def stub_pointer(image: Slice, section: Section, address: int) -> int | None:
    """Returns the address of the pointer that a stub jumps through, None if it is no stub."""
    words = _code(image, section, address, STUB_SIZES[image.arch] // 4)
    if words is None:
        return None
    if image.arch == "armv7":
        target = (address + ARMV7_PC_IN_STUB + words[3]) & 0xFFFFFFFF
        return target if words[:3] == ARMV7_STUB else None
    return _loaded_from(words, address) if _matches(words, ARM64_STUB) else None


def stub_names(image: Slice) -> dict[int, str]:
    """Returns the symbol that each stub jumps to, by the stub's address."""
    section, size = image.section(*STUB_SECTION), STUB_SIZES[image.arch]
    if section is None:
        return {}
    symbols = {bind.address: bind.symbol for bind in image.binds()}
    stubs = range(section.address, section.address + section.size, size)
    pointers = {stub: stub_pointer(image, section, stub) for stub in stubs}
    return {stub: symbols[at] for stub, at in pointers.items() if at is not None and at in symbols}


def helper_words(image: Slice) -> tuple[int, int] | None:
    """Returns the addresses of the loader's word and of the pointer to the binder that the helper
    names, None if there is no helper or it begins otherwise."""
    helper = image.section(*HELPER_SECTION)
    start = helper.address if helper else 0
    if image.arch == "armv7":
        words = _code(image, helper, start, 9)
        if words is None or words[:7] != ARMV7_HELPER:
            return None
        own, binder = (start + pc + at for pc, at in zip(ARMV7_PCS_IN_HELPER, words[7:]))
        return own & 0xFFFFFFFF, binder & 0xFFFFFFFF
    words = _code(image, helper, start, 6)
    if words is None or not _matches(words, ARM64_HELPER):
        return None
    own = _page(words[0], start) + (words[1] >> 10 & 0xFFF)
    return own, _loaded_from(words[3:], start + 12)


def helper_offset(image: Slice, address: int | None) -> int | None:
    """Returns the lazy binding's offset that the helper's entry at an address asks for, None if
    there is no such entry or it does not lead to the helper's beginning."""
    helper = image.section(*HELPER_SECTION)
    words = None if address is None else _code(image, helper, address, 3)
    if words is None or helper is None or address is None or words[0] != HELPER_LOADS[image.arch]:
        return None
    if image.arch == "armv7":
        is_branch, target = words[1] >> 24 == 0xEA, address + 12 + 4 * signed(words[1], 24)
    else:
        is_branch, target = words[1] >> 26 == 0x5, address + 4 + 4 * signed(words[1], 26)
    return words[2] if is_branch and target == helper.address else None


def _matches(words: tuple[int, ...], patterns: tuple[tuple[int, int], ...]) -> bool:
    return all(word & mask == value for word, (mask, value) in zip(words, patterns))


def _page(adrp: int, address: int) -> int:
    pages = signed(adrp >> 3 & 0x1FFFFC | adrp >> 29 & 3, 21)
    return (address & ~0xFFF) + (pages << 12)


def _loaded_from(words: tuple[int, ...], address: int) -> int:
    """Returns the address that an adrp at `address` and the load of 8 bytes after it name."""
    return _page(words[0], address) + 8 * (words[1] >> 10 & 0xFFF)


def signed(value: int, bits: int) -> int:
    """Returns the lowest `bits` of a word as a number with a sign."""
    low = value & ((1 << bits) - 1)
    return low - (1 << bits) if low >> (bits - 1) else low
