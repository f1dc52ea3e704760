#!/usr/bin/env python3
"""Turns the JSON of the benchmark runs (scripts/bench) into the Markdown
table of docs/performance.md: median, spread over the repetitions, budget and
margin of every figure, with the machine it ran on."""
import json
import re
import pathlib
import sys

SAMPLE_BUDGET_NS = 250e6 / 1000   # a thousandth of the instrument's 250 ms clock
TICK_NS = 250e6                   # one tick of the instrument's clock
STARTUP_NS = 1e9

# binary -> (budget in ns, what the budget is)
BUDGETS = {
    "bench_meter": (SAMPLE_BUDGET_NS, "per sample"),
    "bench_stores": (SAMPLE_BUDGET_NS, "per sample"),
    "bench_engine": (SAMPLE_BUDGET_NS, "per sample"),
    "bench_algorithms": (SAMPLE_BUDGET_NS, "per sample"),
    "bench_logs": (TICK_NS, "one tick"),
    "bench_startup": (STARTUP_NS, "start-up"),
}
# benchmark -> (budget in ns, what the budget is), where it differs from its binary's
BUDGETS_BY_NAME = {
    "BM_StartToHomeScreen": (0.5e9, "screen start"),
    "BM_SectionSwitch": (16e6, "one frame at 60 Hz"),
    "BM_RunChartRedraw500Points": (16e6, "one frame at 60 Hz"),
}

WHAT = {
    "BM_SamplePh": "meter: one pH sample (value, stability, rounding)",
    "BM_SampleIse": "meter: one ion sample",
    "BM_SampleRedox": "meter: one redox sample",
    "BM_SampleAllKinds": "meter: one sample for all kinds at once",
    "BM_StabilityCheck": "meter: stability detector alone",
    "BM_TemporalAddPoint": "temporal store: one sample (filter, derivatives, log)",
    "BM_VolumetricAddPoint": "volumetric store: one curve point (slope, peak search)",
    "BM_GetResultsFits": "stores: end-of-run peak search and cubic fits",
    "BM_LopsidedBreakFit": "stores: end-of-run fit of a lopsided break (weak acid or base)",
    "BM_Fit5": "maths: one five-point cubic fit",
    "BM_VolumeAtValue": "maths: volume at a reading (end-point interpolation)",
    "BM_AlgorithmRunStep": "algorithm: one run() step, equivalence point, mean over whole runs",
    "BM_AlgorithmRunStep:slowest": "algorithm: slowest run() step of a repetition, CPU time",
    "BM_EngineSample": "engine: temporal store point + run() step",
    "BM_EngineSample:slowest": "engine: slowest sample of a repetition, CPU time",
    "BM_AlgorithmGetResults": "algorithm: getResults() with its fits, two end points",
    "BM_KnownAdditionFit": "MKA: one Nernst fit of a known-addition run",
    "BM_EndPointRunStep": "algorithm: one run() step, preset end point",
    "BM_TitrationLogSaveAtFull": "titration log: save with snapshot at capacity (prunes the oldest)",
    "BM_TitrationLogPrune": "titration log: prune of the oldest entry alone",
    "BM_MeasurementLogSaveAtFull": "reading log: save at capacity (prunes the oldest)",
    "BM_StartupBackEnd": "start-up: main() to UI load (database, migration check, data manager, controllers)",
    "BM_StartupProcess": "start-up: whole process (exec, libraries, back end, exit)",
    "BM_StartToHomeScreen": "screens: process start to the home screen on show (Xvfb, software renderer)",
    "BM_SectionSwitch": "screens: one section switch by the side bar, from the tap to its frame swapped",
    "BM_RunChartRedraw500Points": "screens: the run chart with 500 points, one point more and redrawn (software renderer)",
}

UNIT_NS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def fmt(ns):
    for unit, scale in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if ns >= scale:
            return f"{ns / scale:.3g} {unit}"
    return f"{ns:.3g} ns"


def main():
    out = pathlib.Path(sys.argv[1])
    machine = dict(line.split("=", 1) for line in (out / "machine.txt").read_text().splitlines() if "=" in line)
    rows = []
    for path in sorted(out.glob("bench_*.json")):
        binary = path.stem
        budget, kind = BUDGETS.get(binary, (None, ""))
        data = json.loads(path.read_text())
        by_name = {}
        for b in data.get("benchmarks", []):
            if b.get("run_type") != "aggregate":
                continue
            name = re.sub(r"/iterations:\d+", "", b["run_name"].replace("/manual_time", ""))
            aggregate = b["aggregate_name"]
            # The coefficient of variation is a fraction, the others times.
            scale = 1.0 if aggregate == "cv" else UNIT_NS[b.get("time_unit", "ns")]
            entry = by_name.setdefault(name, {})
            entry[aggregate] = b["real_time"] * scale
            if "slowest_cpu_us" in b:
                entry.setdefault("slowest", {})[aggregate] = b["slowest_cpu_us"] * (1.0 if aggregate == "cv" else 1e3)
            if b.get("error_occurred"):
                entry["error"] = b.get("error_message", "error")
        for name, agg in by_name.items():
            budget, kind = BUDGETS_BY_NAME.get(name, BUDGETS.get(binary, (None, "")))
            rows.append((binary, name, agg.get("median"), agg.get("stddev"), agg.get("cv"), budget, kind, agg.get("error")))
            if "slowest" in agg:
                s = agg["slowest"]
                rows.append((binary, name + ":slowest", s.get("median"), s.get("stddev"), s.get("cv"), budget, kind, None))

    print(f"Run {machine.get('date', '?')} at commit {machine.get('commit', '?')}, "
          f"{machine.get('repetitions', '?')} repetitions of at least {machine.get('min_time', '?')} s each.")
    print()
    print(f"Machine: {machine.get('cpu', '?')}, {machine.get('nproc', '?')} cores (nproc), "
          f"{machine.get('memory', '?')} memory; {machine.get('os', '?')}, kernel {machine.get('kernel', '?')}; "
          f"{machine.get('compiler', '?')}, {machine.get('build', '?')} build; "
          f"load average at the end {machine.get('load', '?')}.")
    print()
    print("Margin: the instrument's 250 ms clock over the median for the per-sample and per-tick figures "
          "(per-sample figures need 1000×), the start-up budget over the median for the start-up; "
          "for the screens, their budget over the median (0.5 s to the home screen, one frame of 16 ms).")
    print()
    print("| Figure | Binary | Median | Spread (σ, cv) | Budget | Margin | |")
    print("|---|---|---:|---:|---:|---:|---|")
    for binary, name, median, stddev, cv, budget, kind, error in rows:
        what = WHAT.get(name, name)
        if error or median is None:
            print(f"| {what} | {binary} | — | — | — | — | ERROR: {error} |")
            continue
        spread = f"± {fmt(stddev)}, {cv * 100:.1f} %" if stddev is not None and cv is not None else "—"
        if budget is None:
            print(f"| {what} | {binary} | {fmt(median)} | {spread} | — | — | |")
            continue
        reference = STARTUP_NS if kind == "start-up" else budget if name in BUDGETS_BY_NAME else TICK_NS
        margin = reference / median if median > 0 else float("inf")
        verdict = "ok" if median <= budget else "OVER BUDGET"
        print(f"| {what} | {binary} | {fmt(median)} | {spread} | {fmt(budget)} ({kind}) | {margin:,.1f}× | {verdict} |" if margin < 10 else
              f"| {what} | {binary} | {fmt(median)} | {spread} | {fmt(budget)} ({kind}) | {margin:,.0f}× | {verdict} |")


if __name__ == "__main__":
    main()
