"""Checks the finished device library with eyes of its own: everything that can be known of it on
this machine, from the fat header to the hash of every page. Prints all faults, not just one."""

import argparse
import sys
from collections.abc import Callable, Iterator, Sequence
from pathlib import Path

from checker import code_checks, command_checks, layout_checks
from checker import pointer_checks, registered_checks, signature_checks, symbol_checks
from checker import unwind_checks
from checker.bounded import BadImage, Block
from checker.contract import ARCHS, BadContract, Contract, load
from checker.exception_tables import read_tables
from checker.fat_checks import arch_of, check_fat
from checker.functions import function_starts
from checker.macho import FatEntry, Slice, fat_entries
from checker.report import DAMAGED, REBUILD, Problem, collected, print_problems

TOOL = "check_dylib"
CHECKS: tuple[Callable[[Slice, Contract], Iterator[Problem]], ...] = (
    command_checks.check_header,
    command_checks.check_commands,
    command_checks.check_identity,
    command_checks.check_entry,
    command_checks.check_images,
    layout_checks.check_segments,
    layout_checks.check_sections,
    layout_checks.check_kinds,
    layout_checks.check_tables,
    layout_checks.check_size,
    symbol_checks.check_symbol_table,
    symbol_checks.check_exports,
    symbol_checks.check_imports,
    symbol_checks.check_binds,
    code_checks.check_branches,
    pointer_checks.check_places,
    pointer_checks.check_slid,
    pointer_checks.check_slots,
    pointer_checks.check_lazy,
    pointer_checks.check_helper,
    pointer_checks.check_stubs,
    unwind_checks.check_frames,
    unwind_checks.check_tables,
    registered_checks.check_tables,
    signature_checks.check_signature,
)


def check_slice(image: Slice, contract: Contract) -> Iterator[Problem]:
    """Runs every check on one slice; one that breaks off does not keep the others from running."""
    for check in CHECKS:
        yield from collected(check(image, contract))


def summary(image: Slice) -> str:
    """Returns one line on a slice without faults."""
    sizes = layout_checks.segment_sizes(image)
    counts = [
        f"{len(image.commands)} load commands",
        f"{len(image.dylibs)} images",
        f"{len(image.exports())} exports",
        f"{len(symbol_checks.undefined(image))} imports bound",
        f"{len(image.rebases())} pointers slid",
        *([f"{len(function_starts(image))} functions unwound"] if image.wide else []),
        f"{len(list(read_tables(image)))} exception tables",
        f"{sum(sizes.values())} bytes of code and data",
        f"{signature_checks.page_count(image)} pages hashed",
        f"cdhash {signature_checks.code_directory_hash(image)}",
    ]
    return ", ".join(counts)


def check_entry(data: bytes, entry: FatEntry, where: str, contract: Contract) -> int:
    """Checks one slice of the file, prints its faults or its summary, returns the faults' count."""
    where = f"{where} ({arch_of(entry)})"
    try:
        image = Slice(Block(data, "the file").take(entry.offset, entry.size))
    except BadImage as error:
        return print_problems(TOOL, where, [Problem(str(error), DAMAGED)])
    problems = list(check_slice(image, contract))
    if image.arch != arch_of(entry):
        problems.insert(0, Problem(f"the slice itself is for {image.arch}", REBUILD))
    if not problems:
        print(f"{TOOL}: {where}: {summary(image)}")
    return print_problems(TOOL, where, problems)


def check_file(path: Path, contract: Contract, wanted: Sequence[str]) -> int:
    """Checks a library and returns how many faults it printed."""
    where = path.name
    data = path.read_bytes()
    try:
        entries = fat_entries(data)
    except BadImage as error:
        return print_problems(TOOL, where, [Problem(str(error), DAMAGED)])
    count = print_problems(TOOL, where, collected(check_fat(data, entries, wanted)))
    count += sum(check_entry(data, entry, where, contract) for entry in entries)
    if not count:
        slices = ", ".join(arch_of(entry) for entry in entries)
        print(f"{TOOL}: {where}: {len(data)} bytes, {slices}: no fault in {len(CHECKS)} checks")
    return count


def main() -> int:
    """Runs the tool: 0 for a sound library, 1 for faults, 2 for wrong usage."""
    parser = argparse.ArgumentParser(prog=TOOL, description=__doc__)
    parser.add_argument("library", type=Path, help="the fat library, or one slice of it")
    parser.add_argument("--root", type=Path, required=True, help="the repository's root")
    parser.add_argument("--slices", nargs="+", choices=ARCHS, default=ARCHS)
    options = parser.parse_args()
    try:
        return 1 if check_file(options.library, load(options.root), options.slices) else 0
    except BadContract as error:
        print(f"{TOOL}: {error}", file=sys.stderr)
    except OSError as error:
        reason = f"cannot be read ({error.strerror})"
        print(f"{TOOL}: {error.filename}: {reason}: run make device", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main())
