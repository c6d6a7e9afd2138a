"""One emulated processor with its memory. Calls of foreign functions leave the emulation by a
fetch from a page that cannot be executed, so they run here and may call back."""

from collections.abc import Callable
from dataclasses import dataclass

import unicorn
from unicorn import arm64_const as a64
from unicorn import arm_const as a32

READ, WRITE, EXECUTE = 1, 2, 4
PAGE = 0x4000
HEAP_SIZE = 0x400000
STACK_SIZE = 0x100000
TRAP_SIZE = 0x40000
TRAP_STEP = 16

# Runs a call: the address to go on at, or None to return to the caller.
Handler = Callable[[], int | None]


class Failure(Exception):
    """Something that must not happen on the device: the message says what."""


class Raised(Exception):
    """An Objective-C exception on its way; `token` is its address, once it has one."""

    token = 0


@dataclass(frozen=True)
class Processor:
    """The registers and addresses of one architecture; numbers index `core` and `vectors`."""

    name: str
    word: int
    core: tuple[int, ...]
    vectors: tuple[int, ...]
    stack_pointer: int
    program_counter: int
    link: int
    frame: int
    kept: tuple[int, ...]
    kept_vectors: tuple[int, ...]
    scratch: tuple[int, ...]
    scratch_vectors: tuple[int, ...]
    stack_alignment: int
    image: int
    heap: int
    stack: int
    traps: int


ARMV7 = Processor(
    name="armv7",
    word=4,
    core=tuple(getattr(a32, f"UC_ARM_REG_R{n}") for n in range(13))
    + (a32.UC_ARM_REG_SP, a32.UC_ARM_REG_LR),
    vectors=tuple(getattr(a32, f"UC_ARM_REG_D{n}") for n in range(32)),
    stack_pointer=13,
    program_counter=a32.UC_ARM_REG_PC,
    link=14,
    frame=7,
    kept=(4, 5, 6, 7, 8, 10, 11, 13),
    kept_vectors=tuple(range(8, 16)),
    scratch=(0, 1, 2, 3, 9, 12, 14),
    scratch_vectors=(*range(8), *range(16, 32)),
    stack_alignment=4,
    image=0x00574000,
    heap=0x16000000,
    stack=0x27D00000,
    traps=0x30000000,
)

# Everything but the image lies above what 32 bits reach, so a pointer that was cut is caught.
ARM64 = Processor(
    name="arm64",
    word=8,
    core=tuple(getattr(a64, f"UC_ARM64_REG_X{n}") for n in range(31)) + (a64.UC_ARM64_REG_SP,),
    vectors=tuple(getattr(a64, f"UC_ARM64_REG_D{n}") for n in range(32)),
    stack_pointer=31,
    program_counter=a64.UC_ARM64_REG_PC,
    link=30,
    frame=29,
    kept=(*range(19, 30), 31),
    kept_vectors=tuple(range(8, 16)),
    scratch=(*range(18), 30),
    scratch_vectors=(*range(8), *range(16, 32)),
    stack_alignment=16,
    image=0x104734000,
    heap=0x170000000,
    stack=0x16FD00000,
    traps=0x180000000,
)

PROCESSORS = {processor.name: processor for processor in (ARMV7, ARM64)}
GARBAGE = 0xA5A5A5A5A5A5A5A5


def start(processor: Processor) -> unicorn.Uc:
    """Returns an emulated processor as old as the oldest that iOS 7 runs on, floats enabled."""
    if processor is ARM64:
        cpu = unicorn.Uc(unicorn.UC_ARCH_ARM64, unicorn.UC_MODE_ARM)
        cpu.ctl_set_cpu_model(a64.UC_CPU_ARM64_A57)
        cpu.reg_write(a64.UC_ARM64_REG_CPACR_EL1, 3 << 20)
        return cpu
    cpu = unicorn.Uc(unicorn.UC_ARCH_ARM, unicorn.UC_MODE_ARM)
    cpu.ctl_set_cpu_model(a32.UC_CPU_ARM_CORTEX_A8)
    cpu.reg_write(a32.UC_ARM_REG_C1_C0_2, cpu.reg_read(a32.UC_ARM_REG_C1_C0_2) | 0xF << 20)
    cpu.reg_write(a32.UC_ARM_REG_FPEXC, 1 << 30)
    return cpu


