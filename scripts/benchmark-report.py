#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# benchmark-report.py [--write] <results>...
#
# Reads what the benchmark programs wrote and prints the table of gates. --write puts the table and the
# plots into the documentation as well. Exits with 1 when a limit is exceeded.

import json
import math
import sys
from html import escape

SIZES = (1000, 10000, 100000)
GATED = SIZES[:2]
SHAPES = ("fan", "wide", "wide2")
GROWTH_LIMIT = 0.1  # beyond that of the bare counterpart, which meets the caches of the machine as we do
PAGE = "docs/performance.md"
PLOTS = "docs/pictures/performance.svg"
BEGIN, END = "<!-- table: written by scripts/benchmark -->\n", "<!-- end of the table -->\n"


def ratio(run):
    return run["ratio"]


def beyond_walk(run):
    return run["ours_ms"] - run["bare_ms"]


def times_faster(run):
    return 1 / run["ratio"] if "ratio" in run else None


def whole_bytes(run):
    return round(run["bytes"])


def counter(name):
    return lambda run: run[name]


def at_most(limit):
    return lambda value, size: value <= limit


def exactly(count):
    return lambda value, size: value == count


# Gate, name of the run, what stands in the table, value, format, limit as text, limit.
ROWS = [
    ("G1", "G1 load", "load a file / parse it into plain structs", ratio, "%.2f", "1.5", at_most(1.5)),
    ("G2", "G2 save", "save a file / the same from plain structs", ratio, "%.2f", "1.1", at_most(1.1)),
    ("G3", "G3 expandAll", "show and expand everything / bare build", ratio, "%.2f", "0.6", at_most(0.6)),
    ("G4", "G4 setRootIndex", "show contracted, beyond one walk over the nodes", beyond_walk, "%.2f ms",
     "5 ms", at_most(5)),
    ("G5", "G5 relayout, all moved", "relayout, all moved / placing bare items", ratio, "%.2f", "1.2",
     at_most(1.2)),
    ("G6", "G6 relayout, nothing changed", "relayout, nothing changed / the same", ratio, "%.2f", "0.5",
     at_most(0.5)),
    ("G7", "G7 paints", "repaints after that relayout", counter("relayout"), "%d", "0", exactly(0)),
    ("G7", "G7 paints", "paints in 500 ms after one update()", counter("update"), "%d", "exactly 1",
     exactly(1)),
    ("G8", "G8a repaint, everything in view", "repaint, everything in view / bare", ratio, "%.2f", "1.3",
     at_most(1.3)),
    ("G8", "G8b repaint, 200 bones in view", "repaint, 200 bones in view / bare", ratio, "%.2f", "1.3",
     at_most(1.3)),
    ("G9", "G9 mouse move", "one mouse move / bare", ratio, "%.2f", "1.3", at_most(1.3)),
    ("G10", "G10a find a uuid", "find the last uuid / walk to it", ratio, "%.2f", "2.0", at_most(2.0)),
    ("G10", "G10b search of the find dialog", "search in the find dialog / walk", ratio, "%.2f", "2.0",
     at_most(2.0)),
    ("G11", "G11a insert command", "insert command / find, insert and remove in a bare model", ratio,
     "%.2f", "1.5", at_most(1.5)),
    ("G11", "G11b delete command", "delete command / the same", ratio, "%.2f", "1.5", at_most(1.5)),
    ("G11", "G11c retitle command", "retitle command / the same", ratio, "%.2f", "1.5", at_most(1.5)),
    ("G11", "G11d move command", "move command / the same", ratio, "%.2f", "1.5", at_most(1.5)),
    ("G12", "G12 undo or redo", "undo or redo, all expanded / clear and bare build", ratio, "%.2f", "0.6",
     at_most(0.6)),
    ("G13", "G13 filter change", "filter change / Qt's recursive filter", ratio, "%.2f", "1.1",
     at_most(1.1)),
    ("G14", "G14a loaded node", "memory of a loaded node / plain struct", ratio, "%.2f", "1.3",
     at_most(1.3)),
    ("G14", "G14b expanded bone", "memory of an expanded bone / bare items", ratio, "%.2f", "0.35",
     at_most(0.35)),
    ("G14", "G14c never expanded bone", "memory of a never expanded bone", whole_bytes, "%d bytes", "0",
     exactly(0)),
    ("G15", "G15 teardown", "teardown / bare clear()", ratio, "%.2f", "1.0", at_most(1.0)),
    ("G16", "G16 parses", "picture files parsed / shown", ratio, "%.2f", "1", at_most(1)),
    ("G17", "G17 export", "picture of the program, times as fast as dot", times_faster, "%.1fx",
     "8x, 14x faster", lambda value, size: value >= (8 if size == 1000 else 14)),
    ("G19", "G19a clear look, all moved", "relayout of the clear look, all moved / of the classic one", ratio,
     "%.2f", "3.0 at 10,000", lambda value, size: size < 10000 or value <= 3),
    ("G19", "G19b clear look, a title", "another title in the clear look / in the classic one", ratio, "%.2f",
     "3.0 at 10,000", lambda value, size: size < 10000 or value <= 3),
    ("G19", "G19c best arrangement", "best arrangement for a slide / a relayout", ratio, "%.1f", "50",
     at_most(50)),
    ("G20", "G20 start", "start until a document is drawn / a bare window with an empty view", ratio, "%.1f", "1.5",
     at_most(1.5)),
    ("G20", "G20 start", "memory of its own then / the same", counter("memory"), "%.1f", "1.5", at_most(1.5)),
]

