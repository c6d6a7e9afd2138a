"""Changed bytes of a sound library, each of which the checker must name."""
import struct
import sys
from collections.abc import Callable
from pathlib import Path

import code_signature
from checker import macho
from checker.macho import FatEntry, Slice
from scratch import BUILD, ROOT, Scratch


def entry_slice(entry: FatEntry, library: bytes) -> Slice:
    """One slice of a fat library."""
    return Slice(library[entry.offset : entry.offset + entry.size])


def patched(image: Slice, at: int, data: bytes) -> bytes:
    """The bytes of a slice with `data` at offset `at`, signed anew, so that only the change shows."""
    code = bytearray(image.data)
    code[at : at + len(data)] = data
    signature_at, _ = struct.unpack_from("<2I", image.commands_of(0x1D)[0].data, 8)
    return bytes(code[:signature_at]) + code_signature.sign(bytes(code[:signature_at]), "libZQDial")


def place_of(image: Slice, text: bytes, beyond: str = "") -> int:
    """Where in the slice a text stands, behind the beginning of a segment."""
    segment = image.segment(beyond) if beyond else None
    return image.data.index(text, segment.file_offset if segment else 0)


def section_flags(image: Slice, segment: str, name: str) -> int:
    """Where in the slice a section's flags stand."""
    header = name.encode().ljust(16, b"\0") + segment.encode().ljust(16, b"\0")
    return image.data.index(header) + (64 if image.wide else 56)


def command(image: Slice, kind: int, text: bytes = b"") -> int:
    """Where in the slice the first command of a kind begins that has a text in it."""
    return next(c.offset for c in image.commands_of(kind) if text in c.data)


# What is changed in each slice: the offset, the bytes put there, and the fault that must be named.
Fault = tuple[str, Callable[[Slice], int], bytes]
FAULTS: list[Fault] = [
    (
        "section __const holds initialisers: nothing but ZQDialMain may run at load",
        lambda image: section_flags(image, "__DATA", "__const"),
        b"\x09",
    ),
    (
        "it has a section __objc_list: build classes at run time",
        lambda image: image.data.index(b"__const\0".ljust(16, b"\0") + b"__DATA"),
        b"__objc_list\0",
    ),
    (
        "it has the forbidden LC_LOAD_WEAK_DYLIB: every image is a hard dependency",
        lambda image: command(image, 0xC, b"libZQCommon"),
        struct.pack("<I", 0x80000018),
    ),
    (
        "it does not load /usr/lib/libsubstrate.dylib",
        lambda image: place_of(image, b"/usr/lib/libsubstrate"),
        b"/usr/lib/libsubstratx",
    ),
    (
        "it asks for iOS 8.0: compile and link for iOS 7.0",
        lambda image: command(image, 0x25) + 8,
        struct.pack("<I", 0x80000),
    ),
    (
        "it was built from other sources than those of src/",
        lambda image: command(image, 0x1B) + 8,
        bytes(4),
    ),
    (
        "while _ZQDialMain is at",
        lambda image: command(image, 0x1A if image.wide else 0x11) + 8,
        b"\0",
    ),
    (
        "leads out of the code",  # calls in place of the entry's beginning, one for each processor
        lambda image: image.exports()["_ZQDialMain"],
        struct.pack("<2I", 0x957FFFFF, 0xEB7FFFFF),
    ),
    (
        "__TEXT is writable and executable",
        lambda image: place_of(image, b"__TEXT\0") + (52 if image.wide else 36),
        b"\x07",
    ),
    (
        "it does not export _ZQDialMain",
        lambda image: place_of(image, b"ZQDialMain\0", "__LINKEDIT"),
        b"ZQDialMaim",
    ),
    (
        "_MSHookMessageEx is undefined and nothing binds it",
        lambda image: place_of(image, b"_MSHookMessageEx\0", "__LINKEDIT"),
        b"_MSHookMessageEy",
    ),
]


class LibraryFaults(Scratch):
    def setUp(self) -> None:
        super().setUp()
        self.library = (BUILD / "libZQDial.dylib").read_bytes()
        self.entries = macho.fat_entries(self.library)
        self.broken = self.folder / "libZQDial.dylib"

    def check(self) -> list[str | Path]:
        return [
            *(sys.executable, "-m", "checker.check_dylib", self.broken, "--root", ROOT, "--slices"),
            *(entry_slice(entry, self.library).arch for entry in self.entries),
        ]

    def test_changed_and_signed_anew(self) -> None:
        for fault, place, data in FAULTS:
            for entry in self.entries:
                image = entry_slice(entry, self.library)
                with self.subTest(fault, slice=image.arch):
                    changed = patched(image, place(image), data)
                    end = entry.offset + entry.size
                    self.broken.write_bytes(
                        self.library[: entry.offset] + changed + self.library[end:]
                    )
                    self.refused(
                        [f"check_dylib: libZQDial.dylib ({image.arch}): ", fault], *self.check()
                    )

    def test_changed_after_signing(self) -> None:
        for entry in self.entries:
            image = entry_slice(entry, self.library)
            text = image.section("__TEXT", "__text")
            assert text
            at = text.offset + text.size // 2
            page = f"page {at // 4096}, at offset {at // 4096 * 4096} of the slice"
            with self.subTest(slice=image.arch):
                flipped = bytearray(self.library)
                flipped[entry.offset + at] ^= 1
                self.broken.write_bytes(flipped)
                self.refused([f"({image.arch}): {page}, does not match its hash"], *self.check())

    def test_cut_and_missing(self) -> None:
        for size in (0, 4, 100, len(self.library) // 2, len(self.library) - 1):
            with self.subTest(size=size):
                self.broken.write_bytes(self.library[:size])
                self.refused(["check_dylib: libZQDial.dylib"], *self.check())
        self.broken.unlink()
        self.refused(["cannot be read", "run make device"], *self.check())
