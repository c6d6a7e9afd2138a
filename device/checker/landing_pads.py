"""Where the code behind a landing pad leads: it begins to catch what was raised, or passes it on."""

from checker.branches import ARM64_JUMP_BY_REGISTER, WORD, branch, leaves, matches
from checker.exception_tables import Site
from checker.functions import Function, data_in_code, read_functions
from checker.macho import Slice
from checker.stubs import stub_names

CATCHES, RESUMES = "catches", "resumes"
ENDS = {
    "___cxa_begin_catch": CATCHES,
    "__Unwind_Resume": RESUMES,
    "__Unwind_SjLj_Resume": RESUMES,
}
ENDS_PROCESS = "__ZSt9terminatev"


class LandingPads:
    """Follows the code of one image."""

    def __init__(self, image: Slice) -> None:
        self.wide = image.wide
        self.functions = {function.start: function for function in read_functions(image)}
        self.stubs = stub_names(image)
        self.data = {at for d in data_in_code(image) for at in range(d.start, d.end, WORD)}
        self._known: dict[tuple[int, int], set[str]] = {}

    def fault(self, function: Function, pad: int, site: Site) -> str | None:
        """Returns what is wrong with the pad at an address: one with an action catches, one
        without only cleans up."""
        wanted, found = CATCHES if site.action else RESUMES, self.outcomes(function, pad)
        if found == {wanted}:
            return None
        return f"goes to {pad:#x}, which {' and '.join(sorted(found)) or 'ends'}, not {wanted}"

    def outcomes(self, function: Function, start: int) -> set[str]:
        """Returns what the ways from an address come to first, through the functions called."""
        key = (function.start, start)
        if key not in self._known:
            self._known[key] = set()  # for functions that call themselves
            self._known[key] = self._walk(function, start)
        return self._known[key]

    def _walk(self, function: Function, start: int) -> set[str]:
        found: set[str] = set()
        seen: set[int] = set()
        waiting = [start]
        while waiting:
            at = waiting.pop()
            word = None if at in seen or at in self.data else function.word(at)
            if word is None:
                continue
            seen.add(at)
            ways, called = self._ways(function, at, word)
            outcomes = set() if called is None else self._called(called)
            found |= outcomes
            waiting += [] if outcomes else ways
        return found

    def unreached(self, function: Function, pads: set[int]) -> int | None:
        """Returns the first instruction that no way from a function's start or its pads reaches,
        None without one, and where jumps by a register, as switches make them, hide the ways."""
        seen: set[int] = set()
        waiting = [function.start, *pads]
        while waiting:
            at = waiting.pop()
            word = None if at in seen else function.word(at)
            if word is None:
                continue
            if matches(word, ARM64_JUMP_BY_REGISTER):
                return None
            seen.add(at)
            ways, called = self._ways(function, at, word)
            waiting += [] if called is not None and self._called(called) == {RESUMES} else ways
        return min(set(range(function.start, function.end, WORD)) - seen, default=None)

    def _ways(self, function: Function, at: int, word: int) -> tuple[list[int], int | None]:
        """Returns where the function goes on from an instruction, and what it calls there or
        leaves for."""
        jump = branch(self.wide, word)
        if jump is None:
            return ([] if leaves(self.wide, word) else [at + WORD]), None
        target = at + jump.distance
        if not jump.is_call and function.word(target) is not None:
            return ([target] if jump.always else [target, at + WORD]), None
        comes_back = jump.is_call and self.stubs.get(target) != ENDS_PROCESS
        return ([at + WORD] if comes_back or not jump.always else []), target

    def _called(self, target: int) -> set[str]:
        name, function = self.stubs.get(target), self.functions.get(target)
        if name in ENDS:
            return {ENDS[name]}
        return self.outcomes(function, target) if function else set()
