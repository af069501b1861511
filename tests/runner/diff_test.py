"""What changed between two runs, from journals and reports."""

import argparse
import json
import pathlib
import subprocess
import tempfile

from expectations import expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()


def vtlcmd(*words):
    result = subprocess.run([*arguments.program, *map(str, words)], cwd=arguments.folder,
                            capture_output=True, timeout=120, text=True)
    return result.returncode, result.stdout, result.stderr


def run(folder, name, graph, *words):
    """A journal and a report of a run."""
    vtlcmd("run", graph, "-q", "--journal", folder / f"{name}.journal",
           "--report", folder / f"{name}.json", *words)
    return folder / f"{name}.journal", folder / f"{name}.json"


def differences(a, b, *words):
    code, text, errors = vtlcmd("diff", a, b, "--json", *words)
    document = json.loads(text)
    found = document["differences"]
    expect("the count", document["totals"]["differences"], len(found))
    expect("the frames", document["totals"]["different_frames"], len({d["frame"] for d in found}))
    expect("the exit code", (code, errors), (1 if found else 0, ""))
    return [(d["frame"], d["output"], d["place"], d["a"], d["b"]) for d in found], document


def check_equal(folder):
    first = run(folder, "e1", "examples/animated.json", "-f", "1-5")
    second = run(folder, "e2", "examples/animated.json", "-f", "5-1")
    for a in first:
        for b in second:
            expect("equal", vtlcmd("diff", a, b), (0, "", ""))
            expect("equal as JSON", differences(a, b)[0], [])


def check_values(folder):
    a = run(folder, "v1", "examples/scatter.json", "-s", "count=3", "-f", "1-2")
    b = run(folder, "v2", "examples/scatter.json", "-s", "count=4", "-f", "1-2")
    places = ["size", "min", "max", "average"]
    for one in a:
        for other in b:
            found, document = differences(one, other)
            expect("what was given", document["given"], 'input_texts.count ("4", not "3")')
            expect("sizes", [d for d in found if d[2] == "size"],
                   [(frame, output, "size", 3, 4) for frame in "12" for output in ("heights", "points")])
            expect("places", {d[2].split(".")[0] for d in found} <= set(places), True)
    code, text, errors = vtlcmd("diff", a[0], b[0])
    lines = text.splitlines()
    expect("the first line", lines[0], f'{b[0]} was given something else than {a[0]}: '
                                       f'input_texts.count ("4", not "3")')
    expect("a difference", lines[1], "frame 1: heights.size: 3 -> 4")
    expect("the last line", (lines[-1].endswith(" in 2 frames"), code, errors), (True, 1, ""))


def check_tolerance(folder):
    a, b = (run(folder, f"t{i}", "examples/animated.json", "-s", f"radius={radius}", "-f", "1")[i]
            for i, radius in enumerate(("2", "2.001")))
    exact, _ = differences(a, b)
    expect("exact", [d[:3] for d in exact], [("1", "position", "x"), ("1", "position", "z")])
    expect("too narrow", len(differences(a, b, "--tolerance", "1e-4")[0]), 1)
    expect("wide enough", differences(a, b, "--tolerance", "0.01")[0], [])
    expect("relative", differences(a, b, "--tolerance", "0,0.001")[0], [])
    expect("relative, too narrow", len(differences(a, b, "--tolerance", "0,1e-4")[0]), 2)
    for text in ("", "x", "-1", "1,", ",1", "nan", "inf", "1,2,3", "1e-6 "):
        code, out, errors = vtlcmd("diff", a, b, f"--tolerance={text}")
        expect(f"the tolerance {text!r}", (code, out), (2, ""))
        if text:
            expect(f"the tolerance {text!r}: what is said", errors.splitlines()[0],
                   "vtlcmd: --tolerance takes one or two numbers of zero or more, like 1e-6 or "
                   f"1e-9,1e-6, not '{text}'")


