# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""What goes wrong, as exceptions with reasons."""


class FishboneError(Exception):
    """Something that was asked of fishbone failed; the text says why."""


class ReadError(FishboneError):
    """A diagram could not be read."""


class WriteError(FishboneError):
    """A diagram or a picture could not be written; what the file held before is still there."""


class EditError(FishboneError):
    """A change that cannot be made, such as a subject moved below itself."""


class GoneError(FishboneError, ReferenceError):
    """The subject, document, model or editor is no longer there."""
