"""Checks the finished package: what it declares, what it installs where and with which rights,
and that building it again gives the same bytes. Prints all faults, not just one."""

import argparse
import re
import sys
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

from checker import text_plist
from checker.deb import Entry, Member, NoTool, content_entries, control_entries, fields, members
from checker.report import MEND_BUILD, REBUILD, Problem, collected, print_problems

TOOL = "check_package"
MEMBERS = ["debian-binary", "control.tar.gz", "data.tar.gz"]
MEMBER_RIGHTS = ("0", "0", "100644")
FORMAT_VERSION = b"2.0\n"
GZIP = b"\x1f\x8b\x08"
GZIP_TIME = slice(4, 8)

FOLDER = "./Library/MobileSubstrate/DynamicLibraries"
LIBRARY = f"{FOLDER}/libZQDial.dylib"
FILTER = f"{FOLDER}/libZQDial.plist"
DIRECTORY, FILE = "directory", "file"
# Everything that is installed: its kind and its rights.
CONTENT = {
    ".": (DIRECTORY, 0o755),
    "./Library": (DIRECTORY, 0o755),
    "./Library/MobileSubstrate": (DIRECTORY, 0o755),
    FOLDER: (DIRECTORY, 0o755),
    LIBRARY: (FILE, 0o755),
    FILTER: (FILE, 0o644),
}
CONTROL = {".": (DIRECTORY, 0o755), "./control": (FILE, 0o644)}
ROOT = (0, 0, "root", "root")
FILTER_SOURCE = Path("device/libZQDial.plist")
FILTER_VALUE = {"Filter": {"Bundles": ["com.apple.mobilephone"]}}

# Control fields that must be there, each with the pattern of its whole value.
FIELDS = {
    "Package": r"[a-z0-9][a-z0-9+.-]+",
    "Name": r".+",
    "Architecture": r"iphoneos-arm",
    "Maintainer": r".+",
    "Section": r".+",
    "Description": r"(?s:.+)",
}
DEPENDS = {"mobilesubstrate", "firmware (>= 7.0)"}


@dataclass(frozen=True)
class Expected:
    """What the package must agree with."""

    version: str
    library: bytes
    filter: bytes


def check_members(parts: list[Member]) -> Iterator[Problem]:
    """Checks the package's members, their order and their compression."""
    names = [part.name for part in parts]
    if names != MEMBERS:
        # The package tool of such devices unpacks neither xz nor zstd.
        yield Problem(f"its members are {', '.join(names)}", f"build it of {', '.join(MEMBERS)}")
    for part in parts:
        rights = (part.owner, part.group, part.mode)
        if rights != MEMBER_RIGHTS:
            yield Problem(f"{part.name} has the rights {' '.join(rights)}", MEND_BUILD)
        if part.name == MEMBERS[0] and part.data != FORMAT_VERSION:
            yield Problem(f"{part.name} says {part.data!r}", "build it in format 2.0")
        elif part.name in MEMBERS[1:] and not part.data.startswith(GZIP):
            yield Problem(f"{part.name} is not compressed with gzip", "build it with -Zgzip")


def check_times(parts: list[Member], entries: list[Entry]) -> Iterator[Problem]:
    """Checks that every time inside is the same, so that building again gives the same bytes."""
    times = {part.time for part in parts} | {entry.time for entry in entries}
    if len(times) > 1:
        what = f"its times differ, from {min(times)} to {max(times)}"
        yield Problem(what, "build it with SOURCE_DATE_EPOCH")
    for part in parts:
        stamp = int.from_bytes(part.data[GZIP_TIME], "little")
        if part.data.startswith(GZIP) and stamp and stamp not in times:
            yield Problem(f"{part.name} was compressed at {stamp}", "compress it without a time")


def check_archive(entries: list[Entry], expected: dict[str, tuple[str, int]]) -> Iterator[Problem]:
    """Checks that an archive holds exactly the expected entries, with their rights and owner."""
    names = [entry.name for entry in entries]
    for name in expected.keys() - set(names):
        yield Problem(f"it lacks {name}", MEND_BUILD)
    for name in sorted({name for name in names if names.count(name) > 1}):
        yield Problem(f"it has {name} more than once", MEND_BUILD)
    for entry in entries:
        if entry.name not in expected:
            yield Problem(f"it has {entry.name}, which does not belong in it", MEND_BUILD)
            continue
        kind, mode = expected[entry.name]
        if (entry.kind, entry.mode) != (kind, mode):
            what = f"{entry.name} is a {entry.kind} with mode {entry.mode:04o}"
            yield Problem(f"{what}, not a {kind} with {mode:04o}", MEND_BUILD)
        if entry.owner != ROOT:
            user, group, user_name, group_name = entry.owner
            what = f"{entry.name} belongs to {user_name} ({user}), {group_name} ({group})"
            yield Problem(what, "build it with --root-owner-group")


