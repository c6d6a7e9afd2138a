"""Checks of armv7's exceptions: each function that catches or cleans up registers a context, which
names a personality, an exception table, and code that jumps to the table's pads by number."""

from collections.abc import Iterator
from dataclasses import dataclass, field

from checker.branches import ARMV7_PC_AHEAD, WORD, branch, matches
from checker.contract import Contract
from checker.exception_tables import PLACE, Table, read_tables
from checker.functions import Data, Function, data_in_code, read_functions
from checker.landing_pads import LandingPads
from checker.macho import Slice
from checker.report import MEND_BUILD, Problem
from checker.stubs import signed

REGISTER, PERSONALITY = "__Unwind_SjLj_Register", "___gxx_personality_sj0"
JUMP_TABLE = 4  # a kind of data in code: distances of four bytes from the table itself
ADDRESS_MASK = 0xFFFFFFFF
# Instructions as mask and value without operands.
LOAD_LITERAL = (0x0F7F0000, 0x051F0000)  # ldr r, [pc, #n]
ADD_PC = (0x0FFF0FF0, 0x008F0000)  # add r, pc, r
LOAD_BY_PC = (0x0FFF0FF0, 0x079F0000)  # ldr r, [pc, r]


@dataclass
class Named:
    """The addresses that a function's code names: of calls, of data, and of words it loads."""

    called: set[int] = field(default_factory=set)
    made: list[int] = field(default_factory=list)
    loaded: set[int] = field(default_factory=set)


def named(function: Function) -> Named:
    """Follows the distances in a function's literals to the addresses that they stand for."""
    found = Named()
    literals: dict[int, int] = {}
    for index, word in enumerate(function.code):
        pc = function.start + WORD * index + ARMV7_PC_AHEAD
        distance, jump = literals.get(word & 0xF), branch(False, word)
        if matches(word, LOAD_LITERAL):
            offset = word & 0xFFF if word >> 23 & 1 else -(word & 0xFFF)
            literals[word >> 12 & 0xF] = function.word(pc + offset) or 0
        elif jump and jump.is_call:
            found.called.add(pc - ARMV7_PC_AHEAD + jump.distance)
        elif distance is not None and matches(word, ADD_PC):
            found.made.append((pc + distance) & ADDRESS_MASK)
        elif distance is not None and matches(word, LOAD_BY_PC):
            found.loaded.add((pc + distance) & ADDRESS_MASK)
    return found


def check_tables(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that registered functions and exception tables belong together one by one, in order."""
    section = image.section(*PLACE)
    if image.wide or section is None:
        if not image.wide:
            yield Problem(
                "it has no exception tables: whatever is raised ends the process", MEND_BUILD
            )
        return
    tables = {table.address: table for table in read_tables(image)}
    personalities = {bind.address for bind in image.binds() if bind.symbol == PERSONALITY}
    pads, data = LandingPads(image), list(data_in_code(image))
    order: list[int] = []
    for function in read_functions(image):
        names = named(function)
        own = [address for address in names.made if section.holds(address)]
        order += own
        registers = REGISTER in map(pads.stubs.get, names.called)
        if registers != (len(own) == 1) or len(own) > 1:
            what = f"the function at {function.start:#x} registers itself with {len(own)}"
            yield Problem(f"{what} exception tables, or has one in vain", MEND_BUILD)
        elif own and not names.loaded & personalities:
            what = f"the function at {function.start:#x} registers no personality that is bound"
            yield Problem(what, MEND_BUILD)
        elif own and own[0] in tables:
            yield from _check_pads(pads, function, tables[own[0]], data)
    if order != list(tables):
        yield Problem("the code does not name the exception tables in order", MEND_BUILD)


def _check_pads(
    pads: LandingPads, function: Function, table: Table, data: list[Data]
) -> Iterator[Problem]:
    """Checks that a table's pads are numbered in order, and that the code has as many."""
    what = f"the exception table of {function.start:#x}"
    if [site.pad for site in table.sites] != list(range(len(table.sites))):
        yield Problem(f"{what} does not number its pads in order", MEND_BUILD)
    jumps = [d for d in data if d.kind == JUMP_TABLE and function.start <= d.start < function.end]
    # The pads' jumps come last; others are those of the function's own switches.
    if not jumps or jumps[-1].end - jumps[-1].start != WORD * len(table.sites):
        yield Problem(f"{what} has another number of pads than its code", MEND_BUILD)
        return
    for site, address in zip(table.sites, range(jumps[-1].start, jumps[-1].end, WORD)):
        pad = jumps[-1].start + signed(function.word(address) or 0, 32)
        fault = pads.fault(function, pad, site)
        if fault:
            yield Problem(f"{what}: its pad {site.pad} {fault}", MEND_BUILD)
