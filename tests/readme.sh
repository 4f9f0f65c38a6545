#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# readme.sh
#
# What a host's developer does in the first hour, word for word: takes the commands out of README.md, runs
# them in a new clone of the last commit with an empty prefix, builds the documentation, and the host of the
# README by each row of its table, with warnings that are errors, with g++ and clang++, at C++11 and C++20.
# Each host then runs.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
"$root/cmake/ensure-packages.sh" g++ clang doxygen cmake ninja-build ccache make pkg-config git bubblewrap \
    qtbase5-dev qttools5-dev qttools5-dev-tools

work=$root/build/readme
rm -rf "$work"
mkdir -p "$work"
git clone --quiet "$root" "$work/filarix"
readme=$work/filarix/README.md
# The one place that the commands name, and where it is here.
place=/opt/filarix
prefix=$work/prefix
export CCACHE_BASEDIR=$work

fail() {
    echo "readme: $*" >&2
    exit 1
}

# section TITLE: its text.
section() {
    awk -v title="## $1" '$0 == title { on = 1; next } /^## / { on = 0 } on' "$readme"
}
# block LANGUAGE: the first block of code of that language from the input.
block() {
    awk -v start="\`\`\`$1" '$0 == start { on = 1; next } /^```/ { on = 0 } on'
}
# shellcheck disable=SC2016 # the backquotes of the table
# row NAME COLUMN: what stands between backquotes in a row of the table, one a line, at its place here.
row() {
    section "Into a host's build" | awk -F ' *[|] *' -v name="$1" -v column="$2" \
        '$2 == name { print $(column + 1) }' | grep -o '`[^`]*`' | tr -d '`' | sed "s,$place,$prefix,g"
}

echo "-- the commands"
commands=$(section "Into a host's build" | block sh)
[ "$(wc -l <<<"$commands")" -ge 3 ] || fail "no commands in README.md"
while read -r command; do
    echo "$command"
    (cd "$work/filarix" && bash -euc "${command//$place/$prefix}") </dev/null >>"$work/log" 2>&1 || {
        tail -n 40 "$work/log" >&2
        fail "fails: $command"
    }
done <<<"$commands"

echo "-- the documentation"
# shellcheck disable=SC2016 # the backquotes of the table
{
    documentation=$(grep -o '`cmake --build [^`]*--target doc`' "$readme" | tr -d '`') || true
    first_page=$(grep -o '`build/[^`]*/index.html`' "$readme" | tr -d '`') || true
}
[ -n "$documentation" ] || fail "README.md does not tell how the documentation is built"
[ -n "$first_page" ] || fail "README.md does not tell where the documentation is"
(cd "$work/filarix" && bash -euc "$documentation") </dev/null >>"$work/log" 2>&1 || {
    tail -n 40 "$work/log" >&2
    fail "fails: $documentation"
}
[ -s "$work/filarix/$first_page" ] || fail "there is no $first_page"

# The host of the README; its downloader ends it at once.
host=$work/host
mkdir "$host"
section 'A host in ten lines' | block cpp | sed '1i #include "downloader.h"' >"$host/main.cpp"
grep -q 'WMMainWindow window' "$host/main.cpp" || fail "no host in README.md"
cat >"$host/downloader.h" <<'EOF2'
#ifndef DOWNLOADER_H
#define DOWNLOADER_H

#include <QApplication>
#include <QTimer>

class Downloader : public QObject
{
    Q_OBJECT

public:
    explicit Downloader(QObject *window) : QObject(window), m_sent(0)
    {
        QTimer::singleShot(0, qApp, SLOT(quit()));
    }

public Q_SLOTS:
    void send(const QString &) { ++m_sent; }

private:
    int m_sent;
};

#endif // DOWNLOADER_H
EOF2

strict='-Werror -Wall -Wextra -Wshadow -Wpedantic'
run_host() { LD_LIBRARY_PATH=${2:-} "$root/tests/support/sandbox.sh" "$1" >>"$work/log" 2>&1; }

# cmake_host ROW COMPILER STANDARD OPTION...: by that row's lines for CMake, in a project of its own.
cmake_host() {
    local project="$work/$1 $2 $3"
    mkdir "$project"
    cp "$host"/* "$project"
    # The row links the host when there is one.
    {
        printf '%s\n' 'cmake_minimum_required(VERSION 3.22)' 'project(host LANGUAGES CXX)' \
            'set(CMAKE_AUTOMOC ON)'
        row "$1" 2 | grep -v '^target_link_libraries'
        echo 'add_executable(host main.cpp downloader.h)'
        row "$1" 2 | grep '^target_link_libraries'
        [ "$3" = 11 ] || echo "target_compile_features(host PRIVATE cxx_std_$3)"
    } >"$project/CMakeLists.txt"
    [ "$1" != 'the sources' ] || ln -s "$work/filarix" "$project/filarix"
    cmake -S "$project" -B "$project/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_COMPILER="$2" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_FLAGS="$strict" \
        "${@:4}" && cmake --build "$project/build" && run_host "$project/build/host"
}

by_cmake() { cmake_host CMake "$1" "$2" "-D$(row CMake 3)"; }
by_sources() { cmake_host 'the sources' "$1" "$2"; }

by_pkgconfig() {
    local project="$work/pkg-config $1 $2" flags
    mkdir "$project"
    # shellcheck disable=SC2046 # it is words
    export $(row pkg-config 3)
    flags=$(row pkg-config 2)
    (
        cd "$project"
        "$(pkg-config --variable=host_bins Qt5Core)/moc" "$host/downloader.h" -o moc.cpp
        eval "$1 -std=c++$2 $strict -I\"$host\" \"$host/main.cpp\" moc.cpp -o host $flags"
    ) && run_host "$project/host" "$prefix/lib"
}

by_qmake() {
    local project="$work/qmake $1 $2"
    mkdir "$project"
    # Of a standard that it does not know, qmake makes its own without a word.
    printf '%s\n' 'TARGET = host' "$(row qmake 2)" "SOURCES = $host/main.cpp" \
        "HEADERS = $host/downloader.h" 'CONFIG -= c++11' "QMAKE_CXXFLAGS += $strict -std=c++$2" \
        >"$project/host.pro"
    (
        cd "$project"
        env "$(row qmake 3)" qmake -qt=qt5 QMAKE_CXX="$1" QMAKE_LINK="$1"
        make
    ) && run_host "$project/host" "$prefix/lib"
}

for way in CMake pkg-config qmake 'the sources'; do
    [ -n "$(row "$way" 2)" ] || fail "no row \"$way\" in README.md"
    for compiler in g++ clang++; do
        for standard in 11 20; do
            echo "-- $way, $compiler, C++$standard"
            case $way in
                CMake) build=by_cmake ;;
                pkg-config) build=by_pkgconfig ;;
                qmake) build=by_qmake ;;
                *) build=by_sources ;;
            esac
            "$build" "$compiler" "$standard" >>"$work/log" 2>&1 || {
                tail -n 40 "$work/log" >&2
                fail "the host is not built by the row \"$way\" with $compiler at C++$standard"
            }
        done
    done
done
words=$(wc -w <"$readme")
[ "$words" -le 700 ] || fail "README.md has $words words"
echo "-- all of it works"
