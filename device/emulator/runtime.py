"""The pretend process's Objective-C runtime: classes by name, objects by address, messages."""

from collections.abc import Iterable
from typing import Any

from emulator import abi
from emulator.machine import Failure, Machine, Raised
from emulator.objects import Event, Instance, Message, Method, ObjcClass
from emulator.world import World

# On 64-bit devices an object's first word holds more than its class.
ISA_BITS = 1 | 1 << 60
CALL_ROOM = 64


class Runtime:
    """Classes, objects, selectors and the log of what the library asked for."""

    def __init__(self, machine: Machine, world: World) -> None:
        self.machine = machine
        self.abi = abi.Abi(machine)
        self.world = world
        self.raising = set(world.raising)
        self.log: list[Event] = []
        self.earlier: list[Event] = []
        self.hooks: list[tuple[str, str, int, int]] = []
        self.locks = 0
        self.classes: dict[str, ObjcClass] = {}
        self.objects: dict[int, Instance | ObjcClass] = {}
        self.selectors: dict[str, int] = {}
        self.selector_names: dict[int, str] = {}
        self._shared: dict[str, Instance] = {}
        self.pools: list[list[Instance]] = [[]]

    def forget(self) -> None:
        """Begins the log anew; what it had is kept aside."""
        self.earlier += self.log
        self.log.clear()

    # Classes

    def make_class(self, name: str, parent: ObjcClass | None) -> ObjcClass:
        """Returns a new pair of classes, not yet to be found by name."""
        meta = ObjcClass(self, name, parent.meta if parent else None, True)
        made = ObjcClass(self, name, parent, False)
        made.meta = meta
        self.objects |= {made.address: made, meta.address: meta}
        return made

    def define(self, kinds: Iterable[type[Instance]]) -> None:
        """Registers Python classes, ancestors first."""
        for kind in kinds:
            parent = self.classes.get(kind.__bases__[0].__name__)
            made = self.make_class(kind.__name__, parent)
            made.kind = kind
            for name in kind.variables:
                made.add_ivar(name, self.machine.processor.word, self.machine.processor.word, "@")
            for entry in kind.messages:
                owner = made.meta if entry.of_class else made
                owner.methods[entry.selector] = self._python_method(owner, entry)
            self.register(made)
        root = self.classes["NSObject"]
        root.meta.parent = root

    def register(self, made: ObjcClass) -> None:
        """Makes a class known by its name."""
        made.registered = made.meta.registered = True
        self.classes[made.name] = made

    def _python_method(self, owner: ObjcClass, entry: Message) -> Method:
        signature = abi.parse(entry.types)
        name = f"{'+' if owner.is_meta else '-'}[{owner.name} {entry.selector}]"

        def handler() -> None:
            memory = self.machine.core(0)
            receiver, _, *values = self.decode_all(signature, self.abi.arguments(signature))
            shown = self.message_name(receiver, entry.selector) if receiver else name
            self.log.append(Event(shown, tuple(values), receiver))
            if shown in self.raising:
                raise Raised(shown)
            # An implementation called for nil has no state to answer from.
            answer = None if receiver is None else entry.function(receiver, *values)
            self.answer(signature.result, answer, memory)

        return Method(signature, self.machine.trap(handler), entry.function)

    def answer(self, code: str, value: Any, memory: int) -> None:
        """Gives a result to calling code; None is zero of any type."""
        raw = self.encode(code, value)
        self.machine.scramble()
        self.abi.write_result(code, raw, memory)

    # Objects

    def isa(self, objc_class: ObjcClass) -> int:
        """Returns the first word of an object of a class."""
        return objc_class.address | (ISA_BITS if self.abi.wide else 0)

    def make(self, objc_class: ObjcClass) -> Instance:
        """Returns a new object with one reference, its memory zero."""
        address = self.machine.allocate(objc_class.size)
        self.machine.set_pointer(address, self.isa(objc_class))
        made = objc_class.kind(objc_class, address)
        self.objects[address] = made
        return made

    def new(self, name: str, **attributes: Any) -> Any:
        """Returns a new object of a class of the process, with some attributes set."""
        made = self.make(self.classes[name])
        for key, value in attributes.items():
            setattr(made, key, value)
        return made

    def shared(self, name: str) -> Any:
        """Returns the one object of a class, made when it is first asked for."""
        if name not in self._shared:
            self._shared[name] = self.make(self.classes[name])
        return self._shared[name]

    def class_of(self, receiver: Instance | ObjcClass) -> ObjcClass:
        """Returns the class whose methods a receiver runs."""
        return receiver.meta if isinstance(receiver, ObjcClass) else receiver.objc_class

    def object_at(self, address: int) -> Instance | ObjcClass | None:
        """Returns the object at an address, None for nil; anything else is a failure."""
        if address == 0:
            return None
        found = self.objects.get(address)
        if found is None:
            raise Failure(f"{address:#x} is used as an object and is none")
        if isinstance(found, Instance):
            if found.references < 1:
                raise Failure(f"{found!r} is used after its end")
            if self.machine.pointer(address) != self.isa(found.objc_class):
                raise Failure(f"the class pointer of {found!r} was overwritten")
        return found

    def retain(self, value: Any) -> None:
        """Adds a reference; what is no object has none."""
        if isinstance(value, Instance):
            value.references += 1

    def release(self, value: Any) -> None:
        """Takes a reference back; the last one ends the object."""
        if isinstance(value, Instance):
            if value.references == 1:
                self.send(value, "dealloc")
            value.references -= 1

    def autoreleased(self, value: Instance) -> Instance:
        """Leaves a reference to the innermost pool."""
        self.pools[-1].append(value)
        return value

    # Values

    def decode(self, code: str, raw: Any) -> Any:
        """Returns a value as Python sees it: objects, selectors' names, text."""
        if code in "@#":
            return self.object_at(raw)
        if code == ":":
            return self.selector_names[raw]
        if code == "*":
            return self.machine.string(raw).decode() if raw else None
        return bool(raw) if code in "cB" else raw

    def decode_all(self, signature: abi.Signature, raw: list[Any]) -> list[Any]:
        """Returns all arguments as Python sees them."""
        return [self.decode(code, value) for code, value in zip(signature.arguments, raw)]

    def encode(self, code: str, value: Any) -> Any:
        """Returns a value as registers hold it; None is zero of any type."""
        if code in abi.STRUCTS:
            return value or (0,) * len(abi.STRUCTS[code])
        if isinstance(value, str) and code == ":":
            return self.selector(value)
        if isinstance(value, str) and code == "*":
            return self.machine.allocate(len(value.encode()) + 1, value.encode())
        if isinstance(value, str):
            value = self.autoreleased(self.new("NSString", text=value))
        if isinstance(value, (Instance, ObjcClass)):
            return value.address
        return value or 0

    def selector(self, name: str) -> int:
        """Returns the one address that stands for a selector."""
        if name not in self.selectors:
            address = self.machine.allocate(len(name) + 1, name.encode())
            self.selectors[name] = address
            self.selector_names[address] = name
        return self.selectors[name]

    # Messages

    def message_name(self, receiver: Instance | ObjcClass, selector: str) -> str:
        """Returns "-[Class selector]", or with a plus for a class."""
        owner = receiver if isinstance(receiver, ObjcClass) else receiver.objc_class
        return f"{'+' if isinstance(receiver, ObjcClass) else '-'}[{owner.name} {selector}]"

    def method(self, receiver: Instance | ObjcClass, selector: str) -> Method:
        """Returns the method for a message; one that nobody defined is a failure."""
        found = self.class_of(receiver).find(selector)
        if found is None:
            raise Failure(f"nobody knows {self.message_name(receiver, selector)}")
        return found

    def dispatch(self, receiver_register: int) -> int:
        """Finds the implementation for a message whose arguments are in place."""
        receiver = self.object_at(self.machine.core(receiver_register))
        selector = self.selector_names[self.machine.core(receiver_register + 1)]
        if receiver is None:
            raise Failure(f"{selector} is sent to nil by way of the runtime")
        method = self.method(receiver, selector)
        through_memory = self.abi.through_memory(method.signature.result)
        if through_memory != (receiver_register == 1):
            raise Failure(f"{self.message_name(receiver, selector)} is sent by the wrong function")
        if method.python is None:
            self.log.append(Event(self.message_name(receiver, selector), (), receiver))
        return method.implementation

    def send(self, receiver: Instance | ObjcClass, selector: str, *values: Any) -> Any:
        """Sends a message as the process does; what comes back is as Python sees it."""
        method = self.method(receiver, selector)
        if method.python is not None:
            return method.python(receiver, *values)
        return self.call(method.implementation, method.signature, receiver, selector, *values)

    def call(self, address: int, signature: abi.Signature, *values: Any) -> Any:
        """Calls the library's code by an address."""
        machine = self.machine
        raw = [self.encode(code, value) for code, value in zip(signature.arguments, values)]
        register = machine.processor.stack_pointer
        stack = machine.core(register)
        memory = machine.allocate(CALL_ROOM)
        machine.set_core(register, (stack - CALL_ROOM) & ~15)
        try:
            machine.scramble()
            self.abi.place_arguments(signature, raw, memory)
            machine.run(address)
            return self.decode(signature.result, self.abi.result(signature.result, memory))
        finally:
            machine.set_core(register, stack)
