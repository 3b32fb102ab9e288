#!/usr/bin/env python3
"""Writes a portfolio file of so many accounts to standard output, the same every time.

    make_portfolio.py regular 1000000    regular accounts
    make_portfolio.py mixed 1000000      disclosures of every kind
    make_portfolio.py statements 100000  statements of 31 days
    make_portfolio.py balances 100000    the daily balances of these
"""
import random
import sys

DISCLOSURE = ("account,check,kind,institution,description,compounding,every,year,count_feb_29,"
              "withdrawals,begin_month,begin_year,disclosed_apy,disclosed_apy_high,balance,rate,"
              "not_exceeding,term,daily_rate_factor,withdrawal_periods,withdrawal_distance,branch")
STATEMENT = ("account,check,kind,institution,compounding,every,disclosed_apy,rate,start_date,"
             "end_date,method,minimum_adb,minimum_daily,daily_rate_factor")


def regular(pick, number):
    unit, every, wd, month, term, w, m = pick.choice([
        ("none", "1", "none", "", "365", "", ""), ("days", "1", "none", "", "365", "", ""),
        ("days", "1", "none", "", "182", "", ""), ("days", "7", "none", "", "26", "", ""),
        ("months", "1", "none", "3", "12", "", ""), ("months", "3", "none", "1", "8", "", ""),
        ("years", "1", "none", "", "2", "", ""), ("days", "1", "days", "", "360", "12", "1"),
        ("months", "1", "months", "2", "12", "12", "1")])
    rate, balance = pick.randrange(1, 90000) / 10000, pick.randrange(100, 90000000) / 100
    apy = 100 * ((1 + rate / 36500) ** 365 - 1)
    return [f"{number:08},disclosure,regular,First Bank,\"Certificate, {term}\",{unit},{every},365,,"
            f"{wd},{month},{2023 if month else ''},{apy:.2f},,{balance:.2f},{rate:.4f},,{term},,"
            f"{w},{m},{pick.randrange(100)}"]


def stepped(pick, number):
    rows = []
    for period in range(pick.randrange(2, 5)):
        first = period == 0
        rows.append(f"{number:08},disclosure,stepped,First Bank,Step-up,days,1,365,,none,,,"
                    f"{'4.50' if first else ''},,{'25000' if first else ''},"
                    f"{pick.randrange(1, 90000) / 10000:.4f},,91,,,,{pick.randrange(100)}")
    return rows


def tiered(pick, number, kind):
    count = pick.randrange(2, 5)
    rows = []
    for tier in range(count):
        last = tier == count - 1
        high = "4.60" if kind == "tier-b" and tier else ""
        balance = 500000 if kind == "tier-a" or last else ""
        rows.append(f"{number:08},disclosure,{kind},First Bank,Money market,days,1,365,,none,,,4.50,"
                    f"{high},{balance},{pick.randrange(1, 90000) / 10000:.4f},"
                    f"{'' if last else 10000 * 10 ** tier},365,,,,{pick.randrange(100)}")
    return rows


def mixed(pick, number):
    kind = pick.randrange(10)
    if kind < 7:
        return regular(pick, number)
    return stepped(pick, number) if kind == 7 else tiered(pick, number, ["tier-a", "tier-b"][kind - 8])


def statement(pick, number):
    return [f"{number:08},statement,regular,First Bank,days,1,1.51,{pick.randrange(1, 90000) / 10000:.4f},"
            f"2024-01-01,2024-02-01,{pick.choice(['adb', 'daily'])},0,0,1/365"]


def balances(pick, number):
    return [f"{number:08},2024-01-{day:02},{pick.randrange(100, 9000000) / 100:.2f}"
            for day in range(1, 32)]


def main():
    kind, count = sys.argv[1], int(sys.argv[2])
    header, rows = {"regular": (DISCLOSURE, regular), "mixed": (DISCLOSURE, mixed),
                    "statements": (STATEMENT, statement),
                    "balances": ("account,date,balance", balances)}[kind]
    pick = random.Random(2026)
    write = sys.stdout.write
    write(header + "\n")
    for number in range(count):
        write("\n".join(rows(pick, number)) + "\n")


main()
