#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""check-questions.py [--seeded] FOLDER

Fails unless the documentation in FOLDER keeps what its page of ten questions promises: each answer is two
clicks from the first page at most, a search for the word beside it finds it, and it says something. With
--seeded each of these is broken in a copy, and has to be found.
"""

import html
import pathlib
import re
import shutil
import sys
import tempfile

PAGE = "questions.html"
QUESTIONS = 10
# An answer of fewer letters is a link with a title.
SHORTEST = 200
ROW = re.compile(r'<td[^>]*>(?P<question>.*?)</td>\s*<td[^>]*><a class="el" href="(?P<place>[^"]+)".*?</td>'
                 r'\s*<td[^>]*><code>(?P<word>.*?)</code>\s*</td>', re.DOTALL)
ENTRY = re.compile(r"\['[^']*',\['(?P<title>(?:[^'\\]|\\.)*)',\['\.\./(?P<place>[^']*)'")


def content(path):
    """A page without its menus and its trees."""
    text = path.read_text(encoding="utf-8")
    return text[text.index('<div class="contents">'):] if '<div class="contents">' in text else ""


def links(path):
    return {link.split("#")[0] for link in re.findall(r'href="([^"#][^"]*)"', content(path))}


def searched(folder, word):
    """The places of all titles that begin with a word, as the search field looks for them."""
    for file in sorted((folder / "search").glob("*.js")):
        for entry in ENTRY.finditer(file.read_text(encoding="utf-8")):
            if html.unescape(entry["title"]).lower().startswith(word.lower()):
                yield entry["place"].split("#")[0]


def problems(folder):
    rows = list(ROW.finditer((folder / PAGE).read_text(encoding="utf-8")))
    if len(rows) != QUESTIONS:
        yield f"{PAGE} has {len(rows)} questions"
    first = links(folder / "index.html")
    for row in rows:
        question, place = html.unescape(row["question"]), row["place"]
        if not (folder / place).is_file():
            yield f"no page {place}: {question}"
            continue
        near = [page for page in first if (folder / page).is_file() and place in links(folder / page)]
        if place not in first and not near:
            yield f"more than two clicks to {place}: {question}"
        if place not in searched(folder, row["word"]):
            yield f'a search for "{row["word"]}" does not find {place}: {question}'
        if len(re.sub(r"<[^>]*>|\s", "", content(folder / place))) < SHORTEST:
            yield f"{place} says nothing: {question}"


def edit(path, old, new):
    text = path.read_text(encoding="utf-8")
    if old not in text:
        sys.exit(f"check-questions: nothing to break in {path}: {old}")
    path.write_text(text.replace(old, new), encoding="utf-8")


def break_search(folder):
    for file in (folder / "search").glob("*.js"):
        text = file.read_text(encoding="utf-8")
        file.write_text(text.replace("'Elapsed:", "'The line Elapsed:"), encoding="utf-8")


SEEDED = {
    "more than two clicks": lambda folder: edit(folder / "index.html", PAGE, "classes.html"),
    "no page question_cnc": lambda folder: (folder / "question_cnc.html").unlink(),
    'a search for "elapsed"': break_search,
    "question_dark.html says nothing": lambda folder: edit(
        folder / "question_dark.html", content(folder / "question_dark.html"), '<div class="contents">'),
    "has 9 questions": lambda folder: edit(folder / PAGE, "<code>binary</code>", "binary"),
}


def seeded(folder):
    for expected, fault in SEEDED.items():
        with tempfile.TemporaryDirectory() as scratch:
            copy = pathlib.Path(scratch) / "html"
            shutil.copytree(folder, copy)
            fault(copy)
            if not any(expected in problem for problem in problems(copy)):
                sys.exit(f"check-questions: not found: {expected}")


def main():
    folder = pathlib.Path(sys.argv[-1])
    found = list(problems(folder))
    if found:
        sys.exit("check-questions: " + "\n".join(found))
    if sys.argv[1] == "--seeded":
        seeded(folder)


if __name__ == "__main__":
    main()
