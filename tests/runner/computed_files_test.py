"""Files whose names a graph computes are in the frame's line, and no report is written over them."""

import argparse
import hashlib
import json
import pathlib
import subprocess
import tempfile

from expectations import expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True, type=pathlib.Path)
arguments = parser.parse_args()

GRAPH = {
    "nodes": [{"name": "stem", "op": "constant", "type": "string", "value": "some"},
              {"name": "end", "op": "constant", "type": "string", "value": "npy"},
              {"name": "dot", "op": "constant", "type": "string", "value": "."},
              {"name": "path", "op": "join", "in": {"parts": ["stem", "end"], "separator": "dot"}},
              {"name": "array", "op": "read_npy", "type": "array<array<double>>", "in": {"path": "path"}}],
    "outputs": [{"name": "array", "from": "array"}],
}


def run(*words):
    result = subprocess.run([*arguments.program, "run", *words], capture_output=True, text=True)
    return result.returncode, result.stderr


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    graph, array, report = folder / "graph.json", folder / "some.npy", folder / "report.json"
    graph.write_text(json.dumps(GRAPH))
    content = (arguments.folder / "examples/data/temperatures.npy").read_bytes()
    array.write_bytes(content)

    expect("a run", run(graph, "--report", report), (0, ""))
    document = json.loads(report.read_text())
    files = document["frames"][0].get("files", {})
    expect("the frame's file", [file.replace("\\", "/") for file in files], [str(array)])
    expect("its content", list(files.values()), [hashlib.sha256(content).hexdigest()])
    expect("the files known before", document["run"]["key"]["files"], {})

    journal = folder / "some.npy.journal"
    expect("a report onto what the run reads", run(graph, "--report", array),
           (1, f"vtlcmd: the report can't be written to {array}: the run has read it\n"
               f"vtlcmd: the frames that ran are in {journal}\n"))
    expect("saving onto what the run reads", run(graph, "-q", "--save", f"array={array}"),
           (1, f"[vtlcmd]  Error:    Saving output port 'array' failed: {array}: the run has read this file\n"))
    expect("the file is as it was", array.read_bytes(), content)
    expect("the journal is there", journal.exists(), True)

finish()
