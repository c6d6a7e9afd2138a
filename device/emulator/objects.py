"""Objects and classes of the pretend process. A class of its own is a Python class derived from
Instance whose methods are declared with their selectors and types."""

from collections.abc import Callable
from dataclasses import dataclass
from typing import TYPE_CHECKING, Any

from emulator import abi
from emulator.machine import Failure

if TYPE_CHECKING:
    from emulator.runtime import Runtime

# Makes a method of a function; what it makes is taken out of the Python class when it is complete.
Declaration = Callable[[Callable[..., Any]], Any]


@dataclass(frozen=True)
class Event:
    """Something that the library asked of the process."""

    text: str
    arguments: tuple[Any, ...] = ()
    receiver: Any = None

    def __str__(self) -> str:
        return (
            f"{self.text} ({', '.join(map(repr, self.arguments))})" if self.arguments else self.text
        )


@dataclass
class Method:
    """An implementation's address; `python` is what stands behind one of the process's own."""

    signature: abi.Signature
    implementation: int
    python: Callable[..., Any] | None = None


@dataclass(frozen=True)
class Ivar:
    """An instance variable's place in an object."""

    name: str
    offset: int
    encoding: str


class ObjcClass:
    """A class, or the class of a class, which has the class messages."""

    def __init__(
        self, runtime: "Runtime", name: str, parent: "ObjcClass | None", meta: bool
    ) -> None:
        self.runtime = runtime
        self.name = name
        self.parent = parent
        self.is_meta = meta
        self.address = runtime.machine.allocate(64)
        self.methods: dict[str, Method] = {}
        self.ivars: dict[str, Ivar] = {}
        self.size: int = parent.size if parent else runtime.machine.processor.word
        self.kind: type[Instance] = parent.kind if parent else Instance
        self.registered = False
        self.meta = self

    def __repr__(self) -> str:
        return self.name

    def find(self, selector: str) -> Method | None:
        """Returns the method for a selector, inherited or not."""
        owner: ObjcClass | None = self
        while owner is not None:
            if selector in owner.methods:
                return owner.methods[selector]
            owner = owner.parent
        return None

    def find_ivar(self, name: str) -> Ivar | None:
        """Returns the instance variable of that name, inherited or not."""
        return self.ivars.get(name) or (self.parent.find_ivar(name) if self.parent else None)

    def derives_from(self, other: "ObjcClass") -> bool:
        """Tells whether this is `other` or one of its descendants."""
        return self is other or (self.parent is not None and self.parent.derives_from(other))

    def add_ivar(self, name: str, size: int, alignment: int, encoding: str) -> bool:
        """Appends an instance variable; a name that is taken is refused."""
        if self.find_ivar(name):
            return False
        offset = -(-self.size // alignment) * alignment
        self.ivars[name] = Ivar(name, offset, encoding)
        self.size = offset + size
        return True


@dataclass(frozen=True)
class Message:
    """A message of a class of the process: a selector, its types and whose message it is."""

    selector: str
    types: str
    function: Callable[..., Any]
    of_class: bool = False


@dataclass(frozen=True)
class Property:
    """An attribute with its two accessors; the getter has the attribute's name."""

    type: str
    default: Any

    def messages(self, name: str) -> list[Message]:
        """Returns getter and setter; objects are kept alive by what holds them."""

        def put(self: Instance, value: Any) -> None:
            self.runtime.retain(value)
            self.runtime.release(getattr(self, name))
            setattr(self, name, value)

        setter = f"set{name[0].upper()}{name[1:]}:"
        getter = Message(name, f"{self.type}@:", lambda self: getattr(self, name))
        return [getter, Message(setter, f"v@:{self.type}", put)]


def prop(kind: str, default: Any = None) -> Any:
    """Declares a property of a class of the process."""
    return Property(kind, default)


def message(selector: str, types: str) -> Declaration:
    """Declares a Python function as a method."""
    return lambda function: Message(selector, types, function)


def class_message(selector: str, types: str) -> Declaration:
    """Declares a static function as a class's method: it receives the class first."""
    return lambda function: Message(selector, types, function, of_class=True)


def answer(selector: str, types: str, function: Callable[..., Any]) -> Any:
    """Declares a method whose whole work is one expression."""
    return Message(selector, types, function)


def shared(selector: str) -> Any:
    """Declares a class's method that returns the one object of the class."""
    return class_message(selector, "@@:")(lambda cls: cls.runtime.shared(cls.name))


class Instance:
    """An object of the process. `variables` are those that the library reads by name."""

    variables: tuple[str, ...] = ()
    messages: list[Message] = []

    def __init_subclass__(cls) -> None:
        cls.messages = []
        for name, value in list(vars(cls).items()):
            if isinstance(value, Property):
                cls.messages += value.messages(name)
                setattr(cls, name, value.default)
            elif isinstance(value, Message):
                cls.messages.append(value)

    def __init__(self, objc_class: ObjcClass, address: int) -> None:
        self.runtime = objc_class.runtime
        self.objc_class = objc_class
        self.address = address
        self.references = 1

    def __repr__(self) -> str:
        return f"a {self.objc_class.name}"

    def place(self, name: str) -> int:
        """Returns the address of an instance variable; a class without it is a failure."""
        ivar = self.objc_class.find_ivar(name)
        if ivar is None:
            raise Failure(f"{self.objc_class.name} has no instance variable {name}")
        return self.address + ivar.offset

    def set_variable(self, name: str, value: "Instance | None") -> None:
        """Stores an object where the library reads an instance variable; it is kept alive."""
        self.runtime.retain(value)
        self.runtime.machine.set_pointer(self.place(name), value.address if value else 0)

    def variable(self, name: str) -> Any:
        """Returns the object in an instance variable."""
        return self.runtime.object_at(self.runtime.machine.pointer(self.place(name)))
