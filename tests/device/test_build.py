"""Sources, lists and tools of which the device's build must not make a library."""
import shutil
import sys
from pathlib import Path

from scratch import BUILD, ROOT, Scratch

TOOLS = ROOT / "device/tools"


class BuildFaults(Scratch):
    SOURCE = "src/dialer/Description.cpp"

    def configured(self, *options: str) -> list[str | Path]:
        return ["cmake", "-S", self.folder / "device", "-B", self.build(), "-G", "Ninja", *options]

    def build(self) -> Path:
        return self.folder / "build"

    def copy_sources(self) -> None:
        for part in ("src", "device", "cmake", "tools", "tests"):
            shutil.copytree(ROOT / part, self.folder / part)

    def append(self, file: str, text: str) -> None:
        with open(self.folder / file, "a", encoding="utf-8") as source:
            source.write(text)

    def test_tools_and_settings(self) -> None:
        nothing_found = [
            "-DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF",
            "-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF",
            "-DCMAKE_MAKE_PROGRAM=" + str(shutil.which("ninja")),
        ]
        faults = [
            (["SLICES is 'x86'", "use armv7, arm64 or both"], ["-DSLICES=x86"]),
            (["SLICES is ''"], ["-DSLICES="]),
            (
                ["ld64.lld-19 has no older Mach-O back end", "lld-13", "make device SLICES=arm64"],
                ["-DLD_ARMV7=" + str(shutil.which("ld64.lld-19"))],
            ),
            (["no clang++-19", "apt install clang-19"], nothing_found),
            (["install the package libc++-19-dev"], ["-DLIBCXX_HEADERS=/nowhere"]),
            (["ZQDIAL_SEARCH_HOST is 'a b'"], ["-DZQDIAL_SEARCH_HOST=a b"]),
        ]
        self.copy_sources()
        for expected, options in faults:
            with self.subTest(expected[0]):
                shutil.rmtree(self.build(), ignore_errors=True)
                self.refused(expected, *self.configured(*options))

    def test_code_that_would_run_at_load(self) -> None:
        self.copy_sources()
        line = len((ROOT / self.SOURCE).read_text(encoding="utf-8").splitlines()) + 1
        self.append(self.SOURCE, "int atLoad(); int g_atLoad = atLoad();\n")
        self.succeed(*self.configured())
        for slice_name in ("armv7", "arm64"):
            if (BUILD / slice_name).exists():
                self.refused(
                    [f"{self.SOURCE}:{line}:", "declaration requires a global constructor"],
                    *("ninja", "-C", self.build(), self.build() / slice_name / f"{self.SOURCE}.o"),
                )

    def test_foreign_symbols(self) -> None:
        self.copy_sources()
        self.append(self.SOURCE, 'extern "C" int newer(); int (*use)() = newer;\n')
        self.append("device/imports.txt", "    _nobodyUsesMe\n")
        self.succeed(*self.configured())
        shutil.copytree(BUILD / "arm64", self.build() / "arm64", dirs_exist_ok=True)
        self.succeed("ninja", "-C", self.build(), self.build() / "arm64" / f"{self.SOURCE}.o")
        self.refused(
            [
                f"arm64: {self.SOURCE} uses _newer, which device/imports.txt does not list",
                "device/imports.txt lists _nobodyUsesMe, which no source uses: remove it",
            ],
            *(sys.executable, TOOLS / "check_imports.py"),
            *(self.folder / "device/imports.txt", "arm64"),
            *sorted((self.build() / "arm64" / "src").rglob("*.o")),
            *("--nm", "llvm-nm-19", "--root", self.build() / "arm64"),
        )

    def test_lists_that_are_not_clear(self) -> None:
        image = "/usr/lib/libSystem.B.dylib\n"
        faults = [
            ("    _strlen\n", "list.txt:1: _strlen stands under no image"),
            (image + "    _strlen mips\n", "list.txt:2: no slice is called 'mips'"),
            (image + "    _strlen\n    _strlen\n", "list.txt:3: _strlen is listed twice"),
            ("# nothing\n", "lists no symbol at all"),
            (None, "cannot read"),
        ]
        broken = self.folder / "list.txt"
        command: list[str | Path] = [
            sys.executable,
            TOOLS / "make_stubs.py",
            broken,
            "arm64",
            self.folder,
        ]
        for text, expected in faults:
            with self.subTest(expected):
                broken.unlink(missing_ok=True)
                if text is not None:
                    broken.write_text(text, encoding="utf-8")
                self.refused([expected], *command)

    def test_slices_that_cannot_be_finished(self) -> None:
        slice_name = next(name for name in ("armv7", "arm64") if (BUILD / name).exists())
        linked = (BUILD / slice_name / "linked.dylib").read_bytes()
        finished = (BUILD / slice_name / "libZQDial.dylib").read_bytes()
        faults = [
            (linked[:5000], "not a whole image: link it again"),
            (b"not an image at all, but long enough for one", "not a thin little-endian Mach-O"),
            (linked.replace(b"_ZQDialMain", b"_ZQDialMaim"), "does not define _ZQDialMain"),
            (finished, "does not end with symbols, indirect symbols and strings"),
        ]
        broken = self.folder / "linked.dylib"
        for data, fault in faults:
            with self.subTest(fault):
                self.assertNotEqual(data, linked)
                broken.write_bytes(data)
                self.refused(
                    [f"finish_dylib: {broken}: {fault}"],
                    *(sys.executable, TOOLS / "finish_dylib.py", broken),
                    *(self.folder / "finished.dylib", "--architecture", slice_name),
                    *("--init", "_ZQDialMain", "--identifier", "libZQDial", "--root", ROOT),
                )
                self.assertFalse((self.folder / "finished.dylib").exists())
