"""Jobs on a real cluster of two nodes: a failing frame, a node that dies, a task that starts again."""

import argparse
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

from cluster import Cluster, children_of

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True)
arguments = parser.parse_args()
program = os.path.abspath(arguments.program)

FRAMES, CHUNK, BAD_FRAME = 200, 20, 117
# A frame takes some time, and one of them divides by zero.
GRAPH = {
    "inputs": [{"name": "time", "type": "Simulation::Time"}],
    "nodes": [
        {"name": "frame", "op": "time_frame", "in": {"time": "time"}},
        {"name": "number", "op": "convert", "type": "int", "in": {"value": "frame"}},
        {"name": "bad", "op": "constant", "type": "int", "value": BAD_FRAME},
        {"name": "left", "op": "subtract", "in": {"a": "number", "b": "bad"}},
        {"name": "quotient", "op": "divide", "in": {"a": "number", "b": "left"}},
        {"name": "count", "op": "constant", "type": "int", "value": 500_000},
        {"name": "numbers", "op": "random", "in": {"count": "count", "seed": "number"}},
        {"name": "sorted", "op": "sort", "in": {"array": "numbers"}}],
    "outputs": [{"name": "quotient", "from": "quotient"}, {"name": "sorted", "from": "sorted"}],
}

problems = []


def expect(what, found, wanted=True):
    if found != wanted:
        problems.append(f"{what}: {found!r:.600}, not {wanted!r:.600}")


def wait_until(what, condition, seconds=60):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise SystemExit(f"{what} doesn't come within {seconds} s")
        time.sleep(0.05)


class Job:
    def __init__(self, cluster, work, name, frames=f"1-{FRAMES}"):
        self.cluster, self.work, self.folder, self.frames = cluster, work, work / name, frames

    def vtlcmd(self, *words):
        result = subprocess.run([program, *map(str, words)], cwd=self.work, text=True, timeout=300,
                                env=self.cluster.environment, capture_output=True)
        if result.stderr:
            problems.append(f"{words[:2]}: {result.stderr}")
        self.output = result.stdout
        return result.returncode

    def submit(self, *words):
        code = self.vtlcmd("submit", "graph.json", "-f", self.frames, "--chunk", CHUNK, "--no-times",
                           "--to", self.folder, *words)
        return code, [line.split()[1].rstrip(":") for line in self.output.splitlines()]

    def status(self):
        self.vtlcmd("status", self.folder, "--json")
        return json.loads(self.output)

    def count(self, state):
        return self.status()[state]["count"]

    def wait_for_report(self):
        wait_until("the report", lambda: self.status()["submissions"][-1]["reported"] is not None)

    def compare_with_one_process(self, code):
        report = self.work / "alone.json"
        expect("one process", subprocess.run(
            [program, "run", "graph.json", "-f", self.frames, "-q", "--no-times", "--report", report],
            cwd=self.work, capture_output=True).returncode, code)
        expect("the report of one process", (self.folder / "report.json").read_bytes() ==
               report.read_bytes())


def survives_the_loss_of_a_node(cluster, work):
    job = Job(cluster, work, "it's a 100% \"farm\"")
    code, numbers = job.submit("--", "--no-requeue")
    expect("the submission", (code, len(numbers)), (0, 2))
    expect("a resubmission meanwhile", subprocess.run(
        [program, "resubmit", job.folder], env=cluster.environment, text=True,
        capture_output=True).returncode, 2)
    wait_until("a task on node n2",
               lambda: cluster.processes_on("n2") and job.count("done") > CHUNK)
    cluster.kill_node("n2")
    job.wait_for_report()
    status = job.status()
    lost = status["started"]["count"] + status["missing"]["count"]
    expect("frames lost with the node", 0 < lost <= CHUNK)
    expect("the failed frame", status["failed"]["frames"], str(BAD_FRAME))
    expect("the frames done", status["done"]["count"], FRAMES - 1 - lost)
    cluster.start_node("n2")
    expect("the resubmission", job.vtlcmd("resubmit", job.folder, "--wait"), 1)
    expect("the frames done then", job.count("done"), FRAMES - 1)
    expect("what it ran", len((job.folder / "submissions/2/frames").read_text().split()) <= 2)
    job.compare_with_one_process(1)


def runs_a_task_again_that_was_requeued(cluster, work):
    job = Job(cluster, work, "requeued", "1-40")
    code, (tasks, _) = job.submit()
    expect("the submission", code, 0)
    wait_until("the first frames", lambda: job.count("done") > 2)
    cluster.command("scontrol", "requeue", f"{tasks}_1")
    again = job.folder / "journals/1-1-1.journal"
    wait_until("the task again", again.exists)
    job.wait_for_report()
    journal = again.read_text()
    expect("its frames, each once", journal.count('"frame":{"index"'), CHUNK)
    job.compare_with_one_process(0)


def fits_the_array_size(cluster, work):
    job = Job(cluster, work, "array", "1-80")
    cluster_limit = cluster.array_size - 1
    words = subprocess.run(
        [program, "submit", "graph.json", "-f", "1-80", "--chunk", "1", "--wait", "--to",
         job.folder], cwd=work, env=cluster.environment, text=True, capture_output=True)
    expect("the submission", (words.returncode, words.stderr),
           (0, f"vtlcmd: 4 frames a task instead of 1: the cluster allows {cluster_limit} tasks in "
               "an array (MaxArraySize)\n"))


def tells_what_the_scheduler_refuses(cluster, work):
    refused = subprocess.run(
        [program, "submit", "graph.json", "--to", work / "refused", "--", "--partition=none"],
        cwd=work, env=cluster.environment, text=True, capture_output=True)
    expect("a refused job", (refused.returncode, "invalid partition" in refused.stderr), (1, True))
    expect("its folder", (work / "refused").exists(), False)


# Asked to end, it ends what it started all the same.
signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))

with tempfile.TemporaryDirectory() as temporary:
    folder = pathlib.Path(temporary)
    (folder / "work").mkdir()
    (folder / "work/graph.json").write_text(json.dumps(GRAPH))
    tests = (survives_the_loss_of_a_node, runs_a_task_again_that_was_requeued, fits_the_array_size,
             tells_what_the_scheduler_refuses)
    with Cluster(folder / "slurm", array_size=21) as cluster:
        for test in tests:
            test(cluster, folder / "work")
    expect("processes left behind", children_of([os.getpid()]), [])

print("\n".join(problems) or f"{len(tests)} jobs, all as expected")
sys.exit(1 if problems else 0)
