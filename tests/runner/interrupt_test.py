"""What ends a run before its last frame leaves it whole: the exit code, the report and the journal."""

import argparse
import json
import os
import pathlib
import pty
import random
import signal
import subprocess
import tempfile
import zlib

from expectations import default_signals, expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
parser.add_argument("--kills", type=int, default=20, help="how many runs to kill")
arguments = parser.parse_args()

FRAMES = 900_000
MANY_FRAMES = ["run", "examples/animated.json", "-f", f"1-{FRAMES}"]
# One frame of many nodes, each of which takes some time and little memory.
LONG_FRAME = {
    "nodes": [{"name": "file", "op": "constant", "type": "string", "value": "mesh.obj"},
              {"name": "one", "op": "constant", "type": "int", "value": 1},
              {"name": "mesh", "op": "read_mesh", "in": {"path": "file"}},
              *({"name": f"n{i}", "op": "scatter", "in": {"mesh": "mesh", "count": "one", "seed": "one"}}
                for i in range(20_000))],
    "outputs": [{"name": "last", "from": "n19999"}],
}
MESH = "v 0 0 0\nv 1 0 0\nv 0 1 0\n" + "f 1 2 3\n" * 50_000
# A scene whose nodes share children so deep that its reader never ends.
ENDLESS = {
    "asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
    "nodes": [*({"children": [i + 1, i + 1]} for i in range(40)), {"mesh": 0}],
    "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}],
    "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3"}],
    "bufferViews": [{"buffer": 0, "byteLength": 36}],
    "buffers": [{"byteLength": 36, "uri": "data:application/octet-stream;base64," + "A" * 48}],
}
READER = {
    "nodes": [{"name": "file", "op": "constant", "type": "string", "value": "endless.gltf"},
              {"name": "mesh", "op": "read_mesh", "in": {"path": "file"}}],
    "outputs": [{"name": "mesh", "from": "mesh"}],
}
FILES = ["endless.gltf", "long.json", "mesh.obj", "reader.json"]


