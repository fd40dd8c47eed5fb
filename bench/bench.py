"""Measures CPU time (user and system) of exports and of the lists, and prints one table.

The program is driven through its command-line twin `journey`. All rows come from one run with interleaved rounds, since
only ratios of the same minute mean anything. Every output is compared byte by byte with that of the baselines: a
difference ends the run with status 1. A missed target does not, it is shown.
"""

import argparse
import os
import resource
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from generate import program_set

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent
WORK = ROOT / "build/bench"
EXPORT = "demo off\nsave-results off\nclassify\nexport replace\nresults\n"
LISTS = "demo off\n" + "classify\nreload\n" * 5


def fail(message):
    sys.exit(f"bench: {message}")


def measure(command, steps="", output=None, watch_memory=False):
    """CPU seconds, peak memory in MiB (if watched) and standard output (if not sent to a file) of one run."""
    with tempfile.TemporaryFile() as stdin, open(output, "wb") if output else tempfile.TemporaryFile() as stdout:
        stdin.write(steps.encode())
        stdin.seek(0)
        environment = {**os.environ, "LC_ALL": "C", "QT_QPA_PLATFORM": "offscreen"}
        child = subprocess.Popen(command, stdin=stdin, stdout=stdout, env=environment)
        polled = watch_peak(child.pid) if watch_memory else 0
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
        stdout.seek(0)
        text = "" if output else stdout.read().decode()
    if child.returncode != 0:
        fail(f"{command[0]} ended with status {child.returncode}")
    # A child begins with the peak of its parent on its account, so a smaller one shows only in what was polled.
    own = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    peak = usage.ru_maxrss if watch_memory and usage.ru_maxrss > own else polled
    return usage.ru_utime + usage.ru_stime, peak / 1024, text


def watch_peak(pid):
    """The last peak of resident memory in KiB that the child showed before it ended."""
    peak = 0
    while os.waitid(os.P_PID, pid, os.WEXITED | os.WNOWAIT | os.WNOHANG) is None:
        for line in Path(f"/proc/{pid}/status").read_text().splitlines():
            if line.startswith("VmHWM:"):
                peak = int(line.split()[1])
        time.sleep(0.001)
    return peak


class Bench:
    """The sets of camera files, the ways to run an export over them, and the figures of all rounds."""

    def __init__(self, build, records, per_file):
        self.journey = str(build / "tools/journey")
        self.lists_bench = build / "bench/lists_bench"
        self.figures = {}
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
        seconds, peak, answers = measure([self.journey, str(folder)], EXPORT, watch_memory=watch_memory)
        self.check_steps(EXPORT, answers)
        counters = [word for line in answers.splitlines() if len(line.split()) == 3 for word in line.split()]
        self.compare(name, "program", target, counters)
        self.note(f"memory {name}" if watch_memory else f"program {name}", peak if watch_memory else seconds)

    def journey_steps(self, name, set_name, steps):
        seconds, _, answers = measure([self.journey, str(self.sets[set_name] / "program")], steps)
        self.check_steps(steps, answers)
        self.note(name, seconds)

    def batches(self):
        """Moves in batches are measured by an executable of their own, which prints lines NAME N CPU_SECONDS."""
        if not self.lists_bench.exists():
            return
        for line in measure([str(self.lists_bench)])[2].splitlines():
            name, count, seconds = line.split()
            self.note((name, int(count)), float(seconds))

    def check_steps(self, steps, answers):
        if answers.splitlines().count("ok") != len(steps.splitlines()):
            fail(f"journey did not answer ok to every step:\n{answers}")

    def compare(self, name, who, target, counters):
        expected_target, expected_counters = self.expected[name]
        if not target.exists() or subprocess.run(["cmp", expected_target, target]).returncode != 0:
            fail(f"{who} and mawk differ on set {name}: {target} {expected_target}")
        if counters != expected_counters:
            fail(f"{who} and mawk count differently on set {name}: {counters} {expected_counters}")

    def run(self, rounds):
        for name in self.sets:
            if name not in ("main", "lists"):
                self.mawk(name)
        for number in range(rounds):
            print(f"round {number + 1} of {rounds}", file=sys.stderr)
            self.cat()
            self.mawk("main")
            for name in ("main", "patterns", "files", "quarter", "fourfold"):
                self.program(name)
            self.journey_steps("start", "main", "")
            self.journey_steps("lists small", "lists", LISTS)
            self.journey_steps("lists big", "files", LISTS)
            self.batches()
            if number < 3:
                self.python("main")
                self.program("quarter", watch_memory=True)
                self.program("fourfold", watch_memory=True)


def fresh(path):
    """A path whose old file is gone, so that no run pays for freeing its pages."""
    path.unlink(missing_ok=True)
    return path


def rows(bench, records, per_file):
    """(what, its figure, compared with, its figure, limit or None, difference instead of ratio)"""
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
    sizes = {}
    for name, count in (key for key in bench.figures if isinstance(key, tuple)):
        sizes.setdefault(name, []).append(count)
    for name, counts in sizes.items():
        big, small = max(counts), min(counts)
        yield f"{name}: {big:,} entries", (name, big), f"{small:,} entries", (name, small), 5.0, False


def print_table(bench, records, per_file, quick):
    table = [("what", "CPU s, median (spread)", "rounds", "compared with", "CPU s, median (spread)", "rounds", "ratio",
              "target", "reached")]
    for what, figure, other, other_figure, limit, difference in rows(bench, records, per_file):
        values, others = bench.figures[figure], bench.figures[other_figure]
        value, reference = statistics.median(values), statistics.median(others)
        result = value - reference if difference else value / reference if reference else float("nan")
        unit = " MiB" if difference else ""
        table.append((what, spread(values) + unit, len(values), other, spread(others) + unit, len(others),
                      f"{result:+.2f}{unit}" if difference else f"{result:.3f}",
                      "" if limit is None else f"<= {'+' if difference else ''}{limit:g}{unit}",
                      "" if limit is None or quick else "yes" if result <= limit else "no"))
    widths = [max(len(str(row[i])) for row in table) for i in range(len(table[0]))]
    for row in table:
        print(" | ".join(str(cell).ljust(width) for cell, width in zip(row, widths)).rstrip())
        if row is table[0]:
            print("-|-".join("-" * width for width in widths))
    print("Nothing is subtracted: every figure of the program includes its start. Outputs were the same to the byte.")
    if quick:
        print("Quick sizes: they show that the bench works, not whether targets are reached.")


def spread(values):
    return f"{statistics.median(values):.3f} ({min(values):.3f} - {max(values):.3f})"


def main():
    parser = argparse.ArgumentParser(description="Measures exports and lists against cat, mawk and Python.")
    parser.add_argument("--quick", action="store_true", help="10,000 records, 3 rounds: does the bench still work?")
    parser.add_argument("--build", type=Path, default=ROOT / "build/release", help="the build folder to measure")
    options = parser.parse_args()
    records, per_file, rounds = (10_000, 500, 3) if options.quick else (1_000_000, 5_000, 7)
    bench = Bench(options.build, records, per_file)
    if not os.access(bench.journey, os.X_OK):
        fail(f"{bench.journey} is not there; build it first")
    bench.run(rounds)
    print_table(bench, records, per_file, options.quick)


if __name__ == "__main__":
    main()
