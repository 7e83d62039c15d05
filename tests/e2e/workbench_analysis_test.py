"""A model estimated and worked with by mouse and keyboard in the running workbench."""

import desktop
import workbench
from workbench import Bench

# y is about 2 + 0.5 x.
LINE = "y,x\n" + "".join(f"{2 + 0.5 * x + (0.1 if x % 3 else -0.2)},{x}\n" for x in range(1, 21))

TWO_MODELS = """\
line = import("{data}", ",");
all = regress(line, "y", "x", "constant"=true, "draws"=500, "burnin"=100, "seed"=5);
bare = regress(line, "y", "", "constant"=true, "draws"=500, "burnin"=100, "seed"=5);
"""


class Analysis(workbench.TestCase):
    # Points of the form of a regression.
    FIRST_VARIABLE = (80, 99)
    TO_DEPENDENT = (233, 102)
    TO_INDEPENDENT = (233, 313)
    CONSTANT = (493, 51)
    DRAWS = (705, 220)
    FORM_OK = (708, 573)

    # Points of the dialog of restrictions.
    FIRST_DRAW = (44, 122)
    TO_LEFT_HAND = (230, 125)
    RIGHT_HAND = (411, 225)
    ADD = (499, 405)

    # Points of the dialog that compares models.
    FIRST_MODEL = (25, 61)
    TO_COMPARE = (250, 139)

    # Points of the dialog that plots draws.
    PLOTTED_DRAW = (44, 123)
    TO_PLOT = (250, 223)
    ALL_PLOTS = (340, 383)

    def with_models(self):
        script = self.file("models.zqs", TWO_MODELS.format(data=self.file("line.csv", LINE)))
        bench = self.start("--run", script, title="*Untitled - Zenqo Workbench")
        bench.wait_console("Estimated linear regression of y, dataset line\nobservations: 20, left out: 0\n1 chain "
                           "of 500 draws, burn-in 100, thinning 1, seed 5\n")
        return bench

    def open(self, bench, key, title):
        """Opens a dialog of the menu Model."""
        return bench.open("alt+m", key, title)

    def accept(self, dialog, picture, key="Return"):
        workbench.accept(dialog, key, picture)

    def test_without_a_model_an_entry_says_so(self):
        bench = self.start()
        desktop.key("alt+m", "t")
        bench.dismiss("Zenqo Workbench", "Return", "model-menu-without-model")
        self.assertNotIn(">>", bench.console())
        self.finish(bench)

    def test_a_regression_is_specified_by_mouse(self):
        bench = self.start()
        bench.import_by_drop(self.file("line.csv", LINE), "line")
        bench.wait_title("*Untitled - Zenqo Workbench")
        desktop.key("ctrl+m")
        form = bench.box("Linear Regression")
        form.click(*self.FIRST_VARIABLE)
        form.click(*self.TO_DEPENDENT)
        form.click(*self.FIRST_VARIABLE)
        form.click(*self.TO_INDEPENDENT)
        form.click(*self.CONSTANT)
        form.click(*self.DRAWS)
        desktop.key("ctrl+a")
        desktop.type_text("400")
        form.photograph("regression-form")
        workbench.retry_until(lambda: not form.exists(), lambda: form.click(*self.FORM_OK), "the end of the form")
        console = bench.wait_console(
            '\n >> reg1 = regress(line, "y", "x", "constant"=true, "draws"=400, "burnin"=10000, "chains"=1, '
            '"thin"=1, "seed"=42);\n')
        console = bench.wait_console("log marginal likelihood: ")
        self.assertIn("1 chain of 400 draws, burn-in 10000, thinning 1, seed 42", console)
        self.assertNotIn("ERROR", console)
        bench.window.photograph("regression-printed")
        # The table is a table for TeX, too.
        self.assertIn("\\begin{tabular}", bench.copied("ctrl+2", "ctrl+a", "ctrl+t"))
        self.finish(bench)

    def test_a_long_estimation_is_stopped_by_the_key_while_the_console_has_the_focus(self):
        bench = self.with_models()
        bench.window.click(*Bench.PAGE)
        script = self.file("long.zqs", 'long = regress(line, "y", "x", "draws"=20000, "thin"=100000, "chains"=2);')
        threads = bench.program.threads()
        desktop.key("ctrl+r")
        bench.choose_file("Run script", script)
        # Each chain has a thread of its own.
        desktop.wait_until(lambda: bench.program.threads() >= threads + 2, "the threads of the chains",
                           workbench.PATIENCE)
        bench.window.photograph("regression-runs")
        desktop.key("ctrl+period")
        console = bench.wait_console("interrupted; the statement changed nothing")
        self.assertEqual(console.count("ERROR: "), 1)
        self.finish(bench)

    def test_what_cannot_be_estimated_is_one_error(self):
        bench = self.with_models()
        script = self.file("bad.zqs", 'bad = regress(line, "x", "x", "constant"=true);')
        desktop.key("ctrl+r")
        bench.choose_file("Run script", script)
        console = bench.wait_console("ERROR: ")
        self.assertEqual(console.count("ERROR: "), 1)
        self.finish(bench)

    def test_all_that_is_asked_of_a_model_is_the_same_in_batch(self):
        bench = self.with_models()

        dialog = self.open(bench, "t", "Test Parameter Restrictions")
        self.fill_condition(dialog)
        self.accept(dialog, "test-restrictions", "alt+r")
        bench.wait_console('\n >> test(all, "all.constant > 1");\n')

        dialog = self.open(bench, "c", "Compare Models")
        self.choose_both(dialog)
        self.accept(dialog, "compare-models", "alt+r")
        bench.wait_console('\n >> compare("all bare");\n')

        dialog = self.open(bench, "f", "Store model element to dataset")
        self.accept(dialog, "store-fitted")
        bench.wait_console('\n >> store(all, "fitted", line, "fitted");\n')

        dialog = self.open(bench, "m", "Calculate marginal effects")
        self.accept(dialog, "marginal-effects")
        bench.wait_console('\n >> mfx(all, "point"="mean", "type"=1);\n')

        dialog = self.open(bench, "a", "Forecast")
        self.accept(dialog, "forecast")
        bench.wait_console("\n >> forecast(all, 1);\n")

        dialog = self.open(bench, "e", "Generate predictions")
        self.accept(dialog, "predictions")
        bench.wait_console("\n >> predict(all, line, \"type\"=1);\n")

        dialog = self.open(bench, "i", "Funtion not implemented")
        self.accept(dialog, "no-impulse-responses")

        console = bench.console()
        self.assertNotIn("ERROR", console)
        workspace = self.folder / "work.zws"
        script = self.folder / "session.zqs"
        desktop.key("ctrl+s")
        bench.choose_file("Save workspace", workspace)
        bench.wait_title("work.zws - Zenqo Workbench")
        desktop.key("alt+s")
        workbench.press_until(lambda: desktop.windows("Save session as script"), "s")
        bench.choose_file("Save session as script", script)
        desktop.wait_until(script.exists, script)

        # Only now, since a batch run has no window for figures.
        dialog = self.open(bench, "o", "Plot Samples")
        dialog.click(*self.PLOTTED_DRAW)
        dialog.click(*self.TO_PLOT)
        dialog.click(*self.ALL_PLOTS)
        self.accept(dialog, "plot-draws", "alt+r")
        window = desktop.wait_window("all: all plots of constant - Figures - Zenqo Workbench", workbench.PATIENCE)
        self.assertGreater(desktop.colours(window.photograph("plotted-draws")), 30)
        bench.window.activate()
        bench.wait_console('\n >> plot(all, "constant", "all");\n')
        self.finish(bench)

        # The same numbers to the last bit: models with their draws, new variables.
        saved = workspace.read_bytes()
        workspace.unlink()
        program = self.program("--batch", script)
        self.assertEqual(program.wait_end(workbench.PATIENCE), 0)
        self.assertEqual(workspace.read_bytes(), saved)

    def fill_condition(self, dialog):
        """Puts a condition on the first draw, whose name is taken over from its list, into the list."""
        dialog.click(*self.FIRST_DRAW)
        dialog.click(*self.TO_LEFT_HAND)
        dialog.click(*self.RIGHT_HAND)
        desktop.type_text("1")
        dialog.click(*self.ADD)

    def choose_both(self, dialog):
        def shown():
            return desktop.fingerprint(dialog.photograph("choose-models"))

        for _ in range(2):
            dialog.click(*self.FIRST_MODEL)
            before = shown()
            dialog.click(*self.TO_COMPARE)
            # Until the list is drawn again its next entry takes no click.
            desktop.wait_until(lambda: shown() != before, "another list")
            desktop.wait_still(shown)


if __name__ == "__main__":
    workbench.main()
