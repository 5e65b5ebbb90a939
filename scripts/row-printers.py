#!/usr/bin/env python3
"""Lists the parameter types of gtest tables under tests/ that have no printer, so that a failing
row would be shown as `GetParam() = N-byte object <...>`. Exit 1 when there is one."""
import glob
import os
import re
import sys

BUILTIN = {"std::string", "std::size_t", "int", "bool", "const char*"}


def main():
    os.chdir(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
    sources = {path: open(path, encoding="utf-8", errors="replace").read()
               for path in glob.glob("tests/**/*.cpp", recursive=True) + glob.glob("tests/**/*.h", recursive=True)}
    headers = "\n".join(text for path, text in sources.items() if path.endswith(".h"))
    missing = []
    for path, text in sorted(sources.items()):
        for param in sorted(set(re.findall(r"(?:TestWithParam|WithParamInterface)<([\w:]+(?:\*)?)>", text))):
            name = param.split("::")[-1]
            if param in BUILTIN or re.search(r"enum (class )?%s\b" % name, text):
                continue
            seen = text + headers
            if re.search(r"WF_ROW_PRINTER(_AS)?\((::)?[\w:]*\b%s\b" % name, seen) or \
                    re.search(r"PrintTo\(const (::)?[\w:]*\b%s&" % name, seen):
                continue
            missing.append(f"{path}: {param} has no printer (WF_ROW_PRINTER after its struct)")
    for line in missing:
        print(line, file=sys.stderr)
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
