"""Files that want too much, or crash what reads them, cost one line and never the program."""

import argparse
import json
import os
import random
import struct
import subprocess
import sys
import tempfile
import zipfile

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True, help="the project's folder")
arguments = parser.parse_args()
program = [os.path.abspath(word) for word in arguments.program]
array = os.path.abspath(os.path.join(arguments.folder, "examples/data/temperatures.npy"))
failures = 0


def check(what, actual, expected):
    global failures
    if actual != expected:
        failures += 1
        print(f"{what}\n  expected {expected!r}\n  actual   {actual!r}")


def run(*words):
    result = subprocess.run([*program, *words], capture_output=True, text=True, errors="replace",
                            timeout=300)
    return result.returncode, result.stdout, result.stderr


def refused(file, reason, *options):
    """The file is refused for the reason in one line, and the next file is shown all the same."""
    code, output, errors = run("show", *options, file, array)
    check(f"{file} {options}", (code, errors), (1, f"[vtlcmd]  Error:    {file}: {reason}\n"))
    check(f"{file}: what follows", "(array<array<double>>)" in output, True)


def scene(nodes, buffer="data:application/octet-stream;base64," + "A" * 48):
    return json.dumps({
        "asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}], "nodes": nodes,
        "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}],
        "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3"}],
        "bufferViews": [{"buffer": 0, "byteLength": 36}],
        "buffers": [{"byteLength": 36, "uri": buffer}]})


def write(name, content):
    with open(name, "wb") as file:
        file.write(content if isinstance(content, bytes) else content.encode())


def check_crashes():
    write("deep.gltf", scene([{"children": [i + 1]} for i in range(20000)] + [{"mesh": 0}]))
    write("brackets.gltf", "[" * 200000)
    for file in "deep.gltf", "brackets.gltf":
        refused(file, "its reader crashed: Segmentation fault")


def check_limits():
    write("claims_much.glb", b"glTF" + struct.pack("<III", 2, 22, 0xFFFFFFF0) + b"JSON{}")
    write("shared.gltf", scene([{"children": [i + 1, i + 1]} for i in range(30)] + [{"mesh": 0}]))
    with zipfile.ZipFile("bomb.3mf", "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("_rels/.rels", '<Relationships><Relationship Id="r" Target="/3D/3dmodel.model"'
                         ' Type="http://schemas.microsoft.com/3dmanufacturing/2013/01/3dmodel"/>'
                         "</Relationships>")
        archive.writestr("3D/3dmodel.model", b" " * (150 << 20))
    memory = "reading it takes more than 100 MiB of memory (--read-memory)"
    for file in "claims_much.glb", "shared.gltf", "bomb.3mf":
        refused(file, memory, "--read-memory", "100M")
    refused("shared.gltf", "reading it takes more than 1 second of processor time (--read-cpu)",
            "--read-cpu", "1")
    refused("shared.gltf", "reading it takes longer than 1 second (--read-time)", "--read-time", "1")


def check_other_files():
    regular = "only regular files are read"
    os.mkfifo("fifo.bin")
    os.mkfifo("fifo.obj")
    os.mkdir("folder.ply")
    write("waits.gltf", scene([{"mesh": 0}], "fifo.bin"))
    write("curious.gltf", scene([{"mesh": 0}], "/etc/passwd"))
    refused("waits.gltf", f"it names 'fifo.bin': it is a FIFO; {regular}")
    refused("curious.gltf",
            "it names '/etc/passwd', which is outside its folder (--read-anywhere allows that)")
    check("anywhere", run("show", "--read-anywhere", "curious.gltf")[0], 0)
    refused("fifo.obj", f"it is a FIFO; {regular}")
    refused("folder.ply", f"it is a folder; {regular}")
    refused("/dev/zero", f"it is a device; {regular}")
    refused("absent.ply", "No such file or directory")


def npy(descriptor, shape, elements):
    header = f"{{'descr': '{descriptor}', 'fortran_order': False, 'shape': {shape}, }}\n".encode()
    return b"\x93NUMPY\x01\x00" + struct.pack("<H", len(header)) + header + elements


