#!/usr/bin/env python3
"""Computes every figure of reports again from nothing but their text, in decimal arithmetic.

    recompute.py report.html ...          checks these reports
    recompute.py --made-by test-program   lets the program write reports of many accounts first

Independent of the program: what stands in the report and the rules of Regulation DD, Appendix A.
"""

import os
import re
import subprocess
import sys
import tempfile
from datetime import datetime, timedelta
from decimal import Decimal, getcontext
from html.parser import HTMLParser
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parent.parent / "reference"))
from decimal_yield import Account, Term, apy, cents, interest, month_term_days  # noqa: E402
import statement_cases as statements  # noqa: E402

getcontext().prec = 40


class Report(HTMLParser):
    """What a reader sees: labels and what follows them, tables by caption, sentences by class."""

    def __init__(self, text):
        super().__init__()
        self.labels, self.tables, self.sentences = {}, [], {}
        self.text, self.sink = "", None
        self.feed(text)
        self.finish()

    def finish(self):
        if self.sink:
            self.sink(" ".join(self.text.split()))
        self.text, self.sink = "", None

    def begin(self, sink):
        self.finish()
        self.sink = sink

    def handle_starttag(self, tag, attributes):
        kind = dict(attributes).get("class")
        if tag == "table":
            self.tables.append({"caption": "", "head": [], "rows": []})
        elif tag == "caption":
            self.begin(lambda text: self.tables[-1].update(caption=text))
        elif tag == "th":
            self.begin(self.tables[-1]["head"].append)
        elif tag == "tr":
            self.finish()
            self.tables[-1]["rows"].append([])
        elif tag == "td":
            self.begin(self.tables[-1]["rows"][-1].append)
        elif tag == "b" and self.sink is None:
            self.begin(self.label)
        elif tag == "br" or tag == "section":
            self.finish()
        elif tag == "li" or (tag == "p" and kind):
            name = "notes" if tag == "li" else kind
            self.begin(self.sentences.setdefault(name, []).append)

    def handle_endtag(self, tag):
        if tag in ("table", "section", "p", "li", "caption"):
            self.finish()

    def handle_data(self, data):
        self.text += data

    def label(self, text):
        name, _, value = text.partition(":")
        self.labels[name.strip()] = value.strip()

    def table(self, caption):
        for table in self.tables:
            if caption in table["caption"]:
                return table["head"], [row for row in table["rows"] if row]
        return [], []

    def column(self, caption, heading):
        head, rows = self.table(caption)
        place = next(k for k, text in enumerate(head) if text.startswith(heading))
        return [row[place] if place < len(row) else "" for row in rows]


def number(text):
    return Decimal(text.replace("$", "").replace(",", "").replace("%", "").strip() or "0")


class Checker:
    def __init__(self, name):
        self.name, self.count, self.wrong = name, 0, []

    def same(self, what, shown, computed):
        self.count += 1
        if shown != computed:
            self.wrong.append(f"{self.name}: {what}: shown {shown}, computed {computed}")

    def near(self, what, shown, computed):
        """Six decimals; the last may be off where the seventh is a 5."""
        close = abs(shown - computed) < Decimal("0.000001")
        self.same(what, shown, shown if close else computed)

    def verdict(self, what, shown, disclosed, computed):
        expected = "OK" if abs(disclosed - computed) <= Decimal("0.05") else "APY VIOLATION"
        self.same(what, shown, expected)


# Disclosures.


def account_of(report):
    unit = report.labels["Interest Compounding"].lower()
    n = report.labels["Compounding Interval"]
    withdrawal = report.labels["Required Interest Withdrawal Measurement"].lower()
    return Account(unit, int(n) if n.isdigit() else 1, int(report.labels["Days In Year Of The APY"]),
                   int(report.labels["29 February Counted"] == "Yes"),
                   withdrawal if withdrawal in ("days", "months") else "none")


def lines_of(report):
    """Line number -> term and factor days."""
    head, rows = report.table("Terms As Entered")
    found = {}
    for row in rows:
        cells = dict(zip(head, row))
        first, _, last = cells["Lines"].partition(" to ")
        length = number(cells["Term Entered"].split()[0])
        month, _, year = cells.get("Beginning Month and Year", "").partition("-")
        w = re.findall(r"\d+", re.sub("every (?=month|day)", "1 ",
                                      cells.get("Required Interest Withdrawals", "")))
        term = Term(int(length), int(month or 1), int(year or 2023), int(w[0]) if w else 0,
                    int(w[1]) if len(w) > 1 else 0)
        if cells.get("Start Date") and cells.get("End Date"):
            counted = count_days(cells["Start Date"], cells["End Date"], report)
            assert counted == length * account_of(report).n, "the dates count another term"
        for line in range(int(first), int(last or first) + 1):
            found[line] = term, int(cells["Daily Rate Factor"].split("/")[1])
    return found


