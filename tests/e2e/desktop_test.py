"""The tools themselves: files dragged from one program arrive in another, and waiting gives up.

desktop_test.py DRAG_SOURCE
"""

import sys
import unittest

import desktop

DRAG_SOURCE = sys.argv[1]


class DragAndDrop(unittest.TestCase):
    def drop(self, *files):
        """Drags the files onto the target and gives what the target printed."""
        with desktop.start([DRAG_SOURCE, "--receive"]) as target, \
                desktop.start([DRAG_SOURCE, *files]) as source:
            source_window = desktop.wait_window("Drag source")
            target_window = desktop.wait_window("Drop target")
            source_window.move(50, 100)
            target_window.move(600, 300)
            desktop.drag(source_window.point(*source_window.centre()),
                         target_window.point(*target_window.centre()))
            target.wait_output("\n\n")
            desktop.photograph_screen("drag-and-drop")
            self.assertEqual(target.errors(), "")
            self.assertEqual(source.errors(), "")
            return target.output()

    def test_one_file_arrives(self):
        self.assertEqual(self.drop("/tmp/wages.csv"), "/tmp/wages.csv\n\n")

    def test_names_with_blanks_and_letters_outside_ascii_arrive(self):
        self.assertEqual(self.drop("/tmp/a b.csv", "/tmp/größe.txt"),
                         "/tmp/a b.csv\n/tmp/größe.txt\n\n")


class Windows(unittest.TestCase):
    def test_a_window_goes_where_it_is_sent_and_closes_when_asked(self):
        with desktop.start([DRAG_SOURCE, "--receive"]) as program:
            window = desktop.wait_window("Drop target")
            window.resize(320, 240)
            window.move(400, 200)
            first = window.geometry()
            window.move(500, 250)
            second = window.geometry()
            self.assertEqual((second[0] - first[0], second[1] - first[1]), (100, 50))
            self.assertEqual(second[2:], (320, 240))
            self.assertEqual(window.title(), "Drop target")
            window.close()
            window.wait_gone()
            self.assertEqual(program.wait_end(), 0)

    def test_a_photograph_shows_the_contents(self):
        with desktop.start([DRAG_SOURCE, "--receive"]):
            window = desktop.wait_window("Drop target")
            picture = window.photograph("drop-target")
            size = desktop.run("identify", "-format", "%w %h", picture)
            self.assertEqual(size, "{2} {3}".format(*window.geometry()))
            # The contents are one plain area, the screen has the window's frame and title too.
            self.assertEqual(desktop.colours(picture), 1)
            self.assertGreater(desktop.colours(desktop.photograph_screen("screen")), 2)

    def test_a_program_never_outlives_its_block(self):
        with desktop.start([DRAG_SOURCE, "--receive"]) as program:
            desktop.wait_window("Drop target")
        self.assertFalse(program.running())
        self.assertEqual(desktop.windows("Drop target"), [])


class Clipboard(unittest.TestCase):
    def test_text_comes_back(self):
        desktop.set_clipboard("a\tb & größe\n")
        self.assertEqual(desktop.clipboard(), "a\tb & größe\n")


class Patience(unittest.TestCase):
    def test_waiting_gives_up_and_says_for_what(self):
        with self.assertRaisesRegex(desktop.DesktopError, "the window 'No such window'"):
            desktop.wait_window("No such window", patience=0.5)

    def test_a_tool_that_fails_is_told(self):
        with self.assertRaisesRegex(desktop.DesktopError, "xwininfo"):
            desktop.Window(1).geometry()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
