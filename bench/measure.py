#!/usr/bin/env python3
"""measure.py BIN [--quick] [import] [file] [window]: runs the benchmarks and prints tables.

Times are of the processor, those of all threads and children together, where nothing else
is said: what else the machine does moves them least. Each yardstick is measured in the same
run as what is held against it.
"""

import os
import platform
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

MEBIBYTE = 1024 * 1024


@dataclass
class Run:
    wall: float
    processor: float
    output: str

    def figures(self):
        """What the program told by lines of "figure", by name."""
        lines = (line.split("\t") for line in self.output.splitlines())
        return {line[1]: float(line[2]) for line in lines if line[0] == "figure"}


def run(*command, stdin=None):
    start = time.monotonic()
    with tempfile.TemporaryFile() as output:
        child = subprocess.Popen(
            [str(word) for word in command], stdin=stdin, stdout=output, stderr=subprocess.PIPE
        )
        errors = child.stderr.read()
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
        wall = time.monotonic() - start
        output.seek(0)
        text = output.read().decode(errors="replace")
    if child.returncode != 0:
        sys.exit(f"{command[0]} failed:\n{errors.decode(errors='replace')}")
    return Run(wall, usage.ru_utime + usage.ru_stime, text)


def table(title, head, rows):
    print(f"\n### {title}\n")
    print("| " + " | ".join(head) + " |")
    print("|---" + "|---:" * (len(head) - 1) + "|")
    for row in rows:
        print("| " + " | ".join(row) + " |")
    sys.stdout.flush()


def seconds(value):
    return f"{value:.2f} s"


def milliseconds(value):
    return f"{value:.1f} ms"


def mebibytes(value):
    return f"{value / MEBIBYTE:.0f} MiB"


def compared(what, figure, yardstick_name, yardstick, goal, show, inverse=False):
    ratio = yardstick / figure if inverse else figure / yardstick
    return [what, show(figure), f"{yardstick_name}: {show(yardstick)}", f"{ratio:.2f}", goal]


HEAD = ["What", "Figure", "Yardstick", "Ratio", "Goal"]


class Benchmarks:
    def __init__(self, programs, folder, quick):
        self.programs = programs
        self.folder = folder
        self.quick = quick

    def program(self, name, *arguments):
        return run(self.programs / name, *arguments)

    def measure_import(self):
        count = 250 if self.quick else 3000
        collection = self.folder / "collection"
        self.program("make-collection", collection, count)
        # Once for nothing, so that all read from memory.
        files = self.folder / "files"
        with files.open("wb") as names:
            subprocess.run(["find", collection, "-type", "f", "-print0"], stdout=names, check=True)
        with files.open("rb") as names:
            run("xargs", "-0", "md5sum", stdin=names)
        with files.open("rb") as names:
            md5sum = run("xargs", "-0", "md5sum", stdin=names)
        plain = self.program("plain-pipeline", collection, self.folder / "plain")
        one = self.steps(collection, "one", 1)
        all_cores = self.steps(collection, "all")
        find = statistics.median(
            run("find", collection, "-printf", "%p %s %T@\\n").processor for _ in range(5)
        )
        table(f"Import of {count} files", HEAD, [
            compared("import, wall time", all_cores["import"][0], "plain pipeline", plain.wall,
                     "at least 10", seconds, inverse=True),
            compared("import, processor", all_cores["import"][1], "plain pipeline",
                     plain.processor, "", seconds, inverse=True),
            compared("import, one thread, processor", one["import"][1], "plain pipeline",
                     plain.processor, "", seconds, inverse=True),
            compared("import, processor", all_cores["import"][1], "md5sum", md5sum.processor, "",
                     seconds),
            compared("unchanged rescan", all_cores["unchanged rescan"][1], "find -printf", find,
                     "at most 2.5", lambda value: milliseconds(value * 1e3)),
        ])

    def steps(self, collection, name, *threads):
        """Wall time and processor time of the steps of an import, by name."""
        steps = {}
        output = self.program("import-collection", collection, self.folder / name, *threads).output
        for line in output.splitlines():
            name, figures = line.split(": ")
            _, wall, processor = figures.split(", ")
            steps[name] = (float(wall.split()[0]), float(processor.split()[0]))
        return steps

    def catalogue(self, count):
        """A data folder with a catalogue of so many records."""
        folder = self.folder / f"records-{count}"
        path = folder / "hoopline-organizer.xml"
        if not path.exists():
            folder.mkdir()
            self.program("catalogue-file", "make", path, count)
        return path

    def measure_file(self):
        count = 20000 if self.quick else 100000
        path = self.catalogue(count)
        size = path.stat().st_size
        rounds = 3
        loads = [self.program("catalogue-file", "load", path).figures() for _ in range(rounds)]
        reads = [self.program("catalogue-file", "read", path).figures() for _ in range(rounds)]

        def median(runs, figure):
            return statistics.median(one[figure] for one in runs)

        table(f"A catalogue file of {count} records, {mebibytes(size)}", HEAD, [
            compared("load, processor", median(loads, "processor"), "stream reader",
                     median(reads, "processor"), "at most 1.2", milliseconds),
            compared("memory with it loaded", median(loads, "resident"), "the file", size,
                     "at most 2.5", mebibytes),
            compared("memory at most while it loads", median(loads, "peak"), "the file", size, "",
                     mebibytes),
        ])

    def measure_window(self):
        counts = [100, 1000, 10000] if self.quick else [100, 1000, 10000, 100000]
        figures = {}
        for count in counts:
            path = self.catalogue(count)
            figures[count] = self.program("window-actions", path.parent).figures()
        goals = {
            "later key": "50 ms",
            "scroll": "1.5 times that of 100",
            "save, all threads": "",
            "start, all threads": "",
            "memory at the start": "",
        }
        writer = self.program("catalogue-file", "copy", self.catalogue(counts[-1])).figures()
        rows = []
        for name in figures[counts[-1]]:
            values = [figures[count][name] for count in counts]
            show = mebibytes if name.startswith("memory") else milliseconds
            rows.append([name, *map(show, values), f"{values[-1] / values[0]:.1f}",
                         goals.get(name, "100 ms")])
        rows.append(["stream writer, of a file as large"] + [""] * (len(counts) - 1) +
                    [milliseconds(writer["processor"]), "", ""])
        table("The window, by the number of cards",
              ["What", *map(str, counts), f"{counts[-1]} to {counts[0]}", "Goal"], rows)


def machine():
    model = "unknown processor"
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            model = line.split(":", 1)[1].strip()
            break
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES")
    return (f"{model}, {os.cpu_count()} cores, {memory / 1024 ** 3:.0f} GiB, "
            f"{platform.system()} {platform.release()}")


def main(arguments):
    quick = "--quick" in arguments
    parts = [word for word in arguments[1:] if word != "--quick"]
    known = ["import", "file", "window"]
    if not arguments or any(part not in known for part in parts):
        sys.exit(__doc__)
    print(machine())
    with tempfile.TemporaryDirectory(prefix="bench-") as folder:
        benchmarks = Benchmarks(Path(arguments[0]).resolve(), Path(folder), quick)
        for part in parts or known:
            getattr(benchmarks, f"measure_{part}")()


main(sys.argv[1:])
