"""Random accounts of every kind, the rows they make in a file, and the figures they come to.

An account is a dictionary of the choices it was made of, so that it can be printed and made
simpler. Terms, bounds and disclosed APYs follow from the choices, so that a simpler account stays a
valid one.
"""

from datetime import date, timedelta
from decimal import Decimal

import decimal_yield as dy
import regular_cases
import statement_cases
import stepped_cases
import tier_cases
from decimal_yield import Account, Term

LONGEST = {"none": 36600, "days": 36600, "months": 1200, "years": 50}  # terms that are taken
TOLERANCE = Decimal("0.05")  # a computed APY so far from the disclosed one is no violation
YEARS = [(365, 0, 365), (365, 0, 360), (365, 1, 365), (366, 1, 366), (366, 1, 365)]


class Open(Exception):
    """A figure too close to a half to have one answer, or one that no account has."""


def settled(value):
    """Rounded to cents, unless the program's binary digits may see it on the other side."""
    if abs(value) >= Decimal("1e10") or dy.near_half(value, abs(value) * Decimal("1e-9") +
                                                     Decimal("1e-6")):
        raise Open
    return dy.cents(value)


def verdict(disclosed, apy):
    return "OK" if abs(apy - disclosed) <= TOLERANCE else "APY VIOLATION"


def apy_of(value):
    if value >= 90000:
        raise Open
    return settled(value)


# Choices.

def money(random):
    whole = random.choice([10, 1000, 50000, 10**7])
    return random.choice([Decimal(random.randint(1, whole)), Decimal(whole),
                          Decimal(random.randint(1, whole * 100)) / 100])


def percent(random):
    return random.choice([Decimal(random.randint(1, 30)) / 4,
                          Decimal(random.randint(0, 150000)) / 10**4,
                          Decimal(random.randint(1, 9999)) / 10**4, Decimal(5)])


def off(random):
    """How far the disclosed APY lies from the computed one; the bound of the test is frequent."""
    return Decimal(random.choice([0, 0, 5, -5, 6, -6, 4, random.randint(-300, 300)])) / 100


