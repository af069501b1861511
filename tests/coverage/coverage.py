"""What the tests reach, by folder: lines, branches and conditions (each shown to decide by itself).

BUILD is a build of the preset "coverage" whose tests have run with
LLVM_PROFILE_FILE=BUILD/profiles/%8m.profraw. Something counts as reached when one instance of a
template, in one program or library, reaches it. Each program and library is looked at by itself:
of several at once llvm-cov takes the first record of an inline function, also where that is of a
library that never calls it.

What can't be reached in src stands in unreached.txt with the reason; an entry that is reached or
gone fails."""

import argparse
import collections
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
UNREACHED = pathlib.Path(__file__).with_name("unreached.txt")
LLVM = "-19"
# The least percentages of lines, branches and conditions.
KINDS = ("lines", "branches", "conditions")
GATES = {"src": (100, 100, 100), "closed": (95, 85, 0), "runner": (95, 85, 0)}


class File:
    """What there is in a source: by place, whether it was reached."""

    def __init__(self, name):
        self.source = (ROOT / name).read_text(encoding="utf-8").splitlines()
        self.lines = collections.defaultdict(bool)
        self.branches = collections.defaultdict(bool)
        self.conditions = collections.defaultdict(bool)

    def add(self, data):
        for line, count in counts_of_lines(data["segments"]):
            # Behind a "break" the brace that closes its block is never come to.
            if self.source[line - 1].strip() != "}":
                self.lines[(line,), "line"] |= count > 0
        for branch in data["branches"]:
            self.branches[tuple(branch[:4]), "true"] |= branch[4] > 0
            self.branches[tuple(branch[:4]), "false"] |= branch[5] > 0
        for decision in data["mcdc_records"]:
            for number, reached in enumerate(decision[-1], 1):
                self.conditions[tuple(decision[:4]), f"condition {number}"] |= reached

    def kinds(self):
        return self.lines, self.branches, self.conditions

    def text(self, place):
        """What stands there: the whole line, or the expression up to the end of its line."""
        line = self.source[place[0] - 1]
        if len(place) == 1:
            return line.strip()
        end = place[3] - 1 if place[2] == place[0] else len(line)
        return line[place[1] - 1:end]


def counts_of_lines(segments):
    """How often each line with code ran: as often as the region that it goes on with, or the most
    frequent one that begins in it."""
    starts = collections.defaultdict(list)
    for line, _, count, counted, entry, gap in segments:
        starts[line].append((count, counted, entry, gap))
    last = None
    for line in range(min(starts, default=0), max(starts, default=-1) + 1):
        here = starts.get(line, [])
        begun = [count for count, counted, entry, _ in here if counted and entry]
        skipped = bool(here) and here[0][2] and not here[0][1]
        if begun or (last and last[1] and not skipped):
            regions = [count for count, counted, entry, gap in here if counted and entry and not gap]
            yield line, max([last[0] if last else 0, *regions])
        last = here[-1] if here else last


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def is_object(path):
    with path.open("rb") as file:
        return file.read(4) == b"\x7fELF"


