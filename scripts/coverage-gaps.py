#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# coverage-gaps.py <what llvm-cov export wrote
#
# Prints what the tests leave out, with its text: code that does not run, and each condition that is never true
# or never false.

import json
import os
import sys


# The places where code begins that does not run.
def stretches(segments):
    running = True
    for line, column, count, counted, _entry, gap in segments:
        runs = not counted or gap or count > 0
        if running and not runs:
            yield line, column
        running = runs


# How often each condition, told by where it begins and ends, was true and false; a template counts as one.
def conditions(branches):
    counts = {}
    for *place, true, false, _file, _expanded, _kind in branches:
        before = counts.get(tuple(place), (0, 0))
        counts[tuple(place)] = (before[0] + true, before[1] + false)
    return counts


# What is left out of one file: line, column, what is said of it, and the text of the source.
def gaps(path, entry):
    with open(path, encoding="utf-8") as source:
        lines = source.read().splitlines()
    for line, column in stretches(entry["segments"]):
        yield line, column, "does not run", lines[line - 1][column - 1:].strip()
    for (line, column, end, end_column), counts in conditions(entry["branches"]).items():
        condition = lines[line - 1][column - 1:end_column - 1 if end == line else None]
        for count, value in zip(counts, ("true", "false")):
            if count == 0:
                yield line, column, f"is never {value}", condition


def main():
    report = json.load(sys.stdin)
    for entry in sorted(report["data"][0]["files"], key=lambda entry: entry["filename"]):
        name = os.path.relpath(entry["filename"])
        for line, _, what, text in sorted(gaps(entry["filename"], entry)):
            print(f"{name}:{line}: {what}: {text}")


main()
