# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""A look at a diagram, cell by cell, as in a notebook; editors that know "# %%" run each cell by itself."""

# %% Notes of a meeting, as somebody typed them

import collections
import pathlib
import sys

import fishbone

folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")
document = fishbone.loads(
    """# Late deliveries

- Warehouse
  - Labels fade
  - Two scanners for six people
- Carrier
  - No cars on Fridays
- Orders
""",
    "md",
)

# %% What is there?

for category in document.head:
    print(f"{category.title}: {len(category)}")

# %% A category without causes is a question that nobody has asked

empty = [category for category in document.head if not len(category)]
for category in empty:
    category.add("To be asked", verdict="checking")

# %% Votes of the team

ballots = ["Labels fade", "No cars on Fridays", "Labels fade", "Labels fade"]
for title, votes in collections.Counter(ballots).items():
    found = document.head.find(title)
    if found is not None:
        found.votes = votes

# %% The likeliest cause comes first

likeliest = max(document.head.walk(), key=lambda subject: subject.votes)
likeliest.verdict = "suspected"
if likeliest.parent is not None:
    likeliest.move(likeliest.parent, 0)
print(f"likeliest: {likeliest.title} ({likeliest.votes})")

# %% The picture, and the text for the minutes

document.draw(folder / "deliveries.svg", page="A4")
document.export(folder / "deliveries.md")
