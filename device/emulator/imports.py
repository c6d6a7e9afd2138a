"""What the library takes from its process: an address for every import, a trap or a variable."""

from collections.abc import Callable
from typing import Any

from emulator import abi, c_imports, runtime_imports
from emulator.machine import Failure, Handler
from emulator.objects import Event
from emulator.runtime import Runtime

FUNCTIONS = {**runtime_imports.FUNCTIONS, **c_imports.FUNCTIONS}
# Plain computation: nothing that the process would notice.
QUIET = c_imports.COMPUTATION | {"_sel_registerName", "_class_getName", "_object_getClass"}

TEXT_CONSTANTS = {
    "_NSFontAttributeName": "NSFont",
    "_NSForegroundColorAttributeName": "NSColor",
    "_kZQBrandServiceBrandNameKey": "kZQBrandServiceBrandNameKey",
    "_kZQBrandServiceBrandLogoPathKey": "kZQBrandServiceBrandLogoPathKey",
}
PHONE_PROPERTY = 3


def resolve(runtime: Runtime, symbol: str, more: dict[str, Handler]) -> int:
    """Returns an address for an import: a trap of its own, or a cell with a variable's value."""
    machine = runtime.machine
    if symbol in TEXT_CONSTANTS:
        text = runtime.new("NSString", text=TEXT_CONSTANTS[symbol])
        return machine.allocate(8, text.address.to_bytes(8, "little"))
    if symbol == "_kABPersonPhoneProperty":
        return machine.allocate(4, PHONE_PROPERTY.to_bytes(4, "little"))
    if symbol in more:
        return machine.trap(more[symbol])
    if symbol == "_objc_msgSend":
        return machine.trap(lambda: runtime.dispatch(0))
    if symbol == "_objc_msgSend_stret":
        return machine.trap(lambda: runtime.dispatch(1))
    if symbol not in FUNCTIONS:
        return machine.trap(lambda: missing(symbol))
    return machine.trap(handler(runtime, symbol, *FUNCTIONS[symbol]))


def missing(symbol: str) -> int:
    """Fails: the library has called what this process does not offer."""
    raise Failure(f"nobody offers {symbol}, which the library calls")


def handler(runtime: Runtime, symbol: str, types: str, body: Callable[..., Any]) -> Handler:
    """Returns what runs for a call of a C function."""
    signature = abi.parse(types)

    def answer() -> None:
        values = runtime.decode_all(signature, runtime.abi.arguments(signature))
        if symbol not in QUIET:
            runtime.log.append(Event(symbol[1:], tuple(values)))
        runtime.answer(signature.result, body(runtime, *values), 0)

    return answer