def part(random, unit, n, withdrawal, leap):
    """A period, a tier, or a whole regular account."""
    longest = {"none": 1500, "days": 1500 // n, "months": 120 // n, "years": 30 // n}[unit]
    each = random.choice([1, random.randint(1, longest), random.randint(1, min(longest, 30))])
    w = random.choice([1, 2, 12, random.randint(1, 24)]) if withdrawal != "none" else 0
    if withdrawal == "months" and unit == "days" or w > 1:
        each = random.choice([1, 3, random.randint(1, 12)])
    chosen = {"rate": percent(random), "balance": money(random), "each": each, "w": w,
              "month": random.randint(1, 12), "year": random.choice([2023, 2024, 1999, 1904, 2100]),
              "off": off(random), "off_high": off(random), "start": None}
    if unit in ("none", "days") and withdrawal == "none" and random.random() < 0.3:
        chosen["start"] = date(random.randint(1999, 2030), random.choice([1, 2, 3, 12]),
                               random.choice([1, 27, 28]))
    return chosen


def disclosure(random):
    kind = random.choice(["regular", "stepped", "tier-a", "tier-b"])
    unit = random.choice(["none", "days", "days", "months", "years"])
    n = random.choice({"none": [1], "days": [1, 1, 7, 30, random.randint(2, 400)],
                       "months": [1, 2, 3, 4, 6, 12], "years": [1, 1, 2, 5]}[unit])
    can = ["none"] + (["days"] if unit == "days" else [])
    if unit == "days" and n == 1 or unit == "months" and kind != "tier-b":
        can.append("months")
    withdrawal = random.choice(can)
    basis, leap, factor = (365, 0, 365) if unit == "years" else random.choice(YEARS)
    count = 1 if kind == "regular" else random.choice([2, 3, 10, random.randint(2, 10)])
    return {"check": "disclosure", "kind": kind, "unit": unit, "n": n, "withdrawal": withdrawal,
            "basis": basis, "leap": leap, "factor": factor,
            "parts": [part(random, unit, n, withdrawal, leap) for _ in range(count)]}


def day_balance(random, tiers):
    bound = random.choice(tiers)["span"] if tiers else Decimal(1000)
    return random.choice([money(random), bound, bound + Decimal("0.01"), Decimal(0), Decimal(-50)])


def statement(random):
    kind = random.choice(["regular", "stepped", "tier-a", "tier-b"])
    every = random.choice([0, 0, 1, 7, 30, random.randint(2, 96)])
    formula = random.choice([0, 28, 91, 365]) if every == 0 else 0
    count = random.choice([1, 30, 31, 33, 34, 66, 67, 96, random.randint(1, 96)])
    tiers = [{"rate": percent(random) + Decimal("0.0001"), "span": money(random)}
             for _ in range(random.randint(2, 10))] if kind.startswith("tier") else []
    basis, leap, factor = random.choice(YEARS)
    days = [[day_balance(random, tiers), percent(random)] for _ in range(count)]
    if random.random() < 0.5:
        days = [days[day // 10 * 10] for day in range(count)]
    counted = [max(b, Decimal(0)) for b, _ in days]
    average = statement_cases.rounded(sum(counted) / count, 2)
    # Right at what is compared with it, or a cent beside.
    near = lambda value: max(value + random.choice([0, 0, 1, -1]) / Decimal(100), Decimal("0.01"))
    stepped_or_formula = kind == "stepped" or formula > 0
    minimums = random.choice([(0, 0), (0, 0), (0, 1), (1, 1)] + [(1, 0)] * (not stepped_or_formula))
    daily_only = stepped_or_formula or minimums == (0, 1)
    method = "daily" if daily_only else random.choice(["adb", "daily"])
    return {"check": "statement", "kind": kind, "every": every, "formula": formula, "basis": basis,
            "leap": leap, "factor": factor, "method": method,
            "rate": percent(random) + Decimal("0.0001"),
            "tiers": tiers, "days": days, "entered": random.random() < 0.8,
            "minimum_adb": near(average) * minimums[0],
            "minimum_daily": near(random.choice(counted)) * minimums[1],
            "start": date(random.choice([2023, 2024]), random.choice([1, 2, 12]),
                          random.randint(1, 28)),
            "by_dates": random.random() < 0.4, "interest": money(random) / 100, "off": off(random)}


def random_account(random):
    return statement(random) if random.random() < 0.4 else disclosure(random)


# Rows and figures.

def end_of(start, days, leap):
    """The first date so many counted days after the start."""
    end = start + timedelta(days)
    while dy.calendar_days(start, end, leap) < days:
        end += timedelta(1)
    return end


def term_of(account, chosen):
    w, each, n = chosen["w"], chosen["each"], account["n"]
    place = {"month": chosen["month"], "year": chosen["year"], "w": w}
    if account["withdrawal"] == "none":
        return Term(each, chosen["month"], chosen["year"])
    if account["withdrawal"] == "days":
        return Term(each * w, m=n, **place)
    if account["unit"] == "months":
        return Term(each * w, m=each * n, **place)
    days = dy.run_length(chosen["month"], w * each, chosen["year"], account["leap"])
    return Term(days, m=each, **place)


def entry_cells(account, chosen, term):
    if term.length * account["n"] > LONGEST[account["unit"]]:
        raise Open
    cells = {"rate": chosen["rate"], "daily_rate_factor": f"1/{account['factor']}"}
    if account["unit"] == "months" or account["withdrawal"] == "months":
        cells |= {"begin_month": term.month, "begin_year": term.year}
    if account["withdrawal"] != "none":
        cells |= {"withdrawal_periods": term.w, "withdrawal_distance": term.m}
    start, days = chosen["start"], term.length * account["n"]
    if start is None:
        return cells | {"term": term.length}
    return cells | {"start_date": start, "end_date": end_of(start, days, account["leap"])}


def disclosed(cells, figures, apy, distance, end=""):
    """What the account discloses, and the verdict on it."""
    figures["computed_apy" + end] = apy
    cells["disclosed_apy" + end] = max(apy + distance, Decimal(0))
    figures["verdict" + end] = verdict(cells["disclosed_apy" + end], apy)


def each_alone(account, terms_of, rows, figures):
    """A regular account, or tiers by method A."""
    for chosen, cells, figure in zip(account["parts"], rows, figures):
        earned, apy, _ = regular_cases.figures(terms_of, chosen["rate"], chosen["balance"],
                                               term_of(account, chosen))
        cells["balance"] = chosen["balance"]
        figure["computed_interest"] = settled(earned)
        disclosed(cells, figure, apy_of(apy), chosen["off"])


def all_periods(account, terms_of, rows, figures):
    parts = account["parts"]
    terms, rates = [term_of(account, p) for p in parts], [p["rate"] for p in parts]
    earned, apy, _ = stepped_cases.figures(terms_of, rates, parts[0]["balance"], terms)
    settled(sum(earned))
    for figure, amount in zip(figures, earned):
        figure["computed_interest"] = settled(amount)
    rows[0]["balance"] = parts[0]["balance"]
    disclosed(rows[0], figures[-1], apy_of(apy), parts[0]["off"])


def both_ends(account, terms_of, rows, figures):
    parts, term = account["parts"], term_of(account, account["parts"][0])
    bounds = bounds_of(parts, "balance")
    rates = [p["rate"] for p in parts]
    tops = bounds + [bounds[-1] + parts[-1]["balance"]]
    for k, (chosen, cells, figure) in enumerate(zip(parts, rows, figures)):
        for high in (False, True) if k > 0 else (True,):
            balance = tops[k] if high else bounds[k - 1] + Decimal("0.01")
            earned, apy = tier_cases.figures(terms_of, term, rates, bounds, balance)
            end = "_high" if high and k > 0 else ""
            figure["computed_interest" + end] = settled(earned)
            disclosed(cells, figure, apy_of(apy), chosen["off" + end], end)
    rows[-1]["balance"] = tops[-1]


def bounds_of(tiers, span):
    bounds = []
    for tier in tiers[:-1]:
        bounds.append((bounds[-1] if bounds else Decimal(0)) + tier[span])
    return bounds


def disclosure_rows(account):
    years = account["unit"] == "years"
    common = {"check": "disclosure", "kind": account["kind"], "compounding": account["unit"],
              "every": account["n"] if account["unit"] != "none" else "",
              "year": "" if years else account["basis"],
              "count_feb_29": "" if years else "yes" if account["leap"] else "no",
              "withdrawals": account["withdrawal"] if account["unit"] in ("days", "months") else ""}
    parts, tier_b = account["parts"], account["kind"] == "tier-b"
    rows, figures = [], [{} for _ in parts]
    for k, chosen in enumerate(parts):
        cells = entry_cells(account, chosen, term_of(account, chosen))
        rows.append(common | (cells if k == 0 or not tier_b else {"rate": chosen["rate"]}))
    for cells, bound in zip(rows, bounds_of(parts, "balance") if "tier" in account["kind"] else []):
        cells["not_exceeding"] = bound
    terms_of = Account(account["unit"], account["n"], account["basis"], account["leap"],
                       account["withdrawal"], account["factor"])
    compute = {"stepped": all_periods, "tier-b": both_ends}.get(account["kind"], each_alone)
    compute(account, terms_of, rows, figures)
    return rows, figures, []


def statement_of(account):
    bounds = ["0"] + [str(b) for b in bounds_of(account["tiers"], "span")]
    # A minimum that stands alone demands its method; both are computed on the average.
    adb = account["method"] == "adb" or account["minimum_adb"] > 0
    return statement_cases.Statement(
        account["kind"].replace("-a", "A").replace("-b", "B"), "adb" if adb else "daily",
        account["every"], account["factor"], account["rate"],
        [(b, t["rate"]) for b, t in zip(bounds, account["tiers"])],
        account["minimum_adb"], account["minimum_daily"])


def earned_of(account, average, amount):
    """The interest that the daily balances hand over; None where it has to be typed."""
    both = account["minimum_adb"] > 0 and account["minimum_daily"] > 0
    if both:
        return amount if account["method"] == "adb" else Decimal(0)
    below = account["minimum_adb"] == 0 and average < account["minimum_daily"]
    return None if below and account["method"] == "daily" else amount


def statement_rows(account):
    count, leap = len(account["days"]), account["leap"]
    locked = account["kind"] == "stepped" or account["formula"] > 0
    cells = {"check": "statement", "kind": account["kind"], "year": account["basis"],
             "compounding": "days" if account["every"] else "none", "every": account["every"] or "",
             "count_feb_29": "yes" if leap else "no", "additional_days": account["formula"] or "",
             "daily_rate_factor": f"1/{account['factor']}", "minimum_adb": account["minimum_adb"],
             "minimum_daily": account["minimum_daily"], "start_date": account["start"],
             "method": "" if locked else account["method"]}
    if account["by_dates"]:
        cells["end_date"] = end_of(account["start"], count, leap)
    else:
        cells["days"] = count
    rows = [cells | {"rate": t["rate"]} for t in account["tiers"]] or [cells]
    if account["kind"] == "regular":
        cells["rate"] = account["rate"]
    for row, bound in zip(rows, bounds_of(account["tiers"], "span") if account["tiers"] else []):
        row["not_exceeding"] = bound
    average, amount = statement_cases.interest(
        statement_of(account), [b for b, _ in account["days"]], [r for _, r in account["days"]])
    figure, interest = {}, None
    if account["entered"]:
        figure["computed_average"] = average
        interest = earned_of(account, average, amount)
    else:
        rows[0]["average_balance"] = average
    if interest is None:
        interest = rows[0]["interest"] = account["interest"].quantize(Decimal("0.01"))
    if average <= 0:
        raise Open
    interest = figure["computed_interest"] = settled(interest)
    entry = [interest, average, count, 366 if leap else 365]
    apy = (statement_cases.apy_additional(*entry, account["formula"]) if account["formula"]
           else statement_cases.apy(*entry))
    disclosed(rows[0], figure, apy_of(apy), account["off"])
    rows[0]["disclosed_apy"] = max(rows[0]["disclosed_apy"], Decimal("0.01"))
    figure["verdict"] = verdict(rows[0]["disclosed_apy"], figure["computed_apy"])
    stepped = account["kind"] == "stepped"
    days = [(account["start"] + timedelta(day), balance, rate if stepped else "")
            for day, (balance, rate) in enumerate(account["days"])]
    return rows, [figure], days if account["entered"] else []


def rows_of(account):
    """Rows, expected figures of each, daily balances; raises Open where there is no one answer."""
    return disclosure_rows(account) if account["check"] == "disclosure" else statement_rows(account)
