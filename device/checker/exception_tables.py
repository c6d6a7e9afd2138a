"""Reader of the tables that say where a raise goes from within a function, and to catch what."""

from collections.abc import Iterator
from dataclasses import dataclass

from checker.bounded import BadImage, Block, Cursor
from checker.macho import Slice

PLACE = ("__TEXT", "__gcc_except_tab")
ALIGNMENT = 4
OMITTED = 0xFF
# Distances of four bytes to pointers: what both linkers make of the types that clauses catch.
TYPES_ENCODING = 0x9B
TYPE_SIZE = 4
# How a table is said to name its sites. The numbers have a variable length in either case: armv7's
# compiler says "four bytes", and the runtime of registered contexts does not look at it.
SITES_ENCODINGS = {"arm64": 0x01, "armv7": 0x03}


@dataclass(frozen=True)
class Site:
    """A stretch of a function, and the pad that a raise from it goes to; both count from the
    function's start. On armv7 a site has a number in place of a stretch, and so has its pad."""

    start: int
    length: int
    pad: int
    action: int


@dataclass(frozen=True)
class Table:
    """The table of one function; `end` is where the next one begins."""

    address: int
    end: int
    sites: tuple[Site, ...]


def read_tables(image: Slice) -> Iterator[Table]:
    """Yields the tables in order: they fill their section without a gap."""
    section = image.section(*PLACE)
    if section is None:
        return
    block = Block(image.content(section), f"section {section.name}")
    position = 0
    while position < len(block):
        table = _Reader(image, block, position, section.address).table()
        yield table
        position = table.end - section.address


class _Reader:
    def __init__(self, image: Slice, block: Block, position: int, base: int) -> None:
        self.image, self.block, self.base = image, block, base
        self.start = position
        self.cursor = Cursor(block, position)

    def table(self) -> Table:
        types_end = self.read_header()
        sites_size = self.cursor.unsigned()
        sites_end = self.cursor.position + sites_size
        self.block.take(self.cursor.position, sites_size)
        sites: list[Site] = []
        while self.cursor.position < sites_end:
            sites.append(self.site(len(sites)))
        if self.cursor.position != sites_end or not sites:
            raise self.broken("has no whole number of sites")
        end = self.end_of_actions(sites_end, {site.action for site in sites}, types_end)
        return Table(self.base + self.start, self.base + end, tuple(sites))

    def broken(self, why: str) -> BadImage:
        return BadImage(f"the exception table at {self.base + self.start:#x} {why}")

    def read_header(self) -> int | None:
        """Returns where the table's types end, None if it has none."""
        if self.cursor.byte() != OMITTED:
            raise self.broken("has pads of a base of their own")
        encoding, types_end = self.cursor.byte(), None
        if encoding == TYPES_ENCODING:
            distance = self.cursor.unsigned()
            types_end = self.cursor.position + distance
        elif encoding != OMITTED:
            raise self.broken(f"has types of the encoding {encoding:#x}")
        if self.cursor.byte() != SITES_ENCODINGS[self.image.arch]:
            raise self.broken("has sites of another encoding")
        return types_end

    def site(self, number: int) -> Site:
        number_of = self.cursor.unsigned
        if self.image.wide:
            return Site(number_of(), number_of(), number_of(), number_of())
        return Site(number, 1, number_of(), number_of())

    def end_of_actions(self, base: int, actions: set[int], types_end: int | None) -> int:
        """Follows the actions of all sites and returns the table's end."""
        records: dict[int, int] = {}
        clauses = 0
        for action in sorted(actions - {0}):
            clauses = max(clauses, self.follow(base + action - 1, records))
        end = base
        for start in sorted(records):
            if start != end:
                raise self.broken("has actions of no site, or overlapping ones")
            end = records[start]
        if types_end is None:
            if clauses:
                raise self.broken("catches a type that it does not have")
        else:
            # A null type is a clause that catches everything. Others need type information, which
            # the library is compiled without.
            rest = self.block.take(end, max(types_end - end, 0))
            room = -(-end // ALIGNMENT) * ALIGNMENT + clauses * TYPE_SIZE
            if not clauses or types_end != room or any(rest):
                raise self.broken("catches other types than all, or has gaps")
            end = types_end
        padded = -(-end // ALIGNMENT) * ALIGNMENT
        if any(self.block.take(end, padded - end)):
            raise self.broken("does not end in zeros")
        return padded

    def follow(self, position: int, records: dict[int, int]) -> int:
        """Notes the records of a chain of actions; returns the highest clause that it names."""
        clauses = 0
        seen: set[int] = set()
        while position not in seen:
            seen.add(position)
            cursor = Cursor(self.block, position)
            clause = cursor.signed()
            if clause <= 0:
                raise self.broken("has a clause that does not catch")
            clauses = max(clauses, clause)
            before_next = cursor.position
            distance = cursor.signed()
            records[position] = cursor.position
            if not distance:
                return clauses
            position = before_next + distance
        raise self.broken("has actions without end")
