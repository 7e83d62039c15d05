"""Workspace files: saved, opened, dropped, broken; and what closing asks."""

import desktop
import workbench
from workbench import WAGES_CELLS, Bench

CLOSING = "Zenqo Workbench"


class Files(workbench.TestCase):
    def saved(self, bench, name="work.zws"):
        """Saves the workspace by the menu; gives the file's path."""
        path = self.folder / name
        desktop.key("ctrl+shift+s")
        bench.choose_file("Save workspace", path)
        bench.wait_title(f"{name} - Zenqo Workbench")
        return path


class SaveAndOpen(Files):
    def test_a_saved_workspace_is_back_at_the_next_start(self):
        bench = self.start_with_wages()
        path = self.saved(bench)
        self.assertIn(f'\n >> save("{path}");\n', bench.console())
        self.finish(bench)

        bench = self.start(path, title="work.zws - Zenqo Workbench")
        self.assertIn(f'\n >> load("{path}");\n', bench.console())
        self.assertEqual(bench.cells(), WAGES_CELLS)
        bench.window.photograph("workspace-is-back")
        self.finish(bench)

    def test_a_workspace_is_opened_by_the_menu_and_saved_again_without_a_question(self):
        bench = self.start_with_wages()
        path = self.saved(bench)
        self.finish(bench)

        bench = self.start()
        desktop.key("ctrl+o")
        bench.choose_file("Open workspace", path)
        bench.wait_title("work.zws - Zenqo Workbench")
        bench.import_by_drop(self.folder / "wages.csv", "years")
        bench.wait_title("*work.zws - Zenqo Workbench")
        desktop.key("ctrl+s")
        bench.wait_title("work.zws - Zenqo Workbench")
        self.finish(bench)

        bench = self.start(path, title="work.zws - Zenqo Workbench")
        desktop.key("ctrl+3", "ctrl+p")
        bench.wait_console("Dataset years: 3 observations of 3 variables")
        self.finish(bench)

    def test_a_workspace_dropped_on_the_console_is_loaded(self):
        bench = self.start_with_wages()
        path = self.saved(bench)
        self.finish(bench)

        bench = self.start()
        desktop.key("ctrl+2")
        bench.drop(Bench.PAGE, path)
        bench.wait_title("work.zws - Zenqo Workbench")
        self.assertIn(f'\n >> load("{path}");\n', bench.console())
        self.assertEqual(bench.cells(), WAGES_CELLS)
        self.finish(bench)

    def test_a_broken_workspace_is_one_error_and_leaves_the_workspace(self):
        bench = self.start_with_wages()
        path = self.saved(bench)
        whole = path.read_bytes()
        broken = self.folder / "broken.zws"
        broken.write_bytes(whole[:len(whole) // 2])

        desktop.key("ctrl+2")
        bench.drop(Bench.PAGE, broken)
        console = bench.wait_console("ERROR: ")
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertIn(f'\n >> load("{broken}");\n\n\n\nERROR: Line 1, column 1: "{broken}" is not a '
                      "workspace file, or it is damaged", console)
        bench.window.photograph("broken-workspace")
        self.assertEqual(bench.window.title(), "work.zws - Zenqo Workbench")
        self.assertEqual(bench.cells(), WAGES_CELLS)
        self.finish(bench)

    def test_a_missing_file_as_argument_is_one_error(self):
        bench = self.start("missing.zws")
        console = bench.wait_console("ERROR: ")
        self.assertEqual(console.count("ERROR: "), 1)
        self.finish(bench)


class Closing(Files):
    def test_cancel_keeps_the_window_and_no_closes_it(self):
        bench = self.start_with_wages()
        bench.window.close()
        bench.dismiss(CLOSING, "Escape", "closing-question")
        self.assertTrue(bench.program.running())
        self.assertEqual(bench.cells(), WAGES_CELLS)

        bench.window.close()
        bench.dismiss(CLOSING, "alt+n")
        self.assertEqual(bench.program.wait_end(workbench.PATIENCE), 0)
        self.assertEqual(bench.program.errors(), "")

    def test_yes_saves_first(self):
        bench = self.start_with_wages()
        path = self.saved(bench)
        bench.import_by_drop(self.folder / "wages.csv", "years")
        bench.wait_title("*work.zws - Zenqo Workbench")
        before = path.read_bytes()
        bench.window.close()
        bench.dismiss(CLOSING, "alt+y")
        self.assertEqual(bench.program.wait_end(workbench.PATIENCE), 0)
        self.assertEqual(bench.program.errors(), "")
        self.assertNotEqual(path.read_bytes(), before)

    def test_yes_without_a_file_name_keeps_the_window(self):
        bench = self.start_with_wages()
        bench.window.close()
        bench.dismiss(CLOSING, "alt+y")
        bench.dismiss("Save workspace", "Escape")
        self.assertEqual(bench.window.title(), "*Untitled - Zenqo Workbench")
        self.finish(bench)

    def test_nothing_unsaved_closes_at_once(self):
        bench = self.start()
        self.finish(bench)


class StartPage(workbench.TestCase):
    def test_the_sample_workspace_opens_by_its_link(self):
        bench = self.start()
        bench.window.photograph("start-page")
        bench.window.click(*Bench.SAMPLE_LINK)
        bench.wait_title("sample.zws - Zenqo Workbench")
        self.assertNotIn("ERROR", bench.console())
        # The grid shows what came last.
        rows = bench.cells().split("\n")
        self.assertEqual(len(rows), 16)
        self.assertEqual(rows[0], "60323\t83\t234289\t2356\t1590\t107608\t1947")
        bench.window.photograph("sample-in-tree-and-grid")
        desktop.key("ctrl+4")
        bench.window.photograph("sample-matrices")
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
