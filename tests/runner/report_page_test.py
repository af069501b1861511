"""Opens report pages in a browser and looks at what it makes of them."""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import urllib.request

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
const texts = selector => [...document.querySelectorAll(selector)].map(e => e.textContent);
const colors = selector => [...new Set(
    [...document.querySelectorAll(selector)].map(e => getComputedStyle(e).color))];
return {
  title: document.title, state: texts('.state'), headings: texts('h3'), counts: texts('.state ~ *'),
  foreign: document.querySelectorAll('script, img, link, iframe').length,
  captions: texts('figcaption'),
  lines: [...document.querySelectorAll('svg')].map(svg => [...svg.querySelectorAll('path[class^=s]')]
      .filter(path => path.getTotalLength() > 100 && inside(box(path), box(svg)) &&
          getComputedStyle(path).stroke !== 'none').length),
  lineColors: new Set([...document.querySelectorAll('svg path')].map(p => getComputedStyle(p).stroke)).size,
  frames: document.querySelectorAll('details').length,
  openFrames: texts('details[open] > summary'),
  visibleTexts: [...document.querySelectorAll('pre')].filter(e => e.checkVisibility()).map(e => e.textContent),
  errors: texts('li.error'), errorColor: colors('li.error'), warningColor: colors('li.warning'),
  plainColor: colors('body'), width: document.documentElement.scrollWidth,
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

    def click(self, selector):
        self.call("/execute/sync", {
            "script": "document.querySelector(arguments[0]).click()", "args": [selector]})
        return self.facts()

    def complaints(self):
        return self.call("/se/log", {"type": "browser"})


problems = []


def expect(what, found, wanted):
    if found != wanted:
        problems.append(f"{what}: {found!r:.500}, not {wanted!r}")


def run(page, *words):
    subprocess.run([arguments.program, "run", *words, "-q", "--report", page],
                   cwd=arguments.folder, capture_output=True, check=False)


with tempfile.TemporaryDirectory() as folder, Browser() as browser:
    page = pathlib.Path(folder) / "run.html"

    run(page, "examples/animated.json", "-f", "1-48")
    facts = browser.open(page)
    expect("the title", facts["title"], "animated - vtlcmd")
    expect("the state", facts["state"], ["succeeded"])
    expect("the plotted outputs", facts["headings"], ["position"])
    expect("visible lines by plot", facts["lines"], [3])
    expect("colours of lines and axes", facts["lineColors"], 4)
    expect("frames", facts["frames"], 48)
    expect("open frames", facts["openFrames"], [])
    expect("texts at first", facts["visibleTexts"], [])
    facts = browser.click("summary")
    expect("texts of an opened frame", facts["visibleTexts"],
           ['"ball at frame 1"', "{1.99572, 0.0104167, 0.130806}"])

    run(page, "examples/scatter.json", "-f", "1-20", "-s", "count=50")
    facts = browser.open(page)
    expect("captions", [" ".join(text.split()) for text in facts["captions"]],
           ["min max avg", "x min max avg", "y min max avg", "z min max avg"])
    expect("visible lines of statistics", facts["lines"], [3, 3, 3, 3])
    expect("the given texts", facts["visibleTexts"], ["50"])
    expect("the page's width", facts["width"] <= 1200, True)

    run(page, "examples/division.json", "-f", "1-5", "-s", "divisor=0")
    facts = browser.open(page)
    expect("the state of a failed run", facts["state"], ["failed"])
    expect("the counts", facts["counts"], ["5 errors"])
    expect("the first failed frame", [text.split() for text in facts["openFrames"]],
           [["Frame", "1", "failed"]])
    expect("an error's text", facts["errors"][0],
           "error[graph] Node 'quotient' (divide): an integer can't be divided by zero.")
    expect("errors are coloured", facts["errorColor"] != facts["plainColor"], True)

    run(page, "examples/division.json", "-s", "dividend=100000000000")
    warned = browser.open(page)
    expect("warnings have a colour of their own",
           len({*warned["warningColor"], *facts["errorColor"], *facts["plainColor"]}), 3)

    attack = "<script>document.title = 1</script><img src=x onerror=document.title=2>"
    run(page, "examples/animated.json", "-s", f"name={attack}")
    facts = browser.open(page)
    expect("a text stays a text", facts["visibleTexts"][:2], [attack, f'"{attack} at frame 1"'])
    expect("the title beside it", facts["title"], "animated - vtlcmd")
    expect("elements that load or run something", facts["foreign"], 0)

    run(page, "tests/runner/data/bad_graphs/circle.json")
    expect("the state of what never began", browser.open(page)["state"], ["not loaded"])
    expect("complaints of the browser", browser.complaints(), [])

print("\n".join(problems))
sys.exit(1 if problems else 0)
