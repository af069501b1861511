"""A plug-in with one defect fails exactly the checks that the table says.

usage: broken_plug_in_test.py PLUG_IN DEFECT TABLE CHECKS VALIDATOR...
The table has a line a defect: its name, "apart" and a regular expression of results when checks are
to be made in processes of their own and to end so, a colon, a regular expression of whole names of
checks. CHECKS is one of the checks to make; all when it is empty. VALIDATOR are the words that start
the program.
"""

import json
import re
import subprocess
import sys


def main(plug_in, defect, table, made, *validator):
    with open(table, encoding="utf-8") as rows:
        matches = [re.fullmatch(r"(\S+)(?: apart (\S+))?: (.*)\n", row) for row in rows]
    ends, expected = next(match.groups()[1:] for match in matches if match[1] == defect)
    # The seed makes sure that the random texts meet the defect.
    options = ["--json", "--seed", "1"] + ([] if ends else ["--in-process"])
    ended = subprocess.run([*validator, *options, "--only", made, plug_in], capture_output=True,
                           text=True, check=False)
    checks = json.loads(ended.stdout)["plugIns"][0]["checks"]
    bad = {check["name"] for check in checks if check["result"] not in ("passed", "warning")}
    wanted = {check["name"] for check in checks if re.fullmatch(expected, check["name"])}
    for name in sorted(bad ^ wanted):
        note = next(check["note"] for check in checks if check["name"] == name)
        print("failed, but shouldn't have:" if name in bad else "didn't fail:", name, note)
    results = {check["result"] for check in checks if check["name"] in bad}
    print("results:", sorted(results))
    told = all(re.fullmatch(ends or "failed", result) for result in results)
    return 0 if bad == wanted and bad and told and ended.returncode == 1 else 1


sys.exit(main(*sys.argv[1:]))
