"""An interrupt ends a run after the frame that it meets: exit code 130 and whole reports."""

import argparse
import json
import pathlib
import signal
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

with tempfile.TemporaryDirectory() as folder:
    report_file = pathlib.Path(folder) / "report.json"
    run = subprocess.Popen(
        [*arguments.program, "run", "examples/animated.json", "-f", "1-900000",
         "--report", report_file],
        cwd=arguments.folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    first = run.stdout.readline()
    run.send_signal(signal.SIGINT)
    lines = (first + run.stdout.read()).splitlines()
    errors = run.stderr.read()
    run.wait(timeout=60)
    report = json.loads(report_file.read_text())

group = report["groups"][0]
interrupted = [entry["interrupted"] for entry in group["entries"]]
frames = len(interrupted)
checks = {
    "the exit code is 130": run.returncode == 130,
    "nothing is on standard error": errors == "",
    "not all frames ran": 0 < frames < 900_000,
    "two lines a frame were printed": len(lines) == 2 * frames and "'position'" in lines[-1],
    "the report says that the run isn't finished": group["finished"] is False,
    "the last entry alone is interrupted": interrupted == [False] * (frames - 1) + [True],
    "every entry succeeded": all(entry["succeeded"] for entry in group["entries"]),
}
failed = [name for name, holds in checks.items() if not holds]
print("\n".join(failed))
sys.exit(1 if failed else 0)
