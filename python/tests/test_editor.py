# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""The editor is a widget of PySide2, with its signals and its history."""

import json

import pytest
import shiboken2
from PySide2.QtWidgets import QFrame, QMainWindow

import fishbone
from conftest import outline


@pytest.fixture
def editor(document):
    return fishbone.Editor(document)


def test_the_editor_stands_in_a_window(editor):
    window = QMainWindow()
    window.setCentralWidget(editor)
    window.show()
    assert isinstance(editor, QFrame)
    assert window.centralWidget() is editor
    assert not window.grab().isNull()


def test_changes_of_a_script_are_undone_in_the_editor(editor, document):
    before = outline(document.head)
    steps = [
        lambda head: head.add("Method", votes=2),
        lambda head: head.insert(0, "First"),
        lambda head: setattr(head[1], "title", "Machines"),
        lambda head: head[1].update(status=fishbone.Status.RUNNING, progress=30),
        lambda head: head[1].move(head, 2),
        lambda head: head[0].remove(),
    ]
    states = [document.dumps()]
    for count, step in enumerate(steps, 1):
        step(document.head)
        states.append(document.dumps())
        assert editor.undoStack().count() == count
    for state in reversed(states[:-1]):
        editor.undo()
        assert document.dumps() == state
    assert outline(document.head) == before and not editor.canUndo()
    for state in states[1:]:
        editor.redo()
        assert document.dumps() == state


def test_a_subject_is_gone_and_comes_back_with_undo(editor, document):
    cause = document.head[0][0]
    cause.remove()
    assert not cause.is_there
    with pytest.raises(fishbone.GoneError):
        cause.title
    editor.undo()
    assert cause.title == "Pump worn"


def test_the_selection_is_subjects(editor, document):
    heard = []
    editor.copyAvailable.connect(heard.append)
    editor.selection = [document.head[1], document.head[0][0]]
    assert [subject.title for subject in editor.selection] == ["Pump worn", "People"]
    assert heard == [True]
    editor.selection = []
    assert editor.selection == [] and heard == [True, False]


def test_the_slots_of_the_editor_change_the_document(editor, document):
    editor.selection = [document.head[0]]
    editor.insertChildSubject()
    assert len(document.head[0]) == 3
    editor.selection = [document.head[1]]
    editor.copy()
    editor.selection = [document.head[0]]
    editor.paste()
    assert document.head[0][-1].title == "People"
    editor.undo()
    editor.undo()
    assert len(document.head[0]) == 2


def test_the_history_tells_what_can_be_undone(editor, document):
    heard = []
    stack = editor.undoStack()
    stack.undoAvailable.connect(heard.append)
    document.head.add("Method")
    assert heard[-1] is True and stack.undoText()
    editor.undo()
    assert heard[-1] is False


def test_signals_with_enumerations_and_indexes_arrive(editor, document):
    heard = []
    editor.zoomValueChanged.connect(heard.append)
    editor.zoomIn(50)
    assert heard == [editor.zoomValue()]
    expanded = []
    editor.onExpand.connect(expanded.append)
    editor.selection = [document.head[0]]
    editor.modifyContract()
    editor.modifyExpand()
    assert [index.data() for index in expanded] == ["Machine"]


def test_another_document_begins_another_history(editor, document):
    document.head.add("Method")
    other = fishbone.new("Other")
    editor.show_document(other)
    assert editor.document == other and not editor.canUndo()
    document.head.add("Not in this history")
    assert not editor.canUndo()
    other.head.add("In this one")
    assert editor.canUndo()


def test_looks_draw_differently(editor):
    editor.resize(400, 300)
    editor.showEntire()
    clear = editor.grab().toImage()
    editor.set_look("classic")
    assert editor.grab().toImage() != clear
    with pytest.raises(ValueError):
        editor.set_look("modern")


def test_an_editor_shows_a_document_as_it_was_shown(document):
    contents = json.loads(document.dumps())
    view = {"look": "classic"}
    shown = fishbone.Editor(fishbone.loads(json.dumps({**contents, "view": view})))
    usual, classic = fishbone.Editor(document), fishbone.Editor(fishbone.loads(document.dumps()), look="classic")
    for editor in (shown, usual, classic):
        editor.resize(400, 300)
        editor.showEntire()
    assert shown.grab().toImage() == classic.grab().toImage() != usual.grab().toImage()
    shown.set_look("clear")
    assert shown.grab().toImage() != classic.grab().toImage()


def test_a_subclass_may_override_events(document):
    class Watching(fishbone.Editor):
        seen = 0

        def resizeEvent(self, event):
            Watching.seen += 1
            super().resizeEvent(event)

    editor = Watching(document)
    editor.resize(300, 200)
    editor.show()
    assert Watching.seen > 0


def test_a_deleted_editor_says_so(editor, document):
    shiboken2.delete(editor)
    with pytest.raises(RuntimeError):
        editor.undo()
    with pytest.raises(fishbone.GoneError):
        editor.show_document(document)
    document.head.add("Method")
    assert document.head[-1].title == "Method"
