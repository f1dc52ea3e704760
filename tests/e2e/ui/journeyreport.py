# What a journey's log export and print left behind, against the database
# and the screen: the disk's files of the one run in the Titration Log (the
# PDF, the short CSV, one raw curve a cycle), the receipt printer's bytes,
# and the log's list and the summary as the driver's `texts` printed them.
import os, re, sqlite3, subprocess
from reportrows import run_report

INIT, END = b"\x1b\x21\x01\x1b\x74\x10", b"\x1b\x64\x09\x1d\x56\x01"


def short_lines(groups):
    """The short text report of a run's row groups, a line a row."""
    method, cycles, summary = groups
    def rows(group):
        kept = sorted((r for r in group if r[1] and r[5] and r[2] != "NILL"), key=lambda r: r[5])
        return ["%-16s, %s%s" % (r[1], r[2], " " + r[3] if r[3] else "") for r in kept]
    lines = ["Titration Report"] + rows(method) + ["Analysis Results"]
    for cycle in cycles:
        lines += rows(cycle)
    return lines + ["Result Summary"] + rows(summary)


def check(sandbox, log, fail):
    """Checks the run's files and paper; returns (log id, average, file names)."""
    db = sqlite3.connect(os.path.join(sandbox, "var/KestrumDB"))
    shown = [l.rstrip("\n").strip() for l in open(log, encoding="utf-8")]
    (log_id, avg, method_name), = db.execute("SELECT id, AvgConc, methodName FROM titrationLogTable").fetchall()
    (text, graph, stamp), = db.execute("SELECT reportString, graphString, logTimeStamp FROM reportSetupTable "
                                       "WHERE reportType = 'Titration'").fetchall()
    method, cycles, summary, kind = run_report(text)

    # the screens: the summary's average and each cycle's concentration in
    # its table, then the log's row (number, name, average)
    end = shown.index("Titration Log") if "Titration Log" in shown else fail("the log's list was not printed")
    start = max(i for i, l in enumerate(shown[:end]) if l == "Titration Summary")
    table = shown[start:end]
    concs = [next(r[2] for r in c if r[1].startswith("Sample Conc.")) for c in cycles]
    if avg not in table or any(c not in table for c in concs):
        fail("the summary showed %s, not the average %s and the cycles %s" % (table, avg, concs))
    row = shown[end:]
    if not {str(log_id), method_name, avg} <= set(row):
        fail("the log's list showed %s, not entry %d of %s with %s" % (row, log_id, method_name, avg))

    # the disk: the names from the serial, the run's time and its number
    folder = os.path.join(sandbox, "media/usb/VantorPro/TitrationReport")
    files = sorted(os.listdir(folder))
    serials = [r[0] for r in db.execute("SELECT mfgSerialNum FROM systemInfo ORDER BY datetime(timestamp) DESC, rowid DESC")]
    serial = next((s for s in serials if s and s != "UNKNOWN"), "")
    stem = "%s_%s_%s_%03d" % (re.sub(r"[^A-Za-z0-9.\-]", "", serial), stamp[0:10].replace("-", ""),
                              stamp[11:16].replace(":", ""), log_id)
    want = sorted([stem + "_T.pdf", stem + "_Tsum.csv"] + ["%s_Tdata%d.csv" % (stem, i + 1) for i in range(len(cycles))])
    if files != want:
        fail("files on the disk %s, expected %s" % (files, want))

    # the short CSV, row for row from the stored report
    csv = open(os.path.join(folder, stem + "_Tsum.csv"), encoding="utf-8").read().splitlines()
    lines = short_lines((method, cycles, summary))
    if csv != lines:
        fail("the short CSV:\n%s\nexpected:\n%s" % ("\n".join(csv), "\n".join(lines)))
    if not any(l.startswith("Average Conc.") and l.endswith(", %s M" % avg) for l in csv):
        fail("the CSV lacks the average %s" % avg)

    # one raw curve a cycle, as many lines as the stored points
    records = graph.rsplit("*****", 1)[0] if kind.startswith("ISE-MKA") else graph.rsplit("=====", 1)[0]
    curves = [c for c in (records.split("+++++") if not kind.startswith("ISE-MKA") else [records]) if c]
    for i, curve in enumerate(curves):
        points = curve.count("(") or len([r for r in curve.split(",") if r])
        data = open(os.path.join(folder, "%s_Tdata%d.csv" % (stem, i + 1)), encoding="utf-8").read().splitlines()
        if not data[0].startswith("Row Data #,Volume (mL),E(") or len(data) != points + 1:
            fail("raw curve %d: %r and %d lines for %d points" % (i + 1, data[0], len(data) - 1, points))

    # the PDF: every long row as a line of its text
    pdf = subprocess.run(["pdftotext", "-layout", os.path.join(folder, stem + "_T.pdf"), "-"],
                         capture_output=True, text=True, check=True).stdout
    pdf_lines = {" ".join(l.split()) for l in pdf.splitlines()}
    for r in method + [r for c in cycles for r in c] + summary:
        if r[0] and r[2] != "NILL":
            line = " ".join(("%s %s %s" % (r[0], r[2], r[3])).split())
            if line not in pdf_lines:
                fail("the PDF lacks the line %r" % line)
    if "Report: Titration Results" not in pdf_lines:
        fail("the PDF has no title")

    # the receipt: the short text, a colon for the comma, fed and cut once
    paper = open(os.path.join(sandbox, "run/printer.bin"), "rb").read()
    body = "\n".join(["      " + lines[0]] + [re.sub(r"^(.{16}), ", r"\1: ", l) for l in lines[1:]]) + "\n"
    if paper != INIT + body.encode("cp1252") + END:
        fail("the printer's bytes %r" % paper)
    return log_id, avg, files, pdf
