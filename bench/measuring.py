"""Runs a command and tells what it cost."""

import os
import resource
import subprocess
import sys
import tempfile
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent
WORK = ROOT / "build/bench"
MEMORY = "/dev/shm"


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


def wall(command, steps=""):
    """Seconds on the clock, begun when the disk has nothing left to write."""
    os.sync()
    start = time.monotonic()
    measure(command, steps)
    return time.monotonic() - start


def watch_peak(pid):
    """The last peak of resident memory in KiB that the child showed before it ended."""
    peak = 0
    while os.waitid(os.P_PID, pid, os.WEXITED | os.WNOWAIT | os.WNOHANG) is None:
        for line in Path(f"/proc/{pid}/status").read_text().splitlines():
            if line.startswith("VmHWM:"):
                peak = int(line.split()[1])
        time.sleep(0.001)
    return peak


def play(journey, program, steps, watch_memory=False):
    """What `measure` tells of a journey through these steps, all of which have to succeed."""
    seconds, peak, answers = measure([journey, str(program)], steps, watch_memory=watch_memory)
    if answers.splitlines().count("ok") != len(steps.splitlines()):
        fail(f"journey did not answer ok to every step:\n{answers}")
    return seconds, peak, answers


def fresh(path):
    """A path whose old file is gone, so that no run pays for freeing its pages."""
    path.unlink(missing_ok=True)
    return path
