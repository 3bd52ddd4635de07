"""The faults that test the tests, in a small tree of their own: test_mutate.py FOLDER"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

FOLDER = Path(sys.argv.pop())

FAULT = """
[{name}]
file = "src/A.cpp"
find = "int  one = 1;"
replace = "{replace}"
harm = "It does not count."
tests = ["tst_a"]
"""

# They judge by what stands in the copy of the sources.
PROGRAMS = {
    "cmake": 'grep -q BROKEN src/A.cpp && exit 1; exit 0',
    "ctest": 'grep -q WRONG src/A.cpp && exit 8; exit 0',
}


@unittest.skipUnless(shutil.which("git"), "it tells which files are the project's")
class MutateTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("tests/a/CMakeLists.txt", "hoopline_test(tst_a)")
        self.write("src/A.cpp", "int\n    one = 1;\n")
        for name, script in PROGRAMS.items():
            self.write(f"bin/{name}", f"#!/bin/sh\n{script}\n")
            (self.root / "bin" / name).chmod(0o755)
        self.write("tools/mutate/mutate.py", (FOLDER / "mutate.py").read_text())
        subprocess.run(["git", "init", "-q", self.root], check=True)
        self.write(".gitignore", "build\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def run_with(self, faults, *options):
        self.write("tools/mutate/faults/a.toml", faults)
        result = subprocess.run(
            [sys.executable, self.root / "tools/mutate/mutate.py", *options], text=True,
            capture_output=True, env=os.environ | {"PATH": f"{self.root}/bin:{os.environ['PATH']}"})
        return result.returncode, result.stdout + result.stderr

    def test_check(self):
        good = FAULT.format(name="good", replace="int one = 2;")
        self.assertEqual(self.run_with(good, "--check"), (0, ""))
        for before, after, said in [
            ("one = 1", "two = 2", "does not apply"),
            ("int one = 2;", "int one = 1;", "does not apply"),
            ("int  one = 1", "n", "does not apply"),
            ("tst_a", "tst_b", "no such test: tst_b"),
            ("It does not count.", "", "who suffers?"),
            ("harm", "hurt", "unexpected keyword"),
        ]:
            with self.subTest(said=said, after=after):
                status, output = self.run_with(good.replace(before, after), "--check")
                self.assertEqual(status, 1)
                self.assertIn(said, output)

    def test_outcomes(self):
        faults = "".join(FAULT.format(name=name, replace=name) for name in ("WRONG", "fine", "BROKEN"))
        status, output = self.run_with(faults)
        self.assertEqual(status, 1)
        for outcome in ("caught", "SURVIVES", "DOESN'T BUILD"):
            self.assertIn(outcome, output)
        for folder in ("", "build/mutate/"):
            self.assertEqual((self.root / folder / "src/A.cpp").read_text(), "int\n    one = 1;\n")
        self.assertEqual(self.run_with(faults, "--only", "WR*")[0], 0)
        # A test that fails anyway catches nothing.
        self.write("src/A.cpp", "int one = 1; // WRONG\n")
        self.assertIn("without any fault", self.run_with(faults)[1])


if __name__ == "__main__":
    unittest.main()
