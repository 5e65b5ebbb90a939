#!/usr/bin/env python3
"""Prints the share of test code: C++ .h/.cpp lines that are neither blank nor only a comment,
tests/ against the product folders host/, clearcase/ and simulator/."""
import os
import sys

PRODUCT = ("host", "clearcase", "simulator")


def code_lines(path):
    count = 0
    in_block = False
    with open(path, encoding="utf-8", errors="replace") as source:
        for line in source:
            text = line.strip()
            if in_block:
                if "*/" not in text:
                    continue
                in_block = False
                text = text.split("*/", 1)[1].strip()
            elif text.startswith("/*"):
                if "*/" not in text:
                    in_block = True
                    continue
                text = text.split("*/", 1)[1].strip()
            if text and not text.startswith("//"):
                count += 1
    return count


def folder_lines(folder):
    total = 0
    for root, _, files in os.walk(folder):
        for name in files:
            if name.endswith((".h", ".cpp")):
                total += code_lines(os.path.join(root, name))
    return total


def main():
    os.chdir(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
    tests = folder_lines("tests")
    product = sum(folder_lines(folder) for folder in PRODUCT)
    share = 100.0 * tests / (tests + product)
    print(f"test share: {tests} test lines, {product} product lines: tests are {share:.1f}% of the code")
    return 0


if __name__ == "__main__":
    sys.exit(main())
