#!/usr/bin/env python3
"""How fast whole files are checked, beside a bare program and a script, all in one run.

    measure_portfolio.py build/bench [rounds]

Writes the files of make_portfolio.py to a temporary folder, lets the programs take turns, and prints
medians: seconds by the clock, seconds of the processor (user and system), the most memory, and what
each takes for one of corvane_csv_bare. Every run reads a file and writes to a file.
"""

import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from statistics import median

HERE = Path(__file__).resolve().parent
FILES = [("regular", 100_000), ("regular", 1_000_000), ("mixed", 1_000_000),
         ("statements", 100_000), ("balances", 100_000)]


def make(folder, kind, count):
    path = folder / f"{kind}-{count}.csv"
    with open(path, "w") as file:
        subprocess.run([sys.executable, HERE / "make_portfolio.py", kind, str(count)], stdout=file,
                       check=True)
    return path


def most_memory(pid):
    """In MiB, of a process that runs; what wait4 tells counts this script's own memory too."""
    try:
        status = Path(f"/proc/{pid}/status").read_text()
    except OSError:
        return 0
    return sum(int(line.split()[1]) for line in status.splitlines() if line[:6] == "VmHWM:") / 1024


def measured(command, source, folder):
    """Seconds by the clock and of the processor, and MiB."""
    with open(source) as read, open(folder / "out.csv", "w") as write:
        begin = time.monotonic()
        process = subprocess.Popen(command, stdin=read, stdout=write, stderr=subprocess.DEVNULL)
        ended, memory = 0, 0
        while not ended:
            memory = max(memory, most_memory(process.pid))
            time.sleep(0.005)
            ended, _, usage = os.wait4(process.pid, os.WNOHANG)
    return time.monotonic() - begin, usage.ru_utime + usage.ru_stime, memory


def cases(programs, files):
    check = [str(programs / "corvane-check"), "-"]
    bare = [str(programs / "corvane_csv_bare")]
    for kind, count in FILES[:3]:
        name, source = f"{count:,} {kind}", files[kind, count]
        yield name, "corvane_csv_bare", bare, source, 1
        yield name, "corvane-check, 1 thread", [*check, "--threads", "1"], source, 1
        yield name, "corvane-check, 2 threads", [*check, "--threads", "2"], source, 1
    kind = "regular", 1_000_000
    yield "1,000,000 regular", "regular_apy.py", [sys.executable, HERE / "regular_apy.py"], \
        files[kind], 3
    days = ["--balances", str(files["balances", 100_000])]
    for threads in "1", "2":
        yield "100,000 statements of 31 days", f"corvane-check, {threads} thread(s)", \
            [*check, *days, "--threads", threads], files["statements", 100_000], 1


def main():
    programs, rounds = Path(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 5
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        files = {file: make(folder, *file) for file in FILES}
        runs = {}
        for turn in range(rounds):
            for what, program, command, source, every in cases(programs, files):
                if turn % every == 0:
                    run = measured(command, source, folder)
                    runs.setdefault((what, program), []).append(run)
    print(f"{'':32}{'':26}{'clock':>8}{'processor':>11}{'MiB':>7}  for 1 of the bare program")
    for (what, program), found in runs.items():
        clock, processor, memory = (median(column) for column in zip(*found))
        bare = runs.get((what, "corvane_csv_bare"))
        ratio = ""
        if bare:
            ratio = "  " + ", ".join(f"{median(mine / its for mine, its in zip(column, other)):.2f}"
                                     for column, other in zip(list(zip(*found))[:2],
                                                              list(zip(*bare))[:2]))
        print(f"{what:32}{program:26}{clock:8.2f}{processor:11.2f}{memory:7.0f}{ratio}")


main()
