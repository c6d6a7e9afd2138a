"""Drops the local symbols of a linked image, which nothing reads on the device.

The packaged strip program cannot be used: it lays armv7 out on larger pages than the linker did, and
leaves its segments overlapping.
"""
import struct
from dataclasses import dataclass

from mach_image import LC_DYSYMTAB, LC_SYMTAB, BadImage, Image

EXTERNAL = 0x01  # of n_type
SPECIAL_INDEX = 0xC0000000  # of the indirect table: local or absolute, no index of a symbol
SYMBOL_INDEXES, INDIRECT_TABLE = 8, 56  # where in the command for dynamic symbols they stand


@dataclass
class Symbol:
    """A symbol table entry, its name not yet in a string table."""

    name: bytes
    fields: tuple[int, ...]  # n_type, n_sect, n_desc, n_value


def read_symbols(image: Image, at: int, count: int, strings: int) -> list[Symbol]:
    entry = struct.Struct(image.layout.symbol)
    symbols = []
    for index in range(count):
        name, *fields = entry.unpack_from(image.data, at + index * entry.size)
        end = image.data.index(0, strings + name)
        symbols.append(Symbol(bytes(image.data[strings + name : end]), tuple(fields)))
    return symbols


def discard_local_symbols(image: Image) -> None:
    """Leaves the symbols that are exported or foreign, and moves the tables behind them up.

    Symbols, indirect table and strings must be the last of the file in this order, as both linkers
    write them.
    """
    table = next(image.find(LC_SYMTAB), None)
    dynamic = next(image.find(LC_DYSYMTAB), None)
    if table is None or dynamic is None:
        raise BadImage("has no symbol table")
    at, count, strings, strings_size = struct.unpack_from("<4I", table, 8)
    locals_at, local_count, defined_at, defined, foreign_at, foreign = struct.unpack_from(
        "<6I", dynamic, SYMBOL_INDEXES
    )
    indirect_at, indirect_count = struct.unpack_from("<2I", dynamic, INDIRECT_TABLE)
    if not at < indirect_at < strings <= strings + strings_size == len(image.data):
        raise BadImage("does not end with symbols, indirect symbols and strings")
    if (locals_at, defined_at, foreign_at) != (0, local_count, local_count + defined):
        raise BadImage("does not list local, exported and foreign symbols in this order")

    kept = read_symbols(image, at, count, strings)[local_count:]
    if not all(symbol.fields[0] & EXTERNAL for symbol in kept):
        raise BadImage("lists a local symbol among the exported and foreign ones")
    indirect = struct.unpack_from(f"<{indirect_count}I", image.data, indirect_at)
    indirect = tuple(index if index & SPECIAL_INDEX else index - local_count for index in indirect)

    entries, names = bytearray(), bytearray(b"\0")  # a name at 0 means no name
    for symbol in kept:
        entries += struct.pack(image.layout.symbol, len(names), *symbol.fields)
        names += symbol.name + b"\0"
    indirect_at = at + len(entries)
    strings = indirect_at + 4 * indirect_count
    image.data[at:] = entries + struct.pack(f"<{indirect_count}I", *indirect) + names
    struct.pack_into("<4I", table, 8, at, len(kept), strings, len(names))
    struct.pack_into("<6I", dynamic, SYMBOL_INDEXES, 0, 0, 0, defined, defined, foreign)
    struct.pack_into("<I", dynamic, INDIRECT_TABLE, indirect_at)
