"""Reading the library's exception tables: what a function does when something is raised in it."""

from dataclasses import dataclass

from emulator.image import Image
from emulator.machine import Failure, Machine

OMITTED = 0xFF
# By encoding; 0 is a number of seven bits a byte.
SITE_SIZES = {0x01: 0, 0x03: 4}
TYPE_SIZES = {0x3: 4, 0xB: 4}
LSDA_FLAG = 0x40000000
COMPRESSED_PAGE = 3


class Reader:
    """A place in memory that numbers are read from, one after the other."""

    def __init__(self, machine: Machine, at: int) -> None:
        self.machine = machine
        self.at = at

    def number(self, size: int) -> int:
        """Returns an unsigned number of some bytes."""
        self.at += size
        return self.machine.number(self.at - size, size)

    def uleb(self) -> int:
        """Returns an unsigned number of seven bits a byte."""
        value = shift = 0
        while (byte := self.number(1)) & 0x80:
            value |= (byte & 0x7F) << shift
            shift += 7
        return value | byte << shift

    def sleb(self) -> int:
        """Returns a signed number of seven bits a byte."""
        start = self.at
        value = self.uleb()
        bits = 7 * (self.at - start)
        return value - (1 << bits) if value >> (bits - 1) else value


@dataclass(frozen=True)
class Site:
    """A stretch of a function from which a raise goes to `pad`; 0 is nowhere."""

    start: int
    length: int
    pad: int
    action: int


class FunctionTable:
    """The table of one function; all offsets count from the function's start."""

    def __init__(self, machine: Machine, address: int) -> None:
        self.machine = machine
        reader = Reader(machine, address)
        if reader.number(1) != OMITTED:
            raise Failure(f"the exception table at {address:#x} has landing pads of its own base")
        self._type_encoding = reader.number(1)
        self._types = 0
        if self._type_encoding != OMITTED:
            offset = reader.uleb()
            self._types = reader.at + offset
        encoding = reader.number(1)
        if encoding not in SITE_SIZES:
            raise Failure(f"the exception table at {address:#x} has the encoding {encoding:#x}")
        self._site_size = SITE_SIZES[encoding]
        length = reader.uleb()
        self._sites = reader.at
        self._actions = reader.at + length

    def site_at(self, offset: int) -> Site:
        """Returns the stretch that holds an offset; outside of all the process would end."""
        reader = Reader(self.machine, self._sites)
        while reader.at < self._actions:
            start, length, pad = (self._offset(reader) for _ in range(3))
            site = Site(start, length, pad, reader.uleb())
            if site.start <= offset < site.start + site.length:
                return site
        raise Failure("something is raised where the library would end the process")

    def _offset(self, reader: Reader) -> int:
        return reader.number(self._site_size) if self._site_size else reader.uleb()

    def numbered_site(self, number: int) -> Site:
        """Returns the stretch of a number from 1 on; its pad is a number from 0 on."""
        reader = Reader(self.machine, self._sites)
        for _ in range(number - 1):
            reader.uleb()
            reader.uleb()
        site = Site(0, 0, reader.uleb(), reader.uleb())
        if reader.at > self._actions:
            raise Failure(f"an exception table has no stretch number {number}")
        return site

    def selector(self, action: int) -> int:
        """Returns what the pad is told: 0 to clean up, or the number of the clause that catches."""
        if action == 0:
            return 0
        reader = Reader(self.machine, self._actions + action - 1)
        clause = reader.sleb()
        if clause < 0:
            raise Failure("an exception table has a list of allowed types")
        if clause > 0:
            size = TYPE_SIZES.get(self._type_encoding & 0xF, self.machine.processor.word)
            if Reader(self.machine, self._types - clause * size).number(size):
                raise Failure("a clause catches one type only, which the library never does")
        return clause


@dataclass(frozen=True)
class Frame:
    """How a function's frame is taken down; `table` is 0 where the function has none."""

    start: int
    encoding: int
    table: int


class UnwindInfo:
    """The arm64 image's index of its functions."""

    def __init__(self, image: Image) -> None:
        self.image = image
        self.machine = image.machine
        self.section, _ = image.section("__TEXT", "__unwind_info")
        header = Reader(self.machine, self.section)
        version, common, self._common_count, personalities, count = self._numbers(header, 5)
        index, index_count = self._numbers(header, 2)
        if version != 1:
            raise Failure(f"the unwind index has version {version}")
        self._common = self.section + common
        self.personalities = self._numbers(
            Reader(self.machine, self.section + personalities), count
        )
        reader = Reader(self.machine, self.section + index)
        self._index = [self._numbers(reader, 3) for _ in range(index_count)]

    def _numbers(self, reader: Reader, count: int) -> list[int]:
        return [reader.number(4) for _ in range(count)]

    def frame(self, address: int) -> Frame:
        """Returns what is known of the function at an address."""
        offset = address - self.image.slide
        for (first, page, tables), (end, _, tables_end) in zip(self._index, self._index[1:]):
            if first <= offset < end:
                start, encoding = self._entry(self.section + page, first, offset)
                table = 0
                if encoding & LSDA_FLAG:
                    table = self._table(start, tables, tables_end)
                return Frame(start + self.image.slide, encoding, table)
        raise Failure(f"the unwind index does not know {self.image.describe(address)}")

    def _entry(self, page: int, base: int, offset: int) -> tuple[int, int]:
        reader = Reader(self.machine, page)
        if reader.number(4) != COMPRESSED_PAGE:
            raise Failure("the unwind index has a page of another kind")
        entries, count, encodings, _ = (reader.number(2) for _ in range(4))
        reader = Reader(self.machine, page + entries)
        words = [reader.number(4) for _ in range(count)]
        word = [word for word in words if base + (word & 0xFFFFFF) <= offset][-1]
        number = word >> 24
        at = self._common + 4 * number
        if number >= self._common_count:
            at = page + encodings + 4 * (number - self._common_count)
        return base + (word & 0xFFFFFF), Reader(self.machine, at).number(4)

    def _table(self, start: int, tables: int, tables_end: int) -> int:
        reader = Reader(self.machine, self.section + tables)
        for _ in range((tables_end - tables) // 8):
            function, table = self._numbers(reader, 2)
            if function == start:
                return table + self.image.slide
        raise Failure(f"the function at {start:#x} should have an exception table and has none")
