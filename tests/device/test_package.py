"""Packages that the checker must not let pass."""
import os
import sys
from pathlib import Path

from scratch import BUILD, ROOT, Scratch, run


class PackageFaults(Scratch):
    def setUp(self) -> None:
        super().setUp()
        packages = list(BUILD.glob("*.deb"))
        if not packages:
            self.skipTest("one slice alone is not packaged")
        self.contents = self.folder / "contents"
        self.package = self.folder / "broken.deb"
        run("dpkg-deb", "--raw-extract", packages[0], self.contents)
        self.version = packages[0].name.split("_")[1]

    def check(self) -> list[str | Path]:
        return [
            *(sys.executable, "-m", "checker.check_package", self.package, "--root", ROOT),
            *("--library", BUILD / "libZQDial.dylib", "--version", self.version),
        ]

    def repack(self, *options: str) -> None:
        code, printed = run("dpkg-deb", *options, "--build", self.contents, self.package)
        self.assertEqual(code, 0, printed)

    def test_options_of_packaging(self) -> None:
        self.repack("--root-owner-group", "-Zxz")
        self.refused(["its members are debian-binary, control.tar.xz"], *self.check())
        os.chmod(self.contents / "Library", 0o700)
        self.repack("--root-owner-group", "-Zgzip", "--uniform-compression")
        self.refused(["./Library is a directory with mode 0700"], *self.check())

    def test_contents(self) -> None:
        folder = self.contents / "Library/MobileSubstrate/DynamicLibraries"
        faults: list[tuple[Path, bytes, str]] = [
            (folder / "libZQDial.dylib", b"other", "its library is not the one that was built"),
            (folder / "libZQDial.plist", b"{ Filter = {}; }", "its filter differs from device/"),
            (folder / "more", b"", "more, which does not belong in it"),
            (self.contents / "DEBIAN/postinst", b"#!/bin/sh\n", "./postinst, which does not"),
        ]
        for file, data, fault in faults:
            with self.subTest(fault):
                before = file.read_bytes() if file.exists() else None
                file.write_bytes(data)
                file.chmod(0o755)
                self.repack("--root-owner-group", "-Zgzip", "--uniform-compression")
                self.refused([fault], *self.check())
                file.unlink() if before is None else file.write_bytes(before)

    def test_fields(self) -> None:
        control = self.contents / "DEBIAN/control"
        sound = control.read_text(encoding="utf-8")
        faults = [
            (f"Version: {self.version}", "Version: 9.9", "the control field Version is '9.9'"),
            ("iphoneos-arm", "all", "the control field Architecture is 'all'"),
            ("firmware (>= 7.0), ", "", "it does not depend on firmware (>= 7.0)"),
        ]
        for old, new, fault in faults:
            with self.subTest(fault):
                control.write_text(sound.replace(old, new), encoding="utf-8")
                self.repack("--root-owner-group", "-Zgzip", "--uniform-compression")
                self.refused([fault], *self.check())
