"""Reads the real main window as a screen reader does, over AT-SPI on a display and a bus of its own, exports by the
actions of its buttons, and hears the end of the export.

    screen_reader_test.py PROGRAM

Ends with status 77 where something that it needs is not installed.
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
SKIPPED = 77
TIMEOUT = 60  # seconds

# What has to be in the window, as (role, name).
EXPECTED = [
    ("frame", "Halvenmoor 3.2"),
    ("list", "Speed Camera Files (Unclassified)"),
    ("list", 'Speed Camera Type "1" (Fixed Speed Camera)'),
    ("push button", "Classify Files"),
    ("push button", 'Speed Camera Files (Unclassified) → Speed Camera Type "3" (Red Light Camera)'),
    ("check box", "Demonstration Mode"),
    ("radio button", "Replace File"),
    ("panel", "Export Cameras"),
]
HEARD = "Export Speed Cameras \u2713, Files Processed: 1, Exported Cameras: 1, Skipped Cameras: 0"


def skip(reason):
    print("skipped:", reason)
    sys.exit(SKIPPED)


def display():
    """Starts a display; its name and the process."""
    # By default it begins anew when its last client leaves, and turns away who comes at that moment.
    readable, writable = os.pipe()
    process = subprocess.Popen(["Xvfb", "-noreset", "-displayfd", str(writable), "-screen", "0", "1024x768x24"],
                               pass_fds=[writable], stderr=subprocess.DEVNULL)
    os.close(writable)
    with os.fdopen(readable) as number:
        return ":" + number.readline().strip(), process


def elements(element):
    yield element
    for i in range(element.get_child_count()):
        child = element.get_child_at_index(i)
        if child is not None:
            yield from elements(child)


def notifications(reader, window):
    """What is announced when an export has been started."""
    from gi.repository import GLib
    heard = []

    def on_event(event):
        try:
            if event.source.get_role_name() == "notification" and event.detail1 == 1:
                heard.append(event.source.get_name())
                reader.event_quit()
        except GLib.Error:
            pass  # of a window that has closed meanwhile

    listener = reader.EventListener.new(on_event)
    listener.register("object:state-changed:showing")
    buttons = {element.get_name(): element for element in elements(window) if element.get_role_name() == "push button"}
    for name in ("Classify Files", "Export"):
        end = time.monotonic() + TIMEOUT
        while not buttons[name].get_state_set().contains(reader.StateType.ENABLED) and time.monotonic() < end:
            time.sleep(0.1)
        reader.Action.do_action(buttons[name], 0)
    GLib.timeout_add_seconds(TIMEOUT // 2, reader.event_quit)
    reader.event_main()
    return heard


def window_of(reader, process):
    """The program's window, once it is there."""
    end = time.monotonic() + TIMEOUT
    while time.monotonic() < end and process.poll() is None:
        desktop = reader.get_desktop(0)
        for i in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(i)
            if program is not None and program.get_process_id() == process.pid and program.get_child_count() > 0:
                return program.get_child_at_index(0)
        time.sleep(0.2)
    if process.poll() == 0:
        skip("another instance is running")
    sys.exit("no window was told of")


def read_window(program, home):
    name, screen = display()
    os.environ.update(DISPLAY=name, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, QT_QPA_PLATFORM="xcb",
                      QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", ASAN_OPTIONS="detect_leaks=0")
    # The launcher starts others, which would outlive it and keep the output open.
    launcher = subprocess.Popen([BUS_LAUNCHER, "--launch-immediately"], start_new_session=True,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    folder = os.path.join(home, "program")
    os.makedirs(os.path.join(folder, "demo", "asc_demo"))
    os.makedirs(os.path.join(folder, "demo", "txt_demo"))
    with open(os.path.join(folder, "Settings.ini"), "w") as settings:
        settings.write("[Type1]\nfixed*\n")
    with open(os.path.join(folder, "demo", "asc_demo", "fixed.asc"), "w") as camera:
        camera.write('1.5, 2.5, "one"\n')
    running = subprocess.Popen([shutil.copy(program, folder)])
    try:
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        window = window_of(Atspi, running)
        found = {(element.get_role_name(), element.get_name()) for element in elements(window)}
        return found, notifications(Atspi, window)
    finally:
        running.kill()
        os.killpg(launcher.pid, signal.SIGKILL)
        screen.kill()


def main():
    for tool in ("Xvfb", "dbus-run-session", BUS_LAUNCHER):
        if shutil.which(tool) is None:
            skip(f"{tool} is not installed")
    if subprocess.run([sys.executable, "-c", "import gi; gi.require_version('Atspi', '2.0')"],
                      stderr=subprocess.DEVNULL).returncode != 0:
        skip("the AT-SPI bindings of Python are not installed")
    if sys.argv[1] != "--on-own-bus":
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, __file__, "--on-own-bus", sys.argv[1]])
    with tempfile.TemporaryDirectory() as home:
        os.chmod(home, 0o700)
        found, heard = read_window(sys.argv[2], home)
    missing = [element for element in EXPECTED if element not in found]
    nameless = [element for element in found if not element[1] and element[0] in ("push button", "list", "check box", "text")]
    if missing or nameless or heard != [HEARD]:
        print("missing:", missing, "nameless:", nameless, "heard:", heard, "found:", *sorted(found), sep="\n")
        sys.exit(1)


main()
