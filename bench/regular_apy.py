#!/usr/bin/env python3
"""The figures of the regular rows of a portfolio file, by binary numbers and without any check: a
yardstick for the speed of corvane-check. Reads standard input, writes standard output."""
import csv
import sys
from datetime import date


def figures(row):
    balance, rate, term = float(row["balance"]), float(row["rate"]) / 100, float(row["term"])
    every, unit = int(row["every"] or 1), row["compounding"]
    if unit == "none":
        days, interest = term, balance * rate * term / 365
    elif unit == "days":
        days, interest = term * every, balance * ((1 + rate / 365) ** (term * every) - 1)
    elif unit == "months":
        begin, months = int(row["begin_month"]), int(term) * every
        year, month = int(row["begin_year"]), begin - 1 + months
        end = date(year + month // 12, month % 12 + 1, 1)
        days = (end - date(year, begin, 1)).days
        interest = balance * ((1 + rate * every / 12) ** (days / 365 * 12 / every) - 1)
    else:
        days, interest = 365 * every * term, balance * ((1 + rate * every) ** term - 1)
    interest = round(interest, 2)
    return interest, round(100 * ((1 + interest / balance) ** (365 / days) - 1), 2)


def main():
    reader = csv.DictReader(sys.stdin)
    writer = csv.writer(sys.stdout, lineterminator="\n")
    writer.writerow(reader.fieldnames + ["computed_interest", "computed_apy", "difference", "verdict"])
    for row in reader:
        interest, apy = figures(row)
        difference = round(apy - float(row["disclosed_apy"]), 2)
        verdict = "OK" if abs(difference) <= 0.05 else "APY VIOLATION"
        writer.writerow([*row.values(), interest, apy, difference, verdict])


main()
