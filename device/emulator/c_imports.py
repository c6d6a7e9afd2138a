"""The C library's functions, those that compiled code leans on, and the address book's, by symbol:
their types and what they do."""

from collections.abc import Callable
from typing import Any

from emulator import abi
from emulator.objects import Event, Instance
from emulator.runtime import Runtime

GUARD_DONE = b"\1"


def copy_memory(runtime: Runtime, to: int, source: int, size: int) -> int:
    """Copies bytes that may overlap."""
    if size:
        runtime.machine.write(to, runtime.machine.read(source, size))
    return to


def fill_memory(runtime: Runtime, to: int, byte: int, size: int) -> int:
    """Fills bytes."""
    runtime.machine.write(to, bytes([byte & 0xFF]) * size)
    return to


def compare_memory(runtime: Runtime, left: int, right: int, size: int) -> int:
    """Compares bytes."""
    a, b = runtime.machine.read(left, size), runtime.machine.read(right, size)
    return (a > b) - (a < b)


def find_byte(runtime: Runtime, source: int, byte: int, size: int) -> int:
    """Returns the address of the first such byte, 0 without one."""
    found = runtime.machine.read(source, size).find(byte & 0xFF)
    return source + found if found >= 0 else 0


def print_text(runtime: Runtime, to: int, size: int, text: str) -> int:
    """Prints one number by the conversions that the library uses: %d, %zu, %.1f and kin."""
    kind = {"d": "i", "u": "L", "f": "d"}[text[-1]]
    value = runtime.abi.arguments(abi.parse("ipL*"), kind)[-1]
    printed = (text.replace("%zu", "%d") % value).encode()
    runtime.machine.write(to, printed[: size - 1] + b"\0")
    return len(printed)


def log_line(runtime: Runtime, text: Instance) -> None:
    """Notes a line of the system's log; its format is "%@"."""
    shown = runtime.abi.arguments(abi.parse("v@"), "@")[-1]
    runtime.log.append(Event(f"log: {runtime.object_at(shown)!r}"))


def kept(runtime: Runtime, value: Any) -> Any:
    """Returns an object with a reference for the caller."""
    runtime.retain(value)
    return value


FUNCTIONS: dict[str, tuple[str, Callable[..., Any]]] = {
    "_memmove": ("pppL", copy_memory),
    "_memcpy": ("pppL", copy_memory),
    "_memset": ("ppiL", fill_memory),
    "_bzero": ("vpL", lambda runtime, to, size: fill_memory(runtime, to, 0, size)),
    "_memcmp": ("ippL", compare_memory),
    "_memchr": ("ppiL", find_byte),
    "_strlen": ("Lp", lambda runtime, text: len(runtime.machine.string(text))),
    "_strcmp": ("i**", lambda runtime, left, right: (left > right) - (left < right)),
    "_snprintf": ("ipL*", print_text),
    "__Znam": ("pL", lambda runtime, size: runtime.machine.allocate(size, b"\xa5" * size)),
    "__Znwm": ("pL", lambda runtime, size: runtime.machine.allocate(size, b"\xa5" * size)),
    "__ZdaPv": ("vp", lambda runtime, address: None),
    "_nearbyint": ("dd", lambda runtime, value: float(round(value))),
    "___udivdi3": ("QQQ", lambda runtime, value, divisor: value // divisor),
    "___fixunsdfdi": ("Qd", lambda runtime, value: int(value)),
    "___cxa_guard_acquire": ("ip", lambda runtime, guard: not runtime.machine.number(guard, 1)),
    "___cxa_guard_release": ("vp", lambda runtime, guard: runtime.machine.write(guard, GUARD_DONE)),
    "___cxa_guard_abort": ("vp", lambda runtime, guard: None),
    "_NSLog": ("v@", log_line),
    "_ABRecordCopyValue": ("@@i", lambda runtime, person, kind: kept(runtime, person.values)),
    "_ABMultiValueGetCount": ("l@", lambda runtime, values: len(values.items)),
    "_ABMultiValueCopyArrayOfAllValues": ("@@", kept),
    "_ABMultiValueCopyValueAtIndex": ("@@l", lambda runtime, v, at: kept(runtime, v.items[at])),
    "_CFArrayGetCount": ("l@", lambda runtime, array: len(array.items)),
    "_CFArrayGetValueAtIndex": ("@@l", lambda runtime, array, at: array.items[at]),
    "_CFRelease": ("v@", lambda runtime, value: runtime.release(value)),
}

# What the process would not notice.
COMPUTATION = {symbol for symbol in FUNCTIONS if symbol.startswith(("_mem", "_str", "__Z"))}
COMPUTATION |= {"_bzero", "_snprintf", "_nearbyint", "___udivdi3", "___fixunsdfdi"}
