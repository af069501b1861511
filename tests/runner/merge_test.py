"""Parts of a job, each with a journal of its own, and the report that they make together."""

import argparse
import itertools
import json
import pathlib
import random
import subprocess
import tempfile
import zlib

from expectations import expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

JOB = "1-20"
SEED = 20

random.seed(SEED)


def vtlcmd(*words):
    return subprocess.run([*arguments.program, *map(str, words)], cwd=arguments.folder,
                          capture_output=True, timeout=120)


def run(journal, *words):
    """Runs frames of a graph whose frame 2 fails."""
    vtlcmd("run", "tests/runner/data/count_down.json", "-q", "--journal", journal, *words)
    return journal


def report(*journals, form="json", times=False):
    return vtlcmd("report", *journals, "-o", "-", "--format", form, *([] if times else ["--no-times"]))


def document(*journals, times=False):
    return json.loads(report(*journals, times=times).stdout)


def lines_of(journal):
    return [json.loads(line) for line in journal.read_bytes().splitlines()]


def write(journal, lines):
    """Lines as the program writes them, with checksums that fit."""
    texts = []
    for line in lines:
        body = json.dumps({name: line[name] for name in line if name != "crc32"},
                          separators=(",", ":"), ensure_ascii=False)[1:].encode()
        texts.append(b'{"crc32":"%08x",%s\n' % (zlib.crc32(body), body))
    journal.write_bytes(b"".join(texts))
    return journal


def changed(journal, to, **facts):
    """A copy of a journal with other facts in its first line's times."""
    lines = lines_of(journal)
    lines[0]["times"].update(facts)
    return write(to, lines)


def parts_of(folder, name, lists, job):
    """The journals of the parts of a job."""
    words = ["--job-frames", job] if job else []
    return [run(folder / f"{name}{i}.journal", "-f", frames, *words)
            for i, frames in enumerate(lists)]


def check_journal(folder):
    """A journal names the frames asked for and those of the job; places are those of the job."""
    part = run(folder / "part.journal", "-f", "3-4", "--job-frames", "4-1")
    lines = lines_of(part)
    facts = {name: lines[0]["run"].get(name)
             for name in ("frames", "frame_count", "job_frames", "job_frame_count")}
    expect("the frames", facts, {"frames": "3-4", "frame_count": 2,
                                 "job_frames": "4-1", "job_frame_count": 4})
    places = [(kind, line[kind]["index"], line[kind]["frame"])
              for line in lines for kind in ("start", "frame") if kind in line]
    expect("the places", places,
           [("start", 1, "3"), ("frame", 1, "3"), ("start", 0, "4"), ("frame", 0, "4")])
    part_report = document(part)
    expect("the job", (part_report["run"]["frames"], part_report["run"]["frame_count"]), ("4-1", 4))
    expect("only the job", "job_frames" in part_report["run"], False)
    expect("the missing frames", part_report["missing_frames"], "1-2")


def check_parts(folder):
    """However a job is cut, in whatever order, whatever ran twice: the report of one run."""
    whole = run(folder / "whole.journal", "-f", JOB)
    wanted = {form: report(whole, form=form).stdout for form in ("json", "html")}
    expect("the whole is a report", json.loads(wanted["json"])["totals"]["frames"], 20)
    two = parts_of(folder, "two", ["1-10", "11-20"], JOB)
    seven = parts_of(folder, "seven", ["1-3", "4-6", "7,9,8", "10-20x2", "11-19x4", "13-17x4", "1-5"],
                     JOB)
    apart = parts_of(folder, "apart", ["1-8", "7-15", "16-20"], None)
    whole_too = run(folder / "whole_too.journal", "-f", JOB)
    sets = {"1": [whole_too], "2": two, "7": seven, "2 and 7": two + seven, "apart": apart,
            "the same twice": [whole, whole], "all": [whole, *seven, *two, *seven]}
    for name, journals in sets.items():
        orders = list(itertools.permutations(journals)) if len(journals) < 4 else [
            random.sample(journals, len(journals)) for _ in range(5)]
        for order in orders:
            for form, text in wanted.items():
                result = report(*order, form=form)
                expect(f"{name}, {form}", result.stdout, text)
                expect(f"{name}, {form}: exit code", (result.returncode, result.stderr), (0, b""))


