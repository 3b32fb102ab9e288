"""Writes the tables of expected figures that the tests read.

    python3 tests/reference/make_tables.py            writes the .csv files beside it anew
    python3 tests/reference/make_tables.py --check    only compares; 1 when a table differs

Python 3.9 or later, standard library only. The figures come from the modules beside it, which share
nothing with the program, so a table must never be edited to fit the program's output.
"""

import argparse
import csv
import io
import sys
from decimal import getcontext
from pathlib import Path

sys.dont_write_bytecode = True  # The folder holds what is committed and nothing else.

import regular_cases
import statement_cases
import stepped_cases
import tier_cases

FOLDER = Path(__file__).parent
TABLES = {
    "regular.csv": (regular_cases.COLUMNS, regular_cases.rows),
    "stepped.csv": (stepped_cases.COLUMNS, stepped_cases.rows),
    "tiers.csv": (tier_cases.COLUMNS, tier_cases.rows),
    "statement_days.csv": (statement_cases.DAY_COLUMNS, statement_cases.day_rows),
    "interest_by_day.csv": (statement_cases.INTEREST_COLUMNS, statement_cases.interest_rows),
    "apy_earned.csv": (statement_cases.EARNED_COLUMNS, statement_cases.earned_rows),
}


def content(columns, rows):
    """The bytes of a table. A row of None is a case too close to a half to have one answer."""
    text = io.StringIO(newline="")
    writer = csv.writer(text, lineterminator="\n")
    writer.writerow(columns)
    writer.writerows(row for row in rows() if row is not None)
    return text.getvalue().encode()


def differs(name, expected):
    file = FOLDER / name
    return not file.exists() or file.read_bytes() != expected


def main():
    parser = argparse.ArgumentParser(description="Writes the tables of expected figures.")
    parser.add_argument("--check", action="store_true", help="write nothing, only compare")
    check = parser.parse_args().check
    getcontext().prec = 60  # Digits of every computation; the tables show 15 decimals at most.
    tables = {name: content(*table) for name, table in TABLES.items()}
    different = [name for name, expected in tables.items() if differs(name, expected)]
    for name in different:
        if check:
            print(f"{FOLDER / name} is not what make_tables.py computes", file=sys.stderr)
        else:
            (FOLDER / name).write_bytes(tables[name])
            print(name, "written")
    return 1 if check and different else 0


if __name__ == "__main__":
    sys.exit(main())
