"""What is set once for all runs, what is told of the program, and what is exported by its dialogs."""

import json
import os

import desktop
import workbench

MATRIX = "M = [0.1, -0; 1.0000000000000002, inf; 1e-300, nan];\n"


class Settings(workbench.TestCase):
    # Points of the preferences.
    ON_EXPORT = (207, 66)
    ON_SAVING_SCRIPTS = (207, 110)
    PROMPT_WORKSPACE = (28, 149)

    # Points of the paths.
    JAGS = (276, 46)
    OCTAVE = (276, 194)

    # Points of the quick-start page.
    FIRST_LINK = (172, 89)
    NOT_AGAIN = (266, 353)

    MATRIX_FILE = (140, 45)

    def kept(self):
        """The settings as they are kept."""
        return json.loads(self.settings.read_text(encoding="utf-8"))

    def wait_kept(self, key, value):
        desktop.wait_until(lambda: self.settings.exists() and self.kept().get(key) == value,
                           lambda: f"{key} = {value} in {self.settings.read_text()}", workbench.PATIENCE)

    def preferences(self, bench):
        return bench.open("alt+e", "p", "Preferences")

    def paths(self, bench):
        return bench.open("alt+e", "e", "Paths to Binaries of External Programs")

    def test_the_preferences_are_kept_and_hold(self):
        bench = self.start()
        dialog = self.preferences(bench)
        for point in (self.ON_EXPORT, self.ON_SAVING_SCRIPTS, self.PROMPT_WORKSPACE):
            dialog.click(*point)
        workbench.accept(dialog, "alt+o", "preferences")
        self.wait_kept("promptWorkspace", False)
        kept = self.kept()
        self.assertEqual([key for key, value in kept.items() if value is True], ["dirOnExport", "dirOnSaveScript"])
        self.finish(bench)

        # The next run begins with them: accepted as it stands the dialog changes nothing.
        bench = self.start("--run", self.file("matrix.zqs", MATRIX), title="*Untitled - Zenqo Workbench")
        before = self.settings.stat().st_ino
        workbench.accept(self.preferences(bench), "Return", "preferences-again")
        desktop.wait_until(lambda: self.settings.stat().st_ino != before, "the settings written again")
        self.assertEqual(self.kept(), kept)

        other = self.folder / "other"
        other.mkdir()
        dialog = bench.open("alt+d", "m", "Export Matrix M")
        workbench.type_path(dialog, self.MATRIX_FILE, other / "M.csv")
        workbench.accept(dialog, "alt+e", "export-elsewhere")
        desktop.wait_until((other / "M.csv").exists, "the exported matrix")
        working = f"/proc/{bench.program.process.pid}/cwd"
        desktop.wait_until(lambda: os.readlink(working) == str(other), lambda: os.readlink(working))
        # And a workspace that is not saved is no question.
        bench.window.close()
        self.assertEqual(bench.program.wait_end(workbench.PATIENCE), 0)
        self.assertEqual(bench.program.errors(), "")

    def test_the_paths_of_programs_are_kept_and_hold(self):
        program = self.file("my octave", "#!/bin/sh\necho this is mine\n")
        program.chmod(0o700)
        bench = self.start()
        dialog = self.paths(bench)
        workbench.type_path(dialog, self.JAGS, "/nowhere/at all")
        workbench.type_path(dialog, self.OCTAVE, program)
        workbench.accept(dialog, "alt+o", "paths")
        self.wait_kept("programs", {"jags": "/nowhere/at all", "octave": str(program)})
        self.finish(bench)

        script = self.file("octave.zqs", f'octave("{self.file("script.m", "")}", "", "");\n')
        bench = self.start("--run", script)
        bench.wait_console("\nthis is mine\n")
        # A path that is taken away is no path.
        dialog = self.paths(bench)
        dialog.click(*self.JAGS)
        desktop.key("ctrl+a", "Delete", "Tab")
        workbench.accept(dialog, "alt+o", "paths-again")
        self.wait_kept("programs", {"octave": str(program)})
        # Cancelled, the dialog changes nothing.
        dialog = self.paths(bench)
        workbench.type_path(dialog, self.JAGS, "/elsewhere")
        workbench.press_until(lambda: not dialog.exists(), "Escape")
        self.assertEqual(self.kept()["programs"], {"octave": str(program)})
        self.finish(bench)

    def test_damaged_settings_are_set_aside(self):
        self.settings.write_text('{"promptWorkspace": false, "dirOnEx', encoding="utf-8")
        bench = self.start()
        # The defaults hold, so the quick-start page comes.
        bench.dismiss("Quick Start", "Escape")
        aside = self.settings.with_name("settings.json.damaged")
        # The console is what is shown.
        said = " ".join(bench.copied("ctrl+a", "ctrl+c").split())
        self.assertIn(f"WARNING: The settings in {self.settings} are damaged, and the defaults hold instead. The file "
                      f"is set aside as {aside}.", said)
        bench.window.photograph("settings-damaged")
        self.assertEqual(aside.read_text(), '{"promptWorkspace": false, "dirOnEx')
        self.assertFalse(self.settings.exists())
        workbench.accept(self.preferences(bench), "Return", "preferences-default")
        self.wait_kept("promptWorkspace", True)
        self.assertEqual(sorted(key for key, value in self.kept().items() if value),
                         ["promptWorkspace", "showQuickStart"])
        self.finish(bench)

    def test_settings_that_cannot_be_kept_are_a_warning(self):
        bench = self.start()
        self.settings.unlink()
        self.settings.parent.rmdir()
        self.settings.parent.write_text("")
        workbench.accept(self.preferences(bench), "Return", "preferences-not-kept")
        bench.wait_console(f"WARNING: The settings can't be kept in\n{self.settings}: Not a directory.\n")
        self.finish(bench)

    def fake_browser(self):
        """A desktop whose default browser writes the addresses that it is to open into a file."""
        addresses = self.folder / "addresses"
        browser = self.file("browser", f'#!/bin/sh\necho "$1" >>"{addresses}"\n')
        browser.chmod(0o700)
        (self.folder / "applications").mkdir()
        self.file("applications/browser.desktop",
                  f'[Desktop Entry]\nType=Application\nName=Browser\nExec="{browser}" %u\n'
                  "MimeType=x-scheme-handler/https;\n")
        self.file(".config/mimeapps.list", "[Default Applications]\nx-scheme-handler/https=browser.desktop\n")
        return addresses

    def test_the_quick_start_page_comes_until_it_is_not_wanted(self):
        self.settings.unlink()
        addresses = self.fake_browser()
        environment = {**os.environ, "XDG_DATA_HOME": str(self.folder)}
        bench = self.start(env=environment)
        page = bench.box("Quick Start", "quick-start")
        page.click(*self.FIRST_LINK)
        desktop.wait_until(lambda: addresses.exists() and addresses.read_text(), "the browser", workbench.PATIENCE)
        self.assertEqual(addresses.read_text(), "https://www.zenqo.example/tutorials.html#desktopAnchor\n")
        page.click(*self.NOT_AGAIN)
        workbench.accept(page, "alt+c", "quick-start-not-again")
        self.wait_kept("showQuickStart", False)
        self.finish(bench)

        bench = self.start(env=environment)
        # What comes at the start would be there before the answer to this, but by the menu it comes.
        bench.console()
        self.assertEqual(desktop.windows("Quick Start"), [])
        page = bench.open("alt+h", "q", "Quick Start")
        workbench.press_until(lambda: not page.exists(), "Escape")
        self.assertFalse(self.kept()["showQuickStart"])

        about = bench.open("alt+h", "a", "About Zenqo")
        workbench.accept(about, "Return", "about")
        self.finish(bench)


