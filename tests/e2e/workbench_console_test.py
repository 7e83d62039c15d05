"""The console: tables selected with the mouse leave it as TeX."""

import desktop
import workbench
from workbench import WAGES_PRINTED, Bench

TEX = r"""\begin{tabular}{lrrr}
obs&year& wage&region\\
  1&2001& 12.5&north \\
  2&2002&    .&south \\
  3&2003&14.25&east  \\
\end{tabular}
\newline
"""


class Tables(workbench.TestCase):
    # Where the console's text begins, and the height of a line.
    LEFT, TOP, LINE = 246, 64, 15

    def printed(self):
        """A workbench that shows a printed dataset at the top of its console."""
        bench = self.start_with_wages()
        bench.console()
        desktop.key("ctrl+l", "ctrl+p")
        self.text = bench.wait_console("\n" + WAGES_PRINTED)
        return bench

    def select_lines(self, bench, first, last):
        """Selects from the line that begins with `first` to that with `last`, by dragging."""
        lines = self.text.split("\n")

        def middle(beginning):
            index = next(i for i, line in enumerate(lines) if line.startswith(beginning))
            return self.TOP + index * self.LINE + self.LINE // 2

        # A click lets go of what was selected: a drag of that would move it.
        bench.window.click(*Bench.PAGE)
        desktop.drag(bench.window.point(self.LEFT + 1, middle(first)),
                     bench.window.point(900, middle(last)))

    def test_a_selected_table_is_copied_as_tex(self):
        bench = self.printed()
        self.select_lines(bench, "obs\t", "  3\t")
        bench.window.photograph("table-selected")
        self.assertEqual(bench.copied("ctrl+t"), TEX)
        # The selection is still there, and is text to the other key.
        self.assertEqual(bench.copied("ctrl+c") + "\n", WAGES_PRINTED)
        self.finish(bench)

    def test_the_context_menu_copies_as_tex(self):
        bench = self.printed()
        self.select_lines(bench, "  1\t", "  2\t")
        bench.window.click(*Bench.PAGE, button=desktop.RIGHT)
        desktop.photograph_screen("console-menu")
        self.assertEqual(bench.copied("Down", "Down", "Down", "Return"),
                         "\\begin{tabular}{lrrr}\n  1&2001& 12.5&north \\\\\n  2&2002&    .&south \\\\\n"
                         "\\end{tabular}\n\\newline\n")
        self.finish(bench)

    def test_all_of_the_console_as_tex_has_balanced_tables(self):
        bench = self.printed()
        desktop.key("ctrl+a")
        tex = bench.copied("ctrl+t")
        self.assertIn(TEX, tex)
        self.assertEqual(tex.count("\\begin{tabular}"), 1)
        self.assertEqual(tex.count("\\end{tabular}"), 1)
        self.finish(bench)

    def test_the_console_is_cleared(self):
        bench = self.printed()
        desktop.key("ctrl+l")
        desktop.key("ctrl+p")
        text = bench.wait_console(WAGES_PRINTED)
        self.assertEqual(text.count("Dataset wages"), 1)
        self.assertNotIn("import", text)
        self.finish(bench)


if __name__ == "__main__":
    workbench.main()
