"""Data in and out of the workbench: dropped, imported by the menu, exported."""

import desktop
import workbench
from workbench import WAGES, WAGES_CELLS, Bench


class Drop(workbench.TestCase):
    def test_a_file_dropped_on_the_tree_becomes_a_dataset(self):
        file = self.file("pay 2003.csv", WAGES)
        bench = self.start()
        bench.drop(Bench.TREE, file)
        dialog = bench.box("Import Data", "import-dialog")
        # The proposed name is the file's, made legal.
        desktop.key("ctrl+a")
        self.assertEqual(bench.copied("ctrl+c"), "pay_2003")
        desktop.type_text("wages")
        workbench.press_until(lambda: not dialog.exists(), "Return")

        bench.wait_title("*Untitled - Zenqo Workbench")
        self.assertIn(f'\n >> wages = import("{file}", ",");\n', bench.console())
        self.assertEqual(bench.cells(), WAGES_CELLS)
        bench.window.photograph("dataset-in-tree-and-grid")
        self.finish(bench)

    def test_a_cancelled_import_does_nothing(self):
        bench = self.start()
        bench.drop(Bench.TREE, self.file("wages.csv", WAGES))
        bench.dismiss("Import Data", "Escape")
        self.assertNotIn(">>", bench.console())
        self.assertEqual(bench.window.title(), "Untitled - Zenqo Workbench")
        self.finish(bench)

    def test_a_tab_file_with_the_extension_txt(self):
        file = self.file("wages.txt", WAGES.replace(",", "\t"))
        bench = self.start()
        bench.drop(Bench.TREE, file)
        dialog = bench.box("Import Data")
        # From the name to the delimiters, and there to the third.
        desktop.key("Tab", "Down", "Down", "space")
        dialog.photograph("import-dialog-tab")
        workbench.press_until(lambda: not dialog.exists(), "alt+i")
        bench.wait_title("*Untitled - Zenqo Workbench")
        self.assertIn(f'\n >> wages = import("{file}", "\\t");\n', bench.console())
        self.assertEqual(bench.cells(), WAGES_CELLS)
        self.finish(bench)


class BadDrop(workbench.TestCase):
    def bad_drops(self):
        folder = self.folder / "folder.csv"
        folder.mkdir()
        wages = self.file("wages.csv", WAGES)
        return {"folder": [folder], "two-files": [wages, self.file("more.csv", WAGES)],
                "extension": [self.file("wages.dat", WAGES)],
                "capitals": [self.file("wages.CSV", WAGES)],
                "workspace-capitals": [self.file("work.ZWS", "")]}

    def refused(self, place, point, page):
        bench = self.start()
        desktop.key(page)
        for name, files in self.bad_drops().items():
            with self.subTest(name):
                bench.drop(point, *files)
                bench.dismiss("Warning", "Return", f"bad-drop-{place}-{name}")
                self.assertEqual(bench.window.title(), "Untitled - Zenqo Workbench")
        self.assertNotIn(">>", bench.console())
        self.finish(bench)

    def test_the_tree_refuses(self):
        self.refused("tree", Bench.TREE, "ctrl+1")

    def test_the_console_refuses(self):
        self.refused("console", Bench.PAGE, "ctrl+2")


class Names(workbench.TestCase):
    def test_a_name_with_a_blank_keeps_the_dialog_open(self):
        bench = self.start()
        bench.drop(Bench.TREE, self.file("wages.csv", WAGES))
        dialog = bench.box("Import Data")
        desktop.key("ctrl+a")
        desktop.type_text("my wages")
        workbench.press_until(lambda: desktop.windows("Warning"), "Return")
        bench.dismiss("Warning", "Return", "name-with-blank")
        self.assertTrue(dialog.exists())
        # The text is as it was.
        desktop.key("ctrl+a")
        self.assertEqual(bench.copied("ctrl+c"), "my wages")
        bench.dismiss("Import Data", "Escape")
        self.assertNotIn(">>", bench.console())
        self.finish(bench)

    def test_a_name_with_a_leading_digit_is_refused_after_the_dialog(self):
        bench = self.start()
        bench.import_by_drop(self.file("wages.csv", WAGES), "2wages")
        bench.dismiss("Warning", "Return", "name-with-digit")
        self.assertEqual(desktop.windows("Import Data"), [])
        self.assertNotIn(">>", bench.console())
        self.assertEqual(bench.window.title(), "Untitled - Zenqo Workbench")
        self.finish(bench)


class Menu(workbench.TestCase):
    def test_what_comes_in_by_the_menu_goes_out_the_same(self):
        file = self.file("wages.csv", WAGES)
        copy = self.folder / "copy.csv"
        bench = self.start()
        desktop.key("ctrl+i")
        bench.choose_file("Import data", file)
        bench.dismiss("Import Data", "Return")
        bench.wait_title("*Untitled - Zenqo Workbench")

        desktop.key("ctrl+e")
        dialog = bench.box("Export Data")
        # The picker has the keyboard; the next stop is the file's name.
        desktop.key("Tab", "ctrl+a")
        desktop.type_text(str(copy))
        dialog.photograph("export-dialog")
        workbench.press_until(lambda: not dialog.exists(), "alt+e")
        console = bench.wait_console(f'\n >> export(wages, "{copy}", ",");\n')
        self.assertNotIn("ERROR", console)
        # Labels go out in quotes.
        self.assertEqual(copy.read_text(),
                         'year,wage,region\n2001,12.5,"north"\n2002,,"south"\n2003,14.25,"east"\n')
        self.finish(bench)

    def test_a_file_that_is_no_table_is_one_error(self):
        bench = self.start()
        bench.import_by_drop(self.file("torn.csv", "a,b\n1,2\n3\n"), "torn")
        console = bench.wait_console("ERROR: ")
        self.assertEqual(console.count("ERROR: "), 1)
        self.assertEqual(bench.window.title(), "Untitled - Zenqo Workbench")
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
