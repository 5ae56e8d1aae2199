"""A display of the test's own: Xvfb on a free number, and on it a program that is watched, pointed at and read.

    with Display() as display, Program(display, [programs / "vexel-gallery", "--page", "slider"]) as program:
        window = display.wait_for_window("slider")
        display.click(window, 40, 30)
        program.wait_for_line("value(3)")
        display.pixel(window, 40, 30)

Nothing here waits for a fixed time: it asks again until the answer comes or the time allowed is over. All that was
started is ended by its process id, whatever happens.
"""
import os
import queue
import subprocess
import tempfile
import threading
import time

ALLOWED = 30.0  # seconds for anything to happen; reached only when the test fails


def eventually(ask, what):
    """Asks until the answer is true, and returns it."""
    end = time.monotonic() + ALLOWED
    while True:
        answer = ask()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


class Display:
    def __init__(self, width=1280, height=900):
        self.size = f"{width}x{height}x24"

    def __enter__(self):
        read, write = os.pipe()
        self.log = tempfile.TemporaryFile()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", self.size, "-nolisten", "tcp", "-noreset"],
            pass_fds=[write], stdout=self.log, stderr=self.log)
        os.close(write)
        with os.fdopen(read) as numbers:
            number = numbers.readline().strip()
        if not number:
            self.server.wait()
            self.log.seek(0)
            raise AssertionError("Xvfb did not start: " + self.log.read().decode())
        self.environment = {k: v for k, v in os.environ.items() if k != "WAYLAND_DISPLAY"}
        self.runtime = tempfile.TemporaryDirectory()
        self.environment.update(XDG_RUNTIME_DIR=self.runtime.name, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        return self

    def __exit__(self, *_):
        self.server.terminate()
        try:
            self.server.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.server.kill()
            self.server.wait()
        self.log.close()
        self.runtime.cleanup()

    def tool(self, *command, check=True):
        done = subprocess.run([str(c) for c in command], env=self.environment, capture_output=True, text=True, timeout=60)
        if check and done.returncode:
            raise AssertionError(f"{' '.join(map(str, command))}: {done.stderr}")
        return done.stdout

    def wait_for_window(self, title):
        """The id of the visible window whose title matches the pattern; it has the keyboard."""
        def find():
            found = self.tool("xdotool", "search", "--onlyvisible", "--name", title, check=False).split()
            return found[-1] if found else None
        window = eventually(find, f"a window {title}")
        # There is no window manager, which would give the keyboard to a new window.
        self.tool("xdotool", "windowfocus", "--sync", window)
        return window

    def move(self, window, x, y):
        self.tool("xdotool", "mousemove", "--window", window, x, y)

    def click(self, window, x, y, button=1):
        self.tool("xdotool", "mousemove", "--window", window, x, y, "click", button)

    def double_click(self, window, x, y):
        self.tool("xdotool", "mousemove", "--window", window, x, y, "click", "--repeat", "2", "--delay", "60", "1")

    def drag(self, window, start, end, steps=8):
        self.move(window, *start)
        self.tool("xdotool", "mousedown", "1")
        for i in range(1, steps + 1):
            self.move(window, *(int(a + (b - a) * i / steps) for a, b in zip(start, end)))
        self.tool("xdotool", "mouseup", "1")

    def key(self, name):
        self.tool("xdotool", "key", name)

    def picture(self, window, path):
        """The window as a picture file of the kind that its name says, with 8 bits a channel."""
        self.tool("import", "-window", window, "-depth", "8", path)

    def pixel(self, window, x, y):
        """(red, green, blue) of a point of the window."""
        done = subprocess.run(["import", "-window", window, "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"],
                              env=self.environment, capture_output=True, timeout=60, check=True)
        return tuple(done.stdout[:3])


class Program:
    """A program on a display. Its output is read all the time, line by line."""

    def __init__(self, display, command):
        self.display, self.command = display, [str(c) for c in command]

    def __enter__(self):
        self.process = subprocess.Popen(self.command, env=self.display.environment, stdout=subprocess.PIPE, text=True)
        self.lines, self.seen = queue.Queue(), []
        threading.Thread(target=self.read, daemon=True).start()
        return self

    def read(self):
        for line in self.process.stdout:
            self.lines.put(line.rstrip("\n"))

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()

    def output(self):
        """All lines until now."""
        while not self.lines.empty():
            self.seen.append(self.lines.get())
        return list(self.seen)

    def wait_for_line(self, part, after=0):
        """The first line, from the number `after` on, that contains the text."""
        def find():
            found = [line for line in self.output()[after:] if part in line]
            if not found and self.process.poll() is not None:
                raise AssertionError(f"{self.command[0]} ended with {self.process.returncode}: {self.seen}")
            return found[0] if found else None
        return eventually(find, f"the line {part!r} in {self.seen}")

    def signals(self, after=0):
        """The lines of signals, from the number `after` on."""
        return [line for line in self.output()[after:] if line.startswith("signal ")]

    def expect(self, act, part):
        """Does what it is given, waits for a line that contains the text, and returns the signals since."""
        before = len(self.output())
        act()
        self.wait_for_line(part, before)
        return self.signals(before)
