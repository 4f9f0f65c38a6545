#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""branches.py PAGE [--update] REPORT ...

Compares gcovr's JSON report with docs/coverage.md. A branch of the library that no test takes has to be
named there with its reason, and what is named there has to be untaken. Of a file of the companion or of
the panel program hardly more branches may be untaken than the table of figures says. Everything else is
printed, and the status is 1. With --update the table is written anew; reasons are for people to write.
"""

import collections
import json
import os
import re
import sys

ENTRY = re.compile(r"^- `(?P<file>[^`]+)`, `(?P<function>[^`]+)`: `(?P<text>[^`]+)`, "
                   r"(?P<untaken>\d+) of (?P<all>\d+):\s+(?P<reason>[^\s-])", re.MULTILINE)
BEGIN, END = "<!-- figures -->", "<!-- end of figures -->"
# What is bounded by its figures; each branch of all else has its reason. The two files of the editor
# only look whether a shorter way may be gone, and go the toolkit's own where anything is unusual.
BOUNDED = ("host/", "panel/", "editor/linegauge.cpp", "editor/pieceappender.cpp")
# What threads, clocks and signals meet is not the same in each run: so many more may be untaken, by the
# file's branches, than the table says. A file that the table doesn't have yet may leave a fifth.
SLACK, LEAST_SLACK, NEW = 0.05, 2, 0.2
FOLDER_ROW = re.compile(r"^\| \*\*(?P<folder>[^*|]+/)\*\* \|")
FILE_ROW = re.compile(r"^\| (?P<file>[^*|]+) \| (?P<all>\d+) \| (?P<taken>\d+) \|")


def short(function):
    """The name alone: "WAQP::getCncDir" for "WAQP::getCncDir()"."""
    return re.sub(r"\(.*", "", function.replace("(anonymous namespace)::", ""))


def function_at(functions, line):
    before = [f for f in functions if f["lineno"] <= line]
    return short(max(before, key=lambda f: f["lineno"])["name"]) if before else "-"


def read_report(path):
    """The figures of each file, and how often each line with untaken branches is there."""
    figures, untaken = {}, collections.Counter()
    with open(path, encoding="utf-8") as report:
        files = json.load(report)["files"]
    for file in files:
        with open(file["file"], encoding="utf-8") as source:
            text = source.read().splitlines()
        taken = total = 0
        for line in file["lines"]:
            counts = [branch["count"] for branch in line["branches"]]
            taken += sum(count > 0 for count in counts)
            total += len(counts)
            if 0 in counts:
                untaken[file["file"],
                        function_at(file["functions"], line["line_number"]),
                        text[line["line_number"] - 1].strip(),
                        counts.count(0), len(counts)] += 1
        if total:
            figures[file["file"]] = taken, total
    return figures, untaken


def read_page(page):
    named = collections.Counter(
        (entry["file"], entry["function"], entry["text"], int(entry["untaken"]), int(entry["all"]))
        for entry in ENTRY.finditer(page))
    if sum(named.values()) != len(re.findall(r"^- `", page, re.MULTILINE)):
        sys.exit("docs/coverage.md: an entry of the list is malformed or has no reason")
    return named


def read_bounds(page):
    """How many branches of a bounded file were untaken."""
    bounds, folder = {}, ""
    for line in page.split(BEGIN)[1].split(END)[0].splitlines():
        found = FOLDER_ROW.match(line)
        if found:
            folder = found["folder"]
            continue
        found = FILE_ROW.match(line)
        if found and (folder + found["file"]).startswith(BOUNDED):
            bounds[folder + found["file"]] = int(found["all"]) - int(found["taken"])
    return bounds


def over_bounds(figures, bounds):
    over = []
    for file, (taken, total) in sorted(figures.items()):
        allowed = bounds.get(file, int(NEW * total)) + max(LEAST_SLACK, int(SLACK * total))
        if file.startswith(BOUNDED) and total - taken > allowed:
            over.append(f"- `{file}`: {total - taken} untaken, {allowed} allowed")
    return over


def row(name, taken, total):
    return f"| {name} | {total} | {taken} | {100 * taken / total:.1f} % |"


def table(figures):
    rows = ["| | Branches | Taken | |", "|---|--:|--:|--:|"]
    folders = collections.defaultdict(list)
    for file in sorted(figures):
        folders[os.path.dirname(file)].append(file)
    for folder, files in folders.items():
        rows.append(row(f"**{folder}/**", *map(sum, zip(*(figures[file] for file in files)))))
        rows += [row(os.path.basename(file), *figures[file]) for file in files]
    rows.append(row("**all**", *map(sum, zip(*figures.values()))))
    return "\n".join(rows)


def show(title, entries):
    if entries:
        print(title)
    for (file, function, text, untaken, total), times in sorted(entries.items()):
        for _ in range(times):
            print(f"- `{file}`, `{function}`: `{text}`, {untaken} of {total}:")


def main():
    path, *rest = sys.argv[1:]
    update = rest[:1] == ["--update"]
    with open(path, encoding="utf-8") as file:
        page = file.read()
    figures, untaken = {}, collections.Counter()
    for report in rest[update:]:
        more, others = read_report(report)
        figures.update(more)
        untaken.update({entry: times for entry, times in others.items()
                        if not entry[0].startswith(BOUNDED)})
    named = read_page(page)
    over = [] if update else over_bounds(figures, read_bounds(page))
    if update:
        before, after = page.split(BEGIN)[0], page.split(END)[1]
        with open(path, "w", encoding="utf-8") as file:
            file.write(f"{before}{BEGIN}\n{table(figures)}\n{END}{after}")
    print(table(figures))
    show(f"Untaken, and not in {path}:", untaken - named)
    show(f"In {path}, but taken or gone:", named - untaken)
    if over:
        print("\n".join(["More is untaken than the table allows:"] + over))
    return 0 if untaken == named and not over else 1


if __name__ == "__main__":
    sys.exit(main())
