#!/usr/bin/env python3
"""The memory-growth table from the JSON output of commonui_bench_soak.

    bench/soak.py [--markdown] build-release/bench-results/commonui_bench_soak.json

One row per workload: the heap left behind per unit of work after a warm-up,
with dialogs keeping their toolkit dialog (the default) and releasing it. Then
the peak resident memory while a large body arrives, read slowly from a
streaming reply and read whole at the end, and while a large file is uploaded
from disk as a multipart form.
"""
import json
import sys

UNITS = {"Dialog": "run", "HTTP": "transfers", "WebSocket": "open/close cycles",
         "Signal": "connect/disconnect cycles"}


def size(value):
    sign = "-" if value < 0 else ""
    value = abs(value)
    if value >= 1024 * 1024:
        return "%s%.1f MB" % (sign, value / 1024 / 1024)
    if value >= 1024:
        return "%s%.1f KB" % (sign, value / 1024)
    return "%s%.0f B" % (sign, value)


def rows(path):
    with open(path) as f:
        text = f.read()
    runs = json.loads(text)["benchmarks"] if text.strip() else []
    table = {}
    order = []
    for run in runs:
        if run.get("run_type", "iteration") != "iteration":
            continue
        parts = run.get("run_name", run["name"]).split("/")
        kind = parts[1]
        if kind == "BigBody":
            continue
        side = "released" if "released" in parts else "kept"
        workload = kind
        if kind == "Dialog":
            workload = "Dialog run, " + ("empty" if parts[2] == "empty" else parts[2].split(":")[1] + " controls")
        if workload not in table:
            order.append(workload)
            table[workload] = {"figure": "", "kept": "-", "released": "-"}
        row = table[workload]
        if run.get("error_occurred"):
            row[side] = "failed: " + run.get("error_message", "")
            continue
        per = int(run["per"])
        unit = UNITS.get(kind, "units")
        per_text = "per %s" % unit if per == 1 else "per %s %s" % (format(per, ","), unit)
        row["figure"] = per_text + ", %s measured" % format(int(run["units"]), ",")
        row[side] = size(run["bytes"])
    for workload in order:
        row = table[workload]
        yield workload, row["figure"], row["kept"], row["released"]


def peaks(path):
    """The peak resident memory of each BigBody run, as lines of text."""
    with open(path) as f:
        text = f.read()
    runs = json.loads(text)["benchmarks"] if text.strip() else []
    for run in runs:
        parts = run.get("run_name", run["name"]).split("/")
        if parts[1] != "BigBody" or run.get("run_type", "iteration") != "iteration":
            continue
        figure = "failed: " + run.get("error_message", "") if run.get("error_occurred") else size(run["peak"])
        yield "peak resident above the start, %s body, %s: %s" % (size(run["body"]), parts[2], figure)


def main(argv):
    markdown = "--markdown" in argv
    paths = [a for a in argv if a != "--markdown"]
    if not paths:
        print(__doc__.strip())
        return 2
    header = ("workload", "figure", "kept (default)", "released")
    table = [r for p in paths for r in rows(p)]
    notes = [n for p in paths for n in peaks(p)]
    if not table:
        pass
    elif markdown:
        print("| " + " | ".join(header) + " |")
        print("|---|---|---:|---:|")
        for row in table:
            print("| " + " | ".join(row) + " |")
    else:
        widths = [max(len(r[i]) for r in table + [header]) for i in range(len(header))]
        for row in [header] + table:
            print("%-*s  %-*s  %*s  %*s" % (widths[0], row[0], widths[1], row[1], widths[2], row[2], widths[3],
                                            row[3]))
    if notes:
        print()
        print("\n".join(notes))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
