"""Rows of tiered accounts by method B: 2, 5, 6 and 10 tiers, verified at both ends of a tier.

Each tier's rate is paid on the part of the balance that lies in the tier (Regulation DD, Appendix
A, Part I.D).
"""

from decimal import Decimal

import decimal_yield as dy
from decimal_yield import Account, Term

COLUMNS = ("unit n basis leap withdrawal w m month year factor rates bounds typed tier end term "
           "principal interest schedule apy").split()

RATES = [Decimal(r) for r in
         "5.25 5.5 5.75 6 6.1265 6.25 6.5 6.75 7.01 7.5".split()]
BOUNDS = [Decimal(b) for b in
          "2500 15000 25000.5 40000 50000 75000.25 100000 250000 500000".split()]


def exponent(account, term):
    """The year of the yield has 366 days when 29 February counts; by months it is that of the
    beginning year."""
    basis = 366 if account.leap or account.basis == 366 else 365
    if account.unit == "years":
        return Decimal(1) / (term.length * account.n)
    if account.unit == "months":
        days = dy.month_term_days(term, term.length * account.n, account.leap)
        return Decimal(366 if term.year % 4 == 0 else 365) / days
    return Decimal(basis) / (term.length * (account.n if account.unit == "days" else 1))


def figures(account, term, rates, bounds, balance):
    """Interest and APY, both exact, of a balance in tiers of these rates and upper bounds."""
    total = sum(max(min(balance, top) - low, Decimal(0)) * dy.interest(account, rate, term)[0]
                for low, top, rate in zip([Decimal(0)] + bounds, bounds + [balance], rates))
    return total, dy.apy(dy.cents(total), balance, exponent(account, term))


def row(account, term, count, tier, end):
    """The balance reaches `tier` (from 1): one cent above its lower bound, or its upper bound."""
    floor = [Decimal(0)] + BOUNDS[:count - 1]
    typed = floor[-1] * 2
    if end == "low":
        balance = floor[tier - 1] + Decimal("0.01")
    else:
        balance = typed if tier == count else floor[tier]
    total, exact_apy = figures(account, term, RATES[:count], BOUNDS[:count - 1], balance)
    if dy.near_half(total) or dy.near_half(exact_apy):
        return None
    join = lambda values: "/".join(str(v) for v in values)
    return [account.unit, account.n, account.basis, account.leap, account.withdrawal, term.w,
            term.m, term.month, term.year, account.factor, join(RATES[:count]),
            join(BOUNDS[:count - 1]), typed, tier, end, term.length, balance, dy.cents(total),
            join(RATES[:tier]), dy.cents(exact_apy)]


def accounts():
    for basis, leap in ((365, 0), (365, 1), (366, 1)):
        yield Account("none", 1, basis, leap), Term(180)
        yield Account("days", 1, basis, leap), Term(365)
        yield Account("days", 1, basis, leap, "days"), Term(360, w=12, m=1)
        yield Account("days", 1, basis, leap, "months"), Term(
            dy.run_length(11, 6, 2023, leap), 11, 2023, 2, 3)
        yield Account("months", 1, basis, leap), Term(12, 1, 2024)
        yield Account("months", 3, basis, leap), Term(5, 11, 2023)
    yield Account("days", 30, 365, 0), Term(12)
    yield Account("days", 30, 365, 0, "days"), Term(12, w=3, m=30)
    yield Account("days", 30, 365, 0, "days"), Term(12, w=1, m=30)
    yield Account("years", 1, 365, 0), Term(1)
    yield Account("years", 2, 365, 0), Term(3)


def ends(count):
    yield 1, "high"
    for tier in range(2, count + 1):
        yield tier, "low"
        yield tier, "high"


def rows():
    daily, year = Account("days", 1, 365, 0), Term(365)
    for tier, end in ends(10):
        yield row(daily, year, 10, tier, end)
    for turn, (account, term) in enumerate(accounts()):
        yield from (row(account, term, 2, tier, end) for tier, end in ends(2))
        count = (5, 6, 10)[turn % 3]
        for tier, end in ((count // 2, "low"), (count - 1, "high"), (count, "low"),
                          (count, "high")):
            yield row(account, term, count, tier, end)
