"""The harness itself: a test in which something happens that must not has to fail, and say why.

harness_test.py PROGRAM
"""

import subprocess
import sys
import unittest

PROGRAM = sys.argv[1]


class Harness(unittest.TestCase):
    def run_test(self, name):
        done = subprocess.run([PROGRAM, "--warn", "NoTests", name], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, timeout=120, check=False)
        return done.returncode, done.stdout

    def expect_failure(self, name, said):
        status, output = self.run_test(name)
        self.assertEqual(status, 1, output)
        self.assertIn(said, output)

    def test_no_fault(self):
        status, output = self.run_test("no fault")
        self.assertEqual(status, 0, output)
        self.assertNotIn("INCIDENT", output)

    def test_a_check_that_fails(self):
        self.expect_failure("a check that fails", "1 == 2")

    def test_a_toolkit_assertion(self):
        self.expect_failure("a toolkit assertion",
                            'INCIDENT in "a toolkit assertion": toolkit assertion ')

    def test_a_line_in_the_log(self):
        self.expect_failure("a line in the log",
                            "Error: something went wrong")

    def test_a_byte_on_standard_error(self):
        self.expect_failure("a byte on standard error",
                            'INCIDENT in "a byte on standard error": standard error: !')

    def test_a_box_that_nobody_asked_for(self):
        self.expect_failure("a box that nobody asked for",
                            'a box that no test asked for: wxMessageDialog "Surprise": unasked')

    def test_a_box_past_the_script(self):
        self.expect_failure("a box past the script",
                            'a dialog past the last answer: wxMessageDialog "Warning": second')

    def test_an_answer_that_meets_no_box(self):
        self.expect_failure("an answer that meets no box", "1 scripted answers met no dialog")

    def test_a_name_that_no_test_has(self):
        status, output = self.run_test("no such test")
        self.assertNotEqual(status, 0, output)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
