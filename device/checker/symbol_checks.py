"""Checks of names: what the library shows, what it asks of which image, and that all agree."""

from collections import Counter
from collections.abc import Iterator

from checker.contract import Contract
from checker.macho import LC_DYSYMTAB, Bind, Slice, body
from checker.records import Symbol
from checker.report import MEND_BUILD, REBUILD, Problem
from checker.stubs import STUB_BINDER

STAB, PRIVATE_EXTERNAL, KIND, EXTERNAL = 0xE0, 0x10, 0x0E, 0x01
UNDEFINED, DEFINED_IN_SECTION = 0x0, 0xE
THUMB, WEAK_REFERENCE, WEAK_DEFINITION = 0x08, 0x40, 0x80

FUNCTION_PLACE = ("__TEXT", "__text")
DATA_SEGMENT = "__DATA"
VARIABLE_PREFIX = "_g_"
FUNCTION_ALIGNMENT = 4

LIST_IMPORT = "list it in device/imports.txt if iOS 7 has it, or do without it"
LIST_EXPORT = "add it to tools/contract/exports.txt or hide it"
SPECIAL_LIBRARIES = {0: "the library itself", -1: "the program", -2: "any image (flat lookup)"}


def defined(image: Slice) -> dict[str, Symbol]:
    """Returns the symbol table's external definitions by name."""
    return {s.name: s for s in image.symbols() if _is_external(s) and s.kind & KIND != UNDEFINED}


def undefined(image: Slice) -> dict[str, Symbol]:
    """Returns the symbol table's undefined symbols by name."""
    return {s.name: s for s in image.symbols() if _is_external(s) and s.kind & KIND == UNDEFINED}


def _is_external(symbol: Symbol) -> bool:
    return not symbol.kind & STAB and bool(symbol.kind & EXTERNAL)


