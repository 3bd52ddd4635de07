#!/usr/bin/env python3
"""measure.py BIN [--quick] [--write FILE] [import] [file] [window] [growth]

Runs the benchmarks, all but the growth when none is named, and prints one table of what was
measured, and how it grows. Times are of the processor, those of all threads and children
together, where nothing else is said: what else the machine does moves them least. Each
yardstick is measured in the same run as what is held against it. A step that fails ends it.

--write puts the tables into a document as well, between its marks, each in place of the one
with its title.
"""

import datetime
import os
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


def run(*command, stdin=None, environment=None):
    start = time.monotonic()
    with tempfile.TemporaryFile() as output:
        child = subprocess.Popen([str(word) for word in command], stdin=stdin, stdout=output,
                                 stderr=subprocess.PIPE, env=environment)
        errors = child.stderr.read()
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
        wall = time.monotonic() - start
        output.seek(0)
        text = output.read().decode(errors="replace")
    if child.returncode != 0:
        sys.exit(f"measure.py: this step failed: {' '.join(map(str, command))}\n"
                 f"{errors.decode(errors='replace')}")
    return Run(wall, usage.ru_utime + usage.ru_stime, text)


def seconds(value):
    return f"{value:.2f} s"


def milliseconds(value):
    return f"{value:.2f} ms" if value < 1 else f"{value:.1f} ms"


def mebibytes(value):
    return f"{value / MEBIBYTE:.0f} MiB"


class Tables:
    """What was measured, to be shown when all of it is there."""

    def __init__(self):
        self.rows = []
        self.growths = {}

    def compare(self, what, show, figure, yardstick_name, yardstick, *, faster=False, most=None,
                least=None, bound=None):
        """
        @param faster: the ratio tells how many times
        @param most, least: goal for the ratio; bound: goal for the figure itself
        """
        ratio = yardstick / figure if faster else figure / yardstick
        goal, met = "", True
        if least is not None:
            goal, met = f"at least {least}", ratio >= least
        elif most is not None:
            goal, met = f"at most {most}", ratio <= most
        elif bound is not None:
            goal, met = f"{bound} ms", figure <= bound
        if not met:
            goal += ", **not met**"
        self.rows.append([what, show(figure), f"{yardstick_name}: {show(yardstick)}",
                          f"{ratio:.2f}", goal])

    def grow(self, title, counts, figures):
        """@param figures: by count and name, each with what shows it"""
        rows = []
        for name in figures[counts[-1]]:
            values = [figures[count][name] for count in counts]
            rows.append([name, *(show(value) for value, show in values),
                         f"{values[-1][0] / values[0][0]:.1f}"])
        head = ["What", *map(str, counts), f"{counts[-1]} to {counts[0]}"]
        self.growths[title] = self.table(head, rows)

    @staticmethod
    def table(head, rows):
        lines = [head, ["---"] + ["---:"] * (len(head) - 1), *rows]
        return "".join("| " + " | ".join(line) + " |\n" for line in lines)

    def sections(self):
        """Tables by title, each below the machine that it was measured on."""
        tables = dict(self.growths)
        if self.rows:
            head = ["What", "Figure", "Yardstick", "Ratio", "Goal"]
            tables = {"All rows": self.table(head, self.rows), **tables}
        where = f"{machine()}, {datetime.date.today()}."
        return {title: f"{where}\n\n{table}" for title, table in tables.items()}


