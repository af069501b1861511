"""The results in the form of mutation testing reports that tools of many languages share."""

import json

MUTATOR = {"always": "jump always taken", "never": "jump never taken"}
PAGE = """<!DOCTYPE html>
<html lang="en">
<head><meta charset="utf-8"><title>Mutants of src</title><script src="{script}"></script></head>
<body><mutation-test-report-app title-postfix="src"></mutation-test-report-app>
<script>document.querySelector("mutation-test-report-app").report = {report};</script></body>
</html>
"""


def entry(number, mutant, result, reason, width):
    """One mutant; `reason` is why no test can see it, if so."""
    status = "Ignored" if result.status == "Survived" and reason else result.status
    start = min(mutant.column, width)
    return {
        "id": str(number),
        "mutatorName": MUTATOR[mutant.outcome],
        "replacement": f"{mutant.instruction} {mutant.outcome}, in {mutant.place.function}",
        "location": {"start": {"line": mutant.line, "column": start},
                     "end": {"line": mutant.line, "column": width + 1}},
        "status": status,
        "statusReason": reason if status == "Ignored" else result.reason,
    }


def document(project, results, reasons):
    """`results` are pairs of a mutant and its result."""
    files = {}
    for number, (mutant, result) in enumerate(results):
        place = mutant.place
        if place.file not in files:
            source = (project / place.file).read_text()
            files[place.file] = {"language": "cpp", "source": source, "mutants": []}
        width = max(len(files[place.file]["source"].splitlines()[mutant.line - 1]), 1)
        files[place.file]["mutants"].append(
            entry(number, mutant, result, reasons.get(place, ""), width))
    return {"schemaVersion": "2", "thresholds": {"high": 100, "low": 90}, "files": files}


def write_page(path, report, script):
    """A page beside a folder that holds the script."""
    # Nothing in a script's text may look like its end.
    text = json.dumps(report).replace("</", "<\\/").replace("<!--", "<\\!--")
    path.write_text(PAGE.format(script=script.relative_to(path.parent), report=text))
