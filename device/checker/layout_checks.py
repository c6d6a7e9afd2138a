"""Checks of segments, sections and the tables of __LINKEDIT: what lies where, what is absent."""

from collections.abc import Iterator
from itertools import pairwise

from checker.contract import SIZE_LIMIT, Contract
from checker.macho import (
    LC_CODE_SIGNATURE,
    LC_DATA_IN_CODE,
    LC_DYLD_INFO_ONLY,
    LC_DYSYMTAB,
    LC_FUNCTION_STARTS,
    LC_SYMTAB,
    Slice,
    body,
)
from checker.records import Section, Segment
from checker.report import MEND_BUILD, Problem

READ, WRITE, EXECUTE = 1, 2, 4
# The segments in order, each with its protection.
SEGMENTS = {"__TEXT": READ | EXECUTE, "__DATA": READ | WRITE, "__LINKEDIT": READ}
PAGE_SIZES = {"armv7": 0x1000, "arm64": 0x4000}
# The signature's room in memory is made of these in either slice.
LARGEST_PAGE = 0x4000
MEASURED = ("__TEXT", "__DATA")
LARGEST_SHOWN = 4
MOST_ALIGNMENT = 14
SIGNATURE = "code signature"
TABLE_ALIGNMENTS = {SIGNATURE: 16}

NO_RUN = "nothing but ZQDialMain may run at load: take the global object out of src/"
NO_CLASSES = "build classes at run time: no Objective-C metadata may be compiled in"
NO_THREADS = "iOS 7 has no thread-local variables: use a plain static"
LOST_POINTERS = "the armv7 linker loses its bindings: keep such pointers in named words"
FORBIDDEN_NAMES = {
    "__mod_init_func": NO_RUN,
    "__mod_term_func": NO_RUN,
    "__init_offsets": NO_RUN,
    "__objc_": NO_CLASSES,
    "__thread_": NO_THREADS,
    "__nl_symbol_ptr": LOST_POINTERS,
}
FORBIDDEN_TYPES = {
    0x9: ("initialisers", NO_RUN),
    0xA: ("terminators", NO_RUN),
    0xD: ("replacements of functions", NO_RUN),
    0x11: ("thread-local data", NO_THREADS),
    0x12: ("thread-local zeros", NO_THREADS),
    0x13: ("thread-local variables", NO_THREADS),
    0x14: ("pointers to thread-local variables", NO_THREADS),
    0x15: ("thread-local initialisers", NO_THREADS),
    0x16: ("initialisers by offset", NO_RUN),
}


