"""Checks of what takes arm64's frames down when something is raised: the index of all functions, held
against the code that makes their frames, and the tables of those that catch or clean up."""

import bisect
from collections.abc import Iterator
from itertools import pairwise

from checker import frames
from checker.branches import ARM64_CALL_BY_REGISTER, WORD, branch, leaves, matches
from checker.contract import Contract
from checker.exception_tables import Site, read_tables
from checker.functions import Function, read_functions
from checker.landing_pads import LandingPads
from checker.macho import Slice
from checker.report import MEND_BUILD, Problem
from checker.unwind_index import PLACE, Entry, Index, read_index

PERSONALITY = "___gxx_personality_v0"


def check_frames(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that the index takes every function's frame down as its code has made it."""
    if not image.wide:  # armv7's functions register themselves
        return
    section, functions = image.section(*PLACE), read_functions(image)
    if section is None:
        yield Problem("it has no unwind index: whatever is raised ends the process", MEND_BUILD)
        return
    index = read_index(image, section)
    starts = [entry.start for entry in index.entries]
    for start in sorted(set(starts) - {function.start for function in functions}):
        yield Problem(f"the unwind index has {start:#x}, where no function begins", MEND_BUILD)
    if (starts[:1], index.end) != ([functions[0].start], functions[-1].end):
        yield Problem("the unwind index does not reach from the first to the last", MEND_BUILD)
        return
    for function in functions:
        known = index.entries[bisect.bisect_right(starts, function.start) - 1].frame
        made = frames.encoding(function.code)
        if known != made:
            frame = "unknown" if made is None else f"{made:#010x}"
            what = f"the unwind index has the frame {known:#010x} for the function at"
            yield Problem(f"{what} {function.start:#x}, whose code makes {frame}", MEND_BUILD)


def check_tables(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks which functions have exception tables, and every stretch in these."""
    section = image.section(*PLACE)
    if not image.wide or section is None:
        return
    index, tables = read_index(image, section), list(read_tables(image))
    if [address for _, address in index.tables] != [table.address for table in tables]:
        yield Problem("the unwind index does not name the exception tables in order", MEND_BUILD)
        return
    functions = {function.start: function for function in read_functions(image)}
    yield from _check_owners(image, index, functions)
    pads = LandingPads(image)
    for (start, _table), table in zip(index.tables, tables):
        if start in functions:
            yield from _check_sites(pads, functions[start], table.sites)


def _check_owners(image: Slice, index: Index, functions: dict[int, Function]) -> Iterator[Problem]:
    """Checks that whoever has an exception table has a personality that is bound, and vice versa."""
    bound = {bind.address for bind in image.binds() if bind.symbol == PERSONALITY}
    for pointer in index.personalities:
        if pointer not in bound:
            what = f"the unwind index has, at {pointer:#x}, no personality that is bound"
            yield Problem(what, MEND_BUILD)
    owners = {start for start, _ in index.tables}
    for entry, after in pairwise([*index.entries, Entry(index.end, 0)]):
        what = f"the unwind index's entry of {entry.start:#x}"
        if entry.has_table != (entry.start in owners):
            yield Problem(f"{what} and its exception table do not belong together", MEND_BUILD)
        if not entry.has_table:
            sound = entry.personality == 0
        else:
            sound = 1 <= entry.personality <= len(index.personalities)
            function = functions.get(entry.start)
            if function and function.end != after.start:
                yield Problem(f"{what} shares its exception table with others", MEND_BUILD)
        if not sound:
            yield Problem(f"{what} has the personality {entry.personality}", MEND_BUILD)
    for start in sorted(owners - {entry.start for entry in index.entries}):
        yield Problem(f"the exception table of {start:#x} has no function", MEND_BUILD)


def _check_sites(
    pads: LandingPads, function: Function, sites: tuple[Site, ...]
) -> Iterator[Problem]:
    size, done = function.end - function.start, 0
    for site, limit in zip(sites, [*(site.start for site in sites[1:]), size]):
        fault = _place_fault(function, site, done, limit)
        if not fault and site.pad:
            fault = _pad_fault(function, site) or pads.fault(
                function, function.start + site.pad, site
            )
        if fault:
            what = f"the exception table of {function.start:#x}: its stretch at {site.start:#x}"
            yield Problem(f"{what} {fault}", MEND_BUILD)
        done = site.start + site.length
    lost = pads.unreached(function, {function.start + site.pad for site in sites if site.pad})
    if lost is not None:
        what = f"the exception table of {function.start:#x} has no pad for the code at {lost:#x}"
        yield Problem(what, MEND_BUILD)


def _place_fault(function: Function, site: Site, done: int, limit: int) -> str | None:
    """Returns what is wrong with a stretch between the end of the last and the start of the next."""
    end = site.start + site.length
    if (site.start | site.length) % WORD or not done <= site.start < end <= limit:
        return "is out of order, or leads out of the function"
    if not site.pad:
        whole = (site.start, end, site.action) == (done, limit, 0)
        return None if whole else "has no pad, and leaves a gap or has an action"
    code = function.code[site.start // WORD : end // WORD]
    return None if any(map(_is_call, code)) else "calls nothing"


def _pad_fault(function: Function, site: Site) -> str | None:
    """Returns what is wrong with a pad: it must be an instruction that no other runs into."""
    before = function.word(function.start + site.pad - WORD)
    if before is None or function.word(function.start + site.pad) is None:
        return f"goes to {site.pad:#x}, which is no instruction of the function"
    jump = branch(True, before)
    if leaves(True, before) or (jump and jump.always):
        return None
    return f"goes to {site.pad:#x}, which the code before runs into"


def _is_call(word: int) -> bool:
    jump = branch(True, word)
    return bool(jump and jump.is_call) or matches(word, ARM64_CALL_BY_REGISTER)
