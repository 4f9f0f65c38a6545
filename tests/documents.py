#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""documents.py [--seeded]

Fails where a document leads nowhere: a link to a file or a heading that isn't there, the name of a test or of a
file of this tree that has gone, an option that neither ./run nor ./test takes. Fails too where a manual page or
the panel's own help lacks an option or a file that the other one or the program has. With --seeded such faults
are made in a copy, and have to be found.
"""

import pathlib
import posixpath
import re
import shutil
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What is built, and what a checkout keeps for itself.
LEFT_OUT = {"build", ".git", ".cache"}
LINK = re.compile(r"\]\(([^)\s]+)\)")
QUOTED = re.compile(r"`([^`\n]+)`")
TEST = re.compile(r"tst_[a-z0-9]+(?:_[a-z0-9]+)*")
OPTION = re.compile(r"--[a-z0-9][a-z0-9-]*")
MANUAL = "panel/filarix-panel.1.in"


def tree(root):
    """All files, and their folders, by their paths."""
    files = {path.relative_to(root).as_posix() for top in root.iterdir() if top.name not in LEFT_OUT
             for path in ([top] if top.is_file() else top.rglob("*")) if path.is_file()}
    folders = {parent.as_posix() for file in files for parent in pathlib.PurePosixPath(file).parents}
    return files, folders


def read(root, name):
    return (root / name).read_text(encoding="utf-8")


def anchors(text):
    """The headings of a page, as forges call them."""
    for heading in re.findall(r"^#+ (.*)$", text, re.MULTILINE):
        words = re.sub(r"\s*\{#.*?\}", "", heading).lower()
        yield re.sub(r"[^\w\- ]", "", words).replace(" ", "-")


def without_code(text):
    return re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)


def dead_links(root, page, files, folders):
    text = re.sub(r"^    .*$", "", without_code(read(root, page)), flags=re.MULTILINE)
    for link in LINK.findall(re.sub(QUOTED, "", text)):
        if re.match(r"[a-z]+:", link):
            continue
        name, _, anchor = link.partition("#")
        target = posixpath.normpath(posixpath.join(posixpath.dirname(page), name)) if name else page
        if target not in files and target not in folders:
            yield f"{page}: a link to {link}"
        elif anchor and anchor not in anchors(read(root, target)):
            yield f"{page}: a link to the heading {link}"


def gone_names(root, page, files, folders, tests):
    rooms = {folder.split("/")[0] for folder in folders if folder != "."}
    for quoted in QUOTED.findall(without_code(read(root, page))):
        for word in (word.strip(",;:()\"'") for word in quoted.split()):
            if TEST.fullmatch(word) and word not in tests:
                yield f"{page}: no test {word}"
            if re.fullmatch(r"[\w.-]+(/[\w.-]+)+/?", word) and word.split("/")[0] in rooms - LEFT_OUT:
                name = word.rstrip("/")
                if not any(known == name or known.startswith((name + ".", name + "/")) for known in files):
                    yield f"{page}: no file {word}"


def unknown_options(root, page, known):
    for command, rest in re.findall(r"(?:\./|`)(run|test)\b([^`\n#]*)", read(root, page)):
        for option in OPTION.findall(rest):
            if option not in known[command]:
                yield f"{page}: ./{command} has no {option}"


def panel_options(root):
    return set(re.findall(r'^    \{"([a-z-]+)", ', read(root, "panel/options.cpp"), re.MULTILINE))


def manual_faults(root):
    manual = read(root, MANUAL).replace("\\-", "-")
    options = panel_options(root) | {"help", "help-all", "version"}
    told = set(re.findall(r"^\.(?:BI|B|BR) .*?--([a-z-]+)", manual, re.MULTILINE))
    for option in sorted(options - told):
        yield f"{MANUAL}: lacks --{option}"
    for option in sorted(told - options):
        yield f"{MANUAL}: the program has no --{option}"
    for name in re.findall(r'ownPath\("([a-z.]+)"\)', read(root, "panel/panelprogram.cpp")):
        if f"~/hmi/{name}" not in manual:
            yield f"{MANUAL}: lacks the file ~/hmi/{name}"


def problems(root):
    files, folders = tree(root)
    sources = "\n".join(file for file in files)
    registered = "\n".join(read(root, file) for file in files if file.endswith("CMakeLists.txt"))
    tests = set(TEST.findall(sources)) | set(TEST.findall(registered))
    known = {"run": {f"--{option}" for option in panel_options(root)} | set(OPTION.findall(read(root, "run"))),
             "test": set(OPTION.findall(read(root, "test") + read(root, "tests/benchmarks/main.cpp")))}
    for page in sorted(file for file in files if file.endswith(".md")):
        yield from dead_links(root, page, files, folders)
        yield from gone_names(root, page, files, folders, tests)
        yield from unknown_options(root, page, known)
    yield from manual_faults(root)


def edit(path, old, new):
    text = path.read_text(encoding="utf-8")
    if old not in text:
        sys.exit(f"documents: nothing to break in {path}: {old}")
    path.write_text(text.replace(old, new, 1), encoding="utf-8")


SEEDED = {
    "README.md: a link to docs/gone.md": lambda root: edit(root / "README.md", "(docs/hazards.md)", "(docs/gone.md)"),
    "README.md: a link to the heading docs/abi.md#gone":
        lambda root: edit(root / "README.md", "(docs/abi.md)", "(docs/abi.md#gone)"),
    "docs/design.md: no test tst_gone": lambda root: edit(root / "docs/design.md", "`tst_look`", "`tst_gone`"),
    "docs/design.md: no file panel/look/gone.h":
        lambda root: edit(root / "docs/design.md", "`tst_look`", "`panel/look/gone.h`"),
    "panel/README.md: ./run has no --gone": lambda root: edit(root / "panel/README.md", "--look dark", "--gone dark"),
    f"{MANUAL}: lacks --look": lambda root: edit(root / MANUAL, r"\-\-look", "look"),
    f"{MANUAL}: the program has no --gone":
        lambda root: edit(root / MANUAL, r".BI \-\-look", ".BI \\-\\-gone\n.BI \\-\\-look"),
    f"{MANUAL}: lacks the file ~/hmi/history": lambda root: edit(root / MANUAL, "~/hmi/history", "~/gone"),
}


def seeded():
    for expected, fault in SEEDED.items():
        with tempfile.TemporaryDirectory() as scratch:
            copy = pathlib.Path(scratch) / "tree"
            shutil.copytree(ROOT, copy, ignore=lambda folder, names: LEFT_OUT & set(names)
                            if pathlib.Path(folder) == ROOT else [], symlinks=True)
            fault(copy)
            if expected not in list(problems(copy)):
                sys.exit(f"documents: not found: {expected}")


def main():
    if sys.argv[1:] == ["--seeded"]:
        seeded()
        return
    found = list(problems(ROOT))
    if found:
        sys.exit("\n".join(found))


if __name__ == "__main__":
    main()