# The one row that is measured at a size of its own, for each shape.
WAIT, WAIT_SIZE, WAIT_LIMIT = "G19b longest wait for a title", 2000, 3


def read(names):
    """The counters of every run, by name, shape and size, and where and when they were taken."""
    runs, places = {}, []
    for name in names:
        with open(name, encoding="utf-8") as file:
            results = json.load(file)
        places.append(results["context"])
        for run in results["benchmarks"]:
            title, shape, size = run["name"].split("/")[:3]
            runs[title, shape, int(size)] = run
    loads = [place["load_avg"][0] for place in places]
    place = "Measured on %s with %d processors of %d MHz, load average %.1f to %.1f." % (
        places[0]["date"][:10], places[0]["num_cpus"], places[0]["mhz_per_cpu"], min(loads), max(loads))
    return runs, place


def growth(runs, name, shape, whose):
    """The exponent of the growth of a time from the one gated size to the other, if both were run."""
    times = [runs.get((name, shape, size), {}).get(whose) for size in GATED]
    return math.log10(times[1] / times[0]) if all(times) else None


def exponents(runs, name, whose):
    return [growth(runs, name, shape, whose) for shape in SHAPES]


def most_excess(runs):
    """How far a time of ours grows faster than its bare counterpart at most, and where. What has no counterpart
    of both sizes, or one that is ours in another look, is left out."""
    found = []
    for name in sorted({row[1] for row in ROWS if row[0] != "G19"}):
        for shape, ours, bare in zip(SHAPES, exponents(runs, name, "ours_ms"), exponents(runs, name, "bare_ms")):
            if ours is not None and bare is not None:
                found.append((ours - bare, name, shape, ours))
    return max(found)


def listed(values):
    shown = ["%.2f" % value if value is not None else "–" for value in values]
    return " ".join(shown) if any(value is not None for value in values) else ""


def waits(runs):
    """The line of the longest waits, and whether the limit is kept for each shape that was run."""
    ratios = [runs.get((WAIT, shape, WAIT_SIZE), {}).get("ratio") for shape in SHAPES]
    known = [ratio for ratio in ratios if ratio is not None]
    met = bool(known) and max(known) <= WAIT_LIMIT
    line = "| G19 | longest wait for a title among %s / in the classic look: fan wide wide2 | %s | | | %.1f | %s | | |"
    return line % (format(WAIT_SIZE, ","), listed(ratios) or "–", WAIT_LIMIT, "pass" if met else "**FAIL**"), met


