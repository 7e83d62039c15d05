"""The checkers themselves: each finds nothing in a good tree and the fault in a bad one.

checkers_test.py ROOT BUILD
"""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import documentation
import exports
import include_direction
import lone_headers
import public_classes

ROOT, BUILD = Path(sys.argv[1]).resolve(), Path(sys.argv[2])

GOOD = {
    "cmake/ZenqoLibrary.cmake": """
set(zenqo_public_classes
  pickers/Alpha
  pickers/Beta)
set(zenqo_engine_headers
  engine/Export.h)
""",
    "engine/Export.h": "#pragma once\n\n/// The mark.\n#define ZENQO_API\n",
    "common/Help.h": "#pragma once\n\n/// Helps.\nint Help();\n",
    "pickers/Alpha.h": '#pragma once\n\n#include <wx/panel.h>\n\n#include "engine/Export.h"\n\n'
                       "/// Picks.\nclass ZENQO_API Alpha : public wxPanel\n{\npublic:\n"
                       "    Alpha();\n\n    /// Says how many.\n    int Count(int group) const;\n};\n",
    "pickers/Alpha.cpp": '#include "pickers/Alpha.h"\n#include "common/Help.h"\n',
    "pickers/Beta.h": '#pragma once\n\n#include "pickers/Alpha.h"\n\n'
                      "/// Picks more.\nclass ZENQO_API Beta : public wxPanel\n{\n};\n",
    "pickers/Beta.cpp": '#include "pickers/Beta.h"\n',
    "workbench/main.cpp": '#include "pickers/Beta.h"\n',
    "tests/support/Stage.h": "#pragma once\n",
    "tests/pickers/BetaTest.cpp": '#include "pickers/Beta.h"\n#include "support/Stage.h"\n',
}


class Tree(unittest.TestCase):
    """A small source tree, good but for what a test changes."""

    def setUp(self):
        self.root = Path(tempfile.mkdtemp(dir=BUILD, prefix="checked tree "))
        self.addCleanup(shutil.rmtree, self.root)
        for path, text in GOOD.items():
            self.write(path, text)

    def write(self, path, text):
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(text)

    def change(self, path, old, new):
        self.assertIn(old, GOOD[path])
        self.write(path, GOOD[path].replace(old, new))


class IncludeDirection(Tree):
    def check(self):
        return include_direction.check(self.root)

    def test_a_good_tree(self):
        self.assertEqual(self.check(), [])

    def test_upward(self):
        self.write("common/Help.cpp", '#include "pickers/Alpha.h"\n')
        self.assertEqual(self.check(),
                         ["common/Help.cpp: pickers/Alpha.h points upward or sideways"])

    def test_sideways(self):
        self.write("console/Console.cpp", '  #  include "pickers/Alpha.h"\n')
        self.assertEqual(self.check(),
                         ["console/Console.cpp: pickers/Alpha.h points upward or sideways"])

    def test_the_library_includes_no_workbench(self):
        self.write("workbench/Form.h", "#pragma once\n")
        self.change("pickers/Alpha.cpp", "common/Help.h", "workbench/Form.h")
        self.assertEqual(self.check(),
                         ["pickers/Alpha.cpp: workbench/Form.h points upward or sideways"])

    def test_a_private_header_in_a_public_one(self):
        self.change("pickers/Alpha.h", "engine/Export.h", "common/Help.h")
        self.assertEqual(self.check(),
                         ["pickers/Alpha.h: public, but includes the private common/Help.h"])

    def test_a_path_that_starts_elsewhere(self):
        self.change("pickers/Beta.cpp", "pickers/Beta.h", "Beta.h")
        self.assertEqual(self.check(), ["pickers/Beta.cpp: Beta.h does not start at the root"])

    def test_angle_brackets_around_our_own(self):
        self.change("pickers/Beta.cpp", '"pickers/Beta.h"', "<pickers/Beta.h>")
        self.assertEqual(self.check(),
                         ["pickers/Beta.cpp: pickers/Beta.h is ours, include it with quotes"])


class PublicClasses(Tree):
    def check(self):
        return public_classes.check(self.root)

    def test_a_good_tree(self):
        self.assertEqual(self.check(), [])

    def test_a_listed_class_without_its_source(self):
        (self.root / "pickers/Beta.cpp").unlink()
        self.assertEqual(self.check(), ["pickers/Beta.cpp: listed, but there is no such file"])

    def test_a_file_that_nobody_listed(self):
        self.write("pickers/Gamma.cpp", "")
        self.assertEqual(self.check(), ["pickers/Gamma.cpp: belongs to no listed class"])

    def test_an_order_that_is_not_alphabetical(self):
        self.change("cmake/ZenqoLibrary.cmake", "  pickers/Alpha\n  pickers/Beta",
                    "  pickers/Beta\n  pickers/Alpha")
        self.assertEqual(self.check(),
                         ["cmake/ZenqoLibrary.cmake: pickers/Alpha stands after pickers/Beta"])

    def test_a_class_of_another_name(self):
        self.change("pickers/Beta.h", "ZENQO_API Beta", "ZENQO_API Betty")
        self.assertEqual(self.check(), ["pickers/Beta.h: declares ['Betty'] and not Beta alone"])

    def test_a_class_without_the_export_mark(self):
        self.change("pickers/Beta.h", "ZENQO_API ", "")
        self.assertEqual(self.check(), ["pickers/Beta.h: declares [] and not Beta alone"])

    def test_a_class_without_a_sentence(self):
        self.change("pickers/Beta.h", "/// Picks more.\n", "")
        self.assertEqual(self.check(), ["pickers/Beta.h: no /// sentence right above Beta"])

    def test_a_base_class_of_our_own(self):
        self.change("pickers/Beta.h", "public wxPanel", "public Alpha")
        self.assertEqual(self.check(), ["pickers/Beta.h: Beta derives from Alpha, which is no class "
                                        "of the toolkit"])

    def test_a_header_without_a_guard(self):
        self.change("pickers/Beta.h", "#pragma once\n\n", "")
        self.assertEqual(self.check(), ["pickers/Beta.h: does not begin with #pragma once"])

    def test_an_engine_header_that_nobody_listed(self):
        self.write("engine/More.h", "#pragma once\n")
        self.assertEqual(self.check(), ["engine/More.h: not among the engine's listed headers"])

    def test_an_empty_list(self):
        self.write("cmake/ZenqoLibrary.cmake", "")
        self.assertIn("cmake/ZenqoLibrary.cmake: no public classes are listed", self.check())


