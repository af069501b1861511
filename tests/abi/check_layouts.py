"""Holds compilers to layouts.txt: the sizes, offsets and types of the border's records, and the
places of its virtual operations.

A compiler translates a probe to assembly text, in which the sizes and offsets stand as data, and
each operation is called through its table, by the place that is looked for. It checks the types
itself. Nothing is linked or run, so it may be a compiler for another platform than this one.
"""

import argparse
import pathlib
import re
import subprocess
import sys
import typing

HERE = pathlib.Path(__file__).resolve().parent
TABLE = HERE / "layouts.txt"
SOURCES = HERE.parents[1] / "src"
HEADERS = ("vtlcmd/host/host_records.h", "vtlcmd/host/imports/vantrel_executor.h",
           "vtlcmd/host/imports/vantrel_math.h", "vtlcmd/host/imports/vantrel_object.h",
           "vtlcmd/host/imports/vantrel_records.h", "vtlcmd/host/port_value_map.h",
           "vtlcmd/logging/vtlcmd_logger.h")
ENTRY_SIZE = 8  # bytes of an entry in a table of operations
MINGW = "x86_64-w64-mingw32-g++-posix"


class Target(typing.NamedTuple):
    name: str
    command: list
    condition: str  # that the preprocessor has to confirm
    itanium: bool = True


class Fact(typing.NamedTuple):
    line: int
    what: str
    expected: int


def mingw_headers():
    """Where MinGW's compiler finds its headers, without those that another one has of its own."""
    told = subprocess.run([MINGW, "-E", "-v", "-x", "c++", "/dev/null"], check=True,
                          capture_output=True, text=True).stderr
    listed = re.search(r"<\.\.\.> search starts here:\n(.*)End of search", told, re.S)[1].split()
    folders = [str(pathlib.Path(folder).resolve()) for folder in listed]
    return ["-isystem" + folder for folder in folders
            if not re.search(r"/gcc/.*/include(-fixed)?$", folder)]


def all_targets():
    foreign = ["clang++", "-nostdinc++", "-nostdlibinc"]
    return [
        Target("g++, Linux", ["g++"], "!__clang__ && __linux__"),
        Target("clang++, Linux", ["clang++"], "__clang__ && __linux__"),
        Target("g++, MinGW", [MINGW], "!__clang__ && __MINGW64__"),
        Target("clang++, MinGW", [*foreign, "--target=x86_64-w64-mingw32", *mingw_headers()],
               "__clang__ && __MINGW64__"),
        # The stand-in headers declare what the border's headers name, in that library's sizes.
        Target("clang++, Microsoft", [*foreign, "--target=x86_64-pc-windows-msvc",
                                      f"-isystem{HERE / 'microsoft_headers'}"],
               "__clang__ && _MSC_VER", itanium=False),
    ]


def datum(line, value):
    return f'asm volatile(".ascii \\"fact {line} %c0\\"" : : "i"({value}));'


def right_behind(line, what, start, end, alignment):
    return (f'#line {line} "{TABLE.name}"\n'
            f'static_assert({start} >= {end} && {start} - ({end}) < {alignment}, '
            f'"{what} isn\'t right behind what stands before it");')


def same_type(line, what, found, expected):
    return (f'#line {line} "{TABLE.name}"\n'
            f'static_assert(std::is_same_v<{found}, {expected}>, "{what} isn\'t {expected}");')


def call(line, owner, name, operation):
    """A function that does nothing but call an operation, of a derived class for `end`."""
    derived = ""
    if name == "end":
        derived = f"struct Derived{line} : {owner} {{ virtual void end(); }};\n"
        owner = f"Derived{line}"
    listed = re.search(r"\((.*?)\)", operation)
    types = listed[1].split(", ") if listed and listed[1] else []
    parameters = [f"{owner}& object", *(f"{type_} a{i}" for i, type_ in enumerate(types))]
    arguments = [f"a{i}" for i in range(len(types))]
    return (f'#line {line} "{TABLE.name}"\n'
            f'{derived}extern "C" void call_{line}({", ".join(parameters)}) '
            f'{{ object.{name}({", ".join(arguments)}); }}')