def check_archives():
    numbers = npy("<i2", "(3,)", struct.pack("<3h", -1, 2, 5))
    with zipfile.ZipFile("scan.NPZ", "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("a.npy", numbers)
        archive.writestr("b.npy", npy("<f4", "(1, 2)", bytes(8)))
    code, output, errors = run("show", "scan.NPZ")
    check("archive", (code, errors), (0, ""))
    check("archive", [line.strip() for line in output.splitlines() if "scan" in line],
          ["[vtlcmd]            scan.NPZ/a: int16, 3, widened to int",
           "[vtlcmd]            Output port 'scan.NPZ/a': (array<int>) (3 int)",
           "[vtlcmd]            scan.NPZ/b: float32, 1 × 2",
           "[vtlcmd]            Output port 'scan.NPZ/b': (array<array<float>>)"])
    with open("scan.NPZ", "rb") as file:
        content = file.read()
    write("cut.npz", content[:-9])
    refused("cut.npz", "it is no archive: Not a zip archive")
    at = content.index(b"a.npy") + 12
    write("damaged.npz", content[:at] + bytes([content[at] ^ 0x40]) + content[at + 1:])
    code, _, errors = run("show", "damaged.npz")
    check("damaged archive", (code, errors.count("\n"), "damaged.npz: 'a.npy' in it " in errors),
          (1, 1, True))
    with zipfile.ZipFile("bomb.npz", "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("a.npy", npy("|i1", "(419430400,)", bytes(150 << 20)))
    refused("bomb.npz", "reading it takes more than 100 MiB of memory (--read-memory)",
            "--read-memory", "100M")
    for content, reason in (numbers + b"x", "'a' in it: the file is 1 byte longer than its header says"), \
                           (None, "'a.txt' in it is no array file"):
        with zipfile.ZipFile("other.npz", "w") as archive:
            archive.writestr("a.npy" if content else "a.txt", content or b"")
        refused("other.npz", reason)


def check_tables():
    write("table.csv", 'time, "height, m"\r\n0, +1.5\r\n\r\n1,-2e1\r\n')
    code, output, errors = run("show", "table.csv")
    check("table", (code, errors, output.count("float64, 2\n")), (0, "", 2))
    check("table", "table.csv/height, m: float64, 2" in output, True)
    write("plain.csv", "1,2,3\n4,5,6\n")
    check("numbers", "plain.csv: float64, 2 × 3" in run("show", "plain.csv")[1], True)
    write("text.csv", "a,b\n1,2\n3,x\n")
    refused("text.csv", "line 3: 'x' is no number")
    write("mesh.json", json.dumps({
        "inputs": [{"name": "path", "type": "string"}],
        "nodes": [{"name": "column", "op": "read_npy", "in": {"path": "path"}, "type": "array<double>"}],
        "outputs": [{"name": "column", "from": "column"}]}))
    place = os.path.abspath("table.csv")
    code, output, errors = run("run", "mesh.json", "-s", f"path={place}/time")
    check("column", (code, "max: 1\n" in output, errors), (0, True, ""))
    code, _, errors = run("run", "mesh.json", "-s", f"path={place}")
    check("no column", (code, f"{place} holds 'time', 'height, m'; one of them is to be named, like "
                        f"{place}/height, m" in errors), (1, True))


def check_noise():
    source = random.Random(7)
    for i in range(20):
        write("noise.obj", source.randbytes(source.randrange(1, 2000)))
        code, output, errors = run("show", "noise.obj")
        check(f"noise {i}", (code, output, errors.count("\n")), (1, "", 1))


def check_nodes():
    write("mesh.json", json.dumps({
        "nodes": [{"name": "path", "op": "constant", "type": "string", "value": os.path.abspath("deep.gltf")},
                  {"name": "mesh", "op": "read_mesh", "in": {"path": "path"}}],
        "outputs": [{"name": "mesh", "from": "mesh"}]}))
    code, _, errors = run("run", "mesh.json")
    check("a node's file", (code, "Node 'mesh' (read_mesh): " in errors,
                            "deep.gltf: its reader crashed: Segmentation fault" in errors),
          (1, True, True))
    write("shared.json", json.dumps({
        "nodes": [{"name": "path", "op": "constant", "type": "string", "value": "shared.gltf"},
                  {"name": "mesh", "op": "read_mesh", "in": {"path": "path"}}],
        "outputs": [{"name": "mesh", "from": "mesh"}]}))
    for limit in ("--read-memory", "100M"), ("--read-cpu", "1"), ("--read-time", "1"):
        code, _, errors = run("run", "shared.json", *limit)
        check(f"a limit may be met once and not again: {limit}", (code, limit[0] in errors), (75, True))


def check_memory_limit():
    write("fill.json", json.dumps({
        "inputs": [{"name": "count", "type": "uint"}],
        "nodes": [{"name": "one", "op": "constant", "type": "double", "value": 1},
                  {"name": "ones", "op": "fill", "in": {"value": "one", "count": "count"}}],
        "outputs": [{"name": "ones", "from": "ones"}]}))
    limited = "run", "fill.json", "--memory-limit", "100M", "-s"
    code, output, errors = run(*limited, "count=20000000")
    check("too much memory", (code, output), (75, ""))
    check("too much memory",
          "Node 'ones' (fill): there isn't enough memory for the result of frame 1.\n" in errors, True)
    check("enough memory", run(*limited, "count=10000000")[0], 0)
    for size in "", "0", "much", "-1G":
        check("sizes", run("run", "fill.json", "--memory-limit", size)[0], 2)
    for seconds in "0", "-1", "1.5", "99999999999":
        check("times", run("show", array, "--read-time", seconds)[0], 2)


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    check_crashes()
    check_limits()
    check_other_files()
    check_archives()
    check_tables()
    check_noise()
    check_nodes()
    check_memory_limit()
sys.exit(failures != 0)
