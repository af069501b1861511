"""Output that can't be written makes the program fail and say so, in one line."""

import argparse
import json
import os
import pathlib
import resource
import subprocess
import tempfile
from functools import partial

from expectations import expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

MANY_FRAMES = ["run", "examples/animated.json", "-f", "1-900000"]


def outcome(*words, **options):
    run = subprocess.run([*arguments.program, *words], cwd=arguments.folder, text=True,
                         stderr=subprocess.PIPE, **{"stdout": subprocess.DEVNULL, **options})
    return run.returncode, run.stderr


FULL = (1, "vtlcmd: the standard output can't be written\n")
with open("/dev/full", "wb") as full:
    expect("nodes", outcome("nodes", stdout=full), FULL)
    # A run of so many frames would take minutes: it ends at the next frame.
    expect("run", outcome(*MANY_FRAMES, stdout=full), FULL)
    expect("report", outcome("report", "tests/runner/data/cut_off.journal", "-o", "-", stdout=full),
           (1, "vtlcmd: 1 of 3 frames are missing: 3\n" + FULL[1]))

with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    expect("a report where no room is",
           outcome("run", "examples/animated.json", "--report", "/dev/full"),
           (75, "vtlcmd: the report can't be written to /dev/full: No space left on device\n"))

    (folder / "full.npy").symlink_to("/dev/full")
    expect("a saved array where no room is",
           outcome("run", "examples/scatter.json", "--save", f"points={folder}/full.npy"),
           (75, f"[vtlcmd]  Error:    Saving output port 'points' failed: {folder}/full.npy: "
                "No space left on device\n"))

    journal = folder / "run.json.journal"

    def run_into_limit(size):
        limit = partial(resource.setrlimit, resource.RLIMIT_FSIZE, (size, size))
        code, errors = outcome(*MANY_FRAMES, "--report", folder / "run.json", preexec_fn=limit)
        expect(f"the journal's limit, {size} bytes", (code, errors.splitlines()[0]),
               (1, f"vtlcmd: the journal can't be written to {journal}: File too large"))
        expect("the journal is kept", journal.stat().st_size, size)

    run_into_limit(100_000)
    first, second, *_ = journal.read_bytes().splitlines(keepends=True)
    journal.unlink()
    # A line of any length may be torn, the short one at a frame's start too, anywhere.
    for size in range(len(first), len(first) + len(second) + 2, 9):
        run_into_limit(size)
        journal.unlink()
    run_into_limit(100_000)
    # What fits a journal need not fit the report that is made of it.
    if (folder / "run.json").exists():
        report = json.loads((folder / "run.json").read_text())
        expect("the report of what there is", report["outcome"], "cut off")
    expect("nothing else is left", [file for file in os.listdir(folder) if file.endswith(".part")], [])
    expect("a report of it can be made",
           outcome("report", journal, "-o", folder / "again.json")[0], 1)

finish()
