"""The shared library lets out its public classes and nothing else, and asks for the engine alone.

exports.py ROOT LIBRARY
"""

import re
import subprocess
import sys

import tree

CONTRACT = {"wxEVT_PRINT_AND_RUN", "CheckID", "ProcessID", "BreakLongMassage", "ExpandContractStringLong"}
LINKER = {"_init", "_fini", "_edata", "_end", "__bss_start"}
# A function, a table, or a piece of code that adjusts the object's address on the way to a function.
OWNER = re.compile(r"(?:(?:vtable|VTT|typeinfo|typeinfo name) for |(?:non-)?virtual thunk to )?(\w+)\b")


def strong_exports(library):
    """The defined symbols, without the weak ones that templates and inline functions leave behind."""
    said = subprocess.run(["nm", "-DC", "--defined-only", str(library)], stdout=subprocess.PIPE,
                          text=True, check=True).stdout
    for line in said.splitlines():
        kind, name = re.match(r"[0-9a-f]* (\w) (.*)", line).groups()
        if kind in "TDBR" and name not in LINKER:
            yield name


def undefined(library):
    """The symbols that none of the libraries that it is linked with supplies, by their plain names."""
    said = subprocess.run(["ldd", "-r", str(library)], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=True).stdout
    mangled = re.findall(r"undefined symbol: (\w+)", said)
    return subprocess.run(["c++filt"], input="\n".join(mangled), stdout=subprocess.PIPE, text=True,
                          check=True).stdout.split("\n")


def check(library, classes):
    findings = []
    exported = set()
    for name in strong_exports(library):
        owner = OWNER.match(name)
        if owner and owner.group(1) in classes:
            exported.add(owner.group(1))
        else:
            findings.append(f"lets out {name}")
    findings += [f"does not let out {name}" for name in sorted(classes - exported)]
    for name in undefined(library):
        plain = name.split("(")[0].split("[")[0]
        # The sanitizers' own are supplied by the program.
        if plain and plain not in CONTRACT and not re.match(r"__|Zenqo_SYSTEM_NAMESPACE::\w+$", plain):
            findings.append(f"asks for {name}")
    return findings


if __name__ == "__main__":
    LISTED = tree.cmake_list(tree.root_argument(), "zenqo_public_classes")
    sys.exit(tree.report(check(sys.argv[2], {entry.split("/")[-1] for entry in LISTED})))
