"""A standard output that takes nothing makes the program fail and say so."""

import argparse
import subprocess
import sys

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
arguments = parser.parse_args()

with open("/dev/full", "wb") as full:
    run = subprocess.run([*arguments.program, "nodes"], stdout=full, stderr=subprocess.PIPE, text=True)
expected = (1, "vtlcmd: the standard output can't be written\n")
if (run.returncode, run.stderr) != expected:
    print(run.returncode, run.stderr)
    sys.exit(1)
