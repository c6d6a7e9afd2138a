"""What the tests of broken inputs share.

CTest runs them, with the build folder of a sound library in ZQDIAL_DEVICE_BUILD and the folders of
the checker and of the build's tools in PYTHONPATH.
"""
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["ZQDIAL_DEVICE_BUILD"])


def run(*command: str | Path) -> tuple[int, str]:
    """The exit code of a command and everything it printed."""
    done = subprocess.run(
        list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False
    )
    return done.returncode, done.stdout.decode(errors="replace")


class Scratch(unittest.TestCase):
    """A test with a folder of its own."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def succeed(self, *command: str | Path) -> None:
        """The command does not fail."""
        code, printed = run(*command)
        self.assertEqual(code, 0, printed)

    def refused(self, expected: list[str], *command: str | Path) -> None:
        """The command fails, and its output has all of the expected pieces."""
        code, printed = run(*command)
        self.assertNotEqual(code, 0, printed)
        words = " ".join(printed.split())  # wherever lines were broken
        for piece in expected:
            self.assertIn(piece, words)
        self.assertNotIn("Traceback", printed)
