#!/usr/bin/env python3
"""Holds the object files of a slice against the list of foreign symbols, before they are linked.

The linkers would find an unlisted symbol too, but name neither the source nor the list; and neither
finds a listed symbol that nothing uses any more.
"""
import argparse
import subprocess
import sys
from pathlib import Path

import imports

# The stubs of lazily bound functions go through it; no source names it.
LINKERS_OWN = {"dyld_stub_binder"}


def symbols_of(nm: str, objects: list[Path], *options: str) -> dict[Path, set[str]]:
    """The symbols that nm lists of each object file."""
    command = [nm, "--just-symbol-name", *options, "--print-file-name", *map(str, objects)]
    listing = subprocess.run(command, capture_output=True, text=True, check=False)
    if listing.returncode != 0:
        raise imports.BadList(f"{nm} failed: {listing.stderr.strip() or 'no message'}")
    symbols: dict[Path, set[str]] = {path: set() for path in objects}
    for line in listing.stdout.splitlines():
        file, _, symbol = line.rpartition(": ")
        symbols[Path(file)].add(symbol)
    return symbols


def findings(
    listed: set[str], undefined: dict[Path, set[str]], root: Path, list_name: str
) -> list[str]:
    """A line for each symbol used but not listed, and for each listed but not used."""
    lines = []
    for path, symbols in undefined.items():
        source = path.relative_to(root).with_suffix("")  # x.cpp.o was made of x.cpp
        lines += [
            f"{source} uses {symbol}, which {list_name} does not list: "
            "do without it, or list it under the image that offers it on iOS 7"
            for symbol in sorted(symbols - listed)
        ]
    unused = listed.difference(LINKERS_OWN, *undefined.values())
    lines += [
        f"{list_name} lists {symbol}, which no source uses: remove it" for symbol in sorted(unused)
    ]
    return lines


def main() -> int:
    parser = argparse.ArgumentParser(description="Compares object files with the list of imports.")
    parser.add_argument("list", type=Path, help="the list of foreign symbols")
    parser.add_argument("architecture", choices=imports.ARCHITECTURES)
    parser.add_argument("objects", type=Path, nargs="+", help="object files, x.cpp.o of x.cpp")
    parser.add_argument("--nm", required=True, help="the nm program")
    parser.add_argument("--root", type=Path, required=True, help="folder of the objects' names")
    arguments = parser.parse_args()
    try:
        slice_symbols = imports.of_slice(imports.read(arguments.list), arguments.architecture)
        defined = symbols_of(arguments.nm, arguments.objects, "--defined-only")
        undefined = symbols_of(arguments.nm, arguments.objects, "--undefined-only")
    except imports.BadList as error:
        print(f"check_imports: {error}", file=sys.stderr)
        return 1
    own = set().union(*defined.values())
    foreign = {path: symbols - own for path, symbols in undefined.items()}
    listed = {symbol for symbols in slice_symbols.values() for symbol in symbols}
    list_name = f"{arguments.list.resolve().parent.name}/{arguments.list.name}"
    lines = findings(listed, foreign, arguments.root, list_name)
    for line in lines:
        print(f"check_imports: {arguments.architecture}: {line}", file=sys.stderr)
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main())
