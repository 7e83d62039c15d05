"""Includes point downward only, start at the root, and keep private helpers out of public headers.

include_direction.py ROOT
"""

import re
import sys

import tree

# A folder may include from itself and from folders of a lower rank.
RANKS = {"engine": 0, "common": 1, "console": 2, "pickers": 2, "modelspec": 3, "dialogs": 4,
         "panes": 5, "workbench": 6, "gallery": 7, "tests": 8, "benchmarks": 8}

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.MULTILINE)


def check(root):
    findings = []
    public = set(tree.public_headers(root))
    for path in tree.sources(root, tree.ALL_FOLDERS):
        folder = path.parts[0]
        for match in INCLUDE.finditer((root / path).read_text()):
            quote, included = match.groups()
            target = included.split("/")[0]
            if quote == "<":
                if target in RANKS and (root / included).exists():
                    findings.append(f"{path}: {included} is ours, include it with quotes")
                continue
            if folder in ("tests", "benchmarks") and (root / "tests" / included).exists():
                continue
            if not (root / included).exists():
                findings.append(f"{path}: {included} does not start at the root")
            elif target != folder and RANKS[target] >= RANKS[folder]:
                findings.append(f"{path}: {included} points upward or sideways")
            elif target == "common" and path in public:
                findings.append(f"{path}: public, but includes the private {included}")
    return findings


if __name__ == "__main__":
    sys.exit(tree.report(check(tree.root_argument())))
