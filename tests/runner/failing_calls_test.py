"""An allocation, a read or a write that fails ends a run as it should, wherever it is.

Five runs, each with one call of the program failing: the first, then others at a distance, or all
of them. None crashes or hangs; the exit code is that of a failure, with lines that say so, or the
run did all the same what it does undisturbed. The journal can be made a report of, a file that is
there is whole, and nothing is left besides.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import subprocess
import tempfile

from expectations import expect, fail, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, help="whose calls can be made to fail")
parser.add_argument("--folder", required=True)
parser.add_argument("--tries", type=int, default=40, help="of each run and kind of call; 0 for all")
arguments = parser.parse_args()

SECONDS = 60
FAILURES = (1, 3, 75)
# What each run writes, and its words, with its folder as OUT.
RUNS = {
    "report": ("run.json", "run examples/animated.json -f 1-3 --no-times --report OUT/run.json"),
    "journal": ("run.journal", "run examples/division.json -f 1-3 -s dividend=7 -q --journal OUT/run.journal"),
    "save": ("points.npy", "run examples/scatter.json --save points=OUT/points.npy"),
    "show": (None, "show tests/runner/data/points.npy tests/runner/data/ints.npy"),
    "merge": ("all.json", "report IN/first.journal IN/second.journal --no-times -o OUT/all.json"),
}


def vtlcmd(words, **environment):
    return subprocess.run([arguments.program, *words], cwd=arguments.folder, text=True, errors="replace",
                          stdin=subprocess.DEVNULL, capture_output=True, timeout=SECONDS,
                          env={**os.environ, **environment})


def report_of(journal):
    made = vtlcmd(["report", str(journal), "-o", "-", "--no-times"])
    return made.returncode, made.stdout


class Attempt:
    """One run of RUNS in a folder of its own."""

    def __init__(self, run, inputs, **environment):
        output, words = RUNS[run]
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            words = [word.replace("OUT", name).replace("IN", inputs) for word in words.split()]
            ended = vtlcmd(words, **environment)
            self.code, self.shown = ended.returncode, ended.stdout
            self.errors = ended.stderr.replace(name, "OUT")
            self.files = {file.name: self.content(file) for file in folder.iterdir()}
        self.output = self.files.get(output)

    @staticmethod
    def content(file):
        return report_of(file) if file.suffix == ".journal" else file.read_bytes()


def check(name, attempt, undisturbed):
    if attempt.code == 0:
        expect(f"{name}: standard output", attempt.shown, undisturbed.shown)
        expect(f"{name}: files", attempt.files, undisturbed.files)
    elif attempt.code not in FAILURES:
        fail(f"{name}: ended with {attempt.code}: {attempt.errors:.300}")
    elif not attempt.errors.strip():
        fail(f"{name}: ended with {attempt.code} and no word")
    for file, content in attempt.files.items():
        if file.endswith(".journal"):
            # A journal of nothing is no journal yet.
            if content[0] not in (0, 1, 3) or (content[0] == 3) != (content[1] == ""):
                fail(f"{name}: no report of {file}: {content}")
        elif file.endswith(".json"):
            json.loads(content)
        elif file.endswith(".npy"):
            expect(f"{name}: {file}", content, undisturbed.output)
        # Where a library can't hand on that memory ran out, there is no time to clean up.
        elif not (file.endswith(".part") and attempt.code == 75):
            fail(f"{name}: {file} is left")


def numbers(count):
    if arguments.tries == 0:
        return range(count)
    return sorted({number * count // arguments.tries for number in range(arguments.tries)})


def check_run(run, call, inputs, pool):
    undisturbed = Attempt(run, inputs)
    expect(f"{run}, undisturbed", undisturbed.code, 0)
    with tempfile.NamedTemporaryFile() as file:
        Attempt(run, inputs, FAILING_CALL=call, CALLS_FILE=file.name)
        count = int(pathlib.Path(file.name).read_text())
    expect(f"{run} has a {call}", count > 0)

    def attempt(number):
        name = f"{run}, {call} {number} of {count}"
        try:
            check(name, Attempt(run, inputs, FAILING_CALL=call, FAILING_NUMBER=str(number)),
                  undisturbed)
        except subprocess.TimeoutExpired:
            fail(f"{name}: hangs")
        except ValueError as error:
            fail(f"{name}: {error}")

    for _ in pool.map(attempt, numbers(count)):
        pass


with tempfile.TemporaryDirectory() as inputs, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    for journal, frames in (("first", "1-2"), ("second", "3-4")):
        made = vtlcmd(["run", "examples/animated.json", "-q", "-f", frames, "--journal",
                       f"{inputs}/{journal}.journal"])
        expect(f"the {journal} journal", made.returncode, 0)
    for run in RUNS:
        for call in ("allocation", "read", "write"):
            check_run(run, call, inputs, pool)

finish()
