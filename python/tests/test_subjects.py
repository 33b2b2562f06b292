# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Subjects are sequences, with their attributes as properties."""

from datetime import date, datetime

import pytest

import fishbone
from conftest import outline


def test_a_subject_is_the_sequence_of_what_is_below(document):
    head = document.head
    assert [cause.title for cause in head] == ["Machine", "People"]
    assert len(head) == 2
    assert head[0].title == "Machine"
    assert head[-1].title == "People"
    assert [cause.title for cause in head[::-1]] == ["People", "Machine"]
    assert [cause.title for cause in reversed(head)] == ["People", "Machine"]
    assert head[1] in head
    assert head[0][0] not in head
    assert head.index(head[1]) == 1


def test_a_row_that_is_not_there_is_an_index_error(document):
    for row in (2, -3, 10**9):
        with pytest.raises(IndexError, match="2 subjects below 'Line 3 stopped'"):
            document.head[row]


def test_a_subject_without_causes_is_true(document):
    assert len(document.head[0][0]) == 0
    assert document.head[0][0]


def test_subjects_are_added_inserted_and_removed(document):
    head = document.head
    added = head.add("Method")
    assert added.title == "Method" and added.parent == head and added.row == 2
    assert head.insert(0, "First").row == 0
    assert head.insert(-1, "Before the last").row == 3
    assert head.insert(99, "Last").row == 5
    assert [cause.title for cause in head] == ["First", "Machine", "People", "Before the last", "Method", "Last"]
    head[1].remove()
    del head[0]
    del head[-2:]
    assert outline(head) == "Line 3 stopped[People[New shift],Before the last]"


def test_added_subjects_have_attributes_and_an_identity(document):
    cause = document.head[0].add("Seal leaks", votes=3, verdict="confirmed", manager="Ann", followers=("Bo", "Cy"))
    assert (cause.votes, cause.verdict, cause.manager, cause.followers) == (3, "confirmed", "Ann", ["Bo", "Cy"])
    assert cause.uuid and cause.uuid != document.head.uuid


@pytest.mark.parametrize(
    "name, value, unset",
    [
        ("title", "Pump 4 worn", "Pump worn"),
        ("detail", "two\nlines", ""),
        ("url", "https://example.org/a?b=c", ""),
        ("showid", "T-1", ""),
        ("manager", "Ann", ""),
        ("creator", "Bo", ""),
        ("followers", ["Ann", "Bo"], []),
        ("type", 7, 0),
        ("status", fishbone.Status.RUNNING, fishbone.Status.NONE),
        ("progress", 40, 0),
        ("priority", 2, -1),
        ("votes", 5, 0),
        ("verdict", "rootcause", ""),
        ("colour", "#ff0000", ""),
        ("planned_end", datetime(2026, 11, 22, 17, 35), None),
        ("created", datetime(2026, 1, 2, 3, 4, 5), None),
    ],
)
def test_attributes_are_properties_that_a_file_keeps(document, tmp_path, name, value, unset):
    cause = document.head[0][0]
    assert getattr(cause, name) == unset
    setattr(cause, name, value)
    assert getattr(cause, name) == value
    path = tmp_path / "kept.fishbone.json"
    document.save(path)
    assert getattr(fishbone.open(path).head[0][0], name) == value
    setattr(cause, name, unset)
    assert getattr(cause, name) == unset


def test_a_date_is_the_beginning_of_its_day(document):
    document.head.planned_end = date(2026, 11, 22)
    assert document.head.planned_end == datetime(2026, 11, 22)


@pytest.mark.parametrize(
    "name, value, error",
    [
        ("title", 7, TypeError),
        ("votes", "many", TypeError),
        ("status", 1.5, TypeError),
        ("verdict", "guilty", ValueError),
    ],
)
def test_values_of_another_kind_are_refused(document, name, value, error):
    before = document.dumps()
    with pytest.raises(error):
        setattr(document.head[0], name, value)
    assert document.dumps() == before


def test_an_attribute_that_there_is_not_is_refused(document):
    with pytest.raises(TypeError, match="no attribute 'colour_of_hair'"):
        document.head.add("x", colour_of_hair="red")
    with pytest.raises(AttributeError):
        document.head.tilte = "a slip of the finger"
    assert len(document.head) == 2


def test_subjects_move(document):
    head = document.head
    head[0][0].move(head[1])
    assert outline(head) == "Line 3 stopped[Machine[Belt slips],People[New shift,Pump worn]]"
    head[1][1].move(head[1], 0)
    assert outline(head) == "Line 3 stopped[Machine[Belt slips],People[Pump worn,New shift]]"
    head[0].move(head)
    assert outline(head) == "Line 3 stopped[People[Pump worn,New shift],Machine[Belt slips]]"
    head[0].move(head[1], 0)
    assert outline(head) == "Line 3 stopped[Machine[People[Pump worn,New shift],Belt slips]]"


@pytest.mark.parametrize("row", range(5))
@pytest.mark.parametrize("to", range(5))
def test_a_moved_subject_stands_where_it_was_moved_to(row, to):
    head = fishbone.new("Head").head
    for title in "abcde":
        head.add(title)
    expected = list("abcde")
    expected.insert(to, expected.pop(row))
    head[row].move(head, to)
    assert [cause.title for cause in head] == expected


def test_a_subject_does_not_move_below_itself(document):
    before = document.dumps()
    head = document.head
    for target in (head[0], head[0][0]):
        with pytest.raises(fishbone.EditError, match="below itself"):
            head[0].move(target)
    assert document.dumps() == before


def test_a_subject_does_not_move_into_another_model(document):
    other = fishbone.new("Other")
    with pytest.raises(fishbone.EditError):
        document.head[0].move(other.head)
    assert len(document.head) == 2 and len(other.head) == 0


def test_a_subject_moves_into_another_document_of_its_model(tmp_path):
    model = fishbone.Model()
    first, second = model.loads("# A\n\n- a\n  - aa\n- b\n", "md"), model.loads("# B\n\n- c\n", "md")
    for document in (first, second):
        document.save(tmp_path / f"{document.head.title}.json")
    moved, below = first.head[0], first.head[0][0]
    moved.move(second.head, 0)
    assert (outline(first.head), outline(second.head)) == ("A[b]", "B[a[aa],c]")
    assert first.is_modified and second.is_modified
    assert moved.document == below.document == second and moved.parent == second.head
    first.close()
    assert moved.title == "a" and below.is_there
    second.close()
    assert not moved.is_there and not below.is_there and moved.document == first


def test_walk_visits_everything_in_the_order_of_the_document(document):
    titles = [subject.title for subject in document.head.walk()]
    assert titles == ["Line 3 stopped", "Machine", "Pump worn", "Belt slips", "People", "New shift"]
    assert document.head.find("SLIPS").title == "Belt slips"
    assert document.head.find("nowhere") is None


def test_subjects_may_change_while_they_are_walked(document):
    for subject in document.head.walk():
        if subject.title == "Machine":
            subject.remove()
    assert outline(document.head) == "Line 3 stopped[People[New shift]]"


def test_equal_handles_are_one_key(document):
    assert document.head[0] == document.head[0] != document.head[1]
    assert len({document.head[0], document.head[0], document.head[1]}) == 2
    assert document.head != "Line 3 stopped"


def test_a_deep_tree_is_no_matter_of_the_stack():
    document = fishbone.new("0")
    subject = document.head
    for level in range(2000):
        subject = subject.add(str(level))
    assert sum(1 for _ in document.head.walk()) == 2001
    document.head[0].remove()
    assert not subject.is_there
