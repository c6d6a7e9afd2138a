"""Exceptions on their way through the library's frames, by the tables in the image: registered
contexts on armv7, the unwind index on arm64. The library catches everything or nothing."""

from typing import Any

from emulator.exception_tables import Frame, FunctionTable, UnwindInfo
from emulator.image import Image
from emulator.machine import Failure, Handler, Raised
from emulator.objects import Event
from emulator.runtime import Runtime

# An armv7 function's context, in words: the one before, the site, two values for the pad, ...
SITE, VALUES, PERSONALITY, TABLE, FRAME, PAD, STACK = 4, 8, 24, 28, 32, 36, 40
NO_SITE = 0xFFFFFFFF
FRAME_MODE, MODES = 0x04000000, 0x0F000000
PERSONALITY_SHIFT = 28
# The pairs that a frame on arm64 may have saved, from the frame pointer downwards.
CORE_PAIRS = ((0x1, 19), (0x2, 21), (0x4, 23), (0x8, 25), (0x10, 27))
VECTOR_PAIRS = ((0x100, 8), (0x200, 10), (0x400, 12), (0x800, 14))


class Unwinding:
    """The exceptions of one process."""

    def __init__(self, runtime: Runtime) -> None:
        self.runtime = runtime
        self.machine = runtime.machine
        self.raised: dict[int, Raised] = {}
        self.top = 0
        self.personality = 0
        self.index: UnwindInfo | None = None

    def functions(self) -> dict[str, Handler]:
        """Returns the functions that the library calls for exceptions."""
        self.personality = self.machine.trap(lambda: self._fail("the personality is called"))
        return {
            "__Unwind_SjLj_Register": self._register,
            "__Unwind_SjLj_Unregister": self._unregister,
            "__Unwind_SjLj_Resume": self._resume,
            "__Unwind_Resume": self._resume,
            "___cxa_begin_catch": lambda: self._log("catch"),
            "___cxa_end_catch": lambda: self._log("end of catch"),
            "__ZSt9terminatev": lambda: self._fail("the library ends the process"),
        }

    def attach(self, image: Image) -> None:
        """Takes the image's tables and the exceptions that leave the process's functions."""
        if image.slice.wide:
            self.index = UnwindInfo(image)
        self.machine.land = self.land

    def _fail(self, what: str) -> int:
        raise Failure(what)

    def _log(self, what: str) -> None:
        self.runtime.log.append(Event(what))
        self.runtime.answer("p", self.machine.core(0), 0)

    def _register(self) -> None:
        context = self.machine.core(0)
        self.machine.set_pointer(context, self.top)
        self.top = context
        self.machine.scramble()

    def _unregister(self) -> None:
        if self.machine.core(0) != self.top:
            raise Failure("a function takes back a context that is not the last one")
        self.top = self.machine.pointer(self.top)
        self.machine.scramble()

    def _resume(self) -> int:
        raise self.raised[self.machine.core(0)]

    def land(self, raised: Raised, back: int, stack: int) -> int | None:
        """Returns the pad that the innermost frame concerned has; None beyond the last frame."""
        if not raised.token:
            raised.token = self.machine.allocate(64)
            self.raised[raised.token] = raised
        self.machine.scramble()
        return self._land_by_index(raised, back, stack) if self.index else self._land(raised)

    # armv7

    def _land(self, raised: Raised) -> int | None:
        machine = self.machine
        while self.top and self.top < machine.entry_stack:
            site = machine.pointer(self.top + SITE)
            if site == 0:
                self._fail("something is raised where the library would end the process")
            found = None
            if site != NO_SITE:
                self._check_personality(machine.pointer(self.top + PERSONALITY))
                table = FunctionTable(machine, machine.pointer(self.top + TABLE))
                found = table.numbered_site(site)
            if found:
                machine.set_pointer(self.top + SITE, found.pad)
                machine.set_pointer(self.top + VALUES, raised.token)
                machine.set_pointer(self.top + VALUES + 4, table.selector(found.action))
                return self._jump()
            self.top = machine.pointer(self.top)
        return None

    def _jump(self) -> int:
        """Leaves a pad what it gets on the device: frame and stack, and nothing else."""
        machine = self.machine
        for number in range(13):
            machine.set_core(number, 0xA5A5A5A5)
        machine.set_core(machine.processor.frame, machine.pointer(self.top + FRAME))
        machine.set_core(machine.processor.stack_pointer, machine.pointer(self.top + STACK))
        return machine.pointer(self.top + PAD)

    def _check_personality(self, address: int) -> None:
        if address != self.personality:
            self._fail(f"an exception table names {address:#x} as its personality")

    # arm64

    def _land_by_index(self, raised: Raised, back: int, stack: int) -> int | None:
        machine, index = self.machine, self.index
        assert index is not None
        while back != machine.stop:
            frame = index.frame(back - 1)
            if frame.table:
                place = index.personalities[(frame.encoding >> PERSONALITY_SHIFT & 3) - 1]
                self._check_personality(machine.pointer(place + index.image.slide))
                table = FunctionTable(machine, frame.table)
                site = table.site_at(back - 1 - frame.start)
                if site.pad:
                    machine.set_core(0, raised.token)
                    machine.set_core(1, table.selector(site.action))
                    machine.set_core(machine.processor.stack_pointer, stack)
                    return frame.start + site.pad
            back, stack = self._take_down(frame)
        return None

    def _take_down(self, frame: Frame) -> tuple[int, int]:
        """Restores what a function has saved; returns where it would return to, and the stack."""
        machine = self.machine
        if frame.encoding & MODES != FRAME_MODE:
            self._fail(f"the frame of {frame.start:#x} cannot be taken down")
        pointer = at = machine.core(machine.processor.frame)
        for pairs, put in ((CORE_PAIRS, machine.set_core), (VECTOR_PAIRS, machine.set_vector)):
            for flag, first in pairs:
                if frame.encoding & flag:
                    put(first, machine.pointer(at - 8))
                    put(first + 1, machine.pointer(at - 16))
                    at -= 16
        machine.set_core(machine.processor.frame, machine.pointer(pointer))
        return machine.pointer(pointer + 8), pointer + 16

    def names(self) -> dict[str, Any]:
        """Returns the addresses of the symbols that are compared and never called."""
        return {
            "___gxx_personality_sj0": self.personality,
            "___gxx_personality_v0": self.personality,
        }
