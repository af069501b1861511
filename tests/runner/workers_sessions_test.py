"""The sessions' runs print the same and end alike in one, two and three worker processes."""

import argparse
import os
import pathlib
import re
import subprocess
import sys

from run_session import matches, play, read_steps

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

# In a report's times, and what is another limit when processes share it.
DIFFERENT = re.compile(r'"attempts":1|--memory-limit|--read-memory')
program = [os.path.abspath(word) for word in arguments.program]
version = subprocess.check_output([*program, "--version"], text=True)
different = []
compared = 0


def steps():
    for session in sorted((pathlib.Path(__file__).parent / "sessions").glob("*.session")):
        for step in read_steps(session)[0]:
            if re.search(r"(^| )vtlcmd run ", step.command) and "--help" not in step.command:
                yield step


for step in steps():
    # What is refused is refused before any process is started.
    if {"= 2", "= 3"} & set(step.expected) or DIFFERENT.search(step.command + str(step.expected)):
        continue
    if not all(re.search(need, version) for need in step.needs):
        continue
    command = step.command
    # One frame is never more than one process.
    for workers in (1, 2, 3) if re.search(" (-f|--frames) ", command) else (1,):
        step.command = f"VTLCMD_WORKERS={workers} {command}"
        actual = play(step, program, arguments.folder)
        compared += 1
        if not matches(step.expected, actual):
            different.append("\n".join([step.command, *actual]))

if compared < 100:
    different.append(f"only {compared} runs were compared")
print("\n".join(different))
sys.exit(1 if different else 0)
