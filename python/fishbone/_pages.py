# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""The pages that a picture can be arranged for."""

from __future__ import annotations

import re
from typing import Dict, Tuple, Union

Page = Union[str, Tuple[float, float]]

_NAMED: Dict[str, Tuple[float, float, bool]] = {
    "16:9": (1920, 1080, False),
    "a4": (297, 210, True),
    "a3": (420, 297, True),
    "letter": (279.4, 215.9, True),
}
_SIZE = re.compile(r"([0-9]{1,5}(?:\.[0-9]{1,3})?)x([0-9]{1,5}(?:\.[0-9]{1,3})?)(mm|px)?", re.IGNORECASE)


def page_options(page: Page) -> Dict[str, object]:
    """Width, height and whether they are millimetres, as the binding takes them.

    Raises ValueError for what is no page.
    """
    if isinstance(page, str):
        named = _NAMED.get(page.lower())
        match = _SIZE.fullmatch(page)
        if named is not None:
            width, height, is_paper = named
        elif match is not None:
            width, height = float(match[1]), float(match[2])
            is_paper = (match[3] or "").lower() == "mm"
        else:
            raise ValueError(f"{page!r} is no page: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm")
    else:
        width, height = page
        is_paper = False
    if not (width > 0 and height > 0):
        raise ValueError(f"a page of {width} by {height} has no area")
    return {"width": width, "height": height, "isPaper": is_paper}
