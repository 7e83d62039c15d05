"""Programs of others: asked for in the dialogs, run in the window and in batch, stopped, missing."""

import json
import os
import shutil
import signal
import unittest
from pathlib import Path

import desktop
import workbench

INTERRUPTED = "interrupted; the statement changed nothing"

# y is about 2 + 0.5 x.
LINE = "y,x\n" + "".join(f"{2 + 0.5 * x + (0.1 if x % 3 else -0.2)},{x}\n" for x in range(1, 21))

BEGIN = """\
line = import("{data}", ",");
half = [0.5];
reg = regress(line, "y", "x", "constant"=true, "draws"=200, "burnin"=10, "seed"=5);
"""

MODEL = """\
model {
  for (i in 1:length(y)) { y[i] ~ dnorm(mu + half * x[i], tau) }
  mu ~ dnorm(0, 0.0001)
  tau ~ dgamma(0.01, 0.01)
}
"""


def needs(program):
    """Marks a test that is skipped without a program, unless it must be there."""
    return unittest.skipUnless(shutil.which(program) or "ZENQO_TEST_OUTSIDE" in os.environ,
                               f"{program} is not installed; scripts/setup --outside installs it")


class Outside(workbench.TestCase):
    """A test that sees the processes and the folders of the runs that it causes."""

    def setUp(self):
        super().setUp()
        self.temporary = self.folder / "temporary"
        self.temporary.mkdir()

    def environment(self, **changes):
        return {**os.environ, "TMPDIR": str(self.temporary), **changes}

    def runs(self):
        """The folders of runs that are there."""
        return list(self.temporary.glob("zenqo-run-*"))

    def processes(self, program):
        """The commands of the processes that the program has started, and those again."""
        mark = f"TMPDIR={self.temporary}".encode()
        found = []
        for process in Path("/proc").iterdir():
            if not process.name.isdigit() or int(process.name) == program.process.pid:
                continue
            try:
                if mark in (process / "environ").read_bytes().split(b"\0"):
                    found.append((process / "cmdline").read_bytes().replace(b"\0", b" ").decode())
            except OSError:
                pass  # It has ended meanwhile.
        return found

    def wait_process(self, bench, word):
        """Waits until one of the program's processes has a word in its command."""
        desktop.wait_until(lambda: any(word in command for command in self.processes(bench.program)),
                           lambda: f"{word!r} among {self.processes(bench.program)}", workbench.PATIENCE)
        self.assertEqual(len(self.runs()), 1)

    def wait_stopped(self, bench, count=1):
        """Waits until the statement is told to be interrupted, so many times in all."""
        desktop.wait_until(lambda: bench.console().count(INTERRUPTED) == count, INTERRUPTED,
                           workbench.PATIENCE)
        self.assertEqual(self.processes(bench.program), [])
        self.assertEqual(self.runs(), [])

    def open(self, bench, menu, key, title):
        """Opens a dialog by its entry in a menu."""
        bench.window.activate()
        desktop.key(menu)
        workbench.press_until(lambda: desktop.windows(title), key)
        return bench.box(title)

    def fill(self, dialog, *entries):
        """Clicks into fields and types what is to stand there: pairs of point and text."""
        for point, text in entries:
            dialog.click(*point)
            desktop.key("ctrl+a")
            first, *others = text.split("\n")
            desktop.type_text(first)
            for line in others:
                desktop.key("Return")
                desktop.type_text(line)

    def type_path(self, dialog, point, path):
        self.fill(dialog, (point, str(path)))
        # Until the focus goes on, the list of completions takes clicks and keys.
        desktop.key("Tab")

    def refuse(self, dialog, title, picture):
        """Presses Run, and the button of the box that comes; the dialog is there again as it was."""
        def boxes():
            return [window for window in desktop.windows(title) if window != dialog]

        box = workbench.press_until(boxes, "alt+r")[0]
        desktop.wait_still(box.geometry)
        box.photograph(picture)
        workbench.press_until(lambda: not box.exists(), "Return")
        desktop.wait_until(dialog.exists, "the dialog again")
        dialog.activate()

    def run_dialog(self, dialog, picture, key="alt+r"):
        dialog.photograph(picture)
        workbench.press_until(lambda: not dialog.exists(), key)


