# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
"""Pictures are drawn by scripts, without a display."""

import json
import os
import struct
import subprocess
import sys
import zipfile

import pytest

import fishbone
from conftest import NOTES


def png_size(path):
    data = path.read_bytes()
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    return struct.unpack(">II", data[16:24])


def test_a_file_is_drawn_in_one_line_without_a_display(tmp_path):
    (tmp_path / "notes.md").write_text(NOTES)
    without = {name: value for name, value in os.environ.items()
               if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    program = (
        'import os, fishbone; fishbone.draw("notes.md", "out.png", look="clear", page="16:9"); '
        'assert "QT_QPA_PLATFORM" not in os.environ'
    )
    run = subprocess.run([sys.executable, "-c", program], cwd=tmp_path, env=without, capture_output=True, text=True)
    assert (run.returncode, run.stdout) == (0, ""), run.stderr
    assert png_size(tmp_path / "out.png") == (1920, 1080)


@pytest.mark.parametrize("look", ["clear", "classic"])
@pytest.mark.parametrize("ending, begin", [("png", b"\x89PNG"), ("svg", b"<?xml"), ("pdf", b"%PDF"), ("pptx", b"PK")])
def test_every_look_is_drawn_in_every_format(document, tmp_path, look, ending, begin):
    path = tmp_path / f"out.{ending}"
    document.draw(path, look=look)
    contents = path.read_bytes()
    assert contents.startswith(begin)
    if ending == "svg":
        assert b"Pump worn" in contents


def test_the_classic_look_has_the_style_of_the_program(document, tmp_path):
    document.head.add("A title of more than six letters")
    document.draw(tmp_path / "out.svg", look="classic")
    assert "A title of more than six letters" in (tmp_path / "out.svg").read_text()


def test_a_page_for_the_browser_is_drawn(document, tmp_path):
    document.draw(tmp_path / "out.html")
    assert "Pump worn" in (tmp_path / "out.html").read_text()


def test_a_subject_is_drawn_with_what_is_below(document, tmp_path):
    fishbone.draw(document.head[0], tmp_path / "out.svg")
    picture = (tmp_path / "out.svg").read_text()
    assert "Belt slips" in picture and "New shift" not in picture


@pytest.mark.parametrize("look", ["clear", "classic"])
@pytest.mark.parametrize("page, width", [(None, 12192000), ("A4", 9144000)])
def test_a_slide_has_the_texts_of_the_diagram(document, tmp_path, look, page, width):
    document.draw(tmp_path / "out.pptx", look=look, page=page)
    with zipfile.ZipFile(tmp_path / "out.pptx") as slides:
        assert "Pump worn" in slides.read("ppt/slides/slide1.xml").decode()
        assert f'cx="{width}"' in slides.read("ppt/presentation.xml").decode()


@pytest.mark.parametrize("look", ["clear", "classic"])
def test_levels_that_are_left_out_are_not_drawn(document, tmp_path, look):
    document.head[0][0].add("Seal leaks")
    for ending in ("svg", "pptx"):
        texts = []
        for levels in (1, 2):
            path = tmp_path / f"{levels}.{ending}"
            document.draw(path, look=look, levels=levels)
            texts.append(zipfile.ZipFile(path).read("ppt/slides/slide1.xml").decode() if ending == "pptx" else path.read_text())
        assert "Pump worn" in texts[0] and "Seal leaks" not in texts[0]
        assert "Seal leaks" in texts[1]


VIEW = {"look": "clear", "palette": "dark", "head": "left", "page": "A4", "legend": False}


@pytest.fixture
def viewed(document):
    """The document as it is saved when somebody has chosen how it is shown."""
    return fishbone.loads(json.dumps({**json.loads(document.dumps()), "view": VIEW}))


def drawn(source, tmp_path, **options):
    path = tmp_path / "out.png"
    fishbone.draw(source, path, **options)
    return path.read_bytes()


def test_a_picture_is_as_the_document_is_shown(viewed, document, tmp_path):
    assert viewed.view == VIEW and document.view == {}
    picture = drawn(viewed, tmp_path)
    assert picture == drawn(document, tmp_path, palette="dark", head="left", page="A4", legend=False)
    assert picture == drawn(viewed.head, tmp_path)
    viewed.save(tmp_path / "viewed.json")
    assert picture == drawn(tmp_path / "viewed.json", tmp_path)
    assert png_size(tmp_path / "out.png") == (2245, 1587)  # 297 by 210 mm at 192 dots an inch


@pytest.mark.parametrize("name, value", [("palette", "warm"), ("head", "right"), ("page", "800x600"), ("look", "classic")])
def test_what_a_script_asks_for_comes_before_the_view_of_the_document(viewed, document, tmp_path, name, value):
    other = {"palette": "dark", "head": "left", "page": "A4", "legend": False, name: value}
    picture = drawn(viewed, tmp_path, **{name: value})
    assert picture == drawn(document, tmp_path, **other) != drawn(viewed, tmp_path)


def test_a_picture_is_that_of_the_program_unless_something_else_is_asked_for(document, tmp_path):
    document.head[0][0].verdict = "confirmed"
    assert drawn(document, tmp_path) == drawn(document, tmp_path, look="clear", legend=True, palette="colour")
    assert drawn(document, tmp_path) != drawn(document, tmp_path, legend=False)


def test_sides_that_are_chosen_are_kept_on_a_page(document, tmp_path):
    for number in range(6):
        document.head[0].add(f"Cause {number}")
    one, both = (drawn(document, tmp_path, page="A4", sides=sides) for sides in ("one", "both"))
    assert one != both


@pytest.mark.parametrize("view", [[], "clear", {"look": ["clear"]}, {"look": "none", "palette": "dark"}, {"look": 5, "page": {}}])
def test_a_view_that_makes_no_sense_is_none(document, tmp_path, view):
    odd = fishbone.loads(json.dumps({**json.loads(document.dumps()), "view": view}))
    assert drawn(odd, tmp_path) == drawn(document, tmp_path)


def test_options_show_in_the_picture(document, tmp_path):
    pictures = set()
    for number, options in enumerate(
        [{}, {"palette": "gray"}, {"head": "left"}, {"levels": 0}, {"scale": 2}, {"margin": 90}, {"background": "#ff0000"}]
    ):
        path = tmp_path / f"{number}.png"
        document.draw(path, **options)
        pictures.add(path.read_bytes())
    assert len(pictures) == 7


@pytest.mark.parametrize("page, size", [("1920x1080", (1920, 1080)), ((800, 600), (800, 600)), ("25.4x12.7mm", (192, 96)),
                                        ("a4", (2245, 1587)), ("16:9", (1920, 1080))])
def test_a_picture_is_as_large_as_its_page(document, tmp_path, page, size):
    document.draw(tmp_path / "out.png", page=page)
    assert png_size(tmp_path / "out.png") == size


@pytest.mark.parametrize(
    "options", [{"look": "modern"}, {"page": "16/9"}, {"page": (0, 5)}, {"page": (-1, 5)},
                {"page": ""}, {"palette": "pink"}, {"sides": ""}, {"head": "up"}]
)
def test_options_that_make_no_sense_are_value_errors(document, tmp_path, options):
    with pytest.raises(ValueError):
        document.draw(tmp_path / "out.png", **options)
    assert not (tmp_path / "out.png").exists()


@pytest.mark.parametrize("name, options", [("out.bmp", {}), ("missing/out.png", {}), ("out.png", {"scale": -1}),
                                           ("out.html", {"look": "classic"})])
def test_what_cannot_be_drawn_is_an_error_with_a_reason(document, tmp_path, name, options):
    with pytest.raises(fishbone.WriteError, match=r".+: .+"):
        document.draw(tmp_path / name, **options)
    assert not (tmp_path / name).exists()


def test_drawing_leaves_an_editor_its_diagram(document, tmp_path):
    editor = fishbone.Editor(document)
    for look in ("classic", "clear"):
        document.draw(tmp_path / "out.png", look=look)
    editor.selectAll()
    assert len(editor.selection) == 6
