#!/usr/bin/env python3
"""The regular rows of a portfolio file with the formulas of regular_apy.py in columns behind them, as a
spreadsheet computes them: a yardstick for the speed of corvane-check. Reads standard input, writes
standard output.

    soffice --headless --convert-to csv:"Text - txt - csv (StarCalc)":44,34,76,1 --outdir FOLDER SHEET
"""
import csv
import sys

COLUMNS = {
    "days": '=IF(F{0}="none";R{0};IF(F{0}="days";R{0}*G{0};IF(F{0}="months";'
            'DATE(L{0};K{0}+R{0}*G{0};1)-DATE(L{0};K{0};1);365*G{0}*R{0})))',
    "computed_interest": '=ROUND(IF(F{0}="none";O{0}*P{0}/100*R{0}/365;'
                         'IF(F{0}="days";O{0}*((1+P{0}/36500)^W{0}-1);IF(F{0}="months";'
                         'O{0}*((1+P{0}/100*G{0}/12)^(W{0}/365*12/G{0})-1);'
                         'O{0}*((1+P{0}/100*G{0})^R{0}-1))));2)',
    "computed_apy": "=ROUND(100*((1+X{0}/O{0})^(365/W{0})-1);2)",
    "difference": "=ROUND(Y{0}-M{0};2)",
    "verdict": '=IF(ABS(Z{0})<=0.05;"OK";"APY VIOLATION")',
}


def main():
    writer = csv.writer(sys.stdout, lineterminator="\n")
    for line, row in enumerate(csv.reader(sys.stdin), 1):
        formulas = COLUMNS if line == 1 else [text.format(line) for text in COLUMNS.values()]
        writer.writerow([*row, *formulas])


main()
