# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""The editor: a widget for windows of PySide2."""

from __future__ import annotations

import json
from typing import Iterable, List, Optional

import shiboken2

from PySide2.QtWidgets import QWidget

from . import _fishbone
from ._application import application
from ._document import Document
from ._errors import GoneError
from ._looks import Options, chosen, drawn_as
from ._subject import Subject


class Editor(_fishbone.FishEditor):
    """The widget that shows one diagram and lets the user edit it.

    A PySide2 widget like any other, with the signals and slots of FishEditor: copyAvailable(bool),
    zoomValueChanged(int), undo(), redo(), expandAll() and so on; undoStack() has undoAvailable(bool) and
    redoAvailable(bool). What a script changes in the shown document while there is an editor is a step of
    that editor's history, too.
    """

    def __init__(
        self, document: Optional[Document] = None, parent: Optional[QWidget] = None, *, look: Optional[str] = None
    ) -> None:
        application()
        super().__init__(parent)
        self._document: Optional[Document] = None
        self.setAutosaveInterval(0)  # a script says itself what is written where
        self.undoStack().setRolling(True)
        self._given: Options = {}
        self.set_look(look)
        if document is not None:
            self.show_document(document)

    @property
    def document(self) -> Optional[Document]:
        """The shown document, None when nothing is shown."""
        return self._document if self._document is not None and self._document.is_open else None

    def show_document(self, document: Document) -> None:
        """Shows a document. The editor keeps it; what was done in another one cannot be undone any more."""
        if not shiboken2.isValid(self):
            raise GoneError("the editor was deleted")
        head = document.head
        if self._document is not None and self._document != document:
            self.undoStack().clear()
        self._document = document
        self._apply_look()
        self.setModel(document.model)
        self.setRootIndex(head._there().index())
        self.expandAll()

    def set_look(
        self,
        look: Optional[str] = None,
        *,
        palette: Optional[str] = None,
        sides: Optional[str] = None,
        head: Optional[str] = None,
        wrap: Optional[float] = None,
        legend: Optional[bool] = None,
    ) -> None:
        """Draws in another look from now on, as fishbone.draw() has them.

        What is not given is as each shown document was saved to be shown, else in the clear look.
        """
        self._given = chosen(look=look, palette=palette, sides=sides, head=head, wrap=wrap, legend=legend)
        self._apply_look()

    def _apply_look(self) -> None:
        view = self._document.view if self._document is not None and self._document.is_open else {}
        _fishbone.ScriptPicture.setLook(self, json.dumps(drawn_as(view, self._given, {"look": "clear"})))

    @property
    def selection(self) -> List[Subject]:
        """The selected subjects, in the order of the document."""
        document = self.document
        if document is None:
            return []
        return [Subject(handle, document) for handle in _fishbone.ScriptSelection.of(self)]

    @selection.setter
    def selection(self, subjects: Iterable[Subject]) -> None:
        _fishbone.ScriptSelection.select(self, [subject._there() for subject in subjects])
