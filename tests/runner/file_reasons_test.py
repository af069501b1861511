"""Whatever file can't be read or written: the message has its name and the system's reason."""

import argparse
import json
import os
import pathlib
import subprocess
import tempfile

from expectations import fail, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
arguments = parser.parse_args()

program = [os.path.abspath(word) for word in arguments.program]
is_root = os.geteuid() == 0
# Root may read everything: somebody else has to try.
somebody = {"user": 65534, "group": 65534, "extra_groups": []} if is_root else {}


def outcome(*words, **options):
    run = subprocess.run([*program, *words], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                         stderr=subprocess.PIPE, text=True, **options)
    return run.returncode, run.stderr.splitlines()[0] if run.stderr else ""


def expect(file, reason, folder_reason=None, **options):
    """`folder_reason` is that of readers, which take regular files only."""
    of_data = folder_reason or reason
    shown = f"[vtlcmd]  Error:    {file}: {of_data}"
    graph = f"vtlcmd: {file}: {reason}"
    for words, code, line in [
            (["show", file], 1, shown),
            (["run", "lines.json", "-s", f"path={file}"], 1,
             f"[Vantrel] Error:    Node 'lines' (read_lines): {file}: {of_data}."),
            (["run", "mesh.json", "-s", f"path={file}"], 1,
             f"[Vantrel] Error:    Node 'mesh' (read_mesh): {file}: {of_data}."),
            (["run", "lines.json", "--set-file", f"path={file}"], 2,
             f"vtlcmd: the text for port 'path' can't be read: {file}: {reason}"),
            (["run", file], 3, graph),
            (["ports", file], 3, graph),
            (["report", file, "-o", "-"], 3, graph)]:
        found = outcome(*words, **options)
        if found != (code, line):
            fail(f"{words}: {found}, not {(code, line)}")


def refused(target, reason, **options):
    for option in "--report", "--journal":
        found = outcome("run", "empty.json", option, target, **options)
        line = f"vtlcmd: {option}: '{target}' can't be written: {reason}"
        if found != (2, line):
            fail(f"{option} {target}: {found}, not {(2, line)}")


def graph_of(name, operation):
    pathlib.Path(f"{name}.json").write_text(json.dumps({
        "inputs": [{"name": "path", "type": "string"}],
        "nodes": [{"name": name, "op": operation, "in": {"path": "path"}}],
        "outputs": [{"name": name, "from": name}]}))


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    os.chmod(folder, 0o755)
    graph_of("lines", "read_lines")
    graph_of("mesh", "read_mesh")
    pathlib.Path("empty.json").write_text("{}")
    # A format of the program's own, and one of the import library.
    for name in "a.obj", "a.ply":
        expect(f"absent/{name}", "No such file or directory")
        os.mkdir(name)
        expect(name, "Is a directory", "it is a folder; only regular files are read")
    refused("absent/run.json", "No such file or directory")
    refused("a.obj", "Is a directory")
    pathlib.Path("locked.json").write_text("{}")
    os.chmod("locked.json", 0o444)
    refused("locked.json", "Permission denied")

    try:
        outcome("--version", **somebody)
    except PermissionError:
        print("not tried: what the file's rights forbid")
    else:
        for name in "b.obj", "b.ply":
            pathlib.Path(name).write_text("text")
            os.chmod(name, 0)
            expect(name, "Permission denied", **somebody)
        for name in "b.npy", "b.npz", "b.csv":
            pathlib.Path(name).write_text("text")
            os.chmod(name, 0)
            found = outcome("show", name, **somebody)
            if found != (1, f"[vtlcmd]  Error:    {name}: Permission denied"):
                fail(f"{name}: {found}")
        os.mkdir("locked", 0o555)
        refused("locked/run.json", "Permission denied", **somebody)

finish()
