"""Changed bytes of a sound library, each of which the checker must name."""
import struct
import sys
from collections.abc import Callable
from pathlib import Path

import code_signature
from checker import check_dylib, macho, pointer_checks, registered_checks, unwind_checks
from checker.bounded import Block, Cursor
from checker.contract import load
from checker.exception_tables import read_tables
from checker.macho import Slice
from checker.report import collected
from scratch import BUILD, ROOT, Scratch


def patched(image: Slice, at: int, data: bytes) -> bytes:
    """The bytes of a slice with `data` at offset `at`, signed anew, so that only the change shows."""
    assert image.data[at : at + len(data)] != data, "this change is none"
    code = bytearray(image.data)
    code[at : at + len(data)] = data
    signature_at, _ = struct.unpack_from("<2I", image.commands_of(0x1D)[0].data, 8)
    return bytes(code[:signature_at]) + code_signature.sign(bytes(code[:signature_at]), "libZQDial")


def place_of(image: Slice, text: bytes, beyond: str = "") -> int:
    """Where in the slice a text stands, behind the beginning of a segment."""
    segment = image.segment(beyond) if beyond else None
    return image.data.index(text, segment.file_offset if segment else 0)


def header(image: Slice, segment: str, name: str) -> int:
    """Where in the slice a section is described."""
    return image.data.index(name.encode().ljust(16, b"\0") + segment.encode().ljust(16, b"\0"))


def command(image: Slice, kind: int, text: bytes = b"") -> int:
    """Where in the slice the first command of a kind begins that has a text in it."""
    return next(c.offset for c in image.commands_of(kind) if text in c.data)


def field(image: Slice, segment: str, number: int) -> int:
    """Where in the slice a field of a segment stands: address, size, offset and size in the file."""
    return place_of(image, segment.encode() + b"\0") + 16 + image.pointer_size * number


def section(image: Slice, name: str) -> range:
    """Where in the slice a section of __TEXT stands; nowhere if the slice has none."""
    found = image.section("__TEXT", name)
    return range(found.offset, found.offset + found.size) if found else range(0)


def rebases(image: Slice) -> range:
    """Where in the slice the operations that slide pointers stand."""
    offset, size = struct.unpack_from("<2I", image.commands_of(0x80000022)[0].data, 8)
    return range(offset, offset + size)


def first_site(image: Slice, number: int) -> int:
    """Where in the slice the first site of the exception tables has a number: its stretch's start,
    length, pad and action; on armv7 only a pad and an action, here always the pad."""
    cursor = Cursor(Block(image.data, "the slice"), section(image, "__gcc_except_tab").start + 1)
    if cursor.byte() != 0xFF:
        cursor.unsigned()  # where its types end
    cursor.byte()
    for _ in range(1 + (number if image.wide else 0)):  # the size of all sites comes first
        cursor.unsigned()
    return cursor.position


FAR = struct.pack("<I", 0x70000000)


# What is changed in each slice: the fault that must be named, the offset, and the bytes put there.
FAULTS: list[tuple[str, Callable[[Slice], int], bytes]] = [
    (
        "section __const holds initialisers: nothing but ZQDialMain may run at load",
        lambda s: header(s, "__DATA", "__const") + (64 if s.wide else 56),
        b"\x09",
    ),
    ("a section __objc_list", lambda s: header(s, "__DATA", "__const"), b"__objc_list\0"),
    (
        "it has the forbidden LC_LOAD_WEAK_DYLIB: every image is a hard dependency",
        lambda s: command(s, 0xC, b"libZQCommon"),
        struct.pack("<I", 0x80000018),
    ),
    ("it does not load /usr/lib/libsub", lambda s: place_of(s, b"libsubstrate"), b"libsubstratx"),
    ("it asks for iOS 8.0", lambda s: command(s, 0x25) + 8, struct.pack("<I", 0x80000)),
    ("it was built from other sources", lambda s: command(s, 0x1B) + 8, bytes(16)),
    ("while _ZQDialMain is at", lambda s: command(s, 0x1A if s.wide else 0x11) + 8, FAR),
    (
        "leads out of the code",  # calls in place of the entry's beginning, one for each processor
        lambda s: s.exports()["_ZQDialMain"],
        struct.pack("<2I", 0x957FFFFF, 0xEB7FFFFF),
    ),
    (
        "__TEXT is writable and executable",
        lambda s: place_of(s, b"__TEXT\0") + (52 if s.wide else 36),
        b"\x07",
    ),
    (
        "it does not export _ZQDialMain",
        lambda s: place_of(s, b"ZQDialMain\0", "__LINKEDIT"),
        b"ZQDialMaim",
    ),
    (
        "_MSHookMessageEx is undefined and nothing binds it",
        lambda s: place_of(s, b"_MSHookMessageEx\0", "__LINKEDIT"),
        b"_MSHookMessageEy",
    ),
    ("__LINKEDIT does not follow __DATA in memory", lambda s: field(s, "__LINKEDIT", 0), FAR),
    ("__LINKEDIT takes 0x70000000 bytes", lambda s: field(s, "__LINKEDIT", 1), FAR),
    ("__TEXT does not begin with the header", lambda s: field(s, "__TEXT", 0), FAR),
    ("__DATA takes", lambda s: field(s, "__DATA", 1), FAR),
    ("__cstring does not follow", lambda s: header(s, "__TEXT", "__cstring") + 32, FAR),
    (
        "the indirect symbol table does not follow what is before it",
        lambda s: command(s, 0xB) + 56,
        bytes(4),
    ),
    (
        "whatever is raised ends the process",
        lambda s: header(s, "__TEXT", "__unwind_info" if s.wide else "__gcc_except_tab"),
        b"__x",
    ),
    ("does not slide: ", lambda s: rebases(s).start, b"\0"),
    (
        "no personality that is bound",
        lambda s: place_of(s, b"___gxx_personality_", "__LINKEDIT"),
        b"___gxx_personalitz",
    ),
    (", not catches", lambda s: place_of(s, b"___cxa_begin_catch\0", "__LINKEDIT"), b"___cxb"),
    # Between two instructions, or not numbered in order.
    ("the exception table ", lambda s: first_site(s, 1), b"\1"),
    ("the exception table ", lambda s: first_site(s, 2), b"\1"),
]

