"""Checks of the header and of the load commands: which there are and what they say."""

from collections import Counter
from collections.abc import Iterator

from checker.contract import Contract
from checker.macho import LC_ROUTINES, LC_ROUTINES_64, Slice
from checker.report import MEND_BUILD, REBUILD, Problem

DYLIB_TYPE = 6
REQUIRED_FLAGS = {0x1: "NOUNDEFS", 0x4: "DYLDLINK", 0x80: "TWOLEVEL"}
# Any other flag changes how the loader treats the image. WEAK_DEFINES and BINDS_TO_WEAK in
# particular would let inline functions be exchanged for those of another library.
ALLOWED_FLAGS = {0x100000: "NO_REEXPORTED_DYLIBS"}

INSTALL_NAME = "/Library/MobileSubstrate/DynamicLibraries/libZQDial.dylib"
IOS_7_0 = 0x00070000
ENTRY = "_ZQDialMain"
FUNCTION_ALIGNMENT = 4

# Each command that the loader of iOS 7 knows and this library needs: its name, the fewest and the
# most of it. None is for any number, which other checks judge.
COMMANDS: dict[int, tuple[str, int, int | None]] = {
    0x2: ("LC_SYMTAB", 1, 1),
    0xB: ("LC_DYSYMTAB", 1, 1),
    0xC: ("LC_LOAD_DYLIB", 1, None),
    0xD: ("LC_ID_DYLIB", 1, 1),
    0x1B: ("LC_UUID", 1, 1),
    0x1D: ("LC_CODE_SIGNATURE", 1, 1),
    0x25: ("LC_VERSION_MIN_IPHONEOS", 1, 1),
    0x26: ("LC_FUNCTION_STARTS", 0, 1),
    0x29: ("LC_DATA_IN_CODE", 0, 1),
    0x2A: ("LC_SOURCE_VERSION", 0, 1),
    0x80000022: ("LC_DYLD_INFO_ONLY", 1, 1),
}
NARROW_COMMANDS: dict[int, tuple[str, int, int | None]] = {
    0x1: ("LC_SEGMENT", 1, None),
    0x11: ("LC_ROUTINES", 1, 1),
}
WIDE_COMMANDS: dict[int, tuple[str, int, int | None]] = {
    0x19: ("LC_SEGMENT_64", 1, None),
    0x1A: ("LC_ROUTINES_64", 1, 1),
}
# Commands that a changed build is likely to bring in, and why each of them is a fault here.
FORBIDDEN = {
    0x20: ("LC_LAZY_LOAD_DYLIB", "every image is a hard dependency"),
    0x21: ("LC_ENCRYPTION_INFO", "it belongs to encrypted programs, link with -no_encryption"),
    0x22: ("LC_DYLD_INFO", "relocations of the oldest kind must not remain"),
    0x27: ("LC_DYLD_ENVIRONMENT", "only a program may carry it"),
    0x2C: ("LC_ENCRYPTION_INFO_64", "it belongs to encrypted programs, link with -no_encryption"),
    0x32: ("LC_BUILD_VERSION", "iOS 7 does not know it, link for ios 7.0"),
    0x80000018: ("LC_LOAD_WEAK_DYLIB", "every image is a hard dependency"),
    0x8000001C: ("LC_RPATH", "every image has an absolute path, take the reserved one out"),
    0x8000001F: ("LC_REEXPORT_DYLIB", "the library passes on no other image"),
    0x80000023: ("LC_LOAD_UPWARD_DYLIB", "every image is a plain dependency"),
    0x80000033: ("LC_DYLD_EXPORTS_TRIE", "iOS 7 does not know it, link for ios 7.0"),
    0x80000034: ("LC_DYLD_CHAINED_FIXUPS", "iOS 7 does not know it, link with -no_fixup_chains"),
}


