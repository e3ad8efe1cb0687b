"""Measures the desktop program against a bare program with an item in the status area, on a display
and a session bus made for it."""

import contextlib
import os
import pathlib
import select
import statistics
import subprocess
import tempfile
import time

BUS = """<busconfig><type>session</type><listen>unix:path={}</listen>
<policy context="default"><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>"""


@contextlib.contextmanager
def desktop(folder):
    """The environment of a desktop of its own that lives as long as the block."""
    config = pathlib.Path(folder, "bus.conf")
    config.write_text(BUS.format(pathlib.Path(folder, "bus")))
    bus = subprocess.Popen(["dbus-daemon", "--nofork", "--print-address", f"--config-file={config}"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    # A display that resets itself when its last client leaves would slow down the next program.
    display = subprocess.Popen(
        ["Xvfb", "-noreset", "-displayfd", "1", "-screen", "0", "1280x800x24"],
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    # In memory, as on every desktop.
    runtime = tempfile.TemporaryDirectory(dir="/dev/shm")
    try:
        yield {"DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip(),
               "DISPLAY": ":" + display.stdout.readline().strip(),
               "HOME": folder, "XDG_RUNTIME_DIR": runtime.name, "LANG": "C.UTF-8", "TZ": "UTC",
               "PATH": "/usr/bin:/bin"}
    finally:
        for process in (display, bus):
            process.terminate()
            process.wait()
        runtime.cleanup()


def figures(pid):
    """Resident memory in MB, that with the shared part divided among its users (PSS), and the
    context switches of all threads so far."""
    switches = 0
    for thread in pathlib.Path(f"/proc/{pid}/task").iterdir():
        for line in (thread / "status").read_text().splitlines():
            if "ctxt_switches" in line:
                switches += int(line.split()[1])
    memory = dict(line.split()[:2] for line in
                  pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:])
    return int(memory["Rss:"]) / 1e3, int(memory["Pss:"]) / 1e3, switches


class Item:
    """A running program whose item is registered, started by the watcher."""

    def __init__(self, watcher, command, environment):
        self.watcher = subprocess.Popen([watcher, *command], env=environment, text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        if not select.select([self.watcher.stdout], [], [], 20)[0]:
            self.watcher.kill()
            raise SystemExit(f"{command[0]} registered no item")
        milliseconds, pid = self.watcher.stdout.readline().split()
        self.milliseconds, self.pid = float(milliseconds), int(pid)

    def end(self):
        self.watcher.stdin.close()
        self.watcher.wait()


def start(watcher, command, environment, settle):
    """An item that has had `settle` seconds to come to rest."""
    item = Item(watcher, command, environment)
    time.sleep(settle)
    return item


def medians(commands, environment, rounds):
    """For each command, of the figures that it prints and the milliseconds of its whole run."""
    runs = [[] for _ in commands]
    for _ in range(rounds):
        for command, results in zip(commands, runs):
            start = time.perf_counter()
            printed = subprocess.check_output(command, env=environment).split()
            results.append((*map(float, printed), (time.perf_counter() - start) * 1000))
    return [[statistics.median(figure) for figure in zip(*results)] for results in runs]


def windows_table(report, build, environment, rounds):
    """First frames, Qt Quick's loading included, which the running program puts off until then."""
    frames = str(build / "window_frames")
    (panel, again, _), (history, settings, *later, _), (window, _), (empty,) = medians(
        [[frames, "panel"], [frames, "pages"], [frames, "window"],
         [str(build / "bench" / "empty_window")]], environment, rounds)
    report.heading("from request to first frame", "ms")
    report.row("panel", panel, limit=80)
    report.row("panel, opened again", again, limit=20)
    report.row("history, first visit", history, limit=33)
    report.row("settings, first visit", settings, limit=33)
    report.row("page, later", max(later), limit=33)
    report.row("main window", window, limit=400)
    report.row("program with an empty window", empty)
    report.row("the main window to that", window / empty, limit=1.6)


def desktop_table(report, build, rounds, idle_seconds):
    ours = [str(build / "tallyvane-desktop"), "--background"]
    bare = [str(build / "bench" / "tray_program")]
    watcher = str(build / "bench" / "item_watcher")
    with tempfile.TemporaryDirectory() as folder, desktop(folder) as environment:
        quiet = environment | {"GAUGEWELL_USE_FIXTURES": "1"}  # shows figures and fetches none
        pairs = []
        for _ in range(rounds + 1):
            pair = []
            for command in (ours, bare):
                item = start(watcher, command, quiet, 0.3)
                pair.append((item.milliseconds, *figures(item.pid)[:2]))
                item.end()
                time.sleep(0.1)
            pairs.append(pair)
        item = start(watcher, ours, environment, 3)  # finds no sign-in, and so ends soon
        refreshed = figures(item.pid)[0]
        item.end()
        item = start(watcher, ours, quiet, 3)
        before = figures(item.pid)[2]
        time.sleep(idle_seconds)
        switches = figures(item.pid)[2] - before
        item.end()
        report.heading("on the desktop", "ours", "bare", "ratio")
        for index, (name, limit) in enumerate((("start to registered, ms", 0.85),
                                               ("memory, nothing opened, MB", 1.05),
                                               ("its own share of that (PSS), MB", None))):
            figures_of_pairs = [(own[index], base[index]) for own, base in pairs[1:]]
            own, base = map(statistics.median, zip(*figures_of_pairs))
            report.row(name, own, base,
                       statistics.median(own / base for own, base in figures_of_pairs), limit=limit)
        base = statistics.median(pair[1][1] for pair in pairs[1:])
        report.row("memory, after a refresh, MB", refreshed, base, refreshed / base, limit=1.6)
        report.row(f"context switches in {idle_seconds} s idle", None, None, switches, limit=0)
        windows_table(report, build, environment, rounds)
