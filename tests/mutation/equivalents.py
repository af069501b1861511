"""The list of mutants that no test can see."""

import pathlib
from collections import Counter
from typing import NamedTuple


class Place(NamedTuple):
    file: str
    function: str
    text: str  # of the line, without the blanks around it


def read(path):
    """Maps each place to how many mutants survive there, and why: in blocks of FILE: FUNCTION: COUNT,
    the line behind "| " and the reason, with an empty line between them."""
    entries = {}
    lines = path.read_text().splitlines()
    blocks = "\n".join(line for line in lines if not line.startswith("#")).split("\n\n")
    for block in filter(None, (block.strip() for block in blocks)):
        head, *rest = block.splitlines()
        fields = head.split(": ")
        if len(fields) != 3 or not fields[2].isdigit() or len(rest) < 2 or rest[0][:2] != "| ":
            raise ValueError(f"{path}: not an entry: {head}")
        place = Place(fields[0], fields[1], rest[0][2:].strip())
        if place in entries:
            raise ValueError(f"{path}: twice: {head}")
        entries[place] = int(fields[2]), " ".join(rest[1:])
    return entries


def gone(entries, project):
    """What is wrong with entries whose line isn't in the sources any more."""
    for file, function, text in entries:
        path = pathlib.Path(project, file)
        if not path.is_file() or text not in map(str.strip, path.read_text().splitlines()):
            yield f"listed, but not in the sources: {file}: {function}: {text}"


def unlisted(entries, survivors):
    """What is wrong with the places of survivors: more of them than listed."""
    for place, count in Counter(survivors).items():
        listed = entries.get(place, (0, ""))[0]
        if count > listed:
            yield f"{count} survive, {listed} listed: {': '.join(place)}"


def needless(entries, survivors, tried_all):
    """Entries that list more than survive; `tried_all` tells whether a file was tried whole. What
    reads memory that it shouldn't may survive in one build and not in the next."""
    counts = Counter(survivors)
    for place, (listed, _) in entries.items():
        if counts[place] < listed and tried_all(place.file):
            yield f"only {counts[place]} survive, {listed} listed: {': '.join(place)}"
