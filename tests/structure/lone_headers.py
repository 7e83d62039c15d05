"""Every header of the library compiles alone, without the precompiled header.

lone_headers.py ROOT BUILD
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

import tree


def compiler(build):
    """The command that compiles a file of the library, up to the names of input and output."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if "zenqo_widgets.dir" in entry["command"] and "cmake_pch" not in entry["file"]:
            words = shlex.split(entry["command"])
            for option, following in (("-include", 1), ("-o", 1), ("-c", 1)):
                at = words.index(option)
                del words[at:at + 1 + following]
            return [word for word in words if word not in ("-Winvalid-pch", "-fpch-preprocess")]
    raise SystemExit("no file of the library among the compile commands")


def compile_alone(command, root, header, scratch):
    """What the compiler says of a file that includes the header and nothing else."""
    source = scratch / (str(header).replace("/", "_") + ".cpp")
    # Written only once, so that the compiler's cache knows it again.
    text = f'#include "{header}"\n'
    if not source.exists() or source.read_text() != text:
        source.write_text(text)
    cache = ["ccache"] if any(os.access(Path(folder) / "ccache", os.X_OK)
                              for folder in os.get_exec_path()) else []
    done = subprocess.run(
        cache + command + [f"-I{root}", "-c", str(source), "-o", str(source.with_suffix(".o"))],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    return f"{header}: does not compile alone\n{done.stdout}" if done.returncode else None


def check(root, build, headers):
    command = compiler(build)
    # What the build takes from this tree must come from `root`.
    command = [word for word in command if not re.fullmatch(r"-I.*", word)]
    scratch = build / "lone-headers"
    scratch.mkdir(exist_ok=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda header: compile_alone(command, root, header, scratch), headers)
        return [result for result in results if result]


if __name__ == "__main__":
    ROOT = tree.root_argument()
    HEADERS = tree.sources(ROOT, tree.PUBLIC_FOLDERS + ("common",), (".h",))
    print(f"{len(HEADERS)} headers")
    sys.exit(tree.report(check(ROOT, Path(sys.argv[2]), HEADERS)))
