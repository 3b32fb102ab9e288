#!/usr/bin/env python3
"""Plants the faults of tests/faults/faults.txt one by one and tells which of them the tests catch.

Works on a copy of the sources in build/faults, never on the sources themselves. A fault that does
not build is told as invalid and counts as neither caught nor survived. See docs/testing.md."""
import argparse
import dataclasses
import hashlib
import json
import pathlib
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIST = ROOT / "tests/faults/faults.txt"
COPY = ROOT / "build/faults"
BUILD = COPY / "build/dev"
RESULTS = COPY / "build/results.tsv"
PROVEN = COPY / "build/proven"

LAYERS = ("engine", "core", "windows")
CORE = ("support", "formulas", "account", "disclosure", "statement", "reports", "portfolio")
CORE_PROGRAMS = [f"corvane_{folder}_tests" for folder in CORE] + ["corvane-check"]
WINDOW_PROGRAMS = ["corvane_window_tests", "corvane_tireless"]
# Tests with a limit of their own keep it; one that reaches its limit has caught the fault.
SECONDS_OF_A_TEST = "120"


@dataclasses.dataclass
class Fault:
    layer: str
    name: str
    file: str
    old: list = dataclasses.field(default_factory=list)
    new: list = dataclasses.field(default_factory=list)
    first: str = ""  # pattern of the tests that are the likeliest to catch it

    def planted(self, text):
        """The text with the fault; ValueError where its place is not there exactly once."""
        old, new = "\n".join(self.old), "\n".join(self.new)
        if not old or old == new or text.count(old) != 1:
            raise ValueError(f"{self.name}: stands {text.count(old)} times in {self.file}: {old}")
        return text.replace(old, new)


def read_list():
    faults, layer = [], ""
    for number, line in enumerate(LIST.read_text().splitlines(), 1):
        if line.startswith("#") or not line:
            continue
        if line.startswith("== ") and line[3:] in LAYERS:
            layer = line[3:]
        elif heading := re.fullmatch(r"([a-z0-9-]+): (\S+)", line):
            faults.append(Fault(layer, *heading.groups()))
        elif line.startswith("- "):
            faults[-1].old.append(line[2:])
        elif line.startswith("+ "):
            faults[-1].new.append(line[2:])
        elif line.startswith("? "):
            faults[-1].first = line[2:]
        else:
            sys.exit(f"{LIST}:{number}: neither heading nor text: {line}")
    return faults


def drifted(faults):
    """What is wrong with the list as a whole."""
    names = [fault.name for fault in faults]
    wrong = [f"{name}: stands twice" for name in sorted(set(names)) if names.count(name) > 1]
    for fault in faults:
        try:
            fault.planted((ROOT / fault.file).read_text())
        except (OSError, ValueError) as reason:
            wrong.append(str(reason))
    return wrong


def run(*command, **options):
    return subprocess.run(command, cwd=COPY, text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, **options)


def refresh_copy():
    """Makes the copy equal to the sources; files that are equal keep their times."""
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z"], cwd=ROOT,
                            capture_output=True, check=True, text=True).stdout
    names = {name for name in listed.split("\0") if (ROOT / name).is_file()}
    digest = hashlib.sha256()
    for name in sorted(names):
        source, copy = ROOT / name, COPY / name
        content = source.read_bytes()
        digest.update(name.encode() + b"\0" + content)
        if not copy.is_file() or copy.read_bytes() != content:
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_bytes(content)
            copy.chmod(source.stat().st_mode)
    for copy in COPY.rglob("*"):
        name = copy.relative_to(COPY)
        if copy.is_file() and name.parts[0] != "build" and str(name) not in names:
            copy.unlink()
    return digest.hexdigest()


def build(*targets):
    return run("cmake", "--build", "--preset", "dev", "--target", *targets)


def tests_of(programs):
    """The names of the tests that run one of the programs."""
    shown = run("ctest", "--preset", "dev", "--show-only=json-v1").stdout
    tests = json.loads(shown[shown.index("{"):])["tests"]
    return [test["name"] for test in tests
            if {pathlib.Path(part).name for part in test.get("command", [])} & set(programs)]


def failing_test(names):
    """The first of the tests that fails twice, and how; None when none does."""
    pattern = "^(" + "|".join(re.escape(name) for name in names) + ")$"
    told = run("ctest", "--preset", "dev", "-j", "2", "-R", pattern, "--stop-on-failure",
               "--repeat", "until-pass:2", "--timeout", SECONDS_OF_A_TEST)
    failed = re.search(r"^\s+\d+ - (.+) \((.+)\)$", told.stdout, re.MULTILINE)
    if told.returncode == 0:
        return None
    if not failed:
        sys.exit("ctest failed otherwise than by a test:\n" + told.stdout)
    return failed[1] + ("" if failed[2] == "Failed" else f" ({failed[2]})")


