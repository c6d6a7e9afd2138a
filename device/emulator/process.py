"""A pretend process with one slice of the library loaded."""

from checker.macho import Slice

from emulator import companion, foundation, imports, phone_app, uikit
from emulator.image import Image
from emulator.machine import PROCESSORS, Failure, Handler, Machine
from emulator.runtime import Runtime
from emulator.unwinding import Unwinding
from emulator.world import World


class Process:
    """The process from the library's loading on; its init routine has not run yet."""

    def __init__(self, image: Slice, world: World) -> None:
        self.machine = Machine(PROCESSORS[image.arch])
        self.runtime = Runtime(self.machine, world)
        self.runtime.define([*foundation.KINDS, *uikit.KINDS, *companion.KINDS])
        self.runtime.define([*phone_app.HOOKED, *phone_app.PARTS])
        unwinding = Unwinding(self.runtime)
        self._more: dict[str, Handler] = unwinding.functions()
        self._imports: dict[str, int] = unwinding.names()
        self.image = Image(self.machine, image, self._resolve)
        self.machine.describe = self.image.describe
        unwinding.attach(self.image)
        self.new = self.runtime.new
        self.send = self.runtime.send

    def _resolve(self, symbol: str) -> int:
        if symbol not in self._imports:
            self._imports[symbol] = imports.resolve(self.runtime, symbol, self._more)
        return self._imports[symbol]

    def initialize(self) -> None:
        """Calls the init routine that the load command names, as the loader does."""
        address = self.image.slice.init_address
        if address is None:
            raise Failure("the library names no init routine")
        self.machine.run(address + self.image.slide)
        self.machine.scramble()

    @property
    def log(self) -> list[str]:
        """What the library asked for so far, in order."""
        return [event.text for event in self.runtime.log]
