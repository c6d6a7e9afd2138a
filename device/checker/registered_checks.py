"""Checks of armv7's exceptions: each function that catches or cleans up registers a context, which
names a personality, an exception table, and code that jumps to the table's pads by number."""

from collections.abc import Iterator
from dataclasses import dataclass, field

from checker.contract import Contract
from checker.exception_tables import PLACE, Table, read_tables
from checker.functions import WORD, Data, Function, data_in_code, read_functions
from checker.macho import Slice
from checker.report import MEND_BUILD, Problem
from checker.stubs import signed, stub_pointer

REGISTER, PERSONALITY = "__Unwind_SjLj_Register", "___gxx_personality_sj0"
STUBS = ("__TEXT", "__stubs")
JUMP_TABLE = 4  # a kind of data in code: distances of four bytes from the table itself
PC_AHEAD = 8
ADDRESS_MASK = 0xFFFFFFFF
# Instructions as mask and value without operands.
LOAD_LITERAL = (0x0F7F0000, 0x051F0000)  # ldr r, [pc, #n]
ADD_PC = (0x0FFF0FF0, 0x008F0000)  # add r, pc, r
LOAD_BY_PC = (0x0FFF0FF0, 0x079F0000)  # ldr r, [pc, r]
CALL = (0x0F000000, 0x0B000000)  # bl


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
        pc = function.start + WORD * index + PC_AHEAD
        distance = literals.get(word & 0xF)
        if _is(word, LOAD_LITERAL):
            offset = word & 0xFFF if word >> 23 & 1 else -(word & 0xFFF)
            literals[word >> 12 & 0xF] = function.word(pc + offset) or 0
        elif _is(word, CALL):
            found.called.add(pc + WORD * signed(word, 24))
        elif distance is not None and _is(word, ADD_PC):
            found.made.append((pc + distance) & ADDRESS_MASK)
        elif distance is not None and _is(word, LOAD_BY_PC):
            found.loaded.add((pc + distance) & ADDRESS_MASK)
    return found


def check_tables(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that registered functions and exception tables belong together one by one, in order."""
    section = image.section(*PLACE)
    if image.wide or section is None:
        if not image.wide:
            yield Problem("it has no exception tables: whatever is raised ends it", MEND_BUILD)
        return
    tables = {table.address: table for table in read_tables(image)}
    personalities = {bind.address for bind in image.binds() if bind.symbol == PERSONALITY}
    register, data = _stub_of(image, REGISTER), list(data_in_code(image))
    order: list[int] = []
    for function in read_functions(image):
        names = named(function)
        own = [address for address in names.made if section.holds(address)]
        order += own
        if (register in names.called) != (len(own) == 1) or len(own) > 1:
            what = f"the function at {function.start:#x} registers itself with {len(own)}"
            yield Problem(f"{what} exception tables, or has one in vain", MEND_BUILD)
        elif own and not names.loaded & personalities:
            what = f"the function at {function.start:#x} registers no personality that is bound"
            yield Problem(what, MEND_BUILD)
        elif own and own[0] in tables:
            yield from _check_pads(image, function, tables[own[0]], data)
    if order != list(tables):
        yield Problem("the code does not name the exception tables in order", MEND_BUILD)


def _check_pads(
    image: Slice, function: Function, table: Table, data: list[Data]
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
    for address in range(jumps[-1].start, jumps[-1].end, WORD):
        distance = function.word(address)
        pad = jumps[-1].start + signed(distance, 32) if distance is not None else 0
        if function.word(pad) is None:
            yield Problem(f"the jump at {address:#x} leads to no pad of its function", MEND_BUILD)


def _stub_of(image: Slice, symbol: str) -> int | None:
    """Returns the address of a symbol's stub."""
    stubs = image.section(*STUBS)
    if stubs is None or not stubs.reserved2:
        return None
    pointers = {bind.address for bind in image.binds() if bind.symbol == symbol}
    for address in range(stubs.address, stubs.address + stubs.size, stubs.reserved2):
        if stub_pointer(image, stubs, address) in pointers:
            return address
    return None


def _is(word: int, pattern: tuple[int, int]) -> bool:
    return word & pattern[0] == pattern[1]
