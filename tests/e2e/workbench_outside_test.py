"""Programs of others: run in the window and in batch, stopped, missing."""

import os
import signal
import unittest

import desktop
import workbench


class Outside(workbench.TestCase):
    def setUp(self):
        super().setUp()
        self.temporary = self.folder / "temporary"
        self.temporary.mkdir()
        self.script = self.file("script.m", "")
        self.statement = self.file("run.zqs", f'A = [1, 2];\noctave("{self.script}", "A", "A");\n')

    def environment(self, commands=None):
        """An environment in which the shell's commands are GNU Octave, or in which there is none."""
        if commands is not None:
            program = self.file("octave", f"#!/bin/sh\nPATH=/usr/bin:/bin\n{commands}\n")
            program.chmod(0o700)
        path = str(self.folder) if commands is None else f"{self.folder}:{os.environ['PATH']}"
        return {**os.environ, "PATH": path, "TMPDIR": str(self.temporary)}

    def runs(self):
        """The folders of runs that are there."""
        return list(self.temporary.glob("zenqo-run-*"))

    def test_a_run_in_the_window_shows_what_the_program_says_and_can_be_stopped(self):
        mark = self.folder / "started"
        bench = self.start("--run", self.statement, title="Untitled - Zenqo Workbench", env=self.environment(
            f"echo 'the first line, größer'; echo 'warning: on the second' >&2; touch {mark}; exec sleep 1000"))
        desktop.wait_until(mark.exists, "the start of the program", workbench.PATIENCE)
        self.assertEqual(len(self.runs()), 1)
        bench.wait_console("the first line, größer\n")
        bench.wait_console("warning: on the second\n")
        bench.window.photograph("outside-running")
        desktop.key("ctrl+period")
        bench.wait_console("interrupted; the statement changed nothing")
        bench.window.photograph("outside-stopped")
        self.assertEqual(self.runs(), [])
        self.finish(bench)

    def test_a_batch_run_is_ended_by_a_signal_and_leaves_nothing(self):
        mark = self.folder / "started"
        program = self.program("--batch", self.statement,
                               env=self.environment(f"touch {mark}; exec sleep 1000"))
        desktop.wait_until(mark.exists, "the start of the program", workbench.PATIENCE)
        self.assertEqual(len(self.runs()), 1)
        program.process.send_signal(signal.SIGINT)
        self.assertEqual(program.wait_end(workbench.PATIENCE), 1)
        self.assertIn("interrupted; the statement changed nothing", program.output())
        self.assertEqual(program.errors(), "")
        self.assertEqual(self.runs(), [])

    def test_a_program_that_is_missing_is_one_error(self):
        program = self.program("--batch", self.statement, env=self.environment())
        self.assertEqual(program.wait_end(workbench.PATIENCE), 1)
        self.assertEqual(program.output().count("ERROR"), 1)
        self.assertIn('GNU Octave ("octave") cannot be started: No such file or directory; install it, or set its path',
                      program.output())
        self.assertEqual(self.runs(), [])


if __name__ == "__main__":
    workbench.main()