def read_table(itanium):
    """What the table says, and the source that asks a compiler for it."""
    facts, functions, statements = [], [], []
    for line, row in enumerate(TABLE.read_text(encoding="utf-8").splitlines(), 1):
        if row == "" or row.startswith("#"):
            continue
        if not row.startswith(" "):
            kind, owner, *numbers = row.split()
            end = f"sizeof({numbers[1]})" if len(numbers) > 1 else "0"
            if kind == "value":
                facts.append(Fact(line, owner, int(numbers[0])))
                statements.append(datum(line, f"static_cast<int>({owner})"))
            elif numbers and numbers[0] != "*":
                facts.append(Fact(line, f"size of {owner}", int(numbers[0])))
                statements.append(datum(line, f"sizeof({owner})"))
        elif kind == "record":
            offset, member, type_ = row.split(None, 2)
            start = f"__builtin_offsetof({owner}, {member})"
            if offset == "+":
                statements.append(right_behind(line, f"{owner}::{member}", start, end,
                                               f"alignof(decltype({owner}::{member}))"))
            else:
                facts.append(Fact(line, f"offset of {owner}::{member}", int(offset)))
                statements.append(datum(line, start))
            end = f"{start} + sizeof({owner}::{member})"
            statements.append(same_type(line, f"{owner}::{member}",
                                        f"decltype({owner}::{member})", type_))
        else:
            slot, entry, operation = row.split(None, 2)
            name = re.match(r"~?\w+", operation)[0]
            facts.append(Fact(line, f"place of {owner}::{name}", int(entry if itanium else slot)))
            functions.append(call(line, owner, name, operation))
            if "(" in operation:
                statements.append(same_type(line, f"{owner}::{name}", f"decltype(&{owner}::{name})",
                                            operation.replace(name, f"auto ({owner}::*)", 1)))
    return facts, functions, statements


def probe(condition, functions, statements):
    return "\n".join([f"#if !({condition})", "#error not the compiler that was meant", "#endif",
                      *(f'#include "{header}"' for header in HEADERS),
                      *functions, "void facts() {", *statements, "}", ""])


def read_assembly(text):
    """The numbers by their lines in the table."""
    found = {int(line): int(number) for line, number in re.findall(r'"fact (\d+) (\d+)', text)}
    for line, body in re.findall(r"^call_(\d+):(.*?)(?=^call_|\Z)", text, re.M | re.S):
        through_table = re.search(r"\b(?:call|jmp)q?\s+\*(\d*)\(%r\w+\)", body)
        if through_table:
            found[int(line)] = int(through_table[1] or 0) // ENTRY_SIZE
    return found


def holds(target):
    """Prints what isn't as in the table."""
    facts, functions, statements = read_table(target.itanium)
    # Optimised, a call through a table is one instruction.
    command = [*target.command, "-std=c++20", "-O1", "-w", f"-I{SOURCES}"]
    compiler = subprocess.run([*command, "-x", "c++", "-S", "-o", "-", "-"], capture_output=True,
                              text=True, input=probe(target.condition, functions, statements))
    if compiler.returncode != 0:
        print(f"{target.name}: the probe doesn't compile\n{compiler.stderr}")
        return False
    found = read_assembly(compiler.stdout)
    wrong = [fact for fact in facts if found.get(fact.line) != fact.expected]
    for line, what, expected in wrong:
        print(f"{TABLE.name}:{line}: {target.name}: {what}: expected {expected}, "
              f"found {found.get(line, 'none')}")
    print(f"{target.name}: {len(facts) - len(wrong)} of {len(facts)} places are the table's")
    return not wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", help="this one alone, g++ or clang++, instead of all five")
    compiler = parser.parse_args().compiler
    targets = [Target(compiler, [compiler], "__GNUC__")] if compiler else all_targets()
    results = [holds(target) for target in targets]
    print(f"{sum(results)} of {len(results)} compilers agree")
    sys.exit(0 if all(results) else 1)


main()
