#!/usr/bin/env python3
"""Summarises runs of commonui_bench_signals written with --benchmark_format=json.

Keeps the best time of each case over all repetitions and files given (the
CPU time, or the measured time for the cases that time themselves), which is
the steadiest figure on a machine shared with other work, and prints it with
its ratio to the floor of its group and, for the connection cases, per item.

    commonui_bench_signals --benchmark_repetitions=5 --benchmark_format=json > run.json
    bench/ratios.py run.json
"""
import json
import sys

best = {}
order = []
for path in sys.argv[1:]:
    with open(path) as f:
        runs = json.load(f)["benchmarks"]
    for run in runs:
        if run.get("run_type") != "iteration":
            continue
        name = run["run_name"]
        manual = name.endswith("/manual_time")
        key = name[: -len("/manual_time")] if manual else name
        time = run["real_time"] if manual else run["cpu_time"]
        if key not in best:
            order.append(key)
            best[key] = time
        best[key] = min(best[key], time)

for key in order:
    parts = key.split("/")
    arg = parts[-1] if parts[-1].isdigit() else None
    if parts[0] == "Emit":
        group, rest = parts[:2], parts[3:]
    else:
        group, rest = parts[:1], parts[2:]
    floor = best.get("/".join(group + ["floor"] + rest))
    ratio = "%6.2fx" % (best[key] / floor) if floor else "       "
    per_item = "%9.2f ns each" % (best[key] / int(arg)) if arg and parts[0] != "Emit" else ""
    print("%-40s %11.1f ns %s %s" % (key, best[key], ratio, per_item))
