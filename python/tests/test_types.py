# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""The stub and the generated module say the same.

Compared here: to the program that mypy has for it, the classes of Shiboken differ from those of any stub by what makes
them.
"""

import ast
import inspect
import pathlib
import re

import pytest
from fishbone import _fishbone
from PySide2.QtCore import QObject, Signal

STUB = ast.parse(pathlib.Path(_fishbone.__file__).with_name("_fishbone.pyi").read_text())
CLASSES = {node.name: node for node in STUB.body if isinstance(node, ast.ClassDef)}
NO_NAME = {"del"}  # a keyword of the language, which no stub can say
INDEXES = {"searchModelIndexes", "indexList"}  # the generator takes the list for one of numbers


def said_by_stub(name):
    """What the stub says of a class: its members, functions as the text of their heads."""
    members = {}
    for node in CLASSES[name].body:
        if isinstance(node, ast.FunctionDef):
            members[node.name] = f"{ast.unparse(node.args)} -> {ast.unparse(node.returns)}"
        elif isinstance(node, ast.AnnAssign):
            members[node.target.id] = ast.unparse(node.annotation)
    return members


def head_of(signature):
    """A signature as the stub writes it."""
    text = re.sub(r"\b(typing|PySide2\.Qt\w+|fishbone\._fishbone)\.", "", str(signature))
    node = ast.parse(f"def f{text}: ...").body[0]
    return f"{ast.unparse(node.args)} -> {ast.unparse(node.returns)}"


def said_by_module(name):
    """What the module has in a class, and none of the classes below it: what it overrides is known from there."""
    found = getattr(_fishbone, name)
    inherited = set().union(*(vars(base) for base in found.__mro__[1:]))
    members = {}
    for member, value in vars(found).items():
        if member in inherited or member in NO_NAME or member in ("values", "__copy__"):
            continue
        if isinstance(value, Signal):
            members[member] = "Signal"
        elif callable(getattr(found, member)):
            members[member] = head_of(inspect.signature(getattr(found, member)))
            if member in INDEXES:
                members[member] = members[member].replace("List[int]", "List[QModelIndex]")
        else:
            members[member] = type(value).__name__
    if hasattr(found, "__signature__") and issubclass(found, QObject) and name != "DragDropModel":  # which is abstract
        members["__init__"] = head_of(found.__signature__)
    return members


def test_both_have_the_same_classes_and_values():
    has = {name for name in vars(_fishbone) if not name.startswith("__")}
    says = set(CLASSES) | {node.target.id for node in STUB.body if isinstance(node, ast.AnnAssign)}
    assert has == says


@pytest.mark.parametrize("name", CLASSES)
def test_both_say_the_same_of_a_class(name):
    assert said_by_module(name) == said_by_stub(name)


def test_what_is_compared_is_there():
    assert head_of(inspect.signature(_fishbone.FishEditor.zoomIn)) == "self, level: int -> None"
    assert len(said_by_module("FishEditor")) > 80 and len(said_by_module("ScriptSubject")) > 10
