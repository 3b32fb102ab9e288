"""Interest of one term in exact decimal arithmetic, for the reference tables.

Independent of the program: closed formulas in decimal digits instead of stepped loops in binary,
and the calendar of the Python library. Sources: Regulation DD, Appendix A, Part I.A,
and the program's rules for counting days.
"""

import calendar
from dataclasses import dataclass
from datetime import date
from decimal import ROUND_HALF_EVEN, Decimal


@dataclass
class Account:
    unit: str  # none, days, months or years
    n: int  # length of a compounding period in that unit
    basis: int  # days of the year, 365 or 366
    leap: int  # 1 when 29 February counts
    withdrawal: str = "none"  # none, days or months
    factor: int = 0  # denominator of the daily rate factor; 0 means the basis

    def __post_init__(self):
        self.factor = self.factor or self.basis


@dataclass
class Term:
    length: int  # days, or compounding periods
    month: int = 1
    year: int = 2023
    w: int = 0  # withdrawal periods
    m: int = 0  # days or months between withdrawals


def cents(value):
    """Two decimals, an exact half to the even neighbour."""
    return value.quantize(Decimal("1e-20")).quantize(Decimal("0.01"), ROUND_HALF_EVEN)


def near_half(value, tolerance=Decimal("1e-5")):
    """True where the value is so close to a half, without being one, that rounding is open."""
    distance = abs((abs(value) * 100) % 1 - Decimal("0.5"))
    return Decimal("1e-18") < distance < tolerance


def intermediate(value):
    """Rates and interest on the way are kept to 15 decimals."""
    return value.quantize(Decimal("1e-15"), ROUND_HALF_EVEN)


def month_length(month, year, leap):
    """All months of a term have the length they have in the year in which it begins."""
    return 28 if month == 2 and not leap else calendar.monthrange(year, month)[1]


def months_from(month, count):
    return [(month - 1 + i) % 12 + 1 for i in range(count)]


def run_length(month, count, year, leap):
    return sum(month_length(m, year, leap) for m in months_from(month, count))


def calendar_days(start, end, leap):
    leap_days = [date(y, 2, 29) for y in range(start.year, end.year + 1) if calendar.isleap(y)]
    return (end - start).days - (0 if leap else sum(start <= d <= end for d in leap_days))


def month_term_days(term, months, leap):
    last = term.year * 12 + term.month - 1 + months
    start, end = date(term.year, term.month, 1), date(last // 12, last % 12 + 1, 1)
    return calendar_days(start, end, leap)


def interest_days(account, rate, term):
    """Factor of growth less 1, and the counted term."""
    daily = rate / 100 / account.factor
    if account.withdrawal == "days" and term.w > 1:
        each = (1 + daily * account.n) ** (term.length // term.w) - 1
        return each * term.w, term.length * account.n
    if account.withdrawal == "months":
        daily, total = intermediate(daily), Decimal(0)
        for k in range(term.w):
            start = months_from(term.month, k * term.m + 1)[-1]
            days = run_length(start, term.m, term.year, account.leap)
            total += (1 + daily * account.n) ** days - 1
        return total, term.length
    return (1 + daily) ** (term.length * account.n) - 1, term.length * account.n


def interest_months(account, rate, term):
    days = month_term_days(term, term.length * account.n, account.leap)
    if term.w == 0:
        per_year = Decimal(12) / account.n
        growth = (1 + rate / 100 / per_year) ** (Decimal(days) / account.factor * per_year)
        return growth - 1, days
    daily = intermediate(rate / 100 / account.factor)
    total = Decimal(0)
    in_each = term.length // term.w
    for k in range(term.w):
        product = Decimal(1)
        for j in range(in_each):
            first = months_from(term.month, (k * in_each + j) * account.n + 1)[-1]
            product *= 1 + daily * run_length(first, account.n, term.year, account.leap)
        total += product - 1
    return total, days


def interest(account, rate, term):
    """Interest on a deposit of 1 and the counted term (days; years where compounding by years)."""
    if account.unit == "none":
        return rate / 100 * term.length / account.factor, term.length
    if account.unit == "days":
        return interest_days(account, rate, term)
    if account.unit == "months":
        return interest_months(account, rate, term)
    return (1 + rate / 100 * account.n) ** term.length - 1, term.length


def apy(earned, principal, exponent):
    return 100 * ((1 + earned / principal) ** exponent - 1)
