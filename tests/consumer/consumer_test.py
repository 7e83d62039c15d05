"""A host outside of this tree: it finds an installed library and is built from the guide's own text.

consumer_test.py ROOT BUILD [FLAG ...]
The flags are compiler flags that the host needs because the library was built with them.
"""

import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import desktop

ROOT, BUILD, FLAGS = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3:]


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False, **options)
    if done.returncode:
        raise AssertionError(f"{command[0]} failed:\n{done.stdout}")
    return done.stdout


def listing(document, language):
    """The first listing in that language of a document."""
    text = (ROOT / document).read_text()
    return re.search(rf"^```{language}\n(.*?)^```$", text, re.MULTILINE | re.DOTALL).group(1)


class Consumer(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = Path(tempfile.mkdtemp(dir=BUILD, prefix="consumer "))
        cls.addClassCleanup(shutil.rmtree, cls.scratch)
        cls.prefix = cls.scratch / "installed"
        run("cmake", "--install", BUILD, "--prefix", cls.prefix)
        cls.library = next(cls.prefix.glob("lib*/**/libzenqo_widgets.so")).parent

        cls.host = cls.scratch / "host"
        cls.host.mkdir()
        (cls.host / "main.cpp").write_text(listing("README.md", "cpp"))
        (cls.host / "CMakeLists.txt").write_text(listing("README.md", "cmake"))
        (cls.host / "engine.cpp").write_text(listing("docs/embedding.md", "cpp"))

    def check_that_it_runs(self, program, picture):
        """Its window shows the console's banner, which goes out by the clipboard; it closes well."""
        environment = dict(os.environ, LD_LIBRARY_PATH=str(self.library))
        with desktop.start([program], env=environment) as host:
            window = desktop.wait_window("Host")
            window.activate()
            window.click(*window.centre())
            desktop.key("ctrl+a", "ctrl+c")
            self.assertIn("Zenqo Statistical Workbench\n           Running Version 2.5",
                          desktop.clipboard())
            window.photograph(picture)
            window.close()
            self.assertEqual(host.wait_end(), 0, host.errors())
            self.assertEqual(host.errors(), "")

    def test_the_package_of_cmake(self):
        build = self.scratch / "by-cmake"
        run("cmake", "-G", "Ninja", "-S", self.host, "-B", build, f"-DCMAKE_PREFIX_PATH={self.prefix}",
            f"-DCMAKE_CXX_FLAGS={' '.join(FLAGS)}", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        run("cmake", "--build", build)
        self.check_that_it_runs(build / "host", "consumer-by-cmake")

    def test_a_version_that_is_not_there(self):
        # Another major version breaks what hosts rely on.
        wrong = self.scratch / "wrong"
        shutil.copytree(self.host, wrong)
        lists = (wrong / "CMakeLists.txt").read_text()
        (wrong / "CMakeLists.txt").write_text(lists.replace("Zenqo 2.5", "Zenqo 3.0"))
        with self.assertRaisesRegex(AssertionError, "version: 2.5.0"):
            run("cmake", "-G", "Ninja", "-S", wrong, "-B", wrong / "build",
                f"-DCMAKE_PREFIX_PATH={self.prefix}")

    def test_pkg_config(self):
        environment = dict(os.environ, PKG_CONFIG_PATH=str(self.library / "pkgconfig"))
        flags = shlex.split(run("pkg-config", "--cflags", "--libs", "zenqo", env=environment))
        program = self.scratch / "by-pkg-config"
        sources = [self.host / "main.cpp", self.host / "engine.cpp"]
        run("ccache", "g++", "-std=c++17", "-c", sources[0], *FLAGS, *flags,
            "-o", self.scratch / "main.o")
        run("ccache", "g++", "-std=c++17", "-c", sources[1], *FLAGS, *flags,
            "-o", self.scratch / "engine.o")
        run("g++", self.scratch / "main.o", self.scratch / "engine.o", *FLAGS, *flags,
            "-o", program)
        self.check_that_it_runs(program, "consumer-by-pkg-config")
        self.assertEqual(run("pkg-config", "--modversion", "zenqo", env=environment), "2.5.0\n")

    def test_the_installed_headers_are_the_public_ones(self):
        include = self.prefix / "include/zenqo"
        installed = sorted(str(path.relative_to(include)) for path in include.rglob("*.h"))
        public = sorted(str(path.relative_to(ROOT))
                        for folder in ("engine", "console", "pickers", "modelspec", "dialogs", "panes")
                        for path in (ROOT / folder).rglob("*.h"))
        self.assertEqual(installed, public)

    def test_what_is_installed_names_no_folder_of_this_tree(self):
        for pattern in ("*.cmake", "*.pc", "*.h"):
            for path in self.prefix.rglob(pattern):
                self.assertNotIn(str(ROOT), path.read_text(), path)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
