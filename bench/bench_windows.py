"""The real windows, off-screen and under Xvfb: the start beside that of a minimal program, and an export of many small
files beside the same journey without a window."""

import os
import subprocess
import tempfile
import time

from generate import program_set
from measuring import WORK, fail, fresh, wall

JOURNEY = "demo off\nsave-results off\nclassify\nexport replace\nresults\n"
PAUSES = 0.7  # seconds that an export in its window waits by design
IDLE = 0.5
STARTED = ("program", "controls", "label")


class WindowBench:
    """The ways to start, and the figures of all rounds."""

    def __init__(self, build, journey, figures, records, starts):
        self.build = build
        self.journey = journey
        self.figures = figures
        self.starts = starts
        self.has_windows = (build / "bench/start_bench").exists()
        self.program = program_set(WORK / "sets", records, records // 50, 20) / "program"
        self.private = tempfile.TemporaryDirectory()  # of options and lock
        self.platforms = ["offscreen"]
        self.xvfb = None

    def note(self, name, value):
        self.figures.setdefault(name, []).append(value)

    def prepare(self):
        if not self.has_windows:
            return
        self.xvfb = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                                     stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.display = ":" + self.xvfb.stdout.readline().decode().strip()
        self.platforms.append("xcb")
        for platform in self.platforms:
            self.start_all(platform)  # fills the caches and stores the options

    def tidy(self):
        self.private.cleanup()
        if self.xvfb:
            self.xvfb.terminate()
            self.xvfb.wait()

    def round(self, _):
        if not self.has_windows:
            return
        for platform in self.platforms:
            for _ in range(self.starts):
                for who, seconds in zip(STARTED, self.start_all(platform)):
                    self.note(f"start {who} {platform}", seconds)
            for who in STARTED:
                self.note(f"memory idle {who} {platform}", self.idle_memory(self.command(who), platform))
            self.note(f"export {platform}", self.export(platform) - PAUSES)
        target = fresh(self.program / "txt/SpeedCamText.txt")
        self.note("journey", wall([self.journey, str(self.program)], JOURNEY))
        if target.read_bytes() != self.exported:
            fail("the export in its window differs from that without one")

    def command(self, who):
        if who == "program":
            return [str(self.build / "bench/start_bench"), str(self.build / "halvenmoor"), self.private.name]
        return [str(self.build / "bench/minimal_window"), who]

    def environment(self, platform):
        display = {} if platform == "offscreen" else {"DISPLAY": self.display}
        return {**os.environ, "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": platform, **display}

    def start_all(self, platform):
        """Seconds on the clock from exec to the first painted window, of the program and of the minimal ones."""
        return [self.seconds(self.command(who), platform) for who in STARTED]

    def seconds(self, command, platform):
        start = time.monotonic()
        self.run(command, platform)
        return time.monotonic() - start

    def run(self, command, platform):
        result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                env=self.environment(platform))
        if result.returncode != 0:
            fail(f"{command[0]} ended with status {result.returncode}")
        return result.stdout

    def idle_memory(self, command, platform):
        """MiB that are the process's own, shared pages in parts."""
        child = subprocess.Popen([*command, "stay"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                 env=self.environment(platform))
        if child.stdout.readline() != b"painted\n":
            fail(f"{command[0]} shows no window")
        time.sleep(IDLE)
        with open(f"/proc/{child.pid}/smaps_rollup") as file:
            kib = next(int(line.split()[1]) for line in file if line.startswith("Pss:"))
        child.kill()
        child.wait()
        return kib / 1024

    def export(self, platform):
        """Seconds on the clock from the click to the results."""
        target = fresh(self.program / "txt/SpeedCamText.txt")
        os.sync()
        seconds = float(self.run([str(self.build / "bench/export_bench"), str(self.program)], platform))
        self.exported = target.read_bytes()
        return seconds

    def rows(self):
        """(what, its figure, compared with, its figure, limit or None, difference instead of ratio)"""
        if not self.has_windows:
            return
        files = len(list((self.program / "asc").iterdir()))
        for platform in self.platforms:
            where = "off-screen" if platform == "offscreen" else "under Xvfb"
            for what, figure in ("by the clock: start", "start"), ("idle memory", "memory idle"):
                # A window with these controls costs more than a label, whoever makes it: that is no target.
                program, controls = f"{figure} program {platform}", f"{figure} controls {platform}"
                label = f"{figure} label {platform}"
                yield f"{what} {where}", program, "Qt's controls alone", controls, 1.2, False
                yield "for scale: the same", program, "one label", label, None, False
                yield "for scale: Qt's controls alone", controls, "one label", label, None, False
            yield (f"by the clock: {files:,} files in the window {where}, less {PAUSES} s of pauses",
                   f"export {platform}", "without a window", "journey", 1.3, False)
