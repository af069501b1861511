"""A worker process that ends in a frame, or takes too long, costs that frame."""

import json

from expectations import expect
from worker_runs import CRASHED, KILLED, PROCESS, arguments, critical, folder, lines, run, run_tests

DEATHS = [
    ("crash", f"{PROCESS}{CRASHED}.", 1),
    ("exit", f"{PROCESS}ended with exit code 7.", 1),
    ("cry", f"{PROCESS}{CRASHED}. Its process said last:\nfirst\nit hurts", 1),
]
if not arguments.windows:
    DEATHS += [("abort", f"{PROCESS}crashed: Aborted.", 1), ("kill", KILLED, 75)]


def a_death_costs_its_frame():
    for mishap, text, code in DEATHS:
        for workers in (1, 2):
            found = run("-f", "1-6", "--workers", workers, "--report", "report.json",
                        mishaps=f"3={mishap}")
            expect(f"{mishap}, {workers} workers", found,
                   (lines([1, 2, 4, 5, 6]), critical(3, text), code))
            report = folder / "report.json"
            document = json.loads(report.read_text())
            frames = {frame["frame"]: frame for frame in document["frames"]}
            expect(f"{mishap}: frames of the report", sorted(frames), list("123456"))
            expect(f"{mishap}: its messages", frames["3"]["messages"],
                   {"vtlcmd": {"critical": [text.format(frame=3)]}})
            expect(f"{mishap}: its failure", frames["3"]["failure"],
                   "transient" if code == 75 else "permanent")
            expect(f"{mishap}: others", [frames[frame]["succeeded"] for frame in "12456"], [True] * 5)
            expect(f"{mishap}: the report's exit code", document["exit_code"], code)
            report.unlink()


def time_is_limited():
    text = "Frame {frame} took longer than 0.5 seconds (--frame-timeout)."
    for words in (["--workers", "2"], []):
        expect(f"hangs {words}", run("-f", "1-4", "--frame-timeout", "0.5", *words, mishaps="2=hang"),
               (lines([1, 3, 4]), critical(2, text), 75))


def the_first_failure_ends_it():
    """As with one process, also when a later frame is done before."""
    expected = run("-f", "1-9", "--fail-fast", "--report", "-", "--no-times", mishaps="4=memory")
    expect("fail-fast: the exit code", expected[2], 75)
    expect("fail-fast: the frames", [frame["frame"] for frame in json.loads(expected[0])["frames"]],
           list("1234"))
    for workers in (1, 2, 3):
        expect(f"fail-fast, {workers} workers",
               run("-f", "1-9", "--fail-fast", "--report", "-", "--no-times", "--workers", workers,
                   mishaps="4=memory,3=nap"), expected)


def what_is_said_stays_with_its_frame():
    expected = run("-f", "1-4", "--workers", "1", mishaps="2=say,4=say")
    expect("said", expected, (lines([1, 2, 3, 4]), "something is odd\n" * 2, 0))
    expect("said with two", run("-f", "1-4", "--workers", "2", mishaps="1=nap,2=say,4=say"), expected)


def no_worker_loads():
    output, errors, code = run("-f", "1-4", "--workers", "2", mishaps="load=crash",
                               loaded="loaded")
    expect("no worker loads", (output, errors, code),
           ("", "vtlcmd: the frames' processes can't be started: a process "
            f"{CRASHED}\n", 1))
    (folder / "loaded").rmdir()


run_tests(a_death_costs_its_frame, time_is_limited, the_first_failure_ends_it,
          what_is_said_stays_with_its_frame, no_worker_loads)