def check_order(folder):
    """Frames come by number, whatever the order in which the job ran them."""
    job = "9-1x2,4,10"
    whole = run(folder / "unsorted.journal", "-f", job)
    frames = document(whole)["frames"]
    expect("by number", [frame["frame"] for frame in frames], "1 3 4 5 7 9 10".split())
    expect("indexes", [frame["index"] for frame in frames], [4, 3, 5, 2, 1, 0, 6])
    parts = parts_of(folder, "unsorted", ["4,10", "1-9x2"], job)
    for order in itertools.permutations(parts):
        expect("an unsorted job", report(*order).stdout, report(whole).stdout)
    twice = document(run(folder / "repeated.journal", "-f", "3,1,3"))
    expect("a frame that ran twice", [frame["index"] for frame in twice["frames"]], [1, 0, 2])


def with_frame(journal, to, succeeded, quotient, **times):
    """A journal whose only frame went otherwise, in a run of its own."""
    lines = lines_of(journal)
    lines[0]["times"].update(times)
    frame = next(line["frame"] for line in lines if "frame" in line)
    frame["failure"] = "none" if succeeded else "permanent"
    frame["succeeded"] = succeeded
    frame["outputs"]["quotient"]["value"] = quotient
    return write(to, lines)


def check_duplicates(folder):
    """A success beats a failure, then the later attempt, start, host and process."""
    base = run(folder / "base.journal", "-f", "1")
    runs = [dict(attempt=1, started="2026-01-31T00:00:00Z", host="b", process=10),
            dict(attempt=1, started="2026-01-31T00:00:00Z", host="b", process=9),
            dict(attempt=1, started="2026-01-31T00:00:00Z", host="a", process=11),
            dict(attempt=1, started="2026-01-30T23:59:59Z", host="c", process=12),
            dict(attempt=2, started="2026-01-29T00:00:00Z", host="0", process=1)]
    order = [3, 2, 1, 0, 4]  # from the earliest to the latest
    journals = [with_frame(base, folder / f"d{i}.journal", True, i, **times)
                for i, times in enumerate(runs)]
    failed = with_frame(base, folder / "failed.journal", False, 100,
                        **{**runs[4], "attempt": 3})
    for earlier, later in itertools.combinations(order, 2):
        for pair in itertools.permutations([journals[earlier], journals[later]]):
            value = document(*pair)["frames"][0]["outputs"]["quotient"]["value"]
            expect(f"the later of {earlier} and {later}", value, later)
    for pair in itertools.permutations([failed, journals[3]]):
        merged = document(*pair)
        expect("a success beats a failure", merged["frames"][0]["outputs"]["quotient"]["value"], 3)
        expect("and counts", (merged["outcome"], merged["exit_code"], merged["totals"]["failed"]),
               ("succeeded", 0, 0))
    worst = document(failed, with_frame(base, folder / "f2.journal", False, 7, **runs[0]))
    expect("a failure", (worst["outcome"], worst["exit_code"], worst["totals"]["failed"]),
           ("failed", 1, 1))
    lines = lines_of(base)
    frame = next(line for line in lines if "frame" in line)
    later = json.loads(json.dumps(frame))
    later["frame"]["outputs"]["quotient"]["value"] = 55
    write(folder / "again.journal", [*lines[:-1], later, lines[-1]])
    expect("the later line of one run",
           document(folder / "again.journal")["frames"][0]["outputs"]["quotient"]["value"], 55)
    times = document(journals[0], journals[4], journals[0], times=True)["times"]
    expect("the runs", [(run["host"], run["attempt"]) for run in times["runs"]], [("b", 1), ("0", 2)])
    expect("the frame's run", [frame["run"] for frame in times["frames"]], [1])


