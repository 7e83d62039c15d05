"""Scripts: a session saved and replayed, in a window and without one."""

import os
import shutil
import unittest

import desktop
import workbench
from workbench import WAGES, WAGES_PRINTED


class Session(workbench.TestCase):
    def test_a_session_saved_as_a_script_runs_again_in_batch(self):
        data = self.file("wages.csv", WAGES)
        script = self.folder / "session.zqs"
        bench = self.start()
        bench.import_by_drop(data, "wages")
        bench.wait_title("*Untitled - Zenqo Workbench")
        # What failed is not part of the session.
        bench.import_by_drop(self.file("torn.csv", "a,b\n1,2\n3\n"), "torn")
        bench.wait_console("ERROR: ")
        desktop.key("ctrl+p")
        bench.wait_console("Dataset wages: 3 observations of 3 variables")
        workspace = self.folder / "work.zws"
        desktop.key("ctrl+shift+s")
        bench.choose_file("Save workspace", workspace)
        bench.wait_title("work.zws - Zenqo Workbench")
        # By the menu itself, as it has no key of its own.
        desktop.key("alt+s")
        desktop.photograph_screen("script-menu")
        workbench.press_until(lambda: desktop.windows("Save session as script"), "s")
        bench.choose_file("Save session as script", script)
        desktop.wait_until(script.exists, script)
        self.finish(bench)

        self.assertEqual(script.read_text(), f'wages = import("{data}", ",");\nprint(wages);\n'
                                             f'save("{workspace}");\n')
        before = workspace.read_bytes()
        workspace.unlink()
        status, output = self.batch(script)
        self.assertEqual(status, 0)
        self.assertEqual(workspace.read_bytes(), before)
        self.assertIn("\n" + WAGES_PRINTED, output)

    def batch(self, script, **options):
        """Runs a script in batch; gives exit status and standard output."""
        program = self.program("--batch", script, **options)
        status = program.wait_end(workbench.PATIENCE)
        self.assertEqual(program.errors(), "")
        return status, program.output()

    def test_a_script_run_in_the_window(self):
        script = self.file("two.zqs", "m = [1, 2; 3, 4];\nprint(m);\n")
        bench = self.start()
        desktop.key("ctrl+r")
        bench.choose_file("Run script", script)
        bench.wait_title("*Untitled - Zenqo Workbench")
        self.assertIn("\n >> print(m);\n", bench.wait_console("print(m)"))
        self.finish(bench)

    def test_batch_goes_to_standard_output_and_opens_no_window(self):
        status, output = self.batch(self.file("one.zqs", "m = 2;\nprint(m);\n"))
        self.assertEqual(status, 0)
        self.assertEqual(output, "\n >> m = 2;\n\n\n >> print(m);\n\n\nMatrix m: 1 row, 1 column\n2\n\n")
        self.assertEqual(desktop.windows("Zenqo Workbench"), [])

    def test_the_first_error_ends_a_batch_with_status_1(self):
        status, output = self.batch(self.file("bad.zqs", 'm = 2;\nload("missing.zws");\nn = 3;\n'))
        self.assertEqual(status, 1)
        self.assertIn("\n\nERROR: Line 2, column 1: ", output)
        self.assertNotIn("n = 3", output)

    def test_a_script_outside_the_grammar_runs_nothing(self):
        status, output = self.batch(self.file("bad.zqs", "m = 2;\nm = = 3;\n"))
        self.assertEqual(status, 1)
        self.assertIn("ERROR: Line 2, column 5: ", output)
        self.assertNotIn(">>", output)

    def test_a_missing_script_is_status_1(self):
        status, output = self.batch("missing.zqs")
        self.assertEqual(status, 1)
        self.assertIn("ERROR: The script missing.zqs can't be read: No such file or directory.", output)

    @unittest.skipUnless(shutil.which("xvfb-run"), "there is no xvfb-run; scripts/setup installs it")
    def test_batch_without_a_display(self):
        bare = {name: value for name, value in os.environ.items()
                if name not in ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")}
        status, output = self.batch(self.file("one.zqs", "m = 2;\nprint(m);\n"), env=bare)
        self.assertEqual(status, 0)
        self.assertIn(">> print(m);", output)
        status, output = self.batch(self.file("bad.zqs", "print(m);\n"), env=bare)
        self.assertEqual(status, 1)
        self.assertIn("ERROR: Line 1, column ", output)


if __name__ == "__main__":
    workbench.main()
