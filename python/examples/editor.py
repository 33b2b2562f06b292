#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""A small editor: a window of PySide2 with the diagram, its subjects as a tree, undo, save and a picture.

    editor.py [FILE]
"""

import sys
from typing import List, Optional

from PySide2.QtCore import Qt
from PySide2.QtGui import QCloseEvent, QKeySequence
from PySide2.QtWidgets import QAction, QApplication, QDockWidget, QFileDialog, QMainWindow, QMessageBox, QTreeView

import fishbone


class Window(QMainWindow):
    """The window of one document."""

    def __init__(self, document: fishbone.Document) -> None:
        super().__init__()
        self.document = document
        self.editor = fishbone.Editor(document)
        self.setCentralWidget(self.editor)
        tree = QTreeView()
        tree.setModel(document.model)
        tree.setHeaderHidden(True)
        for column in range(1, document.model.columnCount()):
            tree.hideColumn(column)
        tree.expandAll()
        dock = QDockWidget("Subjects")
        dock.setWidget(tree)
        self.addDockWidget(Qt.LeftDockWidgetArea, dock)

        bar = self.addToolBar("Edit")
        self.undo = bar.addAction("Undo")
        self.redo = bar.addAction("Redo")
        self.cause = bar.addAction("Add cause")
        self.save = bar.addAction("Save")
        self.picture = bar.addAction("Picture…")
        self._connect(self.undo, QKeySequence.Undo, self.editor.undo)
        self._connect(self.redo, QKeySequence.Redo, self.editor.redo)
        self._connect(self.cause, Qt.CTRL | Qt.Key_Return, self.add_cause)
        self._connect(self.save, QKeySequence.Save, self.save_document)
        self._connect(self.picture, QKeySequence.Print, self.draw_picture)
        stack = self.editor.undoStack()
        for action, signal in ((self.undo, stack.undoAvailable), (self.redo, stack.redoAvailable)):
            action.setEnabled(False)
            signal.connect(action.setEnabled)
        self.resize(900, 600)

    def _connect(self, action: QAction, key: object, slot: object) -> None:
        action.setShortcut(QKeySequence(key))
        action.triggered.connect(slot)

    def add_cause(self) -> None:
        """Adds a cause below what is selected, or below the head."""
        selected = self.editor.selection
        above = selected[0] if selected else self.document.head
        self.editor.selection = [above.add("New cause")]

    def save_document(self) -> None:
        """Saves, after asking for a name where there is none."""
        path: Optional[str] = self.document.path
        if path is None:
            path = QFileDialog.getSaveFileName(self, "Save", "", "Diagrams (*.fishbone.json)")[0]
        if path:
            self._try(lambda: self.document.save(path))

    def draw_picture(self) -> None:
        """Draws into a file that the user chooses."""
        path = QFileDialog.getSaveFileName(self, "Picture", "", "Pictures (*.png *.svg *.pdf)")[0]
        if path:
            self._try(lambda: self.document.draw(path, page="16:9"))

    def _try(self, work) -> None:  # type: ignore[no-untyped-def]
        try:
            work()
        except fishbone.FishboneError as error:
            QMessageBox.warning(self, "Fishbone", str(error))

    def closeEvent(self, event: QCloseEvent) -> None:
        """Asks before changes are lost."""
        if self.document.is_modified:
            answer = QMessageBox.question(self, "Fishbone", "Close without saving?")
            event.setAccepted(answer == QMessageBox.Yes)


def main(arguments: List[str]) -> int:
    """Runs the example."""
    application = QApplication.instance() or QApplication(sys.argv)
    document = fishbone.open(arguments[0]) if arguments else fishbone.new("What is wrong?")
    window = Window(document)
    window.show()
    return int(application.exec_())


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
