"""How arguments and results travel on each architecture, by a signature in the runtime's type
codes: "v@:{CGRect}", with "g" for CGFloat, "l" and "L" for NSInteger and NSUInteger, "p" for
any address."""

import re
import struct
from dataclasses import dataclass
from typing import Any

from emulator.machine import GARBAGE, Failure, Machine

STRUCTS = {
    "CGPoint": "gg",
    "CGSize": "gg",
    "CGRect": "gggg",
    "UIEdgeInsets": "gggg",
    "_NSRange": "LL",
}
# A struct with or without its fields, a pointer to something, or one letter.
TYPE = re.compile(r"\^?\{(\w+)(?:=(?:[^{}]|\{[^{}]*\})*)?\}|\^+[\w@#:?*]|[pvcCBsSiIqQfdglL@#:*?]")
POINTERS = "@#:*^?p"
FORMATS = {"c": "b", "C": "B", "B": "?", "s": "h", "S": "H", "i": "i", "I": "I", "q": "q", "Q": "Q"}
VECTORS = 8
SMALLEST = 4


@dataclass(frozen=True)
class Signature:
    """A function's types: a code each, or a struct's name."""

    result: str
    arguments: tuple[str, ...]


def parse(text: str) -> Signature:
    """Returns the types of an encoding such as "v@:{CGRect}"."""
    types: list[str] = []
    at = 0
    while at < len(text):
        match = TYPE.match(text, at)
        if match is None or match.group().startswith("{") and match.group(1) not in STRUCTS:
            raise Failure(f"the type encoding {text!r} cannot be read from position {at} on")
        name = match.group(1)
        types.append(name if match.group().startswith("{") else match.group()[0])
        at = match.end()
    return Signature(types[0], tuple(types[1:]))


@dataclass(frozen=True)
class Place:
    """A piece of an argument: a register, or bytes on the stack."""

    kind: str
    number: int
    size: int


