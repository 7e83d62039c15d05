"""A user's hands and eyes on the current display, for tests that drive a program from outside.

    import desktop

    with desktop.start(["program", "file"]) as program:
        window = desktop.wait_window("Title")
        window.click(20, 30)
        desktop.type_text("beta")
        desktop.key("ctrl+a")
        window.photograph("after-typing")

All coordinates are pixels from the upper left corner of the window's contents. Everything that waits
gives up after a time with a DesktopError that tells what it waited for.
"""

import os
import re
import subprocess
import tempfile
import time
from pathlib import Path

PATIENCE = 20.0  # Seconds. Under a sanitizer and on a busy machine things take long.
LEFT, MIDDLE, RIGHT = 1, 2, 3


class DesktopError(AssertionError):
    """What was waited for did not happen, or a tool failed."""


def run(*command, text=None):
    """Runs a tool to its end and gives its output."""
    done = subprocess.run([str(word) for word in command], input=text, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, text=True, timeout=60, check=False)
    if done.returncode:
        raise DesktopError(f"{' '.join(map(str, command))}: {done.stderr or done.stdout}")
    return done.stdout


def wait_until(condition, what, patience=PATIENCE):
    """Waits until `condition()` gives something true, which it returns."""
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            said = what() if callable(what) else what
            raise DesktopError(f"waited {patience:g} s in vain for {said}")
        time.sleep(0.05)


# Programs.

class Program:
    """A running program. As a context it ends with the block, and never outlives it."""

    def __init__(self, command, **options):
        self._output = tempfile.TemporaryFile("w+", encoding="utf-8", errors="replace")
        self._errors = tempfile.TemporaryFile("w+", encoding="utf-8", errors="replace")
        self.process = subprocess.Popen([str(word) for word in command], stdout=self._output,
                                        stderr=self._errors, stdin=subprocess.DEVNULL, **options)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(5)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
        self._output.close()
        self._errors.close()

    @staticmethod
    def _read(file):
        # The child shares the file's position: read without moving it.
        return os.pread(file.fileno(), 1 << 26, 0).decode("utf-8", "replace")

    def output(self):
        """Everything that it wrote on standard output so far."""
        return self._read(self._output)

    def errors(self):
        """Everything that it wrote on standard error so far."""
        return self._read(self._errors)

    def running(self):
        return self.process.poll() is None

    def wait_output(self, text, patience=PATIENCE):
        """Waits until standard output holds `text`."""
        wait_until(lambda: text in self.output(),
                   lambda: f"{text!r} in the output:\n{self.output()}{self.errors()}", patience)

    def threads(self):
        """The number of the program's threads."""
        return len(os.listdir(f"/proc/{self.process.pid}/task"))

    def wait_end(self, patience=PATIENCE):
        """Waits until it has ended by itself; gives the exit status."""
        wait_until(lambda: not self.running(), f"the end of {self.process.args[0]}", patience)
        return self.process.returncode


def start(command, **options):
    """Starts a program; `options` are those of subprocess.Popen (env, cwd)."""
    return Program(command, **options)


# Windows.

class Window:
    """A window on the display."""

    def __init__(self, number):
        self.number = int(number)

    def __eq__(self, other):
        return isinstance(other, Window) and self.number == other.number

    def __hash__(self):
        return self.number

    def title(self):
        return run("xdotool", "getwindowname", self.number).rstrip("\n")

    def exists(self):
        return self in windows()

    def wait_gone(self, patience=PATIENCE):
        wait_until(lambda: not self.exists(), f"the end of window {self.number}", patience)

    def geometry(self):
        """The place of the contents on the screen: x, y, width, height."""
        said = run("xwininfo", "-id", self.number)
        return tuple(int(re.search(label + r":\s*(-?\d+)", said).group(1))
                     for label in ("Absolute upper-left X", "Absolute upper-left Y",
                                   "Width", "Height"))

    def activate(self):
        """Brings the window to the front and gives it the keyboard."""
        run("xdotool", "windowactivate", "--sync", self.number)

    def move(self, x, y):
        """Moves the window, its frame's corner to (x, y), and waits until it rests there."""
        run("xdotool", "windowmove", self.number, x, y)
        wait_still(self.geometry)

    def resize(self, width, height):
        """Gives the contents a size and waits until they have it."""
        run("xdotool", "windowsize", self.number, width, height)
        wait_until(lambda: self.geometry()[2:] == (width, height),
                   lambda: f"the size {width}x{height}, is {self.geometry()[2:]}")
        wait_still(self.geometry)

    def point(self, x, y):
        """A point of the contents as a point of the screen."""
        left, top, _, _ = self.geometry()
        return left + x, top + y

    def centre(self):
        """The middle of the contents, as a point of the contents."""
        _, _, width, height = self.geometry()
        return width // 2, height // 2

    def click(self, x, y, button=LEFT, count=1):
        """Clicks at a point of the contents; `count` 2 is a double click."""
        move_pointer(*self.point(x, y))
        run("xdotool", "click", "--repeat", count, "--delay", 60, button)
        time.sleep(0.1)

    def close(self):
        """Asks the window to close, as its close button does."""
        self.activate()
        key("alt+F4")

    def photograph(self, name):
        """Keeps a picture of the contents as NAME.png among the tests' output; gives its path."""
        path = output_folder() / (name + ".png")
        x, y, width, height = self.geometry()
        run("import", "-silent", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage",
            path)
        return path


