#!/usr/bin/env python3
"""Compares the ratios of a benchmark run with the ones kept in the repository.

    bench/check.py bench/reference-ratios.json build-release/bench-results/ratios.json

Both files map a case to its ratio over its reference (bench/table.py
--ratios writes them). A case fails when its ratio is more than 10 % above the
kept one; a case missing from either side is listed but does not fail, so that
adding or renaming a case does not need a new reference at once. Exits 1 on
any failure.
"""
import json
import sys

TOLERANCE = 1.10


def main(argv):
    if len(argv) != 2:
        print(__doc__.strip())
        return 2
    try:
        with open(argv[0]) as f:
            kept = json.load(f)
    except FileNotFoundError:
        print("check: no kept ratios in %s: keep a run's with scripts/bench --keep" % argv[0])
        return 1
    with open(argv[1]) as f:
        now = json.load(f)
    worse = []
    for case in sorted(kept):
        if case not in now:
            print("check: %s: not measured in this run" % case)
            continue
        limit = kept[case] * TOLERANCE
        mark = "WORSE" if now[case] > limit else "ok"
        if now[case] > limit:
            worse.append(case)
        print("check: %-5s %-60s %.2fx (kept %.2fx, limit %.2fx)" % (mark, case, now[case], kept[case], limit))
    for case in sorted(set(now) - set(kept)):
        print("check: %s: new, not in the kept ratios" % case)
    if worse:
        print("check: %d case(s) more than %d %% worse than the kept ratios" % (len(worse), round((TOLERANCE - 1) * 100)))
        return 1
    print("check: every kept ratio holds")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
