"""A job on a farm from its submission to its report, with commands that stand for the scheduler's."""

import argparse
import json
import os
import pathlib
import subprocess
import tempfile

from expectations import expect, fail, finish, problems

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()
program = [os.path.abspath(word) for word in arguments.program]

# Frame 3 fails, and frame 5 while the file is missing.
GRAPH = {
    "inputs": [{"name": "time", "type": "Simulation::Time"},
               {"name": "file", "type": "string", "default": "data/text.txt"},
               {"name": "label", "type": "string"}],
    "nodes": [
        {"name": "frame", "op": "time_frame", "in": {"time": "time"}},
        {"name": "number", "op": "convert", "type": "int", "in": {"value": "frame"}},
        {"name": "three", "op": "constant", "type": "int", "value": 3},
        {"name": "left", "op": "subtract", "in": {"a": "number", "b": "three"}},
        {"name": "quotient", "op": "divide", "in": {"a": "number", "b": "left"}},
        {"name": "text", "op": "read_lines", "in": {"path": "file"}}],
    "outputs": [{"name": "quotient", "from": "quotient"}, {"name": "text", "from": "text"},
                {"name": "label", "from": "label"}],
}

# Each stands for a command of the scheduler; what it is asked stands in a file, and so does what it
# is to answer.
SBATCH = """#!/bin/sh
for word in "$@"; do printf '%s\\n' "$word"; done >>"$FAKE/sbatch.words"
script=$word
count=$(($(cat "$FAKE/jobs") + 1))
echo "$count" >"$FAKE/jobs"
if [ -e "$FAKE/refuse.$count" ]; then echo "sbatch: error: Invalid account" >&2; exit 1; fi
[ -e "$FAKE/warn" ] && echo "sbatch: a warning" >&2
echo "$count;test"
[ -e "$FAKE/hold" ] && exit 0
last=$(sed -n 's/^#SBATCH --array=1-//p' "$script")
[ -n "$last" ] || { sh "$script" >>"$FAKE/report.log" 2>&1; exit 0; }
task=0
while [ $((task += 1)) -le "$last" ]; do
  [ -e "$FAKE/lose.$task" ] && continue
  SLURM_ARRAY_TASK_ID=$task sh "$script" >>"$FAKE/tasks.log" 2>&1
done
exit 0
"""
SCONTROL = """#!/bin/sh
echo "SLURM_VERSION           = 22.05.8"
echo "MaxArraySize            = $(cat "$FAKE/array_size")"
"""
SQUEUE = '#!/bin/sh\ncat "$FAKE/queue"\n'
SCANCEL = '#!/bin/sh\necho "$*" >>"$FAKE/cancelled"\n'


class Farm:
    """A working folder, and a scheduler that runs jobs while they are submitted."""

    def __init__(self, folder):
        self.fake = folder / "fake"
        self.work = folder / "work"
        self.fake.mkdir()
        (self.work / "data").mkdir(parents=True)
        (self.work / "graph.json").write_text(json.dumps(GRAPH))
        (self.work / "data/text.txt").write_text("a text\n")
        for name, script in {"sbatch": SBATCH, "scontrol": SCONTROL, "squeue": SQUEUE,
                             "scancel": SCANCEL}.items():
            (self.fake / name).write_text(script)
            (self.fake / name).chmod(0o755)
        for name, text in {"jobs": "10", "queue": "", "array_size": "1001"}.items():
            (self.fake / name).write_text(text)
        self.environment = {**os.environ, "FAKE": str(self.fake), "LC_ALL": "C.UTF-8",
                            "PATH": f"{self.fake}:/usr/bin:/bin"}
        self.environment.pop("SLURM_RESTART_COUNT", None)
        self.output = self.errors = ""

    def vtlcmd(self, *words, **environment):
        result = subprocess.run([*program, *map(str, words)], cwd=self.work, text=True, timeout=120,
                                env={**self.environment, **environment}, capture_output=True)
        self.output, self.errors = result.stdout, result.stderr
        return result.returncode

    def submit(self, *words):
        return self.vtlcmd("submit", "graph.json", "-f", "1-10", "--to", "out", "--chunk", "4", *words)

    def status(self, folder="out"):
        self.vtlcmd("status", folder, "--json")
        document = json.loads(self.output or "null")
        if document is None:
            return self.errors
        return {name: document[name]["frames"] for name in ("done", "failed", "started", "missing")}

    def scheduler_words(self):
        words = self.fake / "sbatch.words"
        return words.read_text().splitlines() if words.exists() else []


