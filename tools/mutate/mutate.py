"""Puts faults into a copy of the sources and asks the tests whether they catch them.

scripts/mutate.sh is the way in and tells the options. A fault is a table of one of the
TOML files beside this one, named after what is broken:

    [a-name]
    file = "src/folder/File.cpp"
    find = "what stands there once"
    replace = "what stands there with the fault"
    harm = "What somebody at the program would suffer, in one sentence."
    tests = ["tst_name"]

At least one of the tests has to fail. Any run of white space in `find` stands for any
other, so that a line that is broken elsewhere still matches.
"""

import argparse
import fnmatch
import os
import re
import shutil
import subprocess
import sys
import time
import tomllib
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FAULTS = Path(__file__).resolve().parent / "faults"
WORK = ROOT / "build/mutate"
BUILD = WORK / "build/dev"
LOGS = WORK / "logs"


@dataclass
class Fault:
    name: str
    file: str
    find: str
    replace: str
    harm: str
    tests: list

    def applied(self, text):
        """The text with the fault; None when its place isn't there, or isn't the only one."""
        pattern = r"\s+".join(re.escape(word) for word in self.find.split())
        places = list(re.finditer(pattern, text))
        if len(places) != 1:
            return None
        # One statement a line, or the compiler finds their indentation misleading.
        replacement = self.replace.strip().replace("; ", ";\n")
        return text[: places[0].start()] + replacement + text[places[0].end() :]


def read_faults():
    """All faults in the order of the files, and what is wrong with the list."""
    faults, findings = {}, []
    for path in sorted(FAULTS.glob("*.toml")):
        for name, entries in tomllib.loads(path.read_text()).items():
            if name in faults:
                findings.append(f"{name}: there are two of this name")
            try:
                faults[name] = Fault(name, **entries)
            except TypeError as error:
                findings.append(f"{name}: {error}")
    return list(faults.values()), findings


def findings_in(faults):
    """What no longer fits the sources."""
    lists = [path.read_text() for path in (ROOT / "tests").glob("*/CMakeLists.txt")]
    known = set(re.findall(r"\btst_\w+", "\n".join(lists)))
    for fault in faults:
        path = ROOT / fault.file
        text = path.read_text() if path.is_file() else ""
        if fault.applied(text) is None or fault.find.split() == fault.replace.split():
            yield f"{fault.name}: does not apply to {fault.file}"
        if not fault.tests or not known.issuperset(fault.tests):
            yield f"{fault.name}: no such test: {' '.join(sorted(set(fault.tests) - known))}"
        if not fault.harm:
            yield f"{fault.name}: who suffers?"


def copy_sources():
    """Makes the copy equal to the checkout; what is equal keeps its time, and its objects."""
    listed = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard", "--deduplicate"],
        cwd=ROOT, check=True, capture_output=True, text=True).stdout.split("\0")
    wanted = {name for name in listed if (ROOT / name).is_file()}
    for folder, folders, names in os.walk(WORK):
        if Path(folder) == WORK:
            folders[:] = [name for name in folders if name not in ("build", "logs")]
        for name in names:
            path = Path(folder, name)
            if str(path.relative_to(WORK)) not in wanted:
                path.unlink()
    for name in wanted:
        source, copy = ROOT / name, WORK / name
        if not copy.is_file() or source.read_bytes() != copy.read_bytes():
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.unlink(missing_ok=True)
            shutil.copy(source, copy)
            os.utime(copy)


class Runner:
    def __init__(self, jobs):
        self.jobs = jobs
        # A fault may make a test wait for ever.
        self.environment = os.environ | {"QTEST_FUNCTION_TIMEOUT": "30000"}

    def run(self, log, *command):
        with open(LOGS / f"{log}.log", "a") as output:
            return subprocess.run(command, cwd=WORK, stdout=output, stderr=output,
                                  stdin=subprocess.DEVNULL, env=self.environment).returncode == 0

    def configure(self):
        linking = "-Wl,--strip-debug"
        if shutil.which("ld.lld"):
            linking += " -fuse-ld=lld"  # most of the time goes into linking
        return self.run("build", "cmake", "--preset", "dev", f"-DCMAKE_EXE_LINKER_FLAGS={linking}")

    def build(self, log, tests):
        return self.run(log, "cmake", "--build", BUILD, "-j", self.jobs, "--target", *tests)

    def test(self, log, tests, *options):
        names = "^(" + "|".join(tests) + ")$"
        return self.run(log, "ctest", "--test-dir", BUILD, "-R", names, "-j", self.jobs,
                        "--no-tests=error", "--output-on-failure", *options)

    def outcome(self, fault):
        """Puts the fault in, asks the tests, and takes it out again."""
        copy = WORK / fault.file
        text = copy.read_text()
        copy.write_text(fault.applied(text))
        try:
            if not self.build(fault.name, fault.tests):
                return "DOESN'T BUILD"
            survives = self.test(fault.name, fault.tests, "--stop-on-failure")
            return "SURVIVES" if survives else "caught"
        finally:
            copy.write_text(text)


def options():
    parser = argparse.ArgumentParser(prog="mutate.sh")
    parser.add_argument("--only", action="append", default=[])
    parser.add_argument("--test", action="append", default=[])
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--jobs", default=str(os.cpu_count()))
    return parser.parse_args()


def chosen(faults, only, tests):
    return [fault for fault in faults
            if (not only or any(fnmatch.fnmatch(fault.name, name) for name in only))
            and (not tests or set(tests) & set(fault.tests))]


def ask_tests(faults, jobs):
    """Prints what becomes of each fault; the names of those that weren't caught."""
    runner = Runner(jobs)
    LOGS.mkdir(parents=True, exist_ok=True)
    for log in LOGS.iterdir():
        log.unlink()
    copy_sources()
    tests = sorted({test for fault in faults for test in fault.tests})
    print(f"{len(faults)} faults, {len(tests)} tests; first the tests without any fault", flush=True)
    if not runner.configure() or not runner.build("build", tests):
        sys.exit(f"mutate.sh: the sources don't build: {LOGS / 'build.log'}")
    if not runner.test("tests", tests):
        sys.exit(f"mutate.sh: a test fails without any fault: {LOGS / 'tests.log'}")
    missed = []
    for number, fault in enumerate(faults, 1):
        start = time.monotonic()
        outcome = runner.outcome(fault)
        print(f"{number:3}/{len(faults)} {outcome:13} {time.monotonic() - start:4.0f} s  {fault.name}",
              flush=True)
        if outcome != "caught":
            missed.append((outcome, fault))
    return missed


def main():
    arguments = options()
    faults, findings = read_faults()
    findings += findings_in(faults)
    if findings:
        sys.exit("\n".join(findings))
    selection = chosen(faults, arguments.only, arguments.test)
    if not selection:
        sys.exit("mutate.sh: there is no such fault")
    if arguments.list:
        for fault in selection:
            print(f"{fault.name}: {fault.harm} ({' '.join(fault.tests)})")
    if arguments.list or arguments.check:
        return 0
    missed = ask_tests(selection, arguments.jobs)
    for outcome, fault in missed:
        print(f"\n{outcome}: {fault.name} in {fault.file}\n  {fault.harm}\n"
              f"  {' '.join(fault.tests)}; {LOGS / fault.name}.log")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
