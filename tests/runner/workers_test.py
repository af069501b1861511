"""What workers do beside their frames: attempts, interrupts, and none outlives the program."""

import fcntl
import json
import os
import pathlib
import pty
import re
import signal
import subprocess
import termios
import time

from expectations import default_signals, expect
from worker_runs import (CRASHED, KILLED, PROCESS, critical, folder, lines, program, run, run_tests,
                         start)


def one_lasting_failure_makes_it_1():
    expect("killed and crashed", run("-f", "1-6", "--workers", "2", mishaps="2=kill,5=crash"),
           (lines([1, 3, 4, 6]), critical(2, KILLED) + critical(5, f"{PROCESS}{CRASHED}."), 1))


def another_attempt_cures():
    mark = folder / "mark"
    report = folder / "report.json"
    expect("killed once", run("-f", "1-4", "--workers", "2", "--retry", "1", "--report", report,
                              mishaps="2=killonce", mark=mark), (lines([1, 2, 3, 4]), "", 0))
    attempts = [frame["attempts"] for frame in json.loads(report.read_text())["times"]["frames"]]
    expect("killed once: attempts", sorted(attempts), [1, 1, 1, 2])
    report.unlink()
    expect("killed each time", run("-f", "1-3", "--workers", "2", "--retry", "2", "--journal",
                                   folder / "journal", mishaps="2=kill"),
           (lines([1, 3]), critical(2, KILLED), 75))
    starts = (folder / "journal").read_text().count('"start":{"index":1,')
    expect("killed each time: attempts", starts, 3)
    (folder / "journal").unlink()
    expect("crashes aren't cured", run("-f", "1-3", "--workers", "2", "--retry", "2", "--journal",
                                       folder / "journal", mishaps="2=crash")[2], 1)
    starts = (folder / "journal").read_text().count('"start":{"index":1,')
    expect("crashes aren't cured: attempts", starts, 1)
    (folder / "journal").unlink()
    for words in ([], ["--workers", "2"]):
        _, errors, code = run("-f", "1-2", "--retry", "2", "--journal", folder / "journal", *words,
                              mishaps="2=memory")
        starts = (folder / "journal").read_text().count('"start":{"index":1,')
        expect(f"memory {words}", ("enough memory" in errors, code, starts), (True, 75, 3))
        (folder / "journal").unlink()


def children_of(process):
    return [int(word) for word in
            pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children").read_text().split()]


def are_gone(processes):
    end = time.monotonic() + 60
    while any(os.path.exists(f"/proc/{number}") and
              "State:\tZ" not in pathlib.Path(f"/proc/{number}/status").read_text()
              for number in processes):
        if time.monotonic() > end:
            return False
        time.sleep(0.01)
    return True


def begin_hanging(journal):
    """A run of two workers; one of them hangs in the second frame."""
    process = start("-f", "1-2", "--workers", "2", "--journal", journal, mishaps="1=hang,2=hang")
    while not journal.exists() or journal.read_text().count('"start"') < 2:
        time.sleep(0.01)
    children = children_of(process)
    expect("two workers run", len(children), 2)
    return process, children


def none_is_left_behind():
    journal = folder / "journal"
    for signals in ([signal.SIGKILL], [signal.SIGINT] * 3, [signal.SIGTERM] * 3):
        process, children = begin_hanging(journal)
        for number in signals:
            process.send_signal(number)
            time.sleep(0.3)
        process.communicate(timeout=60)
        expect(f"{signals}: ended by the signal", process.returncode, -signals[0])
        expect(f"{signals}: no worker is left", are_gone(children))
        journal.unlink()


def an_interrupt_ends_after_the_frames():
    report = folder / "report.json"
    process = start("-f", "1-100000", "--workers", "2", "--report", report)
    output = process.stdout.readline()
    children = children_of(process)
    process.send_signal(signal.SIGINT)
    output += process.stdout.read()
    errors = process.stderr.read()
    process.wait(timeout=60)
    expect("interrupted", (process.returncode, errors), (130, ""))
    document = json.loads(report.read_text())
    expect("interrupted: the report", (document["outcome"], document["exit_code"]),
           ("interrupted", 130))
    expect("interrupted: what was printed", len(output.splitlines()), 2 * len(document["frames"]))
    expect("interrupted: every frame is whole",
           all(frame["succeeded"] for frame in document["frames"]))
    expect("interrupted: no worker is left", are_gone(children))
    report.unlink()


def a_terminal_interrupts_it():
    """Ctrl-C reaches the program alone, which ends the workers after their frames."""
    report = folder / "report.json"
    master, slave = pty.openpty()

    def take_terminal():
        default_signals()
        os.setsid()
        fcntl.ioctl(0, termios.TIOCSCTTY, 0)

    process = subprocess.Popen(
        [*program, "run", folder / "graph.json", "-f", "1-1000000", "--workers", "2", "--report",
         report], stdin=slave, stdout=subprocess.PIPE, stderr=slave, preexec_fn=take_terminal,
        env={**os.environ, "TERM": "xterm"})
    os.close(slave)
    process.stdout.readline()
    children = children_of(process)
    os.write(master, b"\x03")
    process.stdout.read()
    expect("terminal: the exit code", process.wait(timeout=60), 130)
    text = os.read(master, 10000).decode()
    os.close(master)
    expect("terminal: the notice", text.count("ending after this frame"), 1)
    expect("terminal: no worker is left", (len(children), are_gone(children)), (2, True))
    frames = json.loads(report.read_text())["frames"]
    expect("terminal: every frame is whole", all(frame["succeeded"] for frame in frames))
    report.unlink()


def looks_as_with_one():
    """Colours, levels and the order of the two streams are those of a run without workers."""
    for words in (["--color", "always"], ["-q"], ["-q", "--color", "always"], ["-v", "debug"],
                  ["-v", "none"], ["--no-progress"]):
        expected = run("-f", "1-5", *words, mishaps="2=memory")
        expect(f"{words} shows the failure", "enough memory" in expected[1], words[1:] != ["none"])
        for workers in (1, 2, 6):
            expect(f"{words} with {workers}",
                   run("-f", "1-5", *words, "--workers", workers, mishaps="2=memory"), expected)


def the_page_tells_of_workers():
    page = folder / "run.html"
    expect("a page", run("-f", "1-20", "-q", "--workers", "2", "--report", page,
                         mishaps="1=nap,2=nap")[2], 0)
    lanes = re.findall("<b>[^<]+ · worker (\\d)</b> <span class='facts'>(\\d+) frame",
                       page.read_text())
    expect("its workers", [number for number, _ in lanes], ["1", "2"])
    expect("their frames", sum(int(frames) for _, frames in lanes), 20)
    page.unlink()


run_tests(one_lasting_failure_makes_it_1, another_attempt_cures, none_is_left_behind,
          an_interrupt_ends_after_the_frames, a_terminal_interrupts_it, looks_as_with_one,
          the_page_tells_of_workers)
