"""Reports as tables: every cell reads back as the exact value of the JSON report."""

import argparse
import csv
import json
import pathlib
import subprocess
import tempfile

from expectations import expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

GRAPH = {
    "name": "table",
    "inputs": [{"name": "time", "type": "Simulation::Time"}],
    "nodes": [
        {"name": "frame", "op": "time_frame", "in": {"time": "time"}},
        {"name": "int", "op": "convert", "type": "int", "in": {"value": "frame"}},
        {"name": "text", "op": "constant", "type": "string", "value": "a \"quoted\", text\r\nof two lines"},
        {"name": "long", "op": "constant", "type": "long", "value": -9223372036854775807},
        {"name": "ulong", "op": "constant", "type": "ulong", "value": 18446744073709551615},
        {"name": "tenth", "op": "constant", "type": "float", "value": 0.1},
        {"name": "third", "op": "constant", "type": "double", "value": 0.3333333333333333},
        {"name": "zero", "op": "constant", "type": "Math::double3", "value": [-0.0, "nan", "-inf"]},
        {"name": "list", "op": "constant", "type": "array<float>", "value": [1, 2.5]},
        {"name": "vectors", "op": "constant", "type": "array<Math::float2>", "value": [[1, 2], [3, 4]]},
        {"name": "nested", "op": "constant", "type": "array<array<int>>", "value": [[1, 2], [3]]},
        {"name": "yes", "op": "constant", "type": "bool", "value": True},
    ],
    "outputs": [{"name": name, "from": source} for name, source in [
        ("frame", "int"), ("a, \"b\"", "text"), ("long", "long"), ("ulong", "ulong"), ("tenth", "tenth"),
        ("third", "third"), ("zero", "zero"), ("list", "list"), ("vectors", "vectors"),
        ("nested", "nested"), ("yes", "yes")]],
}
FACTS = ["index", "frame", "succeeded", "failure", "inputs_set", "executed", "outputs_reported",
         "without_errors", "interrupted", "graph_errors", "graph_warnings"]
TIMES = ["host", "worker", "attempts", "started", "seconds"]
VALUES = {"frame_": "2", "a, \"b\"": "a \"quoted\", text\r\nof two lines", "long": "-9223372036854775807",
          "ulong": "18446744073709551615", "tenth": "0.1", "third": "0.3333333333333333",
          "zero.x": "-0.0", "zero.y": "nan", "zero.z": "-inf", "list.size": "2", "list.min": None,
          "list.max": "2.5", "list.average": "1.75", "vectors.size": "2", "vectors.min.x": None,
          "vectors.min.y": None, "vectors.max.x": None, "vectors.max.y": None,
          "vectors.average.x": None, "vectors.average.y": None, "nested.size.0": "2",
          "nested.size.1": "", "yes": "true"}


def vtlcmd(*words):
    return subprocess.run([*arguments.program, *map(str, words)], cwd=arguments.folder,
                          capture_output=True, timeout=120)


def table(text):
    """Head and rows; every line ends as RFC 4180 has it."""
    without_cells = text.decode().replace("text\r\nof", "")
    expect("line ends", without_cells.count("\n"), without_cells.count("\r\n"))
    expect("the last line", text.endswith(b"\r\n"), True)
    rows = list(csv.reader(text.decode().splitlines(True), strict=True))
    expect("the same cells in every row", {len(row) for row in rows}, {len(rows[0])})
    return rows[0], [dict(zip(rows[0], row)) for row in rows[1:]]


def check(folder):
    (folder / "table.json").write_text(json.dumps(GRAPH))
    journal = folder / "run.journal"
    result = vtlcmd("run", folder / "table.json", "-q", "-f", "2,1", "--journal", journal,
                    "--report", folder / "run.csv")
    expect("the run", (result.returncode, result.stderr), (0, b""))
    if result.returncode != 0:
        return
    head, rows = table((folder / "run.csv").read_bytes())
    expect("the head", head, [*FACTS, *TIMES, *VALUES])
    row = rows[1]
    expect("the facts", [row[name] for name in FACTS],
           ["0", "2", "true", "none", "true", "true", "true", "true", "false", "0", "0"])
    report = json.loads(vtlcmd("report", journal, "-o", "-").stdout)
    expect("the seconds", float(row["seconds"]), report["times"]["frames"][1]["seconds"])
    expect("the start", row["started"], report["times"]["frames"][1]["started"])
    expect("the host", row["host"], report["times"]["runs"][0]["host"])
    for name, wanted in VALUES.items():
        if wanted is not None:
            expect(name, row[name], wanted)
    for name, path in {"list.min": ["list", "min"], "vectors.min.x": ["vectors", "min", 0],
                       "vectors.average.y": ["vectors", "average", 1]}.items():
        value = report["frames"][1]["outputs"][path[0]]["value"]
        for key in path[1:]:
            value = value[key]
        expect(name, float(row[name]), float(value))
    without = vtlcmd("report", journal, "-o", "-", "--format", "csv", "--no-times")
    head, rows = table(without.stdout)
    expect("the head without times", head, [*FACTS, *VALUES])
    upper = vtlcmd("report", journal, "-o", folder / "other.csv", "--no-times")
    expect("by the file's name", (upper.returncode, (folder / "other.csv").read_bytes()),
           (0, without.stdout))


def check_failures(folder):
    """A frame that failed has a row with empty cells."""
    journal = folder / "failed.journal"
    vtlcmd("run", "tests/runner/data/count_down.json", "-q", "-f", "1-3", "--journal", journal)
    head, rows = table(vtlcmd("report", journal, "-o", "-", "--format", "csv", "--no-times").stdout)
    expect("the columns", head, [*FACTS, "quotient"])
    expect("the rows", [(row["frame"], row["succeeded"], row["quotient"] == "") for row in rows],
           [("1", "true", False), ("2", "false", True), ("3", "true", False)])
    vtlcmd("run", "tests/runner/data/count_down.json", "-q", "-f", "2", "--journal",
           folder / "none.journal")
    head, rows = table(vtlcmd("report", folder / "none.journal", "-o", "-", "--format", "csv",
                              "--no-times").stdout)
    expect("no column of what no frame has", (head, len(rows)), (FACTS, 1))


with tempfile.TemporaryDirectory() as folder:
    check(pathlib.Path(folder))
    check_failures(pathlib.Path(folder))

finish()
