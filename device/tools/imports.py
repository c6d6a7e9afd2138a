"""Reads the list of foreign symbols (imports.txt), which stubs and checks are made from.

A line that begins with "/" names an image; the indented lines below it are symbols of it, each with
the slices it is limited to, if any. "#" begins a comment.
"""
from dataclasses import dataclass
from pathlib import Path

ARCHITECTURES = ("armv7", "arm64")


class BadList(Exception):
    """What is wrong with the list, with its file and line and the remedy."""


@dataclass(frozen=True)
class Import:
    """A symbol and the install name of the image that offers it."""

    symbol: str
    image: str
    architectures: tuple[str, ...]


def read(path: Path) -> list[Import]:
    """Every symbol of the list in its order; raises BadList for a list that says nothing clear."""
    try:
        lines = path.read_text(encoding="utf-8").splitlines()
    except OSError as error:
        raise BadList(f"cannot read {path}: {error.strerror}") from None
    image = ""
    imports: list[Import] = []
    seen: set[str] = set()
    for number, line in enumerate(lines, start=1):
        words = line.partition("#")[0].split()
        if not words:
            continue
        name, limits = words[0], tuple(words[1:])
        unknown = [limit for limit in limits if limit not in ARCHITECTURES]
        if unknown:
            known = " or ".join(ARCHITECTURES)
            raise BadList(f"{path}:{number}: no slice is called '{unknown[0]}': write {known}")
        if name.startswith("/"):
            image = name
            continue
        if not image:
            raise BadList(f"{path}:{number}: {name} stands under no image: name its library first")
        if name in seen:
            raise BadList(f"{path}:{number}: {name} is listed twice: keep one of them")
        seen.add(name)
        imports.append(Import(name, image, limits or ARCHITECTURES))
    if not imports:
        raise BadList(f"{path}: lists no symbol at all: is it the right file?")
    return imports


def of_slice(imports: list[Import], architecture: str) -> dict[str, list[str]]:
    """The symbols of one slice by image, images in the list's order; those without any left out."""
    images: dict[str, list[str]] = {}
    for entry in imports:
        if architecture in entry.architectures:
            images.setdefault(entry.image, []).append(entry.symbol)
    return images
