#!/usr/bin/env python3
"""gallery_test.py PROGRAMS: the gallery in a real window, used by mouse and keyboard: what it prints and what it shows."""
import pathlib
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Where things stand at scale 1: the list of pages is 210 wide with rows of 28, a page begins at (211, 89).
PAGES = ["docking", "overlap", "repaint", "input", "focus", "tooltip", "drag", "flashing", "painter", "parts", "native", "html"]
ORANGE, YELLOW, GREEN, PINK = (0xFF, 0xCC, 0x33), (0xFF, 0xFF, 0xCC), (0xA7, 0xF1, 0x92), (0xFA, 0xB8, 0xFC)


class Gallery:
    def __init__(self, display, program):
        self.display, self.program = display, program
        self.window = display.wait_for_window("vexel gallery")

    def lines(self):
        return self.program.output()

    def after(self, act, *parts):
        """Does it, and waits until these lines have come in this order, others between them or not. Returns all."""
        before = len(self.lines())
        act()

        def find():
            rest = iter(self.lines()[before:])
            return all(any(part in line for line in rest) for part in parts)

        try:
            eventually(find, str(parts))
        except AssertionError as error:
            raise AssertionError(f"{error}; got {self.lines()[before:]}") from None
        return self.lines()[before:]

    def pixel(self, x, y):
        return self.display.pixel(self.window, x, y)

    def wait_for_pixel(self, x, y, color):
        eventually(lambda: self.pixel(x, y) == color, f"the colour {color} at {x}, {y}, where {self.pixel(x, y)} is")

    def page(self, name):
        self.display.click(self.window, 100, 28 * PAGES.index(name) + 14)
        self.display.move(self.window, 600, 680)

    def move(self, x, y):
        self.display.move(self.window, x, y)

    def tool(self, *command):
        self.display.tool("xdotool", *command)


def check_input(g):
    """The inner box covers (211..668, 150..300), in the outer one that begins at y = 89."""
    g.wait_for_pixel(300, 180, YELLOW)
    g.after(lambda: g.move(400, 250), "signal inner.hover()", "signal inner.move(189, 100, 0, 0)", "signal outer.move(",
            "native move 400 250 keys=0 button=0")
    g.after(lambda: g.tool("click", "1"), "signal inner.down(189, 100, 1, 1)", "signal outer.down(", "native down 400 250 keys=1 button=1",
            "signal inner.click(189, 100, 0, 1)", "signal inner.up(189, 100, 0, 1)", "signal outer.click(", "signal outer.up(",
            "native up 400 250 keys=0 button=1")
    # The press has given the inner box the focus.
    g.after(lambda: g.display.key("a"), "signal inner.keydown(0, 65)", "signal outer.keydown(0, 65)", "native keydown 65 keys=0",
            "signal inner.char(97)", "native char 97", "signal inner.keyup(0, 65)")
    g.after(lambda: g.display.key("shift+b"), "signal inner.keydown(256, 66)", "signal inner.char(66)")
    # The wheel alone comes from the top down.
    g.after(lambda: g.tool("click", "4"), "signal outer.wheel(189, 161, 0, 0, 1)", "signal inner.wheel(189, 100, 0, 0, 1)", "native wheel 1")
    g.after(lambda: g.tool("click", "5"), "native wheel -1")
    g.after(lambda: g.tool("click", "3"), "signal inner.down(189, 100, 2, 3)", "signal inner.menu(189, 100)", "native menu 400 250")
    g.after(lambda: g.tool("click", "--repeat", "2", "--delay", "20", "1"), "signal inner.down(", "signal inner.double(189, 100, 1, 1)",
            "native double 400 250")
    # A press that leaves the box before its release is no click.
    g.tool("mousedown", "1")
    lines = g.after(lambda: (g.move(400, 120), g.tool("mouseup", "1")), "signal inner.leave()", "native up 400 120 keys=0 button=1")
    assert not any("inner.click" in line for line in lines), lines


