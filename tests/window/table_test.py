#!/usr/bin/env python3
"""table_test.py PROGRAMS: the table example on a file of some 50 MB in a real window: the first rows, the last ones by the
End key, sorting by a click in the header, dragging a column, copying, and a file that is cut short while it is shown. The
program prints what happens; what was copied is pasted into the form example's edit, which sends it back."""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])
ROWS = 1_000_000
HEADER, FIRST_ROW, ROW = 12, 35, 21  # the middles of the header and of the first row at scale 1; the height of a row
HIGHLIGHT = (48, 140, 198)


def write_table(path):
    """Row n: n, a value that goes down from ROWS - 1, and a text with a comma and a quote in it."""
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write("\ufeffnumber,value,text\r\n")
        for start in range(1, ROWS + 1, 10000):
            file.write("".join(f'{n},{ROWS - n},"row {n}, of ""many"" and äöü"\r\n' for n in range(start, start + 10000)))


class Table:
    def __init__(self, display, program, title):
        self.display, self.program = display, program
        self.window = display.wait_for_window(title)

    def after(self, act, part):
        """The line with that text that comes once it was done, without its time."""
        before = len(self.program.output())
        act()
        return self.program.wait_for_line(part, before).split("] ", 1)[1]

    def key(self, name):
        return lambda: self.display.key(name)

    def click(self, x, y):
        return lambda: self.display.click(self.window, x, y)

    def shown(self, act, text):
        """The first and the last row in view and the beginnings of both, once these are as expected."""
        line = self.after(act, f": {text}")
        first, last, head, tail = re.fullmatch(r"shown (\d+)\.\.(\d+): (.*) \.\. (.*)", line).groups()
        return int(first), int(last), head, tail

    def clipboard(self):
        """The clipboard's first line as another program sees it: the form's edit, which drops what follows a line end or
        joins it; and all of it as the table says it copied it."""
        return clipboard_text(self.display)


def clipboard_text(display):
    """The text that the selection's owner hands out; by a small program, as there is none on every machine."""
    script = """
import ctypes, ctypes.util, sys, time
X = ctypes.CDLL(ctypes.util.find_library('X11') or 'libX11.so.6')
for name, result in (('XOpenDisplay', ctypes.c_void_p), ('XInternAtom', ctypes.c_ulong), ('XCreateSimpleWindow', ctypes.c_ulong),
                     ('XDefaultRootWindow', ctypes.c_ulong)):
    getattr(X, name).restype = result
X.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
X.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
X.XCreateSimpleWindow.argtypes = [ctypes.c_void_p, ctypes.c_ulong] + [ctypes.c_int] * 2 + [ctypes.c_uint] * 3 + [ctypes.c_ulong] * 2
X.XConvertSelection.argtypes = [ctypes.c_void_p] + [ctypes.c_ulong] * 5
X.XNextEvent.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
X.XGetWindowProperty.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_long, ctypes.c_long, ctypes.c_int,
                                 ctypes.c_ulong] + [ctypes.c_void_p] * 5
d = X.XOpenDisplay(None)
w = X.XCreateSimpleWindow(d, X.XDefaultRootWindow(d), 0, 0, 1, 1, 0, 0, 0)
kind, place = X.XInternAtom(d, b'UTF8_STRING', 0), X.XInternAtom(d, b'TABLE_TEST', 0)
X.XConvertSelection(d, X.XInternAtom(d, b'CLIPBOARD', 0), kind, place, w, 0)
event = (ctypes.c_long * 24)()
while True:
    X.XNextEvent(d, event)
    if ctypes.cast(event, ctypes.POINTER(ctypes.c_int))[0] == 31:  # SelectionNotify
        break
found, form, count, left, data = ctypes.c_ulong(), ctypes.c_int(), ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_char_p()
X.XGetWindowProperty(d, w, place, 0, 1 << 20, 0, 0, *map(ctypes.byref, (found, form, count, left, data)))
sys.stdout.buffer.write(data.value or b'')
"""
    return subprocess.run([sys.executable, "-c", script], env=display.environment, capture_output=True, timeout=60,
                          check=True).stdout.decode()


def check_first_and_last_rows(table):
    table.program.wait_for_line("shown 0..")
    first = [line for line in table.program.output() if "shown" in line][0]
    assert ": 1 .. " in first, first
    line = table.program.wait_for_line("indexed ")
    assert line.endswith(f"indexed {ROWS} rows"), line
    assert not any("problem" in line for line in table.program.output()), table.program.output()
    first, last, head, tail = table.shown(table.key("End"), str(ROWS - 24))
    assert last == ROWS - 1 and tail == str(ROWS) and head == str(first + 1), (first, last, head, tail)
    assert table.shown(table.key("Home"), "1 ..")[0] == 0


def check_sort(table, x):
    """`x`: somewhere in the column of values, which go down in the file."""
    line = table.after(table.click(x, HEADER), "sorted")
    assert line == f"sorted 1 ascending, {ROWS} rows", line
    table.program.wait_for_line(f"shown 0..24: {ROWS} .. {ROWS - 24}")
    line = table.after(table.click(x, HEADER), "sorted")
    assert line == f"sorted 1 descending, {ROWS} rows", line
    line = table.after(table.click(x, HEADER), "sorted")
    assert line == "sorted -1 as in the file, 0 rows", line


def check_copy(table):
    table.click(20, FIRST_ROW + 2 * ROW)()
    table.display.key("shift+Down")
    eventually(lambda: table.display.pixel(table.window, 3, FIRST_ROW + 3 * ROW - 6) == HIGHLIGHT, "the selected row")
    assert table.after(table.key("ctrl+c"), "copied") == "copied 2 of 2 rows"
    third, fourth = ('{0}\t{1}\t"row {0}, of ""many"" and äöü"\n'.format(n, ROWS - n) for n in (3, 4))
    assert clipboard_text(table.display) == third + fourth, clipboard_text(table.display)