def check_frames(folder):
    graph = "tests/runner/data/count_down.json"
    a, _ = run(folder, "f1", graph, "-f", "1-3")
    b, report = run(folder, "f2", graph, "-f", "2-4")
    wanted = [("1", None, "state", "succeeded", None), ("4", None, "state", None, "succeeded")]
    for other in (b, report):
        expect("frames of one run alone", differences(a, other)[0], wanted)
    code, text, _ = vtlcmd("diff", a, b)
    expect("as text", (code, text.splitlines()),
           (1, ['frame 1: state: "succeeded" -> nothing', 'frame 4: state: nothing -> "succeeded"',
                "2 differences in 2 frames"]))
    document = json.loads(report.read_text())
    frame = document["frames"][0]
    frame["succeeded"] = True
    frame["messages"]["graph"]["error"] = ["something else"]
    frame["outputs"] = {"quotient": {"type": "int", "shown": True, "text": "1", "value": 1}}
    changed = folder / "changed.json"
    changed.write_text(json.dumps(document))
    expect("a failure and a success", differences(b, changed)[0],
           [("2", None, "state", "failed", "succeeded"), ("2", "quotient", "", None, 1),
            ("2", None, "messages", "Node 'quotient' (divide): an integer can't be divided by zero.",
             "something else")])


def check_many(folder):
    graph = "examples/animated.json"
    a, _ = run(folder, "m1", graph, "-f", "1-100", "-s", "name=a")
    b, _ = run(folder, "m2", graph, "-f", "1-100", "-s", "name=" + "ü" * 100)
    _, text, _ = vtlcmd("diff", a, b)
    lines = text.splitlines()
    expect("so many lines", (len(lines), lines[-2:]), (53, ["...", "100 differences in 100 frames"]))
    expect("a long value is cut", lines[1].endswith("ü..."), True)


def check_other_forms_of_a_report(folder):
    """Other tools write the members in another order, and with other blanks."""
    journal, report = run(folder, "o", "examples/animated.json", "-f", "1-5", "-s", "name=[{\\\"")
    document = json.loads(report.read_text())
    other = folder / "other.json"
    for options in ({"sort_keys": True}, {"indent": 7}, {"separators": (",", ":")}):
        other.write_text(json.dumps(document, **options))
        expect(f"another form {options}", vtlcmd("diff", journal, other), (0, "", ""))
    other.write_text(json.dumps(document)[:-1])
    expect("a torn report", vtlcmd("diff", journal, other),
           (3, "", f"vtlcmd: {other} is neither a journal nor a JSON report of a run\n"))
    document["frames"].reverse()
    other.write_text(json.dumps(document))
    expect("another order", vtlcmd("diff", journal, other)[::2],
           (3, f"vtlcmd: {other}: the frames aren't in the order of their numbers\n"))


def check_unreadable(folder):
    good, report = run(folder, "u", "examples/division.json")
    for name, text in {"empty": "", "other": '{"nodes": []}', "list": "[1]", "text": "hello"}.items():
        bad = folder / name
        bad.write_text(text)
        for pair in ((good, bad), (bad, report)):
            expect(name, vtlcmd("diff", *pair),
                   (3, "", f"vtlcmd: {bad} is neither a journal nor a JSON report of a run\n"))
    expect("absent", vtlcmd("diff", folder / "absent", good),
           (3, "", f"vtlcmd: {folder / 'absent'}: No such file or directory\n"))
    expect("a folder", vtlcmd("diff", folder, good)[0], 3)
    lacking = json.loads(report.read_text())
    del lacking["frames"][0]["outputs"]
    (folder / "lacking.json").write_text(json.dumps(lacking))
    expect("lacking", vtlcmd("diff", good, folder / "lacking.json")[::2],
           (3, f"vtlcmd: {good} or {folder / 'lacking.json'} lacks something that reports have\n"))
    lines = good.read_text().splitlines(True)
    (folder / "damaged").write_text("".join([lines[0], lines[1].replace("1", "2", 1), *lines[2:]]))
    expect("damaged", vtlcmd("diff", folder / "damaged", good)[::2],
           (3, f"vtlcmd: {folder / 'damaged'}: line 2 is damaged\n"))


with tempfile.TemporaryDirectory() as name:
    for check in (check_equal, check_values, check_tolerance, check_frames, check_many,
                  check_other_forms_of_a_report, check_unreadable):
        folder = pathlib.Path(name) / check.__name__
        folder.mkdir()
        check(folder)

finish()