def check_repaint(g):
    """Cells of 44 x 28 from (215, 93), 4 apart. Pointing at one repaints it alone: the first is at its first paint still."""
    g.page("repaint")
    white = eventually(lambda: g.pixel(218, 96) == (255, 255, 255) and g.pixel(218, 96), "the first cell")
    g.move(215 + 48 + 20, 93 + 14)
    g.wait_for_pixel(215 + 48 + 3, 96, ORANGE)
    assert g.pixel(218, 96) == white
    g.move(600, 600)
    g.wait_for_pixel(215 + 48 + 3, 96, white)


def check_focus(g):
    g.page("focus")
    g.tool("mousemove", "--window", g.window, "270", "150")
    g.after(lambda: g.tool("click", "1"), "signal one.focus()")
    g.after(lambda: g.display.key("Tab"), "signal one.unfocus()", "signal two.focus()")
    g.after(lambda: g.display.key("Tab"), "signal two.unfocus()", "signal three.focus()")
    g.after(lambda: g.display.key("Tab"), "signal three.unfocus()", "signal lower.focus()")
    g.after(lambda: g.display.key("Down"), "signal delegate.keydown(0, 40)", "signal lower.keydown(0, 40)")
    g.after(lambda: g.display.key("Tab"), "signal lower.unfocus()", "signal four.focus()")
    # Backward a container comes after its inner elements, so from its first one the walk leaves it.
    g.after(lambda: g.display.key("shift+Tab"), "signal four.unfocus()", ".focus()")


def check_tooltip(g):
    g.page("tooltip")
    g.move(500, 110)
    g.after(lambda: g.move(502, 112), "signal plain.tooltip(...)", 'native tooltip "This is the tip"')
    g.after(lambda: g.tool("click", "3"), "signal plain.menu(291, 23)", "native menu 502 112")


def check_drag(g):
    """Tiles of 130 from x = 211; the bins below are 220 wide, at the left and right."""
    g.page("drag")
    g.wait_for_pixel(216, 95, ORANGE)
    g.move(270, 120)
    g.tool("mousedown", "1")
    g.after(lambda: g.move(274, 150), "signal one.start(")
    g.move(300, 300)
    # Over the bin that takes it the item is green; it was gripped at (59, 31) of the tile.
    g.after(lambda: g.move(300, 400), "signal left.over(")
    g.wait_for_pixel(260, 395, (0, 255, 0))
    g.after(lambda: g.tool("mouseup", "1"), "signal left.drop(", "signal one.finished(#11")
    g.wait_for_pixel(250, 600, ORANGE)
    # Nothing of the item stays, neither on its way nor where it was dropped.
    g.wait_for_pixel(260, 395, ORANGE)
    assert g.pixel(216, 95) == ORANGE
    # The right bin refuses.
    g.move(270, 120)
    g.tool("mousedown", "1")
    g.after(lambda: (g.move(275, 150), g.move(900, 400)), "signal one.start(")
    g.after(lambda: g.tool("mouseup", "1"), "signal one.finished(none")


def check_docking(g):
    """A click docks the left panel to the next edge; the window follows a resize."""
    g.page("docking")
    g.wait_for_pixel(230, 300, GREEN)
    g.move(250, 300)
    g.after(lambda: g.tool("click", "1"), "signal left.click(", "signal left.size()")
    g.wait_for_pixel(950, 300, GREEN)
    g.after(lambda: g.tool("windowsize", "--sync", g.window, "1100", "750"), "native resize 1100 750")
    g.wait_for_pixel(1050, 300, GREEN)
    g.wait_for_pixel(950, 300, PINK)


with Display() as display, Program(display, [programs / "vexel-gallery", "--log", "--page", "input"]) as program:
    gallery = Gallery(display, program)
    for check in (check_input, check_repaint, check_focus, check_tooltip, check_drag, check_docking):
        check(gallery)
        print(f"{check.__name__} passed")
