"""mutation_test.py: what the parts of ./dev mutate do with sources and lists made for it."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
import assembly
import equivalents
import executable
import report
import trials
from equivalents import Place
from mutants import Mutant
from programs import TestProgram
from trials import Result

SOURCE = """int main(int count, char**) {
  if (count == 2) __builtin_abort();
  return 0;
}
"""
ENTRY = """# What this is.

src/a.cpp: f: 2
| if (x) y();
No test sees it,
whatever it does.
"""
PLACE = Place("src/a.cpp", "f", "if (x) y();")


class Folder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def file(self, name, text):
        path = self.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text)
        return path


class Names(unittest.TestCase):
    def check(self, demangled, name):
        self.assertEqual(assembly.without_arguments(demangled), name)

    def test_arguments_go(self):
        self.check("void a::(anonymous namespace)::f<int, b<c> >(d<e> const&) [clone .cold]", "f")
        self.check("a::B::f[abi:cxx11](int) const", "f")
        self.check("main", "main")

    def test_operators_stay(self):
        self.check("a::B& a::B::operator<< <int>(int)", "operator<<")
        self.check("a::B::operator=(a::B&&)", "operator=")
        self.check("a::B::~B()", "~B")

    def test_lambdas_go_by_their_function(self):
        self.check("a::f(int)::{lambda(char)#1}::operator()(char) const", "f")
        self.check("a::f(int)::{lambda(char)#1}::_FUN(char)", "f")


class Jumps(Folder):
    def outcome(self, change):
        """Exit code of the program with its one jump changed."""
        source = self.file("main.cpp", SOURCE)
        text = self.folder / "main.s"
        subprocess.run(["g++", "-O1", "-S", "-g1", source, "-o", text], check=True)
        labelled, jumps = assembly.with_labels(text.read_text(),
                                               lambda file: file.endswith("main.cpp"), "jump.")
        text.write_text(labelled)
        program = self.folder / "program"
        subprocess.run(["g++", text, "-o", program], check=True)
        self.assertEqual([(jump.label, jump.line, jump.function) for jump in jumps],
                         [("jump.0", 2, "main")])
        offset = executable.label_offsets(program, "jump.")["jump.0"]
        program.write_bytes(executable.patched(program.read_bytes(), offset, change))
        return subprocess.run([program], check=False).returncode

    def test_one_outcome_is_what_the_program_does_and_the_other_is_not(self):
        self.assertEqual(sorted([self.outcome("always"), self.outcome("never")]), [-6, 0])

    def test_jumps_of_other_files_are_left_alone(self):
        text = '\t.file 1 "a.h"\nf:\n\t.loc 1 3 5\n\tje\t.L2\n'
        self.assertEqual(assembly.with_labels(text, lambda file: False, "jump."), (text, []))

    def test_other_jumps_are_left_alone(self):
        text = '\t.file 1 "a.h"\nf:\n\t.loc 1 3 5\n\tjmp\t.L2\n'
        self.assertEqual(assembly.with_labels(text, lambda file: True, "jump."), (text, []))


class Bytes(unittest.TestCase):
    def test_a_short_jump(self):
        self.assertEqual(executable.patched(b"\x01\x74\x05\x02", 1, "always"), b"\x01\xEB\x05\x02")
        self.assertEqual(executable.patched(b"\x01\x74\x05\x02", 1, "never"), b"\x01\x90\x90\x02")

    def test_a_long_jump_ends_where_it_ended(self):
        jump = b"\x01\x0F\x84\x05\x06\x07\x08\x02"
        self.assertEqual(executable.patched(jump, 1, "always"),
                         b"\x01\x90\xE9\x05\x06\x07\x08\x02")
        self.assertEqual(executable.patched(jump, 1, "never"), b"\x01" + b"\x90" * 6 + b"\x02")

    def test_what_is_no_jump_is_an_error(self):
        with self.assertRaisesRegex(ValueError, "no conditional jump at 0x1: 90 90"):
            executable.patched(b"\x01\x90\x90\x02", 1, "always")


class Trials(Folder):
    def run_script(self, text, seconds=10):
        script = self.file("script", "#!/bin/sh\n" + text)
        script.chmod(0o755)
        program = TestProgram("host", script, dict(os.environ), self.folder, {})
        return trials.run(program, script, seconds)

    def test_tests_that_pass_let_a_mutant_survive(self):
        self.assertEqual(self.run_script("exit 0"), Result("Survived"))

    def test_the_last_test_that_was_begun_killed_it(self):
        self.assertEqual(
            self.run_script("echo '[ RUN      ] A.a'; echo '[ RUN      ] A.b'; kill -SEGV $$"),
            Result("Killed", "host: A.b"))

    def test_a_program_that_does_not_begin_a_test(self):
        self.assertEqual(self.run_script("exit 1"), Result("Killed", "host: before the first test"))

    def test_one_that_takes_too_long(self):
        self.assertEqual(self.run_script("while :; do :; done", seconds=1).status, "Timeout")


class List(Folder):
    def read(self, text):
        return equivalents.read(self.file("list.txt", text))

    def test_an_entry(self):
        self.assertEqual(self.read(ENTRY),
                         {PLACE: (2, "No test sees it, whatever it does.")})

    def test_an_entry_without_a_reason_is_an_error(self):
        with self.assertRaisesRegex(ValueError, "not an entry: src/a.cpp: f: 2"):
            self.read("src/a.cpp: f: 2\n| if (x) y();\n")

    def test_an_entry_twice_is_an_error(self):
        with self.assertRaisesRegex(ValueError, "twice: src/a.cpp: f: 2"):
            self.read(ENTRY + "\n" + ENTRY)

    def test_a_line_that_is_gone(self):
        self.file("src/a.cpp", "  if (x) y();\n")
        self.assertEqual(list(equivalents.gone([PLACE], self.folder)), [])
        self.file("src/a.cpp", "  if (x) z();\n")
        self.assertEqual(list(equivalents.gone([PLACE], self.folder)),
                         ["listed, but not in the sources: src/a.cpp: f: if (x) y();"])

    def test_as_many_as_listed_pass(self):
        entries = self.read(ENTRY)
        self.assertEqual(list(equivalents.unlisted(entries, [PLACE] * 2)), [])
        self.assertEqual(list(equivalents.needless(entries, [PLACE] * 2, lambda file: True)), [])

    def test_one_more_is_unlisted(self):
        self.assertEqual(list(equivalents.unlisted(self.read(ENTRY), [PLACE] * 3)),
                         ["3 survive, 2 listed: src/a.cpp: f: if (x) y();"])

    def test_one_less_is_told_where_all_were_tried(self):
        entries = self.read(ENTRY)
        self.assertEqual(list(equivalents.needless(entries, [PLACE], lambda file: False)), [])
        self.assertEqual(list(equivalents.needless(entries, [PLACE], lambda file: True)),
                         ["only 1 survive, 2 listed: src/a.cpp: f: if (x) y();"])


class Report(Folder):
    def status(self, result, reasons):
        self.file("src/a.cpp", "\n  if (x) y();\n")
        mutant = Mutant("mutant.0.0", "never", "je", "host", PLACE, 2, 3)
        files = report.document(self.folder, [(mutant, result)], reasons)["files"]
        made, = files["src/a.cpp"]["mutants"]
        self.assertEqual(made["location"],
                         {"start": {"line": 2, "column": 3}, "end": {"line": 2, "column": 14}})
        return made["status"], made["statusReason"]

    def test_a_survivor_that_is_listed_is_ignored(self):
        self.assertEqual(self.status(Result("Survived"), {PLACE: "why"}), ("Ignored", "why"))

    def test_one_that_is_not_survives(self):
        self.assertEqual(self.status(Result("Survived"), {}), ("Survived", ""))

    def test_the_test_that_killed_one_is_named(self):
        self.assertEqual(self.status(Result("Killed", "host: A.b"), {PLACE: "why"}),
                         ("Killed", "host: A.b"))

    def test_a_page_holds_a_source_that_ends_scripts(self):
        path = self.folder / "report.html"
        report.write_page(path, {"source": "</script>"}, self.folder / "shown.js")
        page = path.read_text()
        self.assertEqual(page.count("</script>"), 2)
        self.assertIn('src="shown.js"', page)


if __name__ == "__main__":
    unittest.main()
