"""Packages that the checker must not let pass."""
import os
import sys
from pathlib import Path

from scratch import BUILD, ROOT, Scratch


class PackageFaults(Scratch):
    def setUp(self) -> None:
        super().setUp()
        packages = list(BUILD.glob("*.deb"))
        if not packages:
            self.skipTest("one slice alone is not packaged")
        self.contents = self.folder / "contents"
        self.package = self.folder / "broken.deb"
        self.succeed("dpkg-deb", "--raw-extract", packages[0], self.contents)
        self.version = packages[0].name.split("_")[1]

    def repacked(self, fault: str, *options: str) -> None:
        """Packed again, the contents are a package with a fault."""
        options = options or ("-Zgzip", "--uniform-compression")
        pack = ("dpkg-deb", "--root-owner-group", *options, "--build")
        self.succeed(*pack, self.contents, self.package)
        self.refused(
            [fault],
            *(sys.executable, "-m", "checker.check_package", self.package, "--root", ROOT),
            *("--library", BUILD / "libZQDial.dylib", "--version", self.version),
        )

    def test_options_of_packaging(self) -> None:
        self.repacked("its members are debian-binary, control.tar.xz", "-Zxz")
        os.chmod(self.contents / "Library", 0o700)
        self.repacked("./Library is a directory with mode 0700")

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
                self.repacked(fault)
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
                self.repacked(fault)
