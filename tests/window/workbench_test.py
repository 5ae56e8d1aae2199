#!/usr/bin/env python3
"""workbench_test.py PROGRAMS: the workbench on a real window: rows, tabs, the splitter, a search, the chart, settings and
the dark theme; what is there again when it is started anew; the checks at the start."""
import pathlib
import sys
import tempfile

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places in the window at scale 1.
ROW = (200, 96)
TABS = 451  # the line that they hang from
CHART_TAB, SETTINGS_TAB = 100, 160
SEARCH = (928, 663)
THEME = (260, 44)  # the list of themes in the open category


def start(display, path, *options):
    return Program(display, [programs / "example_workbench", "--log", "--lines", "20000", *options, path])


def use(display, path):
    with start(display, path) as program:
        window = display.wait_for_window("Workbench")
        program.wait_for_line("Ready")
        eventually(lambda: sum(display.pixel(window, 990, TABS)) < 500, "the tabs to be painted")
        plain = display.pixel(window, 300, ROW[1])
        display.click(window, *ROW)
        eventually(lambda: display.pixel(window, 300, ROW[1]) != plain, "the row to be marked")
        first = display.pixel(window, 300, ROW[1] + 21)
        display.key("Down")
        eventually(lambda: display.pixel(window, 300, ROW[1] + 21) != first, "the next row to be marked")

        line = display.pixel(window, 990, TABS)
        top = TABS + 40
        assert display.pixel(window, 990, top) != line
        display.drag(window, (600, TABS + 27), (600, top + 27))
        eventually(lambda: display.pixel(window, 990, top) == line, "the splitter to have moved")

        program.expect(lambda: display.click(window, CHART_TAB, top + 10), "Page Chart")
        program.expect(lambda: display.click(window, 330, top - 40), "The chart shows span 3")  # the last span
        program.expect(lambda: display.click(window, *SEARCH), "Searching 20000000 readings")
        program.expect(lambda: display.click(window, *SEARCH), "The search was given up")

        program.expect(lambda: display.click(window, SETTINGS_TAB, top + 10), "Page Settings")
        light = display.pixel(window, 900, 300)
        display.click(window, *THEME)
        display.key("End")
        program.expect(lambda: display.key("Return"), "The theme is dark")
        eventually(lambda: sum(display.pixel(window, 900, 300)) < 200 < sum(light), "the dark theme")
        display.key("ctrl+q")
        eventually(lambda: program.process.poll() is not None, "the program to end")
    state = path.read_text().splitlines()
    for line in ("theme=2", "page=2", "span=3", "log height=130"):
        assert line in state, (line, state)


def use_again(display, path):
    with start(display, path) as program:
        window = display.wait_for_window("Workbench")
        program.wait_for_line("Page Settings")
        eventually(lambda: sum(display.pixel(window, 900, 300)) < 200, "the dark theme from the start")


def check(display, path):
    path.write_text("no layout\n")
    with start(display, path) as program:
        window = display.wait_for_window("Workbench")
        eventually(lambda: display.pixel(window, 30, 30)[0] > 150 > display.pixel(window, 30, 30)[2], "the warning")
        display.key("space")  # the first button goes on
        program.wait_for_line("Ready")
        display.key("ctrl+q")
        eventually(lambda: program.process.poll() is not None, "the program to end")
    assert path.read_text().startswith("workbench 1\n"), path.read_text()


with tempfile.TemporaryDirectory() as folder, Display() as display:
    use(display, pathlib.Path(folder) / "state")
    use_again(display, pathlib.Path(folder) / "state")
    check(display, pathlib.Path(folder) / "other")
print("ok")
