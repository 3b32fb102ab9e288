"""Checks random accounts by corvane-check and by the reference, and compares every figure.

    python3 tests/reference/check_random.py --program build/dev/corvane-check
    python3 tests/reference/check_random.py --program ... --count 300000 --seed 7

Python 3.9 or later, standard library only. The first account that differs is printed as it is, and
then as simple as it can be made while the same column still differs.
"""

import argparse
import copy
import csv
import random
import subprocess
import sys
import tempfile
from collections import defaultdict
from datetime import date
from decimal import Decimal, getcontext
from pathlib import Path

sys.dont_write_bytecode = True  # The folder holds what is committed and nothing else.

from random_accounts import Open, random_account, rows_of

BATCH = 20000
# Values that make an account simpler, simplest first; what is not named becomes a rounder number.
SIMPLE = {"rate": [Decimal(5), Decimal(1)], "balance": [Decimal(1000)], "span": [Decimal(1000)],
          "each": [1, 2, 3], "w": [1, 2], "n": [1], "month": [1], "year": [2023, 2024],
          "off": [Decimal(0)], "off_high": [Decimal(0)], "start": [None, date(2023, 1, 1)],
          "basis": [365], "leap": [0], "factor": [365], "every": [0, 1], "formula": [0],
          "withdrawal": ["none"], "by_dates": [False], "minimum_adb": [Decimal(0)],
          "minimum_daily": [Decimal(0)], "interest": [Decimal(1)]}


def write_files(folder, accounts):
    """The files of the accounts, numbered by their places."""
    names = sorted({name for rows, _, _ in accounts for row in rows for name in row})
    with open(folder / "accounts.csv", "w", newline="") as rows_file, \
            open(folder / "balances.csv", "w", newline="") as days_file:
        table = csv.DictWriter(rows_file, ["account"] + names)
        table.writeheader()
        days_table = csv.writer(days_file)
        days_table.writerow(["account", "date", "balance", "rate"])
        for number, (rows, _, days) in enumerate(accounts):
            table.writerows({"account": number} | row for row in rows)
            days_table.writerows([number, *day] for day in days)


def run(program, folder):
    done = subprocess.run([program, folder / "accounts.csv", "--balances", folder / "balances.csv"],
                          capture_output=True, text=True, check=False)
    if done.returncode not in (0, 1, 2):
        sys.exit(f"{program} ended with {done.returncode}: {done.stderr}")
    return done.stdout


def results_of(program, accounts, twice=False):
    """The result rows of each account, by its place; None where a second check says otherwise."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        write_files(folder, accounts)
        text = run(program, folder)
        if twice:
            (folder / "accounts.csv").write_text(text)
            if run(program, folder) != text:
                return None
    results = defaultdict(list)
    for row in csv.DictReader(text.splitlines()):
        results[int(row.pop("account"))].append(row)
    return results


def order_matters(program, accounts, results):
    """The place of an account that comes out otherwise in a file of the other order, or None."""
    last = len(accounts) - 1
    turned = results_of(program, accounts[::-1])
    return next((k for k in range(last + 1) if turned[last - k] != results[k]), None)


def difference(expected, results):
    """Row, column, expected and computed text of the first difference; None without one."""
    for place, row in enumerate(results):
        if row["verdict"] == "REFUSED" and row["message"]:
            return place, "message", "none", row["message"]
    for place, (figures, row) in enumerate(zip(expected, results)):
        for column, figure in figures.items():
            text = figure if isinstance(figure, str) else f"{figure:.2f}"
            if row[column] != text:
                return place, column, text, row[column]
    if len(results) < len(expected):
        return len(results), "rows", len(expected), len(results)
    return None


def differs(program, account):
    try:
        made = rows_of(account)
    except (Open, ArithmeticError, ValueError, IndexError, TypeError):
        return None
    return difference(made[1], results_of(program, [made])[0])


def shorter(items, fewest):
    for length in sorted({len(items) // 2, len(items) - 1}):
        if fewest <= length < len(items):
            yield items[:length]
            yield items[-length:]


def rounder(name, value):
    candidates = SIMPLE.get(name, [])
    if value in candidates:
        return candidates[:candidates.index(value)]
    if isinstance(value, Decimal):
        rounds = [value.quantize(Decimal(1)), value.quantize(Decimal("0.01"))]
        return candidates + [v for v in rounds if v != value]
    return candidates


def simpler(account):
    """Accounts that differ from this one in one choice, which is simpler."""
    def replaced(path, value):
        changed = copy.deepcopy(account)
        place = changed
        for key in path[:-1]:
            place = place[key]
        place[path[-1]] = value
        return changed

    for name, fewest in (("parts", 2), ("tiers", 2), ("days", 1)):
        for items in shorter(account.get(name, []), fewest):
            yield replaced([name], items)
    for name, value in account.items():
        for candidate in rounder(name, value) if not isinstance(value, list) else []:
            yield replaced([name], candidate)
    for name in ("parts", "tiers"):
        for k, item in enumerate(account.get(name, [])):
            for key, value in item.items():
                for candidate in rounder(key, value):
                    yield replaced([name, k, key], candidate)
    for day, (balance, rate) in enumerate(account.get("days", [])):
        for candidate in rounder("balance", balance):
            yield replaced(["days", day], [candidate, rate])
        for candidate in rounder("rate", rate):
            yield replaced(["days", day], [balance, candidate])


def shrunk(program, account):
    """The account as simple as it gets while the same column differs."""
    column = differs(program, account)[1]
    again = True
    while again:
        again = False
        for candidate in simpler(account):
            found = differs(program, candidate)
            if found and found[1] == column:
                account, again = candidate, True
                break
    return account


def report(program, account, title):
    made, found = rows_of(account), differs(program, account)
    print(title + (": row {}, {}: {} expected, {} computed".format(found[0] + 1, *found[1:])
                   if found else ""))
    print("  " + "\n  ".join(f"{key}: {value}" for key, value in account.items()))
    with tempfile.TemporaryDirectory() as folder:
        write_files(Path(folder), [made])
        for file in ("accounts.csv", "balances.csv"):
            print((Path(folder) / file).read_text())


def made_accounts(chance, count):
    """So many accounts that have one answer, with their rows."""
    while count > 0:
        account = random_account(chance)
        try:
            made = rows_of(account)
        except Open:
            continue
        count -= 1
        yield account, made


def main():
    parser = argparse.ArgumentParser(description="Checks random accounts a second time.")
    parser.add_argument("--program", required=True, help="corvane-check")
    parser.add_argument("--count", type=int, default=3000)
    parser.add_argument("--seed", type=int, default=20261123)
    chosen = parser.parse_args()
    getcontext().prec = 40
    chance, left = random.Random(chosen.seed), chosen.count
    while left > 0:
        accounts = list(made_accounts(chance, min(BATCH, left)))
        made = [rows for _, rows in accounts]
        results = results_of(chosen.program, made, twice=True)
        if results is None:
            sys.exit(f"Seed {chosen.seed}: the results, checked again, are others")
        for number, (account, (_, expected, _)) in enumerate(accounts):
            if difference(expected, results[number]):
                report(chosen.program, account, f"Seed {chosen.seed}")
                report(chosen.program, shrunk(chosen.program, account), "As simple as it gets")
                return 1
        place = order_matters(chosen.program, made, results)
        if place is not None:
            report(chosen.program, accounts[place][0], f"Seed {chosen.seed}: in another order")
            return 1
        left -= len(accounts)
        print(chosen.count - left, "accounts agree", flush=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
