"""A thin Mach-O image whose load commands can be changed.

Only what finishing a linked library needs: the commands, the segments and the room in front of the
first section.
"""
import struct
from collections.abc import Iterator
from dataclasses import dataclass

LC_SEGMENT, LC_SYMTAB, LC_DYSYMTAB, LC_ROUTINES = 0x01, 0x02, 0x0B, 0x11
LC_SEGMENT_64, LC_ROUTINES_64 = 0x19, 0x1A
LC_UUID, LC_CODE_SIGNATURE, LC_RPATH = 0x1B, 0x1D, 0x8000001C

MAGIC_32, MAGIC_64 = 0xFEEDFACE, 0xFEEDFACF
SYMBOL_TYPE, SYMBOL_IN_SECTION = 0x0E, 0x0E  # of n_type: the mask, and "defined in a section"


class BadImage(Exception):
    """Why an image cannot be finished."""


@dataclass(frozen=True)
class Layout:
    """Where the fields of headers, segments and symbols lie in images of one width."""

    header: int  # bytes of the Mach-O header
    segment: int  # bytes of a segment command, without its sections
    section: int  # bytes of a section
    section_file_offset: int  # where in a section its offset in the file stands
    addresses: str  # a segment's address, size, file offset and file size
    symbol: str  # a symbol table entry


NARROW = Layout(28, 56, 68, 40, "<4I", "<IBBHI")
WIDE = Layout(32, 72, 80, 48, "<4Q", "<IBBHQ")
SEGMENT_ADDRESSES = 24  # where in a segment command they begin


class Image:
    """The bytes of a thin image and its load commands; write() puts the commands back."""

    def __init__(self, data: bytes) -> None:
        self.data = bytearray(data)
        (magic,) = struct.unpack_from("<I", data)
        if magic not in (MAGIC_32, MAGIC_64):
            raise BadImage("not a thin little-endian Mach-O image")
        self.wide = magic == MAGIC_64
        self.layout = WIDE if self.wide else NARROW
        (count,) = struct.unpack_from("<I", data, 16)
        self.commands: list[bytearray] = []
        at = self.layout.header
        for _ in range(count):
            (size,) = struct.unpack_from("<I", data, at + 4)
            self.commands.append(bytearray(data[at : at + size]))
            at += size

    def find(self, *kinds: int) -> Iterator[bytearray]:
        """The load commands of the given kinds."""
        return (command for command in self.commands if kind_of(command) in kinds)

    def remove(self, kind: int) -> None:
        self.commands = [command for command in self.commands if kind_of(command) != kind]

    def segment(self, name: str) -> bytearray:
        """The command of the segment called `name`, to read or to change."""
        for command in self.find(LC_SEGMENT, LC_SEGMENT_64):
            if command[8:24].rstrip(b"\0") == name.encode():
                return command
        raise BadImage(f"has no segment {name}")

    def address_of(self, symbol: str) -> int:
        """The address of a symbol that the image defines."""
        table = next(self.find(LC_SYMTAB), None)
        if table is None:
            raise BadImage("has no symbol table")
        entries, count, strings = struct.unpack_from("<3I", table, 8)
        entry = struct.Struct(self.layout.symbol)
        for index in range(count):
            name, kind, _, _, value = entry.unpack_from(self.data, entries + index * entry.size)
            end = self.data.index(0, strings + name)
            found = self.data[strings + name : end].decode()
            if found == symbol and kind & SYMBOL_TYPE == SYMBOL_IN_SECTION:
                return int(value)
        raise BadImage(f"does not define {symbol}")

    def write(self) -> None:
        """Puts the load commands back in front of the first section."""
        commands = b"".join(self.commands)
        room = self._first_section() - self.layout.header
        if len(commands) > room:
            raise BadImage(
                f"has room for {room} bytes of load commands, {len(commands)} are needed: "
                "link it with a longer -rpath"
            )
        end = self.layout.header + room
        self.data[self.layout.header : end] = commands.ljust(room, b"\0")
        struct.pack_into("<2I", self.data, 16, len(self.commands), len(commands))

    def _first_section(self) -> int:
        """Where in the file the first section begins: load commands end before it."""
        offsets = []
        for command in self.find(LC_SEGMENT, LC_SEGMENT_64):
            for at in range(self.layout.segment, len(command), self.layout.section):
                (offset,) = struct.unpack_from("<I", command, at + self.layout.section_file_offset)
                if offset:  # zero-fill sections have none
                    offsets.append(offset)
        return int(min(offsets))


def kind_of(command: bytes | bytearray) -> int:
    return int(struct.unpack_from("<I", command)[0])
