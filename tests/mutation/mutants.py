"""Which mutants there are."""

import pathlib
from dataclasses import dataclass

import assembly
from equivalents import Place

OUTCOMES = ("always", "never")


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
