"""Opens report pages in a browser and looks at what it makes of them."""

import argparse
import json
import pathlib
import re
import shlex
import subprocess
import tempfile
import urllib.request

from expectations import expect, finish

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("--program", required=True)
parser.add_argument("--folder", required=True)
arguments = parser.parse_args()

# No look-ups and downloads of the browser's own.
BROWSER = ["--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--window-size=1200,900",
           "--disable-background-networking", "--disable-component-update", "--disable-sync"]

FACTS = """
const box = element => element.getBoundingClientRect();
const inside = (inner, outer) => inner.left >= outer.left - 3 && inner.right <= outer.right + 3 &&
    inner.top >= outer.top - 3 && inner.bottom <= outer.bottom + 3;
const texts = selector => [...document.querySelectorAll(selector)].map(e => e.textContent.trim());
const visible = selector => [...document.querySelectorAll(selector)]
    .filter(e => e.checkVisibility()).map(e => e.textContent.trim());
const colors = selector => [...new Set(
    [...document.querySelectorAll(selector)].map(e => getComputedStyle(e).color))];
const overlaps = row => {
  const labels = [...row.children].map(box);
  return labels.some((a, i) => labels.slice(i + 1).some(b => a.left < b.right &&
      b.left < a.right && a.top < b.bottom && b.top < a.bottom));
};
const paint = performance.getEntriesByType('paint')[0];
return {
  title: document.title, state: texts('.state'), counts: texts('.state ~ *'),
  headings: [...document.querySelectorAll('h3')].map(e => e.firstChild.textContent.trim()),
  foreign: document.querySelectorAll('script, img, link, iframe').length,
  captions: texts('figcaption'),
  lines: [...document.querySelectorAll('figure svg')].map(svg =>
      [...svg.querySelectorAll('path:not(.grid, .band)')]
      .filter(path => path.getTotalLength() > 100 && inside(box(path), box(svg)) &&
          getComputedStyle(path).stroke !== 'none').length),
  lineColors: new Set([...document.querySelectorAll('figure path')]
      .map(p => getComputedStyle(p).stroke)).size,
  marks: texts('figure .x'), crowded: [...document.querySelectorAll('.x, .y')].filter(overlaps).length,
  views: document.querySelectorAll('.view svg').length,
  dots: [...document.querySelectorAll('.view svg')].every(svg =>
      inside(box(svg.querySelector('path.points')), box(svg))),
  bars: document.querySelectorAll('path.bars').length, pairs: texts('.texts tr').length,
  shown: visible('pre'), commands: texts('.command'), numbers: texts('.numbers td'),
  problems: texts('.problems p, .problems .text'),
  errorColor: colors('tr.error td'), warningColor: colors('tr.warning td'),
  plainColor: colors('body'), pageColor: getComputedStyle(document.body).backgroundColor,
  width: document.documentElement.scrollWidth, room: document.documentElement.clientWidth,
  paint: paint && paint.startTime,
};"""


