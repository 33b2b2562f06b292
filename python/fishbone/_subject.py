# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Subjects: the head, the categories and the causes of a diagram."""

from __future__ import annotations

import enum
import json
import operator
from collections.abc import Sequence
from datetime import date, datetime
from typing import TYPE_CHECKING, Any, Dict, Iterator, List, Optional, SupportsIndex, Union, overload

from . import _fishbone
from ._errors import EditError, GoneError

if TYPE_CHECKING:
    from ._document import Document


class Status(enum.IntEnum):
    """The state of a task."""

    NONE = -1
    UNKNOWN = 0
    CANCELLED = 1
    FINISHED = 2
    FINISHED_LATE = 3
    POSTPONED = 4
    RUNNING = 5
    WAITING = 6
    WAITING_FOR_APPROVAL = 7


# The attributes that Python names in another way than the diagram format does.
_KEYS = {
    "manager": "mgrname",
    "manager_id": "mgrid",
    "creator": "creatorname",
    "creator_id": "creatorid",
}
_TEXTS = ("title", "detail", "url", "showid", "manager", "manager_id", "creator", "creator_id", "verdict", "colour")
_NUMBERS = {"type": 0, "status": -1, "progress": 0, "priority": -1, "votes": 0}
_VERDICTS = ("", "suspected", "checking", "confirmed", "ruledout", "rootcause")
_OPTIONAL = ("verdict", "votes", "colour")  # not written at all when they say nothing


def _to_json(attributes: Dict[str, Any]) -> str:
    changes: Dict[str, Any] = {}
    for name, value in attributes.items():
        key = _KEYS.get(name, name)
        if name == "planned_end":
            key, value = "planenddate", _milliseconds(value)
        elif name == "created":
            key, value = "createdate", _milliseconds(value)
        elif name == "followers":
            value = [str(follower) for follower in value]
        elif name in _NUMBERS:
            value = operator.index(value)
        elif name not in _TEXTS:
            raise TypeError(f"a subject has no attribute {name!r}")
        elif not isinstance(value, str):
            raise TypeError(f"{name} is a text, not {type(value).__name__}")
        if name == "verdict" and value not in _VERDICTS:
            raise ValueError(f"{value!r} is no verdict: {', '.join(_VERDICTS[1:])}, or empty for none")
        changes[key] = None if name in _OPTIONAL and not value else value
    return json.dumps(changes)


def _milliseconds(value: Optional[date]) -> int:
    if value is None:
        return 0
    if not isinstance(value, datetime):
        value = datetime(value.year, value.month, value.day)
    return round(value.timestamp() * 1000)


def _moment(milliseconds: int) -> Optional[datetime]:
    return datetime.fromtimestamp(milliseconds / 1000) if milliseconds else None


