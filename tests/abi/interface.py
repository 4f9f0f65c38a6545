#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""interface.py TYPES NAMES HEADERS

Prints the interface of a library, as abidiff reads it: of what abidw wrote about all of its headers, TYPES,
and about the library, NAMES. Of a type that no header in the file HEADERS (a list of file names) declares,
the toolkit's and the compiler's among them, the size stays and nothing else: its content may change. So
may private functions that are not virtual, and what a compiler makes of others' templates. The result of
a function that is not virtual is in none of these: only a reviewer sees it change.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

TYPES_WITH_CONTENT = ("class-decl", "union-decl", "enum-decl")
SHELLS = ("abi-instr", "namespace-decl")
PLACES = ("filepath", "line", "column", "naming-typedef-id")
# The standard library's and the toolkit's templates.
FOREIGN_SYMBOL = re.compile(r"_Z(T[ISV])?(N[rVK]*)?(S[tabsiod]|\d+(Q[A-Z]|__gnu))")


def references(element):
    """The types that an element names, itself and in what it holds."""
    for part in element.iter():
        for attribute in ("type-id", "method-class-id"):
            if attribute in part.attrib:
                yield part.attrib[attribute]


class Interface:
    """The part of a dump that hosts are compiled with."""

    def __init__(self, corpus, headers):
        self.corpus = corpus
        self.headers = headers
        self.kept = set()
        self.types = {}
        for element in corpus.iter():
            if "id" in element.attrib:
                self.types.setdefault(element.attrib["id"], []).append(element)
        self.public = [element for element in corpus.iter()
                       if element.tag in TYPES_WITH_CONTENT and self.declares(element)]
        self.scopes = {part: element for element in corpus.iter() for part in element}

    def declares(self, element):
        return element.get("filepath") in self.headers

    def is_foreign(self, element):
        return element.tag in TYPES_WITH_CONTENT and not self.declares(element)

    def drop_plain_functions(self):
        """Those that are not virtual, which the library's names tell of. Returns the names of the private
        ones, with each variant that a compiler makes of a constructor."""
        names = set()
        for owner in list(self.corpus.iter("class-decl")):
            for function in owner.findall("member-function"):
                if "vtable-offset" in function.attrib:
                    continue
                owner.remove(function)
                if function.get("access") != "private":
                    continue
                name = function.find("function-decl").get("mangled-name", "")
                names |= {name} | {re.sub("[CD]4E", variant, name) for variant in ("C1E", "C2E")}
        return names

    def take_symbols(self, library, private):
        """The names that the library exports, in the place of the probe's own."""
        for table in [part for part in self.corpus if part.tag.endswith("-symbols")]:
            self.corpus.remove(table)
        for place, table in enumerate(part for part in library if part.tag.endswith("-symbols")):
            for symbol in list(table):
                name = symbol.get("name")
                symbol.attrib.pop("size", None)
                if name in private or FOREIGN_SYMBOL.match(name):
                    table.remove(symbol)
            self.corpus.insert(place, table)
        self.corpus.set("soname", library.get("soname"))

    def keep(self, found):
        """What these elements lead to, and what that leads to."""
        waiting = list(found)
        while waiting:
            element = waiting.pop()
            if element in self.kept:
                continue
            self.kept.add(element)
            named = references(element)
            if self.is_foreign(element):
                named = (part.get("type-id") for part in element.findall("underlying-type"))
            for name in named:
                waiting.extend(self.types.get(name, ()))

    def full_name(self, element):
        name = []
        while element is not None and element.tag != "abi-instr":
            name.insert(0, element.get("name", ""))
            element = self.scopes.get(element)
        return "::".join(filter(None, name))

    def reduced(self, element):
        """Whether something stays of an element; what does not is taken out of it."""
        if element in self.kept and not self.is_foreign(element):
            return True
        for part in list(element):
            if part.tag == "underlying-type" and element in self.kept:
                continue
            if not self.reduced(part):
                element.remove(part)
        return element in self.kept or len(element) > 0

    def merged(self):
        """The declarations of all sources once, in an order that no build changes."""
        texts = {}
        kept = [source for source in self.corpus.findall("abi-instr") if self.reduced(source)]
        for element in self.corpus.iter():
            for place in PLACES:
                element.attrib.pop(place, None)
        for source in self.corpus.findall("abi-instr"):
            self.corpus.remove(source)
        for source in kept:
            for part in source:
                key = part.get("id") or part.get("name")
                if part.tag == "namespace-decl":
                    key = "namespace " + part.get("name")
                whole = texts.setdefault((part.tag, key), part)
                if whole is not part:
                    known = {ElementTree.tostring(old) for old in whole}
                    whole.extend(new for new in part if ElementTree.tostring(new) not in known)
        return [texts[key] for key in sorted(texts)]

    def add_users(self, source):
        """A function for each type, as a host has: abidiff looks at what functions lead to."""
        nothing = next(iter(source.iterfind("type-decl[@name='void']"))).get("id")
        functions = self.corpus.find("elf-function-symbols")
        users = {}
        for element in self.public:
            if "is-declaration-only" not in element.attrib and "is-anonymous" not in element.attrib:
                users["use of " + self.full_name(element)] = element
        for name, element in sorted(users.items()):
            ElementTree.SubElement(functions, "elf-symbol", {
                "name": name, "type": "func-type", "binding": "global-binding",
                "visibility": "default-visibility", "is-defined": "yes"})
            user = ElementTree.SubElement(source, "function-decl", {
                "name": name, "mangled-name": name, "visibility": "default", "binding": "global",
                "size-in-bits": "64", "elf-symbol-id": name})
            ElementTree.SubElement(user, "parameter", {"type-id": element.get("id")})
            ElementTree.SubElement(user, "return", {"type-id": nothing})

    def reduce(self, library):
        private = self.drop_plain_functions()
        self.keep(self.public)
        source = ElementTree.Element("abi-instr", self.corpus.find("abi-instr").attrib, path="interface")
        source.extend(self.merged())
        self.corpus.append(source)
        self.take_symbols(library, private)
        self.add_users(source)


def main():
    types, names, headers = sys.argv[1:]
    with open(headers, encoding="utf-8") as file:
        interface = Interface(ElementTree.parse(types).getroot(), set(file.read().split()))
    interface.reduce(ElementTree.parse(names).getroot())
    ElementTree.indent(interface.corpus, " ")
    ElementTree.dump(interface.corpus)


if __name__ == "__main__":
    main()
