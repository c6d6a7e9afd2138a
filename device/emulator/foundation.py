"""Foundation's classes in the pretend process: as much as the library asks of them."""

from typing import Any

from emulator.machine import Raised
from emulator.objects import Instance, ObjcClass, answer, class_message, message, prop, shared


def units(text: str) -> bytes:
    """Returns a text's UTF-16 units."""
    return text.encode("utf-16-le")


def from_units(data: bytes) -> str:
    """Returns the text of UTF-16 units."""
    return data.decode("utf-16-le")


class NSObject(Instance):
    """The root of all classes."""

    @class_message("alloc", "@@:")
    @staticmethod
    def alloc(cls: ObjcClass) -> Any:
        return cls.runtime.send(cls, "allocWithZone:", 0)

    @class_message("allocWithZone:", "@@:p")
    @staticmethod
    def alloc_with_zone(cls: ObjcClass, zone: int) -> Instance:
        return cls.runtime.make(cls)

    init = answer("init", "@@:", lambda self: self)

    @message("retain", "@@:")
    def retain(self: Instance) -> Instance:
        self.runtime.retain(self)
        return self

    @message("release", "v@:")
    def release(self: Instance) -> None:
        self.runtime.release(self)

    autorelease = answer("autorelease", "@@:", lambda self: self.runtime.autoreleased(self))
    dealloc = answer("dealloc", "v@:", lambda self: None)

    @message("isKindOfClass:", "c@:#")
    def is_kind_of_class(self: Instance, wanted: ObjcClass | None) -> bool:
        return wanted is not None and self.objc_class.derives_from(wanted)

    @message("respondsToSelector:", "c@::")
    def responds_to_selector(self: Instance, selector: str) -> bool:
        return self.objc_class.find(selector) is not None

    description = answer("description", "@@:", lambda self: f"<{self.objc_class.name}>")

    @message("performSelector:withObject:", "@@::@")
    def perform(self: Instance, selector: str, value: Any) -> Any:
        return self.runtime.send(self, selector, value)

    perform_later = class_message("performSelector:withObject:afterDelay:", "v@::@d")(
        lambda cls, *values: None
    )


class NSAutoreleasePool(NSObject):
    """Gives back at its end what was left to it."""

    @message("init", "@@:")
    def init(self: Instance) -> Instance:
        self.runtime.pools.append([])
        return self

    @message("drain", "v@:")
    def drain(self: Instance) -> None:
        for left in self.runtime.pools.pop():
            self.runtime.release(left)
        self.runtime.release(self)


