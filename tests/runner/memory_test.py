"""What a run, its reports and a diff take hardly grows with the frames."""

import argparse
import json
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


def usage_of(*words):
    process = subprocess.Popen([*arguments.program, *words], cwd=arguments.folder)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        problems.append(f"{words}: ended with status {status}")
    return usage


def peak_memory(*words):
    return usage_of(*words).ru_maxrss


def check_growth(what, words_of):
    growth = peak_memory(*words_of(MANY)) - peak_memory(*words_of(FEW))
    if growth > MOST_GROWTH:
        problems.append(f"{what}: {MANY} frames take {growth} KiB more than {FEW}")


def check_kept_memory(folder):
    """What a frame gives back is there for the next one: the system needn't map its pages anew."""
    links = 20
    (folder / "graph.json").write_text(json.dumps({
        "inputs": [{"name": "time", "type": "Simulation::Time"}],
        "nodes": [
            {"name": "frame", "op": "time_frame", "in": {"time": "time"}},
            {"name": "seed", "op": "convert", "type": "int", "in": {"value": "frame"}},
            {"name": "count", "op": "constant", "type": "int", "value": 100_000},
            {"name": "n0", "op": "random", "in": {"count": "count", "seed": "seed"}},
            *({"name": f"n{i}", "op": "sine", "in": {"x": f"n{i - 1}"}}
              for i in range(1, links + 1))],
        "outputs": [{"name": "last", "from": f"n{links}"}]}))
    few, many = (usage_of("run", folder / "graph.json", "-q", "-f", f"1-{frames}").ru_minflt
                 for frames in (5, 55))
    # A frame works on some hundreds of pages.
    if many - few > 50 * 20:
        problems.append(f"50 frames more take {many - few} pages anew")


def words_of_run(*words):
    return lambda frames: ["run", "examples/animated.json", "-q", "-f", f"1-{frames}", *words]


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    for words in ([], ["--journal", folder / "run.journal", "--restart"], ["--report", folder / "run.json"]):
        check_growth(words, words_of_run(*words))
    for frames in (FEW, MANY):
        peak_memory(*words_of_run("--journal", folder / f"{frames}.journal", "--report",
                                  folder / f"{frames}.json")(frames))
    for form in ("journal", "json"):
        check_growth(f"diff of a {form}",
                     lambda frames: ["diff", *[folder / f"{frames}.{form}"] * 2])
    check_kept_memory(folder)
    check_growth("a table", lambda frames: [
        "report", folder / f"{frames}.journal", "-o", folder / f"{frames}.csv"])

print("\n".join(problems))
sys.exit(1 if problems else 0)
