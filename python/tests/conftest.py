# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""What the tests of the module share."""

import gc

import pytest
from PySide2.QtWidgets import QApplication

import fishbone

NOTES = """# Line 3 stopped

- Machine
  - Pump worn
  - Belt slips
- People
  - New shift
"""


# What is imported stays, and looking through it again in each collection is most of what the tests would take.
gc.freeze()


@pytest.fixture(scope="session", autouse=True)
def application():
    """The application object, which widgets of any test need."""
    fishbone.Editor()  # makes it
    return QApplication.instance()


@pytest.fixture
def notes(tmp_path):
    """A file in Markdown."""
    path = tmp_path / "notes.md"
    path.write_text(NOTES)
    return path


@pytest.fixture
def document():
    """A document with a head, two categories and three causes."""
    return fishbone.loads(NOTES, "md")


@pytest.fixture(autouse=True)
def nothing_is_left():
    """What a test leaves behind is collected at its end, where a crash names it."""
    yield
    gc.collect()


def outline(subject):
    """A tree as text: Head[Category[Cause,Cause]]."""
    below = ",".join(outline(child) for child in subject)
    return f"{subject.title}[{below}]" if below else subject.title
