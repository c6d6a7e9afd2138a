"""Every scene of the gallery as the library that ships draws it, beside the host's."""
import filecmp
import shutil
import struct
from pathlib import Path

from scratch import BUILD, ROOT, Scratch

HOST: list[str | Path] = [ROOT / "build/bin/phone-simulator"]
LIBRARY = BUILD / "libZQDial.dylib"


def emulated(library: Path) -> list[str | Path]:
    """The simulator around a library."""
    folders = ":".join(
        f"{BUILD}/sysroot-arm64-pictures/{at}/aarch64-linux-gnu" for at in ("usr/lib", "lib")
    )
    return [
        *("qemu-aarch64", "-L", BUILD / "sysroot-arm64"),
        *("-E", f"LD_LIBRARY_PATH={folders}", "-E", f"LOADER_LIBRARY={library}"),
        BUILD / "arm64/simulator/bin/phone-simulator",
    ]


class Pictures(Scratch):
    def setUp(self) -> None:
        super().setUp()
        self.data: list[str | Path] = ["--data", self.folder / "data"]

    def test_gallery(self) -> None:
        """The pictures stay in the build's folder, for people to look at."""
        own, arm64 = BUILD / "pictures/host", BUILD / "pictures/arm64"
        for command, folder in (HOST, own), (emulated(LIBRARY), arm64):
            shutil.rmtree(folder, ignore_errors=True)
            folder.parent.mkdir(exist_ok=True)
            self.succeed(*command, "gallery", "--out", folder, *self.data)
        names = [str(path.relative_to(own)) for path in own.rglob("*.*")]
        self.assertGreater(len(names), 1000)
        self.assertEqual(filecmp.cmpfiles(own, arm64, names, shallow=False)[1:], ([], []))

    def test_changed_number(self) -> None:
        """The width at which the dialer's line breaks."""
        changed = self.folder / LIBRARY.name
        number = struct.pack("<d", 165)
        self.assertEqual(LIBRARY.read_bytes().count(number), 1)
        changed.write_bytes(LIBRARY.read_bytes().replace(number, struct.pack("<d", 150)))
        pictures: list[bytes] = []
        for command in HOST, emulated(LIBRARY), emulated(changed):
            picture = self.folder / f"{len(pictures)}.png"
            self.succeed(*command, "dialer", "--type", "075501238001", "--png", picture, *self.data)
            pictures.append(picture.read_bytes())
        self.assertEqual(pictures[0], pictures[1])
        self.assertNotEqual(pictures[1], pictures[2])

    def test_library_that_is_none(self) -> None:
        nothing = self.folder / "nothing"
        self.refused(
            [f"loader: {nothing}: No such file or directory: build it with 'make device'"],
            *emulated(nothing),
            "dialer",
            "--tree",
            *self.data,
        )
