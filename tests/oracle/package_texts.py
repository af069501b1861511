"""Prints the texts in number conversion tests of the distribution's packages, one a line.

The packages are downloaded into FOLDER unless they are there; nothing is installed. Only what the
tests read is taken, in whatever language they are written: words of tables, and literals. What a
text is worth is not."""

import argparse
import ast
import io
import pathlib
import re
import subprocess
import sys
import tarfile
import tempfile

LITERAL = r'"(?:[^"\\\n]|\\.)*"'
# Neighbours are one text.
LITERALS = re.compile(rf"{LITERAL}(?:\s+{LITERAL})*")
QUOTED_BY_ONE = re.compile(r"'(?:[^'\\\n]|\\.)*'")
NAME_OF_A_CASE = re.compile(r"[a-z]+\d+")


def words(text):
    for line in text.splitlines():
        for word in line.partition("--")[0].split():
            if not NAME_OF_A_CASE.fullmatch(word):
                yield word.strip("'\"")


def literals(text):
    for found in [*LITERALS.findall(text), *QUOTED_BY_ONE.findall(text)]:
        try:
            yield ast.literal_eval(f"({found})")
        except (SyntaxError, ValueError):
            pass  # an escape of another language, or no literal at all


# Package, then the files in it: (the name, what finds texts there). A name with "!" is that of a
# file in an archive in the package.
PACKAGES = {
    "libpython3.11-testsuite": [
        (r"/test/(floating_points|ieee754|(formatfloat|math|cmath)_testcases)\.txt$", words),
        (r"/test/decimaltestdata/[^/]*\.decTest$", words),
        (r"/test/test_(strtod|float)\.py$", literals)],
    "glibc-source": [
        (r"\.tar\.xz!.*/stdlib/tst-strtod-round-data$", words),
        (r"\.tar\.xz!.*/stdlib/tst-(strto|atof)[^/]*\.[ch]$", literals)],
    "golang-1.19-src": [
        (r"/src/strconv/testdata/testfp\.txt$", words),
        (r"/src/strconv/ato[fi]_test\.go$", literals)],
}

# Root would be told that a user of less rights can't write into the folder.
DOWNLOAD = ["apt-get", "download", "-qq", "-o", "APT::Sandbox::User=root"]


def package_file(package, folder):
    """Where the package is; downloads it."""
    there = sorted(folder.glob(f"{package}_*.deb"))
    if there:
        return there[-1]
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(dir=folder) as unfinished:
        try:
            subprocess.run([*DOWNLOAD, package], cwd=unfinished, check=True)
        except (OSError, subprocess.CalledProcessError) as error:
            sys.exit(f"package_texts.py: {package} can't be downloaded: {error}")
        [downloaded] = pathlib.Path(unfinished).glob("*.deb")
        return downloaded.rename(folder / downloaded.name)


def files_of(archive, prefix=""):
    for member in archive:
        if not member.isfile():
            continue
        name = prefix + member.name
        if member.name.endswith(".tar.xz"):
            with tarfile.open(fileobj=archive.extractfile(member), mode="r|xz") as inner:
                yield from files_of(inner, name + "!")
        else:
            yield name, lambda member=member: archive.extractfile(member).read()


def texts_of(package, folder):
    unpacked = subprocess.run(["dpkg-deb", "--fsys-tarfile", package_file(package, folder)],
                              stdout=subprocess.PIPE, check=True).stdout
    missing = dict(PACKAGES[package])
    texts = set()
    with tarfile.open(fileobj=io.BytesIO(unpacked)) as archive:
        for name, read in files_of(archive):
            for pattern, form in PACKAGES[package]:
                if re.search(pattern, name):
                    missing.pop(pattern, None)
                    texts.update(form(read().decode("utf-8", "replace")))
    if missing:
        sys.exit(f"package_texts.py: {package} has no {', '.join(missing)}")
    return texts


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path)
    folder = parser.parse_args().folder
    texts = set().union(*(texts_of(package, folder) for package in PACKAGES))
    for text in sorted(text for text in texts if isinstance(text, str) and "\n" not in text):
        sys.stdout.buffer.write(text.encode("utf-8", "surrogatepass") + b"\n")


main()