class Jags(Outside):
    # Points of the dialog.
    DATA = (215, 115)
    MONITORS = (215, 270)
    INITIAL_VALUES = (222, 18)
    PLUS = (115, 55)
    INITS = (215, 150)
    FILE = (550, 64)
    DRAWS = (669, 124)
    BURN_IN = (669, 157)
    CHAINS = (669, 190)
    THINNING = (669, 223)
    SEED = (669, 256)
    STORE = (445, 310)
    NAME = (641, 341)

    # Points of the dialogs that take models.
    FIRST_DRAW = (44, 122)
    TO_LEFT_HAND = (230, 125)
    RIGHT_HAND = (411, 225)
    ADD = (499, 405)
    TO_PLOT = (250, 223)
    FIRST_MODEL = (25, 61)
    TO_COMPARE = (250, 139)

    def begin(self):
        """The statements that make what the model is to be told."""
        return BEGIN.format(data=self.file("line.csv", LINE))

    def start_with_line(self):
        bench = self.start("--run", self.file("begin.zqs", self.begin()), env=self.environment(),
                           title="*Untitled - Zenqo Workbench")
        bench.wait_console("log marginal likelihood: ")
        return bench

    def fill_all(self, bench, model, *sampler):
        """Opens the dialog and fills it but for the initial values."""
        dialog = self.open(bench, "alt+p", "j", "JAGS Interface")
        self.fill(dialog, (self.DATA, "line.y, line.x,\nhalf"), (self.MONITORS, '"mu", "tau"'))
        self.type_path(dialog, self.FILE, model)
        self.fill(dialog, *sampler)
        return dialog

    @needs("jags")
    def test_a_model_is_run_by_its_dialog_and_worked_with(self):
        bench = self.start_with_line()
        model = self.file("ein Modell ä.bug", MODEL)
        dialog = self.fill_all(bench, model, (self.DRAWS, "300"), (self.BURN_IN, "50"), (self.CHAINS, "2"),
                               (self.THINNING, "2"), (self.SEED, "7"))
        dialog.click(*self.STORE)
        self.fill(dialog, (self.NAME, "a_jags"))
        dialog.photograph("jags-filled")
        dialog.click(*self.INITIAL_VALUES)
        self.fill(dialog, (self.INITS, "mu = 1, tau = 10"))
        dialog.click(*self.PLUS)
        self.fill(dialog, (self.INITS, "mu = -1,\ntau = 0.1"))
        self.run_dialog(dialog, "jags-initial-values")
        statement = (f'a_jags = jags("{model}", "line.y, line.x, half", "mu, tau", '
                     '"inits"="mu = 1, tau = 10 | mu = -1, tau = 0.1", "draws"=300, "burnin"=50, "chains"=2, '
                     '"thin"=2, "seed"=7);')
        bench.wait_console(f"\n >> {statement}\n")
        summary = "\nJAGS: draws of 2 quantities\n2 chains of 300 draws\n"
        console = bench.wait_console(summary)
        self.assertIn("Compiling model graph\n", console)
        self.assertNotIn("ERROR", console)
        self.assertEqual(self.runs(), [])
        bench.window.photograph("jags-printed")
        self.check_analysis(bench)

        # By hand the same draws: their table is the same.
        table = console[console.index(summary):]
        self.finish(bench)
        script = self.file("again.zqs", self.begin() + statement + "\n")
        program = self.program("--batch", script, env=self.environment())
        self.assertEqual(program.wait_end(workbench.PATIENCE), 0)
        self.assertIn(table.rstrip("\n"), program.output())

    def check_analysis(self, bench):
        """Everything that a model of draws alone can be asked, and what it can't."""
        desktop.key("alt+m")
        desktop.key("p")
        bench.wait_console("\n >> print(a_jags);\n")

        dialog = self.open(bench, "alt+m", "t", "Test Parameter Restrictions")
        dialog.click(*self.FIRST_DRAW)
        dialog.click(*self.TO_LEFT_HAND)
        self.fill(dialog, (self.RIGHT_HAND, "0"))
        dialog.click(*self.ADD)
        self.run_dialog(dialog, "jags-test")
        bench.wait_console('\n >> test(a_jags, "a_jags.mu > 0");\n')

        for key in "frmaie":
            dialog = self.open(bench, "alt+m", key, "Funtion not implemented")
            self.run_dialog(dialog, "jags-not-ready", "Return")

        dialog = self.open(bench, "alt+m", "o", "Plot Samples")
        dialog.click(*self.FIRST_DRAW)
        dialog.click(*self.TO_PLOT)
        self.run_dialog(dialog, "jags-plot")
        window = desktop.wait_window("a_jags: histogram of mu - Figures - Zenqo Workbench", workbench.PATIENCE)
        self.assertGreater(desktop.colours(window.photograph("jags-plotted")), 30)
        bench.window.activate()

        # Without a marginal likelihood it is not among those that can be compared.
        dialog = self.open(bench, "alt+m", "c", "Compare Models")
        dialog.click(*self.FIRST_MODEL)
        dialog.click(*self.TO_COMPARE)
        self.run_dialog(dialog, "jags-compare")
        self.assertNotIn("ERROR", bench.wait_console('\n >> compare("reg");\n'))

    @needs("jags")
    def test_a_broken_model_is_told_in_the_words_of_jags_and_a_long_run_is_stopped(self):
        bench = self.start_with_line()
        dialog = self.fill_all(bench, self.file("broken.bug", "model {\n mu ~ ~ dnorm(0, 1)\n}\n"),
                               (self.THINNING, "0"))
        self.refuse(dialog, "JAGS Interface", "jags-refused")
        self.fill(dialog, (self.THINNING, "1"))
        self.run_dialog(dialog, "jags-broken")
        console = bench.wait_console("JAGS ended with status 1: Error parsing model file:\n"
                                     'syntax error on line 2 near "~"')
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertEqual(self.runs(), [])

        self.run_dialog(self.fill_all(bench, self.file("good.bug", MODEL), (self.BURN_IN, "2000000000")),
                        "jags-long")
        self.wait_process(bench, "jags")
        bench.wait_console("Updating 2000000000\n")
        bench.window.photograph("jags-running")
        desktop.key("ctrl+period")
        self.wait_stopped(bench)
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
