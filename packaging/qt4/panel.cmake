# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Toolchain file for a panel: its own compiler and sysroot. build.sh beside it sets both.

set(CMAKE_SYSTEM_NAME Linux)
set(PANEL_COMPILER "" CACHE STRING "What the names of the compiler's tools begin with, up to the last \"-\"")
set(PANEL_SYSROOT "" CACHE PATH "The panel's files; empty where the compiler knows them")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PANEL_COMPILER PANEL_SYSROOT)

set(CMAKE_CXX_COMPILER "${PANEL_COMPILER}g++")
set(CMAKE_SYSROOT "${PANEL_SYSROOT}")
# The toolkit may lie in the sysroot or beside it; its tools run on this machine.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
