#!/usr/bin/env python3
"""Runs clang-tidy over every C++ source that a build folder compiles (build/ by default), and over the
device library's loader as its processors' compilers see it. Prints each finding once, then their
count. Headers are read with the sources that include them.

Sources that are compiled together are checked together, as one text: nearly all of a source's time
goes into the headers that its neighbours include as well. What had no finding is not checked again
until one of the files that it was built from changes."""

import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
from collections.abc import Iterator
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TIDY = "clang-tidy-19"
ROOMS = ("src", "simulator", "tests", "bench", "device")
LOADER = ROOT / "device/loader"
# Between two sources of one text: a macro's definition makes clang-tidy forget which headers it saw,
# since including one in each source is no repetition.
BETWEEN = ("#define LINT_NEXT_SOURCE\n", "#undef LINT_NEXT_SOURCE\n")
# Each expectation of a test holds or does not, and the analyzer follows every combination of them; so
# many states of a function are enough for what a test can do wrong (the analyzer's own: 225,000).
TEST_FLAGS = tuple("-Xclang -analyzer-config -Xclang max-nodes=30000".split())
FINDING = re.compile(r"^\S.*: (warning|error): .*\]$")


class LintError(Exception):
    """What is missing, and the remedy."""


@dataclass(frozen=True)
class Job:
    """Sources that are checked as one text, and how they are compiled."""

    sources: tuple[Path, ...]
    flags: tuple[str, ...]
    stamp: Path  # written when nothing was found
    inputs: tuple[Path, ...]  # all that they were built from; none: not known


def of_project(source: Path) -> bool:
    return source.is_relative_to(ROOT) and source.relative_to(ROOT).parts[0] in ROOMS


def together(source: Path) -> tuple[Path, ...]:
    """The sources that a generated file includes, or the one that is no generated file."""
    if source.parent.name != "Unity":
        return (source,)
    return tuple(map(Path, re.findall(r'^#include "(.*)"$', source.read_text(), re.MULTILINE)))


def flags_of(command: str) -> tuple[str, ...]:
    """A command's flags without the compiler, its launcher, the source and what it writes."""
    words = shlex.split(command)
    flags = ["-Wno-unknown-warning-option"]
    first = next(n for n, word in enumerate(words) if word.startswith("-"))
    rest = iter(words[first:])
    for word in rest:
        if word in ("-o", "-c", "-MT", "-MF"):
            next(rest)
        elif word != "-MD":
            flags.append(word)
    return tuple(flags)


