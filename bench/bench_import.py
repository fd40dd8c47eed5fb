"""Imports of OV2 and TXT sources, beside cat, mawk, Python and gpsbabel."""

import os
import shutil
import subprocess
import sys
import tempfile

from generate import import_set
from measuring import HERE, WORK, fail, fresh, measure, play

USED = WORK / "used"
FILES = 10
SPEEDS, MANY_SPEEDS = 40, 640


class ImportBench:
    """The sets of sources, the ways to import them, and the figures of all rounds."""

    def __init__(self, build, journey, figures, records):
        self.journey = journey
        self.import_bench = build / "bench/import_bench"
        self.figures = figures
        self.records = records
        self.has_gpsbabel = shutil.which("gpsbabel") is not None
        sizes = {"main": (records, SPEEDS), "quarter": (records // 4, SPEEDS), "fourfold": (records * 4, SPEEDS)}
        self.sets = {(kind, name): import_set(WORK / "sets", kind, count, FILES, speeds)
                     for kind in ("ov2", "txt") for name, (count, speeds) in sizes.items()}
        self.sets["txt", "speeds"] = import_set(WORK / "sets", "txt", records, FILES, MANY_SPEEDS)

    def sources(self, kind, name):
        return [str(path) for path in sorted((self.sets[kind, name] / "program/import" / kind).iterdir())]

    def expected(self, kind, name):
        return WORK / "expected" / f"{kind}-{name}"

    def note(self, name, value):
        self.figures.setdefault(name, []).append(value)

    def prepare(self):
        for kind, name in self.sets:
            self.python(kind, name, self.expected(kind, name))
        size = sum(len(path.read_bytes()) for path in self.sets["txt", "main"].glob("program/import/txt/*"))
        self.note("txt sources", size / 2**20)

    def python(self, kind, name, target):
        command = [sys.executable, "-B", f"{HERE}/imports.py", kind, str(fresh_folder(target))]
        return measure(command + self.sources(kind, name))[0]

    def baselines(self, kind):
        self.note(f"cat {kind}", measure(["cat", *self.sources(kind, "main")], output=fresh(WORK / "cat.txt"))[0])
        if kind == "txt":
            target = fresh_folder(WORK / "mawk-txt")
            command = ["mawk", "-v", f"target={target}", "-f", f"{HERE}/import.awk"]
            self.note("mawk txt", measure(command + self.sources("txt", "main"))[0])
            self.compare("txt", "main", "mawk", target)
        elif self.has_gpsbabel:
            files = [word for source in self.sources("ov2", "main") for word in ("-f", source)]
            command = ["gpsbabel", "-i", "tomtom", *files, "-o", "unicsv", "-F", str(fresh(WORK / "gpsbabel.csv"))]
            self.note("gpsbabel ov2", measure(command)[0])

    def program(self, kind, name, watch_memory=False):
        folder = self.sets[kind, name] / "program"
        target = fresh_folder(folder / "asc")
        seconds, peak, _ = play(self.journey, folder, f"demo off\nimport {kind}\n", watch_memory)
        self.compare(kind, name, "program", target)
        if watch_memory:
            self.note(f"memory {kind} {name}", peak)
        else:
            self.note(f"import {kind} {name}", seconds)

    def window(self, kind):
        """The same in the real dialog, by an executable of its own, which prints the CPU seconds without the start."""
        if not self.import_bench.exists():
            return
        folder = self.sets[kind, "main"] / "program"
        target = fresh_folder(folder / "asc")
        self.note(f"window {kind}", float(measure([str(self.import_bench), str(folder), kind])[2]))
        self.compare(kind, "main", "window", target)

    def compare(self, kind, name, who, target):
        if subprocess.run(["diff", "-r", "-q", self.expected(kind, name), target]).returncode != 0:
            fail(f"{who} and Python import the {kind} set {name} differently")

    def round(self, number):
        for kind in ("ov2", "txt"):
            self.baselines(kind)
            self.window(kind)
        for kind, name in self.sets:
            self.program(kind, name)
        if number >= 3:
            return
        for kind in ("ov2", "txt"):
            self.note(f"python {kind}", self.python(kind, "main", WORK / "python"))
        for kind, name in (("ov2", "quarter"), ("ov2", "fourfold"), ("txt", "main")):
            self.program(kind, name, watch_memory=True)

    def tidy(self):
        shutil.rmtree(USED, ignore_errors=True)

    def rows(self):
        """(what, its figure, compared with, its figure, limit or None, difference instead of ratio)"""
        base, quarter, fourfold = (f"{count:,}" for count in (self.records, self.records // 4, self.records * 4))
        yield f"OV2 import of {base} points, {FILES} files", "import ov2 main", "cat", "cat ov2", 6.0, False
        if self.has_gpsbabel:
            yield "the same", "import ov2 main", "gpsbabel", "gpsbabel ov2", 0.08, False
        yield "the same", "import ov2 main", "Python", "python ov2", None, False
        if "window ov2" in self.figures:
            yield "the same in the real dialog, without start", "window ov2", "cat", "cat ov2", None, False
        yield f"{base} points", "import ov2 main", f"{quarter} points", "import ov2 quarter", 4.4, False
        yield f"{fourfold} points", "import ov2 fourfold", f"{base} points", "import ov2 main", 4.4, False
        few, many = "memory ov2 quarter", "memory ov2 fourfold"
        yield f"peak memory of {fourfold} points", many, f"{quarter} points", few, 2.0, True
        lines = f"{base} lines, {FILES} files, {SPEEDS} speeds"
        yield f"TXT import of {lines}", "import txt main", "mawk", "mawk txt", 0.30, False
        if "window txt" in self.figures:
            yield "the same in the real dialog, without start", "window txt", "mawk", "mawk txt", 0.40, False
        yield "the same", "import txt main", "cat", "cat txt", None, False
        yield "the same", "import txt main", "Python", "python txt", None, False
        yield f"{MANY_SPEEDS} speeds", "import txt speeds", f"{SPEEDS} speeds", "import txt main", 2.0, False
        yield f"{base} lines", "import txt main", f"{quarter} lines", "import txt quarter", 4.4, False
        yield f"{fourfold} lines", "import txt fourfold", f"{base} lines", "import txt main", 4.4, False
        yield f"peak memory of {base} lines", "memory txt main", "size of the sources", "txt sources", 3.0, False


def fresh_folder(path):
    """An empty folder at this path. The old one is set aside, since creating files can be slow after deleting many."""
    if path.exists():
        for file in path.iterdir():
            os.truncate(file, 0)
        USED.mkdir(parents=True, exist_ok=True)
        path.rename(tempfile.mkdtemp(dir=USED))
    path.mkdir(parents=True)
    return path
