"""Checks of the code's own branches: a linker that mixes symbols up leaves calls into data, or into
the middle of a function."""

import bisect
import struct
from collections.abc import Iterator

from checker.branches import WORD, branch
from checker.contract import Contract
from checker.functions import CODE, data_in_code, function_starts
from checker.macho import Slice
from checker.records import Section
from checker.report import MEND_BUILD, Problem
from checker.stubs import STUB_SECTION


def check_branches(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that calls lead to the beginning of a function or to a stub, jumps into either."""
    code, stubs = image.section(*CODE), image.section(*STUB_SECTION)
    if code is None or stubs is None:
        yield Problem("it has no code, or no stubs", MEND_BUILD)
        return
    starts = function_starts(image)
    if not starts or not all(code.holds(start) for start in starts):
        yield Problem(
            "its table of function starts is missing or leads out of the code", MEND_BUILD
        )
        return
    beginnings = set(starts)
    for address, target, is_call in _branches(image, code):
        here = f"the branch at {address:#x}"
        if stubs.holds(target):
            if (target - stubs.address) % stubs.reserved2:
                yield Problem(f"{here} leads into the middle of a stub, {target:#x}", MEND_BUILD)
        elif not code.holds(target):
            yield Problem(f"{here} leads out of the code, to {target:#x}", MEND_BUILD)
        elif target not in beginnings and (is_call or _function(starts, address, target)):
            yield Problem(f"{here} leads into another function, to {target:#x}", MEND_BUILD)


def _function(starts: list[int], address: int, target: int) -> bool:
    """Tells whether two addresses lie in different functions."""
    return bisect.bisect_right(starts, address) != bisect.bisect_right(starts, target)


def _branches(image: Slice, code: Section) -> Iterator[tuple[int, int, bool]]:
    """Yields address and target of every direct branch, and whether it is a call."""
    content = image.content(code)
    data = {at for d in data_in_code(image) for at in range(d.start, d.end, WORD)}
    for index, (word,) in enumerate(struct.iter_unpack("<I", content[: len(content) & -WORD])):
        address = code.address + WORD * index
        found = None if address in data else branch(image.wide, word)
        if found:
            yield address, address + found.distance, found.is_call
