#!/usr/bin/env python3
"""Prints the outputs of several runs of the measurements as one table: bench-table.py FILE...

The files are named PROGRAM.RUN.txt. A line of a file has the name of a measurement, its figures, and "within" or "OVER"
with its limit if it has one. The figures are times in ms, if that unit follows them, or in us, then the ratio of the
times, then peak memory in MiB twice and their ratio. The table shows "median (least - most)". The exit status is 1 if a
measurement failed or if most of its runs are over the limit.
"""

import os
import re
import statistics
import sys

ROW = re.compile(r"^(?P<name>.+?)\s+(?P<figures>\d+\.\d+(?: ms)?(?:\s+\d+\.\d+(?: ms)?)*)\s*(?P<rest>.*)$")
FAILURE = re.compile(r"^(?P<name>.+?)\s+failed$")


class Measurement:
    """The figures of one line in all runs."""

    def __init__(self):
        self.runs = []
        self.over = 0
        self.failures = 0
        self.limit = ""

    def add(self, figures, rest):
        self.runs.append(figures)
        verdict = re.match(r"(within|OVER) ([\d.]+)", rest)
        if verdict:
            self.limit = verdict.group(2)
            self.over += verdict.group(1) == "OVER"
        self.failures += "FAILED" in rest

    def column(self, index):
        """Returns the figures at this place of all runs; empty if the measurement has fewer."""
        return [run[index] for run in self.runs if index < len(run)]

    def passed(self):
        return self.failures == 0 and 2 * self.over <= len(self.runs)


def milliseconds(text):
    """Returns the number before " ms", or a number of us, in ms."""
    number = float(text.split()[0])
    return number if text.endswith(" ms") else number / 1000.0


def figures_of(text):
    """Returns the figures of a line: one or two times in ms, then ratios and MiB."""
    texts = re.findall(r"\d+\.\d+(?: ms)?", text)
    times = 2 if len(texts) > 1 else 1
    return [milliseconds(each) for each in texts[:times]] + [float(each) for each in texts[times:]]


def read(paths):
    """Returns the measurements by program and name, in the order of the first run."""
    measurements = {}
    for path in sorted(paths):
        program = os.path.basename(path).split(".")[0]
        with open(path, encoding="utf-8") as lines:
            for line in lines:
                row = ROW.match(line.rstrip())
                failure = FAILURE.match(line.rstrip())
                if not row and not failure:
                    continue
                key = (program, (row or failure).group("name"))
                measurement = measurements.setdefault(key, Measurement())
                if row:
                    measurement.add(figures_of(row.group("figures")), row.group("rest"))
                else:
                    measurement.failures += 1
    return measurements


def shown(figures):
    """Returns "median (least - most)" with three significant digits; empty for no figures."""
    if not figures:
        return ""

    def digits(figure):
        return f"{figure:,.0f}" if figure >= 100 else f"{figure:.3g}" if figure < 1 else f"{figure:.2f}"

    return f"{digits(statistics.median(figures))} ({digits(min(figures))} - {digits(max(figures))})"


def main(paths):
    measurements = read(paths)
    if not measurements:
        sys.exit("bench-table.py: the files have no measurements")
    print("| measurement | ours, ms | other, ms | ratio | peak memory, ratio | limit |")
    print("|---|---|---|---|---|---|")
    last = None
    for (program, name), measurement in measurements.items():
        if program != last:
            print(f"| **{program}** | | | | | |")
            last = program
        limit = measurement.limit if measurement.passed() else f"{measurement.limit} OVER or failed".strip()
        columns = [shown(measurement.column(index)) for index in (0, 1, 2, 5)]
        print(f"| {name} | {' | '.join(columns)} | {limit} |")
    return 0 if all(measurement.passed() for measurement in measurements.values()) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
