#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morvel developers
# SPDX-License-Identifier: MIT
"""Prints the benchmark table: operation, N, median, ratio to the plain Qt reference, goal, met.

Medians are of wall-clock time, as the goals are; the median CPU time of the process is shown
beside them, since on a shared machine the difference is other people's work.

Reads the JSON files that Google Benchmark wrote (median aggregates) and judges each figure
against the goals of the designer. Usage: report.py RESULT.json [RESULT.json ...] [--markdown]
Exits 1 when a goal is missed, so that a caller can tell.
"""

import json
import sys

MS = 1.0
FRAME = 16.0  # one 60 Hz frame, in ms
LARGE = 100000

# name -> (operation shown, time goal in ms at every N or None, reference benchmark or None)
OPERATIONS = {
    "Headless_SetFieldDefs": ("headless: set FieldDefs (refill, select, load)", None, None),
    "Headless_SelectFarRow": ("headless: select a row far down", 1 * MS, None),
    "Headless_KeystrokeDisplayName": ("headless: keystroke in txtDisplayName", 1 * MS, None),
    "Headless_KeystrokeSize": ("headless: keystroke in txtSize", 1 * MS, None),
    "Headless_KeystrokeOrderField": ("headless: keystroke in txtOrderField", 1 * MS, None),
    "Headless_TypeChangeSwapsTab": ("headless: type change swapping tab 2", 1 * MS, None),
    "Headless_AfterAdd": ("headless: AfterAdd in the middle", 1 * MS, None),
    "Headless_AfterRemove": ("headless: AfterRemove in the middle", 6 * MS, None),
    "Headless_FindNextWorstCase": ("headless: find next, worst case", 2 * MS, None),
    "History_RecordChange": ("history: record one change", 0.001 * MS, None),
    "History_UndoRedoStep": ("history: undo or redo one step, field shown", 1 * MS, None),
    "History_UndoRemoval": ("history: undo or redo a removal in the middle", 6 * MS, None),
    "History_Undo1000Keystrokes": ("history: undo 1,000 keystroke steps", 100 * MS, None),
    "Interchange_Export": ("text format: export a table", 1000 * MS, None),
    "Interchange_Import": ("text format: import a table", 1000 * MS, None),
    "Interchange_Diff": ("text format: diff two tables", 1000 * MS, None),
    "Checks_Full": ("problems: full check at load", 200 * MS, None),
    "Checks_Incremental": ("problems: re-check after an edit and a rename", 1 * MS, None),
    "Qt_FirstPaint": ("qt: FieldDefs to first paint", 100 * MS, "Reference_FillPaint"),
    "Qt_SelectLastRow": ("qt: select + scroll to last row", FRAME, "Reference_SelectLastRow"),
    "Qt_KeystrokeCell": ("qt: keystroke changing a cell", FRAME, "Reference_KeystrokeCell"),
    "Qt_AfterAdd": ("qt: AfterAdd + repaint", FRAME, "Reference_InsertMiddle"),
    "Qt_AfterRemove": ("qt: AfterRemove + repaint", FRAME, "Reference_RemoveMiddle"),
    "Qt_UndoRedoStep": ("qt: undo or redo one step + repaint", FRAME, None),
    "Store_SaveOneChange": ("store: save one changed field", 10 * MS, None),
    "Store_SaveNothing": ("store: save with nothing changed", 1 * MS, None),
    "Store_FirstSave": ("store: first save of a new table", 300 * MS, None),
    "Store_Load": ("store: load a table", 150 * MS, None),
    "ChangeSet_Change": ("change set: one change heard", 0.001 * MS, None),
    "ChangeReview_Rows": ("change review: rows of 1,000 changes", 10 * MS, None),
    "Reference_FillPaint": ("reference QTreeWidget: fill + paint", None, None),
    "Reference_SelectLastRow": ("reference QTreeWidget: select + scroll last", None, None),
    "Reference_CellChange": ("reference QTreeWidget: change a cell", None, None),
    "Reference_KeystrokeCell": ("reference QTreeWidget: keystroke in a line edit", None, None),
    "Reference_InsertMiddle": ("reference QTreeWidget: insert in the middle", None, None),
    "Reference_RemoveMiddle": ("reference QTreeWidget: remove in the middle", None, None),
}

# At 100,000 fields the hand-over must beat the reference's fill and paint by this factor.
FIRST_PAINT_SPEEDUP = 1.6
MEMORY_GOAL = 1024.0  # bytes per field
# A keyed operation is flat when 100 times the fields cost at most this factor more (caches
# included); a refill is linear when 10 times the fields cost at most 1.5 times 10 times more.
FLAT_FACTOR = 3.0
LINEAR_FACTOR = 15.0

# Operations whose cost grows with the list by their nature: a refill makes every row, a find tests
# every row. Every other operation is keyed and must not grow.
LINEAR = ("Headless_SetFieldDefs", "Headless_FindNextWorstCase", "Qt_FirstPaint",
          "Store_FirstSave", "Store_Load")
          "Interchange_Export", "Interchange_Import", "Interchange_Diff", "Checks_Full")

# Operations that must cost no more than plain Qt's doing the same.
AT_MOST_REFERENCE = ("Qt_KeystrokeCell",)

