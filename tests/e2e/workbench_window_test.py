"""The window itself: alive during long work, and in every size."""

import desktop
import workbench

# More than a machine imports before the user has stopped it.
LARGE = 200_000_000


class LongWork(workbench.TestCase):
    # The gauge is 200 pixels wide and ends before the window's grip.
    GAUGE_FROM_RIGHT = 120
    GAUGE_FROM_BOTTOM = 5
    READOUT_HEIGHT = 63

    def large_file(self):
        lines = "".join(f'"k{i}","m{i}"\n' for i in range(100_000))
        path = self.folder / "large.csv"
        with path.open("w") as file:
            written = file.write("a,b\n")
            while written < LARGE:
                written += file.write(lines)
        return path

    def readouts(self):
        """The small windows of the program, which have no title."""
        def is_readout(window):
            try:
                return window.geometry()[2:] == (196, 60)
            except desktop.DesktopError:
                return False  # It has gone meanwhile.

        return [window for window in desktop.search("--class", "zenqo-workbench") if is_readout(window)]

    def page(self, bench, name):
        """What the page shows now, as a number that tells pictures apart."""
        return desktop.fingerprint(bench.window.photograph(name))

    def test_the_window_lives_and_the_readout_follows_the_pointer(self):
        script = self.file("long.zqs", f'large = import("{self.large_file()}", ",");\n')
        bench = self.start("--run", script)
        left, top, width, height = bench.window.geometry()
        gauge = (left + width - self.GAUGE_FROM_RIGHT, top + height - self.GAUGE_FROM_BOTTOM)

        desktop.move_pointer(*gauge)
        readout = desktop.wait_until(self.readouts, "the readout above the gauge")[0]
        x, y, _, _ = readout.geometry()
        self.assertTrue(x <= gauge[0] < x + 200, f"readout at {x}, pointer at {gauge[0]}")
        self.assertTrue(y + 60 <= gauge[1] <= y + self.READOUT_HEIGHT + 20,
                        f"readout at {y}, pointer at {gauge[1]}")
        bench.window.photograph("readout-above-gauge")

        desktop.move_pointer(left + 700, top + 400)
        desktop.wait_until(lambda: not self.readouts(), "the readout's end")

        # Another page by its tab, while the work goes on.
        before = self.page(bench, "during-work-console")
        bench.window.click(270, 44)
        desktop.wait_until(lambda: self.page(bench, "during-work-start") != before, "the other page")

        desktop.move_pointer(*gauge)
        desktop.wait_until(self.readouts, "the readout above the gauge")
        desktop.key("ctrl+period")
        desktop.wait_until(lambda: not self.readouts(), "the readout's end with the work's")
        console = bench.wait_console("ERROR: ")
        self.assertIn("\n\nERROR: Line 1, column 1: interrupted; the statement changed nothing\n", console)
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertEqual(bench.window.title(), "Untitled - Zenqo Workbench")
        self.finish(bench)


class Sizes(workbench.TestCase):
    PAGES = {"start": "ctrl+1", "console": "ctrl+2", "data": "ctrl+3", "matrices": "ctrl+4"}

    def pictures(self, bench, name):
        """Photographs all pages; none may be empty."""
        for page, key in self.PAGES.items():
            desktop.key(key)
            desktop.wait_still(lambda: desktop.fingerprint(bench.window.photograph(f"{name}-{page}")))
            self.assertGreater(desktop.colours(desktop.output_folder() / f"{name}-{page}.png"), 10)

    def test_small_and_maximised(self):
        bench = self.start()
        bench.window.click(*bench.SAMPLE_LINK)
        bench.wait_title("sample.zws - Zenqo Workbench")
        bench.window.resize(1024, 700)
        self.pictures(bench, "small")

        small = bench.window.geometry()
        bench.window.activate()
        desktop.run("xdotool", "windowmove", bench.window.number, 0, 0,
                    "windowsize", bench.window.number, "100%", "100%")
        desktop.wait_until(lambda: bench.window.geometry()[2] > small[2], "the whole screen")
        desktop.wait_still(bench.window.geometry)
        self.pictures(bench, "whole-screen")

        # No smaller than it can be read.
        desktop.run("xdotool", "windowsize", bench.window.number, 300, 200)
        desktop.wait_still(bench.window.geometry)
        _, _, width, height = bench.window.geometry()
        self.assertGreater(width, 780)
        self.assertGreater(height, 450)
        self.pictures(bench, "smallest")
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