class Machine:
    """A processor with heap, stack and traps mapped; the image is mapped by who loads it."""

    def __init__(self, processor: Processor) -> None:
        self.processor = processor
        self.cpu = start(processor)
        self.handlers: dict[int, Handler] = {}
        self.describe: Callable[[int], str] = hex
        self.land: Callable[[Raised, int, int], int | None] = lambda raised, back, stack: None
        self._heap_end = processor.heap
        self.stop = processor.traps
        self.entry_stack = 0
        self.map(processor.heap, HEAP_SIZE, READ | WRITE)
        self.map(processor.stack, STACK_SIZE, READ | WRITE)
        self.map(processor.traps, TRAP_SIZE, 0)
        self.set_core(processor.stack_pointer, processor.stack + STACK_SIZE - PAGE)

    def map(self, address: int, size: int, protection: int) -> None:
        """Maps whole pages; the pages around stay unmapped."""
        self.cpu.mem_map(address, -(-size // PAGE) * PAGE, protection)

    def read(self, address: int, size: int) -> bytes:
        """Returns `size` bytes; memory that is not there is a failure."""
        try:
            return bytes(self.cpu.mem_read(address, size))
        except unicorn.UcError:
            raise Failure(f"{size} bytes at {address:#x} are not there to be read") from None

    def write(self, address: int, data: bytes) -> None:
        """Writes past all protection, as the loader does."""
        try:
            self.cpu.mem_write(address, data)
        except unicorn.UcError:
            raise Failure(f"{len(data)} bytes at {address:#x} are no memory") from None

    def pointer(self, address: int) -> int:
        """Returns the pointer stored at an address."""
        return self.number(address, self.processor.word)

    def number(self, address: int, size: int) -> int:
        """Returns an unsigned number of some bytes."""
        return int.from_bytes(self.read(address, size), "little")

    def set_pointer(self, address: int, value: int) -> None:
        """Stores a pointer."""
        self.write(address, value.to_bytes(self.processor.word, "little"))

    def string(self, address: int) -> bytes:
        """Returns the bytes before the next zero."""
        found = bytearray()
        while (byte := self.read(address + len(found), 1)) != b"\0":
            found += byte
        return bytes(found)

    def allocate(self, size: int, content: bytes = b"") -> int:
        """Returns fresh memory, zero behind `content`, never given out again."""
        address = self._heap_end
        self._heap_end += -(-max(size, 1) // 16) * 16 + 16
        if self._heap_end > self.processor.heap + HEAP_SIZE:
            raise Failure("the library has used up the pretend process's memory")
        self.write(address, content)
        return address

    def core(self, number: int) -> int:
        """Returns an integer register."""
        return int(self.cpu.reg_read(self.processor.core[number]))

    def set_core(self, number: int, value: int) -> None:
        """Sets an integer register."""
        self.cpu.reg_write(self.processor.core[number], value)

    def vector(self, number: int) -> int:
        """Returns the bits of a double's register."""
        return int(self.cpu.reg_read(self.processor.vectors[number]))

    def set_vector(self, number: int, value: int) -> None:
        """Sets the bits of a double's register."""
        self.cpu.reg_write(self.processor.vectors[number], value)

    def trap(self, handler: Handler) -> int:
        """Returns a new address whose call runs `handler`."""
        address = self.processor.traps + TRAP_STEP * (len(self.handlers) + 1)
        self.handlers[address] = handler
        return address

    def scramble(self) -> None:
        """Fills every register that a called function may use with garbage."""
        garbage = GARBAGE & ((1 << 8 * self.processor.word) - 1)
        for number in self.processor.scratch:
            self.set_core(number, garbage)
        for number in self.processor.scratch_vectors:
            self.set_vector(number, GARBAGE)

    def kept(self) -> list[int]:
        """Returns the registers that every function has to leave as they were."""
        core = [self.core(number) for number in self.processor.kept]
        return core + [self.vector(number) for number in self.processor.kept_vectors]

    def run(self, address: int) -> None:
        """Calls code whose arguments are in place, until it returns or something is raised."""
        before, context = self.kept(), self.cpu.context_save()
        outer = self.entry_stack
        self.entry_stack = self.core(self.processor.stack_pointer)
        self.set_core(self.processor.link, self.stop)
        try:
            while address != self.stop:
                address = self._step(self._emulate(address))
        except Raised:
            self.cpu.context_restore(context)
            raise
        finally:
            self.entry_stack = outer
        if self.kept() != before:
            raise Failure("a function did not leave the registers that it has to keep")

    def _emulate(self, address: int) -> int:
        """Runs until code outside the image is called; returns the address of that call."""
        if self.processor.traps <= address < self.processor.traps + TRAP_SIZE:
            return address
        try:
            self.cpu.emu_start(address, 0)
        except unicorn.UcError as error:
            at = int(self.cpu.reg_read(self.processor.program_counter))
            if self.processor.traps <= at < self.processor.traps + TRAP_SIZE:
                return at
            raise Failure(f"{error} at {self.describe(at)}") from None
        at = int(self.cpu.reg_read(self.processor.program_counter))
        raise Failure(f"neither call nor return for long, or a jump to 0, at {self.describe(at)}")

    def _step(self, trap: int) -> int:
        """Runs one call and returns the address to go on at."""
        if trap == self.stop:
            return trap
        back, stack = self.core(self.processor.link), self.core(self.processor.stack_pointer)
        if trap not in self.handlers or stack % self.processor.stack_alignment:
            raise Failure(f"a call of {trap:#x} with the stack at {stack:#x}")
        try:
            target = self.handlers[trap]()
        except Raised as raised:
            landing = self.land(raised, back, stack)
            if landing is None:
                raise
            return landing
        return back if target is None else target
