"""What a scenario is: a short story told to one slice, which fails at the first thing amiss."""

from collections.abc import Callable, Sequence
from dataclasses import dataclass
from typing import Any

from emulator.machine import Failure
from emulator.process import Process
from emulator.world import World

# Loads the slice into a new process of that world; nothing of the library has run yet.
Load = Callable[[World], Process]


@dataclass(frozen=True)
class Scenario:
    """A sentence that says what holds, and what shows it."""

    name: str
    run: Callable[[Load], None]


def expect(what: str, found: Any, wanted: Any) -> None:
    """Fails unless both are equal."""
    if found != wanted:
        raise Failure(f"{what}: expected {wanted!r}, came {found!r}")


def expect_rect(what: str, view: Any, *wanted: float) -> None:
    """Fails unless a view has that frame, to the last bit."""
    expect(what, None if view is None else view.frame, wanted)


def started(load: Load, world: World) -> Process:
    """Returns a process whose library has been initialised, its log empty."""
    process = load(world)
    process.initialize()
    process.runtime.forget()
    return process


def expect_original_once(process: Process, receiver: Any, selector: str, *values: Any) -> int:
    """Fails unless the replaced method's own work ran once, unchanged; returns where in the log."""
    text = process.runtime.message_name(receiver, selector)
    found = [at for at, event in enumerate(process.runtime.log) if event.text == text]
    expect(f"runs of {text}", len(found), 1)
    event = process.runtime.log[found[0]]
    expect(f"the receiver of {text}", event.receiver, receiver)
    expect(f"the arguments of {text}", event.arguments, values)
    return found[0]


def texts(process: Process, start: str) -> Sequence[str]:
    """Returns what the log has that begins with `start`."""
    return [text for text in process.log if text.startswith(start)]
