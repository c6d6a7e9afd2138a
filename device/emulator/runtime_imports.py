"""The Objective-C runtime's C functions and that of the hooking framework, by symbol: their types
and what they do."""

import struct
from collections.abc import Callable
from typing import Any

from emulator import abi
from emulator.machine import Failure
from emulator.objects import Method, ObjcClass
from emulator.runtime import Runtime


def get_class(runtime: Runtime, name: str) -> ObjcClass | None:
    """Returns the class of that name, unless the world lacks it."""
    return None if name in runtime.world.missing else runtime.classes.get(name)


def instance_size(runtime: Runtime, objc_class: ObjcClass) -> int:
    """Returns an object's size in bytes, in whole words."""
    word = runtime.machine.processor.word
    return -(-objc_class.size // word) * word


def instance_variable(runtime: Runtime, objc_class: ObjcClass, name: str) -> int:
    """Returns memory that holds the variable's offset, 0 without such a variable."""
    found = objc_class.find_ivar(name)
    return runtime.machine.allocate(4, struct.pack("<i", found.offset)) if found else 0


def implementation(runtime: Runtime, objc_class: ObjcClass, selector: str) -> int:
    """Returns the address of a method that returns no struct through memory."""
    found = objc_class.find(selector)
    if found is None or runtime.abi.through_memory(found.signature.result):
        raise Failure(f"the implementation of {objc_class} {selector} cannot be had this way")
    return found.implementation


def dispose_class(runtime: Runtime, made: ObjcClass) -> None:
    """Fails: no class of the library may turn out to be unsound."""
    raise Failure(f"the library gives up its class {made.name}")


def add_ivar(
    runtime: Runtime, made: ObjcClass, name: str, size: int, power: int, encoding: str
) -> bool:
    """Appends an instance variable; `power` is its alignment's."""
    if made.registered:
        raise Failure(f"{made.name} gets an instance variable after it was registered")
    return made.add_ivar(name, size, 1 << power, encoding)


def add_method(
    runtime: Runtime, made: ObjcClass, selector: str, address: int, encoding: str
) -> bool:
    """Adds a method, whose encoding has to go with its selector; a known one is refused."""
    signature = abi.parse(encoding)
    if len(signature.arguments) != selector.count(":") + 2:
        raise Failure(f"{selector} is added with the encoding {encoding}")
    if selector in made.methods:
        return False
    made.methods[selector] = Method(signature, address)
    return True


def lock(runtime: Runtime, by: int) -> int:
    """Enters or leaves a lock; there is one thread."""
    runtime.locks += by
    return 0


def hook_message(
    runtime: Runtime, objc_class: ObjcClass, selector: str, replacement: int, slot: int
) -> None:
    """Replaces an instance method, inherited or not, and stores what was there before."""
    before = objc_class.find(selector)
    if before is None:
        raise Failure(f"{objc_class} has no {selector} to be replaced")
    runtime.machine.set_pointer(slot, before.implementation)
    objc_class.methods[selector] = Method(before.signature, replacement)
    runtime.hooks.append((objc_class.name, selector, replacement, slot))


FUNCTIONS: dict[str, tuple[str, Callable[..., Any]]] = {
    "_objc_getClass": ("@*", get_class),
    "_object_getClass": ("#@", lambda runtime, o: o and runtime.class_of(o)),
    "_class_getName": ("*#", lambda runtime, objc_class: objc_class.name),
    "_class_getSuperclass": ("##", lambda runtime, objc_class: objc_class.parent),
    "_class_getInstanceSize": ("L#", instance_size),
    "_class_getInstanceVariable": ("p#*", instance_variable),
    "_ivar_getOffset": ("lp", lambda runtime, ivar: runtime.machine.number(ivar, 4)),
    # No encodings are kept: variables are read as what is wanted, and no method is shown.
    "_ivar_getTypeEncoding": ("*p", lambda runtime, ivar: None),
    "_class_getInstanceMethod": ("p#:", lambda runtime, objc_class, selector: 0),
    "_method_getTypeEncoding": ("*p", lambda runtime, method: None),
    "_class_getMethodImplementation": ("p#:", implementation),
    "_objc_allocateClassPair": (
        "##*L",
        lambda runtime, parent, name, extra: name not in runtime.classes
        and runtime.make_class(name, parent),
    ),
    "_objc_registerClassPair": ("v#", lambda runtime, made: runtime.register(made)),
    "_objc_disposeClassPair": ("v#", dispose_class),
    "_class_addIvar": ("c#*LC*", add_ivar),
    "_class_addMethod": ("c#:p*", add_method),
    "_objc_getProtocol": ("@*", lambda runtime, name: None),
    "_sel_registerName": (":*", lambda runtime, name: name),
    "_objc_sync_enter": ("i@", lambda runtime, locked: lock(runtime, 1)),
    "_objc_sync_exit": ("i@", lambda runtime, locked: lock(runtime, -1)),
    "_MSHookMessageEx": ("v#:pp", hook_message),
}
