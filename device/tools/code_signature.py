"""An ad-hoc code signature as devices of iOS 7 and 8 read it: SHA-1 hashes, no certificate.

It is a "super blob" of three blobs, all numbers big-endian: the code directory with the page hashes,
an empty set of requirements, and an empty place for a certificate's signature.
"""
import hashlib
import struct

PAGE = 4096
ALIGNMENT = 16  # of the signature in the file

MAGIC_EMBEDDED, MAGIC_DIRECTORY = 0xFADE0CC0, 0xFADE0C02
MAGIC_REQUIREMENTS, MAGIC_WRAPPER = 0xFADE0C01, 0xFADE0B01
SLOT_DIRECTORY, SLOT_REQUIREMENTS, SLOT_SIGNATURE = 0, 2, 0x10000

VERSION = 0x20001
ADHOC = 0x2
HASH_SIZE, HASH_SHA1, PAGE_LOG2 = 20, 1, 12
DIRECTORY_HEADER = struct.Struct(">7I4BI")  # follows a blob's magic and length


def blob(magic: int, content: bytes) -> bytes:
    return struct.pack(">2I", magic, 8 + len(content)) + content


REQUIREMENTS = blob(MAGIC_REQUIREMENTS, struct.pack(">I", 0))
NO_SIGNATURE = blob(MAGIC_WRAPPER, b"")


def code_directory(code: bytes, identifier: str) -> bytes:
    """The hashes of every page of `code`, and of the requirements."""
    pages = [hashlib.sha1(code[at : at + PAGE]).digest() for at in range(0, len(code), PAGE)]
    # Slots with negative numbers stand before the pages: requirements -2, property list -1 (none).
    special = [hashlib.sha1(REQUIREMENTS).digest(), bytes(HASH_SIZE)]
    name = identifier.encode() + b"\0"
    name_at = 8 + DIRECTORY_HEADER.size
    hashes_at = name_at + len(name) + HASH_SIZE * len(special)
    header = DIRECTORY_HEADER.pack(
        *(VERSION, ADHOC, hashes_at, name_at, len(special), len(pages), len(code)),
        *(HASH_SIZE, HASH_SHA1, 0, PAGE_LOG2, 0),
    )
    return blob(MAGIC_DIRECTORY, header + name + b"".join(special + pages))


def sign(code: bytes, identifier: str) -> bytes:
    """The whole signature of `code`, a multiple of ALIGNMENT long."""
    parts = {
        SLOT_DIRECTORY: code_directory(code, identifier),
        SLOT_REQUIREMENTS: REQUIREMENTS,
        SLOT_SIGNATURE: NO_SIGNATURE,
    }
    index, body = struct.pack(">I", len(parts)), b""
    bodies_at = 8 + len(index) + 8 * len(parts)
    for slot, part in parts.items():
        index += struct.pack(">2I", slot, bodies_at + len(body))
        body += part
    signature = blob(MAGIC_EMBEDDED, index + body)
    return signature.ljust(size(len(code), identifier), b"\0")


def size(code_size: int, identifier: str) -> int:
    """The length of the signature of `code_size` bytes, known before they are final."""
    pages = -(-code_size // PAGE)
    directory = 8 + DIRECTORY_HEADER.size + len(identifier) + 1 + HASH_SIZE * (2 + pages)
    whole = 8 + 4 + 3 * 8 + directory + len(REQUIREMENTS) + len(NO_SIGNATURE)
    return whole + -whole % ALIGNMENT
