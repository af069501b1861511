"""The test programs of src/, linked again with sources whose jumps have labels."""

import json
import os
import pathlib
import shlex
import subprocess
from dataclasses import dataclass

import assembly
import executable

LABEL = "mutant."
# The same source as the baseline's, for processors that the one which runs the tests may not be.
NOT_MUTATED = ("VTLCMD_KERNELS=avx2", "VTLCMD_KERNELS=avx512")


@dataclass(frozen=True)
class Source:
    path: str  # from the project's folder, such as "src/vtlcmd/host/value_types.cpp"
    object: pathlib.Path
    jumps: list

    @property
    def folder(self):
        return str(pathlib.PurePath(self.path).parent.relative_to("src/vtlcmd"))


@dataclass(frozen=True)
class TestProgram:
    folder: str
    path: pathlib.Path
    environment: dict
    working_folder: str
    offsets: dict  # of the labels


def output(*command, **options):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE, **options).stdout


def compile_with_labels(command, number, project, out):
    """Source of one entry of compile_commands.json; the flags stay, and -g1 makes it tell lines."""
    words = shlex.split(command["command"])
    path = str(pathlib.Path(command["file"]).relative_to(project))
    text, made = out / f"{number}.s", out / f"{number}.o"
    words[words.index("-o") + 1] = str(text)
    words[words.index("-c")] = "-S"
    # A header that was compiled before without -g1 is read as text.
    output(*words, "-g1", "-Wno-invalid-pch", cwd=command["directory"])

    def is_ours(file):
        return pathlib.Path(command["directory"], file).resolve().is_relative_to(project / "src")

    labelled, jumps = assembly.with_labels(text.read_text(), is_ours, f"{LABEL}{number}.")
    text.write_text(labelled)
    output("as", text, "-o", made)
    return Source(path, made, jumps)


def compile_sources(project, build, out, pool):
    """Of every source that the plug-in consists of."""
    commands = [command for command in json.loads((build / "compile_commands.json").read_text())
                if " -o src/CMakeFiles/" in command["command"]
                # The precompiled header has a command there too.
                and pathlib.Path(command["file"]).is_relative_to(project / "src")
                and not any(f"-D{name} " in command["command"] for name in NOT_MUTATED)]
    return pool.starmap(compile_with_labels, [(command, number, project, out)
                                              for number, command in enumerate(commands)])


def link(build, test, objects, out):
    built = pathlib.Path(test["command"][0])
    commands = output("ninja", "-C", build, "-t", "commands", built.relative_to(build))
    words = shlex.split(commands.splitlines()[-1].removeprefix(": && ").removesuffix(" && :"))
    program = out / built.name
    words[words.index("-o") + 1] = str(program)
    first = next(index for index, word in enumerate(words) if word.endswith(".o"))
    words[first:first] = map(str, objects)
    # Of symbols that are defined twice the first one counts. The program lies elsewhere than the one
    # that finds its libraries beside it.
    output(*words, "-Wl,-z,muldefs", f"-Wl,-rpath,{build / 'lib'}", cwd=build)
    properties = {each["name"]: each["value"] for each in test["properties"]}
    environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
    return TestProgram(test["name"], program, os.environ | environment,
                       properties["WORKING_DIRECTORY"], executable.label_offsets(program, LABEL))


def link_programs(build, sources, out, pool):
    """The test programs of the folders that the sources are in."""
    tests = json.loads(output("ctest", "--test-dir", build, "--show-only=json-v1"))["tests"]
    objects = [source.object for source in sources]
    folders = {source.folder for source in sources}
    return pool.starmap(link, [(build, test, objects, out) for test in tests
                               if test["name"] in folders])
