"""Runs with worker processes and a plug-in that has mishaps in some frames."""

import argparse
import json
import os
import pathlib
import subprocess
import tempfile

from expectations import default_signals, finish

parser = argparse.ArgumentParser(description="what a run with mishaps does")
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--plug-in", required=True, help="the plug-in with mishaps")
parser.add_argument("--windows", action="store_true", help="the program is one for Windows")
arguments = parser.parse_args()

GRAPH = {
    "inputs": [{"name": "time", "type": "Simulation::Time"}],
    "nodes": [{"name": "frame", "op": "time_frame", "in": {"time": "time"}}],
    "outputs": [{"name": "frame", "from": "frame"}],
}
program = [os.path.abspath(word) for word in arguments.program]
temporary = tempfile.TemporaryDirectory()
folder = pathlib.Path(temporary.name)
(folder / "graph.json").write_text(json.dumps(GRAPH))

PROCESS = "The process that ran frame {frame} "
CRASHED = "crashed: " + ("exception 0xC0000005" if arguments.windows else "Segmentation fault")
KILLED = PROCESS + "was killed (Killed)."


def start(*words, graph="graph.json", mishaps="", mark="", loaded=None, stderr=subprocess.PIPE):
    environment = {**os.environ, "VTLCMD_TEST_MISHAPS": mishaps, "VTLCMD_TEST_MARK": str(mark)}
    environment.pop("VTLCMD_WORKERS", None)
    if loaded:
        environment["VTLCMD_TEST_LOADED"] = str(loaded)
    return subprocess.Popen(
        [*program, "run", graph, "--plugin", arguments.plug_in, *map(str, words)],
        cwd=folder, env=environment, text=True, stdout=subprocess.PIPE, stderr=stderr,
        preexec_fn=default_signals)


def run(*words, **options):
    process = start(*words, **options)
    output, errors = process.communicate(timeout=100)
    return output, errors, process.returncode


def lines(frames):
    return "".join(f"[vtlcmd]            Frame {frame}:\n"
                   f"[vtlcmd]            Output port 'frame': (double) {frame}\n" for frame in frames)


def critical(frame, text):
    return (f"[vtlcmd]            Frame {frame}:\n"
            f"[vtlcmd]  Critical: {text.format(frame=frame)}\n")


def run_tests(*tests):
    with temporary:
        for test in tests:
            test()
    finish()
