"""Plays a session with the runner and compares what it prints, byte for byte.

A session file is a list of steps:

    # a comment
    $ NAME=value vtlcmd run graph.json -s count=3     the command, split like a shell does
    < a line for the standard input
    > a line of the standard output, expected
    ! a line of the standard error stream, expected
    = 0                                               the exit code, expected
    ? a regular expression                            the step needs it in `vtlcmd --version`

Control characters stand as \\x1b; a last line without line end has one more backslash behind it.
{{...}} in an expected line is a regular expression. With --accept, steps that differ are rewritten
with what the program does now.
"""

import argparse
import difflib
import os
import re
import shlex
import subprocess
import sys


class Step:
    def __init__(self, command):
        self.command = command
        self.comments = []
        self.needs = []
        self.input = []
        self.expected = []

    def lines(self):
        return [*self.comments, "$ " + self.command, *("? " + need for need in self.needs),
                *("< " + line for line in self.input),
                *self.expected]


def read_steps(path):
    steps, comments = [], []
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file.read().splitlines(), 1):
            if line.startswith("$ "):
                steps.append(Step(line[2:]))
                steps[-1].comments, comments = comments, []
            elif line == "" or line.startswith("#"):
                comments.append(line)
            elif line.startswith("? ") and steps:
                steps[-1].needs.append(line[2:])
            elif line.startswith("< ") and steps:
                steps[-1].input.append(line[2:])
            elif line[:2] in ("> ", "! ", "= ") and steps:
                steps[-1].expected.append(line)
            else:
                sys.exit(f"{path}:{number}: not a line of a session: {line}")
    if not steps:
        sys.exit(f"{path}: no steps")
    return steps, comments


def shown(prefix, output):
    text = output.decode("utf-8", "backslashreplace")
    text = re.sub(r"[\x00-\x09\x0b-\x1f\x7f]", lambda m: f"\\x{ord(m[0]):02x}", text)
    lines = text.split("\n")
    if lines[-1] == "":
        lines.pop()
    else:
        lines[-1] += "\\"
    return [prefix + line for line in lines]


def play(step, program, folder):
    words = shlex.split(step.command)
    environment = {**os.environ, "LC_ALL": "C.UTF-8"}
    for name in ("NO_COLOR", "QUILLON_DUMP_VERSION_INFO", "VTLCMD_WORKERS"):
        environment.pop(name, None)
    while "=" in words[0]:
        name, value = words.pop(0).split("=", 1)
        environment[name] = value
    if words[0] != "vtlcmd":
        sys.exit(f"a session runs vtlcmd only: {step.command}")
    result = subprocess.run([*program, *words[1:]], cwd=folder, env=environment, timeout=120,
                            input="".join(line + "\n" for line in step.input).encode(),
                            capture_output=True)
    return [*shown("> ", result.stdout), *shown("! ", result.stderr), f"= {result.returncode}"]


def matches(expected, actual):
    if len(expected) != len(actual):
        return False
    for wanted, found in zip(expected, actual):
        pieces = re.split(r"\{\{(.*?)\}\}", wanted)
        pattern = "".join(f"(?:{piece})" if i % 2 else re.escape(piece) for i, piece in enumerate(pieces))
        if re.fullmatch(pattern, found) is None:
            return False
    return True


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
    parser.add_argument("--folder", required=True, help="working directory of the commands")
    parser.add_argument("--accept", action="store_true")
    parser.add_argument("session")
    arguments = parser.parse_args()

    steps, rest = read_steps(arguments.session)
    failed = False
    program = [os.path.abspath(word) for word in arguments.program]
    version = subprocess.check_output([*program, "--version"], text=True)
    for step in steps:
        if not all(re.search(need, version) for need in step.needs):
            print(f"not played: {step.command}")
            continue
        actual = play(step, program, arguments.folder)
        if matches(step.expected, actual):
            continue
        failed = True
        print(f"$ {step.command}")
        print("\n".join(difflib.unified_diff(step.expected, actual, "expected", "actual",
                                             lineterm="")))
        step.expected = actual
    if arguments.accept:
        with open(arguments.session, "w", encoding="utf-8") as file:
            file.writelines(line + "\n" for step in steps for line in step.lines())
            file.writelines(line + "\n" for line in rest)
        return 0
    if failed:
        print("if all that is as it should be:", shlex.join([sys.executable, *sys.argv, "--accept"]))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
