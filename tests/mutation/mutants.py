"""Which mutants there are."""

import pathlib
from dataclasses import dataclass

import assembly
from equivalents import Place

OUTCOMES = ("always", "never")
# Code of a header is compiled into many functions. Of these headers every survivor is judged; mutants
# of the others are tried only where they are asked for.
JUDGED_HEADERS = {
    "src/vtlcmd/input/from_string.h",
    "src/vtlcmd/input/input_setter.h",
    "src/vtlcmd/input/set_from_string.h",
    "src/vtlcmd/output/array_printers.h",
    "src/vtlcmd/output/array_text.h",
    "src/vtlcmd/output/output_reporter.h",
    "src/vtlcmd/output/statistics/array_statistics.h",
    "src/vtlcmd/output/value_text.h",
    "src/vtlcmd/text/joined.h",
}


def is_judged(file):
    """Whether the list has an entry for whatever survives in there."""
    return file.endswith(".cpp") or file in JUDGED_HEADERS


@dataclass(frozen=True)
class Mutant:
    label: str
    outcome: str
    instruction: str
    folder: str  # of the source that it was compiled in, for a header's line is in many
    place: Place
    line: int
    column: int

    def __str__(self):
        return (f"{self.place.file}:{self.line}: {self.place.function}: {self.instruction} "
                f"{self.outcome}: {self.place.text}")


def all_mutants(project, sources, programs):
    """Of the jumps that are in a program."""
    kept = set().union(*(program.offsets for program in programs))
    names = assembly.source_names(jump.function for source in sources for jump in source.jumps)
    lines = {}
    for source in sources:
        for jump in source.jumps:
            if jump.label not in kept:
                continue
            file = str(pathlib.Path(jump.file).resolve().relative_to(project))
            if file not in lines:
                lines[file] = (project / file).read_text().splitlines()
            place = Place(file, names[jump.function], lines[file][jump.line - 1].strip())
            for outcome in OUTCOMES:
                yield Mutant(jump.label, outcome, jump.instruction, source.folder, place,
                             jump.line, jump.column)
