"""Reader of Mach-O libraries for 32-bit and 64-bit ARM, thin or fat: it says what is in the file
and holds no opinion on it. Offsets are never trusted: what leaves the file raises BadImage."""

import functools
from pathlib import Path

from checker import dyld_info
from checker.bounded import BadImage, Block, printable
from checker.dyld_info import Bind, Export
from checker.records import Command, Dylib, FatEntry, Section, Segment, Symbol

__all__ = ["BadImage", "Bind", "Command", "Dylib", "Export", "FatEntry", "Section", "Segment"]
__all__ += ["Slice", "Symbol", "fat_entries", "read"]

FAT_MAGIC = 0xCAFEBABE
THIN_MAGICS = {0xFEEDFACE: False, 0xFEEDFACF: True}
CPUS = {(12, 9, False): "armv7", (0x0100000C, 0, True): "arm64"}

LC_SEGMENT = 0x1
LC_SYMTAB = 0x2
LC_DYSYMTAB = 0xB
LC_LOAD_DYLIB = 0xC
LC_ID_DYLIB = 0xD
LC_ROUTINES = 0x11
LC_SEGMENT_64 = 0x19
LC_ROUTINES_64 = 0x1A
LC_UUID = 0x1B
LC_CODE_SIGNATURE = 0x1D
LC_DYLD_INFO = 0x22
LC_FUNCTION_STARTS = 0x26
LC_DATA_IN_CODE = 0x29
LC_DYLD_INFO_ONLY = 0x80000022
LC_VERSION_MIN_IPHONEOS = 0x25

MOST_CONTENT = 1 << 24
MOST_SLICES = 16


