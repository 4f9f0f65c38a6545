#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# make.sh DOXYGEN QHELPGENERATOR FOLDER QCH
#
# Makes the documentation of the Doxyfile in FOLDER: FOLDER/html and the help file FOLDER/QCH. A
# warning of any tool is a failure. For the build's target `doc`.
set -euo pipefail

here=$(dirname "$(readlink -f "$0")")
cd "$3"
rm -rf html "$4" runtime
mkdir -m 0700 runtime
export XDG_RUNTIME_DIR=$PWD/runtime
# Where qhelpgenerator is the chooser between toolkits.
export QT_SELECT=5

"$1" Doxyfile
# A member of the companion whose name says all needs no comment; its class does.
if grep -vE '/host/[^:]*:[0-9]+: warning: Member .* is not documented\.$' doxygen.log >&2; then
    exit 1
fi

# A page whose nested classes are all private has a link to a list of them, and no list.
grep -l 'href="#nested-classes"' html/*.html | xargs grep -L 'name="nested-classes"' \
    | xargs -r sed -i 's@<a href="#nested-classes">[^<]*</a> *&#124; *@@'

# The diagrams are listed by their full path, where the help file would not find them.
sed -i "s#<file>.*/html/#<file>#" html/index.qhp
"$2" html/index.qhp -o "$4" 2>&1 | tee qhelpgenerator.log
if grep -qi warning qhelpgenerator.log; then
    exit 1
fi
rm -rf runtime
"$here/check-html.sh" html "$4"
exec "$here/check-questions.py" --seeded html
