#!/usr/bin/env python3
"""Fails when a source file includes one of a later folder: see docs/architecture.md for the order."""
import pathlib
import re
import sys

ORDER = ["support", "formulas", "account", "disclosure", "statement", "reports", "portfolio",
         "platform", "windows"]
# Beside its own folder each folder may include these only; a folder not named here, all before it.
ONLY = {"statement": ORDER[:3], "platform": ["support"]}


def allowed(file, header):
    here, there = file.parts[1], header.split("/")[0]
    if here == "windows" and there == "windows" and file.name != "Routes.cpp":
        return header.split("/")[1] in ("frame", file.parts[2])
    return there == here or there in ONLY.get(here, ORDER[: ORDER.index(here)])


wrong = [
    f"{file} includes {header}"
    for file in sorted(pathlib.Path("src").rglob("*"))
    if file.suffix in (".h", ".cpp") and len(file.parts) > 2
    for header in re.findall(r'^#include "(.+/.+)"', file.read_text(), re.MULTILINE)
    if not allowed(file, header)
]
print("\n".join(wrong), end="\n" if wrong else "")
sys.exit(bool(wrong))
