#!/usr/bin/env python3
"""hello_test.py PROGRAMS: the example on a real window: it is painted, a click changes what it says, and while nobody
touches it, it sleeps."""
import collections
import pathlib
import sys
import tempfile
import time

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])
WIDTH = 320  # of the window and its button, whose rows go from 0 to 32
INSIDE = range(8, 25), range(8, 312)  # rows and columns inside of its frame and of the mark of the focus


def ink(display, window):
    """The pixels of the text: inside of the button, those that are not of the colour that most of their row has."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "window.ppm"
        display.picture(window, path)
        fields = path.read_bytes().split(b"\n", 3)
    assert fields[:3] == [b"P6", b"320 120", b"255"], fields[:3]
    found = set()
    for y in INSIDE[0]:
        row = {x: fields[3][3 * (y * WIDTH + x):3 * (y * WIDTH + x) + 3] for x in INSIDE[1]}
        face = collections.Counter(row.values()).most_common(1)[0][0]
        found |= {(x, y) for x, color in row.items() if color != face}
    return found


def wake_ups(process):
    """How often the process has gone to sleep so far, all its threads together."""
    return sum(int(line.split()[1]) for status in pathlib.Path(f"/proc/{process}/task").glob("*/status")
               for line in status.read_text().splitlines() if line.startswith("voluntary_ctxt_switches"))


def stays_asleep(process, seconds):
    before = wake_ups(process)
    time.sleep(seconds)
    return wake_ups(process) == before


with Display() as display, Program(display, [programs / "example_hello"]) as program:
    window = display.wait_for_window("Hello")
    before = eventually(lambda: ink(display, window), "the text to be painted")
    assert display.pixel(window, 160, 5) != display.pixel(window, 160, 100), "the button has a face of its own"

    display.click(window, 60, 100)  # below the button: nothing may happen
    display.click(window, 60, 15)
    after = eventually(lambda: ink(display, window) - before and ink(display, window), "the text to change")
    assert before - after, "the first text is gone"
    print(f"{len(before)} pixels of text became {len(after)}")
    # Effects of the click may still come in; then there is nothing to wake up for.
    eventually(lambda: stays_asleep(program.process.pid, 1.5), "a second and a half without any wake-up")
