#!/usr/bin/env python3
"""Finishes a linked slice: drops its local symbols, names its init routine, gives it a UUID and an
ad-hoc signature.

No packaged linker writes an init routine, and no packaged tool signs as old devices expect. The new
load commands take the room of the -rpath that the slice was linked with for this purpose.
"""
import argparse
import hashlib
import struct
import sys
from pathlib import Path

import code_signature
import mach_image
from mach_image import BadImage, Image
from symbol_table import discard_local_symbols

SEGMENT_PAGE = 0x4000  # memory is given out to segments in these pages, on arm64 at least


def name_init_routine(image: Image, symbol: str) -> None:
    """Adds the command that has the loader call `symbol` when the library is mapped."""
    address = image.address_of(symbol)
    if image.wide:
        command = struct.pack("<2I8Q", mach_image.LC_ROUTINES_64, 72, address, *[0] * 7)
    else:
        command = struct.pack("<2I8I", mach_image.LC_ROUTINES, 40, address, *[0] * 7)
    image.commands.append(bytearray(command))


def sources_digest(root: Path) -> str:
    """SHA-256, in hex, of the list of all C++ files below src/ with their own SHA-256."""
    files = [path for path in (root / "src").rglob("*") if path.suffix in (".cpp", ".hpp")]
    names = sorted(path.relative_to(root).as_posix() for path in files)
    listing = "".join(
        f"{hashlib.sha256((root / name).read_bytes()).hexdigest()}  {name}\n" for name in names
    )
    return hashlib.sha256(listing.encode()).hexdigest()


def name_build(image: Image, architecture: str, root: Path) -> None:
    """Gives the slice a UUID made of the sources alone, in place of the linker's if it wrote one.

    Equal sources give equal UUIDs, and any difference of the sources shows in them. It is of version 8, whose bits but the version's and the variant's are the maker's to define.
    """
    uuid = bytearray(
        hashlib.sha256(f"{sources_digest(root)} {architecture}".encode()).digest()[:16]
    )
    uuid[6] = 0x80 | uuid[6] & 0x0F
    uuid[8] = 0x80 | uuid[8] & 0x3F
    image.remove(mach_image.LC_UUID)
    image.commands.append(bytearray(struct.pack("<2I", mach_image.LC_UUID, 24) + uuid))


def sign(image: Image, identifier: str) -> None:
    """Appends the signature, inside the last segment; nothing may change afterwards."""
    image.data += bytes(-len(image.data) % code_signature.ALIGNMENT)
    at = len(image.data)
    size = code_signature.size(at, identifier)
    image.commands.append(bytearray(struct.pack("<4I", mach_image.LC_CODE_SIGNATURE, 16, at, size)))
    last = image.segment("__LINKEDIT")
    layout = image.layout.addresses
    address, _, offset, _ = struct.unpack_from(layout, last, mach_image.SEGMENT_ADDRESSES)
    in_file = at + size - offset
    in_memory = in_file + -in_file % SEGMENT_PAGE
    struct.pack_into(
        layout, last, mach_image.SEGMENT_ADDRESSES, address, in_memory, offset, in_file
    )
    image.write()
    image.data += code_signature.sign(bytes(image.data), identifier)


def main() -> int:
    parser = argparse.ArgumentParser(description="Finishes a linked slice of the library.")
    parser.add_argument("linked", type=Path, help="the slice as the linker left it")
    parser.add_argument("finished", type=Path, help="where the finished slice goes")
    parser.add_argument("--architecture", required=True, choices=("armv7", "arm64"))
    parser.add_argument("--init", help="symbol of the init routine, if there is one")
    parser.add_argument("--identifier", required=True, help="the signature's identifier")
    parser.add_argument("--root", type=Path, required=True, help="folder that holds src/")
    arguments = parser.parse_args()
    try:
        image = Image(arguments.linked.read_bytes())
        image.remove(mach_image.LC_RPATH)
        name_build(image, arguments.architecture, arguments.root)
        if arguments.init:
            name_init_routine(image, arguments.init)
        discard_local_symbols(image)
        sign(image, arguments.identifier)
        arguments.finished.write_bytes(image.data)
    except (BadImage, OSError) as error:
        print(f"finish_dylib: {arguments.linked}: {error}", file=sys.stderr)
        return 1
    except (struct.error, ValueError):  # a read beyond the end
        print(
            f"finish_dylib: {arguments.linked}: not a whole image: link it again", file=sys.stderr
        )
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
