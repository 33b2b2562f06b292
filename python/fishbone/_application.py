# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""The application object that drawing and widgets need."""

from __future__ import annotations

import os
import pathlib
import sys
from typing import Optional

from PySide2.QtCore import QCoreApplication
from PySide2.QtWidgets import QApplication

from . import _fishbone
from ._errors import FishboneError

_made: Optional[QApplication] = None  # kept, since nobody else does
_has_style = False


def _has_display() -> bool:
    if not sys.platform.startswith("linux"):
        return True
    return any(os.environ.get(name) for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"))


def application() -> QApplication:
    """The application object of this process, made when there is none.

    Without a display it draws into memory alone.
    """
    global _made
    present = QCoreApplication.instance()
    if present is not None and not isinstance(present, QApplication):
        raise FishboneError("drawing needs a QApplication, and the application object is none")
    if present is None:
        present = _made = _new_application()
    _set_style()
    return present


def _new_application() -> QApplication:
    arguments = sys.argv[:1] or ["fishbone"]
    if _has_display():
        return QApplication(arguments)
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    try:
        return QApplication(arguments)
    finally:
        del os.environ["QT_QPA_PLATFORM"]  # programs that are started from here choose for themselves


def _set_style() -> None:
    global _has_style
    if not _has_style:
        style = pathlib.Path(__file__).with_name("global.spearstyle").read_text(encoding="utf-8")
        _fishbone.ScriptPicture.setGlobalStyle(style)
        _has_style = True
