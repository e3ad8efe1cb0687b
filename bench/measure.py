#!/usr/bin/env python3
"""Measures the release build and prints two tables.

Every row compares commands that are run in turn, so that a change of the machine's speed meets all
alike. Times are of whole processes, in milliseconds; the tables show medians.
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


def pairs(first, second, environment, rounds):
    """Medians of both commands' (wall, processor) times."""
    run(first, environment), run(second, environment)
    results = [(run(first, environment), run(second, environment)) for _ in range(rounds)]
    return [[statistics.median(result[side][figure] for result in results) for figure in (0, 1)]
            for side in (0, 1)]


def peak_memory(command, environment):
    """The greatest memory of one run in MB. A small interpreter starts it, since the system counts
    that of the starting process as well."""
    starter = ("import os, sys; pid = os.posix_spawn(sys.argv[1], sys.argv[1:], os.environ,"
               " file_actions=[(os.POSIX_SPAWN_OPEN, 1, '/dev/null', os.O_WRONLY, 0)]);"
               " print(os.wait4(pid, 0)[2].ru_maxrss)")
    return int(subprocess.check_output([sys.executable, "-S", "-E", "-c", starter, *command],
                                       env=environment)) / 1e3


def tokens_table(build, sizes, rounds):
    """Counting session logs against other ways to read the same files, on one processor and with
    the files in memory."""
    os.sched_setaffinity(0, {max(os.sched_getaffinity(0))})
    program = str(build / "tallyvane")
    print(f"\n{'1 GB = 1e9 bytes':>20}{'time':>9}{'of cat':>9}{'ms per GB':>11}")
    for size in sizes:
        with tempfile.TemporaryDirectory() as home:
            make_corpus(pathlib.Path(home), size)
            logs = sorted(map(str, pathlib.Path(home).rglob("*.jsonl")))
            gigabytes = sum(map(os.path.getsize, logs)) / 1e9
            commands = {"cat": ["/usr/bin/cat", *logs], "tallyvane tokens": [program, "tokens"],
                        "wc -l": ["/usr/bin/wc", "-l", *logs],
                        "parse every line": [str(build / "bench" / "plain_tokens"), *logs]}
            results = {name: [] for name in commands}
            for _ in range(rounds + 1):
                for name, command in commands.items():
                    results[name].append(run(command, {"HOME": home}))
            medians = {name: statistics.median(wall for wall, _ in runs[1:])
                       for name, runs in results.items()}
            memory = (peak_memory([program, "tokens"], {"HOME": home}) -
                      peak_memory([program, "tokens"], {"HOME": "/dev/null"}))
        print(f"{gigabytes:17.2f} GB; tallyvane tokens takes {memory:.1f} MB more than without logs")
        for name, wall in medians.items():
            print(f"{name:>20}{wall:9.0f}{wall / medians['cat']:9.2f}{wall / gigabytes:11.0f}")
    print("tallyvane tokens: at most 2.50 times cat, and 40 MB more than without logs")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path, help="folder of the release build")
    parser.add_argument("--rounds", type=int, default=31)
    parser.add_argument("--corpus", type=float, nargs="*", default=[1e8, 3e8, 1e9],
                        help="bytes of session logs to count, each its own rows; may be none")
    parser.add_argument("--idle", type=int, default=60,
                        help="seconds to watch the desktop program for; 0 leaves it out")
    arguments = parser.parse_args()
    program = str(arguments.build.resolve() / "tallyvane")
    bench = arguments.build.resolve() / "bench"
    empty = str(bench / "empty_program")

    with tempfile.TemporaryDirectory() as home:
        codex = pathlib.Path(home, ".local", "bin", "codex")
        codex.parent.mkdir(parents=True)
        codex.write_text(CODEX)
        codex.chmod(0o700)
        environment = {"HOME": home, "XDG_RUNTIME_DIR": home, "LANG": "en_US.UTF-8",
                       "PATH": "/usr/bin:/bin", "TZ": "UTC"}
        run([program, "refresh"], environment)
        status, base = pairs([program, "status"], [empty], environment, arguments.rounds)
        refresh, _ = pairs([program, "refresh"], [empty], environment, arguments.rounds)

    history = float(subprocess.check_output([bench / "history_data"]))
    rows = [
        ("status, start to end", status[0], base[0], f"{status[0] - base[0]:.1f} ms more", "15"),
        ("refresh, processor time", refresh[1], base[1], f"{refresh[1]:.1f} ms", "60"),
    ]
    print(f"{'measured':26}{'ours':>9}{'empty':>9}{'ratio':>8}  {'figure':16}{'at most':>8}")
    for name, ours, other, figure, limit in rows:
        print(f"{name:26}{ours:9.1f}{other:9.1f}{ours / other:8.1f}  {figure:16}{limit + ' ms':>8}")
    print(f"{'reading of 90 days':26}{'':26}  {f'{history:.2f} ms':16}{'1 ms':>8}")
    if arguments.idle:
        desktop_table(arguments.build.resolve(), arguments.rounds, arguments.idle)
    if arguments.corpus:
        tokens_table(arguments.build.resolve(), arguments.corpus, max(3, arguments.rounds // 6))


if __name__ == "__main__":
    main()
