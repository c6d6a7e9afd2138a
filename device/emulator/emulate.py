"""Runs every scenario on each slice of a device library: emulate LIBRARY [--slices ...]."""

import argparse
import importlib.util
import sys
import threading
import traceback
from pathlib import Path

if importlib.util.find_spec("unicorn") is None:
    sys.exit("emulate: no Python module unicorn: install the package python3-unicorn")

from checker.macho import BadImage, Slice, read

from emulator.machine import Failure, Raised
from emulator.process import Process
from emulator.scenarios import exceptions, in_call, loading, numbers, replacements, screens
from emulator.scenarios.scenario import Scenario
from emulator.world import World

MODULES = (loading, replacements, screens, in_call, numbers, exceptions)
SCENARIOS: list[Scenario] = [scenario for module in MODULES for scenario in module.SCENARIOS]
LONGEST = 30.0  # seconds that a scenario may take


class Run:
    """One scenario on one slice, with the processes that it has loaded."""

    def __init__(self, image: Slice, verbose: bool) -> None:
        self.image = image
        self.verbose = verbose
        self.processes: list[Process] = []

    def load(self, world: World) -> Process:
        """Loads the slice into a new process."""
        self.processes.append(Process(self.image, world))
        return self.processes[-1]

    def failure_of(self, scenario: Scenario) -> str | None:
        """Runs a scenario; returns what went wrong, None if nothing did."""
        watch = threading.Timer(LONGEST, self._stop)
        watch.start()
        try:
            scenario.run(self.load)
        except Failure as failure:
            return str(failure)
        except Raised as raised:
            return f"an exception left the library: {raised}"
        except Exception as error:  # what the library asked for made no sense to the process
            if self.verbose:
                traceback.print_exc()
            return f"the process broke: {error!r}"
        finally:
            watch.cancel()
        return None

    def _stop(self) -> None:
        for process in self.processes:
            process.machine.cpu.emu_stop()


def arguments() -> argparse.Namespace:
    """Returns the command line's arguments."""
    parser = argparse.ArgumentParser(prog="emulate", description="Runs the library's machine code.")
    parser.add_argument("library", type=Path, help="the device library, fat or thin")
    parser.add_argument("--slices", nargs="+", metavar="ARCH", help="only these, all wanted")
    parser.add_argument("--verbose", action="store_true", help="show all messages and calls")
    return parser.parse_args()


def slices(options: argparse.Namespace) -> dict[str, Slice]:
    """Returns the slices to run; a file that cannot be read ends the program."""
    try:
        found = read(options.library)
    except OSError as error:
        sys.exit(f"emulate: {options.library}: {error.strerror}: build it with make device")
    except BadImage as error:
        sys.exit(f"emulate: {options.library}: {error}: build it again with make device")
    wanted = options.slices or list(found)
    if missing := [arch for arch in wanted if arch not in found]:
        sys.exit(f"emulate: {options.library}: no slice {', '.join(missing)}: it has {list(found)}")
    return {arch: found[arch] for arch in wanted}


def main() -> int:
    """Runs everything; the exit status says whether all went well."""
    options = arguments()
    chosen = slices(options)
    failures = 0
    for arch, image in chosen.items():
        for scenario in SCENARIOS:
            run = Run(image, options.verbose)
            failure = run.failure_of(scenario)
            failures += failure is not None
            print(f"{arch:7}{scenario.name}" + (f"\n       FAILED: {failure}" if failure else ""))
            if options.verbose:
                for process in run.processes:
                    events = process.runtime.earlier + process.runtime.log
                    print(*(f"         {event}" for event in events), sep="\n")
    count = f"{len(SCENARIOS)} scenarios on {len(chosen)} slices"
    print(f"emulate: {count}, {failures} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
