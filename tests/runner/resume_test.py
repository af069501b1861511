"""A run that was killed goes on where it was, and its report is that of an undisturbed one."""

import argparse
import collections
import json
import os
import pathlib
import random
import signal
import subprocess
import tempfile

from expectations import expect, fail, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
parser.add_argument("--kills", type=int, default=20, help="how many times a run is killed")
parser.add_argument("--seed", type=int, default=20260217, help="of the moments of the kills")
arguments = parser.parse_args()

FRAMES = 3000
KILLS_OF_A_RUN = 5
program = [os.path.abspath(word) for word in arguments.program]
graph = pathlib.Path(arguments.folder, "examples/animated.json").resolve()


def start(*words):
    environment = {name: value for name, value in os.environ.items() if name != "VTLCMD_WORKERS"}
    return subprocess.Popen([*program, "run", *map(str, words)], cwd=folder, env=environment,
                            text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE)


def run(*words):
    process = start(*words)
    output, errors = process.communicate(timeout=100)
    return output, errors, process.returncode


def frames_in(journal):
    """How often each frame was finished; a torn last line is none."""
    lines = journal.read_bytes().split(b"\n")[:-1]
    objects = [json.loads(line) for line in lines]
    return collections.Counter(line["frame"]["index"] for line in objects if "frame" in line)


def kill_and_resume(workers, moments):
    journal, report = folder / "run.journal", folder / "run.json"
    words = [graph, "-f", f"1-{FRAMES}", "--journal", journal, "--report", report, "--no-times",
             *workers]
    for _ in range(KILLS_OF_A_RUN):
        process = start(*words, "--resume")
        for _ in range(moments.randrange(1, FRAMES)):
            if not process.stdout.readline():
                break
        process.kill()
        process.communicate()
        expect("killed", process.returncode in (-signal.SIGKILL, 0))
    before = frames_in(journal)
    output, errors, code = run(*words, "--resume")
    expect(f"resumed {workers}", (errors, code), ("", 0))
    expect("only what was missing is printed", output.count("'label'"), FRAMES - len(before))
    expect("each frame was finished once", frames_in(journal),
           collections.Counter(range(FRAMES)))
    expect("the report is that of an undisturbed run", report.read_bytes() == undisturbed)
    journal.unlink()
    report.unlink()


def refusals():
    journal = folder / "run.journal"
    expect("no journal yet", run(graph, "-f", "1-3", "--journal", journal, "--resume")[1:], ("", 0))
    expect("all is done", run(graph, "-f", "1-3", "--journal", journal, "--resume"), ("", "", 0))

    def refused(what, text, code, *words):
        kept = journal.read_bytes()
        output, errors, found = run(*words, "--journal", journal, "--resume")
        expect(what, (output, text in errors, found), ("", True, code))
        if text not in errors:
            fail(errors)
        expect(f"{what}: the journal is as it was", journal.read_bytes() == kept)

    different = f"vtlcmd: {journal} is the journal of another run, which differs in "
    refused("another text", different + "key.input_texts.radius", 2, graph, "-f", "1-3", "-s",
            "radius=3")
    refused("other frames", different + 'frames ("1-4", not "1-3")', 2, graph, "-f", "1-4")
    other = folder / "other.json"
    other.write_text(graph.read_text() + "\n")
    refused("another graph", different + "key.graph", 2, other, "-f", "1-3")
    whole = journal.read_bytes()
    lines = whole.split(b"\n")
    journal.write_bytes(whole.replace(b"ball", b"bail"))
    refused("an edited line", f"{journal}: line 3 is damaged", 3, graph, "-f", "1-3")
    expect("both", run(graph, "--journal", journal, "--resume", "--restart")[2], 2)
    expect("nothing to go on with", run(graph, "--resume")[1:],
           ("vtlcmd: --resume needs the journal that the run left: --journal, or --report with the "
            "same file\nTry 'vtlcmd run --help'.\n", 2))
    # The run and the first frame whole, and a torn line.
    journal.write_bytes(b"\n".join([*lines[:3], lines[3][:20]]))
    output, errors, code = run(graph, "-f", "1-3", "--journal", journal, "--resume")
    expect("a torn line", (output.count("'label'"), errors, code), (2, "", 0))
    expect("a torn line: all frames", frames_in(journal), collections.Counter(range(3)))
    journal.write_bytes(lines[0][:50])
    output, errors, code = run(graph, "-f", "1-3", "--journal", journal, "--resume")
    expect("a torn first line", (output.count("'label'"), errors, code), (3, "", 0))


def changed_files():
    """Names that the graph computes aren't known before, and are told by the frames."""
    (folder / "notes.json").write_text(json.dumps({
        "inputs": [{"name": "time", "type": "Simulation::Time"}],
        "nodes": [
            {"name": "frame", "op": "time_frame", "in": {"time": "time"}},
            {"name": "number", "op": "text", "in": {"value": "frame"}},
            {"name": "dot", "op": "constant", "type": "string", "value": "."},
            {"name": "end", "op": "constant", "type": "string", "value": "txt"},
            {"name": "name", "op": "join", "in": {"parts": ["number", "end"], "separator": "dot"}},
            {"name": "text", "op": "read_lines", "in": {"path": "name"}}],
        "outputs": [{"name": "text", "from": "text"}]}))
    for frame in (1, 2):
        (folder / f"{frame}.txt").write_text("note\n")
    journal = folder / "notes.journal"
    words = ["notes.json", "-f", "1-2", "--journal", journal, "--resume"]
    expect("notes", run(*words)[1:], ("", 0))
    (folder / "2.txt").write_text("another note\n")
    _, errors, code = run(*words)
    expect("a changed file", ("2.txt with another content" in errors, code), (True, 2))


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    full = folder / "full.json"
    run(graph, "-f", f"1-{FRAMES}", "--report", full, "--no-times")
    undisturbed = full.read_bytes()
    random_moments = random.Random(arguments.seed)
    for i in range(arguments.kills // KILLS_OF_A_RUN):
        kill_and_resume(["--workers", "2"] if i % 2 else [], random_moments)
    refusals()
    changed_files()

finish()
