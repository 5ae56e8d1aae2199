#!/usr/bin/env python3
"""tabs_test.py PROGRAMS: panes of tabs in a real window: chosen, toggled, closed and scrolled by mouse and keys; what the
gallery prints of it."""
import pathlib
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places on the page at scale 1.
GENERAL, NETWORK, CLOSE, ITALIC, FORWARD, EMPTY = (254, 132), (490, 132), (426, 248), (290, 364), (978, 540), (900, 132)


def check_choice(display, program, window):
    program.expect(lambda: display.click(window, *GENERAL), "signal plain.currentTabChanged(0, 1, true)")
    program.expect(lambda: display.key("Right"), "signal plain.currentTabChanged(1, 0, true)")
    program.expect(lambda: display.key("Right"), "signal plain.currentTabChanged(2, 1, true)")
    # The next one is disabled, so the one behind it follows.
    program.expect(lambda: display.key("Right"), "signal plain.currentTabChanged(4, 2, true)")
    for place in (NETWORK, EMPTY):
        before = len(program.output())
        display.click(window, *place)
        program.wait_for_line("native up", before)
        assert not program.signals(before), program.signals(before)


def check_toggles(display, program, window):
    program.expect(lambda: display.click(window, *ITALIC), "signal toggles.currentTabChanged(1, 1, true)")
    program.expect(lambda: display.key("space"), "signal toggles.currentTabChanged(1, 1, false)")
    program.expect(lambda: display.key("Return"), "signal toggles.currentTabChanged(1, 1, true)")


def check_closing(display, program, window):
    display.move(window, CLOSE[0] - 30, CLOSE[1])
    display.move(window, *CLOSE)
    closed = program.expect(lambda: display.click(window, *CLOSE), "signal closing.closeClicked(1)")
    assert len(closed) == 1, closed


def check_scrolling(display, program, window):
    before = len(program.output())
    display.click(window, *FORWARD)
    program.wait_for_line("signal many.scrollStateChanged(true, true)", before)


with Display() as display:
    with Program(display, [programs / "vexel-gallery", "--log", "--page", "tabs"]) as program:
        window = display.wait_for_window("vexel gallery")
        eventually(lambda: display.pixel(window, 100, 660) != display.pixel(window, 700, 600), "the window to be painted")
        for check in (check_choice, check_toggles, check_closing, check_scrolling):
            check(display, program, window)
            print(f"{check.__name__} passed")
