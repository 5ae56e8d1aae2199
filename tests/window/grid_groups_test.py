#!/usr/bin/env python3
"""grid_groups_test.py PROGRAMS: a grid under grouped columns in a real window: its header expands, resizes and drags, its
cells are edited in place and keep their editor while the grid scrolls; what the gallery prints of it."""
import pathlib
import sys

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places on the page at scale 1.
EXPAND_BLOCK_2 = (801, 116)
COLUMN_1, COLUMN_1_GRIP = (250, 134), (307, 134)
CELL, CHOICE_CELL, OTHER = (350, 215), (550, 215), (450, 300)


def check_header(display, program, window):
    program.expect(lambda: display.click(window, *EXPAND_BLOCK_2), 'signal expanded("Block 2", true)')
    program.expect(lambda: display.click(window, *COLUMN_1), 'signal clicked("Column 1")')
    lines = program.expect(lambda: display.drag(window, COLUMN_1_GRIP, (347, 134)), 'signal resized("Column 1", 136)')
    widths = [int(line.rstrip(")").split(", ")[-1]) for line in lines if "resized" in line]
    assert widths[-1] == 136 and widths == sorted(widths) and len(widths) > 2, lines
    lines = program.expect(lambda: display.drag(window, COLUMN_1, (620, 134)), 'signal dropped("Column 1"')
    assert any("dragOver" in line for line in lines), lines
    display.drag(window, (347, 134), (307, 134))  # whichever column stands there


def check_editing(display, program, window):
    def type_text(text):
        display.tool("xdotool", "type", text)
    display.double_click(window, *CELL)
    type_text("kept")
    program.expect(lambda: display.key("Return"), '"kept")')
    before = len(program.output())
    display.double_click(window, *CELL)
    type_text("dropped")
    display.key("Escape")
    display.double_click(window, *CELL)
    type_text("far")
    program.expect(lambda: [display.tool("xdotool", "click", "5") for _ in range(8)], "signal editor hidden()")
    for _ in range(8):
        display.tool("xdotool", "click", "4")
    type_text("away")  # it has the keyboard again
    lines = program.expect(lambda: display.click(window, *OTHER), '"faraway")')
    assert not any("dropped" in line for line in program.signals(before)), lines
    display.double_click(window, *CHOICE_CELL)
    popup = display.pixel("root", 560, 235)
    display.key("Down")
    display.key("Return")
    eventually(lambda: display.pixel("root", 560, 235) != popup, "the list to close")
    lines = program.expect(lambda: display.key("Return"), "signal edited(")
    assert any(choice in line for line in lines for choice in ('"none")', '"some")', '"all")')), lines


with Display() as display, Program(display, [programs / "vexel-gallery", "--log", "--page", "grid_groups"]) as program:
    window = display.wait_for_window("vexel gallery")
    eventually(lambda: display.pixel(window, 100, 660) != display.pixel(window, 700, 640), "the window to be painted")
    for check in (check_editing, check_header):
        check(display, program, window)
        print(f"{check.__name__} passed")
