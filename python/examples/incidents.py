#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Turns a table of incidents into a diagram of their causes and a report.

    incidents.py INCIDENTS.csv FOLDER

The table has the columns category, cause, owner and minutes. The most costly cause of each category comes
first and is marked as suspected. FOLDER gets report.html, causes.png and causes.fishbone.json.
"""

import collections
import csv
import html
import pathlib
import sys
from typing import Dict, List

import fishbone

Row = Dict[str, str]


def read(path: pathlib.Path) -> List[Row]:
    """The rows of the table."""
    with path.open(newline="", encoding="utf-8") as file:
        return list(csv.DictReader(file))


def diagram_of(rows: List[Row]) -> fishbone.Document:
    """A category for each of the table, its causes by the minutes that they cost."""
    cost: Dict[str, "collections.Counter[str]"] = collections.defaultdict(collections.Counter)
    count: "collections.Counter[str]" = collections.Counter()
    owner: Dict[str, str] = {}
    for row in rows:
        cost[row["category"]][row["cause"]] += int(row["minutes"])
        count[row["cause"]] += 1
        owner[row["cause"]] = row["owner"]
    total = sum(sum(causes.values()) for causes in cost.values())
    document = fishbone.new(f"{total} minutes lost")
    for category in sorted(cost, key=lambda name: -sum(cost[name].values())):
        bone = document.head.add(category)
        for cause, minutes in cost[category].most_common():
            bone.add(f"{cause}: {minutes} min", votes=count[cause], manager=owner[cause])
        bone[0].verdict = "suspected"
    return document


def report_of(document: fishbone.Document) -> str:
    """A page with the picture and what is suspected."""
    lines = [
        f"<li>{html.escape(cause.title)} ({html.escape(cause.manager)})</li>"
        for category in document.head
        for cause in category
        if cause.verdict == "suspected"
    ]
    title = html.escape(document.head.title)
    return (
        f'<!DOCTYPE html><html lang="en"><meta charset="utf-8"><title>{title}</title><h1>{title}</h1>'
        f'<img src="causes.png" alt="Causes of {title}" width="960"><h2>To be looked into</h2>'
        f"<ul>{''.join(lines)}</ul></html>\n"
    )


def main(arguments: List[str]) -> int:
    """Runs the example."""
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    folder = pathlib.Path(arguments[1])
    folder.mkdir(parents=True, exist_ok=True)
    try:
        with diagram_of(read(pathlib.Path(arguments[0]))) as document:
            document.draw(folder / "causes.png", page="16:9", legend=True)
            (folder / "report.html").write_text(report_of(document), encoding="utf-8")
            document.save(folder / "causes.fishbone.json")
    except fishbone.FishboneError as error:
        print(error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
