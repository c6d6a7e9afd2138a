"""Prints how large the slices' code and data are, beside the limit."""

import argparse
import sys
from pathlib import Path

from checker.contract import SIZE_LIMIT
from checker.layout_checks import segment_sizes
from checker.macho import BadImage, Slice, read
from checker.report import DAMAGED

TOOL = "size_table"
HEADINGS = ("slice", "text", "data", "total", "limit")


def row(image: Slice) -> tuple[str, ...]:
    """Returns a slice's line: its name, then bytes of code, data, both, and the limit."""
    sizes = segment_sizes(image)
    total = sum(sizes.values())
    return (image.arch, *(f"{value:,}" for value in (*sizes.values(), total, SIZE_LIMIT)))


def table(rows: list[tuple[str, ...]]) -> list[str]:
    """Returns the rows as lines: the first column to the left, the numbers to the right."""
    widths = [max(map(len, column)) for column in zip(*rows)]
    lines = []
    for cells in rows:
        numbers = [f"{cell:>{width}}" for cell, width in zip(cells[1:], widths[1:])]
        lines.append("  ".join([f"{cells[0]:<{widths[0]}}", *numbers]))
    return lines


def main() -> int:
    """Runs the tool: 0 when the table is printed, 1 when the library cannot be read."""
    parser = argparse.ArgumentParser(prog=TOOL, description=__doc__)
    parser.add_argument("library", type=Path, help="the fat library, or one slice of it")
    library = parser.parse_args().library
    try:
        print("\n".join(table([HEADINGS, *map(row, read(library).values())])))
        return 0
    except BadImage as error:
        print(f"{TOOL}: {library}: {error}: {DAMAGED}", file=sys.stderr)
    except OSError as error:
        reason = f"cannot be read ({error.strerror})"
        print(f"{TOOL}: {library}: {reason}: run make device", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main())
