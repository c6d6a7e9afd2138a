"""Libraries that the loader must refuse, and changes that the tests around it must notice."""
import struct
from collections.abc import Callable
from pathlib import Path

from checker import macho
from checker.macho import Slice
from scratch import BUILD, ROOT, Scratch, run

# The emulator and the package architecture of each slice.
EMULATORS = {"arm64": ("qemu-aarch64", "arm64"), "armv7": ("qemu-arm", "armel")}
PHONE = "com.apple.MobilePhone"
SYSROOT = ROOT / "device/loader/sysroot.sh"
PACKAGES = SYSROOT.with_suffix(".txt")

# A place in a slice and the bytes put there.
Change = Callable[[Slice], tuple[int, bytes]]
Changes = Callable[[Slice], list[tuple[int, bytes]]]


def text(old: bytes, new: bytes) -> Change:
    """Every change of a text is to one of the same length."""
    return lambda s: (s.data.index(old), new)


def section(name: bytes, new: bytes, at: int = 0) -> Change:
    """The header of a section of __DATA, changed from `at` on."""
    head = name.ljust(16, b"\0") + b"__DATA".ljust(16, b"\0")
    return lambda s: (s.data.index(head) + at, new)


def section_type(number: int) -> Change:
    """The type of the section that begins with the variables."""
    return lambda s: section(b"__data", bytes([number]), 64 if s.wide else 56)(s)


def command(kind: int, new: int, wide: int = 0) -> Change:
    """The kind of a load command; the second one is that of the wider slice."""
    return lambda s: (
        s.commands_of(wide if s.wide and wide else kind)[0].offset,
        struct.pack("<I", new),
    )


def info(s: Slice, index: int) -> int:
    """Where a list of fixups begins: rebases, binds, weak and lazy binds, exports."""
    (offset,) = struct.unpack_from("<I", s.commands_of(0x80000022)[0].data, 8 + 8 * index)
    return int(offset)


def weak_import(s: Slice) -> tuple[int, bytes]:
    """The opcode before a symbol's name in the lazy list."""
    return s.data.index(b"_MSHookMessageEx", info(s, 3)) - 1, b"\x41"


def lazy_pointer(s: Slice) -> tuple[int, bytes]:
    """The first lazy pointer, away from the stub helper."""
    found = s.section("__DATA", "__la_symbol_ptr")
    assert found
    return found.offset, bytes(4)


def careless_start(s: Slice) -> tuple[int, bytes]:
    """An init routine that spoils a register and returns."""
    code = (0xD2800013, 0xD65F03C0) if s.wide else (0xE3A04000, 0xE12FFF1E)
    return s.exports()["_ZQDialMain"], struct.pack("<2I", *code)


def wider_results(s: Slice) -> list[tuple[int, bytes]]:
    """Comparisons of a called function's result, with the register's unused half taken in."""
    code = s.section("__TEXT", "__text")
    assert code
    words = struct.unpack_from(f"<{code.size // 4}I", s.data, code.offset)
    return [
        (code.offset + 4 * at, struct.pack("<I", words[at] | 1 << 31))
        for at in range(1, len(words))
        if words[at - 1] >> 26 == 0x25 and words[at] & 0xFFC003FF == 0x7100001F
    ]


REFUSED: list[tuple[str, Change]] = [
    ("its rebase list has the fixup kind 0x91", lambda s: (info(s, 0), b"\x91")),
    ("its bind list has the fixup kind 0xd1", lambda s: (info(s, 1), b"\xd1")),
    ("it imports _MSHookMessageEy from", text(b"_MSHookMessageEx", b"_MSHookMessageEy")),
    ("_MSHookMessageEx weakly: import it plainly", weak_import),
    ("it has weak symbols", lambda s: (s.commands_of(0x80000022)[0].offset + 28, b"\1")),
    ("it has a section __objc_classlist", section(b"__const", b"__objc_classlist")),
    ("it has a section __eh_frame", section(b"__const", b"__eh_frame\0")),
    ("it has a section __data: ", section_type(0x09)),
    ("it has thread-local variables in __data", section_type(0x11)),
    ("it loads a library weakly", command(0xC, 0x80000018)),
    ("it has chained fixups", command(0x26, 0x80000034)),
    ("a load command that the loader does not know", command(0x1B, 0x80000099)),
    ("it names no init routine: build it with", command(0x11, 0x2, 0x1A)),
    ("does not lead to the stub helper once it is slid", lazy_pointer),
    ("the init routine does not keep the registers", careless_start),
]


def nothing(_: Slice) -> list[tuple[int, bytes]]:
    """No change."""
    return []


def other_link(s: Slice) -> list[tuple[int, bytes]]:
    """A letter of a constant."""
    return [text("://mark".encode("utf-16-le"), "://mork".encode("utf-16-le"))(s)]


# What is changed in a slice, or what the loader leaves out, and the tests that must notice.
NOTICED: list[tuple[str, Changes, str, str]] = [
    ("arm64", wider_results, "", "menu"),
    *((arch, other_link, "", "links") for arch in EMULATORS),
    *((arch, nothing, "unwinding", "rows, a lookup that fails") for arch in EMULATORS),
    ("arm64", nothing, "_snprintf", "in-call view"),
    ("armv7", nothing, "_class_addMethod", "shared objects"),
]


