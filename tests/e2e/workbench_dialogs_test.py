"""The data dialogs in the running workbench, from the menu to the changed grid."""

import desktop
import workbench
from workbench import Bench

MACRO = "gdp,cpi,rate\n3,10,5\n1,20,6\n2,30,7\n"


class DataMenu(workbench.TestCase):
    # Fields of the dialog that creates a variable.
    NAME = (413, 126)
    EXPRESSION = (413, 186)

    def imported(self):
        bench = self.start()
        bench.drop(Bench.TREE, self.file("macro.csv", MACRO))
        bench.dismiss("Import Data", "Return")
        bench.wait_title("*Untitled - Zenqo Workbench")
        return bench

    def choose_first(self):
        """From the button with the focus round to the dataset, its variables and the transfer button."""
        desktop.key("Tab", "Tab", "Down", "Tab", "space")

    def run_dialog(self, dialog, picture):
        dialog.photograph(picture)
        workbench.press_until(lambda: not dialog.exists(), "alt+r")

    def test_without_a_dataset_an_entry_says_so(self):
        bench = self.start()
        desktop.key("ctrl+u")
        bench.dismiss("Zenqo Workbench", "Return", "data-menu-without-data")
        self.assertNotIn(">>", bench.console())
        self.finish(bench)

    def test_a_variable_is_created(self):
        bench = self.imported()
        desktop.key("ctrl+k")
        dialog = bench.box("Create Variable")
        dialog.click(*self.NAME)
        desktop.type_text("lgdp")
        dialog.click(*self.EXPRESSION)
        desktop.type_text("2*macro.gdp")
        self.run_dialog(dialog, "create-variable")
        bench.wait_console('\n >> create(macro, "lgdp", "2*macro.gdp");\n')
        self.assertEqual(bench.cells(), "3\t10\t5\t6\n1\t20\t6\t2\n2\t30\t7\t4")
        self.finish(bench)

    def test_a_failed_expression_is_told_on_the_console_and_changes_nothing(self):
        bench = self.imported()
        desktop.key("ctrl+k")
        dialog = bench.box("Create Variable")
        dialog.click(*self.NAME)
        desktop.type_text("bad")
        dialog.click(*self.EXPRESSION)
        desktop.type_text("macro.gdp+")
        self.run_dialog(dialog, "create-variable-badly")
        console = bench.wait_console("ERROR: ")
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertEqual(bench.cells(), "3\t10\t5\n1\t20\t6\n2\t30\t7")
        self.finish(bench)

    def test_the_observations_are_sorted(self):
        bench = self.imported()
        desktop.key("alt+d", "s")
        dialog = bench.box("Sort Data")
        self.choose_first()
        self.run_dialog(dialog, "sort-data")
        bench.wait_console('\n >> sort(macro, "gdp");\n')
        self.assertEqual(bench.cells(), "1\t20\t6\n2\t30\t7\n3\t10\t5")
        self.finish(bench)

    def test_variables_are_deleted_after_a_warning_that_none_is_chosen(self):
        bench = self.imported()
        desktop.key("alt+d", "d")
        dialog = bench.box("Delete Variables")
        workbench.press_until(lambda: desktop.windows("Warning"), "alt+r")
        bench.dismiss("Warning", "Return", "delete-none")
        self.assertTrue(dialog.exists())
        self.choose_first()
        self.run_dialog(dialog, "delete-variables")
        bench.wait_console('\n >> drop(macro, "gdp");\n')
        self.assertEqual(bench.cells(), "10\t5\n20\t6\n30\t7")
        self.finish(bench)

    def test_variables_are_summarized(self):
        bench = self.imported()
        desktop.key("ctrl+u")
        dialog = bench.box("Summarize Data")
        self.choose_first()
        self.run_dialog(dialog, "summarize-data")
        console = bench.wait_console('\n >> summarize(macro, "gdp", "available");\n')
        self.assertNotIn("ERROR", console)
        self.finish(bench)

    def test_a_variable_is_plotted(self):
        bench = self.imported()
        desktop.key("ctrl+g")
        dialog = bench.box("Plot Data")
        self.choose_first()
        self.run_dialog(dialog, "plot-data")
        window = desktop.wait_window("macro: histogram of gdp - Figures - Zenqo Workbench", workbench.PATIENCE)
        self.assertGreater(desktop.colours(window.photograph("plotted")), 30)
        bench.window.activate()
        bench.wait_console('\n >> plot(macro, "gdp", "histogram");\n')
        self.finish(bench)

    def test_work_done_in_dialogs_is_the_same_in_batch(self):
        bench = self.imported()
        desktop.key("ctrl+k")
        dialog = bench.box("Create Variable")
        dialog.click(*self.NAME)
        desktop.type_text("lcpi")
        dialog.click(*self.EXPRESSION)
        desktop.type_text("log( macro.cpi )")
        self.run_dialog(dialog, "create-logarithm")
        bench.wait_console("create(")
        desktop.key("alt+d", "s")
        dialog = bench.box("Sort Data")
        self.choose_first()
        self.run_dialog(dialog, "sort-before-structure")
        bench.wait_console("sort(")
        desktop.key("alt+d", "t")
        dialog = bench.box("Set Dataset Structure")
        self.choose_first()
        self.run_dialog(dialog, "set-structure")
        console = bench.wait_console('\n >> structure(macro, "gdp", "index", "");\n')
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
        self.finish(bench)

        saved = workspace.read_bytes()
        workspace.unlink()
        program = self.program("--batch", script)
        self.assertEqual(program.wait_end(workbench.PATIENCE), 0)
        # Equal workspaces make equal files: names, values, structure.
        self.assertEqual(workspace.read_bytes(), saved)

    def test_a_dataset_is_cleared(self):
        bench = self.imported()
        desktop.key("alt+d", "a")
        dialog = bench.box("Clear dataset")
        self.run_dialog(dialog, "clear-dataset")
        bench.wait_console("\n >> clear(macro);\n")
        bench.wait_title("Untitled - Zenqo Workbench")
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