def stages(fault, likeliest):
    """Programs, and a pattern of their tests, from the narrowest to the widest."""
    folder = fault.file.split("/")[1]
    own = [f"corvane_{folder}_tests"] if folder in CORE else WINDOW_PROGRAMS[:1]
    for pattern in filter(None, (likeliest, fault.first)):
        yield CORE_PROGRAMS + WINDOW_PROGRAMS, pattern
    yield own, ""
    if folder in CORE or fault.file == "src/check.cpp":
        yield CORE_PROGRAMS, ""
    yield WINDOW_PROGRAMS[:1], ""
    yield WINDOW_PROGRAMS, ""


def outcome_of(fault, likeliest):
    """The verdict on a planted fault, and the test that caught it."""
    done = set()
    for programs, pattern in stages(fault, likeliest):
        names = [name for name in tests_of(programs)
                 if name not in done and re.search(pattern, name)]
        if not names:
            continue
        needed = [program for program in programs
                  if not pattern or set(tests_of([program])) & set(names)]
        built = build(*needed)
        if built.returncode != 0:
            errors = [line for line in built.stdout.splitlines() if "error" in line]
            return "invalid", (errors or ["does not build"])[0][:200]
        if test := failing_test(names):
            return "caught", test
        done.update(names)
    return "survived", ""


def try_fault(fault, likeliest):
    file = COPY / fault.file
    sound = file.read_text()
    begin = time.monotonic()
    try:
        file.write_text(fault.planted(sound))
        verdict, test = outcome_of(fault, likeliest)
    finally:
        file.write_text(sound)
    return verdict, test, f"{time.monotonic() - begin:.0f}"


def prove_sound(digest, trusts):
    """Without a fault everything has to build and every test to pass."""
    configured = run("cmake", "--preset", "dev")
    built = build(*CORE_PROGRAMS, *WINDOW_PROGRAMS)
    for step in (configured, built):
        if step.returncode != 0:
            sys.exit("The sources do not build:\n" + step.stdout[-4000:])
    if trusts or (PROVEN.is_file() and PROVEN.read_text() == digest):
        return
    if test := failing_test(tests_of(CORE_PROGRAMS + WINDOW_PROGRAMS)):
        sys.exit(f"{test} fails without a fault")
    PROVEN.write_text(digest)


def results_so_far():
    lines = RESULTS.read_text().splitlines() if RESULTS.is_file() else []
    return {line.split("\t")[0]: line.split("\t")[1:] for line in lines}


def tell(faults, results):
    for fault in faults:
        verdict, test, seconds = results.get(fault.name, ("not run", "", ""))
        print(f"{fault.layer:8} {verdict:9} {fault.name:45} {test}")
    for layer in LAYERS:
        verdicts = [results.get(fault.name, ["not run"])[0] for fault in faults
                    if fault.layer == layer]
        counts = ", ".join(f"{verdicts.count(one)} {one}" for one in sorted(set(verdicts)))
        print(f"{layer}: {len(verdicts)} faults, {counts}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("names", nargs="*", help="faults to plant; all when none is named")
    parser.add_argument("--layer", choices=LAYERS, help="only the faults of this layer")
    parser.add_argument("--resume", action="store_true", help="leave out faults that have a result")
    parser.add_argument("--trust", action="store_true", help="do not run the tests without a fault")
    parser.add_argument("--check", action="store_true", help="only whether every fault applies")
    parser.add_argument("--results", action="store_true", help="only the results so far")
    arguments = parser.parse_args()
    faults = read_list()
    wrong = drifted(faults)
    unknown = set(arguments.names) - {fault.name for fault in faults}
    wrong += [f"{name}: no such fault" for name in sorted(unknown)]
    if wrong:
        sys.exit("\n".join(wrong))
    if arguments.check:
        return
    faults = [fault for fault in faults
              if (not arguments.names or fault.name in arguments.names) and
              arguments.layer in (None, fault.layer)]
    results = results_so_far()
    if arguments.results:
        return tell(faults, results)
    prove_sound(refresh_copy(), arguments.trust)
    for fault in faults:
        verdict, test, _ = results.get(fault.name, ("", "", ""))
        if arguments.resume and verdict:
            continue
        likeliest = "^" + re.escape(test.split(" (")[0]) + "$" if verdict == "caught" else ""
        results[fault.name] = try_fault(fault, likeliest)
        print(fault.name, *results[fault.name], flush=True)
        RESULTS.write_text("".join("\t".join((name, *result)) + "\n"
                                   for name, result in results.items()))
    tell(faults, results)
    sys.exit(any(results[fault.name][0] != "caught" for fault in faults))


if __name__ == "__main__":
    main()
