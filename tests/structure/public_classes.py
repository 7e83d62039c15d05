"""Every public class has a header and a source of its name, is listed, marked, and told in a comment.

public_classes.py ROOT
"""

import re
import sys

import tree

CLASS = re.compile(r"^(///.*\n)?class ZENQO_API (\w+)(?: final)?\s*:\s*public (\w+)", re.MULTILINE)


def check_header(root, path):
    text = (root / path).read_text()
    classes = CLASS.findall(text)
    if [name for _, name, _ in classes] != [path.stem]:
        yield f"{path}: declares {[name for _, name, _ in classes]} and not {path.stem} alone"
    for comment, name, base in classes:
        if not comment:
            yield f"{path}: no /// sentence right above {name}"
        if not base.startswith("wx"):
            yield f"{path}: {name} derives from {base}, which is no class of the toolkit"
    if not text.startswith("#pragma once\n"):
        yield f"{path}: does not begin with #pragma once"


def check(root):
    findings = []
    listed = tree.cmake_list(root, "zenqo_public_classes")
    if not listed:
        findings.append("cmake/ZenqoLibrary.cmake: no public classes are listed")
    for first, second in zip(listed, listed[1:]):
        if first.rsplit("/", 1)[0] == second.rsplit("/", 1)[0] and first.lower() >= second.lower():
            findings.append(f"cmake/ZenqoLibrary.cmake: {second} stands after {first}")

    files = tree.sources(root, [folder for folder in tree.PUBLIC_FOLDERS if folder != "engine"])
    expected = {entry + suffix for entry in listed for suffix in (".h", ".cpp")}
    for path in sorted(expected - {str(file) for file in files}):
        findings.append(f"{path}: listed, but there is no such file")
    for path in sorted({str(file) for file in files} - expected):
        findings.append(f"{path}: belongs to no listed class")
    for path in files:
        if path.suffix == ".h":
            findings += check_header(root, path)

    headers = tree.cmake_list(root, "zenqo_engine_headers")
    for path in tree.sources(root, ["engine"]):
        if str(path) not in headers:
            findings.append(f"{path}: not among the engine's listed headers")
    return findings


if __name__ == "__main__":
    sys.exit(tree.report(check(tree.root_argument())))
