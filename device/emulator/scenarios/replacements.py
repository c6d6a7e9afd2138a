"""The conventions that every replacement keeps: the application's own work runs once, with what it
was given, and where things are missing nothing else happens."""

from functools import partial
from typing import Any

from emulator.scenarios.hook_rows import expected
from emulator.machine import Failure
from emulator.process import Process
from emulator.scenarios.scenario import Load, Scenario, expect, expect_original_once, started
from emulator.world import World

TAGLINE = "_replace_ABContactHeaderDisplayView__taglineStringForContact_"


def appear(kind: str, version: float, load: Load) -> None:
    """The application's own work first, with the same flag, then the library's."""
    process = started(load, World(version=version))
    controller = process.new(kind)
    table = process.new("UITableView")
    if controller.variables:
        controller.set_variable("_table", table)
    for times, animated in enumerate((True, False), 1):
        process.runtime.forget()
        process.send(controller, "viewWillAppear:", animated)
        at = expect_original_once(process, controller, "viewWillAppear:", animated)
        expect("where the original work stands", at, 0)
        if controller.variables:
            expect("reloads of the table", table.reloads, times)
        else:
            expect("references to the dialer", controller.references, 2)
    if not controller.variables:
        process.send(controller, "viewWillDisappear:", True)
        expect_original_once(process, controller, "viewWillDisappear:", True)
        expect("references to the dialer that went", controller.references, 1)


def sample(process: Process, code: str) -> Any:
    """Returns an argument that tells when it was changed."""
    samples = {"@": None, "c": True, "l": 1, "p": 0, "CGPoint": (-2.5, 7.25)}
    return samples[code]


def bare(version: float, load: Load) -> None:
    """Every replacement, on an object that has nothing: its own work runs once, and it returns."""
    short = version < 8.0
    process = started(load, World(version=version, short_screen=short))
    for class_name, selector, _ in expected(version, short):
        receiver = process.new(class_name)
        method = process.runtime.method(receiver, selector)
        values = [sample(process, code) for code in method.signature.arguments[2:]]
        process.runtime.forget()
        process.send(receiver, selector, *values)
        if selector == "setLCDTextFont:":
            values = [process.runtime.log[-1].arguments[0]]  # the one that may be another font
        expect_original_once(process, receiver, selector, *values)


def absent(version: float, load: Load) -> None:
    """Every replacement, for nil: the application's own work is called for nil, nothing breaks."""
    short = version < 8.0
    process = started(load, World(version=version, short_screen=short))
    for class_name, selector, _ in expected(version, short):
        method = process.runtime.classes[class_name].find(selector)
        assert method is not None
        values = [sample(process, code) for code in method.signature.arguments[2:]]
        process.runtime.call(method.implementation, method.signature, None, selector, *values)


def renamed_variable(load: Load) -> None:
    """An instance variable that is not there reads as nothing."""
    process = started(load, World(version=7.1))
    process.runtime.classes["PhoneViewController"].ivars.clear()
    controller = process.new("PhoneViewController")
    process.send(controller, "viewWillAppear:", True)
    expect_original_once(process, controller, "viewWillAppear:", True)
    expect("messages to a table", [t for t in process.log if "reloadData" in t], [])


def trap(load: Load) -> None:
    """What must never be installed ends in a trap instruction when it is called."""
    process = started(load, World())
    try:
        process.machine.run(process.image.export(TAGLINE))
    except Failure as failure:
        expect("where it stops", TAGLINE in str(failure), True)
        return
    raise Failure("the tagline's replacement has returned")


SCREENS = (
    ("DialerController", 7.1),
    ("PhoneViewController", 7.1),
    ("PHRecentsViewController", 8.0),
)

SCENARIOS = [
    *(
        Scenario(
            f"{kind} viewWillAppear:, iOS {version}: the application's own work first, once",
            partial(appear, kind, version),
        )
        for kind, version in SCREENS
    ),
    *(
        Scenario(f"iOS {version}: every replacement {what}", partial(run, version))
        for version in (7.0, 7.1, 8.0)
        for what, run in (("on an object without parts", bare), ("for nil", absent))
    ),
    Scenario("an instance variable that is not there", renamed_variable),
    Scenario("the tagline's replacement traps", trap),
]