class LoneHeaders(Tree):
    def check(self):
        return lone_headers.check(self.root, BUILD, ["common/Help.h"])

    def test_a_good_header(self):
        self.assertEqual(self.check(), [])

    def test_a_header_that_lacks_an_include(self):
        # The precompiled header would supply it.
        self.change("common/Help.h", "int Help", "std::string Help")
        findings = self.check()
        self.assertEqual(len(findings), 1)
        self.assertIn("common/Help.h: does not compile alone", findings[0])
        self.assertIn("std", findings[0])


class Exports(Tree):
    SOURCE = """
#define API __attribute__((visibility("default")))
struct API Alpha { Alpha(); virtual ~Alpha(); virtual void Count(); };
struct Helper { Helper(); virtual ~Helper(); };
Alpha::Alpha() {}
Alpha::~Alpha() { Helper helper; }
void Alpha::Count() {}
Helper::Helper() {}
Helper::~Helper() {}
"""

    def check(self, source, classes=("Alpha",)):
        library = self.root / "libsmall.so"
        subprocess.run(["g++", "-shared", "-fPIC", "-fvisibility=hidden", "-x", "c++", "-",
                        "-o", str(library)], input=source, text=True, check=True)
        return exports.check(library, set(classes))

    def test_a_good_library(self):
        self.assertEqual(self.check(self.SOURCE), [])

    def test_a_helper_that_gets_out(self):
        findings = self.check(self.SOURCE.replace("struct Helper", "struct API Helper"))
        self.assertIn("lets out Helper::Helper()", findings)

    def test_a_function_that_gets_out(self):
        self.assertEqual(self.check(self.SOURCE + "API int loose(int a) { return a; }"),
                         ["lets out loose(int)"])

    def test_a_class_that_stays_inside(self):
        self.assertEqual(self.check(self.SOURCE, ("Alpha", "Beta")), ["does not let out Beta"])

    def test_the_contract_may_be_asked_for(self):
        self.assertEqual(self.check(
            self.SOURCE + "#include <string>\nbool CheckID(std::string const&);\n"
            "namespace Zenqo_SYSTEM_NAMESPACE { extern bool RUN_GUI; }\n"
            "API bool Alpha_ok() { return CheckID(\"a\") && Zenqo_SYSTEM_NAMESPACE::RUN_GUI; }"),
            ["lets out Alpha_ok()"])

    def test_anything_else_may_not(self):
        self.assertEqual(self.check(self.SOURCE.replace("Helper helper;", "void other(int); other(1);")),
                         ["asks for other(int)"])


class Documentation(Tree):
    def check(self):
        return [warning.split("warning: ")[-1]
                for warning in documentation.check(self.root, self.root / "reference")]

    def test_a_good_tree(self):
        self.assertEqual(self.check(), [])
        self.assertTrue((self.root / "reference/html/index.html").exists())

    def test_an_operation_that_is_not_told(self):
        self.change("pickers/Alpha.h", "    /// Says how many.\n", "")
        self.assertEqual(self.check(),
                         ["Member Count(int group) const (function) of class Alpha is not documented."])

    def test_a_run_of_operations_under_one_comment(self):
        count = "    int Count(int group) const;\n"
        self.change("pickers/Alpha.h", count, count + "    int Count() const;\n")
        self.assertEqual(self.check(), [])

    def test_an_operation_apart_from_a_run(self):
        count = "    int Count(int group) const;\n"
        self.change("pickers/Alpha.h", count, count + "\n    int Sum() const;\n")
        self.assertEqual(self.check(),
                         ["Member Sum() const (function) of class Alpha is not documented."])

    def test_a_class_that_is_not_told(self):
        self.change("pickers/Alpha.h", "/// Picks.\n", "")
        self.assertEqual(self.check(), ["Compound Alpha is not documented."])

    def test_a_parameter_that_does_not_exist(self):
        self.change("pickers/Alpha.h", "how many.", "how many.\n    /// @param who Nobody.")
        self.assertIn("argument 'who' of command @param is not found in the argument list of "
                      "Alpha::Count(int group) const", self.check())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
