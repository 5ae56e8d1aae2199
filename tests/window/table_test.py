#!/usr/bin/env python3
"""table_test.py PROGRAMS: the table example on a file of some 50 MB in a real window: the first rows, the last ones by the
End key, sorting by clicks on the header, dragging and resizing columns, copying, files that are not as they should be, and
one that is cut short while it is shown. The program prints what happens; of a copy it prints what the clipboard gives."""
import os
import pathlib
import re
import sys
import tempfile

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])
ROWS = 1_000_000
HEADER, ROW = 12, 21  # at scale 1: the middle of the header, which is 24 high, and the height of a row
NUMBER, VALUE, TEXT = 40, 120, 220  # within the columns, the first two of which are 80 wide
HIGHLIGHT, RED = (48, 140, 198), (176, 32, 32)


def write_table(path):
    """Row n: n, a value that goes down to 0, and a text with a comma and quotes in it."""
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write("\ufeffnumber,value,text\r\n")
        for start in range(1, ROWS + 1, 10000):
            file.write("".join(f'{n},{ROWS - n},"row {n}, of ""many"" with a longer text"\r\n' for n in range(start, start + 10000)))


class Table:
    def __init__(self, display, program, title):
        self.display, self.program = display, program
        self.window = display.wait_for_window(title)

    def after(self, act, part):
        """The first line with that text that comes once it was done, without its time."""
        before = len(self.program.output())
        act()
        return self.program.wait_for_line(part, before).split("] ", 1)[1]

    def shown(self, act, head):
        """Does it, and waits until the first row in view begins with this. The first row in view, the last one, and what
        that begins with."""
        line = self.after(act, f": {head} .. ")
        first, last, tail = re.fullmatch(r"shown (\d+)\.\.(\d+): .* \.\. (.*)", line).groups()
        return int(first), int(last), tail

    def key(self, name):
        return lambda: self.display.key(name)

    def click(self, x, y=HEADER):
        return lambda: self.display.click(self.window, x, y)

    def drag(self, start, end):
        def act():
            self.display.move(self.window, *start)
            self.display.tool("xdotool", "mousedown", "1")
            for step in range(1, 9):
                self.display.move(self.window, *(a + (b - a) * step // 8 for a, b in zip(start, end)))
            self.display.tool("xdotool", "mouseup", "1")
        return act

    def wait_for_color(self, x, y, color):
        eventually(lambda: self.display.pixel(self.window, x, y) == color,
                   f"the colour {color} at {x}, {y}, where {self.display.pixel(self.window, x, y)} is")


def line_of(number, *columns):
    fields = [str(number), str(ROWS - number), f'"row {number}, of ""many"" with a longer text"']
    return " ".join(fields[column] for column in columns) + "\u21b5"


def check_first_and_last_rows(table):
    first = table.program.wait_for_line("shown 0..")
    assert ": 1 .. " in first, first
    line = table.program.wait_for_line("indexed ")
    assert line.endswith(f"indexed {ROWS} rows"), line
    assert not any("problem" in line for line in table.program.output()), table.program.output()
    last = ROWS - 1
    before = len(table.program.output())
    table.display.key("End")
    line = table.program.wait_for_line(f"..{last}: ", before)
    assert line.endswith(f".. {ROWS}"), line
    assert table.shown(table.key("Home"), 1)[0] == 0
    table.wait_for_color(200, 24 + 3, HIGHLIGHT)


def check_sort(table):
    """By the values, which go down in the file."""
    assert table.after(table.click(VALUE), "sorted") == f"sorted 1 ascending, {ROWS} rows"
    table.program.wait_for_line(f"shown 0..25: {ROWS} .. {ROWS - 25}")
    assert table.after(table.click(VALUE), "sorted") == f"sorted 1 descending, {ROWS} rows"
    assert table.shown(table.key("Next"), 27) == (26, 51, "52")
    assert table.after(table.click(VALUE), "sorted") == "sorted -1 as in the file, 0 rows"


def check_columns_and_copy(table):
    table.shown(table.key("Next"), 27)
    table.shown(table.key("Home"), 1)
    table.click(NUMBER, 24 + 2 * ROW + 10)()
    table.display.key("shift+Down")
    table.wait_for_color(3, 24 + 3 * ROW + 3, HIGHLIGHT)
    line = table.after(table.key("ctrl+c"), "copied")
    assert line == "copied 2 of 2 rows: " + line_of(3, 0, 1, 2) + line_of(4, 0, 1, 2), line
    assert table.after(table.drag((NUMBER, HEADER), (VALUE + 20, HEADER)), "moved") == "moved column 0 to 1"
    line = table.after(table.key("ctrl+c"), "copied")
    assert line == "copied 2 of 2 rows: " + line_of(3, 1, 0, 2) + line_of(4, 1, 0, 2), line
    # The first column is that of the values now; it sorts as before.
    assert table.after(table.click(NUMBER), "sorted") == f"sorted 1 ascending, {ROWS} rows"
    table.program.wait_for_line("shown 0..25: 0 .. 25")
    assert table.after(table.click(NUMBER), "sorted").startswith("sorted 1 descending")
    assert table.after(table.click(NUMBER), "sorted").startswith("sorted -1")
    # The divider behind it, which the pointer arms by coming over it.
    table.display.move(table.window, 79, HEADER)
    line = table.after(table.drag((79, HEADER), (119, HEADER)), "resized")
    assert line.startswith("resized column 0 to "), line


def check_cut(table, path):
    """Somebody makes the file shorter while it is shown."""
    os.truncate(path, 1000)
    before = len(table.program.output())
    table.display.key("End")
    table.program.wait_for_line("problem: The file became shorter while it was open", before)
    eventually(lambda: any(table.display.pixel(table.window, x, 562) == RED for x in range(9, 40)), "the problem in red")
    table.shown(table.key("Prior"), "")  # what is gone is empty
    table.shown(table.key("Home"), ROWS - 1)  # the values stand first
    assert table.program.process.poll() is None


def check_odd_files(display, folder):
    """What can be shown is shown, and what is wrong is told."""
    empty, bad = folder / "empty.csv", folder / "bad.tsv"
    empty.write_bytes(b"")
    bad.write_bytes(b'a\tb\n1\t"never closed\n2\n3\t\xff\0\n')
    for path, expected in ((empty, [f"nothing to show: {empty} is empty."]),
                           (folder, [f"nothing to show: {folder} is a directory."]),
                           (folder / "none", [f"nothing to show: {folder}/none can't be opened: No such file or directory."]),
                           (bad, ["problem: 1 quote is never closed", "problem: 1 row has another number of fields",
                                  "problem: 1 byte is no UTF-8.", "problem: 1 byte is NUL.", "shown 0..2: 1 .. 3"])):
        with Program(display, [programs / "example_table", "--log", path]) as program:
            for part in expected:
                program.wait_for_line(part)
    with Program(display, [programs / "example_table", "--log"]) as program:
        program.wait_for_line("nothing to show: No file was named to be shown.")


with tempfile.TemporaryDirectory() as name, Display() as display:
    path = pathlib.Path(name) / "large.csv"
    write_table(path)
    assert path.stat().st_size > 50_000_000, path.stat().st_size
    with Program(display, [programs / "example_table", "--log", path]) as program:
        table = Table(display, program, "large.csv")
        for check in (check_first_and_last_rows, check_sort, check_columns_and_copy):
            check(table)
            print(f"{check.__name__} passed")
        check_cut(table, path)
        print("check_cut passed")
    check_odd_files(display, pathlib.Path(name))
    print("check_odd_files passed")
