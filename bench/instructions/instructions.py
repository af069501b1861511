#!/usr/bin/env python3
"""instructions.py check|renew PROGRAM BASELINE

Runs PROGRAM (count_instructions) under callgrind. `check` fails when an operation takes over 5 %
more instructions than BASELINE says, or when the two name different operations; `renew` writes
BASELINE anew. Counts depend on compiler, C library and processor. The file says which they were
made with; with others only the names are checked.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

ALLOWED_GROWTH = 1.05


def valgrind_version():
    return subprocess.run(["valgrind", "--version"], check=True, text=True,
                          stdout=subprocess.PIPE).stdout.strip()


def dumps(folder):
    """Instructions by name, of the parts of a profile that the program asked for."""
    for part in sorted(folder.glob("profile.*")):
        text = part.read_text()
        name = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
        if name:
            yield name[1], int(re.search(r"^(?:summary|totals): (\d+)", text, re.MULTILINE)[1])


def count(program):
    """What the counts depend on, and the instructions of one call of each operation."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", "--quiet", f"--callgrind-out-file={folder}/profile",
             program], text=True, stdout=subprocess.PIPE, check=True)
        made_with, *lines = run.stdout.splitlines()
        totals = dict(dumps(folder))
    calls = {name: int(number) for number, name in (line.split(" ", 1) for line in lines)}
    return (f"{made_with}, {valgrind_version()}",
            {name: round(totals[name] / calls[name]) for name in calls})


def read(baseline):
    lines = baseline.read_text().splitlines()
    made_with = next(line[len("# with "):] for line in lines if line.startswith("# with "))
    entries = (line.split(None, 1) for line in lines if line and not line.startswith("#"))
    return made_with, {name: int(number) for number, name in entries}


def write(baseline, made_with, counts):
    lines = ["# Instructions of one call of each operation, made by `./dev bench --renew`.",
             f"# with {made_with}"]
    lines += [f"{number:>8} {name}" for name, number in counts.items()]
    baseline.write_text("\n".join(lines) + "\n")


def differences(expected, counts):
    """What is wrong, and what got so much better that the baseline should be renewed."""
    problems = [f"not in the baseline: {name}" for name in counts.keys() - expected.keys()]
    problems += [f"only in the baseline: {name}" for name in expected.keys() - counts.keys()]
    better = []
    for name in counts.keys() & expected.keys():
        line = f"{name}: {counts[name]} instructions, {expected[name]} in the baseline"
        if counts[name] > expected[name] * ALLOWED_GROWTH:
            problems.append(line)
        elif counts[name] * ALLOWED_GROWTH < expected[name]:
            better.append(line)
    return sorted(problems), sorted(better)


def check(baseline, made_with, counts):
    expected_with, expected = read(baseline)
    compared = made_with == expected_with
    if not compared:
        expected = {name: counts.get(name, 0) for name in expected}
    problems, better = differences(expected, counts)
    for line in better:
        print(f"fewer: {line}; ./dev bench --renew keeps it so")
    for line in problems:
        print(line, file=sys.stderr)
    if compared:
        print(f"{len(counts)} operations counted, {len(problems)} unlike the baseline")
    else:
        print(f"skipped: {len(counts)} operations counted, not compared: with {made_with}; "
              f"the baseline is of {expected_with}")
    return 1 if problems else 0


def main():
    mode, program, file = sys.argv[1:]
    baseline = pathlib.Path(file)
    made_with, counts = count(program)
    if mode == "check":
        return check(baseline, made_with, counts)
    write(baseline, made_with, counts)
    return 0


if __name__ == "__main__":
    sys.exit(main())
