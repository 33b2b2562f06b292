# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""What help() says: every public name has a text of its own."""

import inspect

import fishbone
import pytest


def public_names():
    """Each name that the module offers, with the members that its classes define for users."""
    for name in fishbone.__all__:
        offered = getattr(fishbone, name)
        yield name, offered
        if inspect.isclass(offered):
            for member, value in vars(offered).items():
                if not member.startswith("_") and (callable(value) or isinstance(value, (property, classmethod))):
                    yield f"{name}.{member}", value


NAMES = dict(public_names())


def test_there_is_something_to_look_up():
    assert {"Document.save", "Subject.add", "draw", "Editor"} <= NAMES.keys()


@pytest.mark.parametrize("name", NAMES)
def test_every_public_name_says_what_it_is(name):
    text = inspect.getdoc(NAMES[name]) or ""
    assert len(text.split()) >= 3
    if inspect.isclass(NAMES[name]):
        assert text != inspect.getdoc(NAMES[name].__mro__[1]), "that is the text of its base"
