"""Prints what checks have shown as a table, and holds the document of all that is claimed to it.

    quality.py FIGURES DOCUMENT < CHECKS

CHECKS has a line "name|claim" for each check there is, with an empty line before those that only the
long form makes; FIGURES a line "name|figure" for each one made. What wasn't made keeps the figure
that the document has. A document that differs stays as it is, and what it should be lies beside
FIGURES.
"""

import pathlib
import re
import sys

HEAD = """# What is proved

`./dev check` prints this table at its end, and fails where a figure is another here.
"""
LONG_HEAD = """
`./dev check --long` besides:
"""
COLUMNS = "\n| Claim | Figure | Command |\n|---|---|---|\n"
# A check that can't be made on a machine says so, and nothing about the project.
SKIPPED = "skipped"


def command(name):
    return f"./dev check {name}"


def figures_of(document):
    """By command."""
    return {cells[2]: cells[1] for cells in re.findall(r"^\| (.*) \| (.*) \| `(.*)` \|$", document, re.M)}


def printed(rows):
    widths = [max(map(len, column)) for column in zip(*rows)]
    for row in rows:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


def table(checks, figures):
    """Of the checks that have a figure."""
    return COLUMNS + "".join(f"| {claim} | {figures[command(name)]} | `{command(name)}` |\n"
                             for name, claim in checks if command(name) in figures)


def main():
    figures_file, document_file = map(pathlib.Path, sys.argv[1:])
    short, long = ([line.split("|", 1) for line in part.splitlines()]
                   for part in sys.stdin.read().split("\n\n"))
    made = dict(line.split("|", 1) for line in figures_file.read_text(encoding="utf-8").splitlines())
    printed([(claim, made[name], command(name)) for name, claim in short + long if name in made])

    document = document_file.read_text(encoding="utf-8")
    figures = figures_of(document) | {command(name): figure for name, figure in made.items()
                                      if not figure.startswith(SKIPPED)}
    wanted = HEAD + table(short, figures) + LONG_HEAD + table(long, figures)
    if document == wanted:
        return 0
    beside = figures_file.with_name(document_file.name)
    beside.write_text(wanted, encoding="utf-8")
    print(f"{document_file} isn't what the checks show; if what they show is meant, "
          f"copy {beside} there", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main())