def table(runs):
    """The lines of the table, and whether each limit is kept."""
    lines = ["| Gate | What | 1k | 10k | 100k | At most | | Growth: fan wide wide2 | of the bare |",
             "|---|---|---|---|---|---|---|---|---|"]
    all_met = True
    for gate, name, what, value_of, form, limit, is_met in ROWS:
        values = {}
        for size in SIZES:
            run = runs.get((name, "fan", size))
            values[size] = value_of(run) if run else None
        cells = [form % values[size] if values[size] is not None else "–" for size in SIZES]
        gated = [size for size in GATED if values[size] is not None]
        met = bool(gated) and all(is_met(values[size], size) for size in gated)
        all_met &= met
        lines.append("| %s |" % " | ".join(
            [gate, what] + cells + [limit, "pass" if met else "**FAIL**",
                                    listed(exponents(runs, name, "ours_ms")),
                                    listed(exponents(runs, name, "bare_ms"))]))
    line, met = waits(runs)
    lines.append(line)
    all_met &= met
    excess, name, shape, value = most_excess(runs)
    met = excess <= GROWTH_LIMIT
    all_met &= met
    what = "largest growth beyond that of the bare: %s, %s, %.2f instead of %.2f" % (
        name.split(" ", 1)[1], shape, value, value - excess)
    lines.append("| G18 | %s | | %.2f | | %.1f | %s | | |" % (
        what, excess, GROWTH_LIMIT, "pass" if met else "**FAIL**"))
    return lines, all_met


def plot(runs, name, left, top, width, height):
    """One diagram of time against size, both logarithmic."""
    series = {}
    for whose in ("ours_ms", "bare_ms"):
        series[whose] = [(size, runs[name, "fan", size][whose]) for size in SIZES
                         if runs.get((name, "fan", size), {}).get(whose)]
    times = [time for points in series.values() for _, time in points]
    low, high = math.floor(math.log10(min(times))), math.ceil(math.log10(max(times)))

    def x(size):
        return left + width * (math.log10(size) - 3) / 2

    def y(time):
        return top + height * (1 - (math.log10(time) - low) / max(1, high - low))

    parts = ['<text x="%d" y="%d" font-weight="bold">%s</text>' % (left, top - 8, escape(name))]
    for power in range(low, high + 1):
        parts.append('<path d="M%.1f %.1fh%.1f" stroke="#ddd"/><text x="%.1f" y="%.1f" '
                     'text-anchor="end">%g ms</text>' % (left, y(10 ** power), width, left - 4,
                                                         y(10 ** power) + 4, 10 ** power))
    for size, text in zip(SIZES, ("1k", "10k", "100k")):
        parts.append('<text x="%.1f" y="%.1f" text-anchor="middle">%s</text>' % (
            x(size), top + height + 16, text))
    for whose, colour in (("bare_ms", "#e08214"), ("ours_ms", "#2166ac")):
        points = " ".join("%.1f,%.1f" % (x(size), y(time)) for size, time in series[whose])
        parts.append('<polyline points="%s" fill="none" stroke="%s" stroke-width="2"/>' % (points, colour))
    return "\n".join(parts)


def plots(runs):
    names = [name for name in dict.fromkeys(row[1] for row in ROWS)
             if runs.get((name, "fan", SIZES[0]), {}).get("ours_ms")]
    columns, width, height = 4, 300, 210
    rows = math.ceil(len(names) / columns)
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 %d %d" font-family="sans-serif" '
             'font-size="11"><rect width="100%%" height="100%%" fill="white"/>'
             '<text x="10" y="18">Time against the number of subjects, fan</text>'
             '<text x="300" y="18" fill="#2166ac">Fishbone</text>'
             '<text x="380" y="18" fill="#e08214">the baseline</text>' % (
                 columns * width, 30 + rows * height)]
    for i, name in enumerate(names):
        parts.append(plot(runs, name, 70 + i % columns * width, 60 + i // columns * height,
                          width - 100, height - 70))
    return "\n".join(parts) + "\n</svg>\n"


def write(runs, lines):
    with open(PAGE, encoding="utf-8") as file:
        before, rest = file.read().split(BEGIN)
    after = rest.split(END)[1]
    with open(PAGE, "w", encoding="utf-8") as file:
        file.write(before + BEGIN + "\n" + "\n".join(lines) + "\n\n" + END + after)
    with open(PLOTS, "w", encoding="utf-8") as file:
        file.write(plots(runs))


def main(arguments):
    runs, place = read([name for name in arguments if name != "--write"])
    lines, all_met = table(runs)
    lines += ["", place]
    print("\n".join(lines))
    if "--write" in arguments:
        write(runs, lines)
    return 0 if all_met else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