class Slice:
    """One thin image, parsed from its bytes."""

    def __init__(self, data: bytes) -> None:
        self.data = data
        self.block = Block(data, "the image")
        magic, cpu, subtype, self.file_type, count, size, self.flags = self.block.numbers("<7I", 0)
        if magic not in THIN_MAGICS:
            raise BadImage(f"the image begins with {magic:#010x}, no Mach-O for this byte order")
        self.wide = THIN_MAGICS[magic]
        if (cpu, subtype, self.wide) not in CPUS:
            raise BadImage(f"the image is for processor ({cpu:#x}, {subtype:#x}), unknown here")
        self.arch = CPUS[(cpu, subtype, self.wide)]
        self.header_size = 32 if self.wide else 28
        self.commands = self._read_commands(count, size)
        self.segments = self._read_segments()
        self.dylibs = [self._dylib(command) for command in self.commands_of(LC_LOAD_DYLIB)]

    @property
    def pointer_size(self) -> int:
        """Bytes of a pointer: 4 or 8."""
        return 8 if self.wide else 4

    @property
    def sections(self) -> list[Section]:
        """All sections in file order: a symbol's section number counts them from 1."""
        return [section for segment in self.segments for section in segment.sections]

    def section(self, segment: str, name: str) -> Section | None:
        """Returns the section of that name, or None."""
        named = [s for s in self.sections if (s.segment, s.name) == (segment, name)]
        return named[0] if named else None

    def segment(self, name: str) -> Segment | None:
        """Returns the segment of that name, or None."""
        named = [segment for segment in self.segments if segment.name == name]
        return named[0] if named else None

    def content(self, section: Section) -> bytes:
        """Returns a section's bytes; zeros where it takes no room in the file."""
        if section.size > MOST_CONTENT:
            raise BadImage(f"section {section.name} claims {section.size} bytes")
        if section.zero_fill:
            return bytes(section.size)
        return self.block.take(section.offset, section.size)

    def word(self, address: int) -> int | None:
        """Returns the pointer stored at an address, None where the file holds no bytes for it."""
        for segment in self.segments:
            offset = address - segment.address
            if 0 <= offset and offset + self.pointer_size <= segment.file_size:
                return self.block.number("<Q" if self.wide else "<I", segment.file_offset + offset)
        return None

    def commands_of(self, *kinds: int) -> list[Command]:
        """Returns the load commands of these kinds, in order."""
        return [command for command in self.commands if command.kind in kinds]

    @property
    def install_name(self) -> Dylib | None:
        """The library's own name, None without LC_ID_DYLIB."""
        commands = self.commands_of(LC_ID_DYLIB)
        return self._dylib(commands[0]) if commands else None

    @property
    def init_address(self) -> int | None:
        """The address that the routines command names, None without one."""
        commands = self.commands_of(LC_ROUTINES, LC_ROUTINES_64)
        if not commands:
            return None
        return body(commands[0]).number("<Q" if commands[0].kind == LC_ROUTINES_64 else "<I", 8)

    @property
    def uuid(self) -> bytes | None:
        """The 16 bytes of LC_UUID, None without it."""
        commands = self.commands_of(LC_UUID)
        return body(commands[0]).take(8, 16) if commands else None

    @property
    def minimum_version(self) -> int | None:
        """The oldest iOS as 16.8.8 bits, None without LC_VERSION_MIN_IPHONEOS."""
        commands = self.commands_of(LC_VERSION_MIN_IPHONEOS)
        return body(commands[0]).number("<I", 8) if commands else None

    def symbols(self) -> list[Symbol]:
        """Returns the symbol table; empty without one."""
        return list(self._symbols)

    @functools.cached_property
    def _symbols(self) -> list[Symbol]:
        commands = self.commands_of(LC_SYMTAB)
        if not commands:
            return []
        start, count, names_start, names_size = body(commands[0]).numbers("<4I", 8)
        layout, size = ("<I2BHQ", 16) if self.wide else ("<I2BHI", 12)
        table = Block(self.block.take(start, count * size), "the symbol table")
        names = Block(self.block.take(names_start, names_size), "the table of symbol names")
        found = []
        for index in range(count):
            name, kind, section, description, address = table.numbers(layout, index * size)
            found.append(Symbol(names.string(name), address, kind, section, description))
        return found

    def indirect_symbols(self) -> list[int]:
        """Returns the indirect symbol table: numbers of symbols; empty without one."""
        commands = self.commands_of(LC_DYSYMTAB)
        if not commands:
            return []
        start, count = body(commands[0]).numbers("<2I", 56)
        table = Block(self.block.take(start, 4 * count), "the indirect symbol table")
        return list(table.numbers(f"<{count}I", 0))

    def exports(self) -> dict[str, int]:
        """Returns the address of every symbol of the export trie."""
        return {export.name: export.address for export in self.export_entries()}

    def export_entries(self) -> list[Export]:
        """Returns the export trie's symbols with their flags, addresses as the segments count."""
        base = next((s.address for s in self.segments if s.name == "__TEXT"), 0)
        entries = dyld_info.exports(self._dyld_table(4, "the export trie"))
        return [Export(entry.name, base + entry.address, entry.flags) for entry in entries]

    def rebases(self) -> list[int]:
        """Returns the addresses of the pointers that move with the image."""
        return dyld_info.rebases(self._dyld_table(0, "the rebase operations"), self._places())

    def binds(self) -> list[Bind]:
        """Returns the bindings of all three streams: "bind", then "weak", then "lazy"."""
        streams = [(1, "bind"), (2, "weak"), (3, "lazy")]
        return [bind for index, kind in streams for _, bind in self._stream(index, kind)]

    def lazy_entries(self) -> list[tuple[int, Bind]]:
        """Returns the lazy bindings, each after its entry's offset in the lazy stream."""
        return self._stream(3, "lazy")

    def _stream(self, index: int, kind: str) -> list[tuple[int, Bind]]:
        code = self._dyld_table(index, f"the {kind} operations")
        return dyld_info.binds(code, self._places(), kind)

    def _places(self) -> dyld_info.Places:
        ranges = [(segment.address, segment.size) for segment in self.segments]
        return dyld_info.Places(ranges, self.pointer_size, len(self.data))

    def _dyld_table(self, index: int, what: str) -> Block:
        commands = self.commands_of(LC_DYLD_INFO, LC_DYLD_INFO_ONLY)
        if not commands:
            return Block(b"", what)
        start, size = body(commands[0]).numbers("<2I", 8 + 8 * index)
        return Block(self.block.take(start, size), what)

    def _read_commands(self, count: int, size: int) -> list[Command]:
        area = Block(self.block.take(self.header_size, size), "the area of load commands")
        found: list[Command] = []
        at = 0
        while len(found) < count:
            kind, length = area.numbers("<2I", at)
            if length < 8 or length % 4:
                raise BadImage(f"load command {len(found)} claims a size of {length} bytes")
            found.append(Command(kind, self.header_size + at, area.take(at, length)))
            at += length
        if at != size:
            raise BadImage(f"the load commands take {at} bytes where the header says {size}")
        return found

    def _read_segments(self) -> list[Segment]:
        return [self._segment(command) for command in self.commands_of(LC_SEGMENT, LC_SEGMENT_64)]

    def _segment(self, command: Command) -> Segment:
        wide = command.kind == LC_SEGMENT_64
        header, entry = (72, 80) if wide else (56, 68)
        block = body(command)
        name = fixed_name(block, 8)
        address, size, offset, file_size = block.numbers("<4Q" if wide else "<4I", 24)
        maximum, protection, count, flags = block.numbers("<4I", header - 16)
        if len(block) != header + count * entry:
            raise BadImage(f"segment {name} has no room for its {count} sections")
        sections = tuple(read_section(block, header + i * entry, wide) for i in range(count))
        return Segment(name, address, size, offset, file_size, protection, maximum, flags, sections)

    def _dylib(self, command: Command) -> Dylib:
        block = body(command)
        name, _, current, compatibility = block.numbers("<4I", 8)
        return Dylib(block.string(name), current, compatibility, command.kind)


