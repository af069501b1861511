"""Holds the map of the sources: what may include what, and that every test is compiled.

- The folders of src/ and of runner/ include each other in no circle.
- src/ includes what is in src/, the standard library and the platform's own headers.
- runner/ and validator/ reach the plug-in through its export: of src/ they include only the shared
  source, which a host compiles too.
- Every tests/**/*_test.cpp is in the compile commands of the build.
"""

import argparse
import json
import pathlib
import re
import sys

# What crosses the border, what host and plug-in both compile, and the arithmetic of statistics.
SHARED_SOURCE = {"vtlcmd/host", "vtlcmd/host/imports", "vtlcmd/logging", "vtlcmd/output/statistics"}

WRITTEN_BY_THE_BUILD = {"build_facts.h"}

PLATFORM_HEADERS = {"cpuid.h", "fcntl.h", "immintrin.h", "sys/platform/x86.h", "unistd.h", "windows.h"}


def includes(file):
    """The headers of a source, with "..." or <...> around them."""
    return re.findall(r'^\s*#\s*include\s+("[^"]+"|<[^>]+>)', file.read_text(encoding="utf-8"), re.M)


class Map:
    def __init__(self, root):
        self.root = root
        self.problems = []

    def sources(self, top):
        return sorted(file for file in (self.root / top).rglob("*") if file.suffix in (".h", ".cpp"))

    def folder_of(self, top, file):
        return (file if file.is_absolute() else self.root / top / file).parent.relative_to(
            self.root / top).as_posix()

    def arrows(self, top):
        """By pair of different folders: the includes that make the arrow."""
        found = {}
        for file in self.sources(top):
            for name in includes(file):
                header = pathlib.Path(name[1:-1])
                if name[0] != '"' or not (self.root / top / header).exists():
                    continue
                pair = (self.folder_of(top, file), self.folder_of(top, header))
                if pair[0] != pair[1]:
                    found.setdefault(pair, []).append(f"{file.relative_to(self.root)}: {header}")
        return found

    def check_circles(self, top):
        arrows = self.arrows(top)
        reached = {}
        for start in {pair[0] for pair in arrows}:
            seen, waiting = set(), [start]
            while waiting:
                folder = waiting.pop()
                new = {pair[1] for pair in arrows if pair[0] == folder} - seen
                seen |= new
                waiting += new
            reached[start] = seen
        circles = {tuple(sorted(other for other in reached[start] if start in reached.get(other, ())))
                   for start in reached if start in reached[start]}
        for circle in circles:
            lines = [f"  {line}" for (a, b), lines in sorted(arrows.items())
                     if a in circle and b in circle for line in lines]
            self.problems += [f"{top}: a circle of {', '.join(circle)}", *lines]

    def check_plug_in(self):
        for file in self.sources("src"):
            for name in includes(file):
                header = name[1:-1]
                is_library = name[0] == "<" and (re.fullmatch(r"[a-z_0-9]+", header) or
                                                 header in PLATFORM_HEADERS)
                is_own = name[0] == '"' and ((self.root / "src" / header).exists() or
                                             header in WRITTEN_BY_THE_BUILD)
                if not is_library and not is_own:
                    self.problems.append(f"{file.relative_to(self.root)}: {name} is outside src")

    def check_hosts(self):
        for top in ("runner", "validator"):
            for file in self.sources(top):
                for name in includes(file):
                    header = pathlib.Path(name[1:-1])
                    if name[0] != '"' or (self.root / top / header).exists():
                        continue
                    folder = header.parent.as_posix()
                    if (self.root / "src" / header).exists() and folder not in SHARED_SOURCE:
                        self.problems.append(
                            f"{file.relative_to(self.root)}: {header} is behind the export")

    def check_tests(self, build):
        commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
        compiled = {pathlib.Path(command["file"]).resolve() for command in commands}
        # In a unity build, files that include several sources each.
        for file in [file for file in compiled if file.name.startswith("unity_")]:
            compiled |= {pathlib.Path(line.split('"')[1]).resolve()
                         for line in file.read_text(encoding="utf-8").splitlines()
                         if line.startswith("#include")}
        for file in sorted((self.root / "tests").rglob("*_test.cpp")):
            if not file.name.endswith("_windows_test.cpp") and file.resolve() not in compiled:
                self.problems.append(f"{file.relative_to(self.root)} is in no test program")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("--folder", required=True, type=pathlib.Path, help="of the project")
    parser.add_argument("--build", required=True, type=pathlib.Path)
    arguments = parser.parse_args()
    whole = Map(arguments.folder.resolve())
    whole.check_circles("src")
    whole.check_circles("runner")
    whole.check_plug_in()
    whole.check_hosts()
    whole.check_tests(arguments.build)
    print("\n".join(whole.problems))
    return 1 if whole.problems else 0


if __name__ == "__main__":
    sys.exit(main())