def status_of(**frames):
    return {"done": "", "failed": "", "started": "", "missing": "", **frames}


def submits_and_reports(folder):
    farm = Farm(folder)
    out = farm.work / "out"
    expect("the submission", farm.submit("-s", "label=two words", "--no-times", "--wait", "--",
                                         "--mem=2G", "-p", "main"), 1)
    expect("its words", farm.output,
           f"job 11: 3 tasks\njob 12: report {out}/report.json\n")
    expect("its complaints", farm.errors, "")
    expect("what the scheduler is told", farm.scheduler_words(),
           ["--parsable", "--mem=2G", "-p", "main", f"{out}/submissions/1/tasks.sh",
            "--parsable", "--dependency=afterany:11", "--mem=2G", "-p", "main",
            f"{out}/submissions/1/report.sh"])
    expect("the chunks", (out / "submissions/1/frames").read_text(), "1-4\n5-8\n9,10\n")
    expect("the journals", sorted(os.listdir(out / "journals")),
           ["1-1.journal", "1-2.journal", "1-3.journal"])
    expect("the status", farm.status(), status_of(done="1,2,4-10", failed="3"))
    alone = farm.work / "alone.json"
    farm.vtlcmd("run", "graph.json", "-f", "1-10", "-s", "label=two words", "-q", "--no-times",
                "--report", alone)
    expect("the report", (out / "report.json").read_text(), alone.read_text())


def resubmits_what_is_left(folder):
    farm = Farm(folder)
    out = farm.work / "out"
    (farm.fake / "lose.2").touch()
    expect("the submission", farm.submit(), 0)
    expect("a lost task", farm.status(), status_of(done="1,2,4,9,10", failed="3", missing="5-8"))
    (farm.fake / "lose.2").unlink()
    expect("a dry run", farm.vtlcmd("resubmit", "out", "--dry-run"), 0)
    expect("a dry run's script", "#SBATCH --array=1-2\n" in farm.output)
    expect("a dry run's files", (out / "submissions/2").exists(), False)
    expect("the second submission", farm.vtlcmd("resubmit", "out", "--wait"), 1)
    expect("its frames", (out / "submissions/2/frames").read_text(), "3,5-7\n8\n")
    expect("the status", farm.status(), status_of(done="1,2,4-10", failed="3"))
    expect("the journals", sorted(os.listdir(out / "journals")),
           ["1-1.journal", "1-3.journal", "2-1.journal", "2-2.journal"])


def has_nothing_left_to_resubmit(folder):
    farm = Farm(folder)
    expect("a submission", farm.vtlcmd("submit", "graph.json", "-f", "7-9", "--to", "out",
                                       "--report", "run.html", "--wait"), 0)
    expect("its page", (farm.work / "run.html").read_text().startswith("<!DOCTYPE html>"))
    expect("a resubmission", farm.vtlcmd("resubmit", "out"), 0)
    expect("its words", farm.output, "all 3 frames are done; this makes the report of them:\n"
           f"vtlcmd report {farm.work}/out/journals/*.journal -o {farm.work}/run.html\n")


