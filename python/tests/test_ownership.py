# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Whatever dies first, nothing crashes: what is held lives on or says that it is gone."""

import gc
import itertools
import subprocess
import sys

import pytest
import shiboken2
from PySide2.QtCore import QObject
from PySide2.QtWidgets import QTreeView, QWidget

import fishbone
from conftest import NOTES, outline


def test_a_subject_keeps_its_document():
    cause = fishbone.loads(NOTES, "md").head[0][0]
    gc.collect()
    assert cause.title == "Pump worn"
    assert cause.parent.parent.title == "Line 3 stopped"


def test_an_editor_keeps_its_document():
    editor = fishbone.Editor(fishbone.loads(NOTES, "md"))
    gc.collect()
    editor.selectAll()
    assert len(editor.selection) == 6


def test_a_history_does_not_outlive_its_editor(document):
    editor = fishbone.Editor(document)
    stack = editor.undoStack()
    assert stack.count() == 0
    shiboken2.delete(editor)
    with pytest.raises(RuntimeError):
        stack.count()


def test_a_model_dies_with_its_parent():
    parent = QObject()
    model = fishbone.Model(parent)
    document = model.loads(NOTES, "md")
    cause = document.head[0]
    shiboken2.delete(parent)
    assert not document.is_open and not cause.is_there
    for use in (lambda: document.head, lambda: cause.title, lambda: cause.add("x"), lambda: model.new(),
                lambda: model.documents, lambda: list(cause)):
        with pytest.raises(fishbone.GoneError):
            use()


def test_a_subject_below_a_deleted_one_is_gone(document):
    category, cause = document.head[0], document.head[0][0]
    category.remove()
    for subject in (category, cause):
        with pytest.raises(fishbone.GoneError):
            subject.title
    assert repr(cause) == "<Subject, gone>"
    assert cause not in document.head and hash(cause) == hash(cause)


ENDS = {
    "editor": lambda part: shiboken2.delete(part["editor"]),
    "model": lambda part: shiboken2.delete(part["model"]),
    "document": lambda part: part["document"].close(),
    "subject": lambda part: part["subject"].is_there and part["subject"].remove(),
    "view": lambda part: shiboken2.delete(part["view"]),
    "window": lambda part: shiboken2.delete(part["window"]),
}


@pytest.mark.parametrize("order", list(itertools.permutations(ENDS))[::7], ids="-".join)
def test_everything_may_end_in_any_order(order):
    model = fishbone.Model()
    document = model.loads(NOTES, "md")
    window = QWidget()
    view = QTreeView()
    view.setModel(model)
    editor = fishbone.Editor(document, window)
    subject = document.head[0]
    subject[0].remove()
    part = {"model": model, "document": document, "window": window, "view": view, "editor": editor, "subject": subject}
    for name in order:
        if name not in ("editor", "model", "window", "view") or shiboken2.isValid(part[name]):
            ENDS[name](part)
        gc.collect()
        if shiboken2.isValid(editor):
            editor.undo()
            editor.redo()
            editor.selectAll()
            assert isinstance(editor.selection, list)
        if shiboken2.isValid(view):
            view.expandAll()
            view.grab()
    assert not subject.is_there and not document.is_open


NAMES = ("model", "document", "editor", "subject", "stack", "handles")


@pytest.mark.parametrize("order", list(itertools.permutations(NAMES))[::29], ids="-".join)
def test_references_may_be_dropped_in_any_order(order):
    held = {"model": fishbone.Model()}
    held["document"] = held["model"].loads(NOTES, "md")
    held["editor"] = fishbone.Editor(held["document"])
    held["subject"] = held["document"].head[0]
    held["stack"] = held["editor"].undoStack()
    held["handles"] = list(held["document"].head.walk())
    held["subject"].add("Seal leaks")
    for name in order:
        del held[name]
        gc.collect()
        for subject in held.get("handles", ()):
            assert subject.title
        if "editor" in held:
            held["editor"].undo()
            held["editor"].redo()


@pytest.mark.parametrize("shown", [(), (0,), (1,), (0, 1)], ids=str)
@pytest.mark.parametrize("first_ends", [True, False])
def test_a_subject_may_move_between_documents_that_editors_show(shown, first_ends):
    model = fishbone.Model()
    documents = [model.loads(NOTES, "md"), model.loads("# Other\n\n- Method\n", "md")]
    editors = [fishbone.Editor(documents[number]) for number in shown]
    moved = documents[0].head[0]
    moved.move(documents[1].head)
    assert [outline(document.head) for document in documents] == [
        "Line 3 stopped[People[New shift]]", "Other[Method,Machine[Pump worn,Belt slips]]"]
    for editor in editors:
        editor.selectAll()
        assert len(editor.selection) == sum(1 for _ in editor.document.head.walk())
    moved[0].title = "Pump broken"
    moved.move(documents[0].head, 0)
    moved.move(documents[1].head, 0)
    for editor in editors:
        while editor.canUndo():
            editor.undo()
        while editor.canRedo():
            editor.redo()
        editor.grab()
    documents[0 if first_ends else 1].close()
    for editor in editors:
        editor.undo()
        editor.selectAll()
        editor.grab()


def test_a_slot_may_end_what_called_it(document):
    editor = fishbone.Editor(document)
    editor.copyAvailable.connect(lambda _: document.close())
    editor.selectAll()
    assert not document.is_open and editor.selection == []


def test_a_slot_may_change_what_called_it(document):
    editor = fishbone.Editor(document)
    document.model.rowsInserted.connect(lambda *_: len(document.head) < 6 and document.head.add("again"))
    document.head.add("once")
    assert len(document.head) == 6
    while editor.canUndo():
        editor.undo()
    assert len(document.head) == 2


@pytest.mark.parametrize("keep", ["document", "document.head[0]", "fishbone.Editor(document)", "document.model",
                                  "(fishbone.Editor(document), document.head[0], document.model)"])
def test_the_interpreter_ends_with_objects_that_are_held(keep):
    program = f"import fishbone; document = fishbone.loads({NOTES!r}, 'md'); kept = {keep}; document.head.add('x')"
    run = subprocess.run([sys.executable, "-X", "faulthandler", "-c", program], capture_output=True, text=True)
    assert run.returncode == 0, run.stderr
