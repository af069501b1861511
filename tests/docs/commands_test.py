"""Types the commands of README.md and docs/*.md and compares what they print with what stands there.

A block that is fenced as `console` is a session: lines that begin with "$ " are typed, the others
are what the terminal shows. A line "..." stands for any lines, {{...}} for a regular expression. The
blocks of a document are played in order by one shell, in a folder of their own that looks like the
project's. Those fenced as `console elsewhere` want another machine and aren't played; any other block
has no commands.
"""

import argparse
import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "runner"))
from run_session import matches, shown  # noqa: E402

MARK = "=== end of command"


def read_commands(document):
    """Pairs of a command and the lines that it is said to print; each error ends the test."""
    commands, fence, indent = [], None, 0
    for number, line in enumerate(document.read_text(encoding="utf-8").splitlines(), 1):
        if line.lstrip().startswith("```"):
            indent = len(line) - len(line.lstrip())
            fence = line.strip()[3:] if fence is None else None
            continue
        line = line[indent:] if fence is not None else line.lstrip()
        if line.startswith("$ ") and fence not in ("console", "console elsewhere"):
            sys.exit(f"{document}:{number}: a command in a block that isn't fenced as console")
        if fence != "console":
            continue
        if line.startswith("$ "):
            commands.append((line[2:], []))
        elif commands and not commands[-1][1] and commands[-1][0].endswith("\\"):
            commands[-1] = (commands[-1][0] + "\n" + line, [])
        elif commands:
            commands[-1][1].append(line)
        else:
            sys.exit(f"{document}:{number}: a session begins with a command")
    return commands


def play(commands, program, folder):
    script = "".join(f"{command}\n{{ status=$?; echo '{MARK}'; (exit $status); }}\n"
                     for command, _ in commands)
    environment = {**os.environ, "LC_ALL": "C.UTF-8",
                   "PATH": f"{program.parent}:{os.environ['PATH']}"}
    for name in ("NO_COLOR", "QUILLON_DUMP_VERSION_INFO", "VTLCMD_WORKERS"):
        environment.pop(name, None)
    output = subprocess.run(["bash"], input=script.encode(), cwd=folder, env=environment,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=600).stdout
    return [shown("", piece) for piece in output.split(f"{MARK}\n".encode())[:-1]]


def agrees(expected, actual):
    if "..." not in expected:
        return matches(expected, actual)
    place = expected.index("...")
    head, rest = expected[:place], expected[place + 1:]
    return matches(head, actual[:place]) and any(
        agrees(rest, actual[i:]) for i in range(place, len(actual) + 1))


def check(document, program, source):
    commands = read_commands(document)
    with tempfile.TemporaryDirectory() as folder:
        for entry in source.iterdir():
            (pathlib.Path(folder) / entry.name).symlink_to(entry)
        outputs = play(commands, program, folder)
    failed = len(outputs) != len(commands)
    for (command, expected), actual in zip(commands, outputs):
        if not agrees(expected, actual):
            failed = True
            print(f"{document}: $ {command}")
            print("\n".join(difflib.unified_diff(expected, actual, "expected", "actual",
                                                 lineterm="")))
    return not failed


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("--program", required=True, type=pathlib.Path)
    parser.add_argument("--folder", required=True, type=pathlib.Path, help="of the project")
    arguments = parser.parse_args()
    source = arguments.folder.resolve()
    program = arguments.program.resolve()
    documents = [source / "README.md", *sorted((source / "docs").glob("*.md"))]
    return 0 if all([check(document, program, source) for document in documents]) else 1


if __name__ == "__main__":
    sys.exit(main())
