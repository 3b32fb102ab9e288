"""Writes the tables of expected interest and APY that the formula tests read.

Run `python3 tests/reference/make_tables.py` (Python 3.9 or later, standard library only). It
rewrites the .csv files beside it. The figures come from decimal_yield.py, which shares nothing with
the program, so a table must never be edited to fit the program's output.
"""

import csv
from pathlib import Path

import regular_cases
import stepped_cases
import tier_cases


def write(name, cases):
    rows = [row for row in cases.rows() if row is not None]
    with open(Path(__file__).parent / name, "w", newline="", encoding="utf-8") as file:
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(cases.COLUMNS)
        writer.writerows(rows)
    print(name, len(rows), "rows")


if __name__ == "__main__":
    write("regular.csv", regular_cases)
    write("stepped.csv", stepped_cases)
    write("tiers.csv", tier_cases)
