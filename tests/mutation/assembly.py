"""The conditional jumps in what g++ makes of a source, as x86-64 assembly in AT&T syntax."""

import re
import subprocess
from dataclasses import dataclass

FILE = re.compile(r'\t\.file (\d+) "(.*?)"(?: "(.*?)")?')
LOCATION = re.compile(r"\t\.loc (\d+) (\d+) (\d+)")
FUNCTION = re.compile(r"([\w.$]+):")
FUNCTION_TYPE = re.compile(r"\t\.type\t([\w.$]+), @function")
# Brackets in names of operators, while those around arguments are taken away.
HIDDEN = str.maketrans("<>()", "\1\2\3\4")
SHOWN = str.maketrans("\1\2\3\4", "<>()")
LAMBDA = ("{lambda", "_FUN", "operator\3\4")
CONDITIONAL_JUMP = re.compile(r"\t(j(?!mp)[a-z]+)\t")


@dataclass(frozen=True)
class Jump:
    label: str
    instruction: str
    file: str  # as the compiler names it
    line: int
    column: int
    function: str  # as the linker names it


def with_labels(assembly, wanted, prefix):
    """The text with a label, PREFIX and a number, at each jump whose file is `wanted`, and these."""
    files, functions, jumps, lines = {}, set(), [], []
    location, function = None, ""
    for line in assembly.splitlines():
        if match := FILE.match(line):
            files[match[1]] = "/".join(filter(None, match.groups()[1:]))
        elif match := LOCATION.match(line):
            location = match.groups()
        elif match := FUNCTION_TYPE.match(line):
            functions.add(match[1])
        elif (match := FUNCTION.match(line)) and match[1] in functions:
            function, location = match[1], None
        elif (match := CONDITIONAL_JUMP.match(line)) and location:
            number, row, column = location
            if row != "0" and wanted(files[number]):
                label = f"{prefix}{len(jumps)}"
                jumps.append(Jump(label, match[1], files[number], int(row), max(int(column), 1),
                                  function))
                lines.append(f"{label}:")
        lines.append(line)
    return "\n".join(lines) + "\n", jumps


def without_arguments(name):
    """The last part of a demangled name without its arguments: what a source calls it. A lambda goes
    by the function that it stands in."""
    name = re.sub(r" \[clone.*|\[abi:\w+\]|\(anonymous namespace\)::", "", name)
    name = re.sub(r"operator([<>=]+|\(\))", lambda match: "operator" + match[1].translate(HIDDEN),
                  name)
    shorter = ""
    while shorter != name:
        name, shorter = re.sub(r"<[^<>]*>|\([^()]*\)", "", name), name
    parts = name.removesuffix(" const").strip().split("::")
    while parts[-1].startswith(LAMBDA):
        parts.pop()
    return parts[-1].split(" ")[-1].translate(SHOWN)


def source_names(functions):
    """Maps the linker's names to the sources' names."""
    functions = sorted(set(functions))
    demangled = subprocess.run(["c++filt"], input="\n".join(functions), text=True, check=True,
                               stdout=subprocess.PIPE).stdout.splitlines()
    return {function: without_arguments(name) for function, name in zip(functions, demangled)}
