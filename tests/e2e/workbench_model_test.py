"""Models specified by mouse and keyboard in the running workbench."""

import desktop
import workbench
from workbench import Bench

MACRO = "gdp,cpi,rate\n1,10,5\n2,20,\n3,30,7\n4,40,8\n5,50,9\n"


class Forms(workbench.TestCase):
    NAME = (420, 400)  # The field for the name of what is made.

    def imported(self):
        bench = self.start()
        bench.drop(Bench.TREE, self.file("macro.csv", MACRO))
        bench.dismiss("Import Data", "Return")
        bench.wait_title("*Untitled - Zenqo Workbench")
        return bench

    def test_without_a_dataset_the_form_says_so(self):
        bench = self.start()
        desktop.key("ctrl+d")
        bench.dismiss("Zenqo Workbench", "Return", "model-form-without-data")
        self.assertNotIn(">>", bench.console())
        self.finish(bench)

    def test_a_design_matrix_by_keyboard(self):
        bench = self.imported()
        desktop.key("ctrl+d")
        form = bench.box("Design Matrix")
        # From the button OK round to the dataset, on to its variables, and the first of them becomes the
        # dependent variable.
        desktop.key("Tab", "Tab", "Down", "Tab", "space")
        # Back to the variables, and past the upper button to the lower one.
        desktop.key("shift+Tab", "Down", "Tab", "Tab", "space")
        form.photograph("design-form")
        form.click(*self.NAME)
        desktop.key("ctrl+a")
        desktop.type_text("prices")
        workbench.press_until(lambda: not form.exists(), "Return")
        console = bench.wait_console('\n >> prices = design(macro, "gdp", "cpi");\n')
        self.assertIn("5 observations, 0 left out; columns: gdp cpi", console)
        self.assertNotIn("ERROR", console)
        self.finish(bench)

    def test_the_form_of_a_system_is_opened_by_the_menu_and_closed_by_escape(self):
        bench = self.imported()
        desktop.key("alt+m", "s")
        form = bench.box("System of Equations", "system-form")
        workbench.press_until(lambda: not form.exists(), "Escape")
        self.assertNotIn("design", bench.console())
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