class Benchmarks:
    def __init__(self, programs, folder, quick):
        self.programs = programs
        self.folder = folder
        self.quick = quick
        self.tables = Tables()

    def program(self, name, *arguments):
        print(f"measure.py: {name} {' '.join(map(str, arguments))}", file=sys.stderr, flush=True)
        # What a program keeps of its own goes the way of all else here.
        home = {name: str(self.folder / "home") for name in
                ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME")}
        return run(self.programs / name, *arguments, environment={**os.environ, **home})

    def collection(self, count):
        """A made-up collection, read once for nothing, so that all have it in memory."""
        folder = self.folder / f"collection-{count}"
        self.program("make-collection", folder, count)
        self.md5sum(folder)
        return folder

    def md5sum(self, collection):
        files = self.folder / "files"
        with files.open("wb") as names:
            subprocess.run(["find", collection, "-type", "f", "-print0"], stdout=names, check=True)
        with files.open("rb") as names:
            return run("xargs", "-0", "md5sum", stdin=names)

    @staticmethod
    def find(collection):
        runs = [run("find", collection, "-printf", "%p %s %T@\\n") for _ in range(9)]
        return statistics.median(one.processor for one in runs)

    def steps(self, collection, profile, *threads):
        """Medians of the wall and the processor time of the steps of an import, by name."""
        steps = {}
        output = self.program("import-collection", collection, profile, *threads).output
        for line in output.splitlines():
            name, figures = line.split(": ")
            _, wall, processor = figures.split(", ")
            steps.setdefault(name, []).append((float(wall.split()[0]), float(processor.split()[0])))
        return {name: tuple(map(statistics.median, zip(*times))) for name, times in steps.items()}

    def measure_import(self):
        count = 250 if self.quick else 3000
        collection = self.collection(count)
        md5sum = self.md5sum(collection)
        plain = self.program("plain-pipeline", collection, self.folder / "plain")
        one = self.steps(collection, self.folder / "one", 1)
        profile = self.folder / "all"
        all_cores = self.steps(collection, profile)
        duplicates = self.program("hoopline-cli", "duplicates", "--catalogue",
                                  profile / "catalogue.xml")
        compare = self.tables.compare
        name = f"import of {count} files"
        compare(f"{name}, wall time", seconds, all_cores["import"][0], "plain pipeline", plain.wall,
                faster=True, least=10)
        compare(f"{name}, processor", seconds, all_cores["import"][1], "plain pipeline",
                plain.processor, faster=True)
        compare(f"{name}, one thread", seconds, one["import"][1], "plain pipeline",
                plain.processor, faster=True)
        compare(f"{name}, processor", seconds, all_cores["import"][1], "md5sum", md5sum.processor)
        compare("unchanged rescan", milliseconds, all_cores["unchanged rescan"][1] * 1e3,
                "find -printf", self.find(collection) * 1e3, most=2.5)
        compare("hoopline-cli duplicates", seconds, duplicates.processor, "import, processor",
                all_cores["import"][1])

    def measure_growth(self):
        counts = [100, 300] if self.quick else [1000, 10000, 100000]
        figures = {}
        for count in counts:
            collection = self.collection(count)
            profile = self.folder / f"profile-{count}"
            steps = self.steps(collection, profile)
            duplicates = self.program("hoopline-cli", "duplicates", "--catalogue",
                                      profile / "catalogue.xml")
            figures[count] = {
                "import, wall time": (steps["import"][0], seconds),
                "import, processor": (steps["import"][1], seconds),
                "unchanged rescan": (steps["unchanged rescan"][1] * 1e3, milliseconds),
                "find -printf": (self.find(collection) * 1e3, milliseconds),
                "hoopline-cli duplicates": (duplicates.processor, seconds),
            }
            subprocess.run(["rm", "-r", collection, profile], check=True)
        self.tables.grow("Import, by the number of files", counts, figures)

    def catalogue(self, count):
        """A catalogue file of so many records, in a data folder of its own."""
        folder = self.folder / f"records-{count}"
        path = folder / "hoopline-organizer.xml"
        if not path.exists():
            folder.mkdir()
            self.program("catalogue-file", "make", path, count)
        return path

    def catalogue_figures(self, step, path):
        runs = [self.program("catalogue-file", step, path).figures() for _ in range(3)]
        return {name: statistics.median(one[name] for one in runs) for name in runs[0]}

    def measure_file(self):
        counts = [100, 1000, 10000, 20000 if self.quick else 100000]
        figures = {}
        for count in counts:
            path = self.catalogue(count)
            load = self.catalogue_figures("load", path)
            read = self.catalogue_figures("read", path)
            figures[count] = {
                "load, processor": (load["processor"], milliseconds),
                "stream reader": (read["processor"], milliseconds),
                "memory with it loaded": (load["resident"], mebibytes),
                "memory at most while it loads": (load["peak"], mebibytes),
                "the file": (path.stat().st_size, mebibytes),
            }
        last = figures[counts[-1]]
        compare = self.tables.compare
        compare(f"load of {counts[-1]} records", milliseconds, last["load, processor"][0],
                "stream reader", last["stream reader"][0], most=1.2)
        for name, most in (("memory with it loaded", 2.5), ("memory at most while it loads", None)):
            compare(name, mebibytes, last[name][0], "the file", last["the file"][0], most=most)
        self.tables.grow("The catalogue file, by the number of records", counts[1:], figures)

    def measure_window(self):
        counts = [100, 1000, 10000] if self.quick else [100, 1000, 10000, 100000]
        figures = {}
        for count in counts:
            measured = self.program("window-actions", self.catalogue(count).parent).figures()
            figures[count] = {name: (value, mebibytes if name.startswith("memory") else milliseconds)
                              for name, value in measured.items()}
        last = counts[-1]
        writer = self.program("catalogue-file", "copy", self.catalogue(last)).figures()["processor"]
        goals = {"later key": 50, "totals, in slices of 4 ms": None}
        for name, (value, show) in figures[last].items():
            yardstick, at_few = f"{counts[0]} cards", figures[counts[0]][name][0]
            if name == "save, all threads":
                yardstick, at_few = "stream writer", writer
            bound = None if "all threads" in name or show is mebibytes else goals.get(name, 100)
            goal = {"most": 1.5} if name == "scroll" else {"bound": bound}
            self.tables.compare(f"{last} cards: {name}", show, value, yardstick, at_few, **goal)
        self.tables.grow("The window, by the number of cards", counts, figures)


def machine():
    model = "unknown processor"
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            model = line.split(":", 1)[1].strip()
            break
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES")
    system = os.uname()
    return (f"{model}, {os.cpu_count()} cores, {memory / 1024 ** 3:.0f} GiB, "
            f"{system.sysname} {system.release}")


BEGIN, END = "<!-- tables: bench.sh --write -->\n", "<!-- end of the tables -->\n"


def text_of(sections):
    return "\n".join(f"### {title}\n\n{text}" for title, text in sections.items())


def write_into(document, sections):
    before, rest = document.read_text().split(BEGIN)
    old, after = rest.split(END)
    kept = (part.split("\n", 1) for part in old.split("### ")[1:])
    merged = {**{title: text.strip() + "\n" for title, text in kept}, **sections}
    document.write_text(f"{before}{BEGIN}\n{text_of(merged)}\n{END}{after}")


def main(arguments):
    programs = Path(arguments.pop(0)).resolve() if arguments else None
    quick = "--quick" in arguments
    words = [word for word in arguments if word != "--quick"]
    document = None
    if "--write" in words:
        place = words.index("--write")
        document = Path((words[place + 1:] or [""])[0])
        del words[place:place + 2]
        if not document.is_file() or BEGIN not in document.read_text():
            sys.exit("measure.py: --write needs the document that holds the tables.")
    known = ["import", "file", "window", "growth"]
    if not programs or any(word not in known for word in words):
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory(prefix="bench-") as folder:
        benchmarks = Benchmarks(programs, Path(folder), quick)
        (benchmarks.folder / "home").mkdir()
        for part in words or known[:3]:
            getattr(benchmarks, f"measure_{part}")()
    sections = benchmarks.tables.sections()
    print(text_of(sections), end="", flush=True)
    if document:
        write_into(document, sections)


main(sys.argv[1:])