class NSString(NSObject):
    """A text that does not change."""

    text = ""

    def __repr__(self) -> str:
        return repr(self.text)

    @message("initWithUTF8String:", "@@:*")
    def init_utf8(self, text: str) -> "NSString":
        self.text = text
        return self

    @message("initWithCharacters:length:", "@@:pL")
    def init_characters(self, address: int, length: int) -> "NSString":
        self.text = from_units(self.runtime.machine.read(address, 2 * length))
        return self

    @class_message("stringWithCharacters:length:", "@@:pL")
    @staticmethod
    def with_characters(cls: ObjcClass, address: int, length: int) -> str:
        return from_units(cls.runtime.machine.read(address, 2 * length))

    @class_message("stringWithString:", "@@:@")
    @staticmethod
    def with_string(cls: ObjcClass, other: "NSString | None") -> str:
        return wanted(other).text

    @message("copy", "@@:")
    def copy(self) -> "NSString":
        self.references += 1
        return self

    description = answer("description", "@@:", lambda self: self)
    utf8 = answer("UTF8String", "*@:", lambda self: self.text)
    length = answer("length", "L@:", lambda self: len(units(self.text)) // 2)
    lowercase = answer("lowercaseString", "@@:", lambda self: self.text.lower())

    @message("isEqualToString:", "c@:@")
    def is_equal(self, other: "NSString | None") -> bool:
        return other is not None and other.text == self.text

    @message("hasPrefix:", "c@:@")
    def has_prefix(self, other: "NSString | None") -> bool:
        return self.text.startswith(wanted(other).text)

    @message("rangeOfString:", "{_NSRange}@:@")
    def range_of(self, part: "NSString | None") -> tuple[int, int]:
        at = self.text.find(wanted(part).text)
        if at < 0:
            largest = 1 << 8 * self.runtime.abi.word - 1
            return (largest - 1, 0)
        return (len(units(self.text[:at])) // 2, len(units(wanted(part).text)) // 2)

    @message("getCharacters:range:", "v@:p{_NSRange}")
    def get_characters(self, address: int, span: tuple[int, int]) -> None:
        self.runtime.machine.write(address, self.part(*span))

    @message("substringToIndex:", "@@:L")
    def substring_to(self, index: int) -> str:
        return from_units(self.part(0, index))

    @message("substringFromIndex:", "@@:L")
    def substring_from(self, index: int) -> str:
        return from_units(self.part(index, len(units(self.text)) // 2 - index))

    @message("sizeWithFont:", "{CGSize}@:@")
    def size_with_font(self, font: Any) -> tuple[float, float]:
        return (self.width(font), float(font.pointSize))

    @message("boundingRectWithSize:options:attributes:context:", "{CGRect}@:{CGSize}l@@")
    def bounding(self, room: tuple[float, float], *rest: Any) -> tuple[float, ...]:
        font = rest[1].entries["NSFont"]
        return (0.0, 0.0, min(self.width(font), room[0]), float(font.pointSize))

    def width(self, font: Any) -> float:
        """Returns the width in points: each unit is half as wide as the font is high."""
        return len(units(self.text)) // 2 * float(font.pointSize) / 2

    def part(self, start: int, length: int) -> bytes:
        """Returns some units; a range that reaches behind the end raises."""
        all_units = units(self.text)
        if length < 0 or 2 * (start + length) > len(all_units):
            raise Raised("range out of bounds")
        return all_units[2 * start : 2 * (start + length)]


def wanted(value: NSString | None) -> NSString:
    """Returns a text that must be there; nil raises as it does on the device."""
    if value is None:
        raise Raised("nil argument")
    return value


def plain(value: Any) -> Any:
    """Returns what an object is compared by."""
    return value.text if isinstance(value, NSString) else value


class NSNumber(NSObject):
    """A number in an object."""

    boolValue = prop("c", False)
    intValue = prop("i", 0)
    floatValue = prop("f", 0.0)

    @class_message("numberWithBool:", "@@:c")
    @staticmethod
    def with_bool(cls: ObjcClass, value: bool) -> Instance:
        made: Instance = cls.runtime.new("NSNumber", boolValue=value)
        return cls.runtime.autoreleased(made)


class NSArray(NSObject):
    """Objects in order."""

    items: list[Any] = []

    count = answer("count", "L@:", lambda self: len(self.items))

    @message("objectAtIndex:", "@@:L")
    def object_at(self, index: int) -> Any:
        if index >= len(self.items):
            raise Raised("index out of bounds")
        return self.items[index]


class NSDictionary(NSObject):
    """Objects by key; texts are compared by content."""

    def __init__(self, objc_class: ObjcClass, address: int) -> None:
        super().__init__(objc_class, address)
        self.entries: dict[Any, Any] = {}

    object_for_key = answer("objectForKey:", "@@:@", lambda self, key: self.entries.get(plain(key)))
    count = answer("count", "L@:", lambda self: len(self.entries))

    @class_message("dictionaryWithObject:forKey:", "@@:@@")
    @staticmethod
    def with_object(cls: ObjcClass, value: Any, key: Any) -> Instance:
        made = cls.runtime.new("NSDictionary")
        made.entries = {plain(key): value}
        cls.runtime.retain(value)
        return cls.runtime.autoreleased(made)


class NSMutableDictionary(NSDictionary):
    """A dictionary that changes."""

    init_capacity = answer("initWithCapacity:", "@@:L", lambda self, capacity: self)

    @message("setObject:forKey:", "v@:@@")
    def set_object(self, value: Any, key: Any) -> None:
        self.runtime.retain(value)
        self.entries[plain(key)] = value

    @message("removeAllObjects", "v@:")
    def remove_all(self) -> None:
        for value in self.entries.values():
            self.runtime.release(value)
        self.entries = {}


class NSMutableSet(NSObject):
    """Objects without order; texts are compared by content."""

    def __init__(self, objc_class: ObjcClass, address: int) -> None:
        super().__init__(objc_class, address)
        self.items: set[Any] = set()

    init_capacity = answer("initWithCapacity:", "@@:L", lambda self, capacity: self)

    @message("removeAllObjects", "v@:")
    def remove_all(self) -> None:
        self.items.clear()

    count = answer("count", "L@:", lambda self: len(self.items))
    contains = answer("containsObject:", "c@:@", lambda self, value: plain(value) in self.items)

    @message("addObject:", "v@:@")
    def add(self, value: Any) -> None:
        self.items.add(plain(value))

    remove = answer("removeObject:", "v@:@", lambda self, value: self.items.discard(plain(value)))


class NSDate(NSObject):
    """A point in time, in seconds since 1970."""

    timeIntervalSince1970 = prop("d", 0.0)

    @message("copy", "@@:")
    def copy(self: Instance) -> Instance:
        self.references += 1
        return self


class NSMutableAttributedString(NSObject):
    """A text with attributes, noted as (name, value, range)."""

    def __init__(self, objc_class: ObjcClass, address: int) -> None:
        super().__init__(objc_class, address)
        self.text = ""
        self.attributes: list[tuple[str, Any, tuple[int, int]]] = []

    @message("initWithString:", "@@:@")
    def init_string(self, text: NSString | None) -> Instance:
        self.text = wanted(text).text
        return self

    @message("addAttribute:value:range:", "v@:@@{_NSRange}")
    def add_attribute(self, name: NSString, value: Any, span: tuple[int, int]) -> None:
        if sum(span) > len(units(self.text)) // 2:
            raise Raised("range out of bounds")
        self.attributes.append((name.text, value, span))


class NSFileManager(NSObject):
    """Files that exist are those of the world."""

    default_manager = shared("defaultManager")

    @message("fileExistsAtPath:", "c@:@")
    def file_exists(self: Instance, path: NSString) -> bool:
        return path.text in self.runtime.world.files


class NSBundle(NSObject):
    """The process's own bundle."""

    main_bundle = shared("mainBundle")

    @message("bundleIdentifier", "@@:")
    def bundle_identifier(self: Instance) -> Any:
        return self.runtime.world.identifier


KINDS: list[type[Instance]] = [
    NSObject,
    NSAutoreleasePool,
    NSString,
    NSNumber,
    NSArray,
    NSDictionary,
    NSMutableDictionary,
    NSMutableSet,
    NSDate,
    NSMutableAttributedString,
    NSFileManager,
    NSBundle,
]
