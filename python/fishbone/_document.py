# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Documents: one diagram with its file."""

from __future__ import annotations

import json
import os
from types import TracebackType
from typing import Any, List, Optional, Type, Union

from . import _fishbone
from ._application import application
from ._errors import GoneError, WriteError
from ._looks import Options, Page, chosen, drawn_as
from ._model import Model, Path
from ._subject import Subject


class Document:
    """One diagram: its head, its file and whether it has changes that are not saved.

    Made by fishbone.new(), open() and loads(), and by those of a Model. It keeps its model. In a with
    statement it is closed at the end; changes that were not saved are lost then.
    """

    __slots__ = ("_handle", "_model", "__weakref__")

    def __init__(self, handle: _fishbone.ScriptDocument, model: Model) -> None:
        self._handle = handle
        self._model = model

    @property
    def model(self) -> Model:
        """The model that lists the document."""
        return self._model

    @property
    def is_open(self) -> bool:
        """Whether the document is still there; everything else raises GoneError when it is not."""
        return self._handle.isThere()

    @property
    def head(self) -> Subject:
        """The head, which states the problem."""
        head = self._there().head()
        if not head.isThere():
            raise GoneError("the document has no head")
        return Subject(head, self)

    @property
    def path(self) -> Optional[str]:
        """The file of the document, None while it has none."""
        return self._there().fileName() or None

    @property
    def is_modified(self) -> bool:
        """Whether there are changes that are not saved."""
        return self._there().isModified()

    @property
    def notes(self) -> List[str]:
        """What of the file that was read or written last no field holds, for people."""
        return list(self._there().notes())

    @property
    def view(self) -> Options:
        """How the document was saved to be shown: its look, page and palette, as the diagram format has them."""
        view: Options = json.loads(self._there().view())
        return view

    def save(self, path: Optional[Path] = None) -> None:
        """Saves the document in the diagram format, under its own name or another one.

        Raises WriteError, with the file as it was, when that cannot be.
        """
        name = self.path if path is None else os.fspath(path)
        if name is None:
            raise WriteError("the document has no file yet: save(path) names it")
        if not self._there().save(name):
            raise WriteError(f"{name}: {self._handle.reason()}")

    def export(self, path: Path, format: Optional[str] = None) -> None:
        """Writes the diagram in another format, told by the ending of the file or given.

        The document keeps its name. What the format cannot hold is left out, and notes says what.
        """
        name = os.fspath(path)
        known = format or _fishbone.ScriptDocument.formatOf(name)
        if not known:
            raise WriteError(f"{name}: the ending tells no format")
        if not self._there().exportTo(name, known):
            raise WriteError(f"{name}: {self._handle.reason()}")

    def dumps(self, format: str = "json") -> bytes:
        """What a file of a format would hold."""
        contents = bytes(self._there().contents(format).data())
        if not contents:
            raise WriteError(f"the {format} text: {self._handle.reason()}")
        return contents

    def draw(self, path: Path, **options: Any) -> None:
        """Draws the diagram, as fishbone.draw() does with the same options."""
        draw(self, path, **options)

    def close(self) -> None:
        """Closes the document without saving it. A closed one stays closed."""
        if self._handle.isThere():
            self._handle.close()

    def __enter__(self) -> "Document":
        return self

    def __exit__(
        self,
        kind: Optional[Type[BaseException]],
        error: Optional[BaseException],
        trace: Optional[TracebackType],
    ) -> None:
        self.close()

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Document):
            return NotImplemented
        return self is other or (self.is_open and other.is_open and self._handle.isSame(other._handle))

    __hash__ = None  # type: ignore[assignment]  # what is equal while it is open need not be so for ever

    def __repr__(self) -> str:
        if not self.is_open:
            return "<Document, closed>"
        return f"<Document {self.head.title!r}>"

    def _there(self) -> _fishbone.ScriptDocument:
        if not self._handle.isThere():
            raise GoneError("the document is closed")
        return self._handle


def draw(
    source: Union[Document, Subject, Path],
    path: Path,
    *,
    look: Optional[str] = None,
    page: Optional[Page] = None,
    palette: Optional[str] = None,
    sides: Optional[str] = None,
    head: Optional[str] = None,
    wrap: Optional[float] = None,
    legend: Optional[bool] = None,
    levels: Optional[int] = None,
    scale: Optional[float] = None,
    margin: Optional[float] = None,
    background: Optional[str] = None,
    title: Optional[str] = None,
) -> None:
    """Draws a document, a subject with all below it, or a file, into a picture; no display is needed.

    The ending of the path tells its format: png, svg, pdf, pptx, and html in the clear look. What is not given
    is as the document was saved to be shown, and where it does not tell as the program draws: in the clear look
    with a legend, arranged for a wide screen. page is 16:9, A4, A3, Letter or a size such as 1920x1080 or
    297x210mm: the drawing is arranged for it, unless sides or wrap say how. background is a colour such as
    "#ffffff" or "transparent". Raises ReadError, WriteError, and ValueError for options that make no sense.
    """
    how = chosen(look=look, page=page, palette=palette, sides=sides, head=head, wrap=wrap, legend=legend)
    what = chosen(levels=levels, scale=scale, margin=margin, background=background, title=title)
    application()
    if isinstance(source, Document):
        _draw(source.head, path, how, what)
    elif isinstance(source, Subject):
        _draw(source, path, how, what)
    else:
        with Model().open(source) as document:
            _draw(document.head, path, how, what)


_USUAL: Options = {"look": "clear", "legend": True}


def _draw(subject: Subject, path: Path, how: Options, what: Options) -> None:
    name = os.fspath(path)
    handle = subject._there()
    options = drawn_as(subject.document.view, how, _USUAL)
    reason = _fishbone.ScriptPicture.write(handle, name, json.dumps({"title": subject.title, **options, **what}))
    if reason:
        raise WriteError(f"{name}: {reason}")
