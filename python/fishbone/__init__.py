# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Fishbone diagrams: read, edited, written and drawn by scripts, and edited in windows of PySide2.

    import fishbone

    fishbone.draw("notes.md", "out.png", look="clear", page="16:9")

    document = fishbone.new("Line 3 stopped")
    machine = document.head.add("Machine")
    machine.add("Pump worn", votes=3)
    document.save("line3.fishbone.json")

Everything is used from the main thread. docs/python.md of the sources tells more.
"""

from __future__ import annotations

from typing import Optional, Union

from ._document import Document, draw
from ._editor import Editor
from ._errors import EditError, FishboneError, GoneError, ReadError, WriteError
from ._model import Model, Path, readable_formats, writable_formats
from ._subject import Status, Subject

__all__ = [
    "Document",
    "EditError",
    "Editor",
    "FishboneError",
    "GoneError",
    "Model",
    "ReadError",
    "Status",
    "Subject",
    "WriteError",
    "draw",
    "loads",
    "new",
    "open",
    "readable_formats",
    "writable_formats",
]


def new(title: str = "") -> Document:
    """A new document, in a model of its own."""
    return Model().new(title)


def open(path: Path, format: Optional[str] = None) -> Document:
    """Opens a file in a model of its own; the ending tells the format unless it is given."""
    return Model().open(path, format)


def loads(contents: Union[str, bytes], format: str = "json") -> Document:
    """Opens what a file would hold, in a model of its own."""
    return Model().loads(contents, format)
