"""What the checkers know of the source tree."""

import re
import sys
from pathlib import Path

PUBLIC_FOLDERS = ("engine", "console", "pickers", "modelspec", "dialogs", "panes")
ALL_FOLDERS = PUBLIC_FOLDERS + ("common", "workbench", "gallery", "tests", "benchmarks")


def sources(root, folders, suffixes=(".h", ".cpp")):
    """The files below the folders of `root`, as paths relative to it, in order."""
    found = []
    for folder in folders:
        found += [path.relative_to(root) for path in (root / folder).rglob("*")
                  if path.suffix in suffixes]
    return sorted(found)


def public_headers(root):
    return sources(root, PUBLIC_FOLDERS, (".h",))


def cmake_list(root, name):
    """The words of a `set(NAME ...)` in the library's list of files."""
    text = (root / "cmake/ZenqoLibrary.cmake").read_text()
    match = re.search(r"set\(" + name + r"\b([^)]*)\)", text)
    return match.group(1).split() if match else []


def report(findings):
    """Prints the findings and gives the exit status."""
    for finding in findings:
        print(finding)
    print(f"{len(findings)} findings")
    return 1 if findings else 0


def root_argument():
    return Path(sys.argv[1]).resolve()
