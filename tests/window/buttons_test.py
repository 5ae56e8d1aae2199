#!/usr/bin/env python3
"""buttons_test.py PROGRAMS: buttons and captions in a real window: pressed by mouse, space and return, held, and their
links clicked; what the gallery prints of it."""
import pathlib
import sys
import time

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places on the pages at scale 1.
NATIVE, HOLD, BUTTON_LINK, CAPTION_LINK, CAPTION_TEXT = (292, 113), (603, 196), (793, 196), (524, 315), (300, 315)


def check_press(display, program, window):
    click = program.expect(lambda: display.click(window, *NATIVE), "signal Native.clicked()")
    assert click.count("signal Native.clicked()") == 1, click
    for key in ("space", "Return"):
        before = len(program.output())
        program.expect(lambda: display.key(key), "signal Native.clicked()")
        time.sleep(0.3)  # for a second click, which there must not be
        assert program.signals(before).count("signal Native.clicked()") == 1, program.signals(before)
    # A press that leaves the button before its release is no click.
    before = len(program.output())
    display.move(window, *NATIVE)
    display.tool("xdotool", "mousedown", "1")
    display.move(window, 600, 500)
    display.tool("xdotool", "mouseup", "1")
    program.wait_for_line("native up", before)
    assert "signal Native.clicked()" not in program.signals(before), program.signals(before)


def check_hold(display, program, window):
    before = len(program.output())
    display.move(window, *HOLD)
    display.tool("xdotool", "mousedown", "1")
    eventually(lambda: program.signals(before).count("signal repeating.clicked()") >= 4, "four clicks of the held button")
    display.tool("xdotool", "mouseup", "1")
    program.wait_for_line("native up", before)
    after = len(program.output())
    time.sleep(0.8)  # for clicks of a button that was let go, which there must not be
    late = [line for line in program.signals(after) if "repeating.clicked" in line]
    assert len(late) <= 1, late  # the release itself is one more


def check_links(display, program, window):
    program.expect(lambda: display.click(window, *BUTTON_LINK), 'signal link("there"')


def check_caption(display, program, window):
    program.expect(lambda: display.click(window, *CAPTION_LINK), 'signal link("first"')
    before = len(program.output())
    display.click(window, *CAPTION_TEXT)
    program.wait_for_line("native up", before)
    assert not any(line.startswith("signal link(") for line in program.signals(before)), program.signals(before)


with Display() as display:
    for page, checks in (("buttons", (check_press, check_hold, check_links)), ("captions", (check_caption,))):
        with Program(display, [programs / "vexel-gallery", "--log", "--page", page]) as program:
            window = display.wait_for_window("vexel gallery")
            eventually(lambda: display.pixel(window, 100, 660) != display.pixel(window, 700, 660), "the window to be painted")
            for check in checks:
                check(display, program, window)
                print(f"{check.__name__} passed")
