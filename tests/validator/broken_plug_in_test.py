"""A plug-in with one defect fails exactly the checks that the table says.

usage: broken_plug_in_test.py VALIDATOR PLUG_IN DEFECT TABLE
The table has a line a defect: its name, "apart" when a check may end its process, a colon, a regular
expression of whole names of checks.
"""

import json
import re
import subprocess
import sys


def main(validator, plug_in, defect, table):
    with open(table, encoding="utf-8") as rows:
        matches = [re.fullmatch(r"(\S+)( apart)?: (.*)\n", row) for row in rows]
    apart, expected = next(match.groups()[1:] for match in matches if match[1] == defect)
    # The seed makes sure that the random texts meet the defect.
    options = ["--json", "--seed", "1"] + ([] if apart else ["--in-process"])
    ended = subprocess.run([validator, *options, plug_in], capture_output=True, text=True,
                           check=False)
    checks = json.loads(ended.stdout)["plugIns"][0]["checks"]
    bad = {check["name"] for check in checks if check["result"] not in ("passed", "warning")}
    wanted = {check["name"] for check in checks if re.fullmatch(expected, check["name"])}
    for name in sorted(bad ^ wanted):
        note = next(check["note"] for check in checks if check["name"] == name)
        print("failed, but shouldn't have:" if name in bad else "didn't fail:", name, note)
    print("results:", sorted({check["result"] for check in checks if check["name"] in bad}))
    return 0 if bad == wanted and bad and ended.returncode == 1 else 1


sys.exit(main(*sys.argv[1:]))
