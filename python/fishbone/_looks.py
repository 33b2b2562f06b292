# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""How diagrams are drawn: looks, their options, and the pages that they are arranged for."""

from __future__ import annotations

from typing import Any, Dict, Tuple, Union

from . import _fishbone

Page = Union[str, Tuple[float, float]]
Options = Dict[str, Any]

_WORDS: Dict[str, Tuple[str, ...]] = {
    "look": tuple(_fishbone.ScriptPicture.lookNames()),
    "palette": ("colour", "gray", "dark", "warm", "cool"),
    "sides": ("one", "uneven", "both"),
    "head": ("right", "left"),
}


def chosen(**given: Any) -> Options:
    """Those of the given options that are not None. Raises ValueError for what makes no sense."""
    options = {name: value for name, value in given.items() if value is not None}
    for what, known in _WORDS.items():
        if what in options and options[what] not in known:
            raise ValueError(f"{options[what]!r} is no {what}: {', '.join(known)}")
    if "page" in options:
        options["page"] = _page_text(options["page"])
    return options


def drawn_as(view: Options, given: Options, usual: Options) -> Options:
    """All options to draw with: the given ones, else those of a document's view, else the usual ones.

    A drawing for a page, and one of a document that tells no view, is arranged so that it is as large as it can
    be, unless the arrangement itself is given.
    """
    tells = view.get("look") in _WORDS["look"]
    options = {**(view if tells else usual), **given}
    is_arranged_by_hand = "sides" in given or "wrap" in given
    options["arrange"] = not is_arranged_by_hand and ("page" in options or not tells)
    return options


def _page_text(page: Page) -> str:
    text = page if isinstance(page, str) else "{:.3f}x{:.3f}".format(*page)
    if not _fishbone.ScriptPicture.isPage(text):
        names = ", ".join(_fishbone.ScriptPicture.pageNames())
        raise ValueError(f"{page!r} is no page: {names}, or a size such as 1920x1080 or 297x210mm")
    return text
