"""The schemas of graph file and run report agree with the program and the project's graphs."""

import argparse
import copy
import json
import pathlib
import re
import shlex
import subprocess
import sys

import jsonschema

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True, type=pathlib.Path)
parser.add_argument("--accept", action="store_true",
                    help="write the operations and types of today into the graph file's schema")
arguments = parser.parse_args()

problems = []


def listed(command):
    return json.loads(subprocess.check_output([*arguments.program, command, "--json"]))


def known_types():
    """The names in the lists of types, those included that only reports know."""
    lists = (arguments.folder / "src/vtlcmd/host/value_types.h").read_text()
    return re.findall(r'(?:Registered|InputOnly|ReportOnly)Type<[\w:]+>\s*\{\s*"([^"]+)"', lists)


schema_file = arguments.folder / "docs/graph.schema.json"
schema = json.loads(schema_file.read_text())
accepted_schema = copy.deepcopy(schema)
accepted_schema["$defs"]["node"]["properties"]["op"]["enum"] = [node["op"] for node in listed("nodes")]
accepted_schema["$defs"]["type"]["pattern"] = f"^(array<)*({'|'.join(known_types())})>*$"
if arguments.accept:
    schema = accepted_schema
    schema_file.write_text(json.dumps(schema, indent=2, ensure_ascii=False) + "\n")
if schema != accepted_schema:
    problems.append("the schema's operations or types differ from the program's; "
                    f"to renew them: {shlex.join([sys.executable, *sys.argv, '--accept'])}")
if missing := set(listed("types")) - set(known_types()):
    problems.append(f"no list of types has {', '.join(sorted(missing))}")
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)

for name in known_types():
    for type_name in (name, f"array<array<{name}>>"):
        graph = {"inputs": [{"name": "port", "type": type_name}]}
        problems += [f"{type_name}: {error.message}" for error in validator.iter_errors(graph)]

good = [*arguments.folder.glob("examples/*.json"), *arguments.folder.glob("tests/runner/data/*.json")]
for path in good:
    for error in validator.iter_errors(json.loads(path.read_text())):
        problems.append(f"{path.name}: {error.json_path}: {error.message}")
if len(good) < 10:
    problems.append("the graphs to check weren't found")

# What a schema can't know: whether texts name something that exists and fits.
beyond_schema = {
    "cycle", "doubled_name", "doubled_output", "huge_number", "mixed_list", "missing_input", "no_conversion",
    "no_vector_type", "other_component_type", "reads_itself", "record_default", "repeated_key",
    "surplus_type", "too_few_components", "type_mismatch", "unknown_input", "unknown_output_source",
    "unknown_source", "vector_of_arrays", "wrong_class", "wrong_class_in_list", "wrong_component",
    "wrong_components", "wrong_default", "wrong_element", "wrong_literal",
}
for path in arguments.folder.glob("tests/runner/data/bad_graphs/*.json"):
    try:
        accepted = validator.is_valid(json.loads(path.read_text()))
    except json.JSONDecodeError:
        accepted = False
    if accepted != (path.stem in beyond_schema):
        problems.append(f"{path.name}: {'accepted' if accepted else 'refused'}")

report_schema = json.loads((arguments.folder / "docs/report.schema.json").read_text())
jsonschema.Draft202012Validator.check_schema(report_schema)
report_validator = jsonschema.Draft202012Validator(report_schema)
for path in [*good, *arguments.folder.glob("tests/runner/data/bad_graphs/*.json")]:
    for form, elements in (("value", "2"), ("any", "all")):
        run = subprocess.run(
            [*arguments.program, "run", path, "--report", "-", "--through", form, "-f", "1-2",
             "--elements", elements],
            cwd=arguments.folder, capture_output=True)
        for error in report_validator.iter_errors(json.loads(run.stdout)):
            problems.append(f"report of {path.name}: {error.json_path}: {error.message}")

shown = subprocess.run(
    [*arguments.program, "show", "examples/data/temperatures.npy", "examples/data/pyramid.obj", "absent.npy",
     "--report", "-"], cwd=arguments.folder, capture_output=True)
for error in report_validator.iter_errors(json.loads(shown.stdout)):
    problems.append(f"report of files: {error.json_path}: {error.message}")

print("\n".join(problems))
sys.exit(1 if problems else 0)
