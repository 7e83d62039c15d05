"""Figures: plots of a script in the window and in batch, and their export."""

import os
import subprocess
import unittest
import xml.etree.ElementTree

import desktop
import workbench

DATA = "year,gdp,cpi\n2001,10,2.1\n2002,12,2.4\n2003,11,\n2004,14,2.2\n2005,16,3.1\n"
TYPES = ("histogram", "scatter", "history", "density", "lines", "correlogram")


class Figures(workbench.TestCase):
    def script(self, statements):
        """A script that imports the data as `macro` and goes on with some statements."""
        data = self.file("macro.csv", DATA)
        return self.file("plots.zqs", f'macro = import("{data}", ",");\n{statements}\n')

    def figures_window(self, title):
        return desktop.wait_window(title + " - Figures - Zenqo Workbench", workbench.PATIENCE)

    def photograph_at_rest(self, window, name):
        """Photographs the window once the figure is drawn for its size."""
        desktop.wait_still(lambda: window.photograph(name).read_bytes(), moments=4)
        self.assertGreater(desktop.colours(window.photograph(name)), 30)

    def test_a_script_shows_its_plots_and_they_are_looked_at_and_exported(self):
        script = self.script('plot(macro, "gdp", "history");\nplot(macro, "gdp cpi", "scatter");')
        bench = self.start("--run", script, title="*Untitled - Zenqo Workbench")
        window = self.figures_window("macro: scatter of gdp against cpi")
        self.assertGreater(desktop.colours(window.photograph("figures-scatter")), 30)
        # The other one by the keyboard, where the list has the focus.
        window.activate()
        workbench.press_until(lambda: window.title().startswith("macro: history of gdp"), "Up")

        picture = self.folder / "history.svg"
        workbench.press_until(lambda: desktop.windows("Export Figure"), "ctrl+e")
        dialog = bench.box("Export Figure", "export-figure")
        dialog.click(120, 40)
        desktop.key("ctrl+a")
        desktop.type_text(str(picture))
        workbench.press_until(lambda: not dialog.exists(), "alt+e")
        desktop.wait_until(picture.exists, picture)
        root = xml.etree.ElementTree.parse(picture).getroot()
        texts = [element.text for element in root.iter("{http://www.w3.org/2000/svg}text")]
        self.assertIn("Observation", texts)
        self.assertIn("gdp", texts)
        self.assertEqual((root.get("width"), root.get("height")), ("400", "250"))

        # Away by a key, and back by a key of the workbench.
        workbench.press_until(lambda: not window.exists(), "Escape")
        bench.window.activate()
        workbench.press_until(window.exists, "ctrl+5")
        window.photograph("figures-history")

        bench.window.activate()
        console = bench.wait_console("Plot of macro: scatter of gdp against cpi")
        self.assertIn("gdp and cpi: 4 observations, 1 left out", console.replace("cpi and gdp", "gdp and cpi"))
        self.finish(bench)

    def test_a_copied_figure_is_a_picture_for_other_programs(self):
        bench = self.start("--run", self.script('plot(macro, "gdp", "density");'),
                           title="*Untitled - Zenqo Workbench")
        window = self.figures_window("macro: density of gdp")
        window.activate()
        picture = self.folder / "pasted.png"

        def paste():
            with open(picture, "wb") as file:
                return subprocess.run(["xclip", "-o", "-selection", "clipboard", "-t", "image/png"],
                                      stdout=file, stderr=subprocess.DEVNULL, check=False,
                                      timeout=20).returncode == 0

        workbench.press_until(paste, "ctrl+c")
        width, height = map(int, desktop.run("identify", "-format", "%w %h", picture).split())
        self.assertGreater(width, 300)
        self.assertGreater(height, 200)
        self.assertGreater(desktop.colours(picture), 30)
        self.finish(bench)

    def test_the_figure_grows_and_shrinks_with_the_window(self):
        bench = self.start("--run", self.script('plot(macro, "gdp cpi", "correlogram");'),
                           title="*Untitled - Zenqo Workbench")
        window = self.figures_window("macro: correlogram of gdp, cpi")
        window.move(20, 20)
        window.resize(1300, 760)
        self.photograph_at_rest(window, "figures-large")
        window.resize(600, 400)
        self.photograph_at_rest(window, "figures-small")
        bench.window.activate()
        self.finish(bench)

    def batch(self, statements, **options):
        """Runs the statements without a window; gives exit status and output."""
        program = self.program("--batch", self.script(statements), **options)
        status = program.wait_end(workbench.PATIENCE)
        self.assertEqual(program.errors(), "")
        return status, program.output()

    def test_batch_writes_every_type_in_every_format(self):
        status, output = self.batch("\n".join(
            f'plot(macro, "gdp year", "{kind}", "{kind}.{format}");'
            for kind in TYPES for format in ("png", "svg", "pdf")))
        self.assertEqual(status, 0, output)
        for kind in TYPES:
            png = self.folder / f"{kind}.png"
            self.assertEqual(desktop.run("identify", "-format", "%m %w %h", png), "PNG 1440 960")
            self.assertGreater(desktop.colours(png), 30)
            xml.etree.ElementTree.parse(self.folder / f"{kind}.svg")
            pdf = (self.folder / f"{kind}.pdf").read_bytes()
            self.assertTrue(pdf.startswith(b"%PDF-") and b"MediaBox [ 0 0 540 360 ]" in pdf)

    def test_batch_without_a_path_says_that_there_is_no_window(self):
        status, output = self.batch('plot(macro, "gdp", "history");')
        self.assertEqual(status, 1)
        self.assertIn("there is no window", output)

    def test_batch_without_gnuplot_is_one_error_and_leaves_the_file(self):
        old = self.file("old.png", "old")
        status, output = self.batch(f'plot(macro, "gdp", "history", "{old}");',
                                    env={**os.environ, "PATH": str(self.folder)})
        self.assertEqual(status, 1)
        self.assertEqual(output.count("ERROR"), 1)
        self.assertIn("is it installed?", " ".join(output.split()))
        self.assertEqual(old.read_text(), "old")


if __name__ == "__main__":
    workbench.main()
