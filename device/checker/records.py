"""The records that a Mach-O file is made of, as plain values."""

from dataclasses import dataclass

SECTION_TYPE = 0xFF
ZERO_FILL_TYPES = {0x1, 0xC, 0x12}


@dataclass(frozen=True)
class Section:
    """A section; `offset` counts from the slice's start, `alignment` is a power of two."""

    segment: str
    name: str
    address: int
    size: int
    offset: int
    flags: int
    alignment: int
    reserved1: int
    reserved2: int

    @property
    def type(self) -> int:
        """The kind of content, the low byte of the flags."""
        return self.flags & SECTION_TYPE

    @property
    def zero_fill(self) -> bool:
        """Whether the section takes no room in the file."""
        return self.type in ZERO_FILL_TYPES

    def holds(self, address: int, size: int = 1) -> bool:
        """Tells whether `size` bytes at an address lie inside the section."""
        return self.address <= address and address + size <= self.address + self.size


@dataclass(frozen=True)
class Segment:
    """A segment; `protection` is what it starts with: 1 read, 2 write, 4 execute."""

    name: str
    address: int
    size: int
    file_offset: int
    file_size: int
    protection: int
    maximum_protection: int
    flags: int
    sections: tuple[Section, ...]

    def holds(self, address: int, size: int = 1) -> bool:
        """Tells whether `size` bytes at an address lie inside the segment."""
        return self.address <= address and address + size <= self.address + self.size


@dataclass(frozen=True)
class Command:
    """A load command: its whole bytes and their offset in the slice."""

    kind: int
    offset: int
    data: bytes


@dataclass(frozen=True)
class Dylib:
    """A library's name in a load command; versions are 16.8.8 bits."""

    name: str
    current_version: int
    compatibility_version: int
    kind: int


@dataclass(frozen=True)
class Symbol:
    """An entry of the symbol table; `section` counts from 1, 0 is none."""

    name: str
    address: int
    kind: int
    section: int
    description: int


@dataclass(frozen=True)
class FatEntry:
    """A slice's place in a fat file; `alignment` is a power of two. A thin file is one entry."""

    cpu: int
    subtype: int
    offset: int
    size: int
    alignment: int
