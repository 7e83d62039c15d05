"""The workbench as its user meets it, for tests that drive it from outside.

    class Import(workbench.TestCase):
        def test_a_file(self):
            bench = self.start()
            bench.drop(bench.TREE, self.file("wages.csv", "year,wage\\n2001,12.5\\n"))

A test file is run as FILE WORKBENCH DRAG_SOURCE [CLASS.TEST ...].
"""

import os
import sys
import tempfile
import time
import unittest
from pathlib import Path

import desktop

WORKBENCH, DRAG_SOURCE = sys.argv[1:3]

# Building, loading and closing take long under a sanitizer on a busy machine.
PATIENCE = 60.0

WAGES = "year,wage,region\n2001,12.5,north\n2002,,south\n2003,14.25,east\n"
WAGES_PRINTED = ("obs\tyear\t wage\tregion\n"
                 "  1\t2001\t 12.5\tnorth \n"
                 "  2\t2002\t    .\tsouth \n"
                 "  3\t2003\t14.25\teast  \n")
WAGES_CELLS = "2001\t12.5\tnorth\n2002\t.\tsouth\n2003\t14.25\teast"


def retry_until(condition, act, what):
    """Acts, and again if it came too early to be taken, until the condition holds; gives its value."""
    def attempt():
        act()
        try:
            return desktop.wait_until(condition, what, patience=3)
        except desktop.DesktopError:
            return None

    return desktop.wait_until(attempt, what, PATIENCE)


def press_until(condition, *keys):
    """Presses keys until the condition holds; gives its value."""
    return retry_until(condition, lambda: desktop.key(*keys), f"an effect of {' '.join(keys)}")


# What a user does in a dialog.

def fill(dialog, *entries):
    """Clicks into fields and types what is to stand there: pairs of point and text."""
    for point, text in entries:
        dialog.click(*point)
        desktop.key("ctrl+a")
        first, *others = text.split("\n")
        desktop.type_text(first)
        for line in others:
            desktop.key("Return")
            desktop.type_text(line)


def type_path(dialog, point, path):
    """Types a path into a field."""
    fill(dialog, (point, str(path)))
    # Until the focus goes on, the list of completions takes clicks and keys.
    desktop.key("Tab")


def accept(dialog, key, picture):
    """Photographs a dialog and ends it with a key."""
    dialog.photograph(picture)
    press_until(lambda: not dialog.exists(), key)


def box_of(dialog, key, title, picture):
    """Presses a key in a dialog, upon which a box is to come, perhaps of the dialog's own title; gives the box."""
    def others():
        return [window for window in desktop.windows(title) if window != dialog]

    box = press_until(others, key)[0]
    desktop.wait_still(box.geometry)
    box.photograph(picture)
    return box


