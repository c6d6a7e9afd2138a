"""Checks of the code signature in the form that devices of that age expect: ad hoc, one SHA-1
hash for each page of 4096 bytes, no certificate."""

import hashlib
from collections.abc import Iterator

from checker import signature
from checker.bounded import BadImage, Block
from checker.contract import Contract
from checker.macho import LC_CODE_SIGNATURE, Slice, body
from checker.report import MEND_BUILD, REBUILD, Problem
from checker.signature import CMS_SLOT, DIRECTORY_SLOT, REQUIREMENTS_SLOT, Blob, Directory

SIGNATURE_ALIGNMENT = 16
PAGE_BITS = 12
PAGE = 1 << PAGE_BITS
HASH_SIZE = 20
DIRECTORY_MAGIC, REQUIREMENTS_MAGIC, CMS_MAGIC = 0xFADE0C02, 0xFADE0C01, 0xFADE0B01
MAGICS = {
    DIRECTORY_SLOT: DIRECTORY_MAGIC,
    REQUIREMENTS_SLOT: REQUIREMENTS_MAGIC,
    CMS_SLOT: CMS_MAGIC,
}
# Empty parts: the requirements are a count of none, the certificate's container is only a header.
EMPTY_REQUIREMENTS = REQUIREMENTS_MAGIC.to_bytes(4, "big") + bytes([0, 0, 0, 12]) + bytes(4)
EMPTY_CMS = CMS_MAGIC.to_bytes(4, "big") + bytes([0, 0, 0, 8])
# Special slots of the directory: property list (a library has none), requirements.
SPECIAL_HASHES = {-1: bytes(HASH_SIZE), -2: hashlib.sha1(EMPTY_REQUIREMENTS).digest()}


def check_signature(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks the signature's parts, its directory and the hash of every page."""
    place = signature_place(image)
    if place is None:
        return
    start, size = place
    if start % SIGNATURE_ALIGNMENT:
        yield Problem(f"the code signature is at {start}, not aligned to 16", MEND_BUILD)
    if start + size != len(image.data):
        what = f"the code signature ends at {start + size}, the slice at {len(image.data)}"
        yield Problem(what, MEND_BUILD)
    parts = _parts(image, start, size)
    magics = {slot: part.magic for slot, part in parts.items()}
    if list(magics.items()) != list(MAGICS.items()):
        slots = ", ".join(f"{slot:#x} {magic:#x}" for slot, magic in magics.items())
        yield Problem(f"the code signature has the parts {slots}", MEND_BUILD)
    for slot, empty in ((REQUIREMENTS_SLOT, EMPTY_REQUIREMENTS), (CMS_SLOT, EMPTY_CMS)):
        if slot in parts and parts[slot].data != empty:
            yield Problem(f"part {slot:#x} of the code signature is not empty", MEND_BUILD)
    if DIRECTORY_SLOT in parts:
        directory = signature.directory(parts[DIRECTORY_SLOT])
        yield from _check_directory(directory, start)
        yield from _check_pages(image, directory)


def signature_place(image: Slice) -> tuple[int, int] | None:
    """Returns the signature's offset and size in bytes, None without one."""
    commands = image.commands_of(LC_CODE_SIGNATURE)
    if not commands:
        return None
    start, size = body(commands[0]).numbers("<2I", 8)
    return start, size


def code_directory_hash(image: Slice) -> str:
    """Returns the SHA-1 of the code directory in hex; a slice without one raises BadImage."""
    place = signature_place(image)
    parts = _parts(image, *place) if place else {}
    if DIRECTORY_SLOT not in parts:
        raise BadImage("the slice has no code directory")
    return hashlib.sha1(parts[DIRECTORY_SLOT].data).hexdigest()


def page_count(image: Slice) -> int:
    """Returns how many pages lie before the signature, 0 without one."""
    place = signature_place(image)
    return -(-place[0] // PAGE) if place else 0


def _parts(image: Slice, start: int, size: int) -> dict[int, Blob]:
    block = Block(image.block.take(start, size), "the code signature")
    return {part.slot: part for part in signature.blobs(block)}


def _check_directory(directory: Directory, start: int) -> Iterator[Problem]:
    # Field, value, what it must be. The version is the last one before the scattered form, and
    # the flag says ad hoc: signed by nobody, as jailbroken devices accept it.
    expected: list[tuple[str, int | str, int | str]] = [
        ("version", f"{directory.version:#x}", "0x20001"),
        ("flags", f"{directory.flags:#x}", "0x2"),
        ("identifier", directory.identifier, "libZQDial"),
        ("code limit", directory.code_limit, start),
        ("hash type", directory.hash_type, 1),
        ("hash size", directory.hash_size, HASH_SIZE),
        ("platform", directory.platform, 0),
        ("page size 2 to the", directory.page_bits, PAGE_BITS),
        ("spare field", directory.spare, 0),
        ("page count", directory.pages, -(-start // PAGE)),
    ]
    for field, value, wanted in expected:
        if value != wanted:
            yield Problem(f"the code directory has the {field} {value}, not {wanted}", MEND_BUILD)
    special = {slot: value for slot, value in directory.hashes.items() if slot < 0}
    if special != SPECIAL_HASHES:
        yield Problem("the hashes of the code directory's special slots are wrong", MEND_BUILD)


def _check_pages(image: Slice, directory: Directory) -> Iterator[Problem]:
    code = image.data[: directory.code_limit]
    for page in range(directory.pages):
        at = page * PAGE
        if hashlib.sha1(code[at : at + PAGE]).digest() != directory.hashes[page]:
            what = f"page {page}, at offset {at} of the slice, does not match its hash"
            yield Problem(what, f"the file was changed after signing, {REBUILD}")
