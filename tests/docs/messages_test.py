"""Holds docs/messages.md against the sources: no message is missing there, and none is stale.

A row of its tables is a text, what it is, and the files that it is said in. Words in capitals that
stand in the list of the page are what a message fills in. A text of a source that is shown to people
must be part of a row that names the file; and what stands between the capitals of a row must be made
of the texts of the files that it names, and at its level something is said there.
"""

import argparse
import pathlib
import re
import sys

# Not messages: names of types, which are compared, and the version banner.
NO_MESSAGES = ("src/vtlcmd/host/", "src/vtlcmd/build_identity/", "src/vtlcmd/translation/entry.h")
SILENT_TEXTS = {"true", "false", "baseline", "avx2", "avx512",
                "vtlcmd TypeTranslation", "default", "none"}

# Of these files of the runner every text is a message, of the folders what such calls are given.
RUNNER_FILES = ["execution/session.cpp", "execution/executor.cpp", "execution/caught_failure.cpp",
                "execution/output_reporting.cpp", "execution/frame_printer.cpp",
                "workers/worker_death.cpp"]
RUNNER_CALLS = {"nodes": r"\b(NodeError|ReadError|warn)\(",
                "readers": r"\b(ReadError|fail|writeWarning)\(|refusal_ =",
                "saving": r"\b(invalid_argument|refuse)\("}

STRING = re.compile(r'(?<!R)"((?:[^"\\\n]|\\.)*)"')


def statements(file):
    """The statements of a source, each with its texts; texts that stand side by side are one."""
    source = re.sub(r"^\s*(#include|static_assert|.*__attribute__|extern \"C\").*$", "",
                    file.read_text(encoding="utf-8"), flags=re.M)
    texts = []

    def keep(match):
        texts.append(match[1].replace('\\"', '"'))
        return f"\x01{len(texts) - 1}\x02"

    # A comment ends the line; strings are taken out first, since they may hold slashes.
    source = re.sub(r"(?<!')//[^\n]*", "", STRING.sub(keep, re.sub(r"^\s*//.*$", "", source,
                                                                   flags=re.M)))
    while (joined := re.sub(r"\x01(\d+)\x02\s+\x01(\d+)\x02", merge_into(texts), source)) != source:
        source = joined
    return [(statement, [texts[int(number)] for number in re.findall(r"\x01(\d+)\x02", statement)])
            for statement in source.split(";")]


def merge_into(texts):
    def merge(match):
        texts.append(texts[int(match[1])] + texts[int(match[2])])
        return f"\x01{len(texts) - 1}\x02"
    return merge


def is_message(text):
    return re.search(r"[A-Za-z]{2}", text) is not None and text not in SILENT_TEXTS


def expected_texts(root):
    """Pairs of a file and a text that the page must have."""
    for file in sorted((root / "src").rglob("*")):
        name = file.relative_to(root).as_posix()
        if file.suffix in (".h", ".cpp") and not name.startswith(NO_MESSAGES):
            yield from ((name, text) for _, texts in statements(file) for text in texts)
    for name in RUNNER_FILES:
        yield from ((f"runner/{name}", text) for _, texts in statements(root / "runner" / name)
                    for text in texts)
    for folder, calls in RUNNER_CALLS.items():
        for file in sorted((root / "runner" / folder).glob("*.[hc]*")):
            for statement, texts in statements(file):
                if re.search(calls, statement):
                    yield from ((file.relative_to(root).as_posix(), text) for text in texts)


def read_rows(page):
    """The placeholders of the page, and rows of its tables: text, level, files, number of the line."""
    words, rows = [], []
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("Filled in:"):
            words = re.findall(r"`([A-Z]+)`", line)
        cells = [cell.strip() for cell in re.split(r"(?<!\\)\|", line)]
        if len(cells) == 5 and cells[1].startswith("`"):
            text = cells[1].strip("`").strip("\xa0").replace("\\|", "|")
            rows.append((text, cells[2], re.findall(r"`([^`]+)`", cells[3]), number))
    return words, rows


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("--folder", required=True, type=pathlib.Path, help="of the project")
    root = parser.parse_args().folder.resolve()
    page = root / "docs" / "messages.md"
    words, rows = read_rows(page)
    failures = []
    for name, text in expected_texts(root):
        wanted = text.strip()
        if is_message(text) and not any(name in files and wanted in row for row, _, files, _ in rows):
            failures.append(f"{page}: no row has {text!r} of {name}")
    placeholder = re.compile("|".join(rf"(?<![A-Z]){word}(?![A-Z])" for word in words))
    for row, level, files, number in rows:
        missing = [name for name in files if not (root / name).is_file()]
        texts = {text.strip() for name in files if name not in missing
                 for _, texts in statements(root / name) for text in texts if text.strip()}
        pieces = "|".join(map(re.escape, sorted(texts, key=len, reverse=True)))
        for piece in placeholder.split(row):
            if is_message(piece) and re.fullmatch(rf"(?:{pieces}|[\s',])+", piece.strip()) is None:
                failures.append(f"{page}:{number}: none of the files says {piece!r}")
        failures += [f"{page}:{number}: there is no {name}" for name in missing]
        word = re.match(r"critical|error|warning|progress|verbose", level)
        if word and files and files[0].startswith("src/") and not missing and not any(
                f"level{word[0].capitalize()}" in (root / name).read_text() for name in files):
            failures.append(f"{page}:{number}: none of the files says anything at level {word[0]}")
    print(*failures, sep="\n", end="")
    return 1 if failures or not rows else 0


if __name__ == "__main__":
    sys.exit(main())
