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

    def refuse(self, dialog, title, picture):
        """Presses Run, and the button of the box that comes; the dialog is there again as it was."""
        box = workbench.box_of(dialog, "alt+r", title, picture)
        workbench.press_until(lambda: not box.exists(), "Return")
        desktop.wait_until(dialog.exists, "the dialog again")
        dialog.activate()



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
        dialog = bench.open("alt+p", "j", "JAGS Interface")
        workbench.fill(dialog, (self.DATA, "line.y, line.x,\nhalf"), (self.MONITORS, '"mu", "tau"'))
        workbench.type_path(dialog, self.FILE, model)
        workbench.fill(dialog, *sampler)
        return dialog

    @needs("jags")
    def test_a_model_is_run_by_its_dialog_and_worked_with(self):
        bench = self.start_with_line()
        model = self.file("a model's file.bug", MODEL)
        dialog = self.fill_all(bench, model, (self.DRAWS, "300"), (self.BURN_IN, "50"), (self.CHAINS, "2"),
                               (self.THINNING, "2"), (self.SEED, "7"))
        dialog.click(*self.STORE)
        workbench.fill(dialog, (self.NAME, "a_jags"))
        dialog.photograph("jags-filled")
        dialog.click(*self.INITIAL_VALUES)
        workbench.fill(dialog, (self.INITS, "mu = 1, tau = 10"))
        dialog.click(*self.PLUS)
        workbench.fill(dialog, (self.INITS, "mu = -1,\ntau = 0.1"))
        workbench.accept(dialog, "alt+r", "jags-initial-values")
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

        dialog = bench.open("alt+m", "t", "Test Parameter Restrictions")
        dialog.click(*self.FIRST_DRAW)
        dialog.click(*self.TO_LEFT_HAND)
        workbench.fill(dialog, (self.RIGHT_HAND, "0"))
        dialog.click(*self.ADD)
        workbench.accept(dialog, "alt+r", "jags-test")
        bench.wait_console('\n >> test(a_jags, "a_jags.mu > 0");\n')

        for key in "frmaie":
            dialog = bench.open("alt+m", key, "Funtion not implemented")
            workbench.accept(dialog, "Return", "jags-not-ready")

        dialog = bench.open("alt+m", "o", "Plot Samples")
        dialog.click(*self.FIRST_DRAW)
        dialog.click(*self.TO_PLOT)
        workbench.accept(dialog, "alt+r", "jags-plot")
        window = desktop.wait_window("a_jags: histogram of mu - Figures - Zenqo Workbench", workbench.PATIENCE)
        self.assertGreater(desktop.colours(window.photograph("jags-plotted")), 30)
        bench.window.activate()

        # Without a marginal likelihood it is not among those that can be compared.
        dialog = bench.open("alt+m", "c", "Compare Models")
        dialog.click(*self.FIRST_MODEL)
        dialog.click(*self.TO_COMPARE)
        workbench.accept(dialog, "alt+r", "jags-compare")
        self.assertNotIn("ERROR", bench.wait_console('\n >> compare("reg");\n'))

    @needs("jags")
    def test_a_broken_model_is_told_in_the_words_of_jags_and_a_long_run_is_stopped(self):
        bench = self.start_with_line()
        dialog = self.fill_all(bench, self.file("broken.bug", "model {\n mu ~ ~ dnorm(0, 1)\n}\n"),
                               (self.THINNING, "0"))
        self.refuse(dialog, "JAGS Interface", "jags-refused")
        workbench.fill(dialog, (self.THINNING, "1"))
        workbench.accept(dialog, "alt+r", "jags-broken")
        console = bench.wait_console("JAGS ended with status 1: Error parsing model file:\n"
                                     'syntax error on line 2 near "~"')
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertEqual(self.runs(), [])

        dialog = self.fill_all(bench, self.file("good.bug", MODEL), (self.BURN_IN, "2000000000"))
        workbench.accept(dialog, "alt+r", "jags-long")
        self.wait_process(bench, "jags")
        bench.wait_console("Updating 2000000000\n")
        bench.window.photograph("jags-running")
        desktop.key("ctrl+period")
        self.wait_stopped(bench)
        self.finish(bench)


