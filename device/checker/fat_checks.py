"""Checks of the fat file around the slices."""

from collections.abc import Iterator, Sequence

from checker.macho import FAT_MAGIC, FatEntry
from checker.report import MEND_BUILD, REBUILD, Problem

CPUS = {"armv7": (12, 9), "arm64": (0x0100000C, 0)}
LEAST_ALIGNMENT = {"armv7": 12, "arm64": 14}
MOST_ALIGNMENT = 15
HEADER_SIZE = 8
ENTRY_SIZE = 20
JOIN = "join the slices again with " + REBUILD.removeprefix("run ").removesuffix(" again")


def check_fat(data: bytes, entries: list[FatEntry], wanted: Sequence[str]) -> Iterator[Problem]:
    """Checks that the file is the wanted slices, tightly packed, and nothing else. One wanted
    slice may also stand alone, without a fat header."""
    yield from _check_slices(entries, wanted)
    if data[:4] == FAT_MAGIC.to_bytes(4, "big"):
        yield from _check_packing(data, entries)


def arch_of(entry: FatEntry) -> str:
    """Returns an entry's architecture, or its processor's numbers when it is an unknown one."""
    known = {numbers: arch for arch, numbers in CPUS.items()}
    return known.get((entry.cpu, entry.subtype), f"processor {entry.cpu:#x}/{entry.subtype:#x}")


def _check_slices(entries: list[FatEntry], wanted: Sequence[str]) -> Iterator[Problem]:
    present = [arch_of(entry) for entry in entries]
    if present != list(wanted):
        slices, order = ", ".join(present) or "nothing", ", ".join(wanted)
        yield Problem(f"it holds {slices} where {order} should be, in this order", JOIN)


def _check_packing(data: bytes, entries: list[FatEntry]) -> Iterator[Problem]:
    end = HEADER_SIZE + ENTRY_SIZE * len(entries)
    for entry in entries:
        arch, least = arch_of(entry), LEAST_ALIGNMENT.get(arch_of(entry), 0)
        if not least <= entry.alignment <= MOST_ALIGNMENT:
            limits = f"2^{least} to 2^{MOST_ALIGNMENT}"
            yield Problem(f"{arch} is aligned to 2^{entry.alignment}, not {limits}", MEND_BUILD)
            continue
        tight = -(-end // (1 << entry.alignment)) << entry.alignment
        if entry.offset != tight:
            what = f"{arch} begins at {entry.offset}, where the next free place is {tight}"
            yield Problem(what, JOIN)
        elif any(data[end:tight]):
            yield Problem(f"the gap before {arch}, from offset {end}, is not empty", JOIN)
        end = entry.offset + entry.size
    if end != len(data):
        yield Problem(f"the slices end at {end}, the file at {len(data)}", JOIN)
