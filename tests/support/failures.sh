#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# failures.sh FOLDER [FILE]
#
# Says which tests failed in the last run of each build tree in FOLDER, with what tells why: the lines in
# which a test or a sanitizer says so, and the last ones. With FILE only of runs that ended after the file
# was written.
set -euo pipefail
newer=()
[ -z "${2:-}" ] || newer=(-newer "$2")
shopt -s nullglob

for list in "$1"/*/Testing/Temporary/LastTestsFailed.log; do
    [ -n "$(find "$list" "${newer[@]}")" ] || continue
    echo "== tests that failed in ${list%/Testing/*}"
    awk -v last=15 '
        function tell(    i) {
            print "-- " name ", " took
            for (i = 1; i <= lines; ++i)
                if (i > lines - last || line[i] ~ /^(FAIL!|XPASS|QFATAL|QSYSTEM)|^ +Loc: |ERROR: |runtime error: /)
                    print "   " line[i]
        }
        # Each line of the list is a number and a name.
        NR == FNR { sub(/^[0-9]+:/, ""); failed[$0]; next }
        /^[0-9]+\/[0-9]+ Testing: / { name = substr($0, index($0, "Testing: ") + 9); lines = 0 }
        $0 == "<end of output>" { inside = 0 }
        inside { line[++lines] = $0 }
        before == "Output:" { inside = 1 }
        { before = $0 }
        /^Test time = / { took = $0; sub(/^Test time = */, "", took); sub(/ *$/, "", took) }
        / time elapsed: / && name in failed { tell(); delete failed[name] }
        END { for (name in failed) print "-- " name ", which left no output" }
    ' "$list" "${list%/*}/LastTest.log"
done
