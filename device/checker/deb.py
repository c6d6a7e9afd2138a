"""Reader of a Debian package: its members as they lie in the file, and, through dpkg-deb, what
its two archives hold."""

import io
import subprocess
import tarfile
from dataclasses import dataclass
from pathlib import Path

from checker.bounded import BadImage, Block, printable

MAGIC = b"!<arch>\n"
HEADER_SIZE = 60
HEADER_END = b"`\n"


class NoTool(Exception):
    """dpkg-deb is not installed."""


@dataclass(frozen=True)
class Member:
    """A member of the package file; `time` counts seconds since 1970, `mode` is octal."""

    name: str
    time: int
    owner: str
    group: str
    mode: str
    data: bytes


@dataclass(frozen=True)
class Entry:
    """A file or directory in one of the archives; `mode` has the permission bits only."""

    name: str
    kind: str
    mode: int
    owner: tuple[int, int, str, str]
    time: int
    data: bytes


def members(data: bytes) -> list[Member]:
    """Returns the package's members in order."""
    block = Block(data, "the package")
    if block.take(0, len(MAGIC)) != MAGIC:
        raise BadImage("the package is no archive of the ar form")
    found: list[Member] = []
    at = len(MAGIC)
    while at < len(data):
        header = block.take(at, HEADER_SIZE)
        if header[58:] != HEADER_END:
            raise BadImage(f"the package has no member at offset {at}")
        name = _text(header[:16], at)
        time, size = _decimal(header[16:28], at), _decimal(header[48:58], at)
        ranges = ((28, 34), (34, 40), (40, 48))
        owner, group, mode = (_text(header[start:end], at) for start, end in ranges)
        content = block.take(at + HEADER_SIZE, size)
        found.append(Member(name, time, owner, group, mode, content))
        at += HEADER_SIZE + size + size % 2
    return found


def _text(field: bytes, at: int) -> str:
    return printable(field, f"the header of the member at offset {at}").strip()


def _decimal(field: bytes, at: int) -> int:
    if not field.strip().isdigit():
        raise BadImage(f"the member at offset {at} of the package has a broken header")
    return int(field)


def control_entries(package: Path) -> list[Entry]:
    """Returns what the package's control archive holds."""
    return _entries(package, "--ctrl-tarfile")


def content_entries(package: Path) -> list[Entry]:
    """Returns what the package installs."""
    return _entries(package, "--fsys-tarfile")


def _entries(package: Path, which: str) -> list[Entry]:
    command = ["dpkg-deb", which, str(package)]
    try:
        run = subprocess.run(command, capture_output=True, check=False)
    except FileNotFoundError as error:
        raise NoTool from error
    if run.returncode:
        said = run.stderr.decode(errors="replace").strip().splitlines() or ["it says nothing"]
        raise BadImage(f"dpkg-deb {which} fails ({said[0]})")
    try:
        with tarfile.open(fileobj=io.BytesIO(run.stdout), mode="r:") as archive:
            return [_entry(archive, info) for info in archive]
    except (tarfile.TarError, EOFError, ValueError) as error:
        raise BadImage(f"an archive in the package is damaged ({error})") from error


def _entry(archive: tarfile.TarFile, info: tarfile.TarInfo) -> Entry:
    kind = "directory" if info.isdir() else "file" if info.isreg() else "special file"
    stream = archive.extractfile(info) if info.isreg() else None
    owner = (info.uid, info.gid, info.uname, info.gname)
    content = stream.read() if stream else b""
    return Entry(info.name, kind, info.mode & 0o7777, owner, int(info.mtime), content)


def fields(control: bytes) -> dict[str, str]:
    """Returns a control file's fields, continuation lines joined by line feeds."""
    found: dict[str, str] = {}
    name = ""
    for number, line in enumerate(control.decode(errors="replace").splitlines(), 1):
        if line[:1] in (" ", "\t") and name:
            found[name] += "\n" + line.strip()
            continue
        name, colon, value = line.partition(":")
        if not colon or not name or name in found:
            raise BadImage(f"line {number} of the control file is no new field")
        found[name] = value.strip()
    return found
