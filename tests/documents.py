#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""documents.py [--seeded]

Fails where a document leads nowhere: a link to a file or a heading that isn't there, the name of a test or of a
file of this tree that has gone, an option that ./run or ./test doesn't take. Fails too where the panel program's
manual page lacks an option or a file of the program, or has an option that the program lacks. With --seeded such
faults are made in what was read, and have to be found.
"""

import functools
import pathlib
import posixpath
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What is built, and what a checkout keeps for itself.
LEFT_OUT = {"build", ".git", ".cache"}
LINK = re.compile(r"\]\(([^)\s]+)\)")
QUOTED = re.compile(r"`([^`\n]+)`")
TEST = re.compile(r"tst_[a-z0-9]+(?:_[a-z0-9]+)*")
OPTION = re.compile(r"--[a-z0-9][a-z0-9-]*")
MANUAL = "panel/filarix-panel.1.in"

# What was read, by its name.
texts = {}


@functools.lru_cache(maxsize=None)
def tree():
    """All files, and their folders, by their paths."""
    files = {path.relative_to(ROOT).as_posix() for top in ROOT.iterdir() if top.name not in LEFT_OUT
             for path in ([top] if top.is_file() else top.rglob("*")) if path.is_file()}
    folders = {parent.as_posix() for file in files for parent in pathlib.PurePosixPath(file).parents}
    return files, folders


def read(name):
    if name not in texts:
        texts[name] = (ROOT / name).read_text(encoding="utf-8")
    return texts[name]


def anchors(text):
    """The headings of a page, as forges call them."""
    for heading in re.findall(r"^#+ (.*)$", text, re.MULTILINE):
        words = re.sub(r"\s*\{#.*?\}", "", heading).lower()
        yield re.sub(r"[^\w\- ]", "", words).replace(" ", "-")


def without_code(text):
    return re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)


def dead_links(page, files, folders):
    text = re.sub(r"^    .*$", "", without_code(read(page)), flags=re.MULTILINE)
    for link in LINK.findall(re.sub(QUOTED, "", text)):
        if re.match(r"[a-z]+:", link):
            continue
        name, _, anchor = link.partition("#")
        target = posixpath.normpath(posixpath.join(posixpath.dirname(page), name)) if name else page
        if target not in files and target not in folders:
            yield f"{page}: a link to {link}"
        elif anchor and anchor not in anchors(read(target)):
            yield f"{page}: a link to the heading {link}"


def gone_names(page, files, folders, tests):
    rooms = {folder.split("/")[0] for folder in folders if folder != "."}
    for quoted in QUOTED.findall(without_code(read(page))):
        for word in (word.strip(",;:()\"'") for word in quoted.split()):
            if TEST.fullmatch(word) and word not in tests:
                yield f"{page}: no test {word}"
            if re.fullmatch(r"[\w.-]+(/[\w.-]+)+/?", word) and word.split("/")[0] in rooms - LEFT_OUT:
                name = word.rstrip("/")
                if not any(known == name or known.startswith((name + ".", name + "/")) for known in files):
                    yield f"{page}: no file {word}"


def unknown_options(page, known):
    for command, rest in re.findall(r"(?:\./|`)(run|test)\b([^`\n#]*)", read(page)):
        for option in OPTION.findall(rest):
            if option not in known[command]:
                yield f"{page}: ./{command} has no {option}"


def panel_options():
    return set(re.findall(r'^    \{"([a-z-]+)", ', read("panel/options.cpp"), re.MULTILINE))


def manual_faults():
    manual = read(MANUAL).replace("\\-", "-")
    options = panel_options() | {"help", "help-all", "version"}
    told = set(re.findall(r"^\.(?:BI|B|BR) .*?--([a-z-]+)", manual, re.MULTILINE))
    for option in sorted(options - told):
        yield f"{MANUAL}: lacks --{option}"
    for option in sorted(told - options):
        yield f"{MANUAL}: the program has no --{option}"
    for name in re.findall(r'ownPath\("([a-z.]+)"\)', read("panel/panelprogram.cpp")):
        if f"~/hmi/{name}" not in manual:
            yield f"{MANUAL}: lacks the file ~/hmi/{name}"


def problems():
    files, folders = tree()
    sources = "\n".join(file for file in files)
    registered = "\n".join(read(file) for file in files if file.endswith("CMakeLists.txt"))
    tests = set(TEST.findall(sources)) | set(TEST.findall(registered))
    known = {"run": {f"--{option}" for option in panel_options()} | set(OPTION.findall(read("run"))),
             "test": set(OPTION.findall(read("test") + read("tests/benchmarks/main.cpp")))}
    for page in sorted(file for file in files if file.endswith(".md")):
        yield from dead_links(page, files, folders)
        yield from gone_names(page, files, folders, tests)
        yield from unknown_options(page, known)
    yield from manual_faults()


SEEDED = {
    "README.md: a link to docs/gone.md": ("README.md", "(docs/hazards.md)", "(docs/gone.md)"),
    "README.md: a link to the heading docs/abi.md#gone": ("README.md", "(docs/abi.md)", "(docs/abi.md#gone)"),
    "docs/design.md: no test tst_gone": ("docs/design.md", "`tst_look`", "`tst_gone`"),
    "docs/design.md: no file panel/look/gone.h": ("docs/design.md", "`tst_look`", "`panel/look/gone.h`"),
    "panel/README.md: ./run has no --gone": ("panel/README.md", "--look dark", "--gone dark"),
    f"{MANUAL}: lacks --look": (MANUAL, r"\-\-look", "look"),
    f"{MANUAL}: the program has no --gone": (MANUAL, r".BI \-\-look", ".BI \\-\\-gone\n.BI \\-\\-look"),
    f"{MANUAL}: lacks the file ~/hmi/history": (MANUAL, "~/hmi/history", "~/gone"),
}


def seeded():
    for expected, (name, old, new) in SEEDED.items():
        text = read(name)
        if old not in text:
            sys.exit(f"documents: nothing to break in {name}: {old}")
        texts[name] = text.replace(old, new, 1)
        if expected not in list(problems()):
            sys.exit(f"documents: not found: {expected}")
        texts[name] = text


def main():
    if sys.argv[1:] == ["--seeded"]:
        seeded()
        return
    found = list(problems())
    if found:
        sys.exit("\n".join(found))


if __name__ == "__main__":
    main()