class Subject(Sequence):  # type: ignore[type-arg]  # of itself, which no type argument can say here
    """One subject of a diagram, and the sequence of the subjects right below it.

    A subject is a handle. It keeps its document open, but not itself in the document: when it is deleted,
    there as in an editor, whatever is asked of it raises GoneError; when the deletion is undone it is there
    again. Two handles of one subject are equal.
    """

    __slots__ = ("_handle", "_document", "__weakref__")

    def __init__(self, handle: _fishbone.ScriptSubject, document: "Document") -> None:
        self._handle = handle
        self._document = document

    # -- what it is ------------------------------------------------------------------------------------------

    @property
    def document(self) -> "Document":
        """The document that holds the subject; of one that is gone the one that it was taken from."""
        from ._document import Document

        handle = _fishbone.ScriptDocument.of(self._handle)
        if not handle.isThere() or self._document._handle.isSame(handle):
            return self._document
        return Document(handle, self._document.model)

    @property
    def is_there(self) -> bool:
        """Whether the subject is in its document; everything else raises GoneError when it is not."""
        return self._handle.isThere()

    @property
    def parent(self) -> Optional["Subject"]:
        """The subject above, None for the head."""
        above = self._there().parent()
        return Subject(above, self._document) if above.isThere() else None

    @property
    def row(self) -> int:
        """Its place below its parent; for a head that of its document in the model."""
        return self._there().row()

    def walk(self) -> Iterator["Subject"]:
        """The subject and everything below it, parents before children. It may be changed meanwhile."""
        waiting = [self]
        while waiting:
            subject = waiting.pop()
            if subject.is_there:
                below = list(subject)
                yield subject
                waiting.extend(reversed(below))

    def find(self, text: str) -> Optional["Subject"]:
        """The first subject, here or below, whose title contains a text in any case; None without one."""
        wanted = text.casefold()
        return next((subject for subject in self.walk() if wanted in subject.title.casefold()), None)

    def to_dict(self) -> Dict[str, Any]:
        """The attributes as the diagram format has them, without what is below."""
        state: Dict[str, Any] = json.loads(self._there().state())
        return state

    # -- a sequence ------------------------------------------------------------------------------------------

    def __len__(self) -> int:
        return self._there().childCount()

    def __bool__(self) -> bool:
        return True  # a subject without causes is a subject

    @overload
    def __getitem__(self, index: SupportsIndex) -> "Subject": ...

    @overload
    def __getitem__(self, index: slice) -> List["Subject"]: ...

    def __getitem__(self, index: Union[SupportsIndex, slice]) -> Union["Subject", List["Subject"]]:
        if isinstance(index, slice):
            return [self._child(row) for row in range(*index.indices(len(self)))]
        return self._child(self._row(index))

    def __iter__(self) -> Iterator["Subject"]:
        row = 0
        while row < len(self):
            yield self._child(row)
            row += 1

    def __contains__(self, value: object) -> bool:
        if not isinstance(value, Subject) or not value.is_there:
            return False
        return value.parent == self

    def __delitem__(self, index: Union[SupportsIndex, slice]) -> None:
        chosen = self[index]
        for subject in chosen if isinstance(chosen, list) else [chosen]:
            subject.remove()

    def add(self, title: str, **attributes: Any) -> "Subject":
        """Appends a subject and returns it: ``head.add("Pump worn", votes=3)``."""
        return self.insert(len(self), title, **attributes)

    def insert(self, index: SupportsIndex, title: str, **attributes: Any) -> "Subject":
        """Inserts a subject before the one at an index, as list.insert() does, and returns it."""
        state = _to_json({"title": title, **attributes})
        count = len(self)
        row = operator.index(index)
        row = max(0, row + count) if row < 0 else min(row, count)
        handle = self._there().insert(row, state)
        if not handle.isThere():
            raise EditError("the subject was not inserted")
        return Subject(handle, self._document)

    def remove(self) -> None:
        """Deletes the subject with all below it; the head with its document."""
        if not self._there().remove():
            raise EditError("the subject was not deleted")

    def move(self, parent: "Subject", index: Optional[SupportsIndex] = None) -> None:
        """Moves the subject below another one of its model, to the end or to the given place there."""
        handle, target = self._there(), parent._there()
        if any(above == self for above in _upwards(parent)):
            raise EditError("a subject cannot be moved below itself")
        count = len(parent) - (1 if self in parent else 0)
        row = count if index is None else operator.index(index)
        row = max(0, row + count) if row < 0 else min(row, count)
        if self in parent and self.row == row:
            return
        if not handle.moveTo(target, row):
            raise EditError("the subject was not moved")

    # -- attributes ------------------------------------------------------------------------------------------

    def update(self, **attributes: Any) -> None:
        """Changes several attributes, which is one step of an editor's history."""
        if not self._there().edit(_to_json(attributes)):
            raise EditError("the subject was not changed")

    @property
    def title(self) -> str:
        """The text that the bone shows."""
        return self._text("title")

    @title.setter
    def title(self, value: str) -> None:
        self.update(title=value)

    @property
    def uuid(self) -> str:
        """The identity of the subject, which nobody changes."""
        return self._there().identity()

    @property
    def detail(self) -> str:
        """The description, plain text."""
        return self._text("detail")

    @detail.setter
    def detail(self, value: str) -> None:
        self.update(detail=value)

    @property
    def url(self) -> str:
        """The address that the subject is linked to, empty for none."""
        return self._text("url")

    @url.setter
    def url(self, value: str) -> None:
        self.update(url=value)

    @property
    def showid(self) -> str:
        """The short identifier that people see."""
        return self._text("showid")

    @showid.setter
    def showid(self, value: str) -> None:
        self.update(showid=value)

    @property
    def manager(self) -> str:
        """The name of who is responsible."""
        return self._text("manager")

    @manager.setter
    def manager(self, value: str) -> None:
        self.update(manager=value)

    @property
    def creator(self) -> str:
        """The name of who made the task."""
        return self._text("creator")

    @creator.setter
    def creator(self, value: str) -> None:
        self.update(creator=value)

    @property
    def followers(self) -> List[str]:
        """Who follows the task; a copy, so that a change of it is set."""
        followers: List[str] = self.to_dict().get("followers", [])
        return followers

    @followers.setter
    def followers(self, value: List[str]) -> None:
        self.update(followers=value)

    @property
    def type(self) -> int:
        """The kind of task, a number of whoever uses it."""
        return self._number("type")

    @type.setter
    def type(self, value: int) -> None:
        self.update(type=value)

    @property
    def status(self) -> int:
        """The state of the task, a Status or, out of a file, a number without a meaning."""
        number = self._number("status")
        return Status(number) if number in list(Status) else number

    @status.setter
    def status(self, value: int) -> None:
        self.update(status=value)

    @property
    def progress(self) -> int:
        """The progress of the task in per cent."""
        return self._number("progress")

    @progress.setter
    def progress(self, value: int) -> None:
        self.update(progress=value)

    @property
    def priority(self) -> int:
        """The priority, -1 for none."""
        return self._number("priority")

    @priority.setter
    def priority(self, value: int) -> None:
        self.update(priority=value)

    @property
    def votes(self) -> int:
        """How many people hold it for the likeliest cause."""
        return self._number("votes")

    @votes.setter
    def votes(self, value: int) -> None:
        self.update(votes=value)

    @property
    def verdict(self) -> str:
        """What was found out: suspected, checking, confirmed, ruledout, rootcause; empty for nothing."""
        return self._text("verdict")

    @verdict.setter
    def verdict(self, value: str) -> None:
        self.update(verdict=value)

    @property
    def colour(self) -> str:
        """Its colour as #rrggbb, empty for that of the palette."""
        return self._text("colour")

    @colour.setter
    def colour(self, value: str) -> None:
        self.update(colour=value)

    @property
    def planned_end(self) -> Optional[datetime]:
        """When it shall be done, in local time; None when that is not set."""
        return _moment(self.to_dict().get("planenddate", 0))

    @planned_end.setter
    def planned_end(self, value: Optional[date]) -> None:
        self.update(planned_end=value)

    @property
    def created(self) -> Optional[datetime]:
        """When it was made, in local time; None when that is not set."""
        return _moment(self.to_dict().get("createdate", 0))

    @created.setter
    def created(self, value: Optional[date]) -> None:
        self.update(created=value)

    # -- identity --------------------------------------------------------------------------------------------

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Subject) and self._handle.isSame(other._handle)

    def __hash__(self) -> int:
        return hash(self._handle.key())

    def __repr__(self) -> str:
        return f"<Subject {self.title!r}>" if self.is_there else "<Subject, gone>"

    # -- inside ----------------------------------------------------------------------------------------------

    def _there(self) -> _fishbone.ScriptSubject:
        if not self._handle.isThere():
            raise GoneError("the subject is no longer in its document")
        return self._handle

    def _row(self, index: SupportsIndex) -> int:
        count, row = len(self), operator.index(index)
        row = row + count if row < 0 else row
        if not 0 <= row < count:
            raise IndexError(f"there are {count} subjects below {self.title!r}, and none at {operator.index(index)}")
        return row

    def _child(self, row: int) -> "Subject":
        return Subject(self._there().child(row), self._document)

    def _text(self, name: str) -> str:
        value = self.to_dict().get(_KEYS.get(name, name), "")
        return value if isinstance(value, str) else ""

    def _number(self, name: str) -> int:
        value = self.to_dict().get(name, _NUMBERS[name])
        return int(value) if isinstance(value, (int, float)) else _NUMBERS[name]


def _upwards(subject: Optional[Subject]) -> Iterator[Subject]:
    while subject is not None:
        yield subject
        subject = subject.parent
