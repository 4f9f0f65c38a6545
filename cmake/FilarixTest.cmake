# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT

# What starts a test program: the sandbox, in it a display where the toolkit has none of its own, and
# the emulator where this machine's processor is not the program's.
set(FILARIX_TEST_LAUNCHER "${PROJECT_SOURCE_DIR}/tests/support/sandbox.sh")
if(FILARIX_QT_DISPLAY)
  set(FILARIX_TEST_LAUNCHER
    "${PROJECT_SOURCE_DIR}/tests/qt4/${FILARIX_QT_DISPLAY}.sh" "${QT_LIBRARY_DIR}")
endif()
if(CMAKE_CROSSCOMPILING_EMULATOR AND FILARIX_QT_DISPLAY)
  list(APPEND FILARIX_TEST_LAUNCHER ${CMAKE_CROSSCOMPILING_EMULATOR})
elseif(CMAKE_CROSSCOMPILING_EMULATOR)
  set(FILARIX_TEST_LAUNCHER ${CMAKE_CROSSCOMPILING_EMULATOR})
endif()

set(FILARIX_TEST_SCALE 1 CACHE STRING
  "How many times slower than on a PC the tests run: sizes are divided by it, time limits multiplied")

# filarix_set_timeout(NAME seconds): after so many seconds on a PC the test is taken to hang.
function(filarix_set_timeout name seconds)
  math(EXPR seconds "${seconds} * ${FILARIX_TEST_SCALE}")
  set_tests_properties(${name} PROPERTIES TIMEOUT ${seconds})
endfunction()

# filarix_label(NAME): a test says which room it is about, "host", "panel" or "editor", say.
function(filarix_label name)
  if(CMAKE_CURRENT_SOURCE_DIR MATCHES "/tests/(auto/)?([a-z]+)(/|$)")
    set_property(TEST ${name} APPEND PROPERTY LABELS ${CMAKE_MATCH_2})
  endif()
endfunction()

# filarix_add_test(NAME tst_x SOURCES tst_x.cpp [LIBRARIES ...] [TIMEOUT seconds] [NO_LIBRARY]
#                  [NO_ACCESS_CONTROL] [FAST])
#
# One QtTest program, run in a mount namespace of its own with a private home, "/mnt/Storage",
# "/tmp" and "/usr/share/qt". It links the library's object code and the recording device library;
# with NO_LIBRARY just what LIBRARIES names. With NO_ACCESS_CONTROL the program may look at what a
# class keeps to itself. FAST tests are those that ./test passes under the sanitizers, too: where
# memory is handed around most, in programs that are built and run in seconds.
add_custom_target(filarix-fast-tests)
function(filarix_add_test)
  cmake_parse_arguments(arg "NO_LIBRARY;NO_ACCESS_CONTROL;FAST" "NAME;TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  add_executable(${arg_NAME} ${arg_SOURCES})
  filarix_target_defaults(${arg_NAME})
  filarix_precompile_test(${arg_NAME})
  if(arg_NO_ACCESS_CONTROL)
    target_compile_options(${arg_NAME} PRIVATE -fno-access-control)
  endif()
  if(arg_NO_LIBRARY)
    target_link_libraries(${arg_NAME} PRIVATE filarix_test_frame ${arg_LIBRARIES})
  else()
    target_link_libraries(${arg_NAME} PRIVATE
      FilarixModuleObjects filarix_test_support filarix_test_frame ${arg_LIBRARIES})
  endif()
  add_test(NAME ${arg_NAME}
    COMMAND ${FILARIX_TEST_LAUNCHER} $<TARGET_FILE:${arg_NAME}>)
  filarix_set_timeout(${arg_NAME} ${arg_TIMEOUT})
  filarix_label(${arg_NAME})
  if(arg_FAST)
    set_property(TEST ${arg_NAME} APPEND PROPERTY LABELS fast)
    add_dependencies(filarix-fast-tests ${arg_NAME})
  endif()
endfunction()
