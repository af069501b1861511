"""Progress on a terminal is one line, renewed at most twice a second, that is gone at the end."""

import argparse
import os
import pty
import re
import subprocess
import sys
import time

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True, nargs="+", help="the words that start it")
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

failed = []


def check(name, holds):
    if not holds:
        failed.append(name)


def run(words, terminal="xterm", output_too=False):
    """What a run writes to a terminal, and the seconds that it takes at most."""
    controller, end = pty.openpty()
    start = time.monotonic()
    process = subprocess.Popen(
        [*arguments.program, "run", *words], cwd=arguments.folder, stderr=end,
        stdout=end if output_too else subprocess.DEVNULL, env={**os.environ, "TERM": terminal})
    os.close(end)
    written = b""
    try:
        while block := os.read(controller, 65536):
            written += block
    except OSError:  # how Linux tells that the other end is closed
        pass
    os.close(controller)
    check(f"{words} succeed", process.wait() == 0)
    return written.decode(), time.monotonic() - start


erase = "\r\x1b[K"
line = (r"frame \d+ \(\d+ of \d+\), \d+ %"
        r"(, \d+\.\d (frames/s|s/frame), (\d+:\d\d(:\d\d)?|over a year) left)?")
many_short = ["examples/animated.json", "-f", "1-30000"]
few_long = ["examples/scatter.json", "-s", "count=1000000", "-f", "1-3"]

for words in (many_short, few_long, [*many_short, "--workers", "2"]):
    text, seconds = run(words)
    pieces = text.split(erase)
    check(f"{words}: the line is gone at the end", pieces.pop() == "" and pieces)
    check(f"{words}: nothing else is printed: {text!r}",
          all(re.fullmatch(line, piece) for piece in pieces))
    check(f"{words}: twice a second at most", len(pieces) <= 2 * seconds + 1)
    check(f"{words}: the first frame is told", "(1 of" in pieces[0])

text, _ = run(["examples/animated.json", "-f", "1-50"], output_too=True)
pieces = text.split(erase)
check("the line is gone at the end", pieces.pop() == "")
check("the line stands below what each frame printed",
      len(pieces) > 50 and all(re.search(f"(^|\n){line}$", piece) for piece in pieces))

check("a dumb terminal has no line", run(many_short[:1], terminal="dumb")[0] == "")
check("progress on a dumb terminal is plain",
      run([many_short[0], "--progress"], terminal="dumb")[0] == "frame 1 (1 of 1), 0 %\r\n")
check("nothing unless wanted", run([many_short[0], "--no-progress"])[0] == "")

print("\n".join(failed))
sys.exit(1 if failed else 0)
