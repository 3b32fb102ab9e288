"""Rows of the stepped-rate accounts: 2 and 10 periods, every unit, with and without withdrawals.

What a period earns stays in the account, unless nothing compounds or interest must be withdrawn;
the APY is that of the whole term on the first balance (Regulation DD, Appendix A, Part I.B).
"""

from decimal import Decimal

import decimal_yield as dy
from decimal_yield import Account, Term

COLUMNS = ("unit n basis leap withdrawal m factor balance w months years rates terms "
           "interests interest apy units").split()

FIRST_RATES = [Decimal(r) for r in ("5", "5.5", "3.75", "6.1234", "0.25")]


def period_factor(account, rate, term):
    if account.unit == "years":  # every year has 365 days
        yearly = dy.intermediate(rate / 100 / account.factor) * 365 * account.n
        return (1 + yearly) ** term.length - 1, term.length
    return dy.interest(account, rate, term)


def units_of(account, term, counted):
    """The length that is summed: counted days by months, else periods as entered."""
    return counted if account.unit == "months" else term.length


def exponent(account, units):
    if account.unit == "years":
        return Decimal(1) / (account.n * units)
    return Decimal(account.basis) / (units * (account.n if account.unit == "days" else 1))


def figures(account, rates, balance, terms):
    """Interest of each period, APY (all exact) and the sum of the units."""
    builds = account.unit != "none" and account.withdrawal == "none"
    earned, units = [], 0
    for rate, term in zip(rates, terms):
        factor, counted = period_factor(account, rate, term)
        earned.append((balance + (sum(earned) if builds else 0)) * factor)
        units += units_of(account, term, counted)
    return earned, dy.apy(dy.cents(sum(earned)), balance, exponent(account, units)), units


def row(account, rates, balance, terms):
    earned, exact_apy, units = figures(account, rates, balance, terms)
    total = sum(earned)
    if dy.near_half(total) or dy.near_half(exact_apy) or any(map(dy.near_half, earned)):
        return None
    join = lambda values: "/".join(str(v) for v in values)
    return [account.unit, account.n, account.basis, account.leap, account.withdrawal, terms[0].m,
            account.factor, balance, join(t.w for t in terms), join(t.month for t in terms),
            join(t.year for t in terms), join(rates), join(t.length for t in terms),
            join(dy.cents(e) for e in earned), dy.cents(total), dy.cents(exact_apy), units]


def rates_of(count):
    return [FIRST_RATES[k % 5] + k // 5 for k in range(count)]


def starts(count, months_each, month, year):
    """Month and year in which each period starts, every one where the last one ended."""
    places = [year * 12 + month - 1 + k * months_each for k in range(count)]
    return [(place % 12 + 1, place // 12) for place in places]


def by_days(count, length, w=0, m=0):
    return [Term(length + (0 if w else k), w=w, m=m) for k in range(count)]


def by_months(count, length, n, month, year, w=0):
    return [Term(length, mo, y, w, length * n // w if w else 0)
            for mo, y in starts(count, length * n, month, year)]


def withdrawn_monthly(count, w, m, month, year, leap):
    return [Term(dy.run_length(mo, w * m, y, leap), mo, y, w, m)
            for mo, y in starts(count, w * m, month, year)]


def accounts(count):
    for basis, leap in ((365, 0), (365, 1), (366, 1)):
        yield Account("none", 1, basis, leap), by_days(count, 91)
        yield Account("days", 1, basis, leap), by_days(count, 91)
        yield Account("days", 7, basis, leap), by_days(count, 13)
        yield Account("days", 1, basis, leap, "days"), by_days(count, 60, w=12, m=1)
        yield Account("days", 7, basis, leap, "days"), by_days(count, 13, w=1, m=7)
        yield (Account("days", 1, basis, leap, "months"),
               withdrawn_monthly(count, 3, 1, 12, 2023, leap))
        for n in (1, 3):
            yield Account("months", n, basis, leap), by_months(count, 2, n, 11, 2023)
            yield Account("months", n, basis, leap, "months"), by_months(count, 4, n, 1, 2024, w=2)
    yield Account("years", 1, 365, 0), [Term(k % 3 + 1) for k in range(count)]
    yield Account("years", 2, 365, 0), [Term(1) for _ in range(count)]
    yield Account("years", 1, 366, 1), [Term(2) for _ in range(count)]


def rows():
    for count in (2, 10):
        for turn, (account, terms) in enumerate(accounts(count)):
            balance = Decimal(("1000", "98765.43", "10")[turn % 3])
            yield row(account, rates_of(count), balance, terms)
    # Regulation DD, Appendix A, Part I.B: 5 % for 91 days, then 5.5 % for 92 days.
    yield row(Account("days", 1, 365, 0), rates_of(2), Decimal(1000), [Term(91), Term(92)])
