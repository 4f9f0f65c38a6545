#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Asks for the package with and without components, where the companion is installed and where the
# library stands alone. The environment is set by CMakeLists.txt.
set -euo pipefail

cd "$WORK"
rm -rf components
mkdir components

# has PREFIX TARGET REQUEST...: whether the request is met and gives the target.
has() {
    printf '%s\n' 'cmake_minimum_required(VERSION 3.16)' 'project(Asks LANGUAGES CXX)' \
        "find_package(FilarixModule 1.0 ${*:3})" \
        'if(NOT FilarixModule_FOUND)' '  message(FATAL_ERROR "not found")' 'endif()' \
        "if(NOT TARGET $2)" '  message(FATAL_ERROR "without the target")' 'endif()' \
        >components/CMakeLists.txt
    rm -rf components/build
    "$CMAKE" -S components -B components/build -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_PREFIX_PATH="$WORK/$1" >components/log 2>&1
}
expect() {
    has "$@" || { cat components/log >&2; echo "components: no $*" >&2; exit 1; }
}
refuse() {
    ! has "$@" || { echo "components: $*" >&2; exit 1; }
    grep -q "$reason" components/log || { cat components/log >&2; exit 1; }
}

expect moved Filarix::Module
expect moved Filarix::Module OPTIONAL_COMPONENTS Host
expect companion Filarix::Module
expect companion Filarix::Host COMPONENTS Host
expect companion Filarix::Host OPTIONAL_COMPONENTS Host Nonsense
reason='Host is not installed here'
refuse moved Filarix::Module REQUIRED COMPONENTS Host
reason='Nonsense is not installed here'
refuse companion Filarix::Module REQUIRED COMPONENTS Host Nonsense
reason='not found'
refuse companion Filarix::Module QUIET COMPONENTS Nonsense
reason='without the target'
refuse companion Filarix::Host
