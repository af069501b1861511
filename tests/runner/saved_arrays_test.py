"""What --save writes is what NumPy reads: equal in type, shape and every bit."""

import argparse
import json
import pathlib
import subprocess
import tempfile

import numpy

from expectations import expect, fail, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
arguments = parser.parse_args()

NUMBERS = {"bool": "?", "float": "f4", "double": "f8", "int": "i4", "uint": "u4", "long": "i8",
           "ulong": "u8"}
VECTORS = {f"Math::{kind}{size}": (NUMBERS[kind], size) for kind in ("float", "double") for size in (2, 3, 4)}
MATRICES = {"Math::float2x2": (2, 2), "Math::float4x4": (4, 4), "Math::double2x3": (2, 3)}

random = numpy.random.default_rng(7)


def random_array(code, shape):
    """Of any bits that there are, NaNs with payload among them."""
    dtype = numpy.dtype(code)
    if dtype.kind == "b":
        return random.integers(0, 2, shape).astype(dtype)
    count = int(numpy.prod(shape))
    return numpy.frombuffer(random.bytes(count * dtype.itemsize), dtype).reshape(shape)


def expect_array(what, file, wanted):
    if not file.exists():
        fail(f"{what}: not saved")
        return
    found = numpy.load(file)
    expect(f"{what}: type", found.dtype, wanted.dtype)
    expect(f"{what}: shape", found.shape, wanted.shape)
    expect(f"{what}: bits", found.tobytes(), wanted.tobytes())


class Case:
    """One graph whose outputs are saved, and what they are to be."""

    def __init__(self, folder):
        self.folder = folder
        self.nodes = []
        self.wanted = {}

    def constant(self, name, type_name, value):
        self.nodes.append({"name": name, "op": "constant", "type": type_name, "value": value})

    def node(self, name, op, **inputs):
        self.nodes.append({"name": name, "op": op, "in": inputs})

    def read(self, name, type_name, array):
        file = self.folder / f"{name}_in.npy"
        numpy.save(file, array)
        self.constant(f"{name}_path", "string", str(file))
        self.nodes.append({"name": name, "op": "read_npy", "type": type_name, "in": {"path": f"{name}_path"}})

    def run(self):
        graph = self.folder / "graph.json"
        graph.write_text(json.dumps({"nodes": self.nodes,
                                     "outputs": [{"name": name, "from": name} for name in self.wanted]}))
        saves = [word for name in self.wanted for word in ("--save", f"{name}={self.folder / name}.npy")]
        result = subprocess.run([*arguments.program, "run", graph, "-q", *saves], capture_output=True, text=True)
        for name, wanted in self.wanted.items():
            expect_array(name, self.folder / f"{name}.npy", wanted)
        return result.returncode, result.stderr


with tempfile.TemporaryDirectory() as name:
    case = Case(pathlib.Path(name))
    case.constant("one", "int", 1)
    rows = [(type_name, code, ()) for type_name, code in NUMBERS.items()]
    rows += [(type_name, code, (size,)) for type_name, (code, size) in VECTORS.items()]
    for type_name, code, inner in rows:
        plain = type_name.replace("Math::", "")
        for shape in ((5,), (2, 3), (3, 1, 2), (2, 0), (0,)):
            if len(shape + inner) > 3:
                continue  # More dimensions than are read.
            label = "x".join(map(str, shape))
            array = random_array(code, shape + inner)
            case.read(f"{plain}_{label}", "array<" * len(shape) + type_name + ">" * len(shape), array)
            case.wanted[f"{plain}_{label}"] = array
        case.node(f"{plain}_one", "element", array=f"{plain}_5", index="one")
        case.wanted[f"{plain}_one"] = case.wanted[f"{plain}_5"][1:2]
    # Deeper than files are read; a level without arrays has no size.
    case.constant("deep", "array<array<array<array<int>>>>", [[[[1, 2]], [[3, 4]]]])
    case.wanted["deep"] = numpy.array([[[[1, 2]], [[3, 4]]]], "i4")
    case.constant("deep_vectors", "array<array<array<Math::double2>>>", [[[[1, 2], [3, 4]]]])
    case.wanted["deep_vectors"] = numpy.array([[[[1, 2], [3, 4]]]], "f8")
    case.constant("empty", "array<array<array<Math::float2>>>", [])
    case.wanted["empty"] = numpy.zeros((0, 0, 0, 2), "f4")
    expect("the run", case.run(), (0, ""))

with tempfile.TemporaryDirectory() as name:
    # The plug-in has no report for matrices; they are saved all the same.
    case = Case(pathlib.Path(name))
    for type_name, shape in MATRICES.items():
        code = "f4" if "float" in type_name else "f8"
        value = random.random(shape).astype(code)
        plain = type_name.replace("Math::", "")
        case.constant(plain, type_name, [float(number) for number in value.flatten()])
        case.wanted[plain] = value.reshape((1, *shape))
    expect("matrices", case.run()[0], 1)

with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    graph = folder / "graph.json"
    graph.write_text(json.dumps({
        "inputs": [{"name": "time", "type": "Simulation::Time"}],
        "nodes": [{"name": "frame", "op": "time_frame", "in": {"time": "time"}},
                  {"name": "rows", "op": "constant", "type": "array<array<int>>", "value": [[1, 2], [3]]}],
        "outputs": [{"name": "frame", "from": "frame"}, {"name": "rows", "from": "rows"}]}))

    def run(*words):
        result = subprocess.run([*arguments.program, "run", graph, "-q", *words], capture_output=True, text=True)
        return result.returncode, result.stderr

    # An old file is replaced, whatever was in it.
    (folder / "f.0002.NPY").write_text("old and much longer than what comes in its place" * 100)
    expect("frames", run("-f", "1-3", "--save", f"frame={folder}/f.{{frame:04}}.NPY"), (0, ""))
    for frame in (1, 2, 3):
        expect_array(f"frame {frame}", folder / f"f.000{frame}.NPY", numpy.array([frame], "f8"))
    expect("fractions", run("-f", "1-2x0.5", "--save", f"frame={folder}/f{{frame}}.npy"), (0, ""))
    expect_array("frame 1.5", folder / "f1.5.npy", numpy.array([1.5]))

    # What can't be saved leaves the old file as it was, and nothing beside it.
    old = folder / "rows.npy"
    old.write_text("old")
    code, errors = run("--save", f"rows={old}", "--save", f"frame={folder}/frame.npy")
    expect("ragged", (code, errors),
           (1, f"[vtlcmd]  Error:    Saving output port 'rows' failed: {old}: the arrays at level 2 of it "
               "differ in size\n"))
    expect("the old file", old.read_text(), "old")
    expect_array("the other output", folder / "frame.npy", numpy.array([1.0]))
    expect("nothing is left", [file.name for file in folder.iterdir() if file.suffix == ".part"], [])

finish()
