"""instructions_test.py FILE: what FILE, bench/instructions/instructions.py, says about counts."""

import contextlib
import importlib.util
import io
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
FILE = sys.argv.pop(1)
module_spec = importlib.util.spec_from_file_location("instructions", FILE)
instructions = importlib.util.module_from_spec(module_spec)
module_spec.loader.exec_module(instructions)


class Check(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.baseline = pathlib.Path(folder.name) / "baseline.txt"
        instructions.write(self.baseline, "a compiler", {"set int": 1000, "set, bool": 100})

    def check(self, counts, made_with="a compiler"):
        """Exit code, standard output and standard error."""
        with contextlib.redirect_stdout(io.StringIO()) as output, \
                contextlib.redirect_stderr(io.StringIO()) as errors:
            code = instructions.check(self.baseline, made_with, counts)
        return code, output.getvalue(), errors.getvalue()

    def test_what_is_written_is_read(self):
        self.assertEqual(instructions.read(self.baseline),
                         ("a compiler", {"set int": 1000, "set, bool": 100}))

    def test_growth_of_five_percent_passes(self):
        self.assertEqual(self.check({"set int": 1050, "set, bool": 105}),
                         (0, "2 operations counted, 0 unlike the baseline\n", ""))

    def test_more_growth_fails(self):
        self.assertEqual(self.check({"set int": 1051, "set, bool": 100}),
                         (1, "2 operations counted, 1 unlike the baseline\n",
                          "set int: 1051 instructions, 1000 in the baseline\n"))

    def test_fewer_passes_and_is_told(self):
        self.assertEqual(self.check({"set int": 500, "set, bool": 100}),
                         (0, "fewer: set int: 500 instructions, 1000 in the baseline; "
                          "./dev bench --renew keeps it so\n"
                          "2 operations counted, 0 unlike the baseline\n", ""))

    def test_other_operations_fail(self):
        self.assertEqual(self.check({"set int": 1000, "set long": 100}),
                         (1, "2 operations counted, 2 unlike the baseline\n",
                          "not in the baseline: set long\nonly in the baseline: set, bool\n"))

    def test_another_compiler_is_not_compared(self):
        self.assertEqual(self.check({"set int": 9000, "set, bool": 100}, "another compiler"),
                         (0, "skipped: 2 operations counted, not compared: with another compiler; "
                          "the baseline is of a compiler\n", ""))

    def test_another_compiler_must_have_the_same_operations(self):
        self.assertEqual(self.check({"set int": 9000}, "another compiler")[0], 1)


unittest.main()
