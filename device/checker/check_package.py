"""Checks the finished package: what it declares, what it installs where and with which rights,
and that building it again gives the same bytes. Prints all faults, not just one."""

import argparse
import difflib
import email
import gzip
import io
import re
import stat
import struct
import subprocess
import sys
import tarfile
import zlib
from collections.abc import Iterator
from pathlib import Path
from typing import NamedTuple

from checker.bounded import BadImage
from checker.report import MEND_BUILD, REBUILD, Problem, collected, print_problems

TOOL = "check_package"
MAGIC = b"!<arch>\n"
HEADER = struct.Struct("16s12s6s6s8s10s2s")
GZIP = ".tar.gz"
GZIP_TIME = slice(4, 8)

LIBRARY = "./Library/MobileSubstrate/DynamicLibraries/libZQDial.dylib"
FILTER = "./Library/MobileSubstrate/DynamicLibraries/libZQDial.plist"
# Everything that the package consists of, in order, with rights and owner. The package tool of such
# devices unpacks gzip alone.
PARTS = f"""\
debian-binary 100644 0/0
control.tar.gz 100644 0/0
control.tar.gz: . drwxr-xr-x 0/0 root/root
control.tar.gz: ./control -rw-r--r-- 0/0 root/root
data.tar.gz 100644 0/0
data.tar.gz: . drwxr-xr-x 0/0 root/root
data.tar.gz: ./Library drwxr-xr-x 0/0 root/root
data.tar.gz: ./Library/MobileSubstrate drwxr-xr-x 0/0 root/root
data.tar.gz: ./Library/MobileSubstrate/DynamicLibraries drwxr-xr-x 0/0 root/root
data.tar.gz: {LIBRARY} -rwxr-xr-x 0/0 root/root
data.tar.gz: {FILTER} -rw-r--r-- 0/0 root/root
""".splitlines()
# Into which programs the library is loaded: the Phone application only.
FILTER_TEXT = b'{ Filter = { Bundles = ( "com.apple.mobilephone" ); }; }\n'

# The pattern of each control field's whole value; one that is missing has an empty value.
FIELDS = {
    "Package": r"[a-z0-9][a-z0-9+.-]+",
    "Name": r".+",
    "Architecture": r"iphoneos-arm",
    "Maintainer": r".+",
    "Section": r".+",
    "Description": r"(?s:.+)",
    "Depends": r"(?=(.*, )?firmware \(>= 7\.0\)(,|$))(?=(.*, )?mobilesubstrate(,|$)).*",
    "Installed-Size": r"",  # would have to be kept right
}


class Part(NamedTuple):
    """A member of the package file, or an entry of an archive in it."""

    name: str
    line: str  # as in PARTS
    time: int  # in seconds since 1970
    data: bytes

    def is_gzip(self) -> bool:
        """Tells whether it is a compressed archive."""
        return self.name.endswith(GZIP)


def parts(package: bytes) -> Iterator[Part]:
    """Yields what the package consists of, as it lies in the file."""
    file = io.BytesIO(package)
    if file.read(len(MAGIC)) != MAGIC:
        raise BadImage("the package is no archive of the ar form")
    while header := file.read(HEADER.size):
        texts = [field.decode("ascii").strip() for field in HEADER.unpack(header)]
        name, time, owner, group, mode, size, _ = texts
        data = file.read(int(size))
        if len(data) != int(size):
            raise BadImage(f"the package ends within {name}")
        file.read(len(data) % 2)
        yield Part(name, f"{name} {mode} {owner}/{group}", int(time), data)
        if name.endswith(GZIP):
            yield from entries(name, data)


def entries(archive_name: str, data: bytes) -> Iterator[Part]:
    """Yields what an archive of the package holds."""
    with tarfile.open(fileobj=io.BytesIO(gzip.decompress(data)), mode="r:") as archive:
        for entry in archive:
            kind = "d" if entry.isdir() else "-" if entry.isreg() else "?"
            rights = kind + stat.filemode(entry.mode)[1:]
            owner = f"{entry.uid}/{entry.gid} {entry.uname}/{entry.gname}"
            stream = archive.extractfile(entry) if entry.isreg() else None
            line = f"{archive_name}: {entry.name} {rights} {owner}"
            yield Part(entry.name, line, int(entry.mtime), stream.read() if stream else b"")


def check_parts(found: list[Part]) -> Iterator[Problem]:
    """Checks that everything is there that belongs in the package, and nothing else, and that all
    times are the same, so that building again gives the same bytes."""
    for line in difflib.ndiff(PARTS, [part.line for part in found]):
        if line[0] in "-+":
            yield Problem(("it lacks " if line[0] == "-" else "it has ") + line[2:], MEND_BUILD)
    stamps = {int.from_bytes(part.data[GZIP_TIME], "little") for part in found if part.is_gzip()}
    times = {part.time for part in found} | (stamps - {0})
    if len(times) > 1:
        what = f"its times differ, from {min(times)} to {max(times)}"
        yield Problem(what, "build it with SOURCE_DATE_EPOCH")


def check_content(found: list[Part], library: bytes) -> Iterator[Problem]:
    """Checks the bytes of the files that are known beforehand."""
    expected = (
        ("debian-binary", b"2.0\n", "build it in format 2.0"),
        (LIBRARY, library, REBUILD),
        (FILTER, FILTER_TEXT, f"mend device/libZQDial.plist, {REBUILD}"),
    )
    for name, data, remedy in expected:
        if any(part.name == name and part.data != data for part in found):
            yield Problem(f"{name} is not as it should be", remedy)


def check_control(package: Path, version: str) -> Iterator[Problem]:
    """Checks the control fields, as the packaging tool reads them."""
    run = subprocess.run(["dpkg-deb", "--field", package], capture_output=True, check=False)
    if run.returncode:
        raise BadImage(f"dpkg-deb cannot read it ({run.stderr.decode(errors='replace').strip()})")
    control = email.message_from_bytes(run.stdout)
    for name, pattern in (FIELDS | {"Version": re.escape(version)}).items():
        value = control.get(name, "")
        if not re.fullmatch(pattern, value):
            yield Problem(f"the control field {name} is '{value}'", "mend device/control.in")


def problems(package: Path, library: bytes, version: str) -> Iterator[Problem]:
    """Yields every fault of the package."""
    data = package.read_bytes()
    try:
        found = list(parts(data))
    except (ValueError, OSError, EOFError, struct.error, tarfile.TarError, zlib.error) as error:
        raise BadImage(f"the package cannot be unpacked ({error})") from error
    yield from check_parts(found)
    yield from check_content(found, library)
    yield from check_control(package, version)


def main() -> int:
    """Runs the tool: 0 for a sound package, 1 for faults, 2 for wrong usage."""
    parser = argparse.ArgumentParser(prog=TOOL, description=__doc__)
    parser.add_argument("package", type=Path, help="the package")
    parser.add_argument("--library", type=Path, required=True, help="the library as it was built")
    parser.add_argument("--version", required=True, help="the version that it must have")
    options = parser.parse_args()
    package: Path = options.package
    try:
        found = problems(package, options.library.read_bytes(), options.version)
        faults = print_problems(TOOL, package.name, collected(found))
    except OSError as error:
        print(f"{TOOL}: {error.filename}: {error.strerror}: run make device", file=sys.stderr)
        return 1
    if not faults:
        size = package.stat().st_size
        print(f"{TOOL}: {package.name}: {size} bytes, version {options.version}: no fault")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