# What phonecheck finds the tests' own Foundation and companion to lack, on iOS 7.1.
CONTRADICTED = """\
class ZQBlackListService: there is none
class ZQPartnerItem: there is none
class ZQPartnerManager: there is none
class ZQPingBackService: there is none
-[ZQContactService isInAddressBook:]: there is none
+[ZQUIUtil getSubView:ofClass:]: there is none
"""
CONTRADICTED_ARM64 = (
    "-[NSString stringByAddingPercentEscapesUsingEncoding:]: is '@20@0:8I16', "
    "expected id(NSStringEncoding)\n"
)


class LoaderFaults(Scratch):
    def setUp(self) -> None:
        super().setUp()
        self.library = (BUILD / "libZQDial.dylib").read_bytes()
        self.slices = {
            image.arch: (entry, image)
            for entry in macho.fat_entries(self.library)
            for image in [Slice(self.library[entry.offset : entry.offset + entry.size])]
        }
        self.broken = self.folder / "libZQDial.dylib"

    def write(self, arch: str, *changes: tuple[int, bytes]) -> None:
        """The library with changes in a slice, which the loader does not find by its signature."""
        data = bytearray(self.library)
        for at, new in changes:
            start = self.slices[arch][0].offset + at
            self.assertNotEqual(data[start : start + len(new)], new, "this change is none")
            data[start : start + len(new)] = new
        self.broken.write_bytes(data)

    def emulated(self, arch: str, *arguments: str | Path, left_out: str = "") -> tuple[int, str]:
        """Runs the tests' host."""
        emulator, packages = EMULATORS[arch]
        return run(
            *("env", f"LOADER_LEAVES_OUT={left_out}", "OUTSIDE_SYSTEM_VERSION=7.0"),
            *(emulator, "-L", BUILD / f"sysroot-{packages}", BUILD / arch / "outside/outside-host"),
            *arguments,
        )

    def host(self, arch: str, group: str, left_out: str = "") -> tuple[int, str]:
        """Runs a group of tests around the changed library."""
        return self.emulated(arch, self.broken, PHONE, "on", group, left_out=left_out)

    def refused_by_host(self, arch: str, *pieces: str) -> None:
        code, printed = self.host(arch, "in-call view")
        lines = [line for line in printed.splitlines() if "loader: " in line]
        self.assertEqual((code, len(lines)), (1, 1), printed)
        for piece in pieces:
            self.assertIn(piece, lines[0])

    def test_refused(self) -> None:
        for fault, change in REFUSED:
            for arch, (_, image) in self.slices.items():
                with self.subTest(fault, slice=arch):
                    self.write(arch, change(image))
                    self.refused_by_host(arch, fault)

    def test_files_that_are_no_library_of_ours(self) -> None:
        for arch, (entry, image) in self.slices.items():
            file = f"loader: {self.broken} ({arch}): "
            cpu = self.library.index(self.library[entry.offset + 4 :][:4][::-1], 4)
            without = self.library[:cpu] + bytes(4) + self.library[cpu + 4 :]
            for fault, data in (
                ("it is no Mach-O file", b"#!/bin/sh\n"),
                ("it has no slice for", without),
                ("it ends early: build it with 'make device'", image.data[:5000]),
                ("No such file or directory: build it with 'make device'", None),
            ):
                with self.subTest(fault, slice=arch):
                    self.broken.unlink(missing_ok=True)
                    if data is not None:
                        self.broken.write_bytes(data)
                    self.refused_by_host(arch, file, fault)

    def test_changes_that_the_tests_notice(self) -> None:
        for arch, changes, left_out, group in NOTICED:
            if arch in self.slices:
                with self.subTest(group, slice=arch, left_out=left_out):
                    made = changes(self.slices[arch][1])
                    self.assertTrue(made or left_out)
                    self.write(arch)
                    self.assertEqual(self.host(arch, group)[0], 0)
                    self.write(arch, *made)
                    code, printed = self.host(arch, group, left_out)
                    self.assertEqual(code, 1, printed)
                    self.assertRegex(printed, "expected|ended by signal|Uncaught exception")
                    self.assertNotIn("loader: ", printed)

    def test_command_for_phones(self) -> None:
        for arch in self.slices:
            with self.subTest(slice=arch):
                command = BUILD / "phonecheck", PHONE, "command"
                code, printed = self.emulated(arch, *command, "7.1")
                lines = printed.splitlines(keepends=True)
                found = "".join(line for line in lines if "phonecheck: " not in line)
                self.assertEqual(
                    (code, found), (1, (arch == "arm64") * CONTRADICTED_ARM64 + CONTRADICTED)
                )
                self.assertRegex(
                    lines[-1], r"^phonecheck: iOS 7.1: \d{3} entries as expected, \d not$"
                )
                self.assertIn("MobilePhone was not loaded: ", printed)
                code, printed = self.emulated(arch, *command, "6.1")
                self.assertEqual(code, 2)
                self.assertIn("no classes are known for iOS '6.1': say 7.0, 7.1 or 8.0", printed)

    def test_packages_that_cannot_be_had(self) -> None:
        folder = self.folder / "sysroot"
        nowhere = "http_proxy=http://127.0.0.1:1", "https_proxy=http://127.0.0.1:1"
        self.refused(
            ["sysroot: cannot fetch the arm64 packages: ", "reaches its package sources"],
            *("env", *nowhere, SYSROOT, "arm64", folder, PACKAGES),
        )
        self.assertEqual(list(self.folder.iterdir()), [])
        (folder / "usr").mkdir(parents=True)
        self.refused(["is half unpacked: remove it and"], SYSROOT, "arm64", folder, PACKAGES)
