#!/usr/bin/env python3
"""composites_test.py PROGRAMS: slanted tabs, sliders, check stages, the event log, the configuration viewer and the notebook
in real windows, by mouse and keys; what the gallery prints of it."""
import pathlib
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

NOTCH = 42  # pixels that the configuration page scrolls by


class Page:
    """A page of the gallery in a window of its own."""

    def __init__(self, display, name):
        self.display, self.name = display, name

    def __enter__(self):
        self.program = Program(self.display, [programs / "vexel-gallery", "--log", "--page", self.name]).__enter__()
        self.window = self.display.wait_for_window("vexel gallery")
        self.program.wait_for_line("native focus")
        eventually(lambda: self.pixel(900, 20) != self.pixel(700, 690), "the window to be painted")
        return self

    def __exit__(self, *failure):
        self.program.__exit__(*failure)

    def pixel(self, x, y):
        return self.display.pixel(self.window, x, y)

    def click(self, x, y, part):
        return self.program.expect(lambda: self.display.click(self.window, x, y), part)

    def key(self, name, part):
        return self.program.expect(lambda: self.display.key(name), part)

    def scroll(self, x, y, button, notches):
        self.display.move(self.window, x, y)
        for _ in range(notches):
            self.display.tool("xdotool", "click", button)


def check_tabs(display):
    with Page(display, "slanted_tabs") as page:
        green = page.pixel(600, 140)
        page.click(307, 223, "signal seasons.changed(1)")
        eventually(lambda: page.pixel(600, 140) != green, "the other page")
        page.click(213, 277, "signal months.changed(3)")  # the sliver of the tab before
        page.click(500, 500, "native up")
        fired = page.click(441, 397, "signal vetoed.changing(0, 3")
        assert not any("vetoed.changed" in line for line in fired), fired


def check_sliders(display):
    with Page(display, "sliders") as page:
        before = len(page.program.output())
        display.drag(page.window, (348, 122), (540, 122))
        page.program.wait_for_line("signal points.changed(4.000000)", before)
        fired = page.program.signals(before)
        assert "signal points.tracking(4.000000)" in fired, fired
        page.key("Left", "signal points.changed(3.000000)")
        page.click(450, 196, "signal pixels.changed(")  # beside the pointer
        page.click(592, 327, "signal down.changed(2.000000)")


def check_stages(display):
    with Page(display, "stages") as page:
        fired = page.key("space", "signal starting(1)")  # the first button goes on
        assert fired[0].startswith("signal disk.result(") and fired[0].endswith(", 4)"), fired
        page.click(550, 102, "signal finished()")  # the network is back, and the next poll sees it


def check_log(display):
    with Page(display, "eventlog") as page:
        page.scroll(600, 500, 5, 60)  # to the end, which is followed from then on
        page.click(300, 640, "signal line.clicked(")
        page.click(386, 102, "native up")
        page.click(300, 640, "signal line.clicked(1000")
        page.scroll(600, 500, 4, 3)
        fired = page.click(300, 640, "signal line.clicked(1000")
        page.click(386, 102, "native up")
        assert page.click(300, 640, fired[-1]) == fired  # nobody pulled the view away


def check_configuration(display):
    with Page(display, "configuration") as page:
        page.click(300, 252, "signal category(0, 2)")
        mark = (400, 226)  # of the check box in the open category
        eventually(lambda: page.pixel(*mark) == (0, 0, 0), "the check mark")
        display.click(page.window, *mark)
        eventually(lambda: page.pixel(*mark) != (0, 0, 0), "the mark to go")
        display.click(page.window, *mark)
        eventually(lambda: page.pixel(*mark) == (0, 0, 0), "the mark to come back")
        page.scroll(800, 400, 5, 1)
        eventually(lambda: page.pixel(mark[0], mark[1] - NOTCH) == (0, 0, 0), "the editor to move with its label")
        page.click(300, 600, "signal category(2, ")
        eventually(lambda: page.pixel(mark[0], mark[1] - NOTCH) != (0, 0, 0), "the editors of the closed category to go")


def check_notebook(display):
    with Page(display, "notebook") as page:
        page.click(360, 105, "page 1 of 3")
        page.click(460, 105, "page 1 of 4")
        page.click(560, 105, "page 1 of 3")
        page.click(660, 105, "page 1 of 3")
        page.click(260, 105, "page 0 of 3")


with Display() as display:
    check_tabs(display)
    check_sliders(display)
    check_stages(display)
    check_log(display)
    check_configuration(display)
    check_notebook(display)
print("ok")
