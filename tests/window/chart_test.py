#!/usr/bin/env python3
"""chart_test.py PROGRAMS: the chart example in a real window: a step in its curve is found, dragged, zoomed and brought
back, and the picture is saved; and without a display, by its command line."""
import os
import pathlib
import struct
import subprocess
import sys
import tempfile

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])
WIDTH, HEIGHT = 900, 560
LEFT, TOP, RIGHT, BOTTOM = 36, 36, 878, 500  # within the plot


def write_step(path):
    """0 up to 499, and 100 from 500 on, at 0.0 to 99.9."""
    path.write_text("time,value\n" + "".join(f"{n / 10},{0 if n < 500 else 100}\n" for n in range(1000)))


def read_columns(path):
    """How many pixels of the curve's red stand in each column of the plot."""
    fields = path.read_bytes().split(b"\n", 3)
    assert fields[0] == b"P6" and fields[1] == f"{WIDTH} {HEIGHT}".encode(), fields[:3]
    pixels = fields[3]
    return [sum(pixels[i] > 150 and pixels[i + 1] < 150 and pixels[i + 2] < 150
                for i in range((TOP * WIDTH + x) * 3, (BOTTOM * WIDTH + x) * 3, WIDTH * 3)) for x in range(LEFT, RIGHT)]


def find_step(display, window, folder):
    """Where the curve goes straight up; None if it doesn't."""
    path = folder / "window.ppm"
    display.picture(window, path)
    columns = read_columns(path)
    highest = max(columns)
    return LEFT + columns.index(highest) if highest > 200 else None


def is_near(found, wanted):
    return found is not None and abs(found - wanted) <= 2


def size_of_png(path):
    head = path.read_bytes()[:24]
    assert head[:8] == b"\x89PNG\r\n\x1a\n", head
    return struct.unpack(">II", head[16:24])


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    table = folder / "step.csv"
    write_step(table)

    with Display() as display, Program(display, [programs / "example_chart", table]) as program:
        window = display.wait_for_window("step.csv - Chart")
        start = eventually(lambda: find_step(display, window, folder), "a step in the curve")
        assert 440 < start < 470, start

        display.move(window, 600, 300)
        display.tool("xdotool", "mousedown", "1")
        for x in range(600, 499, -20):
            display.move(window, x, 300)
        display.tool("xdotool", "mouseup", "1")
        eventually(lambda: is_near(find_step(display, window, folder), start - 100), "the dragged step")

        # Sideways only, twice away from a pointer that stands 200 pixels to its left.
        display.move(window, start - 300, 300)
        display.tool("xdotool", "keydown", "shift")
        display.tool("xdotool", "click", "4")
        display.tool("xdotool", "keyup", "shift")
        eventually(lambda: is_near(find_step(display, window, folder), start - 300 + 200 / 0.8), "the zoomed step")

        display.tool("xdotool", "click", "--repeat", "2", "--delay", "50", "1")
        eventually(lambda: is_near(find_step(display, window, folder), start), "all of the curve")

        picture = folder / "step.csv.png"
        display.click(window, WIDTH - 60, 17)
        eventually(picture.exists, "the saved picture")
        eventually(lambda: picture.stat().st_size > 1000, "all of it")
        assert size_of_png(picture) == (WIDTH, HEIGHT), size_of_png(picture)

    def run(*arguments):
        environment = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "QT_QPA_PLATFORM")}
        return subprocess.run([programs / "example_chart", *arguments], capture_output=True, text=True, env=environment)

    saved = folder / "saved.png"
    assert run("--save", saved, table, "value").returncode == 0
    assert size_of_png(saved) == (WIDTH, HEIGHT)
    for arguments, problem in ((("--save", saved, table, "speed"), "there is no column speed"),
                               (("--save", saved, folder / "none.csv"), "can't read"),
                               (("--save", folder / "no" / "folder.png", table), "can't write"), (("--save", saved), "usage: chart")):
        ended = run(*arguments)
        assert ended.returncode == 1 and problem in ended.stderr, (arguments, ended)
