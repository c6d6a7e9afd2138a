"""Checks of the pointers that the loader fills or slides, and of the stubs that jump through them.
A pointer that the linker lost would otherwise show only on the device, as a jump to nowhere."""

import struct
from collections import Counter
from collections.abc import Iterator

from checker.contract import Contract
from checker.functions import CODE, function_starts
from checker.macho import Slice
from checker.records import Section, Segment
from checker.report import MEND_BUILD, Problem
from checker.stubs import STUB_BINDER, STUB_SIZES, helper_offset, helper_words, stub_pointer

NON_LAZY_POINTERS, LAZY_POINTERS, STUBS = 0x6, 0x7, 0x8
LOCAL_SYMBOL = 0x80000000
WRITABLE = 2
# Words that the armv7 build names itself, since its linker loses the bindings of unnamed ones.
NAMED_WORDS = ("__DATA", "__imports")
LAZY_SECTION = ("__DATA", "__la_symbol_ptr")


def check_places(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that bound and slid pointers are aligned, writable, and each treated once."""
    lazy = [bind.address for bind in image.binds() if bind.kind == "lazy"]
    eager = [bind.address for bind in image.binds() if bind.kind == "bind"]
    slid = image.rebases()
    for address in sorted({*lazy, *eager, *slid}):
        segment = next(s for s in image.segments if s.holds(address))
        if not segment.protection & WRITABLE:
            yield Problem(f"the loader writes into {segment.name} at {address:#x}", MEND_BUILD)
        if address % image.pointer_size:
            yield Problem(f"the pointer at {address:#x} is not aligned", MEND_BUILD)
    for address in _twice(eager + lazy):
        yield Problem(f"the pointer at {address:#x} is bound twice", MEND_BUILD)
    for address in _twice(slid):
        yield Problem(f"the pointer at {address:#x} is slid twice", MEND_BUILD)
    for address in sorted(set(eager) & set(slid)):
        yield Problem(f"the pointer at {address:#x} is both bound and slid", MEND_BUILD)


def _twice(addresses: list[int]) -> list[int]:
    return [address for address, count in Counter(addresses).items() if count > 1]


def check_slid(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that what slides is every word of the data that leads into the image, and no other.

    The image begins at 0, so a large number could be taken for an address. Where it lies beside
    pointers, in the data, that number must move to a table of its own, which goes to __TEXT.
    """
    slid, eager = set(image.rebases()), {b.address for b in image.binds() if b.kind != "lazy"}
    beginnings = set(function_starts(image))
    pointers = set()
    for segment in image.segments:
        if not segment.protection & WRITABLE:
            continue
        for address, value in _words(image, segment):
            if address not in eager and _leads_in(image, value, beginnings):
                pointers.add(address)
                if address not in slid:
                    what = f"the pointer at {address:#x} to {value:#x} does not slide"
                    yield Problem(what, f"{MEND_BUILD}, or keep such numbers apart from pointers")
    for address in sorted(slid - pointers):
        target = image.word(address)
        where = "without a value" if target is None else f"to {target:#x}, where nothing begins"
        yield Problem(f"the pointer at {address:#x} slides {where}", MEND_BUILD)


def _words(image: Slice, segment: Segment) -> Iterator[tuple[int, int]]:
    """Yields address and value of every aligned word of a segment that the file holds."""
    content = image.block.take(segment.file_offset, segment.file_size & -image.pointer_size)
    words = struct.iter_unpack("<Q" if image.wide else "<I", content)
    for index, (value,) in enumerate(words):
        yield segment.address + index * image.pointer_size, value


def _leads_in(image: Slice, value: int, beginnings: set[int]) -> bool:
    """Tells whether a word can be an address: where a function begins, or, outside of the code, at
    any byte of a section or at its end."""
    others = (s for s in image.sections if (s.segment, s.name) != CODE)
    return value in beginnings or any(s.address <= value <= s.address + s.size for s in others)


def check_slots(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that no slot was forgotten: sections of pointers are bound, or slid, throughout."""
    symbols = {bind.address: bind.symbol for bind in image.binds() if bind.kind != "lazy"}
    slid = set(image.rebases())
    loaders_own = (helper_words(image) or (None, None))[0]
    for section in image.sections:
        named = (section.segment, section.name) == NAMED_WORDS
        if section.type != NON_LAZY_POINTERS and not named:
            continue
        for index, address in enumerate(_slots(image, section, image.pointer_size)):
            if address == loaders_own:
                continue
            if address not in symbols and address not in slid:
                what = f"the pointer at {address:#x} in {section.name} is never filled"
                yield Problem(what, MEND_BUILD)
            elif not named:
                yield from _check_indirect(image, section, index, symbols.get(address))


def check_lazy(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that each lazy pointer has its binding and begins at its entry of the helper."""
    entries = image.lazy_entries()
    binds = {bind.address: (offset, bind.symbol) for offset, bind in entries}
    slid, slots = set(image.rebases()), set()
    for section in image.sections:
        if section.type != LAZY_POINTERS:
            continue
        for index, address in enumerate(_slots(image, section, image.pointer_size)):
            slots.add(address)
            if address not in binds:
                yield Problem(f"the lazy pointer at {address:#x} has no binding", MEND_BUILD)
                continue
            offset, symbol = binds[address]
            if address not in slid:
                yield Problem(f"the lazy pointer of {symbol} does not slide", MEND_BUILD)
            if helper_offset(image, image.word(address)) != offset:
                what = f"the lazy pointer of {symbol} does not begin at its helper"
                yield Problem(what, MEND_BUILD)
            yield from _check_indirect(image, section, index, symbol)
    for address in sorted(binds.keys() - slots):
        yield Problem(f"the lazy binding at {address:#x} fills no lazy pointer", MEND_BUILD)


def check_helper(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that the helper calls the loader's binder and hands it a free word."""
    words = helper_words(image)
    if words is None:
        yield Problem("the stub helper does not begin as one", MEND_BUILD)
        return
    own, binder = words
    binders = {bind.address for bind in image.binds() if bind.symbol == STUB_BINDER}
    if binders != {binder}:
        yield Problem(f"the stub helper does not jump to {STUB_BINDER}", MEND_BUILD)
    used = {bind.address for bind in image.binds()} | set(image.rebases())
    data = image.segment("__DATA")
    if (
        own in used
        or own % image.pointer_size
        or not data
        or not data.holds(own, image.pointer_size)
    ):
        yield Problem(f"the stub helper lends the loader the word at {own:#x}", MEND_BUILD)


def check_stubs(image: Slice, _: Contract) -> Iterator[Problem]:
    """Checks that each stub jumps through the lazy pointer of its own symbol."""
    lazy = image.section(*LAZY_SECTION)
    symbols = {bind.address: bind.symbol for bind in image.binds() if bind.kind == "lazy"}
    size = STUB_SIZES[image.arch]
    for section in image.sections:
        if section.type != STUBS:
            continue
        if section.reserved2 != size or section.size % size:
            yield Problem(f"{section.name} is not made of stubs of {size} bytes", MEND_BUILD)
            continue
        for index, address in enumerate(_slots(image, section, size)):
            pointer = stub_pointer(image, section, address)
            if pointer is None:
                yield Problem(f"the stub at {address:#x} is no stub", MEND_BUILD)
            elif lazy is None or not lazy.holds(pointer) or pointer not in symbols:
                what = f"the stub at {address:#x} jumps through {pointer:#x}"
                yield Problem(f"{what}, which is no lazy pointer with a binding", MEND_BUILD)
            else:
                yield from _check_indirect(image, section, index, symbols[pointer])


def _slots(image: Slice, section: Section, size: int) -> range:
    """Returns the addresses of a section's slots of `size` bytes; the file must hold them."""
    image.content(section)
    return range(section.address, section.address + section.size, size)


def _check_indirect(
    image: Slice, section: Section, index: int, symbol: str | None
) -> Iterator[Problem]:
    """Checks what the indirect symbol table says of a section's slot; None is a local one."""
    table, names = image.indirect_symbols(), image.symbols()
    number = section.reserved1 + index
    entry = table[number] if number < len(table) else None
    local = entry is not None and bool(entry & LOCAL_SYMBOL)
    claimed = names[entry].name if entry is not None and entry < len(names) else None
    if claimed != symbol or (symbol is None and not local):
        what = f"slot {index} of {section.name} is for {symbol or 'a local symbol'}"
        yield Problem(f"{what}, the indirect symbol table says {claimed}", MEND_BUILD)
