"""An interrupt ends a run after the frame that it meets, with exit code 130."""

import argparse
import signal
import subprocess
import sys

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True)
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

run = subprocess.Popen(
    [arguments.program, "run", "examples/animated.json", "-f", "1-900000"],
    cwd=arguments.folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
first = run.stdout.readline()
run.send_signal(signal.SIGINT)
rest, errors = run.stdout.read(), run.stderr.read()
run.wait(timeout=60)

lines = (first + rest).splitlines()
problems = []
if run.returncode != 130:
    problems.append(f"exit code {run.returncode}")
if errors:
    problems.append(f"standard error: {errors}")
if len(lines) % 2 != 0 or "'position'" not in lines[-1] or len(lines) > 1_000_000:
    problems.append(f"{len(lines)} lines, the last: {lines[-1]}")
print("\n".join(problems))
sys.exit(1 if problems else 0)