def goes_on_when_a_task_is_started_again(folder):
    farm = Farm(folder)
    (farm.fake / "hold").touch()
    farm.submit("-s", "label=x")
    expect("nothing has begun", farm.status(), status_of(missing="1-10"))
    script = farm.work / "out/submissions/1/tasks.sh"
    journals = farm.work / "out/journals"

    def start(restarts):
        count = {"SLURM_RESTART_COUNT": str(restarts)} if restarts else {}
        return subprocess.run(["sh", script], capture_output=True, text=True, cwd=farm.work,
                              env={**farm.environment, "SLURM_ARRAY_TASK_ID": "2", **count})

    first, again = journals / "1-2.journal", journals / "1-2-3.journal"
    expect("a task", start(0).returncode, 0)
    kept = first.read_bytes()
    # Its machine died while it wrote the second frame, and where it started then nothing came of it.
    first.write_bytes(kept[:kept.index(b'"frame":{"index":5') + 40])
    torn = first.read_bytes()
    result = start(3)
    expect("a task that is started again", (result.returncode, result.stderr), (0, ""))
    expect("what it prints", [line for line in result.stdout.splitlines() if "Frame" in line],
           [f"[vtlcmd]            Frame {frame}:" for frame in (6, 7, 8)])
    expect("its journals", sorted(os.listdir(journals)), ["1-2-3.journal", "1-2.journal"])
    expect("what the lost machine left", first.read_bytes(), torn)
    expect("its frames", again.read_bytes().count(b'"frame":{"index"'), 4)
    expect("a third time", (start(4).stdout, start(4).returncode), ("", 0))
    expect("the status", farm.status(), status_of(done="5-8", missing="1-4,9,10"))
    for words in (["--no-times"], []):
        documents = []
        for merged in ([first, again, journals / "1-2-4.journal"], [journals / "1-2-4.journal"]):
            farm.vtlcmd("report", *merged, "-o", "-", *words)
            documents.append(json.loads(farm.output))
        expect(f"the report of all {words}", documents[0], documents[1])


def tells_torn_journals(folder):
    farm = Farm(folder)
    farm.submit()
    journal = farm.work / "out/journals/1-2.journal"
    text = journal.read_bytes()
    frame_7 = text.index(b'"frame":{"index":6')
    journal.write_bytes(text[:frame_7 + 40])
    expect("a torn journal", farm.status(),
           status_of(done="1,2,4-6,9,10", failed="3", started="7", missing="8"))
    journal.write_bytes(b"")
    expect("an empty journal", farm.status(),
           status_of(done="1,2,4,9,10", failed="3", missing="5-8"))
    journal.write_bytes(text.replace(b'"index":6', b'"index":7'))
    expect("a damaged journal", farm.vtlcmd("status", "out"), 3)
    expect("its line", farm.errors, f"vtlcmd: {journal}: line 6 is damaged\n")


def chunks_fit_the_cluster(folder):
    farm = Farm(folder)
    (farm.fake / "array_size").write_text("3")
    expect("the submission", farm.submit(), 0)
    expect("its words", farm.errors, "vtlcmd: 5 frames a task instead of 4: the cluster allows 2 "
           "tasks in an array (MaxArraySize)\n")
    expect("its chunks", (farm.work / "out/submissions/1/frames").read_text(), "1-5\n6-10\n")
    expect("by time", farm.vtlcmd("submit", "graph.json", "-f", "1-10", "--to", "quick"), 0)
    expect("all in one task", (farm.work / "quick/submissions/1/frames").read_text(), "1-10\n")
    expect("slow frames", farm.vtlcmd("submit", "graph.json", "-f", "3-4", "--to", "slow",
                                      "--chunk-seconds", "1e-9"), 0)
    expect("the trial", farm.errors, "vtlcmd: the trial of frame 3 failed\n")
    expect("one frame a task", (farm.work / "slow/submissions/1/frames").read_text(), "3\n4\n")


