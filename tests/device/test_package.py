"""Packages that the checker must not let pass."""
import sys
from pathlib import Path

from scratch import BUILD, Scratch

FOLDER = "Library/MobileSubstrate/DynamicLibraries"
CONTROL = "DEBIAN/control"
# What is changed in an unpacked package, as shell commands there, and what is said then.
FAULTS = [
    ("chmod 700 Library", "it has data.tar.gz: ./Library drwx------ 0/0 root/root"),
    (f"touch {FOLDER}/more", f"it has data.tar.gz: ./{FOLDER}/more -rw-"),
    (f"rm {FOLDER}/libZQDial.plist", f"it lacks data.tar.gz: ./{FOLDER}/libZQDial.plist -rw-"),
    ("touch -d @1000 Library", "its times differ, from 1000 to 86400"),
    ("install /bin/true DEBIAN/postinst", "it has control.tar.gz: ./postinst -rwx"),
    (f"echo >>{FOLDER}/libZQDial.dylib", "libZQDial.dylib is not as it should be"),
    (f"sed -i s/mobilephone/mobilephony/ {FOLDER}/libZQDial.plist", "mend device/libZQDial.plist"),
    (f"sed -i 's/^Version: .*/Version: 9.9/' {CONTROL}", "field Version is '9.9'"),
    (f"sed -i s/iphoneos-arm/all/ {CONTROL}", "field Architecture is 'all'"),
    (f"sed -i 's/firmware (>= 7.0), //' {CONTROL}", "field Depends is 'mobilesubstrate'"),
    (f"sed -i /^Section/d {CONTROL}", "field Section is ''"),
    (f"sed -i 1aInstalled-Size:1 {CONTROL}", "field Installed-Size is '1'"),
]


class PackageFaults(Scratch):
    def setUp(self) -> None:
        super().setUp()
        packages = list(BUILD.glob("*.deb"))
        if not packages:
            self.skipTest("one slice alone is not packaged")
        self.sound = packages[0]
        self.broken = self.folder / "broken.deb"

    def refused_with(self, fault: str) -> None:
        _, version, _ = self.sound.name.split("_")
        self.refused(
            [fault],
            *(sys.executable, "-m", "checker.check_package", self.broken),
            *("--library", BUILD / "libZQDial.dylib", "--version", version),
        )

    def repacked(self, change: str, fault: str, options: str = "-Zgzip") -> None:
        """With a change and other options of packaging, it is a package with a fault."""
        contents = self.folder / "contents"
        pack = f"dpkg-deb --root-owner-group --uniform-compression {options} --build"
        self.succeed(
            *("sh", "-e", "-c"),
            f"""rm -rf {contents}
                dpkg-deb --raw-extract {self.sound} {contents}
                (cd {contents} && {change})
                SOURCE_DATE_EPOCH=86400 {pack} {contents} {self.broken}""",
        )
        self.refused_with(fault)

    def test_contents(self) -> None:
        for change, fault in FAULTS:
            with self.subTest(fault):
                self.repacked(change, fault)

    def test_packaging(self) -> None:
        self.repacked("true", "it has control.tar.xz 100644 0/0", "-Zxz")

    def test_bytes(self) -> None:
        data = self.sound.read_bytes()
        for broken, fault in (
            (data[:-40], "ends within data.tar.gz: the file is damaged"),
            (data.replace(b"control.tar.gz", b"control.tar.xz"), "it has control.tar.xz"),
            (data[:-20] + bytes(20), "cannot be unpacked"),
            (data.replace(b"2.0\n", b"2.1\n"), "debian-binary is not as it should be"),
            (data.replace(b"0     0     1006", b"0     7     1006"), "it has debian-binary 1006"),
        ):
            with self.subTest(fault):
                self.assertNotEqual(broken, data)
                self.broken.write_bytes(broken)
                self.refused_with(fault)