def check_symbol_table(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that local, shown and asked symbols stand in this order and that none is Thumb."""
    symbols = image.symbols()
    for command in image.commands_of(LC_DYSYMTAB):
        ranges = body(command).numbers("<6I", 8)
        shown, asked = len(defined(image)), len(undefined(image))
        local = len(symbols) - shown - asked
        if ranges != (0, local, local, shown, local + shown, asked):
            yield Problem("its symbol table is not in the order that it claims", MEND_BUILD)
        elif any(_is_external(symbol) for symbol in symbols[:local]):
            yield Problem("an external symbol stands among the local ones", MEND_BUILD)
    if image.arch == "armv7":
        for symbol in symbols:
            if symbol.kind & KIND == DEFINED_IN_SECTION and symbol.description & THUMB:
                yield Problem(f"{symbol.name} is Thumb code", "compile for armv7 with -marm")


def check_exports(image: Slice, contract: Contract) -> Iterator[Problem]:
    """Checks the exports against the contract, and the trie against the symbol table."""
    trie = {entry.name: entry for entry in image.export_entries()}
    table = defined(image)
    for name in sorted(contract.exports - trie.keys()):
        yield Problem(f"it does not export {name}", "restore it, or the list of exports")
    for name in sorted(trie.keys() - contract.exports):
        yield Problem(f"it exports {name}", LIST_EXPORT)
    for name in sorted(table.keys() - trie.keys()):
        yield Problem(f"{name} is external but missing in the export trie", MEND_BUILD)
    for name, entry in trie.items():
        symbol = table.get(name)
        if entry.flags:
            yield Problem(f"{name} is exported with the flags {entry.flags:#x}", MEND_BUILD)
        if symbol is None or symbol.address != entry.address:
            at = "nothing" if symbol is None else f"{symbol.address:#x}"
            what = f"{name} is at {entry.address:#x} in the trie, {at} in the symbol table"
            yield Problem(what, MEND_BUILD)
        else:
            yield from _check_export(image, symbol)


def _check_export(image: Slice, symbol: Symbol) -> Iterator[Problem]:
    if symbol.kind != DEFINED_IN_SECTION | EXTERNAL or symbol.description & WEAK_DEFINITION:
        yield Problem(f"{symbol.name} is no plain strong symbol", MEND_BUILD)
    sections = image.sections
    if not 1 <= symbol.section <= len(sections):
        yield Problem(f"{symbol.name} is in section {symbol.section}, unknown", MEND_BUILD)
        return
    section = sections[symbol.section - 1]
    if not section.holds(symbol.address):
        yield Problem(f"{symbol.name} lies outside its section {section.name}", MEND_BUILD)
    if symbol.name.startswith(VARIABLE_PREFIX):
        if section.segment != DATA_SEGMENT:
            yield Problem(f"{symbol.name} is no data, it is in {section.name}", REBUILD)
    elif (section.segment, section.name) != FUNCTION_PLACE:
        yield Problem(f"{symbol.name} is no function, it is in {section.name}", REBUILD)
    elif symbol.address % FUNCTION_ALIGNMENT:
        what = f"{symbol.name} is at the odd or unaligned address {symbol.address:#x}"
        yield Problem(what, "compile for armv7 with -marm")


def check_imports(image: Slice, contract: Contract) -> Iterator[Problem]:
    """Checks that exactly the listed symbols are asked for, and each from its image."""
    listed, asked = contract.imports[image.arch], undefined(image)
    bound = {bind.symbol for bind in image.binds()}
    for name in sorted(asked.keys() - bound):
        yield Problem(f"{name} is undefined and nothing binds it", MEND_BUILD)
    for name in sorted(bound - asked.keys()):
        yield Problem(f"{name} is bound but not in the symbol table", MEND_BUILD)
    for name in sorted(listed.keys() - bound - {STUB_BINDER}):
        yield Problem(f"{name} is on the import list for this slice but unused", "strike it out")
    for symbol in asked.values():
        if symbol.description & WEAK_REFERENCE:
            yield Problem(f"{symbol.name} is a weak reference", "reach optional symbols by dlsym")
        if symbol.address or symbol.section:
            yield Problem(f"{symbol.name} is undefined yet has a place", MEND_BUILD)


def check_binds(image: Slice, contract: Contract) -> Iterator[Problem]:
    """Checks the image that each binding names, also against the symbol table's ordinal."""
    asked = undefined(image)
    for bind, count in Counter(image.binds()).items():
        if count > 1:
            yield Problem(f"{bind.symbol} is bound {count} times at {bind.address:#x}", MEND_BUILD)
        if bind.weak_import:
            yield Problem(f"{bind.symbol} is a weak import", "reach optional symbols by dlsym")
        if bind.kind == "weak":
            # Weak bindings would exchange our inline functions for another library's.
            what = f"{bind.symbol} may be replaced by another image's"
            yield Problem(what, "compile with -fvisibility-inlines-hidden")
        else:
            yield from _check_library(image, contract, bind)
            symbol = asked.get(bind.symbol)
            if symbol and symbol.description >> 8 != bind.library & 0xFF:
                what = f"the symbol table has another image for {bind.symbol} than its binding"
                yield Problem(what, MEND_BUILD)


def _check_library(image: Slice, contract: Contract, bind: Bind) -> Iterator[Problem]:
    if not 1 <= bind.library <= len(image.dylibs):
        origin = SPECIAL_LIBRARIES.get(bind.library, f"image {bind.library}, which is not loaded")
        yield Problem(f"{bind.symbol} is looked up in {origin}", "link with two-level names")
        return
    name = image.dylibs[bind.library - 1].name
    listed = contract.imports[image.arch].get(bind.symbol)
    if listed is None:
        yield Problem(f"it imports {bind.symbol} from {name}", LIST_IMPORT)
    elif listed != name:
        yield Problem(f"{bind.symbol} is bound to {name}, listed under {listed}", REBUILD)