def body(command: Command) -> Block:
    """Returns a load command's bytes for reading within their bounds."""
    return Block(command.data, f"the load command at offset {command.offset}")


def fixed_name(block: Block, offset: int) -> str:
    """Returns the name in a field of 16 bytes padded with zeros."""
    raw = block.take(offset, 16).rstrip(b"\0")
    return printable(raw, f"{block.what}, name at {offset},")


def read_section(block: Block, at: int, wide: bool) -> Section:
    """Returns the section whose entry begins at `at` of a segment's load command."""
    address, size = block.numbers("<2Q" if wide else "<2I", at + 32)
    after = at + (48 if wide else 40)
    offset, alignment, _, _, flags, first, second = block.numbers("<7I", after)
    name, segment = fixed_name(block, at), fixed_name(block, at + 16)
    return Section(segment, name, address, size, offset, flags, alignment, first, second)


def fat_entries(data: bytes) -> list[FatEntry]:
    """Returns the slices' places; a thin file is one entry without alignment."""
    block = Block(data, "the file")
    if block.number(">I", 0) != FAT_MAGIC:
        magic, cpu, subtype = block.numbers("<3I", 0)
        if magic not in THIN_MAGICS:
            raise BadImage(f"the file begins with {data[:4].hex()}, it is no Mach-O")
        return [FatEntry(cpu, subtype, 0, len(data), 0)]
    count = block.number(">I", 4)
    if count > MOST_SLICES:
        raise BadImage(f"the fat header claims {count} slices")
    table = Block(block.take(8, 20 * count), "the fat header")
    return [FatEntry(*table.numbers(">5I", 20 * index)) for index in range(count)]


def read(path: Path | str) -> dict[str, Slice]:
    """Returns the slices of a fat or thin file by architecture, in file order."""
    data = Path(path).read_bytes()
    block = Block(data, "the file")
    slices: dict[str, Slice] = {}
    for entry in fat_entries(data):
        image = Slice(block.take(entry.offset, entry.size))
        if image.arch in slices:
            raise BadImage(f"the file has two slices for {image.arch}")
        slices[image.arch] = image
    return slices