TO_MS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def load(paths):
    medians = {}
    for path in paths:
        with open(path) as f:
            text = f.read()
        if not text.strip():
            continue  # a filter that matched nothing in that program
        data = json.loads(text)
        for run in data.get("benchmarks", []):
            if run.get("aggregate_name") != "median" and run.get("run_type") == "aggregate":
                continue
            if run.get("error_occurred"):
                name, n = split(run["run_name"] if "run_name" in run else run["name"])
                medians[(name, n)] = {"error": run.get("error_message", "error")}
                continue
            name, n = split(run.get("run_name", run["name"]))
            entry = dict(run)
            entry["ms"] = run["real_time"] * TO_MS[run["time_unit"]]
            # With manual timing the CPU time covers the untimed part too: not comparable.
            manual = "manual_time" in run.get("run_name", run["name"])
            entry["cpu_ms"] = None if manual else run["cpu_time"] * TO_MS[run["time_unit"]]
            # Without repetitions there is no aggregate: the single run stands for the median.
            if run.get("run_type") == "aggregate" or (name, n) not in medians:
                medians[(name, n)] = entry
    return medians


def split(run_name):
    parts = run_name.split("/")
    return parts[0], int(parts[1])


def fmt_ms(ms):
    if ms < 1:
        return f"{ms * 1000:.1f} us"
    return f"{ms:.2f} ms"


def rows(medians):
    out = []
    missed = 0
    sizes = sorted({n for (_, n) in medians})
    for name, (label, goal, reference) in OPERATIONS.items():
        for n in sizes:
            run = medians.get((name, n))
            if run is None:
                continue
            if "error" in run:
                out.append((label, n, "error: " + run["error"], "", "", "", "NOT MET"))
                missed += 1
                continue
            ms = run["ms"]
            ratio = ""
            ref = medians.get((reference, n)) if reference else None
            if ref and "ms" in ref:
                ratio = f"{ms / ref['ms']:.3g}"
            goal_text, met = "", ""
            if goal is not None:
                goal_text = f"<= {fmt_ms(goal)}"
                ok = ms <= goal
                if name == "Qt_FirstPaint" and n == LARGE:
                    goal_text += f", <= 1/{FIRST_PAINT_SPEEDUP} of ref"
                    ok = ok and ref is not None and ms * FIRST_PAINT_SPEEDUP <= ref["ms"]
                if name in AT_MOST_REFERENCE:
                    goal_text += ", <= ref"
                    ok = ok and ref is not None and ms <= ref["ms"]
                met = "met" if ok else "NOT MET"
                missed += not ok
            cpu = fmt_ms(run["cpu_ms"]) if run["cpu_ms"] is not None else ""
            out.append((label, n, fmt_ms(ms), cpu, ratio, goal_text, met))
            if "host_call_us" in run:
                out.append(("  the host's whole call, collection included", n,
                            fmt_ms(run["host_call_us"] / 1000), "", "", "", ""))
        scaling = scaling_row(name, label, medians, sizes)
        if scaling:
            out.append(scaling[0])
            missed += scaling[1]
    for n in sizes:
        run = medians.get(("History_Undo1000Keystrokes", n))
        if run and "bytes_per_keystroke_step" in run:
            out.append(("history: bytes per keystroke step", n,
                        f"{run['bytes_per_keystroke_step']:.0f} B", "", "", "", ""))
    for n in sizes:
        run = medians.get(("Headless_MemoryPerField", n))
        if run and "heap_bytes_per_field" in run:
            per_field = run["heap_bytes_per_field"]
            ok = per_field <= MEMORY_GOAL
            missed += not ok
            out.append(("memory per field (heap in use)", n, f"{per_field:.0f} B", "", "",
                        f"<= {MEMORY_GOAL:.0f} B", "met" if ok else "NOT MET"))
    return out, missed


def scaling_row(name, label, medians, sizes):
    if name.startswith("Reference_") or len(sizes) < 2:
        return None
    large = medians.get((name, sizes[-1]))
    if name in LINEAR:
        small = medians.get((name, sizes[-2]))
        factor, limit, kind = sizes[-1] / sizes[-2], LINEAR_FACTOR * sizes[-1] / sizes[-2] / 10, "linear"
    else:
        small = medians.get((name, sizes[0]))
        factor, limit, kind = sizes[-1] / sizes[0], FLAT_FACTOR, "flat"
    if not large or not small or "ms" not in large or "ms" not in small:
        return None
    growth = large["ms"] / small["ms"]
    ok = growth <= limit
    return ((f"  scaling of {label.split(': ', 1)[-1]}", f"x{factor:.0f}", f"x{growth:.1f}", "", "",
             f"{kind}: <= x{limit:.0f}", "met" if ok else "NOT MET"), not ok)


def render(table, markdown):
    header = ("operation", "N", "median", "cpu", "ratio to ref", "goal", "met")
    cells = [header] + [tuple(str(c) for c in row) for row in table]
    if markdown:
        lines = ["| " + " | ".join(header) + " |", "|" + "---|" * len(header)]
        lines += ["| " + " | ".join(row) + " |" for row in cells[1:]]
        return "\n".join(lines)
    widths = [max(len(row[i]) for row in cells) for i in range(len(header))]
    lines = []
    for i, row in enumerate(cells):
        lines.append("  ".join(c.ljust(w) if j in (0, 5) else c.rjust(w)
                               for j, (c, w) in enumerate(zip(row, widths))).rstrip())
        if i == 0:
            lines.append("  ".join("-" * w for w in widths))
    return "\n".join(lines)


def main(argv):
    markdown = "--markdown" in argv
    paths = [a for a in argv if not a.startswith("--")]
    if not paths:
        print(__doc__, file=sys.stderr)
        return 2
    table, missed = rows(load(paths))
    print(render(table, markdown))
    print(f"\n{missed} goal(s) not met." if missed else "\nEvery goal met.")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
