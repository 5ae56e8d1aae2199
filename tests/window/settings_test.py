#!/usr/bin/env python3
"""settings_test.py PROGRAMS: the settings on a real window: categories and tabs, a check box, a radio button, a list in a
popup, a field and its refusal; what is saved, and what is there again when the program is started anew."""
import pathlib
import sys
import tempfile

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])

# Places in the window at scale 1.
EDITOR, APPEARANCE, NETWORK = (60, 12), (60, 27), (60, 42)
SECOND_TAB, SAVE = (235, 22), (575, 357)
ROW = [(175, 60), (175, 96), (175, 132), (175, 168)]  # at the beginning of each
VALUE = [(x + 170, y) for x, y in ROW]  # where its widget stands
SECOND_CHOICE = (451, 132)


def save(display, window, path, lines):
    display.click(window, *SAVE)
    eventually(lambda: path.exists() and all(line in path.read_text().splitlines() for line in lines), f"{lines} in the file")


def check(display, path):
    with Program(display, [programs / "example_settings", path]) as program:
        window = display.wait_for_window("Settings")
        eventually(lambda: display.pixel(window, *EDITOR) != display.pixel(window, 60, 200), "the window to be painted")
        display.click(window, *ROW[0])
        display.click(window, *SECOND_CHOICE)
        save(display, window, path, ["wrap = off", "indent = Tabs", "tab = 4"])

        closed = display.pixel("root", VALUE[3][0], VALUE[3][1] + 24)
        display.click(window, *VALUE[3])
        eventually(lambda: display.pixel("root", VALUE[3][0], VALUE[3][1] + 24) != closed, "the popup")
        display.key("Down")
        display.key("Return")
        save(display, window, path, ["tab = 8"])

        display.click(window, *SECOND_TAB)
        display.click(window, *VALUE[1])
        display.tool("xdotool", "type", "copy")
        display.key("Return")
        save(display, window, path, ["extension = copy"])

        display.click(window, *NETWORK)
        for text, port in (("99999", "8080"), ("3128", "3128")):  # the first one is refused
            display.click(window, *VALUE[2])
            display.tool("xdotool", "type", text)
            display.key("Return")
            save(display, window, path, [f"port = {port}"])

    path.write_text(path.read_text().replace("theme = As the desktop", "theme = Dark"))
    with Program(display, [programs / "example_settings", path]):
        window = display.wait_for_window("Settings")
        eventually(lambda: display.pixel(window, *EDITOR) != display.pixel(window, 60, 200), "the window to be painted")
        display.click(window, *APPEARANCE)
        display.click(window, *ROW[1])
        save(display, window, path, ["theme = Dark", "current = off", "extension = copy", "port = 3128"])


with tempfile.TemporaryDirectory() as folder, Display() as display:
    check(display, pathlib.Path(folder) / "settings.txt")
    print("check passed")
