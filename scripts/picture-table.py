#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# picture-table.py <the program> [--write]
#
# Measures how high the letters of causes are when a whole diagram fills a slide or a sheet of paper: in the clear
# look, in the classic one, and as Graphviz draws the same tree, where it is installed. Prints the table, or writes
# it into docs/picture.md.

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PAGE = os.path.join(ROOT, "docs", "picture.md")
BEGIN, END = "<!-- the table -->\n", "<!-- the end of the table -->\n"
SLIDE = (1920, 1080)  # pixels
SHEET = (277, 190)  # millimetres: A4 with a margin of 10
POINTS = 72 / 25.4  # a millimetre
MARGIN = 8  # that the program leaves around a drawing

# The trees, and what a sketch of the rules reached on a slide and on a sheet.
TREES = [
    ("tests/drawing/fixtures/tree_6m.json", "six categories", (33.1, 14.8)),
    ("tests/drawing/fixtures/tree_100.json", "a hundred causes", (17.4, 7.4)),
    ("tests/drawing/fixtures/tree_unbal.json", "one large category", (28.9, 12.4)),
    ("tests/drawing/fixtures/tree_sample.json", "an outage, five levels", (22.5, 10.7)),
    ("samples/late-bus-departures.fishbone.json", "late buses", (16.3, 8.1)),
    ("samples/medication-delay.fishbone.json", "medication", (23.4, 10.3)),
    ("samples/solder-joint-voids.fishbone.json", "solder joints", (22.1, 10.0)),
    ("samples/delivery-delay-zh.fishbone.json", "deliveries, in Chinese", (24.8, 10.6)),
]


def size_on(page, size):
    return min(page[0] / size[0], page[1] / size[1])


def drawn(program, tree, folder, *options):
    """The view box of a picture and how large most of its texts are."""
    picture = os.path.join(folder, "picture.svg")
    subprocess.run(
        [program, "--export", picture, *options, tree],
        check=True, stdout=subprocess.DEVNULL, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    with open(picture, encoding="utf-8") as file:
        svg = file.read()
    box = [float(each) for each in re.search(r'viewBox="([^"]+)"', svg).group(1).split()]
    sizes = Counter(re.findall(r'font-size="([0-9.]+)"', svg))
    return (box[2] - 2 * MARGIN, box[3] - 2 * MARGIN), float(sizes.most_common(1)[0][0])


def graphviz(tree, folder):
    """The same for a tree as Graphviz draws it, from left to right and without frames."""
    with open(tree, encoding="utf-8") as file:
        head = json.load(file)
    lines = ["digraph {", "rankdir=LR; nodesep=0.05; ranksep=0.3;",
             "node [shape=plaintext, fontsize=14, margin=0.02, height=0.1];"]
    waiting = [(head, None)]
    count = 0
    while waiting:
        node, parent = waiting.pop()
        name = f"n{count}"
        count += 1
        lines.append(f"{name} [label={json.dumps(node.get('title', ''), ensure_ascii=False)}];")
        if parent:
            lines.append(f"{parent} -> {name};")
        waiting += [(child, name) for child in node.get("children", [])]
    source = os.path.join(folder, "tree.dot")
    with open(source, "w", encoding="utf-8") as file:
        file.write("\n".join([*lines, "}"]))
    svg = subprocess.run(["dot", "-Tsvg", source], check=True, capture_output=True, text=True).stdout
    width, height = re.search(r'<svg width="([0-9.]+)pt" height="([0-9.]+)pt"', svg).groups()
    return (float(width), float(height)), 14.0


def count(tree):
    with open(tree, encoding="utf-8") as file:
        waiting = [json.load(file)]
    total = 0
    while waiting:
        node = waiting.pop()
        total += 1
        waiting += node.get("children", [])
    return total


def cells(slide, sheet):
    on_slide = slide[1] * size_on(SLIDE, slide[0])
    on_sheet = sheet[1] * size_on(SHEET, sheet[0]) * POINTS
    return on_slide, on_sheet


def text(sizes):
    return f"{sizes[0]:.1f} px, {sizes[1]:.1f} pt"


def table(program):
    has_dot = shutil.which("dot") is not None
    rows = ["| Diagram | subjects | clear | classic | " + ("dot | " if has_dot else "") + "sketch |",
            "|---|---|---|---|---|" + ("---|" if has_dot else "")]
    with tempfile.TemporaryDirectory() as folder:
        for file, name, sketch in TREES:
            tree = os.path.join(ROOT, file)
            clear = cells(drawn(program, tree, folder, "--page", "16:9"),
                          drawn(program, tree, folder, "--page", "A4"))
            plain = drawn(program, tree, folder, "--look", "classic")
            row = [name, str(count(tree)), text(clear), text(cells(plain, plain))]
            if has_dot:
                other = graphviz(tree, folder)
                row.append(text(cells(other, other)))
            row.append(text(sketch))
            rows.append("| " + " | ".join(row) + " |")
            if any(round(ours, 1) < least for ours, least in zip(clear, sketch)):
                sys.exit(f"{file}: {text(clear)} are less than the {text(sketch)} of the sketch")
    return "\n".join(rows) + "\n"


def main():
    rows = table(os.path.abspath(sys.argv[1]))
    if "--write" not in sys.argv[2:]:
        print(rows, end="")
        return
    with open(PAGE, encoding="utf-8") as file:
        page = file.read()
    before, rest = page.split(BEGIN)
    after = rest.split(END)[1]
    with open(PAGE, "w", encoding="utf-8") as file:
        file.write(before + BEGIN + rows + END + after)


main()