def count_days(start, end, report):
    first, last = (datetime.strptime(text, "%m-%d-%Y") for text in (start, end))
    days = [first + timedelta(k) for k in range((last - first).days + 1)]
    counts = report.labels["29 February Counted"] == "Yes"
    return len(days) - 1 - (0 if counts else sum(d.month == 2 and d.day == 29 for d in days))


class Reading:
    """Appendix A as the program reads it, or as one of its notes does."""

    def __init__(self, periods=False, own_months=False, year=None, exact=False):
        self.periods, self.own_months, self.year, self.exact = periods, own_months, year, exact

    def earned(self, account, rate, line):
        """Interest on 1 and the counted term."""
        term, account.factor = line
        daily = rate / 100 / account.factor
        if self.periods and account.unit == "days" and term.w in (0, 1):
            return (1 + daily * account.n) ** term.length - 1, term.length * account.n
        if self.own_months and account.withdrawal == "months":
            return self.by_own_months(account, daily, term)
        if account.withdrawal == "days" and term.w == 1:
            return (1 + daily) ** (term.length * account.n) - 1, term.length * account.n
        return interest(account, rate, term)

    @staticmethod
    def by_own_months(account, daily, term):
        def days(first, count):
            month = term.month - 1 + first
            at = Term(0, month % 12 + 1, term.year + month // 12)
            return month_term_days(at, count, account.leap)

        if account.unit == "days":
            lengths = [days(k * term.m, term.m) for k in range(term.w)]
            return sum((1 + daily) ** d - 1 for d in lengths), sum(lengths)
        total, in_each = Decimal(0), term.length // term.w
        for k in range(term.w):
            product = Decimal(1)
            for j in range(in_each):
                product *= 1 + daily * days((k * in_each + j) * account.n, account.n)
            total += product - 1
        return total, days(0, term.length * account.n)

    def apy(self, account, earned, balance, length):
        rounded = cents(earned)
        year = self.year or account.basis
        exponent = 1 / (account.n * length) if account.unit == "years" else Decimal(year) / length
        return rounded, cents(apy(earned if self.exact else rounded, balance, exponent))


METHOD = Reading()
READINGS = {
    "daily compounding": Reading(periods=True),
    "calendar's own": Reading(own_months=True),
    "unrounded interest": Reading(exact=True),
}


def least_of(note):
    return Decimal("0.02" if "unrounded" in note else "0.01")


def tiers_of(report):
    head, rows = report.table("Tiers")
    return [(number(row[1]), number(row[3])) for row in rows]


def parts(report, balance):
    tiers = tiers_of(report)
    ends = [above for above, _ in tiers[1:]] + [balance]
    for (above, rate), end in zip(tiers, ends):
        if above < balance:
            yield min(balance, max(end, above)) - above, rate


def stepped(report, reading, account, rates, lines, balance):
    """Interest of each period, and interest and APY of all."""
    each, length = [], Decimal(0)
    builds = account.unit != "none" and account.withdrawal == "none"
    for line, rate in enumerate(rates, start=1):
        on = balance + (sum(each) if builds else 0)
        earned, counted = reading.earned(account, rate, lines[line])
        if account.unit == "years":
            term, factor = lines[line]
            earned = (1 + rate / 100 / factor * 365 * account.n) ** term.length - 1
        each.append(earned * on)
        length += counted
    return each, *reading.apy(account, sum(each), balance, length), length


def apys(report, reading):
    """Interest and APY of each row that has one, by a reading."""
    account, lines = account_of(report), lines_of(report)
    caption = "Interest and Annual Percentage Yield"
    kind = report.labels["Rate Structure"]
    numbers = [int(n) for n in report.column(caption, "Line No.") if n]
    balances = [number(b) for b in report.column(caption, "Balance")]
    rates = [r for r in report.column(caption, "Interest Rate") if r]
    if kind == "STEPPED RATE":
        each, _, whole, length = stepped(report, reading, account, [number(r) for r in rates],
                                         lines, balances[0])
        return [(cents(i), None) for i in each[:-1]] + [(cents(each[-1]), whole)]
    found = []
    for line, balance, rate in zip(numbers, balances, rates):
        if kind == "TIERING Method B":
            shares = [(share, reading.earned(account, r, lines[line])) for share, r in
                      parts(report, balance)]
            earned, counted = sum(s * e for s, (e, _) in shares), shares[0][1][1]
        else:
            earned, counted = reading.earned(account, number(rate), lines[line])
            earned *= balance
        found.append(reading.apy(account, earned, balance, Decimal(counted)))
    return found


def own_year(report):
    """The days in the year of an account by method B: those that its year does not take."""
    return 365 if report.labels["Days In Year Of The APY"] == "366" else 366


def composite(report):
    account, lines = account_of(report), lines_of(report)
    rates = [number(r) for r in report.column("Interest and Annual", "Interest Rate") if r]
    days = [METHOD.earned(account, rate, lines[k])[1] for k, rate in enumerate(rates, start=1)]
    if report.labels["Rate Structure"] == "STEPPED RATE":
        mixed = sum(r * d for r, d in zip(rates, days)) / sum(days)
        return [None] * (len(rates) - 1) + [mixed]
    return rates


def other_apys(report, note):
    if "Part I.E" in note:
        return [rate and cents(rate) for rate in composite(report)]
    if "own days in the year" in note:
        return [found for _, found in apys(report, Reading(year=own_year(report)))]
    for words, reading in READINGS.items():
        if words in note:
            return [found for _, found in apys(report, reading)]
    return None


def check_no_note_is_missing(report, check, shown):
    """But for Part I.E and the year of method B, whose conditions a report does not tell whole."""
    notes = " ".join(report.sentences.get("notes", []))
    if "Periods computed" in notes:
        return
    for words, reading in READINGS.items():
        if words not in notes:
            apart = [abs(other - computed) for (_, other), computed in
                     zip(apys(report, reading), shown) if other is not None and computed is not None]
            check.same(f"missing note on {words}", max(apart) >= least_of(words), False)


def check_notes(report, check, shown, disclosed):
    for note in report.sentences.get("notes", []):
        others = other_apys(report, note)
        figures = re.findall(r"(\d+\.\d\d)% beside (\d+\.\d\d)%\.( This would be [^.]*\.)?", note)
        if others is None:
            check.same("figures of a note without any", len(figures), 0)
            continue
        least = least_of(note)
        expected = []
        for other, computed, promised in zip(others, shown, disclosed):
            if other is None or computed is None or abs(other - computed) < least:
                continue
            before, after = (abs(promised - a) <= Decimal("0.05") for a in (computed, other))
            turn = "" if before == after else " This would be OK." if after else \
                " This would be an APY VIOLATION."
            expected.append((str(other), str(computed), turn))
        check.same(f"note '{note[:30]}...'", figures, expected)


def check_disclosure(report, check):
    caption = "Interest and Annual Percentage Yield"
    head, rows = report.table(caption)
    place = head.index("Interest")
    filled = [row for row in rows if row[0]]
    shown = []
    for row, (earned, whole) in zip(filled, apys(report, METHOD), strict=True):
        cells = dict(zip(head, row))
        check.same("interest", number(row[place]), earned)
        is_yield = cells["Computed APY"] != "N/A"
        shown.append(number(cells["Computed APY"]) if is_yield else None)
        check.same("APY", shown[-1], whole)
        if is_yield:
            check.verdict("verdict", cells["Result"], number(cells["Disclosed APY"]), whole)
    disclosed = [number(row[head.index("Disclosed APY")]) for row in filled]
    check_notes(report, check, shown, disclosed)
    check_no_note_is_missing(report, check, shown)
    check_total(report, check)


def check_total(report, check):
    for text in report.sentences.get("total", []):
        if not text:
            continue
        found = re.fullmatch(r"Total of the periods: (\S+) interest in (\S+) (days|years)\.", text)
        rates = [number(r) for r in report.column("Interest and Annual", "Interest Rate") if r]
        balance = number(report.column("Interest and Annual", "Balance")[0])
        account = account_of(report)
        each, total, _, length = stepped(report, METHOD, account, rates, lines_of(report), balance)
        years = account.n if account.unit == "years" else 1
        check.same("total interest", number(found[1]), total)
        check.same("total length", number(found[2]), length * years)


# Statements.


def check_statement(report, check):
    head, rows = report.table("Earned for the Statement Period")
    cells = dict(zip(head, rows[0]))
    averages = report.table("Average Daily Balance (ADB)")[1][0]
    balance = number(averages[1 if report.labels["The APY Rests On"].startswith("Ledger") else 3])
    days, year = (int(report.labels[name]) for name in ("Days In Period", "Days In Year Of The APY"))
    amount = number(cells["Interest Amount"])
    period = report.labels["Days Of Its Compounding Period"]
    whole = cents(statements.apy_additional(amount, balance, days, year, int(period)) if period
                  else statements.apy(amount, balance, days, year))
    check.same("APY", number(cells["Computed APY Earned"]), whole)
    check.verdict("verdict", cells["Result"], number(cells["Disclosed APY"]), whole)
    both = report.labels["Interest Calculation Method"] == "Daily Balance" and all(
        number(report.labels["Minimum Required " + name]) for name in ("ADB", "Daily Balance"))
    noted = any("both minimums" in note for note in report.sentences.get("notes", []))
    check.same("note on both minimums", noted, both)


def by_columns(rows, width):
    """Days that run down three columns side by side."""
    days = []
    for first in range(0, 3 * width, width):
        days += [row[first:first + width] for row in rows if len(row) > first and row[first]]
    return days


def check_interest(report, check):
    rows = by_columns(report.table("Balance and Interest Rate of Each Day")[1], 3)
    shown = [number(amount) for _, amount in
             by_columns(report.table("Interest of Each Day")[1], 2)]
    balances = [max(number(balance), Decimal(0)) for _, balance, _ in rows]
    rates = [number(rate) for _, _, rate in rows]
    adb = cents(sum(balances) / len(balances))
    check.same("ADB", number(report.labels["Average Daily Balance"]), adb)
    year = int(report.labels["Days In Year Of The Daily Rate Factor"])
    every = int(report.labels["Days Between Compounding"] or 0)
    rule = report.sentences["rule"][0]
    average = "average daily balance earns" in rule
    floor = number(report.labels["Minimum Required " + ("ADB" if average else "Daily Balance")])
    total, earning, each = Decimal(0), 0, []
    for balance, rate in zip([adb] * len(rows) if average else balances, rates):
        if balance < floor:
            each.append(Decimal(0))
            continue
        carried = total if every and earning and earning % every == 0 else 0
        each.append(day_interest(report, rule, balance, carried, rate, year))
        total += each[-1]
        earning += 1
    for amount, computed in zip(shown, each, strict=True):
        check.near("interest of a day", amount, computed)
    check.near("interest", number(report.labels["Interest Of All Days"]), total)


def day_interest(report, rule, balance, carried, rate, year):
    if "Each part of a balance" in rule:
        return sum((statements.daily(r, year) * share for share, r in
                    parts(report, balance + carried)), Decimal(0))
    tiers = tiers_of(report)
    if tiers:
        rate = [r for above, r in tiers if balance > above or above == 0][-1]
    return statements.rounded(statements.daily(rate, year) * (balance + carried), 15)


def check_report(path):
    report = Report(path.read_text(encoding="utf-8"))
    check = Checker(path.name)
    if report.table("Terms As Entered")[1]:
        check_disclosure(report, check)
    elif report.table("Interest of Each Day")[1]:
        check_interest(report, check)
    else:
        check_statement(report, check)
    return check


def check_all(paths):
    checks = [check_report(path) for path in sorted(paths)]
    for check in checks:
        print(*check.wrong, sep="\n", end="\n" if check.wrong else "")
    print(f"{len(checks)} reports, {sum(check.count for check in checks)} figures")
    return checks and not any(check.wrong for check in checks)


def main():
    if sys.argv[1] != "--made-by":
        return check_all(map(Path, sys.argv[1:]))
    with tempfile.TemporaryDirectory() as folder:
        environment = {**os.environ, "CORVANE_REPORT_FIGURES": folder}
        subprocess.run([sys.argv[2], "--gtest_filter=ReportFigures.*", "--gtest_brief=1"],
                       env=environment, check=True)
        return check_all(Path(folder).iterdir())


if __name__ == "__main__":
    sys.exit(0 if main() else 1)
