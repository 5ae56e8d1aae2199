#!/usr/bin/env python3
"""native_controls_test.py PROGRAMS: the desktop's controls in the tree, used by mouse and keyboard in a real window."""
import pathlib
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# The page's rows at scale 1, each by a place in its control.
EDIT, TOGGLE, EDITABLE, BOX, BAR, POPUP = (450, 111), (450, 147), (450, 183), (450, 219), (500, 251), (450, 431)
EDITABLE_ARROW = (612, 183)


class Page:
    def __init__(self, display, program):
        self.display, self.program = display, program
        self.window = display.wait_for_window("vexel gallery")

    def after(self, act, *parts):
        """Does it, and waits until lines with these parts have come in this order. Returns all that came."""
        before = len(self.program.output())
        act()

        def find():
            rest = iter(self.program.output()[before:])
            return all(any(part in line for line in rest) for part in parts)

        try:
            eventually(find, str(parts))
        except AssertionError as error:
            raise AssertionError(f"{error}; got {self.program.output()[before:]}") from None
        return self.program.output()[before:]

    def click(self, place):
        self.display.click(self.window, *place)

    def key(self, *keys):
        self.display.tool("xdotool", "key", *keys)


def check_edit(p):
    """It is typed into, and tells."""
    p.click(EDIT)
    p.after(lambda: p.key("End"), "edit.keyDown(35)")
    p.after(lambda: p.key("x"), "edit.keyDown(88)", 'edit.changeText("A line of textx")')
    p.after(lambda: p.key("ctrl+z"), 'edit.changeText("A line of text")')
    p.after(lambda: p.key("Return"), "edit.keyDown(13)", "edit.returnPress")


def check_tab(p):
    """Tab goes through elements and native controls in the order of the tree, both ways, and comes round."""
    p.click(EDIT)
    p.after(lambda: p.key("Tab"), "edit.keyDown(9)", "native focus")  # to the element between
    p.key("Tab")
    p.after(lambda: p.key("Down"), "editableBox.keyDown(40)", 'editableBox.changeText("Autumn")')
    p.key("Tab")
    p.after(lambda: p.key("Up"), "box.keyDown(38)", 'box.changeText("Spring")')
    p.key("shift+Tab")
    p.after(lambda: p.key("Up"), "editableBox.keyDown(38)", 'editableBox.changeText("Summer")')
    p.after(lambda: p.key("shift+Tab"), "editableBox.keyDown(9)", "native focus")
    p.key("shift+Tab")
    p.after(lambda: p.key("Home"), "edit.keyDown(36)")


def check_boxes(p):
    """Their lists open by the mouse and are chosen from with keys."""
    p.click(EDITABLE_ARROW)
    p.key("Down")
    p.after(lambda: p.key("Return"), 'editableBox.changeText("Autumn")')
    p.click(BOX)
    p.key("End")
    p.after(lambda: p.key("Return"), 'box.changeText("Winter")')


def check_bar(p):
    """A page by the track, lines by the wheel."""
    p.after(lambda: p.click(BAR), "horizontalBar.scroll(100, 3)")
    p.after(lambda: p.display.tool("xdotool", "click", "5"), "horizontalBar.scroll(130, 2)")


def check_popup(p):
    """A press inside, one beside it and escape close it; the press beside it is the window's too."""
    below = (450, 470)
    p.after(lambda: p.click(POPUP), "popup.open")
    p.after(lambda: p.click(below), "popup.close(1)")
    p.after(lambda: p.click(POPUP), "popup.open")
    p.after(lambda: p.click((800, 600)), "native down 800 600")
    p.after(lambda: p.click(POPUP), "popup.open")
    p.key("Escape")
    p.click(EDIT)
    p.after(lambda: p.key("End"), "edit.keyDown(35)")


with Display() as display, Program(display, [programs / "vexel-gallery", "--page", "native", "--log"]) as program:
    page = Page(display, program)
    for check in (check_edit, check_tab, check_boxes, check_bar, check_popup):
        check(page)
        print(f"{check.__name__} passed")
