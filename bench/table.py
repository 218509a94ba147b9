#!/usr/bin/env python3
"""One table from the JSON output of the benchmark programs of one run.

    bench/table.py [--markdown] [--ratios OUT.json] build-release/bench-results/*.json

With --ratios, each case's ratio to its reference is also written to OUT.json
(case name to number) for the library's own cases, the form bench/check.py
compares.

Each case keeps its best (lowest) figure over the repetitions: the CPU time,
or the measured time for the cases that time themselves (manual_time), which
is the steadiest figure on a machine shared with other work. A figure is given
per item: per transfer, message, call or control where the case says so with
its counter "per", per connect or disconnect for the signal cases that carry a
count, else per run of the case (one emission, one dialog set-up).

The ratio compares a case with its reference, measured in the same run: the
case whose name has "floor" where this one names its implementation, or else
the one with "qt". For the cases measured side by side in alternating rounds
(bench/Paired.h) it is the median over the rounds of the two sides' ratio (the
median of those medians when the case was repeated), and the figures are the
best round's. Rows that are references themselves show
"ref". The wall time per item is the elapsed time; for the network cases with
one transfer in flight it is the latency of a transfer.
"""
import json
import re
import sys

SUFFIX = re.compile(r"/(iterations:\d+|repeats:\d+|min_time:[0-9.]+s?|process_time|real_time|manual_time)")
UNIT_NS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
EXTRA_COUNTERS = ("sheet", "allocs")


def new_case():
    return {"time": None, "wall": None, "per": None, "failed": None, "extra": {},
            "ratios": [], "paired_ref": False}


def keep_best(case, time, wall):
    case["time"] = time if case["time"] is None else min(case["time"], time)
    case["wall"] = wall if case["wall"] is None else min(case["wall"], wall)


def load(paths):
    cases = {}
    order = []

    def case_of(key):
        if key not in cases:
            order.append(key)
            cases[key] = new_case()
        return cases[key]

    for path in paths:
        with open(path) as f:
            text = f.read()
        if not text.strip():
            continue  # a filter that matched nothing in that program
        runs = json.loads(text)["benchmarks"]
        runs = [r for r in runs if r.get("run_type", "iteration") == "iteration"]
        # Repetitions may run interleaved; list the cases in their programs' order.
        runs.sort(key=lambda r: (r.get("family_index", 0), r.get("per_family_instance_index", 0)))
        for run in runs:
            name = run.get("run_name", run["name"])
            key = SUFFIX.sub("", name)
            sides = [c[: -len(".cpu")] for c in run if c.endswith(".cpu")]
            if sides:
                # Sides measured in alternating rounds (bench/Paired.h): figures
                # per item already, with the ratio of the rounds' median.
                for side in sides:
                    case = case_of(key + "/" + side)
                    if run.get("error_occurred"):
                        case["failed"] = run.get("error_message", "failed")
                        continue
                    keep_best(case, run[side + ".cpu"], run[side + ".wall"])
                    case["per"] = 1
                    if side + ".ratio" in run:
                        case["ratios"].append(run[side + ".ratio"])
                    else:
                        case["paired_ref"] = True
                    for counter in EXTRA_COUNTERS:
                        if side + "." + counter in run:
                            case["extra"][counter] = run[side + "." + counter]
                continue
            case = case_of(key)
            if run.get("error_occurred"):
                case["failed"] = run.get("error_message", "failed")
                continue
            unit = UNIT_NS[run.get("time_unit", "ns")]
            manual = "/manual_time" in name
            keep_best(case, (run["real_time"] if manual else run["cpu_time"]) * unit, run["real_time"] * unit)
            case["per"] = run.get("per", case["per"])
            for counter in EXTRA_COUNTERS:
                if counter in run:
                    case["extra"][counter] = run[counter]
    return cases, order


def items_of(key, case):
    if case["per"]:
        return float(case["per"])
    parts = key.split("/")
    if parts[0] != "Emit" and parts[-1].isdigit():
        return float(parts[-1])
    return 1.0


def reference_of(key, cases):
    """The name of the reference case, the key itself when it is one, or None."""
    parts = key.split("/")

    def sibling(name):
        for i, part in enumerate(parts):
            candidate = "/".join(parts[:i] + [name] + parts[i + 1:])
            if candidate != key and candidate in cases:
                return candidate
        return None

    floor = sibling("floor")
    if floor:
        return floor
    if "floor" in parts or "qt" in parts:
        return key
    return sibling("qt")


def duration(ns):
    if ns is None:
        return "-"
    for unit, scale in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if ns >= scale:
            return "%.3g %s" % (ns / scale, unit) if ns / scale < 100 else "%.0f %s" % (ns / scale, unit)
    return "%.3g ns" % ns if ns < 100 else "%.0f ns" % ns


def rows(cases, order):
    for key in order:
        case = cases[key]
        if case["failed"] and case["time"] is None:
            yield key, "failed: " + case["failed"], "", "", "", ""
            continue
        items = items_of(key, case)
        per_item = case["time"] / items
        reference = reference_of(key, cases)
        ratio = ""
        versus = ""
        if case["ratios"]:
            ratios = sorted(case["ratios"])
            ratio = "%.2fx" % ratios[len(ratios) // 2]
            versus = "qt"
        elif case["paired_ref"] or reference == key:
            ratio = "ref"
        elif reference and cases[reference]["time"]:
            ref_per_item = cases[reference]["time"] / items_of(reference, cases[reference])
            ratio = "%.2fx" % (per_item / ref_per_item)
            versus = "floor" if "floor" in reference.split("/") else "qt"
        note = ", ".join("%s %g" % (k, v) for k, v in case["extra"].items())
        yield key, duration(per_item), ratio, versus, duration(case["wall"] / items), note


def main(argv):
    argv = list(argv)
    markdown = "--markdown" in argv
    ratios_out = None
    if "--ratios" in argv:
        at = argv.index("--ratios")
        ratios_out = argv[at + 1]
        del argv[at:at + 2]
    paths = [a for a in argv if a != "--markdown"]
    if not paths:
        print(__doc__.strip())
        return 2
    cases, order = load(paths)
    header = ("case", "CPU per item", "ratio", "vs", "wall per item", "note")
    table = list(rows(cases, order))
    if ratios_out:
        with open(ratios_out, "w") as f:
            # The library's own cases: the other libraries' ratios are not ours to guard.
            others = {"qt", "boost", "qt_with_empty_rules"}
            ratios = {row[0]: float(row[2][:-1]) for row in table
                      if row[2].endswith("x") and not others & set(row[0].split("/"))}
            json.dump(ratios, f, indent=1, sort_keys=True)
            f.write("\n")
    if markdown:
        print("| " + " | ".join(header) + " |")
        print("|" + "|".join(["---", "---:", "---:", "---", "---:", "---"]) + "|")
        for row in table:
            print("| " + " | ".join(row) + " |")
        return 0
    widths = [max(len(str(r[i])) for r in table + [header]) for i in range(len(header))]
    line = "%-*s  %*s  %*s  %-*s  %*s  %s"

    def show(row):
        print((line % (widths[0], row[0], widths[1], row[1], widths[2], row[2], widths[3], row[3],
                       widths[4], row[4], row[5])).rstrip())

    show(header)
    group = None
    for row in table:
        top = row[0].split("/")[0]
        if top != group:
            print()
            group = top
        show(row)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
