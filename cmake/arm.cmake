# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# Toolchain file for a panel's processor, 32-bit ARM with a floating-point unit (Debian's armhf), with
# the sysroot that tests/arm/sysroot.sh makes, or, for a toolkit that lies elsewhere, with the C library
# that comes with the compiler. Its programs are run by qemu-user.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)

set(FILARIX_ARM_SYSROOT "" CACHE PATH "The folder that tests/arm/sysroot.sh has made")
set(FILARIX_ARM_ROOT /usr/arm-linux-gnueabihf CACHE PATH
  "Without such a sysroot, the folder whose lib the emulator takes for the C library's")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES FILARIX_ARM_SYSROOT)
set(CMAKE_SYSROOT "${FILARIX_ARM_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tests/arm/emulate.sh")
if(FILARIX_ARM_SYSROOT)
  list(APPEND CMAKE_CROSSCOMPILING_EMULATOR "${FILARIX_ARM_SYSROOT}")
else()
  list(APPEND CMAKE_CROSSCOMPILING_EMULATOR "${FILARIX_ARM_ROOT}")
endif()
