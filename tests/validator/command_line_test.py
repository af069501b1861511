"""vtlcmd-validate: options, exit codes and documents, with a good plug-in.

usage: command_line_test.py PLUG_IN MANUAL_PAGE CHECKS VALIDATOR...
CHECKS is a regular expression of the checks to make in processes of their own; all when it is empty.
VALIDATOR are the words that start the program.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PLUG_IN, MANUAL_PAGE, CHECKS, *VALIDATOR = sys.argv[1:]


def run(*arguments):
    return subprocess.run([*VALIDATOR, *arguments], capture_output=True, encoding="utf-8",
                          check=False)


class CommandLine(unittest.TestCase):
    def test_the_good_plug_in_passes_its_checks(self):
        ended = run("--json", "--only", CHECKS, PLUG_IN)
        self.assertEqual(ended.returncode, 0, ended.stdout[-3000:] + ended.stderr)
        plug_in = json.loads(ended.stdout)["plugIns"][0]
        self.assertTrue(plug_in["good"])
        self.assertEqual({check["result"] for check in plug_in["checks"]}, {"passed"})

    def test_the_list_has_unique_names_and_a_sentence_each(self):
        ended = run("--list")
        self.assertEqual(ended.returncode, 0)
        lines = ended.stdout.splitlines()
        self.assertGreaterEqual(len(lines), 150)
        for line in lines:
            self.assertRegex(line, r"^[a-z0-9]+(-[a-z0-9]+)*: [A-Z].*\.$")
        names = [line.split(":")[0] for line in lines]
        self.assertEqual(len(names), len(set(names)))

    def test_only_and_skip_pick_checks(self):
        ended = run("--list", "--only", "^entry-", "--skip", "names")
        names = [line.split(":")[0] for line in ended.stdout.splitlines()]
        self.assertIn("entry-loads", names)
        self.assertTrue(all(name.startswith("entry-") and "names" not in name for name in names))

    def test_a_run_tells_its_numbers_and_its_seed(self):
        ended = run("--only", "^entry-loads$", "--seed", "7", "--in-process", PLUG_IN)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        self.assertEqual(ended.stdout, f"{PLUG_IN}: 1 passed of 1 checks\nseed 7\n")

    def test_a_path_may_have_any_character(self):
        with tempfile.TemporaryDirectory() as folder:
            plug_in = pathlib.Path(folder, "a \u017e\u65e5", pathlib.Path(PLUG_IN).name)
            plug_in.parent.symlink_to(pathlib.Path(PLUG_IN).resolve().parent)
            ended = run("--only", "^slot-call-", "--jobs", "3", "--seed", "7", str(plug_in))
            self.assertEqual((ended.stdout, ended.stderr, ended.returncode),
                             (f"{plug_in}: 5 passed of 5 checks\nseed 7\n", "", 0))

    def test_usage_errors_are_told_apart(self):
        for arguments in ([], ["--only", "(", PLUG_IN], ["--only", "no such check", PLUG_IN],
                          ["--jobs", "0", PLUG_IN], ["--unknown", PLUG_IN], ["--seed", "x"]):
            ended = run(*arguments)
            self.assertEqual((ended.returncode, ended.stdout), (2, ""), arguments)
            self.assertNotEqual(ended.stderr, "")

    def test_help_is_no_error(self):
        self.assertEqual(run("--help").returncode, 0)
        self.assertRegex(run("--version").stdout, r"^[0-9.]+\n$")

    def test_what_cant_be_loaded_is_named(self):
        for options in ([], ["--in-process"]):
            for file in ("/nowhere/plug_in.so", __file__):
                ended = run(*options, "--json", file)
                self.assertEqual(ended.returncode, 3)
                self.assertTrue(ended.stderr.startswith(
                    f"vtlcmd-validate: {file} can't be loaded: "), ended.stderr)
                self.assertFalse(json.loads(ended.stdout)["plugIns"][0]["good"])

    def test_the_manual_page_has_every_option(self):
        options = set(re.findall(r"--[a-z-]+", run("--help").stdout))
        with open(MANUAL_PAGE, encoding="utf-8") as page:
            documented = set(re.findall(r"--[a-z-]+", page.read()))
        self.assertEqual(options, documented)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