class Bridge:
    """What is tested with both programs that run scripts."""

    # Points of the dialog.
    SCRIPT = (200, 64)
    HANDED_OUT = (200, 145)
    HANDED_BACK = (200, 270)

    NUMBERS = "0.1,-0,1e-300\n1.0000000000000002,inf,NaN\n"

    def fill_all(self, bench, script, out="", back=""):
        dialog = bench.open("alt+p", self.KEY, self.TITLE)
        workbench.type_path(dialog, self.SCRIPT, script)
        workbench.fill(dialog, (self.HANDED_OUT, out), (self.HANDED_BACK, back))
        return dialog

    def test_a_script_is_handed_a_matrix_and_hands_one_back(self):
        begin = self.file("begin.zqs", "A = [0.1, -0, 1e-300; 1.0000000000000002, inf, nan];\n")
        bench = self.start("--run", begin, env=self.environment(), title="*Untitled - Zenqo Workbench")
        script = self.file(f"a script's file.{self.KEY}", self.MIRROR)
        workbench.accept(self.fill_all(bench, script, "A", "B,\nA"), "alt+r", f"{self.COMMAND}-filled")
        bench.wait_console(f'\n >> {self.COMMAND}("{script}", "A", "B, A");\n')
        console = bench.wait_console("\nMatrix B: 2 rows, 3 columns\nMatrix A: 1 row, 1 column\n")
        self.assertIn("läuft\n", console)

        # All digits, as the export of the matrix that came last writes them.
        desktop.key("ctrl+4")
        dialog = bench.open("alt+d", "m", "Export Matrix B")
        workbench.type_path(dialog, (120, 40), self.folder / "B.csv")
        workbench.accept(dialog, "alt+e", f"{self.COMMAND}-export")
        self.assertNotIn("ERROR", bench.wait_console('\n >> export(B, '))
        self.assertEqual((self.folder / "B.csv").read_text(), self.NUMBERS)

        script.write_text(self.FAILING)
        workbench.accept(self.fill_all(bench, script, "A", "A"), "alt+r", f"{self.COMMAND}-failing")
        console = bench.wait_console(self.FAILURE)
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertEqual(self.runs(), [])
        bench.window.photograph(f"{self.COMMAND}-failed")

        script.write_text(self.HANGING)
        workbench.accept(self.fill_all(bench, script), "alt+r", f"{self.COMMAND}-hanging")
        bench.wait_console("hängt\n")
        self.wait_process(bench, self.PROCESS)
        self.stop(bench)
        self.wait_stopped(bench)
        self.finish(bench)


@needs("octave")
class Octave(Bridge, Outside):
    KEY = "o"
    COMMAND = "octave"
    PROCESS = "octave"
    TITLE = "GNU Octave Interface"
    MIRROR = 'disp ("läuft");\nB = A;\nA = rows (A);\n'
    FAILING = 'x = 1;\nerror ("boom %d", x);\n'
    FAILURE = "GNU Octave ended with status 1: error: boom 1\n"
    HANGING = 'disp ("hängt"); fflush (stdout);\nwhile (true) endwhile\n'

    def stop(self, bench):
        desktop.key("alt+s", "t")


@needs("R")
class Rproject(Bridge, Outside):
    KEY = "r"
    COMMAND = "rproject"
    PROCESS = "/R"
    TITLE = "R-project Interface"
    MIRROR = "cat('läuft\\n')\nB <- A\nA <- nrow(A)\n"
    FAILING = "stop('boom')\n"
    FAILURE = ": boom\n"
    HANGING = "cat('hängt\\n')\nrepeat {}\n"

    def stop(self, bench):
        # The window that is to close ends the work first.
        bench.window.close()


