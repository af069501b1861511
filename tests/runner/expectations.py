"""What tests of the program expect, and what they found instead."""

import signal
import sys

problems = []


def fail(problem):
    problems.append(problem)


def expect(what, found, wanted=True):
    if found != wanted:
        fail(f"{what}: {found!r:.1000}, not {wanted!r:.1000}")


def finish():
    """Ends the test with what went wrong, or says that nothing did."""
    print("\n".join(problems) or "all as expected")
    sys.exit(1 if problems else 0)


def default_signals():
    """For a process to start: whoever runs the tests may have them ignored, as nohup does."""
    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, signal.SIG_DFL)
