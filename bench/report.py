#!/usr/bin/env python3
"""Writes docs/performance.md from the measurements: report.py FOLDER DOCUMENT MACHINE

FOLDER holds callgrind's dumps, memory.tsv, load.tsv and times.csv. The words of the document are in performance.md.in.
"""
import csv
import pathlib
import re
import sys

bench = pathlib.Path(__file__).parent
folder, document, machine = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]


def rows(path):
    lines = path.read_text(encoding="utf-8").splitlines()
    return [line.split("\t") for line in lines if line and not line.startswith("#")]


def counts():
    """Instructions of one run of each operation."""
    runs = {}
    for dump in sorted(folder.glob("callgrind*.[0-9]*"), key=lambda path: (path.stem, int(path.suffix[1:]))):
        text = dump.read_text(encoding="utf-8", errors="replace")
        named = re.search(r"^desc: Trigger: Client Request: (\d+) x (.*)$", text, re.M)
        if named:
            total = int(re.search(r"^(?:summary|totals): (\d+)", text, re.M)[1])
            runs.setdefault(named[2], []).append((int(named[1]), total))
    result = {}
    for name, totals in runs.items():
        (few, low), (many, high) = sorted([(0, 0), *totals])[-2:]
        result[name] = (high - low) // (many - few)
    return result


measured = counts()
for name, bytes_ in rows(folder / "memory.tsv"):
    measured[name] = int(bytes_)
with open(folder / "times.csv", encoding="utf-8", newline="") as times:
    runs_timed = [row for row in csv.DictReader(times) if "_" not in row["name"]]  # and no statistics
nanoseconds = [float(row["cpu_time"]) for row in runs_timed]
measured["EchoData, plax2: microseconds"] = round(min(nanoseconds) / 1000)
taken = sorted(int(microseconds) for _, microseconds in rows(folder / "load.tsv"))
measured["load the library: microseconds"] = taken[0]


def number(value):
    return f"{value:,}".replace(",", " ")


def table(names, limits):
    yield "| operation | measured | limit | others |" if limits else "| operation | measured |"
    yield "|---|---:|---:|---|" if limits else "|---|---:|"
    for name in names:
        if not limits:
            yield f"| {name} | {number(measured[name])} |"
            continue
        limit, others = limits[name]
        allowed = measured[limit] if limit in measured else int(limit)
        verdict = "" if measured[name] <= allowed else " **missed**"
        yield f"| {name} | {number(measured[name])}{verdict} | {number(allowed)} | {others} |"


limits = {name: (limit, others) for name, limit, others in rows(bench / "limits.tsv")}
words = (bench / "performance.md.in").read_text(encoding="utf-8")
words = words.replace("@LIMITS@", "\n".join(table(limits, limits)))
words = words.replace("@REST@", "\n".join(table([name for name in measured if name not in limits], {})))
document.write_text(words.replace("@MACHINE@", machine), encoding="utf-8")