def check_header(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks the file type and the flags."""
    if image.file_type != DYLIB_TYPE:
        yield Problem(f"its file type is {image.file_type}, no dynamic library", MEND_BUILD)
    for flag, name in REQUIRED_FLAGS.items():
        if not image.flags & flag:
            yield Problem(f"the header lacks the flag {name}", MEND_BUILD)
    beyond = image.flags & ~sum(REQUIRED_FLAGS) & ~sum(ALLOWED_FLAGS)
    if beyond:
        yield Problem(f"the header has the unexpected flags {beyond:#x}", MEND_BUILD)


def check_commands(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that there are no other commands than the loader of iOS 7 can follow."""
    allowed = COMMANDS | (WIDE_COMMANDS if image.wide else NARROW_COMMANDS)
    counts = Counter(command.kind for command in image.commands)
    for kind, (name, least, most) in allowed.items():
        if counts[kind] < least:
            yield Problem(f"it has no {name}", MEND_BUILD)
        elif most is not None and counts[kind] > most:
            yield Problem(f"it has {counts[kind]} {name} instead of {most}", MEND_BUILD)
    for kind in counts.keys() - allowed.keys():
        name, reason = FORBIDDEN.get(kind, (f"load command {kind:#x}", "iOS 7 may not know it"))
        yield Problem(f"it has the forbidden {name}", f"{reason}: {MEND_BUILD}")
    for command in image.commands:
        if len(command.data) % image.pointer_size:
            what = f"the load command at offset {command.offset} has the odd size"
            yield Problem(f"{what} {len(command.data)}", MEND_BUILD)


def check_identity(image: Slice, contract: Contract) -> Iterator[Problem]:
    """Checks the install name, the oldest iOS and that the slice comes from today's sources."""
    own, oldest = image.install_name, image.minimum_version
    if own and own.name != INSTALL_NAME:
        yield Problem(f"its install name is {own.name}", f"link it as {INSTALL_NAME}")
    if oldest is not None and oldest != IOS_7_0:
        version = f"{oldest >> 16}.{oldest >> 8 & 0xFF}"
        yield Problem(f"it asks for iOS {version}", "compile and link for iOS 7.0")
    if image.uuid is not None and image.uuid != contract.uuid(image.arch):
        yield Problem("it was built from other sources than those of src/", REBUILD)


def check_entry(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that the loader is told to run the entry and nothing else, as ARM code."""
    if image.init_address is None:
        return
    entry = image.exports().get(ENTRY)
    if entry != image.init_address:
        at = "is not exported" if entry is None else f"is at {entry:#x}"
        what = f"the loader would run {image.init_address:#x} while {ENTRY} {at}"
        yield Problem(what, MEND_BUILD)
    if image.init_address % FUNCTION_ALIGNMENT:
        what = f"the entry's address {image.init_address:#x} is odd or unaligned"
        yield Problem(what, "compile for armv7 with -marm")
    for command in image.commands_of(LC_ROUTINES, LC_ROUTINES_64):
        if any(command.data[8 + image.pointer_size :]):
            yield Problem("the routines command has more than the entry's address", MEND_BUILD)


def check_images(image: Slice, contract: Contract) -> Iterator[Problem]:
    """Checks that exactly the images of the import list are loaded, each once, in any version."""
    loaded = Counter(dylib.name for dylib in image.dylibs)
    listed = set(contract.imports[image.arch].values())
    for name in sorted(listed - loaded.keys()):
        yield Problem(f"it does not load {name}", f"link against it: {MEND_BUILD}")
    for name, count in loaded.items():
        if name not in listed:
            yield Problem(f"it loads {name}", "list its symbols in device/imports.txt or drop it")
        if count > 1:
            yield Problem(f"it loads {name} {count} times", MEND_BUILD)
    for dylib in image.dylibs:
        if dylib.compatibility_version:
            what = f"it asks {dylib.name} for compatibility version"
            yield Problem(f"{what} {dylib.compatibility_version:#x}", "link against version 0")
