"""Holds the sizes of files and functions: 400 lines of a file, 60 between the braces of a function.

A C++ function is found by its form, which clang-format keeps: a line with the end of a parameter list
that ends in a brace, up to the next closing brace at the same indentation. Lambdas count alike.
"""

import argparse
import ast
import pathlib
import re
import sys

FOLDERS = ("src", "closed", "runner", "validator", "tests", "fuzz", "bench")
MOST_LINES_OF_A_FILE = 400
MOST_LINES_OF_A_FUNCTION = 60

OPENING = re.compile(r"( *)(?!\}|if\b|for\b|while\b|switch\b|else\b|do\b)\S.*\).*\{$")


def cpp_functions(text):
    """Pairs of a number of a line and how many lines the function behind it has."""
    lines = text.splitlines()
    for start, line in enumerate(lines):
        if opening := OPENING.match(line):
            closing = re.compile(opening[1] + r"\}")
            end = next((i for i in range(start + 1, len(lines)) if closing.match(lines[i])), start + 1)
            yield start + 1, end - start - 1


def python_functions(text):
    for node in ast.walk(ast.parse(text)):
        if isinstance(node, ast.FunctionDef):
            yield node.lineno, node.end_lineno - node.lineno


FUNCTIONS = {".h": cpp_functions, ".cpp": cpp_functions, ".py": python_functions}


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("--folder", required=True, type=pathlib.Path, help="of the project")
    root = parser.parse_args().folder.resolve()
    problems, seen = [], 0
    for file in sorted(file for folder in FOLDERS for file in (root / folder).rglob("*")):
        if file.suffix not in FUNCTIONS:
            continue
        text = file.read_text(encoding="utf-8")
        place = file.relative_to(root)
        lines = len(text.splitlines())
        if lines > MOST_LINES_OF_A_FILE:
            problems.append(f"{place}: {lines} lines")
        for line, size in FUNCTIONS[file.suffix](text):
            seen += 1
            if size > MOST_LINES_OF_A_FUNCTION:
                problems.append(f"{place}:{line}: a function of {size} lines")
    if seen == 0:
        problems.append("no function was found")
    print(*problems, sep="\n", end="")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
