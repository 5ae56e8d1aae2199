#!/usr/bin/env python3
"""dropdowns_test.py PROGRAMS: combo buttons, fields edited in place and combo boxes in a real window: opened, chosen from,
closed by every way, by mouse and keys; what the gallery prints and shows of it."""
import pathlib
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places on the page at scale 1.
DROP, SEASON, NUMBER, LINE = (460, 111), (485, 147), (485, 183), (520, 219)
BOX_ARROW, LINE_BOX_ARROW, FREE = (634, 255), (634, 291), (700, 600)
POPUP = (420, 178)  # on the popup of the first combo button, over the second one


def slow_click(display, window, place):
    """As a hand does it: Qt may lose a release that comes at once with the press that closed a popup."""
    display.tool("xdotool", "mousemove", "--window", window, *place, "mousedown", "1", "sleep", "0.1", "mouseup", "1")


def once(program, act, line):
    lines = program.expect(act, line)
    assert lines.count(line) == 1, lines


class Shown:
    """What is on the screen at a place, before something opens there."""

    def __init__(self, display, window, place):
        self.display, self.window, self.place = display, window, place
        self.idle = self.pixel()

    def pixel(self):
        # Of the screen: a popup is a window of its own.
        return self.display.pixel("root", *self.place)

    def wait_open(self):
        eventually(lambda: self.pixel() != self.idle, f"a popup over {self.place}")

    def wait_closed(self):
        eventually(lambda: self.pixel() == self.idle, f"nothing over {self.place}")


def check_combo_button(display, program, window):
    popup = Shown(display, window, POPUP)
    display.click(window, *SEASON)
    popup.wait_open()
    once(program, lambda: [display.key("Down"), display.key("Return")], "signal season(2)")
    popup.wait_closed()
    for close in (lambda: display.key("Escape"), lambda: slow_click(display, window, FREE)):
        before = len(program.output())
        display.click(window, *SEASON)
        popup.wait_open()
        close()
        popup.wait_closed()
        program.wait_for_line("native focus", before)  # the window has the keyboard again
        assert not program.signals(before), program.signals(before)
    # The button has the focus now: keys open it, and the pointer chooses.
    display.key("alt+Down")
    popup.wait_open()
    once(program, lambda: display.click(window, 440, 170), "signal season(0)")
    display.move(window, *FREE)  # or the button below would light up
    popup.wait_closed()


def check_line(display, program, window):
    finished = "signal line.finished(%s)"
    display.click(window, *LINE)
    once(program, lambda: [display.tool("xdotool", "type", "kept"), display.key("Return")], finished % "true")
    display.click(window, *LINE)
    once(program, lambda: [display.tool("xdotool", "type", "dropped"), display.key("Escape")], finished % "false")
    display.click(window, *LINE)
    display.tool("xdotool", "type", "left")
    once(program, lambda: display.click(window, *DROP), finished % "true")


def check_boxes(display, program, window):
    popup = Shown(display, window, (500, 290))
    display.click(window, *BOX_ARROW)
    popup.wait_open()
    display.key("Down")
    display.key("Return")
    popup.wait_closed()
    once(program, lambda: display.key("Return"), "signal box.finished(true)")
    popup = Shown(display, window, (600, 325))
    display.click(window, *LINE_BOX_ARROW)
    popup.wait_open()
    display.key("Escape")
    popup.wait_closed()
    once(program, lambda: [display.tool("xdotool", "type", "own"), display.key("Return")],
           "signal editable box.finished(true)")


with Display() as display, Program(display, [programs / "vexel-gallery", "--log", "--page", "dropdowns"]) as program:
    window = display.wait_for_window("vexel gallery")
    eventually(lambda: display.pixel(window, 100, 660) != display.pixel(window, 700, 660), "the window to be painted")
    for check in (check_combo_button, check_line, check_boxes):
        check(display, program, window)
        print(f"{check.__name__} passed")