def check_several_runs_in_a_journal(folder):
    """A run that went on in the journal of one that was cut off."""
    first = run(folder / "first.journal", "-f", "3-8", "--job-frames", "3-8")
    lines = lines_of(first)
    frames = [line for line in lines if "frame" in line]
    second = json.loads(json.dumps(lines[0]))
    second["times"]["attempt"] = 2
    both = write(folder / "both.journal",
                 [lines[0], *frames[:4], second, *frames[4:], lines[-1]])
    expect("a run that went on", report(both).stdout, report(first).stdout)
    times = document(both, times=True)["times"]
    expect("its runs", [(run["attempt"], run["ended"] is None) for run in times["runs"]],
           [(1, True), (2, False)])
    expect("its frames' runs", [frame["run"] for frame in times["frames"]], [0] * 4 + [1] * 2)


def check_missing(folder):
    """What is missing is listed, and the exit code says so."""
    parts = parts_of(folder, "missing", ["1-3", "7-9x2", "15"], JOB)
    result = report(*parts)
    expect("missing: exit code", result.returncode, 1)
    expect("missing: what is said", result.stderr.decode(),
           "vtlcmd: 14 of 20 frames are missing: 4-6,8,10-14,16-20\n")
    merged = json.loads(result.stdout)
    expect("missing: the report", (merged["missing_frames"], merged["totals"]["missing"],
                                   merged["outcome"], merged["exit_code"]),
           ("4-6,8,10-14,16-20", 14, "cut off", None))
    single = run(folder / "odd.journal", "-f", "1,3", "--job-frames", "1-100x2,2-1000x14")
    said = report(single).stderr.decode()
    expect("a long list is cut", len(said) < 130 and said.endswith(",...\n") or said.count(",") < 4,
           True)


def check_strangers(folder):
    """Journals of another run are refused with what differs."""
    base = run(folder / "base2.journal", "-f", "3")
    for words, difference in ((["--fps", "25"], "settings.frames_per_second (25.0, not 24.0)"),
                              (["--strict"], "settings.strict (true, not false)"),
                              (["-s", "x=4"], None)):
        if difference is None:
            continue
        other = run(folder / f"other{words[0]}.journal", "-f", "4", *words)
        result = report(base, other)
        expect(f"another run: {words}", (result.returncode, result.stdout), (2, b""))
        expect(f"another run: {words}: what is said", result.stderr.decode().splitlines()[0],
               f"vtlcmd: {other} holds another run than {base}: it differs in {difference}")
    lines = lines_of(base)
    lines[0]["run"]["key"]["graph"] = "0" * 64
    lines[0]["run"]["key"]["input_texts"] = {"count": "3"}
    other = write(folder / "other_graph.journal", lines)
    expect("another graph", report(base, other).stderr.decode().splitlines()[0],
           f'vtlcmd: {other} holds another run than {base}: it differs in graph, '
           f'input_texts.count ("3", not nothing)')


def check_damage(folder):
    """A torn end is cut off, in whatever journal; all other damage is told with its line."""
    parts = parts_of(folder, "torn", ["1-10", "11-20"], JOB)
    whole = parts[1].read_bytes()
    torn = folder / "torn.journal"
    last_frame = whole.rindex(b'{"crc32"', 0, whole.rindex(b'"end"'))
    for size in random.sample(range(last_frame), 10) + [0, 1, 9, 10]:
        torn.write_bytes(whole[:size])
        done = sum('"frame":{' in line for line in whole[:size].decode().splitlines(True)
                   if line.endswith("\n"))
        result = report(parts[0], torn)
        missing = f" of 20 frames are missing: "
        expect(f"torn at {size}", (result.returncode, json.loads(result.stdout)["totals"]["frames"]),
               (1 if done < 10 else 0, 10 + done))
        expect(f"torn at {size}: what is said", missing in result.stderr.decode(), done < 10)
    for line in (2, 3, 20):
        lines = whole.split(b"\n")
        lines[line - 1] = lines[line - 1].replace(b"1", b"2", 1)
        torn.write_bytes(b"\n".join(lines))
        result = report(parts[0], torn)
        expect(f"damage in line {line}", (result.returncode, result.stderr.decode()),
               (3, f"vtlcmd: {torn}: line {line} is damaged\n"))


with tempfile.TemporaryDirectory() as name:
    for check in (check_journal, check_parts, check_order, check_duplicates,
                  check_several_runs_in_a_journal, check_missing, check_strangers, check_damage):
        folder = pathlib.Path(name) / check.__name__
        folder.mkdir()
        check(folder)

finish()