def start(*words, **streams):
    return subprocess.Popen([*arguments.program, *words], cwd=arguments.folder, text=True,
                            preexec_fn=default_signals,
                            **{"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **streams})


def journal_lines(path):
    """The objects of a journal; a torn last line is left out, a damaged one fails."""
    lines = path.read_bytes().split(b"\n")
    objects = []
    for line in lines[:-1]:
        body = line[len(b'{"crc32":"01234567",'):]
        assert b'"%08x"' % zlib.crc32(body) == line[9:19], line[:100]
        objects.append(json.loads(line))
    return objects


def ends_after_the_frame(folder, number):
    report_file = folder / "report.json"
    run = start(*MANY_FRAMES, "--report", report_file)
    first = run.stdout.readline()
    run.send_signal(number)
    lines = (first + run.stdout.read()).splitlines()
    errors = run.stderr.read()
    run.wait(timeout=60)
    name = signal.Signals(number).name
    expect(f"{name}: the exit code", run.returncode, 128 + number)
    expect(f"{name}: standard error", errors, "")
    report = json.loads(report_file.read_text())
    frames = report["frames"]
    expect(f"{name}: not all frames ran", 0 < len(frames) < FRAMES)
    expect(f"{name}: three lines a frame were printed", len(lines), 3 * len(frames))
    expect(f"{name}: the report's outcome", (report["outcome"], report["exit_code"]),
           ("interrupted", 128 + number))
    expect(f"{name}: every frame succeeded", all(frame["succeeded"] for frame in frames))
    expect(f"{name}: missing frames", report["totals"]["missing"], FRAMES - len(frames))
    expect(f"{name}: what is left", sorted(os.listdir(folder)), [*FILES, "report.json"])
    report_file.unlink()


def wait_for_frame(path):
    """Until the journal says that a frame has begun."""
    while not path.exists() or b'"start"' not in path.read_bytes():
        pass


def wait_for_child(process):
    children = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children")
    while process.poll() is None:
        if words := children.read_text().split():
            return int(words[0])
    return None


def second_abandons_the_frame(folder, graph, has_child=False):
    report_file = folder / "report.json"
    run = start("run", folder / graph, "--report", report_file)
    wait_for_frame(folder / "report.json.journal")
    child = wait_for_child(run) if has_child else None
    expect("abandoned: a reader runs", child is not None, has_child)
    run.send_signal(signal.SIGINT)
    run.send_signal(signal.SIGTERM)
    run.communicate(timeout=100)
    report = json.loads(report_file.read_text())
    expect("abandoned: the frame", [frame["interrupted"] for frame in report["frames"]], [True])
    # Which of two signals at once is met first is the system's affair.
    expect("abandoned: the exit code", run.returncode in (130, 143))
    if child:
        expect("abandoned: the reader has ended", os.path.exists(f"/proc/{child}"), False)
    expect("abandoned: the report's exit code", report["exit_code"], run.returncode)
    expect("abandoned: what is left", sorted(os.listdir(folder)), [*FILES, "report.json"])
    report_file.unlink()


def shown_files_stay_a_document(folder):
    run = start("show", "--json", "--report", folder / "report.json", folder / "endless.gltf",
                "examples/data/temperatures.npy")
    expect("show: a reader runs", wait_for_child(run) is not None)
    run.send_signal(signal.SIGINT)
    run.send_signal(signal.SIGTERM)
    document = json.loads(run.communicate(timeout=100)[0])
    expect("show: the document", [file["values"] for file in document], [[]])
    expect("show: the exit code", run.returncode in (130, 143))
    report = json.loads((folder / "report.json").read_text())
    expect("show: the report", (report["outcome"], report["exit_code"]),
           ("interrupted", run.returncode))
    (folder / "report.json").unlink()


def third_ends_at_once(folder):
    journal = folder / "run.journal"
    run = start("run", folder / "long.json", "--journal", journal)
    wait_for_frame(journal)
    # Stopped, it meets all three in one.
    for number in (signal.SIGSTOP, signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGCONT):
        run.send_signal(number)
    run.communicate(timeout=100)
    expect("third: ended by a signal", run.returncode < 0)
    expect("third: the journal", [next(iter(set(line) - {"crc32", "times"}))
                                  for line in journal_lines(journal)], ["run", "start"])
    journal.unlink()


def terminal_says_that_it_waits():
    master, slave = pty.openpty()
    run = start(*MANY_FRAMES, "--no-progress", stderr=slave)
    run.stdout.readline()
    run.send_signal(signal.SIGINT)
    run.communicate(timeout=60)
    os.close(slave)
    text = os.read(master, 1000).decode()
    os.close(master)
    expect("terminal: the notice", "ending after this frame" in text)


def reader_that_goes(folder):
    report_file = folder / "report.json"
    run = start(*MANY_FRAMES, "--report", report_file)
    run.stdout.readline()
    run.stdout.close()
    expect("reader: standard error", run.stderr.read(), "")
    expect("reader: the exit code", run.wait(timeout=60), 141)
    report = json.loads(report_file.read_text())
    expect("reader: the report", (report["outcome"], report["exit_code"]), ("stopped", 141))
    expect("reader: what is left", sorted(os.listdir(folder)), [*FILES, "report.json"])
    report_file.unlink()
    run = start(*MANY_FRAMES)
    run.stdout.readline()
    run.stdout.close()
    expect("reader without report", (run.stderr.read(), run.wait(timeout=60)), ("", 141))


def kill_at(folder, lines):
    """Kills a run that has printed so many lines; every frame among them must be in its journal."""
    report_file = folder / "report.json"
    journal = folder / "report.json.journal"
    run = start(*MANY_FRAMES, "--report", report_file)
    printed = [run.stdout.readline() for _ in range(lines)]
    run.kill()
    printed += run.stdout.read().splitlines(keepends=True)
    run.communicate()
    finished = sum("'position'" in line and line.endswith("\n") for line in printed)
    expect("killed: what is left", sorted(os.listdir(folder)), [*FILES, "report.json.journal"])
    kept = sum("frame" in line for line in journal_lines(journal))
    expect(f"killed after {lines} lines: every finished frame is kept", kept >= finished)
    again = start(*MANY_FRAMES, "--report", report_file)
    expect("killed: the next run refuses", (again.communicate()[1].splitlines()[0], again.returncode),
           (f"vtlcmd: {journal} holds the journal of another run: 'vtlcmd report {journal} -o "
            f"{report_file}' makes a report of it, --resume goes on with it, --restart begins it anew", 2))
    made = start("report", journal, "-o", report_file)
    expect("killed: frames are missing", (made.communicate()[1], made.returncode),
           (f"vtlcmd: {FRAMES - kept} of {FRAMES} frames are missing: {kept + 1}-{FRAMES}\n", 1))
    report = json.loads(report_file.read_text())
    expect("killed: the report", (report["outcome"], len(report["frames"])), ("cut off", kept))
    restarted = start("run", "examples/animated.json", "--report", report_file, "--restart")
    restarted.communicate()
    expect("killed: --restart", (restarted.returncode, os.path.exists(journal)), (0, False))
    report_file.unlink()


def parts_in(folder):
    return [name for name in os.listdir(folder) if name.endswith(".part")]


def killed_while_it_writes(folder):
    """What a killed writer of a report leaves is gone after the next one."""
    journal, report_file = folder / "run.journal", folder / "report.json"
    start("run", "examples/animated.json", "-f", "1-20000", "-q", "--journal", journal).communicate()
    for _ in range(50):
        report = start("report", journal, "-o", report_file)
        while report.poll() is None and not parts_in(folder):
            pass
        report.kill()
        report.communicate()
        if parts_in(folder):
            break
    expect("a killed writer leaves a part", len(parts_in(folder)), 1)
    expect("the next writer", start("report", journal, "-o", report_file).wait(), 0)
    expect("the part is gone", parts_in(folder), [])
    report_file.unlink()
    journal.unlink()


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    (folder / "long.json").write_text(json.dumps(LONG_FRAME))
    (folder / "mesh.obj").write_text(MESH)
    (folder / "endless.gltf").write_text(json.dumps(ENDLESS))
    (folder / "reader.json").write_text(json.dumps(READER))
    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        ends_after_the_frame(folder, number)
    second_abandons_the_frame(folder, "long.json")
    if "Assimp" in subprocess.check_output([*arguments.program, "--version"], text=True):
        second_abandons_the_frame(folder, "reader.json", has_child=True)
        shown_files_stay_a_document(folder)
    third_ends_at_once(folder)
    terminal_says_that_it_waits()
    reader_that_goes(folder)
    killed_while_it_writes(folder)
    moments = random.Random(20260131)
    for _ in range(arguments.kills):
        kill_at(folder, moments.randrange(1, 2000))

finish()