class Bench:
    """A running workbench and its window."""

    # Points of the window's contents.
    TREE = (100, 300)
    PAGE = (700, 450)
    FIRST_CELL = (330, 150)
    SAMPLE_LINK = (366, 231)

    def __init__(self, program, title):
        self.program = program
        self.window = desktop.wait_window(title, PATIENCE)
        # Room at the left for the window from which files are dragged.
        self.window.move(215, 10)

    def wait_title(self, title):
        desktop.wait_until(lambda: self.window.title() == title,
                           lambda: f"the title {title!r}, is {self.window.title()!r}", PATIENCE)

    # Boxes.

    def box(self, title, picture=None):
        """Waits for a dialog or a message box."""
        box = desktop.wait_window(title, PATIENCE)
        if picture:
            box.photograph(picture)
        return box

    def dismiss(self, title, key, picture=None):
        """Waits for a dialog or a message box and ends it with a key."""
        box = self.box(title, picture)
        press_until(lambda: not box.exists(), key)

    def open(self, menu, key, title):
        """Opens a dialog by its entry in a menu."""
        self.window.activate()
        desktop.key(menu)
        press_until(lambda: desktop.windows(title), key)
        return self.box(title)

    def choose_file(self, title, path):
        """Types a path into the desktop's file dialog and presses the button at its lower right."""
        box = self.box(title)
        # A proposed name is selected only up to its extension.
        desktop.key("ctrl+a")
        desktop.type_text(str(path))

        _, _, width, height = box.geometry()
        # A first click may only close the list of completions.
        retry_until(lambda: not box.exists(), lambda: box.click(width - 45, height - 28),
                    f"the end of {title!r}")

    # Files from another program.

    def drop(self, point, *files):
        """Drags files from another program's window to a point of this one."""
        with desktop.start([DRAG_SOURCE, *files]) as source:
            source_window = desktop.wait_window("Drag source")
            source_window.move(5, 600)
            desktop.drag(source_window.point(*source_window.centre()), self.window.point(*point))
            assert source.errors() == "", source.errors()

    def import_by_drop(self, file, name):
        """Drops a data file on the tree and accepts the dialog under another name."""
        self.drop(self.TREE, file)
        dialog = self.box("Import Data")
        desktop.key("ctrl+a")
        desktop.type_text(name)
        press_until(lambda: not dialog.exists(), "Return")

    # What the user copies.

    def copied(self, *keys):
        """What is on the clipboard after the keys."""
        desktop.set_clipboard("nothing was copied")

        def text():
            now = desktop.clipboard()
            return None if now == "nothing was copied" else now

        return press_until(text, *keys)

    def console(self):
        """The whole text of the console."""
        return self.copied("ctrl+2", "ctrl+a", "ctrl+c")

    def wait_console(self, text):
        """Waits until the console holds a text; gives all of it."""
        seen = []

        def holds():
            seen.append(self.console())
            return text in seen[-1]

        desktop.wait_until(holds, lambda: f"{text!r} on the console:\n{seen[-1]}", PATIENCE)
        return seen[-1]

    def cells(self):
        """The shown dataset's cells as the grid copies them."""
        desktop.key("ctrl+3")
        self.window.click(*self.FIRST_CELL)
        return self.copied("ctrl+a", "ctrl+c").rstrip("\n")

    def quit(self):
        """Closes the window without saving; gives the exit status."""
        changed = self.window.title().startswith("*")
        self.window.close()
        if changed:
            self.dismiss("Zenqo Workbench", "alt+n")
        return self.program.wait_end(PATIENCE)


class TestCase(unittest.TestCase):
    """A test with a folder of its own. Whatever it starts must end well and say nothing on standard error."""

    maxDiff = None

    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="zenqo-e2e-")
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        # The program's settings: at first that it begins without its quick-start page.
        self.settings = self.folder / ".config" / "zenqo-workbench" / "settings.json"
        self.settings.parent.mkdir(parents=True)
        self.settings.write_text('{"showQuickStart": false}', encoding="utf-8")
        # GTK complains of a view that goes while it still glides to where it scrolls, and a test is
        # faster than that.
        self.file(".config/gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n")

    def file(self, name, text):
        """Writes a file into the test's folder; gives its path."""
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path

    def program(self, *arguments, **options):
        """Starts the program; it ends with the test at the latest."""
        options.setdefault("env", os.environ)
        options["env"] = {**options["env"], "XDG_CONFIG_HOME": str(self.folder / ".config")}
        program = desktop.start([WORKBENCH, *arguments], cwd=self.folder, **options)
        self.addCleanup(program.__exit__)
        return program

    def start(self, *arguments, title="Untitled - Zenqo Workbench", **options):
        """Starts the program and waits for its window."""
        return Bench(self.program(*arguments, **options), title)

    def start_with_wages(self):
        """A workbench with the dataset `wages`, which is not saved."""
        data = self.file("wages.csv", WAGES)
        script = self.file("begin.zqs", f'wages = import("{data}", ",");\n')
        return self.start("--run", script, title="*Untitled - Zenqo Workbench")

    def finish(self, bench):
        """Closes the window and looks at what the process leaves behind."""
        status = bench.quit()
        self.assertEqual(bench.program.errors(), "")
        self.assertEqual(status, 0)
        self.assertEqual(bench.program.output(), "")


def main():
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
