#!/usr/bin/env python3
"""hello_test.py PROGRAMS: the example on a real window: it is painted, a click changes what it says, and while nobody
touches it, it sleeps."""
import pathlib
import sys
import tempfile
import time

from display import Display, Program, eventually

programs = pathlib.Path(sys.argv[1])
WIDTH, HEIGHT = 320, 33  # the window's width, and the element's rows from 0 to its bottom edge, 32


def ink(display, window):
    """The pixels of the element that are not its background, which its left-top pixel has."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "window.ppm"
        display.picture(window, path)
        fields = path.read_bytes().split(b"\n", 3)
    assert fields[0] == b"P6" and fields[1] == b"320 120", fields[:2]
    pixels = fields[3]
    colors = [pixels[i:i + 3] for i in range(0, WIDTH * HEIGHT * 3, 3)]
    return {i for i, color in enumerate(colors) if color != colors[0]}


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
    assert display.pixel(window, 5, 5) != display.pixel(window, 5, 100), "the element has a background of its own"

    display.click(window, 60, 100)  # below the element: nothing may happen
    display.click(window, 60, 15)
    after = eventually(lambda: ink(display, window) - before and ink(display, window), "the text to change")
    assert before - after, "the first text is gone"
    print(f"{len(before)} pixels of text became {len(after)}")
    # Effects of the click may still come in; then there is nothing to wake up for.
    eventually(lambda: stays_asleep(program.process.pid, 1.5), "a second and a half without any wake-up")
