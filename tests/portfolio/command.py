#!/usr/bin/env python3
"""The program for whole files as its users start it: what it answers and what it leaves behind.

    command.py corvane-check
"""

import os
import re
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM = sys.argv.pop(1)
HEADER = "account,check,kind,disclosed_apy,balance,rate,term,start_date,end_date,method,minimum_adb\n"
OK = "A,,,5.39,1000,5.25,365,,,,\n"
VIOLATION = "B,,,9.99,1000,5.25,365,,,,\n"
REFUSED = "C,,,5.39,0,5.25,365,,,,\n"
STEPPED = "D,,stepped,5.39,1000,5,91,,,,\nD,,stepped,,,5.5,91,,,,\n"
MANY = "".join(f"{row},,,{row % 9}.39,1000,5.25,365,,,,\n" for row in range(3000))


class Command(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def file(self, name, text=None):
        path = self.folder / name
        if text is not None:
            path.write_text(text)
        return str(path)

    def run_it(self, *arguments, text="", **more):
        no_display = {key: value for key, value in os.environ.items() if "DISPLAY" not in key}
        return subprocess.run([PROGRAM, *arguments], input=text, text=True, env=no_display,
                              stdout=more.pop("stdout", subprocess.PIPE),
                              stderr=subprocess.PIPE, timeout=60, **more)

    def test_exit_status_tells_the_worst(self):
        text = lambda rows: self.file(f"{len(rows)}.csv", HEADER + rows)
        cases = [
            (0, [text(OK + STEPPED)], " 0 refused"),
            (1, [text(OK + VIOLATION)], " 1 violation,"),
            (2, [text(VIOLATION + REFUSED)], " 1 refused"),
            (2, [text(OK), text(OK + VIOLATION + REFUSED)], "4 rows"),
            (3, [self.file("missing.csv")], "No such file"),
            (3, [str(self.folder)], "Is a directory"),
            (3, [self.file("empty.csv", "")], "The file is empty."),
            (3, [text(OK), self.file("other.csv", "account,rate\n")], "differs"),
            (3, [text(OK), "-o", self.file("no/folder.csv")], "No such file"),
            (3, [text(OK), "--report", self.file("no/folder.html")], "folder.html"),
            (3, [text(OK), "--balances", self.file("missing.csv")], "No such file"),
            (3, [text(OK), "--threads", "0"], "--threads"),
            (3, [text(OK), "--only", "some"], "--only"),
            (3, [], "FILE"),
            (0, ["--help"], ""),
            (0, ["--version"], ""),
        ]
        for status, arguments, told in cases:
            with self.subTest(arguments):
                ran = self.run_it(*arguments)
                self.assertEqual(ran.returncode, status, ran.stderr)
                self.assertIn(told, ran.stderr)

    def test_results_are_the_same_bytes_wherever_they_go(self):
        path = self.file("many.csv", HEADER + MANY + STEPPED + REFUSED)
        expected = self.run_it(path, "--threads", "1").stdout
        self.assertEqual(expected.count("\n"), 3004)
        self.assertEqual(self.run_it("-", text=Path(path).read_text()).stdout, expected)
        for threads in "2", "7":
            out = self.file(threads)
            self.assertEqual(self.run_it(path, "--threads", threads, "-o", out).stdout, "")
            self.assertEqual(Path(out).read_text(), expected)
        for only, verdict in ("violations", "APY VIOLATION"), ("refused", "REFUSED"):
            lines = [line for line in expected.splitlines()[1:] if "," + verdict in line]
            self.assertEqual(self.run_it(path, "--only", only).stdout.splitlines()[1:], lines)

    def test_balances_and_report_take_part(self):
        head = HEADER.replace("\n", ",minimum_daily\n")
        row = "S,statement,,1.5,,3,,2024-01-01,2024-01-03,adb,0,0\n"
        days = self.file("days.csv", "account,date,balance\nS,2024-01-01,10\nS,2024-01-02,20\n")
        report = self.file("report.html")
        ran = self.run_it("-", "--balances", days, "--report", report, text=head + row)
        self.assertTrue(ran.stdout.endswith(",15.00\n"), ran.stdout)
        counts = re.sub(r"<[^>]*>|\s", "", Path(report).read_text())
        self.assertIn("Statement,REGULARRATE1010All1010", counts)

    def test_what_cannot_be_written_leaves_what_was_there(self):
        many = self.file("many.csv", HEADER + MANY)
        with open("/dev/full", "w") as full:
            ran = self.run_it(many, stdout=full)
        self.assertEqual((ran.returncode, "No space left" in ran.stderr), (3, True), ran.stderr)
        kept = self.file("kept.csv", "as it was")
        self.assertEqual(self.run_it(many, self.file("missing"), "-o", kept).returncode, 3)
        self.assertEqual(Path(kept).read_text(), "as it was")
        self.assertEqual(sorted(os.listdir(self.folder)), ["kept.csv", "many.csv"])

    def test_ctrl_c_keeps_the_accounts_that_are_complete(self):
        out = self.file("out.csv")
        with subprocess.Popen([PROGRAM, "-", "-o", out, "--progress"], text=True, stdin=subprocess.PIPE,
                              stderr=subprocess.PIPE) as run:
            # More than the program and the pipe hold, so that it has to be in the middle of them.
            run.stdin.write(HEADER + STEPPED.replace("D", "E") + MANY * 20)
            run.stdin.flush()
            time.sleep(0.3)  # longer than the progress waits between two lines
            run.stdin.write(MANY)
            run.stdin.write(STEPPED.splitlines()[0])
            run.stdin.flush()
            self.assertFalse(os.path.exists(out))
            run.send_signal(signal.SIGINT)
            self.assertEqual(run.wait(timeout=30), 130)
            # Read as text, the returns that begin the line anew are line ends.
            self.assertRegex(run.stderr.read(),
                             r"[1-9][\d,]* rows, [\d,]+ a second\x1b\[K\n\x1b\[KInterrupted: ")
        lines = Path(out).read_text().split("\n")
        self.assertEqual(lines.pop(), "")
        self.assertGreater(len(lines), 1000)
        self.assertEqual({line.count(",") for line in lines}, {lines[0].count(",")})
        self.assertFalse(any(line.startswith("D") for line in lines))
        self.assertEqual(os.listdir(self.folder), ["out.csv"])


unittest.main()
