"""Types at the prompts of real shells, asks for completion and looks at the words that come of it."""

import argparse
import os
import pathlib
import pty
import select
import shlex
import signal
import sys
import tempfile
import time

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, type=pathlib.Path)
parser.add_argument("--folder", required=True, type=pathlib.Path)
arguments = parser.parse_args()

SHELLS = {
    "bash": (["bash", "--norc", "--noprofile", "-i"], "source runner/shells/vtlcmd.bash"),
    "zsh": (["zsh", "-f", "-i"],
            "fpath=(runner/shells $fpath); autoload -U compinit; compinit -u -D"),
    "fish": (["fish", "--no-config", "-i"], "source runner/shells/vtlcmd.fish"),
}

# What is typed before the tabulator key, and the words that are to stand on the line then.
LINES = {
    "vtlcmd po": ["vtlcmd", "ports"],
    "vtlcmd run examples/scat": ["vtlcmd", "run", "examples/scatter.json"],
    "vtlcmd run examples/scatter.json -s siz": ["vtlcmd", "run", "examples/scatter.json", "-s",
                                                "size="],
    "vtlcmd run examples/scatter.json -j s": ["vtlcmd", "run", "examples/scatter.json", "-j",
                                              "seed="],
    "vtlcmd run examples/all_inputs.json -s bool_value=f": [
        "vtlcmd", "run", "examples/all_inputs.json", "-s", "bool_value=false"],
    "vtlcmd run examples/scatter.json --set-file count=tests/runner/data/sev": [
        "vtlcmd", "run", "examples/scatter.json", "--set-file",
        "count=tests/runner/data/seven.txt"],
    "vtlcmd run examples/scatter.json --color=ne": ["vtlcmd", "run", "examples/scatter.json",
                                                    "--color=never"],
    "vtlcmd run examples/scatter.json --verbosity deb": [
        "vtlcmd", "run", "examples/scatter.json", "--verbosity", "debug"],
    "vtlcmd run examples/scatter.json --prog": ["vtlcmd", "run", "examples/scatter.json",
                                                "--progress"],
    "vtlcmd show examples/data/pyr": ["vtlcmd", "show", "examples/data/pyramid.obj"],
}


class Prompt:
    """A shell at a terminal of its own."""

    def __init__(self, command, home):
        self.shell, self.terminal = pty.fork()
        if self.shell == 0:
            os.chdir(arguments.folder)
            os.execvpe(command[0], command, {
                "PATH": f"{arguments.program.resolve().parent}:/usr/bin:/bin", "TERM": "dumb",
                "HOME": home, "LC_ALL": "C.UTF-8"})

    def type(self, keys):
        os.write(self.terminal, keys.encode())

    def run(self, line, finished, seconds=20):
        """Lets the shell run a line and then make the file `finished`. Says whether it came to that."""
        self.type(f"{line}; echo > {finished}\r")
        end = time.monotonic() + seconds
        while not finished.exists() and time.monotonic() < end:
            if select.select([self.terminal], [], [], 0.05)[0]:
                os.read(self.terminal, 65536)
        return finished.exists()

    def wait_for_rest(self):
        """Reads until the shell has been silent for a while."""
        while select.select([self.terminal], [], [], 0.3)[0]:
            os.read(self.terminal, 65536)

    def close(self):
        os.kill(self.shell, signal.SIGKILL)
        os.waitpid(self.shell, 0)
        os.close(self.terminal)


problems = []
for shell, (command, setup) in SHELLS.items():
    with tempfile.TemporaryDirectory() as folder:
        prompt = Prompt(command, folder)
        if not prompt.run(setup, pathlib.Path(folder) / "ready"):
            problems.append(f"{shell} doesn't get ready")
        for number, (typed, expected) in enumerate(LINES.items()):
            printed = pathlib.Path(folder) / str(number)
            # The line goes to the start, where it becomes the arguments of a harmless command. Its
            # file isn't read before it ended: a shell may write it word by word.
            prompt.type(f"{typed}\t")
            prompt.wait_for_rest()
            ended = prompt.run(f"\x01printf '%s\\n' \x05 > {printed}", printed.with_suffix(".end"))
            words = printed.read_text().splitlines() if ended else []
            if words != expected:
                problems.append(f"{shell}: {typed!r} became {shlex.join(words)!r}")
        prompt.close()
print("\n".join(problems) or f"{len(LINES)} lines in {len(SHELLS)} shells")
sys.exit(1 if problems else 0)
