"""What a run takes doesn't grow with its frames, be there a journal and a report or not."""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

FEW, MANY = 100, 10_000
# In KiB. The least that a frame leaves behind is its entry in the run report, of about 1 KiB.
MOST_GROWTH = 2 << 10
problems = []


def peak_memory(frames, *words):
    process = subprocess.Popen([*arguments.program, "run", "examples/animated.json", "-q", "-f",
                                f"1-{frames}", *words], cwd=arguments.folder)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        problems.append(f"{frames} frames {words}: ended with status {status}")
    return usage.ru_maxrss


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    for words in ([], ["--journal", folder / "run.journal", "--restart"], ["--report", folder / "run.json"]):
        growth = peak_memory(MANY, *words) - peak_memory(FEW, *words)
        if growth > MOST_GROWTH:
            problems.append(f"{words}: {MANY} frames take {growth} KiB more than {FEW}")

print("\n".join(problems))
sys.exit(1 if problems else 0)