def inputs_of_objects(build: Path) -> dict[str, tuple[Path, ...]]:
    """What ninja learned from the compiler about each object that it built."""
    listed = subprocess.run(
        ["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=False
    ).stdout
    blocks = (block.splitlines() for block in listed.split("\n\n") if block.strip())
    return {
        lines[0].split(": #deps")[0]: tuple(build / line.strip() for line in lines[1:])
        for lines in blocks
    }


def built_jobs(build: Path) -> Iterator[Job]:
    inputs = inputs_of_objects(build)
    for entry in json.loads((build / "compile_commands.json").read_text()):
        sources = together(Path(entry["file"]))
        if not all(source.suffix == ".cpp" and of_project(source) for source in sources):
            continue
        words = shlex.split(entry["command"])
        target = words[words.index("-o") + 1]
        stamp = build / "lint" / target.replace("/", ".")
        flags = flags_of(entry["command"])
        if sources[0].is_relative_to(ROOT / "tests"):
            flags += TEST_FLAGS
        yield Job(sources, flags, stamp, inputs.get(target, ()))


def loader_jobs(build: Path) -> Iterator[Job]:
    files = tuple(path for path in LOADER.rglob("*") if path.is_file())
    for source in sorted(path for path in files if path.suffix == ".cpp"):
        arm = source.is_relative_to(LOADER / "armv7")
        triple = "arm-linux-gnueabi" if arm else "aarch64-linux-gnu"
        headers = Path(f"/usr/lib/gcc-cross/{triple}/12/include")
        if not (headers / "objc").exists():
            raise LintError(
                f"no headers of {triple}: run tools/install-packages.sh qemu qemu-armv7"
            )
        texts = ('-DZQDIAL_IMPORTS="imports"', '-DZQDIAL_PROGRAM_IMPORTS="of a program"')
        flags = (f"--target={triple}", "-std=c++20", f"-I{LOADER}", *texts, f"-idirafter{headers}")
        yield Job((source,), flags, build / "lint" / f"loader.{source.stem}.{triple}", files)


def is_unchanged(job: Job) -> bool:
    if not job.inputs or not job.stamp.exists():
        return False
    since = job.stamp.stat().st_mtime
    rules = (ROOT / ".clang-tidy", Path(__file__), *job.sources)
    return all(path.exists() and path.stat().st_mtime < since for path in (*job.inputs, *rules))


def joined(sources: tuple[Path, ...]) -> tuple[str, list[tuple[Path, int]]]:
    """The sources as one text, and where each of its lines comes from."""
    text: list[str] = []
    places: list[tuple[Path, int]] = []
    for source in sources:
        lines = source.read_text().splitlines(keepends=True)
        text += [*BETWEEN, *lines]
        places += [(source, 1)] * len(BETWEEN) + [(source, n + 1) for n in range(len(lines))]
    return "".join(text), places


def check(job: Job, folder: Path) -> str:
    """clang-tidy's findings, empty when there are none; the places are those in the sources."""
    text, places = joined(job.sources)
    one = folder / f"{job.stamp.name}.cpp"
    one.write_text(text)
    neighbours = {f"-iquote{source.parent}" for source in job.sources}
    command = [TIDY, "--quiet", f"--config-file={ROOT / '.clang-tidy'}", str(one), "--"]
    run = subprocess.run(
        [*command, *job.flags, *sorted(neighbours)], capture_output=True, text=True, check=False
    )
    if run.returncode == 0:
        job.stamp.parent.mkdir(exist_ok=True)
        job.stamp.touch()
        return ""

    def place(found: re.Match[str]) -> str:
        source, line = places[min(int(found[1]), len(places)) - 1]
        return f"{source.relative_to(ROOT)}:{line}:"

    found = re.sub(rf"^{re.escape(str(one))}:(\d+):", place, run.stdout, flags=re.MULTILINE)
    if not any(FINDING.match(line) for line in found.splitlines()):
        found += run.stderr  # clang-tidy itself failed: its own words say why
    return found


def findings(reports: list[str]) -> list[str]:
    """Each finding with the lines below it that show the place; once, however often it was made."""
    found: dict[str, list[str]] = {}
    for report in reports:
        lines: list[str] = found.setdefault("", [])
        for line in report.splitlines():
            if FINDING.match(line):
                lines = [] if line in found else found.setdefault(line, [])
            lines.append(line)
    return ["\n".join(lines) for lines in found.values() if lines]


def main() -> int:
    build = Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build").resolve()
    if not (build / "compile_commands.json").exists():
        raise LintError(f"no {build}/compile_commands.json: run 'cmake --preset host'")
    if not shutil.which(TIDY):
        raise LintError(f"no {TIDY}: run tools/install-packages.sh lint")
    jobs = [*built_jobs(build), *loader_jobs(build)]
    due = [job for job in jobs if not is_unchanged(job)]
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(os.cpu_count()) as pool:
        reports = list(pool.map(lambda job: check(job, Path(folder)), due))
    found = findings(reports)
    print("".join(finding + "\n" for finding in found), end="")
    sources = {source for job in jobs for source in job.sources}
    checked = {source for job in due for source in job.sources}
    unchanged = f", {len(sources) - len(checked)} unchanged" if len(checked) < len(sources) else ""
    print(f"lint: {len(checked)} sources checked{unchanged}, {len(found)} findings")
    return 1 if any(reports) else 0


try:
    sys.exit(main())
except LintError as error:
    sys.exit(f"lint: {error}")
