#!/usr/bin/env python3
"""form_test.py PROGRAMS: the form on a real window: typing into the native edit, walking with Tab across native controls
and buttons in both directions, choosing in the combo box, and pressing a button by keyboard and by mouse."""
import pathlib
import sys
import tempfile
import time

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])
WIDTH, HEIGHT = 420, 200
MESSAGE = (0, 125, WIDTH, HEIGHT)  # left, top, right, bottom of the line that tells what is missing
EDIT = (112, 17, 398, 36)
COMBO = (112, 55, 380, 74)


def pixels(display, window, area):
    """The pixels of an area of the window, row by row."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "window.ppm"
        display.picture(window, path)
        fields = path.read_bytes().split(b"\n", 3)
    assert fields[0] == b"P6" and fields[1] == f"{WIDTH} {HEIGHT}".encode() and fields[2] == b"255", fields[:3]
    left, top, right, bottom = area
    return [fields[3][(y * WIDTH + x) * 3:(y * WIDTH + x) * 3 + 3] for y in range(top, bottom) for x in range(left, right)]


def colors(display, window, area):
    return set(pixels(display, window, area))


def is_red(color):
    return color[0] > 150 and color[1] < 60 and color[2] < 60


def says_what_is_missing(display, window):
    return any(is_red(color) for color in colors(display, window, MESSAGE))


def is_quiet(display, window):
    return len(colors(display, window, MESSAGE)) == 1


def thanks(display, window):
    return not is_quiet(display, window) and not says_what_is_missing(display, window)


def settled(display, window, area, before):
    """What the area shows, when that is not what it showed before and does not change any more; the caret may blink."""
    first = pixels(display, window, area)
    time.sleep(0.1)
    return first if first != before and first == pixels(display, window, area) else None


with Display() as display, Program(display, [programs / "example_form"]) as program:
    window = display.wait_for_window("Form")
    eventually(lambda: len(colors(display, window, (0, 0, WIDTH, HEIGHT))) > 5, "the form to be painted")
    assert is_quiet(display, window)

    display.click(window, 346, 103)  # Send
    eventually(lambda: says_what_is_missing(display, window), "the missing name to be told")

    empty = pixels(display, window, EDIT)
    display.click(window, 200, 25)
    display.tool("xdotool", "type", "--delay", "20", "Ada")
    typed = eventually(lambda: settled(display, window, EDIT, empty), "the typed text to be seen")
    # A dead key and a letter make one character, which one press takes back.
    display.tool("xdotool", "key", "dead_acute", "e")
    eventually(lambda: settled(display, window, EDIT, typed), "the composed character to be seen")
    display.key("BackSpace")
    eventually(lambda: pixels(display, window, EDIT) == typed, "the composed character to be gone")

    nothing = pixels(display, window, COMBO)
    display.key("Tab")
    display.key("Down")
    display.key("Down")
    eventually(lambda: pixels(display, window, COMBO) != nothing, "the chosen topic to be seen")
    display.key("Tab")
    display.key("space")  # Send
    eventually(lambda: thanks(display, window), "the form to be accepted")

    # Back over the combo box to the edit, whose whole text is replaced.
    display.key("shift+Tab")
    display.key("shift+Tab")
    display.key("ctrl+a")
    display.key("BackSpace")
    display.key("Tab")
    display.key("Tab")
    display.key("Return")  # Send
    eventually(lambda: says_what_is_missing(display, window), "the name to be missing again")

    display.key("Tab")
    display.key("space")  # Clear
    eventually(lambda: is_quiet(display, window) and pixels(display, window, COMBO) == nothing, "the form to be empty")
    print("The form was filled in, sent and cleared.")
