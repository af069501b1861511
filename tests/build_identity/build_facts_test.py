"""The build's facts: what they depend on, and how the date reads.

usage: build_facts_test.py CMAKE SOURCE_FOLDER BUILD_FOLDER
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

CMAKE, SOURCE, BUILD = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])


def written_facts(source, **environment):
    """The generated header's constants, by name."""
    with tempfile.TemporaryDirectory() as folder:
        header = pathlib.Path(folder) / "build_facts.h"
        script = SOURCE / "cmake" / "write_build_facts.cmake"
        subprocess.run([CMAKE, f"-DSOURCE_DIR={source}", f"-DHEADER={header}",
                        "-DVERSION=3.7.1.0", "-P", script],
                       env={**os.environ, **environment}, check=True)
        return dict(re.findall(r'char\* (\w+) = "([^"]*)";', header.read_text()))


class BuildFacts(unittest.TestCase):
    def test_date_of_a_reproduced_build_is_in_utc(self):
        for zone in ("Asia/Tokyo", "America/Los_Angeles", "UTC"):
            facts = written_facts(SOURCE, SOURCE_DATE_EPOCH="1770910200", TZ=zone)
            self.assertEqual(facts["buildDate"], "Thu 02/12/2026, 202602121530")

    def test_source_without_a_checkout_says_so(self):
        with tempfile.TemporaryDirectory() as folder:
            facts = written_facts(folder)
        self.assertEqual(facts["commit"], "0" * 40)
        self.assertEqual(facts["buildNumber"], "0")
        self.assertEqual(facts["branch"], "source-archive")
        self.assertEqual([facts[part + "Version"] for part in ("major", "minor", "patch", "fourth")],
                         ["3", "7", "1", "0"])

    def test_commit_and_changes_are_the_checkouts(self):
        with tempfile.TemporaryDirectory() as folder:
            def git(*arguments):
                return subprocess.run(["git", "-c", "user.name=n", "-c", "user.email=e", *arguments],
                                      cwd=folder, check=True, capture_output=True,
                                      text=True).stdout.strip()
            git("init", "--initial-branch=work")
            source = pathlib.Path(folder) / "src" / "any.h"
            source.parent.mkdir()
            source.write_text("one\n")
            git("add", ".")
            git("commit", "-m", "One")
            facts = written_facts(folder)
            self.assertEqual((facts["commit"], facts["buildNumber"], facts["branch"]),
                             (git("rev-parse", "HEAD"), "1", "work"))
            source.write_text("two\n")
            self.assertEqual(written_facts(folder)["branch"], "work-modified")

    def test_every_source_and_header_of_the_plug_in_renews_them(self):
        query = subprocess.run(["ninja", "-C", BUILD, "-t", "query", "generated/build_facts.h"],
                               check=True, capture_output=True, text=True).stdout
        inputs = {(BUILD / line.strip().lstrip("| ")).resolve() for line in query.splitlines()}
        files = [file for file in (SOURCE / "src").rglob("*") if file.is_file()]
        self.assertGreater(len(files), 50)
        self.assertEqual([file for file in files if file.resolve() not in inputs], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
