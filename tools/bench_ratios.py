#!/usr/bin/env python3
"""bench_ratios.py [--goals FILE] RESULT.json...: vexel beside its peers, from results of Google Benchmark.

A benchmark is named item/case/peer, as in signals/emit_to_1/vexel and signals/emit_to_1/qt_direct; what follows a
third slash belongs to the case. All of one run are compared: the ratio is vexel's time to the peer's, so below 1 vexel
is the faster. An item without any vexel in it is no comparison: all its figures are vexel's own. Repeats count by their
median. A counter named "bytes" is compared like the time, as a case of its own.

FILE has lines "item TAB case TAB peer TAB goal": the ratio that vexel aims at. Goals are told, not enforced.
"""
import argparse
import json
import pathlib
import re
import statistics
import sys

UNITS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}

SETTINGS = ("repeats:", "min_time:", "real_time", "manual_time", "iterations:")


def read(paths):
    """{(item, case, unit): {peer: [values]}}, in the order of the files."""
    table = {}
    for path in paths:
        for entry in json.loads(pathlib.Path(path).read_text())["benchmarks"]:
            if entry.get("run_type") == "aggregate":
                continue
            words = entry["name"].split("/")
            words += ["vexel"] * (3 - len(words)) if len(words) > 1 else ["-", "vexel"]
            if entry.get("error_occurred"):
                print(f"{entry['name']}: {entry['error_message']}", file=sys.stderr)
                continue
            item, case, peer = words[:3]
            more = [w for w in words[3:] if not w.startswith(SETTINGS)]
            case = "/".join([case, *more])
            time = entry["real_time"] * UNITS[entry["time_unit"]]
            table.setdefault((item, case, "ns"), {}).setdefault(peer, []).append(time)
            if "bytes" in entry:
                table.setdefault((item, case, "bytes"), {}).setdefault(peer, []).append(entry["bytes"])
    return table


def read_goals(path):
    goals = {}
    if path and pathlib.Path(path).exists():
        for number, line in enumerate(pathlib.Path(path).read_text().splitlines(), 1):
            if not line or line.startswith("#"):
                continue
            fields = line.split("\t")
            if len(fields) != 4:
                sys.exit(f"{path}:{number}: not item, case, peer, goal")
            goals[tuple(fields[:3])] = float(fields[3])
    return goals


def show(value):
    return f"{value:,.1f}" if value < 1000 else f"{value:,.0f}"


def natural(key):
    """Sorts emit_to_2 before emit_to_10."""
    return [[int(part) if part.isdigit() else part for part in re.split(r"(\d+)", word)] for word in key]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--goals")
    parser.add_argument("results", nargs="+")
    arguments = parser.parse_args()
    table, goals = read(arguments.results), read_goals(arguments.goals)
    head = ("item", "case", "unit", "vexel", "peer", "its value", "ratio", "goal")
    rows = []
    compared = {item for (item, _, _), peers in table.items() if "vexel" in peers}
    for (item, case, unit), peers in sorted(table.items(), key=lambda entry: natural(entry[0])):
        medians = {peer: statistics.median(values) for peer, values in peers.items()}
        own = medians.pop("vexel", None)
        if not medians:
            rows.append((item, case, unit, show(own), "", "", "", ""))
        if item not in compared:
            rows += [(item, f"{case}/{word}", unit, show(value), "", "", "", "") for word, value in medians.items()]
            continue
        for peer, value in sorted(medians.items(), key=lambda pair: pair[1]):
            ratio = own / value if own is not None and value else None
            goal = goals.pop((item, case if unit == "ns" else case + " bytes", peer), None)
            verdict = "?" if ratio is None or goal is None else "met" if ratio <= goal else "MISSED"
            rows.append((item, case, unit, "-" if own is None else show(own), peer, show(value),
                         "-" if ratio is None else f"{ratio:.2f}", "" if goal is None else f"{goal:.2f} {verdict}"))
    widths = [max(len(row[i]) for row in [head, *rows]) for i in range(len(head))]
    for row in [head, *rows]:
        print("  ".join(cell.rjust(w) if i in (3, 5, 6) else cell.ljust(w)
                        for i, (cell, w) in enumerate(zip(row, widths))).rstrip())
    for item, case, peer in goals:
        print(f"The goal of {item}/{case} against {peer} has no benchmark in this run.")


main()