def search(*criteria):
    """The shown windows that xdotool finds, looked for again when one vanishes meanwhile."""
    for _ in range(20):
        done = subprocess.run(["xdotool", "search", "--onlyvisible", *criteria],
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        if "BadWindow" not in done.stderr:
            return [Window(number) for number in done.stdout.split()]
    raise DesktopError(f"xdotool search {' '.join(criteria)}: {done.stderr}")


def windows(title=None):
    """The shown windows, those with exactly this title if one is given."""
    return search("--name", "^" + re.escape(title) + "$" if title is not None else ".+")


def wait_window(title, patience=PATIENCE):
    """Waits for a window with exactly this title, shown and at rest."""
    found = wait_until(lambda: windows(title),
                       lambda: f"the window {title!r}; there are "
                               f"{[window.title() for window in windows()]}", patience)[-1]
    wait_still(found.geometry)
    return found


def wait_still(measure, moments=3):
    """Waits until `measure()` gives the same several times in a row."""
    seen = []

    def still():
        seen.append(measure())
        return len(seen) >= moments and all(value == seen[-1] for value in seen[-moments:])

    wait_until(still, "rest")


# Pointer and keyboard.

def move_pointer(x, y):
    """Moves the pointer to a point of the screen."""
    run("xdotool", "mousemove", x, y)
    time.sleep(0.05)


def drag(from_point, to_point, steps=20):
    """Presses at one point of the screen, moves in small steps to another, and lets go."""
    (x1, y1), (x2, y2) = from_point, to_point
    move_pointer(x1, y1)
    run("xdotool", "mousedown", LEFT)
    time.sleep(0.1)
    try:
        for step in range(1, steps + 1):
            move_pointer(x1 + (x2 - x1) * step // steps, y1 + (y2 - y1) * step // steps)
        # The target answers the pointer before it takes the drop.
        move_pointer(x2 - 1, y2 - 1)
        time.sleep(0.3)
        move_pointer(x2, y2)
        time.sleep(0.3)
    finally:
        run("xdotool", "mouseup", LEFT)
    time.sleep(0.2)


def key(*keys):
    """Presses keys, each named as xdotool names it ("Return", "ctrl+a"), in the active window."""
    for name in keys:
        run("xdotool", "key", "--clearmodifiers", name)
        time.sleep(0.05)


def type_text(text):
    """Types a text into the active window."""
    run("xdotool", "type", "--clearmodifiers", "--delay", 15, text)
    time.sleep(0.1)


# Clipboard and pictures.

def clipboard():
    """The text on the clipboard, read by another process."""
    return run("xclip", "-o", "-selection", "clipboard")


def set_clipboard(text):
    # The tool stays behind to serve the text: it must not hold our pipes.
    subprocess.run(["xclip", "-i", "-selection", "clipboard"], input=text.encode(),
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=10, check=True)


def photograph_screen(name):
    """Keeps a picture of the whole screen as NAME.png among the tests' output; gives its path."""
    path = output_folder() / (name + ".png")
    run("import", "-silent", "-window", "root", path)
    return path


def colours(picture):
    """How many different colours a picture has: 1 if nothing is drawn."""
    return int(run("identify", "-format", "%k", picture))


def fingerprint(picture):
    """A text that tells a picture's pixels from others'."""
    return run("identify", "-format", "%#", picture)


def output_folder():
    folder = Path(os.environ.get("ZENQO_TEST_OUTPUT", "."))
    folder.mkdir(parents=True, exist_ok=True)
    return folder
