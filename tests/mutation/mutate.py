#!/usr/bin/env python3
"""Makes each conditional jump of src/ always or never taken, and looks whether a test fails. What
survives has to stand in tests/mutation/equivalents.txt, and what stands there has to be in src/."""

import argparse
import functools
import json
import multiprocessing
import os
import pathlib
import platform
import random
import shutil
import subprocess
import sys
from collections import Counter, defaultdict

import equivalents
import mutants
import npm_packages
import programs
import report
import trials

PROJECT = pathlib.Path(__file__).resolve().parents[2]
LIST = PROJECT / "tests/mutation/equivalents.txt"
BUILD = PROJECT / "build/release"
OUT = PROJECT / "build/mutation"


def source(name):
    """A file of src/, from the project's folder."""
    path = os.path.relpath(pathlib.Path(name).resolve(), PROJECT)
    if not path.startswith("src/") or not (PROJECT / path).is_file():
        raise argparse.ArgumentTypeError(f"'{name}' is no file of src/")
    return path


def positive(text):
    if not text.isdecimal() or int(text) == 0:
        raise argparse.ArgumentTypeError(f"'{text}' is no number above 0")
    return int(text)


def arguments():
    parser = argparse.ArgumentParser(prog="./dev mutate", description=__doc__)
    parser.add_argument("files", nargs="*", type=source, metavar="FILE",
                        help="only lines of these sources")
    parser.add_argument("--sample", type=positive, metavar="N",
                        help="only so many by chance, and no page of the report")
    parser.add_argument("--seed", type=int, default=0, help="of the chance (default: 0)")
    parser.add_argument("--jobs", type=positive, default=os.cpu_count(), metavar="N",
                        help="how many at a time (default: one a processor)")
    return parser.parse_args()


def is_chosen(file, files):
    return not files or file in files


def chosen(found, files, sample, seed):
    found = [mutant for mutant in found if is_chosen(mutant.place.file, files)]
    if sample is not None and sample < len(found):
        found = random.Random(seed).sample(found, sample)
    return found


def trial(mutant, tests, limits, folder):
    """The tests of the mutant's own folder come first, for they are likely to kill it, then the quick
    ones."""
    own_first = sorted(tests, key=lambda test: (test.folder != mutant.folder, limits[test.folder]))
    return mutant, trials.try_mutant(mutant, own_first, limits, folder)


def try_all(found, tests, folder, entries, jobs):
    with multiprocessing.Pool(jobs, trials.limit_processes) as pool:
        limits = {test.folder: trials.time_limit(test) for test in tests}
        one = functools.partial(trial, tests=tests, limits=limits, folder=folder)
        results = []
        for mutant, result in pool.imap(one, found):
            results.append((mutant, result))
            if result.status == "Survived" and mutant.place not in entries:
                print(f"survives: {mutant}", flush=True)
            if len(results) % 100 == 0:
                print(f"{len(results)} of {len(found)} mutants tried", file=sys.stderr)
    return results


def print_counts(results):
    counts = defaultdict(Counter)
    for mutant, result in results:
        counts[str(pathlib.PurePath(mutant.place.file).parent)][result.status] += 1
    for folder, statuses in sorted(counts.items()):
        print(f"{folder}: {statuses.total()} mutants, {statuses['Killed']} killed, "
              f"{statuses['Timeout']} ran too long, {statuses['Survived']} survive")


def report_problems(made, with_page):
    """Writes the report, and says what its schema has against it."""
    path = OUT / "report.json"
    path.write_text(json.dumps(made, indent=1) + "\n")
    if not with_page or not npm_packages.fetch(OUT):
        return []
    report.write_page(OUT / "report.html", made, npm_packages.page_script(OUT))
    if not shutil.which("jsonschema"):
        return []
    checked = subprocess.run(["jsonschema", "-i", path, npm_packages.schema(OUT)], text=True,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return [f"{path} isn't as its schema wants it: {checked.stdout}"] if checked.returncode else []


def main():
    options = arguments()
    if platform.machine() not in ("x86_64", "AMD64"):
        print("./dev mutate: knows the jumps of x86-64 only", file=sys.stderr)
        return 2
    files = set(options.files)
    work = OUT / "work"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    with multiprocessing.Pool(options.jobs) as pool:
        sources = programs.compile_sources(PROJECT, BUILD, work, pool)
        tests = programs.link_programs(BUILD, sources, work, pool)
    found = chosen(list(mutants.all_mutants(PROJECT, sources, tests)), files, options.sample,
                   options.seed)
    if not found:
        print("./dev mutate: no mutants there", file=sys.stderr)
        return 2
    entries = equivalents.read(LIST)
    try:
        results = try_all(found, tests, work, entries, options.jobs)
    except trials.FailsWithoutMutant as error:
        print(f"./dev mutate: {error}", file=sys.stderr)
        return 1

    survivors = [mutant for mutant, result in results if result.status == "Survived"]
    reasons = {place: reason for place, (_, reason) in entries.items()}
    print_counts(results)
    problems = list(equivalents.gone(entries, PROJECT))
    places = [mutant.place for mutant in survivors]
    unlisted = list(equivalents.unlisted(entries, places))
    problems += unlisted
    if options.sample is None:
        for entry in equivalents.needless(entries, places, lambda file: is_chosen(file, files)):
            print(entry)
    problems += report_problems(report.document(PROJECT, results, reasons),
                                options.sample is None)
    for problem in problems:
        print(problem, file=sys.stderr)
    print(f"{len(results)} mutants, {len(unlisted)} survive that aren't listed")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
