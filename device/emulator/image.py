"""One slice of the library in memory as the loader leaves it: slid, bound and protected."""

import bisect
from collections.abc import Callable

from checker.macho import Slice

from emulator.machine import PAGE, Failure, Machine

OLD_PAGE = 0x1000
SYMBOL_KIND = 0x0E
IN_SECTION = 0x0E


class Image:
    """The slice's segments, mapped away from the addresses that it was linked for."""

    def __init__(self, machine: Machine, image: Slice, resolve: Callable[[str], int]) -> None:
        self.machine = machine
        self.slice = image
        self.slide = machine.processor.image
        self._map()
        for address in image.rebases():
            at = address + self.slide
            machine.set_pointer(at, machine.pointer(at) + self.slide)
        for bind in image.binds():
            machine.set_pointer(bind.address + self.slide, resolve(bind.symbol) + bind.addend)
        symbols = [s for s in image.symbols() if s.kind & SYMBOL_KIND == IN_SECTION and s.address]
        self._symbols = sorted((symbol.address, symbol.name) for symbol in symbols)

    def _map(self) -> None:
        page = PAGE if self.slice.wide else OLD_PAGE
        end = 0
        for segment in sorted(self.slice.segments, key=lambda segment: segment.address):
            if segment.address % page or segment.address < end:
                raise Failure(f"segment {segment.name} at {segment.address:#x} overlaps another")
            size = -(-segment.size // page) * page
            end = segment.address + size
            self.machine.cpu.mem_map(segment.address + self.slide, size, segment.protection)
            content = self.slice.data[segment.file_offset :][: segment.file_size]
            self.machine.write(segment.address + self.slide, content)

    def export(self, name: str) -> int:
        """Returns where an exported symbol is now."""
        exports = self.slice.exports()
        if name not in exports:
            raise Failure(f"the library does not export {name}")
        return exports[name] + self.slide

    def section(self, segment: str, name: str) -> tuple[int, bytes]:
        """Returns a section's address now and its bytes as they are in the file."""
        found = self.slice.section(segment, name)
        if found is None:
            raise Failure(f"the library has no section {segment},{name}")
        return found.address + self.slide, self.slice.content(found)

    def data(self) -> tuple[int, bytes]:
        """Returns the address and the present bytes of everything the library may write to."""
        segment = self.slice.segment("__DATA")
        if segment is None:
            raise Failure("the library has no segment __DATA")
        address = segment.address + self.slide
        return address, self.machine.read(address, segment.size)

    def describe(self, address: int) -> str:
        """Returns an address as a person wants to read it: the function it is in."""
        at = bisect.bisect_right(self._symbols, (address - self.slide, "\x7f")) - 1
        if at < 0 or not any(s.holds(address - self.slide) for s in self.slice.segments):
            return f"{address:#x}, outside the library"
        start, name = self._symbols[at]
        return f"{name} + {address - self.slide - start:#x}"