def copies_inputs(folder):
    farm = Farm(folder)
    absolute = folder / "elsewhere.txt"
    absolute.write_text("elsewhere")
    (farm.fake / "hold").touch()
    (folder / "label.txt").write_text("a label")
    expect("the submission", farm.submit("--copy", "--set-file", f"label={folder}/label.txt",
                                         "--save", "quotient=q{frame}.npy"), 0)
    expect("its words", farm.errors, "")
    tree = farm.work / "out/inputs" / str(farm.work).lstrip("/")
    expect("the copies", sorted(str(path.relative_to(tree)) for path in tree.rglob("*")),
           ["data", "data/text.txt", "graph.json"])
    (farm.work / "graph.json").unlink()
    (farm.work / "data/text.txt").write_text("another text")
    (folder / "label.txt").write_text("another label")
    for task in "123":
        subprocess.run(["sh", farm.work / "out/submissions/1/tasks.sh"], capture_output=True,
                       env={**farm.environment, "SLURM_ARRAY_TASK_ID": task})
    expect("the copies are used", farm.status(), status_of(done="1,2,4-10", failed="3"))
    expect("what is saved", (farm.work / "q9.npy").exists())
    journal = (farm.work / "out/journals/1-3.journal").read_text()
    expect("the copied texts", ("a text" in journal, '"a label"' in journal), (True, True))

    farm.work = tree
    expect("an absolute name", farm.submit("--copy", "-s", f"file={absolute}", "-s", "label=x"), 0)
    expect("what is told of it", farm.errors,
           f"vtlcmd: {absolute} isn't copied: its name is absolute\n")


def refuses(folder):
    farm = Farm(folder)
    (farm.work / "full").mkdir()
    (farm.work / "full/file").touch()
    (farm.work / "file").touch()
    hint = "\nTry 'vtlcmd submit --help'.\n"

    def refused(what, code, text, *words, **environment):
        expect(what, farm.vtlcmd(*words, **environment), code)
        expect(what, farm.errors, "vtlcmd: " + text)
        expect(what, sorted(os.listdir(farm.work)), ["data", "file", "full", "graph.json"])

    submit = ["submit", "graph.json", "-s", "label=x", "--to"]
    refused("no scheduler", 2, "scontrol isn't here: jobs go through Slurm's commands (Debian's "
            "package slurm-client)\n", *submit, "out", PATH="/nowhere")
    for what, text, *words in (
            ("a full folder", "--to: 'full' isn't empty", "full"),
            ("a file", "--to: 'file' is no folder", "file"),
            ("no folder", "--to wants the name of a folder, not ''", ""),
            ("a line end", "--to can't have a line end in its name", "a\nb"),
            ("no frames", "--chunk takes a number of frames above zero, not '0'", "out",
             "--chunk", "0"),
            ("no time", "--chunk-seconds takes a number of seconds above zero, not '-1'", "out",
             "--chunk-seconds", "-1"),
            ("a doubled frame", "--frames: '1-3,2' has frame 2 twice", "out", "-f", "1-3,2"),
            ("the report", "--report can't be the standard output, which no task has", "out",
             "--report", "-"),
            ("a text", "the text of 'label=-' can't be the standard input, which no task reads",
             "out", "--set-file", "label=-"),
            ("an array", "the scheduler's option '--array=1-3' is set by vtlcmd itself", "out", "--",
             "--array=1-3"),
            ("a dependency", "the scheduler's option '-dafterok:7' is set by vtlcmd itself", "out",
             "--", "-dafterok:7"),
            ("a surplus word", "the word 'surplus' isn't expected here", "out", "surplus"),
            ("a journal", "there is no option '--journal'", "out", "--journal", "x"),
            ("a port", "the graph 'graph' has no port 'lable'; did you mean 'label'?", "out", "-s",
             "lable=x")):
        refused(what, 2, text + hint, *submit, *words)
    refused("the graph", 2, "the graph can't be the standard input, which no task reads" + hint,
            "submit", "-", "--to", "out")
    refused("no graph", 2, "only the scheduler's options belong behind '--'" + hint,
            "submit", "--to", "out", "--", "graph.json")
    refused("no such graph", 3, "none.json: No such file or directory\n",
            "submit", "none.json", "--to", "out")
    for command in ("status", "resubmit"):
        refused("another folder", 2, f"'full' is no folder of 'vtlcmd submit'\nTry 'vtlcmd {command} "
                "--help'.\n", command, "full")


