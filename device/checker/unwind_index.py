"""Reader of the index by which frames are taken down on arm64, one entry for a run of functions
whose frames look alike."""

from dataclasses import dataclass
from itertools import pairwise

from checker.bounded import BadImage, Block
from checker.macho import Slice
from checker.records import Section

PLACE = ("__TEXT", "__unwind_info")
VERSION, HEADER_SIZE = 1, 28
PAGE_ENTRY, TABLE_ENTRY = 12, 8
PLAIN_PAGE, SHORT_PAGE = 2, 3
HAS_TABLE = 0x40000000
PERSONALITY_SHIFT, PERSONALITY_MASK = 28, 0x30000000


@dataclass(frozen=True)
class Entry:
    """How frames look from a function's start up to the next entry."""

    start: int
    encoding: int

    @property
    def frame(self) -> int:
        """The encoding without what only concerns exceptions."""
        return self.encoding & ~(HAS_TABLE | PERSONALITY_MASK)

    @property
    def has_table(self) -> bool:
        """Whether the function has an exception table."""
        return bool(self.encoding & HAS_TABLE)

    @property
    def personality(self) -> int:
        """The number of the personality, from 1 on; 0 is none."""
        return (self.encoding & PERSONALITY_MASK) >> PERSONALITY_SHIFT


@dataclass(frozen=True)
class Index:
    """The whole index: `tables` are pairs of a function and its exception table, `end` is where
    the last function ends. Addresses are the image's, as are `personalities`, of pointers."""

    entries: list[Entry]
    tables: list[tuple[int, int]]
    personalities: list[int]
    end: int


def read_index(image: Slice, section: Section) -> Index:
    """Returns the index; what is not laid out as linkers do raises BadImage."""
    return _Reader(image, section).index()


class _Reader:
    def __init__(self, image: Slice, section: Section) -> None:
        self.block = Block(image.content(section), "the unwind index")
        self.base = image.segments[0].address

    def index(self) -> Index:
        version, *places = self.block.numbers("<7I", 0)
        common_at, common_count, personalities_at, personality_count, pages_at, page_count = places
        if version != VERSION or not page_count:
            raise BadImage("the unwind index is of another version, or has no end")
        self.common = self.words(common_at, common_count)
        personalities = self.words(personalities_at, personality_count)
        pages = [
            self.block.numbers("<3I", pages_at + PAGE_ENTRY * number)
            for number in range(page_count)
        ]
        self.done = pages[-1][2]
        laid_out = [
            HEADER_SIZE,
            HEADER_SIZE + 4 * common_count,
            personalities_at + 4 * personality_count,
            pages_at + PAGE_ENTRY * page_count,
        ]
        if laid_out != [common_at, personalities_at, pages_at, pages[0][2]] or pages[-1][1]:
            raise BadImage("the unwind index has gaps between its parts")
        index = Index([], [], [self.base + at for at in personalities], self.base + pages[-1][0])
        for page, after in pairwise(pages):
            self.add(index, page, after)
        self.skip_to(len(self.block))
        return index

    def skip_to(self, at: int) -> None:
        """Goes on to where the next page begins: what is between must be the last one's room."""
        if at < self.done or any(self.block.take(self.done, at - self.done)):
            raise BadImage("the unwind index has pages inside each other, or more than pages")
        self.done = at

    def words(self, at: int, count: int) -> tuple[int, ...]:
        return self.block.numbers(f"<{count}I", at)

    def add(self, index: Index, page: tuple[int, ...], after: tuple[int, ...]) -> None:
        """Reads a page of entries, and the exception tables of its functions."""
        first, at, tables = page
        end, _, tables_end = after
        if tables_end < tables or (tables_end - tables) % TABLE_ENTRY:
            raise BadImage(f"the unwind index's page of {first:#x} has no whole number of tables")
        self.skip_to(at)
        entries = self.page_entries(first, at)
        named = [
            self.block.numbers("<2I", place) for place in range(tables, tables_end, TABLE_ENTRY)
        ]
        if not entries or entries[0][0] != first:
            raise BadImage(f"a page of the unwind index does not begin with {first:#x}")
        for starts in ([start for start, _ in entries], [start for start, _ in named]):
            ordered = [first - 1, *starts, end]
            if not all(one < other for one, other in pairwise(ordered)):
                raise BadImage(f"the unwind index's page of {first:#x} is not in order")
        index.entries.extend(Entry(self.base + start, encoding) for start, encoding in entries)
        index.tables.extend((self.base + start, self.base + table) for start, table in named)

    def page_entries(self, first: int, at: int) -> list[tuple[int, int]]:
        """Returns start and encoding of each entry of a page, addresses from the image's start."""
        kind, entries_at, count = self.block.numbers("<I2H", at)
        if kind == PLAIN_PAGE and entries_at == 8:
            self.done = at + 8 + 8 * count
            numbers = self.words(at + 8, 2 * count)
            return list(zip(numbers[::2], numbers[1::2]))
        encodings_at, encodings_count = self.block.numbers("<2H", at + 8)
        if kind != SHORT_PAGE or (entries_at, encodings_at) != (12, 12 + 4 * count):
            raise BadImage(f"the unwind index's page of {first:#x} is of an unknown kind")
        self.done = at + encodings_at + 4 * encodings_count
        encodings = self.common + self.words(at + encodings_at, encodings_count)
        words = self.words(at + entries_at, count)
        most = max((word >> 24 for word in words), default=0)
        if most >= len(encodings) or (encodings_count and most < len(encodings) - 1):
            raise BadImage(
                f"the unwind index's page of {first:#x} lacks encodings, or uses not all"
            )
        return [(first + (word & 0xFFFFFF), encodings[word >> 24]) for word in words]
