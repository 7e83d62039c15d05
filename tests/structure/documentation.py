"""The reference is made without a warning: every public declaration is told, and told rightly.

documentation.py ROOT OUTPUT
"""

import re
import subprocess
import sys
from pathlib import Path

import tree

# The sentence over the class tells what its constructor makes, and what is private is told only
# where it helps.
EXCUSED = re.compile(r"Member ~?(\w+)\(.*\) .*\(function\) of class (?:\w+::)*\1 is not documented"
                     r"|/common/\w+\.h:\d+: warning: .* is not documented")
NOT_TOLD = re.compile(r"(.*):(\d+): warning: Member .* is not documented")


def told_with_others(warning):
    """True if the declaration stands in a run of declarations with a comment over the first."""
    match = NOT_TOLD.match(warning)
    if not match:
        return False
    lines = Path(match.group(1)).read_text().splitlines()
    before = int(match.group(2)) - 2
    while re.match(r"\s+[\w:].*[;,(]$", lines[before]):
        before -= 1
    return lines[before].lstrip().startswith("///")


def check(root, output):
    """Makes the reference of the headers below `root` in `output`; gives the warnings."""
    output.mkdir(parents=True, exist_ok=True)
    inputs = [root / folder for folder in tree.PUBLIC_FOLDERS + ("common", "docs/reference.dox")
              if (root / folder).exists()]
    quoted = " ".join(f'"{path}"' for path in inputs)
    settings = (Path(__file__).resolve().parents[2] / "docs/Doxyfile").read_text() + f"""
INPUT = {quoted}
STRIP_FROM_PATH = "{root}"
OUTPUT_DIRECTORY = "{output}"
WARN_LOGFILE = "{output}/warnings.txt"
"""
    subprocess.run(["doxygen", "-"], input=settings, text=True, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.STDOUT)
    warnings = (output / "warnings.txt").read_text().splitlines()
    return [warning for warning in warnings
            if not EXCUSED.search(warning) and not told_with_others(warning)]


if __name__ == "__main__":
    sys.exit(tree.report(check(tree.root_argument(), Path(sys.argv[2]))))
