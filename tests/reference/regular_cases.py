"""Rows of the regular accounts, and of tiered accounts by method A (each tier stands alone)."""

from decimal import Decimal

import decimal_yield as dy
from decimal_yield import Account, Term

COLUMNS = ("account unit n basis leap withdrawal w m month year factor rate balance term "
           "interest apy counted").split()

RATES = [Decimal(r) for r in ("0.05", "5.25", "2.1234", "12.5")]
BALANCES = [Decimal(b) for b in ("1000", "123456.78", "25", "8000")]


def figures(account, rate, balance, term):
    """Interest, APY (both exact) and the term as counted."""
    factor, counted = dy.interest(account, rate, term)
    years = account.unit == "years"
    exponent = Decimal(1) / (account.n * term.length) if years else Decimal(account.basis) / counted
    return balance * factor, dy.apy(dy.cents(balance * factor), balance, exponent), counted


def row(kind, account, rate, balance, term):
    exact, exact_apy, counted = figures(account, rate, balance, term)
    earned = dy.cents(exact)
    if dy.near_half(exact) or dy.near_half(exact_apy):
        return None
    if account.unit == "days" and term.w > 1:
        counted //= account.n
    return [kind, account.unit, account.n, account.basis, account.leap, account.withdrawal, term.w,
            term.m, term.month, term.year, account.factor, rate, balance, term.length, earned,
            dy.cents(exact_apy), counted]


def bases():
    return [(365, 0), (365, 1), (366, 1)]


def accounts():
    """(account, terms): every unit with and without withdrawals, every basis, N of 1 and more."""
    for basis, leap in bases():
        yield Account("none", 1, basis, leap), [Term(1), Term(91), Term(365), Term(1000)]
        yield Account("none", 1, basis, leap, factor=365), [Term(180)]
        for n in (1, 7, 30):
            days = Account("days", n, basis, leap)
            yield days, [Term(1), Term(12), Term(365 // n)]
            with_days = Account("days", n, basis, leap, "days")
            yield with_days, [Term(12, w=1, m=n), Term(12, w=3, m=n), Term(360, w=12, m=n)]
        yield Account("days", 1, basis, leap, "months"), [
            Term(dy.run_length(month, w * m, year, leap), month, year, w, m)
            for month, year, w, m in ((1, 2023, 12, 1), (1, 2024, 4, 3), (11, 2024, 2, 3),
                                      (11, 2023, 2, 3), (2, 2024, 1, 1))]
        for n in (1, 2, 3, 4, 6, 12):
            whole = 24 // n
            yield Account("months", n, basis, leap), [Term(1, 2, 2024), Term(whole, 11, 2023)]
        for n, terms in ((1, [Term(12, 1, 2023, 12, 1), Term(12, 7, 2023, 2, 6),
                              Term(3, 1, 2024, 1, 3)]),
                         (3, [Term(4, 1, 2024, 2, 6), Term(8, 5, 2023, 8, 3)])):
            yield Account("months", n, basis, leap, "months"), terms
    for n in (1, 2, 5):
        yield Account("years", n, 365, 0), [Term(1), Term(3), Term(10)]


def tier_a_rows():
    """Ten tiers of one table, each computed alone on a balance of its own."""
    account = Account("days", 1, 365, 0)
    with_withdrawals = Account("days", 1, 365, 0, "days")
    for k in range(10):
        rate = Decimal("3.05") + Decimal("0.35") * k
        yield account, rate, Decimal(750 * (k + 1)), Term(365)
        yield with_withdrawals, rate, Decimal(750 * (k + 1)), Term(360, w=12, m=1)


def round_figure_rows():
    """$1,000 at 5 % over a year: figures that a person can check by hand."""
    rate, balance = Decimal(5), Decimal(1000)
    yield Account("days", 1, 365, 0, "months"), rate, balance, Term(365, w=12, m=1)
    yield Account("months", 1, 365, 0, "months"), rate, balance, Term(12, w=12, m=1)
    yield Account("days", 30, 365, 0), rate, balance, Term(12)


def rows():
    turn = 0
    for account, terms in accounts():
        for term in terms:
            turn += 1
            yield row("regular", account, RATES[turn % 4], BALANCES[turn // 4 % 4], term)
    for account, rate, balance, term in round_figure_rows():
        yield row("regular", account, rate, balance, term)
    for account, rate, balance, term in tier_a_rows():
        yield row("tierA", account, rate, balance, term)
