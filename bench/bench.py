"""Measures CPU time (user and system) of exports, imports and the lists, and prints one table. What a medium costs and
what happens in real windows is measured by the clock.

The program is driven through its command-line tool `journey`. All rows come from one run with interleaved rounds, since
only ratios of the same minute mean anything. Every output is compared byte by byte with that of the baselines: a
difference ends the run with status 1. A missed target does not, it is shown.
"""

import argparse
import os
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

from bench_import import ImportBench
from bench_windows import WindowBench
from generate import program_set
from measuring import HERE, MEMORY, ROOT, WORK, fail, fresh, measure, play, wall

EXPORT = "demo off\nsave-results off\nclassify\nexport replace\nresults\n"
SAVE_AS = "demo off\nsave-results off\nclassify\nexport save-as {}\n"
LISTS = "demo off\n" + "classify\nreload\n" * 5


class ExportBench:
    """The sets of camera files, the ways to run an export over them, and the figures of all rounds."""

    def __init__(self, build, journey, figures, records, per_file):
        self.journey = journey
        self.lists_bench = build / "bench/lists_bench"
        self.figures = figures
        self.records = records
        self.per_file = per_file
        sizes = {
            "main": (records, records // per_file, 20),
            "patterns": (records, records // per_file, 200),
            "files": (records, records // 50, 20),
            "quarter": (records // 4, records // 4 // per_file, 20),
            "fourfold": (records * 4, records * 4 // per_file, 20),
            "lists": (records // 4, records // 200, 20),
        }
        self.sets = {name: program_set(WORK / "sets", *size) for name, size in sizes.items()}
        self.expected = {}

    def note(self, name, seconds):
        self.figures.setdefault(name, []).append(seconds)

    def cat(self):
        target = fresh(WORK / "cat.txt")
        files = sorted((self.sets["main"] / "program/asc").iterdir())
        self.note("cat", measure(["cat", *map(str, files)], output=target)[0])

    def mawk(self, name):
        target, plan = fresh(WORK / f"mawk-{name}.txt"), self.sets[name] / "plan.tsv"
        command = ["mawk", "-v", f"plan={plan}", "-v", f"target={target}", "-f", f"{HERE}/export.awk"]
        seconds, _, counters = measure(command)
        self.expected.setdefault(name, (target, counters.split()))
        self.note(f"mawk {name}", seconds)

    def python(self, name):
        target = fresh(WORK / f"python-{name}.txt")
        command = [sys.executable, "-B", f"{HERE}/export.py", str(self.sets[name] / "plan.tsv"), str(target)]
        seconds, _, counters = measure(command)
        self.compare(name, "Python", target, counters.split())
        self.note(f"python {name}", seconds)

    def program(self, name, watch_memory=False):
        folder = self.sets[name] / "program"
        target = fresh(folder / "txt/SpeedCamText.txt")
        seconds, peak, answers = play(self.journey, folder, EXPORT, watch_memory)
        counters = [word for line in answers.splitlines() if len(line.split()) == 3 for word in line.split()]
        self.compare(name, "program", target, counters)
        self.note(f"memory {name}" if watch_memory else f"program {name}", peak if watch_memory else seconds)

    def journey_steps(self, name, set_name, steps):
        self.note(name, play(self.journey, self.sets[set_name] / "program", steps)[0])

    def medium(self):
        """What it costs to bring a target to the disk; in memory there is nothing to bring."""
        folder, on_disk = self.sets["main"] / "program", fresh(WORK / "on-disk.txt")
        with tempfile.TemporaryDirectory(dir=MEMORY) as memory:
            in_memory = Path(memory) / "target.txt"
            without = wall([self.journey, str(folder)], SAVE_AS.format(in_memory))
            with_medium = wall([self.journey, str(folder)], SAVE_AS.format(on_disk))
            if subprocess.run(["cmp", in_memory, on_disk]).returncode != 0:
                fail("the targets on disk and in memory differ")
            self.note("medium dd", wall(["dd", f"if={in_memory}", f"of={fresh(WORK / 'dd.txt')}", "bs=64K",
                                         "conv=fsync", "status=none"]))
        self.note("medium with", with_medium)
        self.note("medium without", without)
        self.note("medium cost", with_medium - without)

    def batches(self):
        """Moves in batches are measured by an executable of their own, which prints lines NAME N CPU_SECONDS."""
        if not self.lists_bench.exists():
            return
        for line in measure([str(self.lists_bench)])[2].splitlines():
            name, count, seconds = line.split()
            self.note((name, int(count)), float(seconds))

    def compare(self, name, who, target, counters):
        expected_target, expected_counters = self.expected[name]
        if not target.exists() or subprocess.run(["cmp", expected_target, target]).returncode != 0:
            fail(f"{who} and mawk differ on set {name}: {target} {expected_target}")
        if counters != expected_counters:
            fail(f"{who} and mawk count differently on set {name}: {counters} {expected_counters}")

    def prepare(self):
        for name in self.sets:
            if name not in ("main", "lists"):
                self.mawk(name)

    def round(self, number):
        self.cat()
        self.mawk("main")
        for name in ("main", "patterns", "files", "quarter", "fourfold"):
            self.program(name)
        self.journey_steps("start", "main", "")
        self.journey_steps("lists small", "lists", LISTS)
        self.journey_steps("lists big", "files", LISTS)
        self.batches()
        self.medium()
        if number < 3:
            self.python("main")
            self.program("quarter", watch_memory=True)
            self.program("fourfold", watch_memory=True)

    def rows(self):
        """(what, its figure, compared with, its figure, limit or None, difference instead of ratio)"""
        records, per_file = self.records, self.per_file
        base = f"{records:,} records, {records // per_file} files, 20 patterns"
        quarter, fourfold = f"{records // 4:,} records", f"{records * 4:,} records"
        many, few = f"{records // 50:,} entries", f"{records // 200:,} entries"
        yield f"export of {base}", "program main", "cat", "cat", 6.0, False
        yield "the same", "program main", "mawk", "mawk main", 0.08, False
        yield "the same", "program main", "Python", "python main", None, False
        yield "for scale: mawk", "mawk main", "cat", "cat", None, False
        yield "for scale: start without steps", "start", "the export", "program main", None, False
        yield "200 patterns", "program patterns", "20 patterns", "program main", 1.5, False
        yield f"{records // 50:,} files", "program files", f"{records // per_file} files", "program main", 2.5, False
        yield f"{records:,} records", "program main", quarter, "program quarter", 4.4, False
        yield fourfold, "program fourfold", f"{records:,} records", "program main", 4.4, False
        yield f"peak memory of {fourfold}", "memory fourfold", quarter, "memory quarter", 2.0, True
        yield f"5 x classify, reload: {many}", "lists big", few, "lists small", 5.0, False
        yield "by the clock: target on disk", "medium with", "in memory", "medium without", None, False
        yield "by the clock: the disk's share", "medium cost", "dd conv=fsync", "medium dd", 1.3, False
        sizes = {}
        for name, count in (key for key in self.figures if isinstance(key, tuple)):
            sizes.setdefault(name, []).append(count)
        for name, counts in sizes.items():
            big, small = max(counts), min(counts)
            yield f"{name}: {big:,} entries", (name, big), f"{small:,} entries", (name, small), 5.0, False


def print_table(figures, rows, quick):
    table = [("what", "CPU s, median (spread)", "rounds", "compared with", "CPU s, median (spread)", "rounds", "ratio",
              "target", "reached")]
    for what, figure, other, other_figure, limit, difference in rows:
        values, others = figures[figure], figures[other_figure]
        value, reference = statistics.median(values), statistics.median(others)
        result = value - reference if difference else value / reference if reference else float("nan")
        unit = " MiB" if str(figure).startswith("memory") else ""
        table.append((what, spread(values) + unit, len(values), other, spread(others) + unit, len(others),
                      f"{result:+.2f}{unit}" if difference else f"{result:.3f}",
                      "" if limit is None else f"<= +{limit:g}{unit}" if difference else f"<= {limit:g}",
                      "" if limit is None or quick else "yes" if result <= limit else "no"))
    widths = [max(len(str(row[i])) for row in table) for i in range(len(table[0]))]
    for row in table:
        print(" | ".join(str(cell).ljust(width) for cell, width in zip(row, widths)).rstrip())
        if row is table[0]:
            print("-|-".join("-" * width for width in widths))
    print("Every program figure includes its start unless its row says otherwise. Outputs were the same to the byte.")
    if quick:
        print("Quick sizes: they show that the bench works, not whether targets are reached.")


def spread(values):
    return f"{statistics.median(values):.3f} ({min(values):.3f} - {max(values):.3f})"


def main():
    parser = argparse.ArgumentParser(description="Measures exports, imports and lists against other tools.")
    parser.add_argument("--quick", action="store_true", help="10,000 records, 3 rounds: does the bench still work?")
    parser.add_argument("--build", type=Path, default=ROOT / "build/release", help="the build folder to measure")
    options = parser.parse_args()
    records, per_file, rounds = (10_000, 500, 3) if options.quick else (1_000_000, 5_000, 7)
    journey = str(options.build / "tools/journey")
    if not os.access(journey, os.X_OK):
        fail(f"{journey} is not there; build it first")
    figures = {}
    imports = ImportBench(options.build, journey, figures, records)
    windows = WindowBench(options.build, journey, figures, records, starts=2 if options.quick else 10)
    benches = [ExportBench(options.build, journey, figures, records, per_file), imports, windows]
    try:
        for bench in benches:
            bench.prepare()
        for number in range(rounds):
            print(f"round {number + 1} of {rounds}", file=sys.stderr)
            for bench in benches:
                bench.round(number)
    finally:
        windows.tidy()
    imports.tidy()
    print_table(figures, [row for bench in benches for row in bench.rows()], options.quick)


if __name__ == "__main__":
    main()