def check_segments(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks the segments' names, order and protection, and that no hole is between them."""
    names = [segment.name for segment in image.segments]
    if names != list(SEGMENTS):
        yield Problem(f"its segments are {', '.join(names)}, not {', '.join(SEGMENTS)}", MEND_BUILD)
    for segment in image.segments:
        yield from _check_segment(image, segment)
    for before, after in pairwise(image.segments):
        if before.address + before.size != after.address:
            yield Problem(f"{after.name} does not follow {before.name} in memory", MEND_BUILD)
        if before.file_offset + before.file_size != after.file_offset:
            what = f"{after.name} does not follow {before.name} in the file"
            yield Problem(what, MEND_BUILD)
    if image.segments:
        first, last = image.segments[0], image.segments[-1]
        if (first.address, first.file_offset) != (0, 0):
            yield Problem(f"{first.name} does not begin with the header, at 0", MEND_BUILD)
        if last.file_offset + last.file_size != len(image.data):
            what = f"{last.name} ends at {last.file_offset + last.file_size}"
            yield Problem(f"{what}, the slice at {len(image.data)}", MEND_BUILD)


def _check_segment(image: Slice, segment: Segment) -> Iterator[Problem]:
    page = PAGE_SIZES[image.arch]
    protection = {segment.protection, segment.maximum_protection}
    if any(value & WRITE and value & EXECUTE for value in protection):
        yield Problem(f"{segment.name} is writable and executable", MEND_BUILD)
    elif protection != {SEGMENTS.get(segment.name, READ)}:
        values = f"{segment.protection} of at most {segment.maximum_protection}"
        yield Problem(f"{segment.name} has the protection {values}", MEND_BUILD)
    if segment.address % page or segment.file_offset % page or segment.size % page:
        yield Problem(f"{segment.name} is not made of whole pages of {page} bytes", MEND_BUILD)
    sizes = (segment.size, segment.file_size)
    if sizes != _whole_pages(image, segment):
        what = f"{segment.name} takes {sizes[0]:#x} bytes, {sizes[1]:#x} in the file"
        yield Problem(f"{what}: not the whole pages of what is in it", MEND_BUILD)
    if segment.file_offset + segment.file_size > len(image.data):
        yield Problem(f"{segment.name} reaches beyond the slice", MEND_BUILD)
    if segment.flags:
        yield Problem(f"{segment.name} has the flags {segment.flags:#x}", MEND_BUILD)


def _whole_pages(image: Slice, segment: Segment) -> tuple[int, int]:
    """Returns a segment's size in memory and in the file as its content makes them."""
    page = PAGE_SIZES[image.arch]
    if not segment.sections:  # the tables, whose end check_segments compares with the slice's
        return _up_to(LARGEST_PAGE, segment.file_size), segment.file_size
    ends = [(s.address + s.size - segment.address, s.zero_fill) for s in segment.sections]
    in_file = max((end for end, zero_fill in ends if not zero_fill), default=0)
    return _up_to(page, max(end for end, _ in ends)), _up_to(page, in_file)


def _up_to(unit: int, size: int) -> int:
    """Returns a size that is filled up to whole units."""
    return -(-size // unit) * unit


def check_sections(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that the sections follow each other in their segments as their alignment lets them."""
    end = image.header_size + sum(len(command.data) for command in image.commands)
    for segment in image.segments:
        for section in segment.sections:
            yield from _check_section(image, segment, section)
        for before, after in pairwise(segment.sections):
            if _up_to(1 << after.alignment, before.address + before.size) != after.address:
                yield Problem(f"{after.name} does not follow {before.name}", MEND_BUILD)
        first = segment.sections[0] if segment.sections else None
        if first and segment.file_offset == 0 and first.offset < end:
            yield Problem(f"{first.name} begins inside the load commands", MEND_BUILD)


def _check_section(image: Slice, segment: Segment, section: Section) -> Iterator[Problem]:
    if section.segment != segment.name:
        yield Problem(f"{section.name} says it is in {section.segment}", MEND_BUILD)
    if not segment.holds(section.address, section.size):
        yield Problem(f"{section.name} lies outside {segment.name}", MEND_BUILD)
        return
    in_segment = section.address - segment.address
    in_file = segment.file_offset + in_segment
    if section.zero_fill:
        shared = min(section.size, max(segment.file_size - in_segment, 0))
        if any(image.block.take(in_file, shared) if shared else b""):
            yield Problem(f"{section.name} should be zero but the file fills it", MEND_BUILD)
    elif section.offset != in_file or in_segment + section.size > segment.file_size:
        yield Problem(f"{section.name} is elsewhere in the file than in {segment.name}", MEND_BUILD)
    if section.alignment > MOST_ALIGNMENT or section.address % (1 << section.alignment):
        yield Problem(f"{section.name} is not aligned to 2^{section.alignment}", MEND_BUILD)


def check_kinds(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that no section runs at load, declares classes or needs what iOS 7 has not."""
    for section in image.sections:
        for name, remedy in FORBIDDEN_NAMES.items():
            if section.name.startswith(name):
                yield Problem(f"it has a section {section.name}", remedy)
        if section.type in FORBIDDEN_TYPES:
            content, remedy = FORBIDDEN_TYPES[section.type]
            yield Problem(f"section {section.name} holds {content}", remedy)


def check_tables(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that the tables fill __LINKEDIT without a hole and that the signature is the last."""
    linkedit = image.segment("__LINKEDIT")
    if not linkedit:
        return
    tables = sorted(table for table in _tables(image) if table[1])
    end, before = linkedit.file_offset, linkedit.name
    for offset, size, name in tables:
        if offset != _up_to(TABLE_ALIGNMENTS.get(name, 1), end):
            where = f"at {offset:#x}, {before} ends at {end:#x}"
            yield Problem(f"the {name} does not follow what is before it: {where}", MEND_BUILD)
        end, before = offset + size, f"the {name}"
    if end != len(image.data):
        yield Problem(f"the {SIGNATURE} ends at {end:#x}, not with the slice", MEND_BUILD)
    if tables and tables[-1][2] != SIGNATURE:
        yield Problem("the code signature is not the last thing in the slice", MEND_BUILD)


def _tables(image: Slice) -> Iterator[tuple[int, int, str]]:
    """Yields offset, size in bytes and name of everything that load commands place in the file."""
    symbol = 16 if image.wide else 12
    # Command, offset of a pair (place, count) in it, bytes of one, name.
    pairs = [
        (LC_DYLD_INFO_ONLY, 8, 1, "rebase operations"),
        (LC_DYLD_INFO_ONLY, 16, 1, "bind operations"),
        (LC_DYLD_INFO_ONLY, 24, 1, "weak operations"),
        (LC_DYLD_INFO_ONLY, 32, 1, "lazy operations"),
        (LC_DYLD_INFO_ONLY, 40, 1, "export trie"),
        (LC_SYMTAB, 8, symbol, "symbol table"),
        (LC_SYMTAB, 16, 1, "table of symbol names"),
        (LC_DYSYMTAB, 56, 4, "indirect symbol table"),
        (LC_DYSYMTAB, 64, 8, "table of external relocations"),
        (LC_DYSYMTAB, 72, 8, "table of local relocations"),
        (LC_FUNCTION_STARTS, 8, 1, "table of function starts"),
        (LC_DATA_IN_CODE, 8, 1, "table of data in code"),
        (LC_CODE_SIGNATURE, 8, 1, SIGNATURE),
    ]
    for kind, at, unit, name in pairs:
        for command in image.commands_of(kind):
            offset, count = body(command).numbers("<2I", at)
            yield offset, count * unit, name


def segment_sizes(image: Slice) -> dict[str, int]:
    """Returns the bytes of all sections of __TEXT and of __DATA, zeros included."""
    sizes = dict.fromkeys(MEASURED, 0)
    for segment in image.segments:
        if segment.name in sizes:
            sizes[segment.name] += sum(section.size for section in segment.sections)
    return sizes


def check_size(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that code and data stay below the limit."""
    total = sum(segment_sizes(image).values())
    if total >= SIZE_LIMIT:
        largest = sorted(image.sections, key=lambda section: -section.size)[:LARGEST_SHOWN]
        names = ", ".join(f"{section.name} {section.size}" for section in largest)
        what = f"code and data take {total} bytes, the limit is {SIZE_LIMIT}"
        yield Problem(f"{what}, the largest sections are {names}", "make src/ smaller")
