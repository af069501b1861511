"""Every header of the plug-in compiles alone: with what it includes itself, and twice.

What a host includes does so with both compilers, as C++20 and as C++23; the others as C++20.
"""

import argparse
import concurrent.futures
import os
import pathlib
import subprocess
import sys

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--folder", default=".", help="of the project")
arguments = parser.parse_args()

OPTIONS = ["-fsyntax-only", "-x", "c++", "-Isrc", "-Iclosed", "-Werror", "-Wall", "-Wextra", "-Wpedantic",
           "-Wconversion", "-Wshadow", "-"]
COMPILERS = ("g++", "clang++")
STANDARDS = ("c++20", "c++2b")
# What is installed, and the export.
FOR_HOSTS = ("src/vtlcmd/host/", "src/vtlcmd/logging/", "src/vtlcmd/translation/entry.h")


def compiles(job):
    compiler, standard, header = job
    include = f'#include "{header.split("/", 1)[1]}"\n'
    run = subprocess.run([compiler, f"-std={standard}", *OPTIONS], cwd=arguments.folder, text=True,
                         input=include * 2, capture_output=True)
    return "" if run.returncode == 0 else f"{header} with {compiler} as {standard}:\n{run.stderr}"


def jobs():
    folder = pathlib.Path(arguments.folder)
    headers = [path.relative_to(folder).as_posix() for top in ("src", "closed")
               for path in (folder / top).rglob("*.h")]
    for header in sorted(headers):
        combinations = [(compiler, standard) for compiler in COMPILERS for standard in STANDARDS]
        for compiler, standard in combinations if header.startswith(FOR_HOSTS) else combinations[:1]:
            yield compiler, standard, header


all_jobs = list(jobs())
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    problems = [problem for problem in pool.map(compiles, all_jobs) if problem]
print("\n".join(problems) or f"{len(all_jobs)} compilations of {len({job[2] for job in all_jobs})} headers")
sys.exit(1 if problems else 0)
