"""Rows of periodic statements: 96 days, interest by day of every kind of account, the yield earned.

Written from Regulation DD, Appendix A, Part II, and the program's rules for interest by day; it
shares nothing with the program.
"""

from dataclasses import dataclass, field
from decimal import ROUND_HALF_EVEN, Decimal
from itertools import product

DAY_COLUMNS = "varied low steprate".split()
INTEREST_COLUMNS = "kind method minimums pattern days every adb interest".split()
EARNED_COLUMNS = "interest balance days year period apy additional".split()

TIERS = [("0", "1.05"), ("1000", "2.5"), ("2500", "4.1265"), ("15000", "5.75")]  # above, percent
RATE = Decimal("3.65")
MINIMUM_ADB, MINIMUM_DAILY = Decimal(1000), Decimal(500)
YEAR = {"varied": 365, "low": 366}
DAYS = [1, 33, 34, 66, 67, 96]


def rounded(value, places):
    return value.quantize(Decimal(1).scaleb(-places), rounding=ROUND_HALF_EVEN)


def balances(pattern):
    """Every bound, a cent above it, a negative day, a zero and plain figures; or small ones."""
    special = ["1000", "1000.01", "2500", "2500.01", "15000", "15000.01", "-50", "0", "499.99",
               "500", "100000"]
    if pattern == "low":
        return [Decimal(400 + 17 * d % 250) + Decimal(d) / 100 for d in range(96)]
    cells = [Decimal(900 + 613 * d % 7000) + Decimal(37 * d % 100) / 100 for d in range(96)]
    for position, text in enumerate(special):
        cells[3 + 8 * position] = Decimal(text)
    return cells


def step_rates():
    return [Decimal("2.5") + Decimal(d // 20) / 4 + Decimal(d % 3) / 10000 for d in range(96)]


def daily(percent, year):
    return rounded(Decimal(percent) / 100 / year, 15)


@dataclass
class Statement:
    kind: str  # regular, stepped, tierA or tierB
    method: str  # adb or daily
    every: int  # days between compoundings, 0 for none
    factor: int  # denominator of the daily rate factor
    rate: Decimal = RATE  # of a regular account
    tiers: list = field(default_factory=lambda: TIERS)  # lower bound and rate of each
    minimum_adb: Decimal = Decimal(0)
    minimum_daily: Decimal = Decimal(0)


def one_day(account, balance, carried, step):
    """Interest of one day; carried is earlier interest that counts as balance."""
    if account.kind in ("regular", "stepped"):
        rate = step if account.kind == "stepped" else account.rate
        return daily(rate, account.factor) * (balance + carried)
    if account.kind == "tierA":
        rate = [r for above, r in account.tiers if balance > Decimal(above) or above == "0"][-1]
        return daily(rate, account.factor) * (balance + carried)
    split = balance + carried
    ceilings = [Decimal(above) for above, _ in account.tiers[1:]] + [Decimal("Infinity")]
    return sum(daily(rate, account.factor) * max(min(split, top) - Decimal(above), Decimal(0))
               for (above, rate), top in zip(account.tiers, ceilings))


def earned(account, day_balances, rates):
    """Sum over the earning days; on each day after a full period the sum so far earns too."""
    total, every = Decimal(0), account.every
    for number, (balance, rate) in enumerate(zip(day_balances, rates), start=1):
        new_period = every > 0 and number > 1 and (number - 1) % every == 0
        total += rounded(one_day(account, balance, total if new_period else 0, rate), 15)
    return total


def interest(account, day_balances, rates):
    """Average daily balance and interest of the period."""
    counted = [max(b, Decimal(0)) for b in day_balances]
    days = len(counted)
    adb = rounded(sum(counted) / days, 2)
    if account.method == "adb" and account.kind != "stepped":
        if adb < account.minimum_adb:
            return adb, Decimal(0)
        if account.every == 0:
            return adb, rounded(one_day(account, adb, 0, 0) * days, 15)
        return adb, earned(account, [adb] * days, rates)
    earning = [(b, r) for b, r in zip(counted, rates) if b >= account.minimum_daily]
    return adb, earned(account, [b for b, _ in earning], [r for _, r in earning])


def apy(amount, balance, days, year):
    power = (1 + amount / balance) ** (Decimal(year) / days)
    return 100 * (power - 1)


def apy_additional(amount, balance, days, year, period):
    power = (1 + amount / balance / days * period) ** (Decimal(year) / period)
    return 100 * (power - 1)


def day_rows():
    """The balances and step rates of each day."""
    return zip(balances("varied"), balances("low"), step_rates())


def interest_rows():
    """Average daily balance and interest of every kind of account."""
    cases = product(["regular", "stepped", "tierA", "tierB"], ["adb", "daily"],
                    ["none", "adb", "daily", "both"], ["varied", "low"], DAYS, [0, 1, 30])
    for case in cases:
        kind, method, minimums, pattern, days, every = case
        account = Statement(kind, method, every, YEAR[pattern])
        if minimums in ("adb", "both"):
            account.minimum_adb = MINIMUM_ADB
        if minimums in ("daily", "both"):
            account.minimum_daily = MINIMUM_DAILY
        adb, amount = interest(account, balances(pattern)[:days], step_rates()[:days])
        yield [*case, adb, rounded(amount, 15)]


def earned_rows():
    """Annual percentage yield earned, by both formulas."""
    amounts = [("5.25", "1000"), ("12.50", "10000"), ("0", "250"), ("812.37", "99999.99")]
    cases = product(amounts, [1, 30, 31, 96], [365, 366], [28, 91, 365])
    for (amount, balance), days, year, period in cases:
        entry = [Decimal(amount), Decimal(balance), days, year]
        yield [*entry, period, rounded(apy(*entry), 12),
               rounded(apy_additional(*entry, period), 12)]
