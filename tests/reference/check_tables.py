"""Checks the accounts of the reference tables by corvane-check.

    python3 tests/reference/check_tables.py build/dev/corvane-check

An account of a disclosure discloses the APY of its table, so that its verdict is OK too. Left out is
what nobody can enter (another factor than 1/365 for compounding by years), and of statements those
with minimums, whose interest is not always handed back.
"""

import csv
import sys
from datetime import date, timedelta
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

sys.dont_write_bytecode = True  # The folder holds what is committed and nothing else.

from check_random import difference, results_of

HERE = Path(__file__).resolve().parent
TIERS = [("1.05", "1000"), ("2.5", "2500"), ("4.1265", "15000"), ("5.75", "")]


def table(name):
    with open(HERE / name, newline="") as file:
        return [row for row in csv.DictReader(file)
                if row.get("unit") != "years" or row["factor"] == "365"]


def parts(row, column):
    return row[column].split("/")


def entry(row, kind, **typed):
    """What a person types for an account or one of its parts: the fields that it has."""
    by_years, withdrawn = row["unit"] == "years", row["withdrawal"] != "none"
    cells = {"check": "disclosure", "kind": kind, "compounding": row["unit"],
             "every": "" if row["unit"] == "none" else row["n"],
             "year": "" if by_years else row["basis"],
             "count_feb_29": "" if by_years else "yes" if row["leap"] == "1" else "no",
             "withdrawals": row["withdrawal"] if row["unit"] in ("days", "months") else "",
             "daily_rate_factor": "1/" + row["factor"],
             "term": row.get("term"), "begin_month": row.get("month"), "begin_year": row.get("year"),
             "withdrawal_periods": row.get("w"), "withdrawal_distance": row["m"]} | typed
    if row["unit"] != "months" and row["withdrawal"] != "months":
        del cells["begin_month"], cells["begin_year"]
    if not withdrawn:
        del cells["withdrawal_periods"], cells["withdrawal_distance"]
    return cells


def figures(row, end=""):
    return {"computed_interest" + end: row["interest"],
            "computed_apy" + end: f"{float(row['apy']):.2f}", "verdict" + end: "OK"}


def regular_accounts():
    for row in table("regular.csv"):
        typed = {"disclosed_apy": row["apy"], "rate": row["rate"], "balance": row["balance"]}
        if row["account"] == "regular":
            yield [entry(row, "regular", **typed)], [figures(row)], []
        else:
            tiers = [entry(row, "tier-a", **typed) for _ in range(2)]
            tiers[0]["not_exceeding"] = "1"
            yield tiers, [figures(row)] * 2, []


def stepped_accounts():
    for row in table("stepped.csv"):
        columns = {"rate": "rates", "term": "terms", "begin_month": "months", "begin_year": "years",
                   "withdrawal_periods": "w"}
        count = len(parts(row, "rates"))
        rows = [entry(row, "stepped", **{name: parts(row, column)[k]
                                         for name, column in columns.items()})
                for k in range(count)]
        rows[0] |= {"balance": row["balance"], "disclosed_apy": row["apy"]}
        expected = [{"computed_interest": interest} for interest in parts(row, "interests")]
        expected[-1] |= {"computed_apy": figures(row)["computed_apy"], "verdict": "OK"}
        yield rows, expected, []


def tiered_accounts():
    """A table row is one end of one tier."""
    ends_of = {}
    alike = ["unit", "n", "basis", "leap", "withdrawal", "w", "m", "month", "year", "factor",
             "rates", "bounds", "typed", "term"]
    for row in table("tiers.csv"):
        ends_of.setdefault(tuple(row[name] for name in alike), []).append(row)
    for ends in ends_of.values():
        rows = [entry(ends[0], "tier-b", rate=rate) for rate in parts(ends[0], "rates")]
        for cells, bound in zip(rows, parts(ends[0], "bounds")):
            cells["not_exceeding"] = bound
        for cells in rows:
            cells |= {"disclosed_apy": "0", "disclosed_apy_high": "0"}
        rows[0].pop("disclosed_apy_high")
        rows[-1]["balance"] = ends[0]["typed"]
        expected = [{} for _ in rows]
        for row in ends:
            k = int(row["tier"]) - 1
            end = "_high" if row["end"] == "high" and k > 0 else ""
            rows[k]["disclosed_apy" + end] = row["apy"]
            expected[k] |= figures(row, end)
        yield rows, expected, []


def statements():
    days = table("statement_days.csv")
    for row in table("interest_by_day.csv"):
        if row["minimums"] != "none":
            continue
        kind = row["kind"].replace("A", "-a").replace("B", "-b")
        cells = {"check": "statement", "kind": kind, "days": row["days"],
                 "compounding": "days" if row["every"] != "0" else "none",
                 "every": row["every"] if row["every"] != "0" else "",
                 "method": "" if kind == "stepped" else row["method"], "disclosed_apy": "5",
                 "minimum_adb": "0", "minimum_daily": "0", "start_date": "2023-01-01",
                 "daily_rate_factor": "1/365" if row["pattern"] == "varied" else "1/366",
                 "rate": "3.65" if kind == "regular" else ""}
        rows = [cells]
        if "tier" in kind:
            rows = [cells | {"rate": rate, "not_exceeding": bound} for rate, bound in TIERS]
        cents = Decimal(row["interest"]).quantize(Decimal("0.01"), ROUND_HALF_EVEN)
        yield rows, [{"computed_average": row["adb"], "computed_interest": str(cents)}], [
            (date(2023, 1, 1) + timedelta(place), day[row["pattern"]],
             day["steprate"] if kind == "stepped" else "")
            for place, day in enumerate(days[:int(row["days"])])]


def main():
    accounts = [*regular_accounts(), *stepped_accounts(), *tiered_accounts(), *statements()]
    results = results_of(sys.argv[1], accounts)
    for number, (rows, expected, _) in enumerate(accounts):
        found = difference(expected, results[number])
        if found:
            print(f"Row {found[0] + 1}, {found[1]}: {found[2]} expected, {found[3]} computed")
            print(*rows, sep="\n")
            return 1
    print(len(accounts), "accounts agree")
    return 0


if __name__ == "__main__":
    sys.exit(main())
