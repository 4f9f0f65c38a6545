#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""sbom.py FOLDER [OUTPUT]

Writes the bill of materials of what `cmake --install` left in FOLDER, in the form of SPDX 2.3 (JSON): each
file with its checksums, and each Debian package whose library one of the programs and libraries asks for.
What is asked for and comes from no package, the panel's device library, is named without a version. The
time in it is SOURCE_DATE_EPOCH's or the last commit's, so the same build has the same bill.
"""

import datetime
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LICENCE = "MIT"
COPYRIGHT = "2026 The Filarix Module developers"
MAGIC = b"\x7fELF"


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, cwd=ROOT,
                          env={**os.environ, "LC_ALL": "C"}).stdout


def version():
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"^project\(FilarixModule VERSION ([0-9.]+)", text, re.MULTILINE)[1]


def created():
    epoch = os.environ.get("SOURCE_DATE_EPOCH") or output_of("git", "log", "-1", "--format=%ct")
    return datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")


def identifier(kind, name):
    return f"SPDXRef-{kind}-" + re.sub(r"[^A-Za-z0-9.-]", "-", name)


def checksums(path):
    content = path.read_bytes()
    return [{"algorithm": name, "checksumValue": hashlib.new(name.lower(), content).hexdigest()}
            for name in ("SHA1", "SHA256")]


def is_binary(path):
    with path.open("rb") as file:
        return file.read(len(MAGIC)) == MAGIC


def needed(path):
    return re.findall(r"\(NEEDED\).*\[(.*)\]", output_of("readelf", "-d", str(path)))


def places_of(libraries):
    """Where the loader finds them first. What is merged below /usr by now is known by its older place, too."""
    found = set()
    for line in output_of("/sbin/ldconfig", "-p").splitlines():
        name, _, place = line.strip().partition(" => ")
        if place and name.split()[0] in libraries - found:
            found.add(name.split()[0])
            for path in (place, os.path.realpath(place)):
                yield path, name.split()[0]
                yield path.removeprefix("/usr") if path.startswith("/usr/") else "/usr" + path, name.split()[0]


def packages_of(libraries):
    """The Debian package that each library comes from, with its version."""
    places = dict(places_of(libraries))
    found = subprocess.run(["dpkg-query", "--search", *places], capture_output=True, text=True,
                           check=False).stdout if places else ""
    packages = {library: (library, None) for library in libraries}
    for line in found.splitlines():
        package, _, place = line.partition(": ")
        if place in places:
            packages[places[place]] = tuple(output_of(
                "dpkg-query", "--show", "-f", "${Package}\t${Version}", package.split(",")[0]).split("\t"))
    return packages


def dependency(name, number):
    entry = {"name": name, "SPDXID": identifier("Package", name), "downloadLocation": "NOASSERTION",
             "filesAnalyzed": False, "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
             "copyrightText": "NOASSERTION"}
    if number:
        entry["versionInfo"] = number
        entry["externalRefs"] = [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                                  "referenceLocator": f"pkg:deb/debian/{name}@{number}"}]
    return entry


def bill(folder):
    paths = sorted(path for path in folder.rglob("*") if path.is_file() and not path.is_symlink())
    if not paths:
        sys.exit(f"sbom: nothing lies in {folder}")
    files = [{"fileName": "./" + str(path.relative_to(folder)),
              "SPDXID": identifier("File", str(path.relative_to(folder))), "checksums": checksums(path),
              "licenseConcluded": LICENCE, "licenseInfoInFiles": [LICENCE], "copyrightText": COPYRIGHT}
             for path in paths]
    own = {path.name for path in paths}
    asked = {identifier("File", str(path.relative_to(folder))): set(needed(path)) - own
             for path in paths if is_binary(path)}
    known = packages_of(set().union(*asked.values()))
    packages = {name: dependency(name, number) for name, number in known.values()}
    links = [(file, known[library][0]) for file, libraries in asked.items() for library in libraries]
    sums = sorted(file["checksums"][0]["checksumValue"] for file in files)
    code = hashlib.sha1("".join(sums).encode()).hexdigest()
    project = {"name": "filarix-module", "SPDXID": "SPDXRef-Package-filarix-module", "versionInfo": version(),
               "downloadLocation": "NOASSERTION", "filesAnalyzed": True,
               "packageVerificationCode": {"packageVerificationCodeValue": code},
               "licenseConcluded": LICENCE, "licenseDeclared": LICENCE, "licenseInfoFromFiles": [LICENCE],
               "copyrightText": COPYRIGHT}
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", project["SPDXID"])]
    relations += [(project["SPDXID"], "CONTAINS", file["SPDXID"]) for file in files]
    relations += [(file, "DYNAMIC_LINK", packages[name]["SPDXID"]) for file, name in sorted(set(links))]
    return {"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
            "name": f"filarix-module-{version()}",
            "documentNamespace": f"https://filarix.example.org/spdx/filarix-module-{version()}-{code}",
            "creationInfo": {"created": created(), "creators": ["Tool: sbom.py"]},
            "packages": [project] + [packages[name] for name in sorted(packages)], "files": files,
            "relationships": [{"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}
                              for one, kind, other in relations]}


def main():
    text = json.dumps(bill(pathlib.Path(sys.argv[1]).resolve()), indent=1)
    if len(sys.argv) > 2:
        pathlib.Path(sys.argv[2]).write_text(text + "\n", encoding="utf-8")
    else:
        print(text)


if __name__ == "__main__":
    main()
