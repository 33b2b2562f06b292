# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""The examples run and do what they say."""

import importlib.util
import pathlib
import subprocess
import sys

import pytest

import fishbone
from conftest import outline

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent / "examples"


def run(name, *arguments):
    return subprocess.run([sys.executable, EXAMPLES / name, *arguments], capture_output=True, text=True)


def test_every_example_has_a_test():
    text = pathlib.Path(__file__).read_text()
    for example in EXAMPLES.glob("*.py"):
        assert f'"{example.name}"' in text


def test_incidents_become_a_report(tmp_path):
    done = run("incidents.py", EXAMPLES / "incidents.csv", tmp_path / "out")
    assert done.returncode == 0, done.stderr
    head = fishbone.open(tmp_path / "out" / "causes.fishbone.json").head
    assert outline(head) == (
        "250 minutes lost[Machine[Pump worn: 135 min,Belt slips: 15 min],"
        "People[No handover: 50 min,New shift: 30 min],Material[Wet boards: 20 min]]"
    )
    assert (head[0][0].votes, head[0][0].manager, head[0][0].verdict) == (2, "Ann", "suspected")
    report = (tmp_path / "out" / "report.html").read_text()
    assert report.count("<li>") == 3 and "<li>Pump worn: 135 min (Ann)</li>" in report
    assert (tmp_path / "out" / "causes.png").read_bytes().startswith(b"\x89PNG")


def test_incidents_need_their_arguments():
    assert run("incidents.py").returncode == 2


def test_the_notebook_runs(tmp_path):
    done = run("notebook.py", tmp_path)
    assert done.returncode == 0, done.stderr
    assert done.stdout == "Warehouse: 2\nCarrier: 1\nOrders: 0\nlikeliest: Labels fade (3)\n"
    assert "Labels fade" in (tmp_path / "deliveries.svg").read_text()
    kept = fishbone.open(tmp_path / "deliveries.md").head
    assert outline(kept) == (
        "Late deliveries[Warehouse[Labels fade,Two scanners for six people],Carrier[No cars on Fridays],Orders[To be asked]]"
    )


@pytest.fixture
def window(notes):
    spec = importlib.util.spec_from_file_location("example_editor", EXAMPLES / "editor.py")
    example = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(example)
    return example.Window(fishbone.open(notes))


def test_the_small_editor_edits_and_undoes(window, tmp_path):
    window.show()
    window.cause.trigger()
    assert [subject.title for subject in window.editor.selection] == ["New cause"]
    assert window.undo.isEnabled() and not window.redo.isEnabled()
    window.cause.trigger()
    assert outline(window.document.head).endswith("New cause[New cause]]")
    window.undo.trigger()
    window.undo.trigger()
    assert not window.undo.isEnabled() and window.redo.isEnabled()
    window.document.save(tmp_path / "kept.fishbone.json")
    window.redo.trigger()
    window.save.trigger()
    assert len(fishbone.open(tmp_path / "kept.fishbone.json").head) == 3
    window.close()


def test_the_small_editor_starts(tmp_path):
    program = (
        "import runpy, sys; from PySide2.QtCore import QTimer; from PySide2.QtWidgets import QApplication;"
        "application = QApplication([]); QTimer.singleShot(0, application.quit); sys.argv = ['editor.py'];"
        f"runpy.run_path({str(EXAMPLES / 'editor.py')!r}, run_name='__main__')"
    )
    done = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True)
    assert done.returncode == 0, done.stderr