def leaves_nothing_of_what_failed(folder):
    farm = Farm(folder)
    for job, cancelled in ((11, []), (13, ["12"])):
        (farm.fake / f"refuse.{job}").touch()
        expect("a refused job", farm.submit(), 1)
        expect("its words", farm.errors, "vtlcmd: sbatch failed: sbatch: error: Invalid account\n")
        expect("its folder", (farm.work / "out").exists(), False)
        found = farm.fake / "cancelled"
        expect("its tasks", found.read_text().split() if found.exists() else [], cancelled)
    (farm.fake / "warn").touch()
    expect("another attempt", farm.submit(), 0)
    expect("a warning", farm.errors, "sbatch: a warning\nsbatch: a warning\n")
    (farm.fake / "refuse.16").touch()
    expect("a refused resubmission", farm.vtlcmd("resubmit", "out"), 1)
    expect("its folder", (farm.work / "out/submissions/2").exists(), False)


def guards_resubmission(folder):
    farm = Farm(folder)
    farm.submit("-s", "label=x")
    hint = "\nTry 'vtlcmd resubmit --help'.\n"
    expect("a full folder", farm.submit(), 2)
    expect("its words", farm.errors, "vtlcmd: --to: 'out' holds a job already: 'vtlcmd resubmit' "
           "goes on with it\nTry 'vtlcmd submit --help'.\n")
    (farm.fake / "queue").write_text("7\n11\n11\n")
    expect("a running job", farm.vtlcmd("resubmit", "out"), 2)
    expect("its words", farm.errors, "vtlcmd: job 11 of this folder hasn't ended: wait, or end it "
           "with 'scancel 11'" + hint)
    (farm.fake / "queue").write_text("7\n")
    (farm.work / "data/text.txt").write_text("another text\n")
    expect("a changed file", farm.vtlcmd("resubmit", "out"), 2)
    expect("its words", farm.errors, "vtlcmd: since the job was submitted there have changed: "
           "files.data/text.txt; 'vtlcmd submit' to a new folder runs all anew" + hint)
    job = farm.work / "out/job.json"
    text = job.read_text()
    for damaged, complaint in ((text[:100], "is damaged"), ("{}", "is damaged"),
                               (text.replace('"form": 1', '"form": 99'),
                                "has a form that this program doesn't know")):
        job.write_text(damaged)
        expect("a damaged job", farm.vtlcmd("status", "out"), 3)
        expect("its words", farm.errors, f"vtlcmd: {job} {complaint}\n")


def waits_for_a_report_that_never_comes(folder):
    farm = Farm(folder)
    (farm.fake / "sbatch").write_text(SBATCH.replace('sh "$script" >>"$FAKE/report.log" 2>&1',
                                                     'echo 3 >"${script%report.sh}reported"'))
    expect("a failed report", farm.submit("--wait"), 1)
    expect("its words", farm.errors, f"vtlcmd: the report isn't there; {farm.work}/out/logs/"
           "1-report.log may tell why\n")


for test in (submits_and_reports, resubmits_what_is_left, has_nothing_left_to_resubmit,
             goes_on_when_a_task_is_started_again, tells_torn_journals, chunks_fit_the_cluster,
             copies_inputs, refuses, leaves_nothing_of_what_failed, guards_resubmission,
             waits_for_a_report_that_never_comes):
    before = len(problems)
    with tempfile.TemporaryDirectory() as folder:
        try:
            test(pathlib.Path(folder).resolve())
        except OSError as error:
            fail(str(error))
    problems[before:] = [f"{test.__name__}: {problem}" for problem in problems[before:]]

finish()
