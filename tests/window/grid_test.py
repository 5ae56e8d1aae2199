#!/usr/bin/env python3
"""grid_test.py PROGRAMS: the grid of two billion rows in a real window: scrolled by bar, wheel and keys, selected by mouse
and keyboard, its columns resized, dragged and sorted; what the gallery prints of it, and a few of its pixels."""
import pathlib
import re
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places on the page at scale 1: the grid begins at (211, 113), rows are 21 high, the first columns 90 and 110 wide.
COLUMN = 340
HIGHLIGHT, WINDOW, TINT = (48, 140, 198), (255, 255, 255), (242, 247, 251)
LAST = 2147483646


def row(number):
    return 113 + 21 * number + 10


class Page:
    def __init__(self, display, program, window):
        self.display, self.program, self.window = display, program, window

    def after(self, act, part):
        """What is printed once the action led to a line with that text; the numbers of that line."""
        before = len(self.program.output())
        act()
        line = self.program.wait_for_line("signal " + part, before)
        return [int(number) for number in re.findall(r"-?\d+", line.split("(", 1)[1])]

    def click(self, number, button=1, modifier=None):
        def act():
            if modifier:
                self.display.tool("xdotool", "keydown", modifier)
            self.display.click(self.window, COLUMN, row(number), button)
            if modifier:
                self.display.tool("xdotool", "keyup", modifier)
        return act

    def key(self, name):
        return lambda: self.display.key(name)

    def drag(self, start, end, release=True):
        def act():
            self.display.move(self.window, *start)
            self.display.tool("xdotool", "mousedown", "1")
            for step in range(1, 9):
                self.display.move(self.window, *(a + (b - a) * step // 8 for a, b in zip(start, end)))
            if release:
                self.display.tool("xdotool", "mouseup", "1")
        return act

    def see(self, number, color):
        eventually(lambda: self.display.pixel(self.window, 298, row(number) - 7) == color,
                   f"row {number} of the view to be {color}")


def check_keys(page):
    assert page.after(page.click(5), "current row") == [-1, 5]
    page.see(5, HIGHLIGHT)
    assert page.after(page.key("Down"), "current row") == [5, 6]
    page.see(6, HIGHLIGHT)
    page.see(5, TINT)
    first, last = page.after(page.key("Next"), "rows in view")
    assert (first, last) == (25, 49)
    assert page.after(page.key("End"), "current row")[1] == LAST
    assert page.after(page.key("Home"), "rows in view")[0] == 0


def check_selection(page):
    page.after(page.click(1), "current row")
    assert page.after(page.click(0), "selected rows") == [1]
    assert page.after(page.click(5, modifier="shift"), "selected rows") == [6]
    assert page.after(page.click(9, modifier="ctrl"), "selected rows") == [7]
    page.see(9, HIGHLIGHT)
    assert page.after(page.click(9, modifier="ctrl"), "selected rows") == [6]
    assert page.after(page.key("ctrl+a"), "selected rows") == [LAST + 1]
    page.see(20, HIGHLIGHT)


def check_wheel(page):
    page.after(page.key("End"), "rows in view")
    page.after(page.key("Home"), "rows in view")
    assert page.after(page.click(3, button=5), "rows in view")[0] == 1
    assert page.after(page.click(3, button=4), "rows in view")[0] == 0


def check_drag_past_the_edge(page):
    before = len(page.program.output())
    page.drag((COLUMN, row(20)), (COLUMN, 690), release=False)()
    # It goes on while the pointer rests there.
    first = page.after(lambda: None, "rows in view")[0]
    assert page.after(lambda: None, "rows in view")[0] > first
    page.display.tool("xdotool", "mouseup", "1")
    counts = [int(line.split("(")[1].rstrip(")")) for line in page.program.output()[before:]
              if line.startswith("signal selected rows")]
    assert counts[0] == 1 and counts[-1] >= 6, counts
    assert counts == sorted(counts), counts
    page.display.key("Home")


def check_bar(page):
    before = len(page.program.output())
    page.drag((992, 112), (992, 655))()
    eventually(lambda: any(line.startswith("signal rows in view") and line.endswith(f"{LAST})")
                           for line in page.program.output()[before:]), "the last row in view")
    page.after(page.drag((992, 640), (992, 90)), "rows in view")


def check_columns(page):
    # The divider behind the second column, which the pointer arms by coming over it.
    page.display.move(page.window, 410, 100)
    assert page.after(page.drag((410, 100), (450, 100)), "resized")[0] == 1
    widths = [int(line.rstrip(")").split(", ")[1]) for line in page.program.output() if line.startswith("signal resized(")]
    assert widths == sorted(widths) and widths[-1] in range(145, 152), widths
    assert page.after(lambda: page.display.click(page.window, 250, 100), "clicked") == [0]
    assert page.after(page.drag((350, 100), (600, 100)), "moved") == [1, 3]


with Display() as display, Program(display, [programs / "vexel-gallery", "--log", "--page", "grid"]) as program:
    window = display.wait_for_window("vexel gallery")
    eventually(lambda: display.pixel(window, 298, row(2) - 7) == WINDOW, "the grid to be painted")
    page = Page(display, program, window)
    for check in (check_keys, check_selection, check_wheel, check_drag_past_the_edge, check_bar, check_columns):
        check(page)
        print(f"{check.__name__} passed")
