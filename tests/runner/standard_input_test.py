"""What is read from the standard input is what a file of it would be."""

import argparse
import pathlib
import subprocess
import sys

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

failed = []


def check(name, holds):
    if not holds:
        failed.append(name)


def run(words, given=b""):
    result = subprocess.run([*arguments.program, *words], cwd=arguments.folder, input=given,
                            capture_output=True)
    return result.returncode, result.stdout.decode(), result.stderr.decode()


def content(name):
    return (pathlib.Path(arguments.folder) / name).read_bytes()


array = "examples/data/temperatures.npy"
code, output, errors = run(["show", array])
check("an array file is shown", code == 0 and output)
check("and the same from the standard input",
      run(["show", "-"], content(array)) == (0, output.replace(array, "-"), errors))
check("a file that is none", run(["show", "-"], b"text") == (
    1, "", "[vtlcmd]  Error:    the standard input: this is no NumPy array file\n"))
code, _, errors = run(["show", "-", "-"], content(array))
check("it is shown once", code == 2 and "vtlcmd: the standard input can be shown only once\n" in errors)

graph = "examples/division.json"
check("a graph", run(["run", "-"], content(graph)) == run(["run", graph]))

print("\n".join(failed))
sys.exit(1 if failed else 0)
