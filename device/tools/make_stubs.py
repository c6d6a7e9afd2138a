#!/usr/bin/env python3
"""Writes what a slice links against, one stub for each image of the list of foreign symbols.

The newer linker reads text-based stubs, the older one does not for armv7, but takes a Mach-O library
written as YAML. Compatibility version 0 accepts whatever version the device's image declares.
"""
import argparse
import sys
from pathlib import Path

import imports


def text_based_stub(image: str, symbols: list[str]) -> str:
    """A stub for the newer linker, arm64."""
    return (
        "--- !tapi-tbd\n"
        "tbd-version: 4\n"
        "targets: [ arm64-ios ]\n"
        f"install-name: '{image}'\n"
        "current-version: 0\n"
        "compatibility-version: 0\n"
        "exports:\n"
        "  - targets: [ arm64-ios ]\n"
        f"    symbols: [ {', '.join(symbols)} ]\n"
        "...\n"
    )


def yaml_library(image: str, symbols: list[str]) -> str:
    """A stub for the older linker, armv7."""
    exports = "".join(f"  - name: {symbol}\n" for symbol in symbols)
    return (
        "--- !mach-o\n"
        "arch: armv7\n"
        "file-type: MH_DYLIB\n"
        f"install-name: '{image}'\n"
        "compat-version: 0.0\n"
        "current-version: 0.0\n"
        f"exports:\n{exports}"
        "...\n"
    )


# Each linker knows its kind of stub by the file's suffix.
STUBS = {"arm64": (".tbd", text_based_stub), "armv7": (".yaml", yaml_library)}


def main() -> int:
    parser = argparse.ArgumentParser(description="Writes one stub for each foreign image.")
    parser.add_argument("list", type=Path, help="the list of foreign symbols")
    parser.add_argument("architecture", choices=imports.ARCHITECTURES)
    parser.add_argument("directory", type=Path, help="where the stubs go")
    arguments = parser.parse_args()
    try:
        images = imports.of_slice(imports.read(arguments.list), arguments.architecture)
    except imports.BadList as error:
        print(f"make_stubs: {error}", file=sys.stderr)
        return 1
    arguments.directory.mkdir(parents=True, exist_ok=True)
    suffix, stub = STUBS[arguments.architecture]
    for image, symbols in images.items():
        file = arguments.directory / f"{Path(image).name}{suffix}"
        file.write_text(stub(image, symbols), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
