"""Parts of a job, each with a journal of its own, and the report that they make together."""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

problems = []


def expect(what, found, wanted):
    if found != wanted:
        problems.append(f"{what}: {found!r:.300}, not {wanted!r:.300}")


def vtlcmd(*words):
    return subprocess.run([*arguments.program, *map(str, words)], cwd=arguments.folder,
                          capture_output=True, timeout=120)


def run(journal, *words):
    """Runs frames of a graph whose frame 2 fails."""
    vtlcmd("run", "tests/runner/data/count_down.json", "-q", "--journal", journal, *words)


def lines_of(journal):
    return [json.loads(line) for line in journal.read_text().splitlines()]


def check_journal(folder):
    """A journal names the frames asked for and those of the job; places are those of the job."""
    part = folder / "part.journal"
    run(part, "-f", "3-4", "--job-frames", "4-1")
    lines = lines_of(part)
    facts = {name: lines[0]["run"].get(name)
             for name in ("frames", "frame_count", "job_frames", "job_frame_count")}
    expect("the frames", facts, {"frames": "3-4", "frame_count": 2,
                                 "job_frames": "4-1", "job_frame_count": 4})
    places = [(kind, line[kind]["index"], line[kind]["frame"])
              for line in lines for kind in ("start", "frame") if kind in line]
    expect("the places", places,
           [("start", 1, "3"), ("frame", 1, "3"), ("start", 0, "4"), ("frame", 0, "4")])
    report = json.loads(vtlcmd("report", part, "-o", "-").stdout)
    expect("the job", (report["run"]["frames"], report["run"]["frame_count"]), ("4-1", 4))
    expect("only the job", "job_frames" in report["run"], False)
    expect("the missing frames", report["totals"]["missing"], 2)


with tempfile.TemporaryDirectory() as folder:
    check_journal(pathlib.Path(folder))

print("\n".join(problems))
sys.exit(1 if problems else 0)
