"""A mesh that doesn't depend on the frame is read once, whatever the number of frames."""

import argparse
import ctypes
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True, type=pathlib.Path)
arguments = parser.parse_args()

# Of <sys/inotify.h>. Equal events in a row count as one; these two take turns.
IN_OPEN, IN_CLOSE_NOWRITE = 0x20, 0x10
EVENT_SIZE = 16

libc = ctypes.CDLL(None, use_errno=True)


def events_during(command, file):
    """How often the file is opened and closed, and what the command says."""
    watch = libc.inotify_init1(os.O_NONBLOCK)
    if watch < 0 or libc.inotify_add_watch(watch, os.fsencode(file), IN_OPEN | IN_CLOSE_NOWRITE) < 0:
        raise OSError(ctypes.get_errno(), "files can't be watched")
    result = subprocess.run(command, capture_output=True, text=True)
    try:
        events = os.read(watch, 1 << 20)
    except BlockingIOError:
        events = b""
    os.close(watch)
    return len(events) // EVENT_SIZE, result


problems = []
with tempfile.TemporaryDirectory() as name:
    mesh = pathlib.Path(name) / "pyramid.obj"
    shutil.copy(arguments.folder / "examples/data/pyramid.obj", mesh)
    command = [*arguments.program, "run", arguments.folder / "examples/mesh_scatter.json",
               "-s", f"path={mesh}", "-j", "seed=1"]
    once, single = events_during(command, mesh)
    often, run = events_during([*command, "-f", "1-200"], mesh)
    if once < 2:
        problems.append(f"one frame: {once} events")
    if often != once:
        problems.append(f"200 frames: {often} events, one has {once}")
    if single.returncode or run.returncode:
        problems.append(single.stderr + run.stderr)
    report = single.stdout
    if report not in run.stdout or run.stdout.count("Frame ") != 200:
        problems.append("the frames don't have the report of a single one")

print("\n".join(problems))
sys.exit(1 if problems else 0)
