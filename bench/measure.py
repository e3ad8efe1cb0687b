#!/usr/bin/env python3
"""Measures the release build and prints one table.

Every row compares two commands, run in turn so that a change of the machine's speed meets both
alike. Times are of whole processes, in milliseconds; the table shows medians.
"""

import argparse
import os
import pathlib
import statistics
import sys
import tempfile
import time

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


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path, help="folder of the release build")
    parser.add_argument("--rounds", type=int, default=31)
    arguments = parser.parse_args()
    program = str(arguments.build.resolve() / "tallyvane")
    empty = str(arguments.build.resolve() / "bench" / "empty_program")

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

    rows = [
        ("status, start to end", status[0], base[0], f"{status[0] - base[0]:.1f} ms more", "15"),
        ("refresh, processor time", refresh[1], base[1], f"{refresh[1]:.1f} ms", "60"),
    ]
    print(f"{'measured':26}{'ours':>9}{'empty':>9}{'ratio':>8}  {'figure':16}{'at most':>8}")
    for name, ours, other, figure, limit in rows:
        print(f"{name:26}{ours:9.1f}{other:9.1f}{ours / other:8.1f}  {figure:16}{limit + ' ms':>8}")


if __name__ == "__main__":
    main()