# Tables of which single bits are changed: where they stand, and how many of their bits are tried.
FLIPPED: list[tuple[Callable[[Slice], range], int]] = [
    (rebases, 150),
    (lambda s: section(s, "__unwind_info"), 60),
    (lambda s: section(s, "__gcc_except_tab"), 40),
]
CONTRACT = load(ROOT)
CHECKS = (
    pointer_checks.check_places,
    pointer_checks.check_slid,
    unwind_checks.check_frames,
    unwind_checks.check_tables,
    registered_checks.check_tables,
)


def raises_elsewhere(image: Slice, changed: Slice) -> bool:
    """Whether exception tables differ in more than cannot be known: which calls of a function raise,
    and which of its pads is for them, is said nowhere else."""
    tables, found = list(read_tables(image)), list(read_tables(changed))
    return len(tables) != len(found) or any(
        [site.action for site in table.sites] != [site.action for site in other.sites]
        or not {site.pad for site in other.sites} <= {0, *(site.pad for site in table.sites)}
        for table, other in zip(tables, found)
    )


def passes(image: Slice, place: range, bit: int) -> bool:
    """Whether no check notices a flipped bit, though it changes what the slice does."""
    data = bytearray(image.data)
    data[place[bit // 8]] ^= 1 << bit % 8
    changed = Slice(bytes(data))
    if any(problem for check in CHECKS for problem in collected(check(changed, CONTRACT))):
        return False
    return set(changed.rebases()) != set(image.rebases()) or raises_elsewhere(image, changed)


class LibraryFaults(Scratch):
    def setUp(self) -> None:
        super().setUp()
        self.library = (BUILD / "libZQDial.dylib").read_bytes()
        self.slices = [
            (entry, Slice(self.library[entry.offset : entry.offset + entry.size]))
            for entry in macho.fat_entries(self.library)
        ]
        self.broken = self.folder / "libZQDial.dylib"

    def refused_as(self, broken: bytes | None, *pieces: str) -> None:
        """The checker names these pieces of what is wrong with a library, or that there is none."""
        self.broken.unlink(missing_ok=True)
        if broken is not None:
            self.broken.write_bytes(broken)
        self.refused(
            list(pieces),
            *(sys.executable, "-m", "checker.check_dylib", self.broken, "--root", ROOT, "--slices"),
            *(image.arch for _, image in self.slices),
        )

    def test_changed_and_signed_anew(self) -> None:
        for fault, place, data in FAULTS:
            for _, image in self.slices:
                with self.subTest(fault, slice=image.arch):
                    changed = Slice(patched(image, place(image), data))
                    problems = check_dylib.check_slice(changed, CONTRACT)
                    self.assertIn(fault, "; ".join(": ".join(problem) for problem in problems))

    def test_flipped_bits(self) -> None:
        for _, image in self.slices:
            for place, tried in FLIPPED:
                bits = 8 * len(place(image))
                with self.subTest(slice=image.arch, bits=bits):
                    spread = range(0, bits, bits // tried | 1)
                    passed = [bit for bit in spread if passes(image, place(image), bit)]
                    self.assertEqual(passed, [])

    def test_changed_after_signing(self) -> None:
        for entry, image in self.slices:
            text = image.section("__TEXT", "__text")
            assert text
            at = text.offset + text.size // 2
            page = f"page {at // 4096}, at offset {at // 4096 * 4096} of the slice"
            flipped = bytearray(self.library)
            flipped[entry.offset + at] ^= 1
            self.refused_as(flipped, f"({image.arch}): {page}, does not match its hash")

    def test_cut(self) -> None:
        for size in (0, 4, 100, len(self.library) // 2, len(self.library) - 1):
            with self.subTest(size=size):
                self.refused_as(self.library[:size], "check_dylib: libZQDial.dylib")
        self.refused_as(None, "cannot be read", "run make device")
