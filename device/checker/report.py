"""What the checks hand back: each fault together with what to do about it."""

import sys
from collections.abc import Iterable, Iterator
from typing import NamedTuple

from checker.bounded import BadImage

REBUILD = "run make device again"
DAMAGED = f"the file is damaged, {REBUILD}"
MEND_BUILD = "mend device/CMakeLists.txt or its tools"


class Problem(NamedTuple):
    """A fault and its remedy, each without a full stop, fit for one line."""

    what: str
    remedy: str


def collected(found: Iterable[Problem]) -> Iterator[Problem]:
    """Passes a check's problems on; where the file breaks under it, that is the last one."""
    try:
        yield from found
    except BadImage as error:
        yield Problem(str(error), DAMAGED)


def print_problems(tool: str, where: str, problems: Iterable[Problem]) -> int:
    """Prints each problem once, a line each, on the error stream; returns how many there are."""
    once = dict.fromkeys(problems)
    for problem in once:
        print(f"{tool}: {where}: {problem.what}: {problem.remedy}", file=sys.stderr)
    return len(once)