class Abi:
    """Reads and writes arguments and results of the machine's architecture."""

    def __init__(self, machine: Machine) -> None:
        self.machine = machine
        self.word = machine.processor.word
        self.wide = self.word == 8

    def leaves(self, code: str) -> list[str]:
        """Returns the struct module's letters of a type's numbers, pointers as integers."""
        letters = {"g": "df"[not self.wide], "l": "qi"[not self.wide], "L": "QI"[not self.wide]}
        codes = STRUCTS.get(code, code)
        pointer = letters["L"]
        plain = {**letters, **FORMATS, "f": "f", "d": "d"}
        return [pointer if c in POINTERS else plain[c] for c in codes]

    def through_memory(self, code: str) -> bool:
        """Tells whether a result of that type is written to where the caller says."""
        return not self.wide and code in STRUCTS

    def arguments(self, signature: Signature, variadic: str = "") -> list[Any]:
        """Returns what a caller has passed: numbers, or tuples of numbers for structs."""
        shift = 1 if self.through_memory(signature.result) else 0
        all_places = self._places(signature.arguments, shift, tuple(variadic))
        codes = (*signature.arguments, *variadic)
        return [self._read(code, places) for code, places in zip(codes, all_places)]

    def place_arguments(self, signature: Signature, values: list[Any], memory: int) -> None:
        """Passes values to a function about to be called; `memory` takes a struct's result."""
        shift = 1 if self.through_memory(signature.result) else 0
        if shift:
            self.machine.set_core(0, memory)
        all_places = self._places(signature.arguments, shift, ())
        for code, places, value in zip(signature.arguments, all_places, values, strict=True):
            self._write(code, places, value)

    def result(self, code: str, memory: int) -> Any:
        """Returns the result of a called function."""
        if code == "v":
            return None
        if self.through_memory(code):
            return self._unpack(code, self.machine.read(memory, self._size(code)))
        return self._read(code, self._result_places(code))

    def write_result(self, code: str, value: Any, memory: int) -> None:
        """Returns to a caller; `memory` is where it wants a struct."""
        if code == "v":
            return
        if self.through_memory(code):
            self.machine.write(memory, b"".join(self._pack(code, value)))
        else:
            self._write(code, self._result_places(code), value)

    def _result_places(self, code: str) -> list[list[Place]]:
        return self._places((code,), 0, ())[0]

    def _size(self, code: str) -> int:
        return sum(struct.calcsize(leaf) for leaf in self.leaves(code))

    def _places(
        self, codes: tuple[str, ...], shift: int, variadic: tuple[str, ...]
    ) -> list[list[list[Place]]]:
        """Returns for each argument, for each number in it, the pieces it is made of."""
        if self.wide:
            return Places64().of([self.leaves(code) for code in codes], variadic)
        words = Words32(shift)
        return [[words.take(leaf) for leaf in self.leaves(code)] for code in (*codes, *variadic)]

    def _read(self, code: str, places: list[list[Place]]) -> Any:
        return self._unpack(code, b"".join(self._leaf(code, pieces) for pieces in places))

    def _leaf(self, code: str, pieces: list[Place]) -> bytes:
        data = b"".join(self._piece(piece) for piece in pieces)
        leaf = self.leaves(code)[0]
        size = struct.calcsize(leaf)
        if size < SMALLEST and pieces[0].kind == "core":
            # Callers widen small numbers: what was compiled elsewhere relies on it.
            value = int.from_bytes(data[:SMALLEST], "little", signed=leaf.islower())
            if not -128 <= value <= 255:
                raise Failure(f"a small argument comes with {value:#x} in its register")
        return data[:size]

    def _piece(self, piece: Place) -> bytes:
        machine = self.machine
        if piece.kind == "core":
            return machine.core(piece.number).to_bytes(self.word, "little")
        if piece.kind == "vector":
            return machine.vector(piece.number).to_bytes(8, "little")
        return machine.read(
            machine.core(machine.processor.stack_pointer) + piece.number, piece.size
        )

    def _write(self, code: str, places: list[list[Place]], value: Any) -> None:
        for data, pieces in zip(self._pack(code, value), places, strict=True):
            # What lies above a number of 4 bytes is nobody's; below 4 it is widened.
            if len(data) < SMALLEST and pieces[0].kind == "core":
                data = int(value).to_bytes(SMALLEST, "little", signed=int(value) < 0)
            data += GARBAGE.to_bytes(8, "little")[len(data) :]
            for piece in pieces:
                self._put(piece, data[: piece.size])
                data = data[piece.size :]

    def _put(self, piece: Place, data: bytes) -> None:
        machine = self.machine
        if piece.kind == "core":
            machine.set_core(piece.number, int.from_bytes(data, "little"))
        elif piece.kind == "vector":
            machine.set_vector(piece.number, int.from_bytes(data, "little"))
        else:
            stack = machine.core(machine.processor.stack_pointer)
            machine.write(stack + piece.number, data)

    def _pack(self, code: str, value: Any) -> list[bytes]:
        values = value if code in STRUCTS else (value,)
        return [struct.pack("<" + leaf, v) for leaf, v in zip(self.leaves(code), values)]

    def _unpack(self, code: str, data: bytes) -> Any:
        values = struct.unpack("<" + "".join(self.leaves(code)), data)
        return values if code in STRUCTS else values[0]


class Words32:
    """armv7 on iOS: everything in consecutive words, four in registers, floats like integers."""

    def __init__(self, used: int) -> None:
        self.used = used

    def take(self, leaf: str) -> list[Place]:
        """Returns the words of the next number; a long one may lie in both."""
        words = range(self.used, self.used + (2 if struct.calcsize(leaf) == 8 else 1))
        self.used = words.stop
        return [Place("core", w, 4) if w < 4 else Place("stack", 4 * (w - 4), 4) for w in words]


class Places64:
    """arm64 on iOS: eight registers of each kind, then the stack without padding."""

    def __init__(self) -> None:
        self.core = 0
        self.vectors = 0
        self.stack = 0

    def of(self, fixed: list[list[str]], variadic: tuple[str, ...]) -> list[list[list[Place]]]:
        """Returns each argument's places; variadic ones stand on the stack, a word each."""
        found = [self._take(leaves) for leaves in fixed]
        self.stack = -(-self.stack // 8) * 8
        return found + [[[self._push("Q")]] for _ in variadic]

    def _take(self, leaves: list[str]) -> list[list[Place]]:
        real = leaves[0] in "fd"
        used = self.vectors if real else self.core
        if used + len(leaves) > VECTORS:
            if real:
                self.vectors = VECTORS
            else:
                self.core = VECTORS
            return [[self._push(leaf)] for leaf in leaves]
        if real:
            self.vectors += len(leaves)
        else:
            self.core += len(leaves)
        kind = "vector" if real else "core"
        return [[Place(kind, used + i, 8)] for i in range(len(leaves))]

    def _push(self, leaf: str) -> Place:
        size = struct.calcsize(leaf)
        self.stack = -(-self.stack // size) * size
        place = Place("stack", self.stack, size)
        self.stack += size
        return place
