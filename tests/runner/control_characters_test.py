"""Control characters that a graph or a text holds don't reach a terminal raw."""

import argparse
import json
import os
import pathlib
import pty
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
arguments = parser.parse_args()

failed = []


def check(name, holds):
    if not holds:
        failed.append(name)


def on_terminal(words):
    controller, end = pty.openpty()
    process = subprocess.Popen([*arguments.program, *words], stdout=end, stderr=end,
                               env={**os.environ, "TERM": "dumb"})
    os.close(end)
    written = b""
    try:
        while block := os.read(controller, 65536):
            written += block
    except OSError:  # how Linux tells that the other end is closed
        pass
    os.close(controller)
    process.wait()
    return written


def piped(words):
    return subprocess.run([*arguments.program, *words], capture_output=True).stdout


evil = "a\x1b]0;title\x07\u009b2J\x7f"
spelled = rb"a\x1b]0;title\x07\xc2\x9b2J\x7f"
graph = {
    "inputs": [{"name": "text", "type": "string", "default": evil, "description": evil},
               {"name": "file", "type": "string", "default": evil + ".npy"}],
    "nodes": [{"name": "read", "op": "read_npy", "type": "array<int>", "in": {"path": "file"}}],
    "outputs": [{"name": "text", "from": "text"}],
}

with tempfile.TemporaryDirectory() as folder:
    file = pathlib.Path(folder) / "graph.json"
    file.write_text(json.dumps(graph))
    node_error = on_terminal(["run", file])
    ports = on_terminal(["ports", file])
    refusal = on_terminal(["run", file, "-s", evil + "=1"])
    del graph["nodes"]
    file.write_text(json.dumps(graph))
    documents = [on_terminal(words) for words in (
        ["ports", "--json", file], ["run", "-q", "--no-progress", "--report", "-", file])]
    table = pathlib.Path(folder) / "table.csv"
    table.write_text(evil + "\n1\n")
    documents.append(on_terminal(["show", "--json", table]))
    report = on_terminal(["run", file])
    raw_report = piped(["run", file])

check(f"errors of nodes: {node_error}", spelled + b".npy: No such file" in node_error)
check(f"descriptions: {ports}", spelled in ports)
check(f"the program's own errors: {refusal}", b"has no port '" + spelled + b"'" in refusal)
check(f"reports: {report}", b'(string) "' + spelled + b'"' in report)
for text in (node_error, ports, refusal, report, *documents):
    check(f"no control character: {text}",
          not any((character < " " and character not in "\r\n") or "\x7f" <= character < "\xa0"
                  for character in text.decode()))
for document in documents:
    check(f"documents have it escaped: {document}", rb"a\u001b]0;title\u0007\u009b2J\u007f" in document)
check("a pipe gets the report as it is", evil.encode() in raw_report)

print("\n".join(failed))
sys.exit(1 if failed else 0)
