"""The companion library in the pretend process: what it knows of numbers is the world's."""

import math
from typing import Any

from emulator.foundation import NSObject, NSString
from emulator.objects import Instance, ObjcClass, answer, class_message, message, prop, shared


class ZQPreference(NSObject):
    """What the user has chosen."""

    showNumberArea = prop("c", True)

    initialize = class_message("InitializePreferences", "v@:")(lambda cls: None)

    current_preference = shared("currentPreference")


class ZQPhoneUtil(NSObject):
    """The device and its system's version."""

    @class_message("isEalierThanIOSVersion:include:", "c@:dc")
    @staticmethod
    def is_earlier(cls: ObjcClass, version: float, include: bool) -> bool:
        running = cls.runtime.world.version
        return bool(running < version or include and running == version)

    @class_message("isLaterThanIOSVersion:include:", "c@:dc")
    @staticmethod
    def is_later(cls: ObjcClass, version: float, include: bool) -> bool:
        running = cls.runtime.world.version
        return bool(running > version or include and running == version)

    @class_message("isScreen35Inch", "c@:")
    @staticmethod
    def is_short(cls: ObjcClass) -> Any:
        return cls.runtime.world.short_screen

    @class_message("isIPhone5", "c@:")
    @staticmethod
    def is_long(cls: ObjcClass) -> bool:
        return not cls.runtime.world.short_screen

    resources = class_message("getAppResourceDir", "@@:")(lambda cls: "/resources")

    @class_message("getImageWithName:", "@@:@")
    @staticmethod
    def image(cls: ObjcClass, name: NSString) -> Instance:
        made: Instance = cls.runtime.new("UIImage", path=name.text)
        return cls.runtime.autoreleased(made)

    open = class_message("systemOpenUrl:", "v@:@")(lambda cls, url: None)


class ZQUIUtil(NSObject):
    """Help with views."""

    @class_message("getFormattedColorWithRed:green:blue:alpha:", "@@:dddd")
    @staticmethod
    def color(cls: ObjcClass, *components: float) -> Instance:
        made: Instance = cls.runtime.new("UIColor", components=components)
        return cls.runtime.autoreleased(made)

    @class_message("getSubView:ofClass:", "@@:@#")
    @staticmethod
    def subview(cls: ObjcClass, view: Any, wanted: ObjcClass) -> Any:
        children = view.children if view else []
        return next((v for v in children if v.objc_class.derives_from(wanted)), None)


class ZQMathUtil(NSObject):
    """Help with numbers."""

    @class_message("getCeilCGFloat:", "g@:g")
    @staticmethod
    def ceil(cls: ObjcClass, value: float) -> float:
        return float(math.ceil(value))


class ZQPhoneNumber(NSObject):
    """A number, parsed: the digits of what was typed."""

    pureNumber = prop("@")
    areaName = prop("@")
    type = prop("i", 0)
    origin: NSString | None = None

    @message("initWithOriginNumber:", "@@:@")
    def init_number(self, text: NSString | None) -> Instance:
        self.origin = text
        return self

    @message("parse", "v@:")
    def parse(self) -> None:
        if self.origin is None:
            return
        digits = "".join(c for c in self.origin.text if c.isdigit())
        self.pureNumber = self.runtime.new("NSString", text=digits)
        self.areaName = self.runtime.new("NSString", text=self.runtime.world.area)

    @class_message("getFormattedNumberWithNumber:", "@@:@")
    @staticmethod
    def formatted(cls: ObjcClass, number: NSString) -> str:
        return f"{number.text[:3]} {number.text[3:]}"

    @class_message("areaNameOfNumber:", "@@:@")
    @staticmethod
    def area_of(cls: ObjcClass, digits: NSString) -> Any:
        return cls.runtime.world.area

    @class_message("descriptionOfNumber:", "@@:@")
    @staticmethod
    def describe(cls: ObjcClass, digits: NSString) -> Any:
        return cls.runtime.world.area


class ZQCallRecord(NSObject):
    """The key of a look-up."""

    phoneNumber = prop("@")


class ZQNumberIdentity(NSObject):
    """What is known of a number."""

    number = prop("@")
    identity = prop("@")
    type = prop("i", 0)
    source = prop("@")
    numOfMark = prop("i", 0)
    rating = prop("f", 0.0)


IDENTITY_QUERY = (
    "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:",
    "@@:@cc@di",
)
FORMATTED_INFO = (
    "getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:",
    "@@:@il@",
)


class ZQNumberIdentityService(NSObject):
    """Looks numbers up among the world's identities."""

    @class_message(*IDENTITY_QUERY)
    @staticmethod
    def identity_of(cls: ObjcClass, record: ZQCallRecord, *rest: Any) -> Any:
        number = record.phoneNumber.text if record.phoneNumber else ""
        return cls.runtime.world.identities.get(number)

    @class_message(*FORMATTED_INFO)
    @staticmethod
    def formatted(cls: ObjcClass, identity: ZQNumberIdentity, *rest: Any) -> Any:
        return identity.identity


class ZQCallRecordService(NSObject):
    """Stored records: there are none."""

    record = answer("getRecordForNumber:atSysDate:", "@@:@@", lambda self, number, date: None)

    insert = answer("insertOrUpdateNumberIdentityWithNumber:", "v@:@", lambda self, identity: None)


class ZQContactService(NSObject):
    """The address book: one person, whose numbers are the world's."""

    current_service = shared("currentService")
    person = answer(
        "getPersonWithRecordID:",
        "p@:@",
        lambda self, number: self.runtime.shared("ABContact"),
    )


class ZQPingBackService(NSObject):
    """Counts what happens."""

    current_service = shared("currentService")
    count = answer(
        "asyncDoPingBackCount:immediately:", "v@:@c", lambda self, event, immediately: None
    )


class ZQSystemHistoryService(NSObject):
    """The companion's history: one call that may be marked."""

    default_service = shared("defaultService")

    @message("getAllCallHistoryByPhoneNumber:fromRecentCalls:", "@@:@l")
    def calls(self: Instance, number: NSString, most: int) -> Instance:
        call = self.runtime.new("ZQHistoryRecord")
        made: Instance = self.runtime.new("NSArray", items=[call])
        return self.runtime.autoreleased(made)


class ZQHistoryRecord(NSObject):
    """A call of the companion's history."""

    actionType = prop("i", 2)


class ZQIPCService(NSObject):
    """Messages between processes."""

    observe = class_message("addObserver:sel:forMsg:", "v@:@:@")(lambda cls, *values: None)
    post = class_message("postMsg:withInfo:", "v@:@@")(lambda cls, *values: None)


KINDS: list[type[Instance]] = [
    ZQContactService,
    ZQPingBackService,
    ZQPreference,
    ZQPhoneUtil,
    ZQUIUtil,
    ZQMathUtil,
    ZQPhoneNumber,
    ZQCallRecord,
    ZQNumberIdentity,
    ZQNumberIdentityService,
    ZQCallRecordService,
    ZQSystemHistoryService,
    ZQHistoryRecord,
    ZQIPCService,
]
