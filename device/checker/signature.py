"""Reader of an embedded code signature: the blobs of its container and the code directory."""

from dataclasses import dataclass

from checker.bounded import BadImage, Block

CONTAINER_MAGIC = 0xFADE0CC0
DIRECTORY_SLOT, REQUIREMENTS_SLOT, CMS_SLOT = 0, 2, 0x10000
DIRECTORY_HEADER = 44


@dataclass(frozen=True)
class Blob:
    """A part of the signature: its whole bytes, with their magic, and their place in it."""

    slot: int
    magic: int
    offset: int
    data: bytes


@dataclass(frozen=True)
class Directory:
    """The header of a code directory of the old form, and its hashes by slot: pages count from 0,
    special slots down from -1."""

    version: int
    flags: int
    code_limit: int
    hash_size: int
    hash_type: int
    platform: int
    page_bits: int
    spare: int
    identifier: str
    pages: int
    hashes: dict[int, bytes]


def blobs(signature: Block) -> list[Blob]:
    """Returns the parts in the container's order; they must fill it without a gap, and only zeros
    may follow it."""
    magic, length, count = signature.numbers(">3I", 0)
    if magic != CONTAINER_MAGIC:
        raise BadImage(f"the code signature begins with {magic:#010x}, it is no container")
    inside = Block(signature.take(0, length), "the code signature's container")
    table = Block(inside.take(12, 8 * count), "the code signature's index")
    found: list[Blob] = []
    end = 12 + 8 * count
    for index in range(count):
        slot, offset = table.numbers(">2I", 8 * index)
        kind, size = inside.numbers(">2I", offset)
        if offset != end:
            raise BadImage(f"slot {slot:#x} of the code signature is at {offset}, not at {end}")
        found.append(Blob(slot, kind, offset, inside.take(offset, size)))
        end = offset + size
    if end != length:
        raise BadImage(f"the code signature's parts end at {end}, its container at {length}")
    if any(signature.data[length:]):
        raise BadImage("the code signature has more behind its container than zeros")
    return found


def directory(blob: Blob) -> Directory:
    """Returns the parsed code directory: header, identifier and hashes, without a gap."""
    data = Block(blob.data, "the code directory")
    version, flags, hashes_at, identifier_at, specials, pages, limit = data.numbers(">7I", 8)
    hash_size, hash_type, platform, page_bits, spare = data.numbers(">4BI", 36)
    identifier = data.string(identifier_at)
    hashes_start = hashes_at - specials * hash_size
    if identifier_at != DIRECTORY_HEADER:
        raise BadImage(f"the code directory's identifier is at {identifier_at}")
    if hashes_start != identifier_at + len(identifier) + 1:
        raise BadImage(f"the code directory's hashes begin at {hashes_start}")
    if hashes_at + pages * hash_size != len(data):
        raise BadImage(f"the code directory has {len(data)} bytes, no room for {pages} pages")
    hashes = {
        slot: data.take(hashes_at + slot * hash_size, hash_size) for slot in range(-specials, pages)
    }
    return Directory(
        version,
        flags,
        limit,
        hash_size,
        hash_type,
        platform,
        page_bits,
        spare,
        identifier,
        pages,
        hashes,
    )
