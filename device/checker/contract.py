"""What the library must be, read from the repository: its exports, its imports and its sources."""

import hashlib
from dataclasses import dataclass
from pathlib import Path

ARCHS = ("armv7", "arm64")
EXPORTS = Path("tools/contract/exports.txt")
IMPORTS = Path("device/imports.txt")
SOURCES = Path("src")
SOURCE_SUFFIXES = {".cpp", ".hpp"}
SIZE_LIMIT = 160 * 1024


class BadContract(Exception):
    """A list in the repository that cannot be read; the message names the file and the remedy."""


@dataclass(frozen=True)
class Contract:
    """Names carry the leading underscore of the device's symbols; `imports` leads from a slice's
    architecture and a symbol to the image that offers it."""

    exports: frozenset[str]
    imports: dict[str, dict[str, str]]
    source_digest: str

    def uuid(self, arch: str) -> bytes:
        """Returns the 16 bytes that identify a slice built from today's sources."""
        raw = bytearray(hashlib.sha256(f"{self.source_digest} {arch}".encode()).digest()[:16])
        raw[6] = 0x80 | raw[6] & 0x0F
        raw[8] = 0x80 | raw[8] & 0x3F
        return bytes(raw)


def load(root: Path) -> Contract:
    """Reads the lists below the repository's root; a missing or broken one raises BadContract."""
    return Contract(read_exports(root), read_imports(root), source_digest(root))


def read_exports(root: Path) -> frozenset[str]:
    """Returns the exported names with their underscore; an empty list raises BadContract."""
    names = frozenset(f"_{line}" for _, line in _lines(root, EXPORTS))
    if not names:
        raise BadContract(f"{root / EXPORTS}: no name in it: restore the list")
    return names


def read_imports(root: Path) -> dict[str, dict[str, str]]:
    """Returns, for each architecture, the image that offers each foreign symbol."""
    imports: dict[str, dict[str, str]] = {arch: {} for arch in ARCHS}
    image = ""
    for number, line in _lines(root, IMPORTS):
        words = line.split()
        where = f"{root / IMPORTS}:{number}"
        if line.startswith("/"):
            image = line
            continue
        if not image or len(words) > 2 or not set(words[1:]) <= set(ARCHS):
            raise BadContract(f"{where}: no such entry: write an image, or 'symbol [slice]' below")
        for arch in words[1:] or ARCHS:
            if words[0] in imports[arch]:
                raise BadContract(f"{where}: {words[0]} stands here twice: keep one")
            imports[arch][words[0]] = image
    return imports


def source_digest(root: Path) -> str:
    """Returns the SHA-256, in hex, of the list of all sources with theirs, by path."""
    files = [file for file in (root / SOURCES).rglob("*") if file.suffix in SOURCE_SUFFIXES]
    if not files:
        raise BadContract(f"{root / SOURCES}: no sources: name the repository with --root")
    paths = sorted(file.relative_to(root).as_posix().encode() for file in files)
    listing = hashlib.sha256()
    for path in paths:
        digest = hashlib.sha256((root / path.decode()).read_bytes()).hexdigest()
        listing.update(f"{digest}  ".encode() + path + b"\n")
    return listing.hexdigest()


def _lines(root: Path, name: Path) -> list[tuple[int, str]]:
    """Returns the lines that say something, without comments, after their numbers."""
    try:
        text = (root / name).read_text(encoding="utf-8")
    except (OSError, UnicodeDecodeError) as error:
        raise BadContract(f"{root / name}: not readable ({error}): check --root") from error
    said = (line.partition("#")[0].strip() for line in text.splitlines())
    return [(number, line) for number, line in enumerate(said, 1) if line]
