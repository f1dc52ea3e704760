#!/usr/bin/env python3
"""The verdict and the table of scripts/soak-ui.

soakui.py DRIVER.log LOGSIZES.txt LOGFILES.txt > table.md

DRIVER.log holds, for every run, the texts of its summary (`texts`) and the
application's resident memory and open files after it (`memory`), with one
`memory` line at Home before the first run. LOGSIZES.txt has "SECONDS kB"
lines of the log folder; LOGFILES.txt the files per log folder at the end.
"""
import os
import sys

TRUE_ML = 10.0      # 0.02 mol/L acetic acid, 50 mL, 0.1 mol/L NaOH
TRUE_M = 0.1        # 1 mmol in the 10 mL sample
TOLERANCE = 0.005   # of the true value
LOG_CAPACITY = 100


def runs_of(lines):
    """(volume mL, average M, resident kB, open files) per run; the Home figures."""
    runs, home, shown = [], None, []
    for line in lines:
        line = line.rstrip("\n")
        if line.startswith("memory resident kB "):
            kb, files = line[len("memory resident kB "):].split(", open files ")
            if home is None and not runs and not shown:
                home = (int(kb), int(files))
                continue
            volume = average = None
            if "Incl. in Avg" in shown and "Avg Conc. (M)" in shown:
                rows = shown[shown.index("Incl. in Avg") + 1:shown.index("Avg Conc. (M)")]
                try:
                    volume = float(rows[3]) if len(rows) >= 4 else None
                    average = float(shown[shown.index("Avg Conc. (M)") + 1])
                except ValueError:
                    pass
            runs.append((volume, average, int(kb), int(files)))
            shown = []
        elif not line.startswith(("shot ", "OK ", "FAIL ", "frame ms ")):
            shown.append(line.strip())
    return runs, home


def main():
    runs, home = runs_of(open(sys.argv[1], encoding="utf-8", errors="replace"))
    sizes = [int(l.split()[1]) for l in open(sys.argv[2]) if len(l.split()) == 2]
    folders = [l.split() for l in open(sys.argv[3]) if l.strip()]
    wanted = int(os.environ.get("SOAK_RUNS", len(runs)))
    faults = []
    if int(os.environ.get("SOAK_STATUS", "0")):
        faults.append("the driver's script failed")
    if len(runs) != wanted:
        faults.append(f"{len(runs)} of {wanted} runs reported")
    wrong = [n + 1 for n, r in enumerate(runs)
             if r[0] is None or r[1] is None or abs(r[0] / TRUE_ML - 1) > TOLERANCE or abs(r[1] / TRUE_M - 1) > TOLERANCE]
    if wrong:
        faults.append(f"runs with a wrong or missing result: {wrong[:20]}")
    files = sorted({r[3] for r in runs[1:]})
    if len(files) > 1:
        faults.append(f"open files vary after the first run: {files}")
    half = runs[len(runs) // 2:]
    if len(runs) >= 10:
        grow = half[-1][2] - half[0][2]
        if grow > 0.02 * half[0][2]:
            faults.append(f"resident memory grows over the second half of the runs: +{grow} kB")
    over = [f for f in folders if int(f[0]) > LOG_CAPACITY]
    if over:
        faults.append(f"log folders over capacity: {over}")
    if len(runs) > 2 * LOG_CAPACITY // 5 * 5 and len(sizes) >= 4:
        tail = sizes[-max(2, len(sizes) // 10):]
        if max(tail) > 1.05 * min(tail) + 64:
            faults.append(f"the log folders still grow at the end: {tail} kB")

    vols = [r[0] for r in runs if r[0] is not None]
    print(f"{len(runs)} titrations through the screens in one run of the application (`scripts/soak --ui`): "
          f"0.02 mol/L acetic acid, 50 mL, a 10 mL sample, against 0.1 mol/L NaOH (10.000 mL, 0.1000 M), "
          f"started from the pre-check, completed and repeated from the summary, the virtual instrument at "
          f"{os.environ.get('SOAK_SPEED', '?')} times real time; {os.environ.get('SOAK_WALL', '?')} s of wall time.")
    print()
    if home:
        print(f"Resident memory at Home before the first run: {home[0] / 1024:.1f} MB ({home[1]} open files).")
    if runs:
        print(f"After run 1: {runs[0][2] / 1024:.1f} MB; after run {len(runs)}: {runs[-1][2] / 1024:.1f} MB; "
              f"highest {max(r[2] for r in runs) / 1024:.1f} MB. Open files after each run: {sorted({r[3] for r in runs})}.")
    if vols:
        print(f"End point volumes: {min(vols):.3f} to {max(vols):.3f} mL (true 10.000 mL, tolerance ±0.5 %).")
    if sizes:
        print(f"Log folder: {sizes[0]} kB at the start, {max(sizes)} kB at most, {sizes[-1]} kB at the end; files per "
              f"folder at the end: " + ", ".join(f"{os.path.basename(f[1])} {f[0]}" for f in folders) + ".")
    print()
    print("| run | volume mL | average M | resident MB | open files |")
    print("|---:|---:|---:|---:|---:|")
    shown = list(enumerate(runs, 1))
    if len(shown) > 20:
        shown = shown[:10] + [None] + shown[-10:]
    for item in shown:
        if item is None:
            print("| … | | | | |")
            continue
        n, (v, a, kb, f) = item
        print(f"| {n} | {'%.3f' % v if v is not None else '—'} | {'%.4f' % a if a is not None else '—'} | {kb / 1024:.1f} | {f} |")
    print()
    print("Verdict: " + ("all checks pass." if not faults else "; ".join(faults)))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
