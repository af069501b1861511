"""Runs tests with a mutant in them."""

import math
import os
import re
import resource
import signal
import subprocess
from dataclasses import dataclass

import executable

MOST_MEMORY = 4 << 30
MOST_OUTPUT = 64 << 20
# Processor time goes by what the tests take without a mutant, so that a busy machine kills none.
SLOWNESS = 10
MOST_SECONDS = 60
OPTIONS = ["--gtest_break_on_failure", "--gtest_catch_exceptions=0", "--gtest_color=no"]


class FailsWithoutMutant(Exception):
    pass


@dataclass(frozen=True)
class Result:
    status: str  # of the report: "Killed", "Timeout" or "Survived"
    reason: str = ""


def limit_processes():
    """For this process and those that it starts."""
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (MOST_OUTPUT, MOST_OUTPUT))


def run(program, path, processor_seconds):
    log = path.with_suffix(".log")
    with open(log, "wb") as out:
        process = subprocess.Popen([path, *OPTIONS], cwd=program.working_folder,
                                   env=program.environment, stdin=subprocess.DEVNULL, stdout=out,
                                   stderr=subprocess.DEVNULL, start_new_session=True)
        resource.prlimit(process.pid, resource.RLIMIT_CPU, (processor_seconds, processor_seconds))
        try:
            code = process.wait(MOST_SECONDS)
            status = "Timeout" if code in (-signal.SIGXCPU, -signal.SIGKILL) else "Killed"
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            code, status = process.wait(), "Timeout"
    if code == 0:
        return Result("Survived")
    begun = re.findall(r"^\[ RUN +\] (\S+)", log.read_text(errors="replace"), re.MULTILINE)
    return Result(status, f"{program.folder}: {begun[-1] if begun else 'before the first test'}")


def time_limit(program):
    """Seconds of the processor that a mutant gets. Without one the tests have to pass."""
    def used():
        return resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime

    before = used()
    result = run(program, program.path, MOST_SECONDS)
    if result.status != "Survived":
        raise FailsWithoutMutant(f"a test fails without a mutant: {result.reason}")
    return 1 + math.ceil(SLOWNESS * (used() - before))


def try_mutant(mutant, programs, limits, folder):
    """The result of the first program that kills it, else of the last one."""
    path = folder / f"trial-{os.getpid()}"
    result = Result("Survived")
    for program in programs:
        offset = program.offsets.get(mutant.label)
        if offset is None:
            continue
        path.write_bytes(executable.patched(program.path.read_bytes(), offset, mutant.outcome))
        path.chmod(0o755)
        result = run(program, path, limits[program.folder])
        if result.status != "Survived":
            break
    return result