def check_control(control: bytes, expected: Expected, content: list[Entry]) -> Iterator[Problem]:
    """Checks the control fields."""
    found = fields(control)
    patterns = FIELDS | {"Version": re.escape(expected.version)}
    for name, pattern in patterns.items():
        if not re.fullmatch(pattern, found.get(name, "")):
            value = f"is '{found[name]}'" if name in found else "is missing"
            yield Problem(f"the control field {name} {value}", "mend device/control.in")
    depends = {" ".join(part.split()) for part in found.get("Depends", "").split(",")}
    for name in sorted(DEPENDS - depends):
        yield Problem(f"it does not depend on {name}", "add it to Depends in device/control.in")
    if "Installed-Size" in found:
        # In KiB: files rounded up, and one for each directory or none.
        least = sum(-(-len(entry.data) // 1024) for entry in content)
        sizes = range(least, least + sum(entry.kind == DIRECTORY for entry in content) + 1)
        if found["Installed-Size"] not in map(str, sizes):
            what = f"its Installed-Size is {found['Installed-Size']}, not {least} or little more"
            yield Problem(what, "leave the field out or compute it")


def check_content(content: list[Entry], expected: Expected) -> Iterator[Problem]:
    """Checks the library's bytes, and that the filter names the phone application only."""
    for entry in content:
        if entry.name == LIBRARY and entry.data != expected.library:
            yield Problem("its library is not the one that was built", REBUILD)
        if entry.name == FILTER:
            if entry.data != expected.filter:
                yield Problem(f"its filter differs from {FILTER_SOURCE}", REBUILD)
            yield from check_filter(entry.data)


def check_filter(data: bytes) -> Iterator[Problem]:
    """Checks the property list that says into which programs the library is loaded."""
    remedy = f"mend {FILTER_SOURCE}"
    try:
        value = text_plist.read(data)
    except text_plist.BadPropertyList as error:
        yield Problem(f"its filter is no property list: {error}", remedy)
        return
    if value != FILTER_VALUE:
        yield Problem(f"its filter says {value!r}, not {FILTER_VALUE!r}", remedy)


def problems(package: Path, expected: Expected) -> Iterator[Problem]:
    """Yields every fault of the package; one that dpkg-deb cannot read has no others."""
    parts = members(package.read_bytes())
    yield from check_members(parts)
    control, content = control_entries(package), content_entries(package)
    yield from check_times(parts, control + content)
    yield from check_archive(control, CONTROL)
    yield from check_archive(content, CONTENT)
    yield from check_content(content, expected)
    for entry in control:
        if entry.name == "./control":
            yield from collected(check_control(entry.data, expected, content))


def main() -> int:
    """Runs the tool: 0 for a sound package, 1 for faults, 2 for wrong usage."""
    parser = argparse.ArgumentParser(prog=TOOL, description=__doc__)
    parser.add_argument("package", type=Path, help="the package")
    parser.add_argument("--library", type=Path, required=True, help="the library as it was built")
    parser.add_argument("--version", required=True, help="the version that it must have")
    parser.add_argument("--root", type=Path, required=True, help="the repository's root")
    options = parser.parse_args()
    package: Path = options.package
    try:
        filter_source = (options.root / FILTER_SOURCE).read_bytes()
        expected = Expected(options.version, options.library.read_bytes(), filter_source)
        faults = print_problems(TOOL, package.name, collected(problems(package, expected)))
    except NoTool:
        print(f"{TOOL}: no dpkg-deb: run tools/install-packages.sh device", file=sys.stderr)
        return 1
    except OSError as error:
        reason = f"cannot be read ({error.strerror})"
        print(f"{TOOL}: {error.filename}: {reason}: run make device", file=sys.stderr)
        return 1
    if not faults:
        size = package.stat().st_size
        print(f"{TOOL}: {package.name}: {size} bytes, version {options.version}: no fault")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
