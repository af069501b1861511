"""Packages of npm that know the form of the report: a page's script and a schema."""

import shutil
import subprocess
import sys

PAGE = "mutation-testing-elements"
SCHEMA = "mutation-testing-report-schema"
VERSIONS = {PAGE: "3.9.0", SCHEMA: "3.8.4"}


def fetch(folder):
    """Once. Whether they are there; if not, standard error says why."""
    modules = folder / "node_modules"
    if all((modules / package).is_dir() for package in VERSIONS):
        return True
    if not shutil.which("npm"):
        print("no page of the report: npm isn't here", file=sys.stderr)
        return False
    fetched = subprocess.run(
        ["npm", "install", "--silent", "--no-save", "--ignore-scripts", "--prefix", folder,
         *(f"{package}@{version}" for package, version in VERSIONS.items())],
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    if fetched.returncode != 0:
        print(f"no page of the report: npm doesn't give {PAGE} and {SCHEMA}", file=sys.stderr)
    return fetched.returncode == 0


def page_script(folder):
    return folder / "node_modules" / PAGE / "dist/mutation-test-elements.js"


def schema(folder):
    return folder / "node_modules" / SCHEMA / "dist/src/mutation-testing-report-schema.json"
