"""What other code raises on its way through the library: work of its own ends quietly and tidily,
what the Phone application raises goes on to the Phone application."""

from typing import Any

from emulator.scenarios.hook_rows import IN_CALL, IN_CALL_70, expected
from emulator.scenarios.loading import PREFERENCES, check_rows
from emulator.machine import Failure, Raised
from emulator.scenarios.numbers import IDENTITY_QUERY
from emulator.process import Process
from emulator.scenarios.scenario import Load, Scenario, expect, expect_original_once, started
from emulator.scenarios.screens import NUMBER, text, typed
from emulator.world import World


def expect_caught(process: Process, times: int) -> None:
    """Fails unless so many exceptions were caught, each to its end."""
    expect("exceptions caught", process.log.count("catch"), times)
    expect("exceptions done with", process.log.count("end of catch"), times)


def preferences_raise(load: Load) -> None:
    """The hooks are installed all the same."""
    process = load(World(version=7.0, short_screen=True, raising=frozenset({PREFERENCES})))
    process.initialize()
    expect_caught(process, 1)
    check_rows(process, expected(7.0, True))


def gate_raises(load: Load) -> None:
    """Nothing is done where the process cannot be asked who it is."""
    for raising in ("+[NSBundle mainBundle]", "-[NSString lowercaseString]"):
        process = load(World(raising=frozenset({raising})))
        process.initialize()
        expect_caught(process, 1)
        expect("what came after", process.log[-2:], ["catch", "end of catch"])


def creation_raises(load: Load) -> None:
    """What is raised below a method that the process has called goes through library and process."""
    raising = frozenset({"+[ZQDialWaitUIHook allocWithZone:]"})
    process = load(World(version=7.0, raising=raising))
    process.initialize()
    expect_caught(process, 1)
    lost = IN_CALL + IN_CALL_70
    check_rows(process, [row for row in expected(7.0, False) if row not in lost])


def original_raises(load: Load) -> None:
    """The application's own exception reaches the application, and nothing else is done."""
    process = started(load, World(raising=frozenset({"-[DialerController viewWillAppear:]"})))
    controller = process.new("DialerController")
    try:
        process.send(controller, "viewWillAppear:", True)
    except Raised as raised:
        expect("the exception", str(raised), "-[DialerController viewWillAppear:]")
        expect("references to the dialer", controller.references, 1)
        expect_caught(process, 0)
        return
    raise Failure("the replacement has swallowed the application's exception")


def objects(process: Process, kind: str) -> list[Any]:
    """Returns the objects of a class that were ever made."""
    return [o for o in process.runtime.objects.values() if type(o).__name__ == kind]


def look_up_raises(load: Load) -> None:
    """The dialer's own line is shown again, and what was made on the way is given back."""
    process = started(load, World(raising=frozenset({IDENTITY_QUERY})))
    lcd = typed(process)
    expect_caught(process, 1)
    expect("the name line is hidden", lcd.nameAndLabelView.hidden, False)
    expect("the row", lcd.find(1000), None)
    for kind in ("ZQPhoneNumber", "ZQCallRecord"):
        expect(f"references to each {kind}", [o.references for o in objects(process, kind)], [0])


def cache_raises(load: Load) -> None:
    """The row's lock is left and its pool drained, the line hidden."""
    raising = "-[NSMutableDictionary objectForKey:]"
    process = started(load, World(version=8.0, raising=frozenset({raising})))
    cell = process.new("PHRecentsCell", contentView=process.new("UIView"))
    cell.add(cell.contentView)
    line = process.new("UILabel", tag=2534)
    cell.contentView.add(line)
    cell.call = process.new("PHRecentCall", callerId=text(process, NUMBER))
    process.send(cell, "layoutSubviews")
    expect_original_once(process, cell, "layoutSubviews")
    expect_caught(process, 1)
    expect("locks held", process.runtime.locks, 0)
    expect("pools open", len(process.runtime.pools), 1)
    expect("the line is hidden", line.hidden, True)


def service_raises(load: Load) -> None:
    """A shared object whose making was raised out of is made at the next call."""
    raising = "+[ZQDialCloudQueryService allocWithZone:]"
    process = started(load, World(version=7.1, raising=frozenset({raising})))
    calls = [process.new("TUTelephonyCall") for _ in range(2)]
    process.send(calls[0], "initWithCall:", None)
    expect_caught(process, 1)
    observing = "+[ZQIPCService addObserver:sel:forMsg:]"
    expect("observers", process.log.count(observing), 0)
    expect("locks held", process.runtime.locks, 0)
    process.runtime.raising.clear()
    process.send(calls[1], "initWithCall:", None)
    expect("observers", process.log.count(observing), 1)


SCENARIOS = [
    Scenario("exceptions: preferences raise, all hooks are installed", preferences_raise),
    Scenario("exceptions: the gate raises, nothing is done", gate_raises),
    Scenario("exceptions: one hook object cannot be made, the others are", creation_raises),
    Scenario("exceptions: the application's own pass through", original_raises),
    Scenario("exceptions: a look-up raises, objects are given back", look_up_raises),
    Scenario("exceptions: a cache raises, lock and pool are left", cache_raises),
    Scenario("exceptions: a shared object is made at the second try", service_raises),
]
