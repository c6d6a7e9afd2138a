"""What happens when the library is loaded: nothing in foreign processes, the hooks in the Phone
application."""

from functools import partial

from emulator import phone_app
from emulator.scenarios.hook_rows import IN_CALL_70, Row, expected
from emulator.process import Process
from emulator.scenarios.scenario import Load, Scenario, expect, started, texts
from emulator.world import PHONE, World

QUESTIONS = ["objc_getClass", "+[NSBundle mainBundle]", "-[NSBundle bundleIdentifier]"]
READING = ["-[NSString lowercaseString]", "-[NSString UTF8String]"]
COMPARING = ["-[NSString length]"]
OTHERS = ("com.apple.mobilesafari", PHONE + ".extra", PHONE[:-1], "", None)
SYSTEMS = ((6.1, False), (7.0, True), (7.0, False), (7.1, True), (7.1, False), (8.0, False))
PREFERENCES = "+[ZQPreference InitializePreferences]"
CLASSES = [
    "ZQDialCloudQueryService",
    "ZQDialNumberInputUIHook",
    "ZQDialWaitUIHook",
    "ZQSystemCallHistoryClassHelper",
    "ZQGroupButton",
    "ZQSystemCallHistoryViewHook",
]
VERSION_TESTS = {
    "+[ZQPhoneUtil isLaterThanIOSVersion:include:]": {(8.0, True), (7.0, True)},
    "+[ZQPhoneUtil isEalierThanIOSVersion:include:]": {(8.0, False), (7.1, False)},
}


def foreign(identifier: str | None, load: Load) -> None:
    """Nothing but the question for the identifier, and no memory touched but for what it found."""
    process = load(World(identifier=identifier))
    address, before = process.image.data()
    process.initialize()
    asked = QUESTIONS + (READING if identifier is not None else [])
    expect("the log", process.log, asked)
    expect("hooks", process.runtime.hooks, [])
    _, after = process.image.data()
    word = process.machine.processor.word
    known = set(process.runtime.selector_names) | {process.runtime.classes["NSBundle"].address}
    for at in range(0, len(before), word):
        value = int.from_bytes(after[at : at + word], "little")
        if before[at : at + word] != after[at : at + word] and value not in known:
            expect(f"the word at {process.image.describe(address + at)}", value, "left alone")


def check_rows(process: Process, wanted: list[Row]) -> None:
    """The hooks are exactly these, each with the exported function and a slot of its own."""
    hooks = process.runtime.hooks
    exports = process.image.slice.exports()
    expect("hooks", [hook[:2] for hook in hooks], [row[:2] for row in wanted])
    for (_, _, replacement, _), (_, _, name) in zip(hooks, wanted):
        expect(name, replacement, exports[name] + process.image.slide)
    slots = [slot for _, _, _, slot in hooks]
    expect("slots that two rows share", len(slots) - len(set(slots)), 0)
    address, content = process.image.data()
    outside = [slot for slot in slots if not address <= slot < address + len(content)]
    expect("slots outside the library's data", outside, [])


def hooks(identifier: str, version: float, short_screen: bool, load: Load) -> None:
    """Preferences first, then the classes, then the rows of that system in their order."""
    process = load(World(identifier=identifier, version=version, short_screen=short_screen))
    process.initialize()
    log = process.log
    first = [text for text in log if text not in QUESTIONS + READING + COMPARING][0]
    expect("the first thing after the gate", first, PREFERENCES)
    registered = [e.arguments[0].name for e in process.runtime.log if "registerClass" in e.text]
    expect("classes registered", registered, CLASSES)
    last_class = max(at for at, text in enumerate(log) if text == "objc_registerClassPair")
    expect("a hook before the last class", "MSHookMessageEx" in log[:last_class], False)
    check_rows(process, expected(version, short_screen))
    for test, allowed in VERSION_TESTS.items():
        asked = {e.arguments for e in process.runtime.log if e.text == test}
        expect(f"other versions asked of {test}", asked - allowed, set())


def without(missing: frozenset[str], load: Load) -> None:
    """Classes that the system lacks skip their rows, and no others."""
    process = load(World(version=7.0, short_screen=True, missing=missing))
    process.initialize()
    check_rows(process, [row for row in expected(7.0, True) if row[0] not in missing])


def shared_slot(load: Load) -> None:
    """The rows of recent calls keep what they replaced in one place on both systems."""
    slots = set()
    for version in (7.1, 8.0):
        process = load(World(version=version))
        process.initialize()
        wanted = ("PHRecentsCell", "layoutSubviews")
        slots |= {hook[3] for hook in process.runtime.hooks if hook[:2] == wanted}
    expect("slots of PHRecentsCell layoutSubviews", len(slots), 1)


def installing_again(load: Load) -> None:
    """The dialer's and the in-call screen's install methods work once, that of recents again."""
    process = started(load, World(version=7.1))
    classes = process.runtime.classes
    process.send(classes["ZQDialNumberInputUIHook"], "initializeHook")
    process.send(classes["ZQDialWaitUIHook"], "initializeHook")
    expect("hooks installed again", texts(process, "MSHookMessageEx"), [])
    process.send(classes["ZQSystemCallHistoryViewHook"], "InitializeHook")
    expect("hooks of recents installed again", len(texts(process, "MSHookMessageEx")), 10)


ALL_HOOKED = frozenset(kind.__name__ for kind in phone_app.HOOKED)

SCENARIOS = [
    *(
        Scenario(f"foreign process {name!r}: only the question who it is", partial(foreign, name))
        for name in OTHERS
    ),
    *(
        Scenario(
            f"{identifier}, iOS {version}{', 3.5 inches' if short else ''}: "
            f"preferences, classes, {len(expected(version, short))} hooks in order",
            partial(hooks, identifier, version, short),
        )
        for version, short in SYSTEMS
        for identifier in (PHONE, "COM.Apple.MobilePhone")[: 1 + (version == 8.0)]
    ),
    Scenario(
        "one class missing: its rows are skipped", partial(without, frozenset({IN_CALL_70[0][0]}))
    ),
    Scenario("every class missing: no hooks, no harm", partial(without, ALL_HOOKED)),
    Scenario("rows of recents share their slot on iOS 7 and 8", shared_slot),
    Scenario("install methods called again", installing_again),
]
