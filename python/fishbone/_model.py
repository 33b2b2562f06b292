# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Models: what holds documents, and what views of the toolkit show."""

from __future__ import annotations

import os
from typing import TYPE_CHECKING, List, Optional, Union

import shiboken2

from PySide2.QtCore import QByteArray, QObject

from . import _fishbone
from ._errors import GoneError, ReadError

if TYPE_CHECKING:
    from ._document import Document

Path = Union[str, "os.PathLike[str]"]


class Model(_fishbone.FishModel):
    """Open documents as an item model, for the views of PySide2 and for editors.

    A document keeps its model. When the model is deleted nevertheless, by its parent or by shiboken2,
    its documents and their subjects raise GoneError.
    """

    def __init__(self, parent: Optional[QObject] = None) -> None:
        super().__init__(parent)
        self.setModelType(_fishbone.FISH_MODEL_DIAGRAM)

    @property
    def documents(self) -> List["Document"]:
        """The open documents, in the order of their rows."""
        from ._document import Document

        self._check()
        return [Document(handle, self) for handle in _fishbone.ScriptDocument.documentsOf(self)]

    def new(self, title: str = "") -> "Document":
        """A new document whose head has that title."""
        self._check()
        return self._taken(_fishbone.ScriptDocument.create(self, title), "a new document")

    def open(self, path: Path, format: Optional[str] = None) -> "Document":
        """Opens a file, in the format that its ending tells or that is given.

        Raises ReadError when it cannot be read.
        """
        self._check()
        name = os.fspath(path)
        known = format or _fishbone.ScriptDocument.formatOf(name)
        if not known:
            raise ReadError(f"{name}: the ending tells no format: {', '.join(readable_formats())}")
        if not os.path.isfile(name):
            raise ReadError(f"{name}: there is no such file")
        return self._taken(_fishbone.ScriptDocument.open(self, name, known), name)

    def loads(self, contents: Union[str, bytes], format: str = "json") -> "Document":
        """Opens a document from what a file would hold."""
        self._check()
        data = contents.encode() if isinstance(contents, str) else contents
        return self._taken(_fishbone.ScriptDocument.read(self, QByteArray(data), format), f"the {format} text")

    def _check(self) -> None:
        if not shiboken2.isValid(self):
            raise GoneError("the model was deleted")

    def _taken(self, handle: _fishbone.ScriptDocument, what: str) -> "Document":
        from ._document import Document

        if not handle.isThere():
            raise ReadError(f"{what}: {handle.reason()}")
        return Document(handle, self)


def readable_formats() -> List[str]:
    """The names of the formats that can be read."""
    return list(_fishbone.ScriptDocument.readableFormats())


def writable_formats() -> List[str]:
    """The names of the formats that can be written."""
    return list(_fishbone.ScriptDocument.writableFormats())