class Browser:
    def __enter__(self):
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, text=True)
        for line in self.driver.stdout:
            if port := re.search(r"successfully on port (\d+)", line):
                break
        self.address = f"http://127.0.0.1:{port[1]}/session"
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        options = {"args": [*BROWSER, f"--user-data-dir={self.profile.name}"]}
        capabilities = {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        session = self.call("", {"capabilities": {"alwaysMatch": capabilities}})
        self.address += "/" + session["sessionId"]
        return self

    def __exit__(self, *_):
        urllib.request.urlopen(urllib.request.Request(self.address, method="DELETE"), timeout=60)
        self.driver.terminate()
        self.driver.wait()
        self.profile.cleanup()

    def call(self, command, body):
        request = urllib.request.Request(self.address + command, json.dumps(body).encode())
        return json.load(urllib.request.urlopen(request, timeout=60))["value"]

    def open(self, page):
        self.call("/url", {"url": page.as_uri()})
        return self.facts()

    def facts(self):
        return self.call("/execute/sync", {"script": FACTS, "args": []})

    def resize(self, width, scheme):
        for command, parameters in (
                ("Emulation.setEmulatedMedia",
                 {"features": [{"name": "prefers-color-scheme", "value": scheme}]}),
                ("Emulation.setDeviceMetricsOverride",
                 {"width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False})):
            self.call("/goog/cdp/execute", {"cmd": command, "params": parameters})

    def click(self, selector):
        self.call("/execute/sync", {
            "script": "document.querySelector(arguments[0]).click()", "args": [selector]})
        return self.facts()

    def complaints(self):
        return self.call("/se/log", {"type": "browser"})


def run(page, *words):
    subprocess.run([arguments.program, "run", *words, "-q", "--report", page],
                   cwd=arguments.folder, capture_output=True, check=False)


with tempfile.TemporaryDirectory() as folder, Browser() as browser:
    page = pathlib.Path(folder) / "run.html"

    run(page, "examples/animated.json", "-f", "1-48")
    facts = browser.open(page)
    expect("the title", facts["title"], "animated - vtlcmd")
    expect("the state", facts["state"], ["succeeded"])
    expect("the outputs", facts["headings"], ["label", "position"])
    expect("visible lines by plot", facts["lines"], [3])
    expect("colours of lines and grid", facts["lineColors"], 4)
    expect("marks of the frames", facts["marks"], ["11020304048"])
    expect("the bars of durations", facts["bars"], 2)
    expect("texts at first", facts["shown"], [])
    expect("folded texts", facts["pairs"], 96)
    expect("texts of an opened output", browser.click("summary")["shown"][:2],
           ['"ball at frame 1"', '"ball at frame 2"'])

    dark = set()
    for width in (400, 1000, 1600):
        for scheme in ("light", "dark"):
            browser.resize(width, scheme)
            facts = browser.open(page)
            expect(f"room at {width}", facts["width"] <= facts["room"], True)
            expect(f"marks that run into each other at {width}", facts["crowded"], 0)
            dark.add(facts["pageColor"])
    expect("colours of the page", len(dark), 2)
    browser.resize(1200, "light")

    run(page, "examples/scatter.json", "-f", "1-20", "-s", "count=50", "-s", "offset=1,0,-5")
    facts = browser.open(page)
    expect("captions but those of pictures", [text for text in facts["captions"]
                                               if not text.startswith("Frame 20 ")], [])
    expect("exact numbers", facts["numbers"][1], "50")
    expect("the given texts", facts["shown"][:2], ["50", "1,0,-5"])
    command = facts["commands"][0]
    expect("the command's words", shlex.split(command)[:9],
           ["vtlcmd", "run", "examples/scatter.json", "-f", "1-20", "-s", "count=50", "-s",
            "offset=1,0,-5"])

    run(page, "examples/waves.json", "-f", "1-9", "--picture", "1,9")
    facts = browser.open(page)
    expect("plots and pictures", [" ".join(text.split()) for text in facts["captions"]],
           ["value", "min max avg", "Frame 1 3,000 elements", "Frame 9 3,000 elements",
            "y min max avg", "Frame 1 3,000 points", "Frame 9 3,000 points"])
    expect("views of points", facts["views"], 6)
    expect("their dots in sight", facts["dots"], True)

    run(page, "examples/division.json", "-f", "1-5", "-s", "divisor=0")
    facts = browser.open(page)
    expect("the state of a failed run", facts["state"], ["failed"])
    expect("the counts", facts["counts"], ["5 errors"])
    expect("the problems", facts["problems"],
           ["5 frames failed: 1–5",
            "Node 'quotient' (divide): an integer can't be divided by zero."])
    expect("errors are coloured", facts["errorColor"] != facts["plainColor"], True)

    run(page, "examples/division.json", "-s", "dividend=100000000000")
    warned = browser.open(page)
    expect("warnings have a colour of their own",
           len({*warned["warningColor"], *facts["errorColor"], *facts["plainColor"]}), 3)

    attack = "<script>document.title = 1</script><img src=x onerror=document.title=2>"
    run(page, "examples/animated.json", "-s", f"name={attack}")
    facts = browser.open(page)
    expect("a text stays a text", facts["shown"][:2], [attack, f'"{attack} at frame 1"'])
    expect("the command has it quoted", shlex.split(facts["commands"][0])[4], f"name={attack}")
    expect("the title beside it", facts["title"], "animated - vtlcmd")
    expect("elements that load or run something", facts["foreign"], 0)

    run(page, "examples/animated.json", "-f", "1-10000")
    expect("10,000 frames in 3 MB", page.stat().st_size < 3_000_000, True)
    paint = browser.open(page)["paint"]
    expect("their first paint within a second", paint is None or paint < 1000, True)

    run(page, "tests/runner/data/bad_graphs/cycle.json")
    expect("the state of what never began", browser.open(page)["state"], ["not loaded"])
    expect("complaints of the browser", browser.complaints(), [])

finish()
