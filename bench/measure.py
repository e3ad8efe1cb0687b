#!/usr/bin/env python3
"""Measures the release build and prints tables; ends with 1 if a figure exceeds its limit.

Every row compares commands that are run in turn, so that a change of the machine's speed meets all
alike. Times are of whole processes, in milliseconds; the tables show medians. Beside other work,
processor time tells more than wall time.
"""

import argparse
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

from desktop import desktop_table
from make_corpus import make_corpus
from report import Report

CODEX = """#!/bin/sh
echo '{"id":1,"result":{"rateLimits":{"primary":{"usedPercent":42,"resetsAt":4102444800}}}}'
cat > /dev/null
"""


def run(command, environment):
    """Wall and processor time of one run; the latter includes children that it waited for."""
    with open(os.devnull, "r+b") as null:
        start = time.perf_counter()
        pid = os.posix_spawn(
            command[0], command, environment,
            file_actions=[(os.POSIX_SPAWN_DUP2, null.fileno(), fd) for fd in (0, 1, 2)])
        _, status, usage = os.wait4(pid, 0)
        wall = time.perf_counter() - start
    code = os.waitstatus_to_exitcode(status)
    if code not in (0, 3):
        sys.exit(f"{' '.join(command)} ended with {code}")
    return wall * 1000, (usage.ru_utime + usage.ru_stime) * 1000


def medians(commands, environment, rounds):
    """Of the (wall, processor) times of each command, after a first run that does not count."""
    results = [[run(command, environment) for command in commands] for _ in range(rounds + 1)][1:]
    return [[statistics.median(times) for times in zip(*runs)] for runs in zip(*results)]


def peak_memory(command, environment):
    """The greatest memory of one run in MB. A small interpreter starts it, since the system counts
    that of the starting process as well."""
    starter = ("import os, sys; pid = os.posix_spawn(sys.argv[1], sys.argv[1:], os.environ,"
               " file_actions=[(os.POSIX_SPAWN_OPEN, 1, '/dev/null', os.O_WRONLY, 0)]);"
               " print(os.wait4(pid, 0)[2].ru_maxrss)")
    return int(subprocess.check_output([sys.executable, "-S", "-E", "-c", starter, *command],
                                       env=environment)) / 1e3


def command_table(report, build, rounds):
    """What a shell or a status bar waits for."""
    program = str(build / "tallyvane")
    with tempfile.TemporaryDirectory() as home:
        codex = pathlib.Path(home, ".local", "bin", "codex")
        codex.parent.mkdir(parents=True)
        codex.write_text(CODEX)
        codex.chmod(0o700)
        environment = {"HOME": home, "XDG_RUNTIME_DIR": home, "LANG": "en_US.UTF-8",
                       "PATH": "/usr/bin:/bin", "TZ": "UTC"}
        run([program, "refresh"], environment)
        empty, status, refresh = medians(
            [[str(build / "bench" / "empty_program")], [program, "status"], [program, "refresh"]],
            environment, rounds)
    report.heading("milliseconds", "ours", "empty", "more")
    report.row("status, start to end", status[0], empty[0], status[0] - empty[0], limit=4)
    report.row("status, processor time", status[1], empty[1], status[1] - empty[1], limit=4)
    report.row("refresh, processor time", None, None, refresh[1], limit=60)
    report.row("reading of 90 days", None, None,
               float(subprocess.check_output([build / "bench" / "history_data"])), limit=1)


def tokens_table(report, build, sizes, rounds):
    """Counting session logs against other ways to read the same files, on one processor and with
    the files in memory."""
    os.sched_setaffinity(0, {max(os.sched_getaffinity(0))})
    program = str(build / "tallyvane")
    report.heading("counting session logs", "ms", "of cat", "CPU ms", "ms/GB", "of cat")
    for size in sizes:
        with tempfile.TemporaryDirectory() as home:
            make_corpus(pathlib.Path(home), size)
            logs = sorted(map(str, pathlib.Path(home).rglob("*.jsonl")))
            gigabytes = sum(map(os.path.getsize, logs)) / 1e9
            commands = {"cat": ["/usr/bin/cat", *logs], "tallyvane tokens": [program, "tokens"],
                        "wc -l": ["/usr/bin/wc", "-l", *logs],
                        "parse every line": [str(build / "bench" / "plain_tokens"), *logs]}
            times = medians(commands.values(), {"HOME": home}, rounds)
        cat_wall, cat_cpu = times[0]
        for name, (wall, cpu) in zip(commands, times):
            report.row(f"{name}, {gigabytes:.2f} GB", wall, wall / cat_wall, cpu, cpu / gigabytes,
                       cpu / cat_cpu, limit=2.2 if name == "tallyvane tokens" else None)


def memory_table(report, build):
    """The peak of counting logs of the greatest size that counts."""
    command = [str(build / "tallyvane"), "tokens"]
    base = peak_memory(command, {"HOME": "/dev/null"})
    report.heading("peak memory of tokens, MB", "ours", "no logs", "more")
    start = b'{"type":"assistant","message":{"usage":{"input_tokens":3}},"x":'
    room = 24_999_999 - len(start) - 1
    for name, value in (("one line of 25 MB", b'"' + b"x" * (room - 2) + b'"'),
                        ("nested 12 million deep", b"[" * (room // 2) + b"]" * (room // 2))):
        with tempfile.TemporaryDirectory() as home:
            folder = pathlib.Path(home, ".claude", "projects", "-w-beta")
            folder.mkdir(parents=True)
            (folder / "long.jsonl").write_bytes(start + value + b"}")
            peak = peak_memory(command, {"HOME": home})
        report.row(name, peak, base, peak - base, limit=40)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path, help="folder of the release build")
    parser.add_argument("--rounds", type=int, default=31)
    parser.add_argument("--corpus", type=float, nargs="*", default=[1e8, 3e8, 1e9],
                        help="bytes of session logs to count, each its own rows; may be none")
    parser.add_argument("--idle", type=int, default=60,
                        help="seconds to watch the desktop program for; 0 leaves it out")
    arguments = parser.parse_args()
    build = arguments.build.resolve()
    report = Report()
    command_table(report, build, arguments.rounds)
    if arguments.idle:
        desktop_table(report, build, arguments.rounds, arguments.idle)
    memory_table(report, build)
    if arguments.corpus:
        tokens_table(report, build, arguments.corpus, max(3, arguments.rounds // 6))
    if report.missed:
        sys.exit("\nmissed: " + "; ".join(report.missed))


if __name__ == "__main__":
    main()
