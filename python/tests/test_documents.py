# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Documents are opened, saved and exchanged, and what fails is an exception with a reason."""

import json
import os

import pytest

import fishbone
from conftest import NOTES, outline


def test_a_new_document_has_a_head_and_no_file():
    document = fishbone.new("Late buses")
    assert (document.head.title, len(document.head), document.path) == ("Late buses", 0, None)


def test_a_document_is_saved_and_opened_again(document, tmp_path):
    path = tmp_path / "line3.fishbone.json"
    document.save(path)
    assert document.path == str(path)
    assert not document.is_modified
    document.head.add("Method")
    assert document.is_modified
    document.save()
    assert not document.is_modified
    assert outline(fishbone.open(path).head) == outline(document.head)
    assert json.loads(path.read_text())["title"] == "Line 3 stopped"


def test_each_change_marks_the_document(document, tmp_path):
    document.save(tmp_path / "a.json")
    changes = [
        lambda head: head.add("added"),
        lambda head: head.insert(0, "inserted"),
        lambda head: setattr(head, "title", "renamed"),
        lambda head: head[0].move(head, 1),
        lambda head: head[0].remove(),
    ]
    for change in changes:
        assert not document.is_modified
        change(document.head)
        assert document.is_modified
        document.save()


def test_a_document_without_a_file_is_not_saved_without_a_name(document):
    with pytest.raises(fishbone.WriteError, match="no file yet"):
        document.save()


def test_what_cannot_be_written_is_an_error_and_leaves_the_file(document, tmp_path):
    with pytest.raises(fishbone.WriteError, match="missing") as caught:
        document.save(tmp_path / "missing" / "a.json")
    assert str(caught.value).rsplit(": ", 1)[1]
    path = tmp_path / "a.md"
    path.write_text("as it was")
    with pytest.raises(fishbone.WriteError):
        document.export(path, "no such format")
    assert path.read_text() == "as it was"


@pytest.mark.parametrize("path", ["nowhere.md", "nowhere.json", "nowhere.unknown", "."])
def test_what_cannot_be_opened_is_an_error_with_a_reason(tmp_path, path):
    with pytest.raises(fishbone.ReadError, match=".+: .+"):
        fishbone.open(tmp_path / path)


@pytest.mark.parametrize("contents, format", [("{", "json"), ("<opml", "opml"), (b"\x00\xff", "xmind"), ("", "nonsense")])
def test_broken_contents_are_an_error_with_a_reason(contents, format):
    with pytest.raises(fishbone.ReadError, match=f"the {format} text: .+"):
        fishbone.loads(contents, format)


@pytest.mark.parametrize("format", [name for name in fishbone.writable_formats() if name in fishbone.readable_formats()])
def test_every_format_that_is_written_is_read(document, tmp_path, format):
    again = fishbone.loads(document.dumps(format), format)
    assert outline(again.head) == outline(document.head)
    path = tmp_path / "file"
    document.export(path, format)
    assert outline(fishbone.open(path, format).head) == outline(document.head)


def test_the_ending_tells_the_format(document, notes, tmp_path):
    assert outline(fishbone.open(notes).head) == outline(document.head)
    document.export(tmp_path / "out.opml")
    assert b"<opml" in (tmp_path / "out.opml").read_bytes()
    assert document.path is None


def test_what_a_format_leaves_out_is_told(document, tmp_path):
    document.head[0].manager = "Ann"
    document.export(tmp_path / "out.mmd", "mmd")
    assert document.notes


def test_a_closed_document_is_gone(document):
    head = document.head
    document.close()
    document.close()
    assert not document.is_open and not head.is_there
    for use in (lambda: document.head, lambda: document.save("x"), lambda: document.dumps(), lambda: head.title):
        with pytest.raises(fishbone.GoneError):
            use()


def test_a_with_statement_closes_the_document(notes):
    with fishbone.open(notes) as document:
        assert document.is_open
    assert not document.is_open


def test_a_model_holds_several_documents(notes):
    model = fishbone.Model()
    first, second = model.open(notes), model.new("Second")
    assert model.documents == [first, second]
    assert model.rowCount() == 2
    assert model.index(1, 0).data() == "Second"
    first.close()
    assert model.documents == [second]
    second.head.add("Cause")
    assert model.rowCount(model.index(0, 0)) == 1


def test_deleting_the_head_closes_the_document(document):
    document.head.remove()
    assert not document.is_open


def test_paths_of_every_kind_are_taken(document, tmp_path):
    text = os.path.join(str(tmp_path), "Größe 大.json")
    document.save(text)
    assert fishbone.open(text).head.title == "Line 3 stopped"
    assert fishbone.loads(NOTES.encode(), "md").head.title == "Line 3 stopped"