class Export(workbench.TestCase):
    # Points of both dialogs.
    FILE = (140, 45)

    # Points of the matrix's dialog.
    DELIMITERS = {",": (18, 105), ";": (18, 127), "\t": (18, 149)}

    # Points of the figure's dialog.
    WIDTH = (120, 120)
    HEIGHT = (120, 155)

    def test_a_matrix_goes_out_with_each_delimiter(self):
        bench = self.start("--run", self.file("matrix.zqs", MATRIX), title="*Untitled - Zenqo Workbench")
        for number, (delimiter, point) in enumerate(self.DELIMITERS.items()):
            path = self.folder / f"M{number}.csv"
            dialog = bench.open("alt+d", "m", "Export Matrix M")
            workbench.type_path(dialog, self.FILE, path)
            dialog.click(*point)
            workbench.accept(dialog, "alt+e", f"export-matrix-{number}")
            shown = delimiter.replace("\t", "\\t")
            bench.wait_console(f'\n >> export(M, "{path}", "{shown}");\n')
            self.assertEqual(path.read_text(), "0.1,-0\n1.0000000000000002,inf\n1e-300,NaN\n".replace(",", delimiter))

        # An existing file is replaced after a question only; the dialog stays until then.
        path = self.file("old.csv", "old\n")
        dialog = bench.open("alt+d", "m", "Export Matrix M")
        workbench.type_path(dialog, self.FILE, path)
        for key in ("alt+n", "alt+y"):
            question = workbench.box_of(dialog, "alt+e", "Export Matrix M", f"export-matrix-{key}")
            self.assertEqual(path.read_text(), "old\n")
            workbench.press_until(lambda: not question.exists(), key)
            if key == "alt+n":
                desktop.wait_until(dialog.exists, "the dialog again", workbench.PATIENCE)
                dialog.activate()
        desktop.wait_until(lambda: path.read_text().startswith("0.1,-0\n"), "the matrix in its file",
                           workbench.PATIENCE)

        # Nowhere is one error.
        dialog = bench.open("alt+d", "m", "Export Matrix M")
        workbench.type_path(dialog, self.FILE, path / "M.csv")
        workbench.accept(dialog, "alt+e", "export-matrix-nowhere")
        console = bench.wait_console("ERROR: ")
        self.assertEqual(console.split("ERROR: ")[1:],
                         [f'Line 1, column 1: "{path / "M.csv"}" cannot be written: Not a directory\n'])
        self.finish(bench)

    def test_a_figure_goes_out_in_its_size(self):
        data = self.file("macro.csv", "gdp,cpi\n10,2.1\n12,2.4\n11,\n14,2.2\n16,3.1\n")
        script = self.file("plot.zqs", f'macro = import("{data}", ",");\nplot(macro, "gdp", "history");\n')
        bench = self.start("--run", script, title="*Untitled - Zenqo Workbench")
        figures = desktop.wait_window("macro: history of gdp - Figures - Zenqo Workbench", workbench.PATIENCE)

        def ask(path, picture):
            figures.activate()
            workbench.press_until(lambda: desktop.windows("Export Figure"), "ctrl+e")
            dialog = bench.box("Export Figure")
            workbench.type_path(dialog, self.FILE, path)
            workbench.fill(dialog, (self.WIDTH, "617"), (self.HEIGHT, "333"))
            workbench.accept(dialog, "alt+e", picture)

        path = self.folder / "history.png"
        ask(path, "export-figure-sized")
        desktop.wait_until(path.exists, "the figure's file", workbench.PATIENCE)
        self.assertEqual(desktop.run("identify", "-format", "%m %w %h", path), "PNG 617 333")
        self.assertGreater(desktop.colours(path), 30)

        old = self.file("old.png", "old")
        for key, is_replaced in (("alt+n", False), ("alt+y", True)):
            ask(old, "export-figure-over")
            bench.dismiss("Export Figure", key, "export-figure-question")
            if is_replaced:
                desktop.wait_until(lambda: old.read_bytes() != b"old", "the new file", workbench.PATIENCE)
            else:
                self.assertEqual(old.read_text(), "old")

        # The window itself says why it can't be.
        def shown():
            return desktop.fingerprint(figures.photograph("export-figure-failed"))

        before = shown()
        ask(old / "history.png", "export-figure-nowhere")
        desktop.wait_until(lambda: shown() != before, "a message", workbench.PATIENCE)
        bench.window.activate()
        self.assertNotIn("ERROR", bench.console())
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
