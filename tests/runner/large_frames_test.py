"""Printed frames that are large: those wait in bounded memory whose turn it isn't."""

import json
import os
import subprocess
import time

from expectations import expect
from worker_runs import folder, run_tests, start

TEXT = "x" * 200_000
(folder / "text").write_text(TEXT)
(folder / "large.json").write_text(json.dumps({
    "inputs": [{"name": "text", "type": "string"}], "nodes": [],
    "outputs": [{"name": "text", "from": "text"}]}))


def what_waits_is_bounded():
    """One frame hangs, and the others say a lot that waits for it."""
    frames = 2000
    process = start("-f", f"1-{frames}", "--workers", "3", "--frame-timeout", "2", "--set-file",
                    "text=text", graph="large.json", mishaps="1=hang", stderr=subprocess.DEVNULL)
    found = 0
    for line in process.stdout:
        found += TEXT in line
    _, status, usage = os.wait4(process.pid, 0)
    expect("what waits: the exit code", os.waitstatus_to_exitcode(status), 75)
    expect("what waits: frames", found, frames - 1)
    # In KiB, of whichever process takes most; 64 MiB of it may be what waits.
    expect("what waits: memory", min(usage.ru_maxrss, 150 << 10), usage.ru_maxrss)


def a_slow_reader_takes_no_time():
    """What a frame may take doesn't run while nobody reads what was printed of others."""
    process = start("-f", "1-20", "--workers", "2", "--frame-timeout", "1", "--set-file", "text=text",
                    graph="large.json")
    time.sleep(2.5)
    output, errors = process.communicate(timeout=100)
    expect("a slow reader", (output.count("Output port"), errors, process.returncode), (20, "", 0))


run_tests(what_waits_is_bounded, a_slow_reader_takes_no_time)
