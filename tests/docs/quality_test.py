"""quality_test.py: what quality.py makes of checks and a document, and that each check can be made."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
PROJECT = HERE.parents[1]
CHECKS = "first|one is right\nsecond|another is right\n\nlong|even this is right\n"
DOCUMENT = """# What is proved

`./dev check` prints this table at its end, and fails where a figure is another here.

| Claim | Figure | Command |
|---|---|---|
| one is right | 1 test | `./dev check first` |
| another is right | 2 tests | `./dev check second` |

`./dev check --long` besides:

| Claim | Figure | Command |
|---|---|---|
| even this is right | 3 tests | `./dev check long` |
"""


class Quality(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "build").mkdir()
        self.document = self.folder / "quality.md"
        self.document.write_text(DOCUMENT)

    def shown(self, figures, checks=CHECKS):
        made = self.folder / "build/figures.txt"
        made.write_text(figures)
        return subprocess.run([sys.executable, HERE / "quality.py", made, self.document], text=True,
                              input=checks, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def wanted(self):
        return (self.folder / "build/quality.md").read_text()

    def test_prints_what_was_made(self):
        done = self.shown("second|2 tests\nlong|3 tests\n")
        self.assertEqual((done.stdout, done.stderr, done.returncode),
                         ("another is right    2 tests  ./dev check second\n"
                          "even this is right  3 tests  ./dev check long\n", "", 0))

    def test_another_figure(self):
        done = self.shown("second|4 tests\n")
        self.assertEqual(done.returncode, 1)
        self.assertIn("isn't what the checks show", done.stderr)
        self.assertEqual(self.document.read_text(), DOCUMENT)
        self.assertEqual(self.wanted(), DOCUMENT.replace("2 tests", "4 tests"))

    def test_another_claim_or_check(self):
        for checks, document in (
                (CHECKS.replace("one is", "both are"), DOCUMENT.replace("one is", "both are")),
                (CHECKS.replace("first|one is right\n", ""),
                 DOCUMENT.replace("| one is right | 1 test | `./dev check first` |\n", ""))):
            self.assertEqual(self.shown("", checks).returncode, 1)
            self.assertEqual(self.wanted(), document)

    def test_a_check_without_a_figure_waits(self):
        self.assertEqual(self.shown("", CHECKS + "longer|all is right\n").returncode, 0)

    def test_what_was_skipped_says_nothing(self):
        self.assertEqual(self.shown("second|skipped: no such tool\n").returncode, 0)


class Checks(unittest.TestCase):
    def test_each_has_a_function(self):
        listed = subprocess.run(["bash", "dev", "check", "--list"], cwd=PROJECT, check=True, text=True,
                                stdout=subprocess.PIPE).stdout
        names = re.findall(r"^([a-z-]+)\|", listed, re.M)
        functions = re.findall(r"^check_([a-z_]+)\(\)", (PROJECT / "tests/checks.sh").read_text(), re.M)
        self.assertGreater(len(names), 30)
        self.assertEqual(sorted(names), sorted(name.replace("_", "-") for name in functions))

    def test_a_failure_in_the_middle_ends_a_check_but_not_those_behind_it(self):
        script = f"""set -euo pipefail
            . {PROJECT}/tests/checks.sh
            mkdir -p build/check
            check_first() {{ echo 1 thing; }}
            check_breaks() {{ echo before; false; echo behind; }}
            check_last() {{ echo 2 things; }}
            run_checks first breaks last"""
        with tempfile.TemporaryDirectory() as folder:
            done = subprocess.run(["bash", "-c", script], cwd=folder, text=True,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE)
            figures = {file.name: file.read_text()
                       for file in pathlib.Path(folder, "build/check").glob("*.figure")}
        self.assertEqual((done.stdout, done.stderr, done.returncode),
                         ("", "== first\n   first: 1 thing (0 s)\n== breaks\nbefore\n"
                          "== failed: breaks\n== last\n   last: 2 things (0 s)\n", 1))
        self.assertEqual(figures, {"first.figure": "1 thing\n", "last.figure": "2 things\n"})

    def test_another_is_refused(self):
        done = subprocess.run(["bash", "dev", "check", "layout"], cwd=PROJECT, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.assertEqual((done.stdout, done.stderr, done.returncode),
                         ("", "./dev check: there is no 'layout'; --list names all\n", 2))


unittest.main()