class NotRun(Outside):
    """Programs whose dialogs are there, but which the workbench doesn't run."""

    def check(self, bench, key, title, picture, script=None):
        dialog = bench.open("alt+p", key, title)
        if script:
            self.refuse(dialog, "Warning", f"{picture}-without-script")
            workbench.type_path(dialog, script, "/nowhere/at all.m")
        box = workbench.box_of(dialog, "alt+r", title, f"{picture}-not-run")
        workbench.press_until(lambda: not box.exists(), "Return")
        self.assertFalse(dialog.exists())

    def test_what_is_not_run_is_said(self):
        bench = self.start(env=self.environment())
        self.check(bench, "b", "BUGS Interface", "openbugs")
        self.check(bench, "s", "Stan Interface", "stan")
        self.check(bench, "m", "MATLAB® Interface", "matlab", Bridge.SCRIPT)
        self.check(bench, "t", "Stata® Interface", "stata", Bridge.SCRIPT)
        self.assertNotIn(">>", bench.console())
        self.finish(bench)


class Batch(Outside):
    """Programs that are not what they should be. Each is one error and leaves nothing."""

    CALLS = {
        "jags": 'jags("{0}", "", "mu", "draws"=2, "chains"=1);',
        "octave": 'octave("{0}", "", "A");',
        "r": 'rproject("{0}", "", "A");',
    }
    NAMES = {"jags": "JAGS", "octave": "GNU Octave", "r": "R"}

    def outputs(self, paths):
        """What batch runs say, of which each calls one program that is at a path; side by side."""
        script = self.file("script", "model { mu ~ dnorm(0, 1) }\n")
        self.settings.write_text(json.dumps({"programs": paths}))
        runs = {key: self.program("--batch", self.file(f"{key}.zqs", self.CALLS[key].format(script)),
                                  env=self.environment()) for key in paths}
        for program in runs.values():
            self.assertEqual(program.wait_end(workbench.PATIENCE), 1)
            self.assertEqual(program.errors(), "")
        self.assertEqual(self.runs(), [])
        return {key: program.output() for key, program in runs.items()}

    def check(self, path, words):
        """The programs at `path` must all be one error that ends in `words`, which may name the program."""
        for key, output in self.outputs(dict.fromkeys(self.CALLS, str(path))).items():
            said = words[key] if isinstance(words, dict) else words
            self.assertEqual(output.split("ERROR: ")[1:],
                             [f"Line 1, column 1: {said.format(program=self.NAMES[key])}\n"], output)

    def make_program(self, commands):
        program = self.file("my prögram", f"#!/bin/sh\n{commands}\n")
        program.chmod(0o700)
        return program

    def test_a_path_that_leads_nowhere(self):
        path = self.folder / "no such program"
        self.check(path, f'{{program}} ("{path}") cannot be started: No such file or directory; install it, or set '
                         "its path among the paths to external programs")

    def test_a_file_that_is_no_program(self):
        path = self.file("notes.txt", "no program")
        self.check(path, f'{{program}} ("{path}") cannot be started: Permission denied; set its path among the paths '
                         "to external programs")

    def test_a_program_that_crashes(self):
        self.check(self.make_program("echo 'about to' >&2; kill -SEGV $$"),
                   "{program} was ended by the signal 11: about to")

    def test_a_program_that_gives_nothing(self):
        self.check(self.make_program("exit 0"),
                   {"jags": "JAGS gave no draws", "octave": 'GNU Octave handed back no "A": the script ended it before',
                    "r": 'R handed back no "A": the script ended it before'})

    def test_a_run_is_ended_by_a_signal_and_leaves_nothing(self):
        mark = self.folder / "started"
        path = self.make_program(f"touch {mark}; sleep 1000")
        self.settings.write_text(json.dumps({"programs": {"octave": str(path)}}))
        script = self.file("octave.zqs", self.CALLS["octave"].format(self.file("script", "")))
        program = self.program("--batch", script, env=self.environment())
        desktop.wait_until(mark.exists, "the start of the program", workbench.PATIENCE)
        self.assertEqual(len(self.runs()), 1)
        program.process.send_signal(signal.SIGINT)
        self.assertEqual(program.wait_end(workbench.PATIENCE), 1)
        self.assertIn(INTERRUPTED, program.output())
        self.assertEqual(program.errors(), "")
        self.assertEqual(self.processes(program), [])
        self.assertEqual(self.runs(), [])


if __name__ == "__main__":
    workbench.main()