def read_coverage(build, folders):
    profiles = sorted(map(str, (build / "profiles").glob("*.profraw")))
    if not profiles:
        sys.exit(f"coverage.py: no profiles in {build / 'profiles'}")
    merged = build / "coverage.profdata"
    listed = build / "profiles.txt"
    listed.write_text("\n".join(profiles))
    # A program that was killed while it wrote may have left half a profile.
    run(f"llvm-profdata{LLVM}", "merge", "-sparse", "-failure-mode=all", f"-input-files={listed}",
        "-o", str(merged))
    files = {}
    for path in sorted([*(build / "bin").iterdir(), *(build / "lib").iterdir()]):
        if path.is_symlink() or not is_object(path):
            continue
        # It warns of each function that a program has and doesn't call.
        exported = subprocess.run(
            [f"llvm-cov{LLVM}", "export", "-skip-functions", "-skip-expansions", str(path),
             f"-instr-profile={merged}", "-sources", *(str(ROOT / folder) for folder in folders)],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if exported.returncode == 0:
            for data in json.loads(exported.stdout)["data"][0]["files"]:
                name = pathlib.Path(data["filename"]).relative_to(ROOT).as_posix()
                if name.partition("/")[0] in folders:
                    files.setdefault(name, File(name)).add(data)
        elif b"no coverage data found" not in exported.stderr.lower():
            sys.exit(f"coverage.py: {path}: {exported.stderr.decode()}")
    return files


def read_excuses(folders):
    excuses = {}
    for line in UNREACHED.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            file, what, text, reason = (field.strip() for field in line.split(" | "))
            if file.partition("/")[0] in folders:
                excuses[file, what, text] = reason
    return excuses


def percent(figures):
    reached, count = figures
    return 100 if count == 0 else 100 * reached / count


def row(name, figures):
    cells = "".join(f"{reached:8}/{count:<6}{percent((reached, count)):6.2f} %"
                    for reached, count in figures)
    return f"{name:28}{cells}"


class Tally:
    """Sums by folder, and what isn't reached with the numbers of its lines."""

    def __init__(self, excuses):
        self.excuses = excuses
        self.sums = collections.defaultdict(lambda: [[0, 0] for _ in KINDS])
        self.gaps = collections.defaultdict(list)

    def add(self, name, file):
        figures = [self.sums[folder] for folder in (name.partition("/")[0], name.rpartition("/")[0])]
        for kind, places in enumerate(file.kinds()):
            for (place, what), reached in places.items():
                gap = (name, what, file.text(place))
                if not reached:
                    self.gaps[gap].append(place[0])
                for total in figures:
                    total[kind][0] += reached or gap in self.excuses
                    total[kind][1] += 1

    def claim(self, folder):
        """What there is of each kind where all of it has to be reached, and else how much is."""
        if set(GATES[folder]) == {100}:
            counts = ", ".join(f"{count} {kind}" for kind, (_, count) in zip(KINDS, self.sums[folder]))
            return f"{folder}: {counts}, all but {len(self.excuses)} listed"
        shares = (f"{int(percent(figures))} % of {kind}"
                  for kind, figures, least in zip(KINDS, self.sums[folder], GATES[folder]) if least)
        return f"{folder}: {', '.join(shares)}"

    def failures(self, folders):
        for folder in folders:
            if self.sums[folder][0][1] == 0:
                yield f"{folder}: nothing was counted"
            for kind, least, figures in zip(KINDS, GATES[folder], self.sums[folder]):
                if percent(figures) < least:
                    yield f"{folder}: {percent(figures):.2f} % of the {kind}, not {least} %"
        for gap, lines in sorted(self.gaps.items()):
            if gap[0].startswith("src/") and gap not in self.excuses:
                yield from (f"{gap[0]}:{line}: {gap[1]} not reached: {gap[2]}" for line in lines)
        for gap in self.excuses:
            if gap not in self.gaps:
                yield f"{UNREACHED.name}: reached, or gone: {' | '.join(gap)}"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("folders", nargs="+", choices=GATES)
    parser.add_argument("--gaps", action="store_true", help="show all that isn't reached")
    arguments = parser.parse_args()

    files = read_coverage(arguments.build, arguments.folders)
    tally = Tally(read_excuses(arguments.folders))
    for name, file in sorted(files.items()):
        tally.add(name, file)
    if "src" in arguments.folders:
        for source in (ROOT / "src").rglob("*.cpp"):
            name = source.relative_to(ROOT).as_posix()
            if name not in files and not name.endswith("_windows.cpp"):
                tally.gaps[name, "file", ""].append(1)

    print(f"{'':28}{'lines':>23}{'branches':>25}{'conditions':>25}")
    for folder, figures in sorted(tally.sums.items()):
        print(row(folder, figures))
    print(f"taken for reached, as {UNREACHED.name} says why: {len(tally.excuses)}")
    if arguments.gaps:
        for (name, what, text), lines in sorted(tally.gaps.items()):
            print(*(f"{name}:{line}: {what} not reached: {text}" for line in lines), sep="\n")
    print(*(tally.claim(folder) for folder in arguments.folders), sep="; ")
    failures = list(tally.failures(arguments.folders))
    print(*failures, sep="\n", end="\n" * bool(failures), file=sys.stderr)
    return 1 if failures else 0


sys.exit(main())
