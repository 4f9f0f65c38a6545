# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT

# filarix_add_test(NAME tst_x SOURCES tst_x.cpp [LIBRARIES ...] [TIMEOUT seconds] [NO_LIBRARY]
#                  [NO_ACCESS_CONTROL])
#
# One QtTest program, run in a mount namespace of its own with a private home, "/mnt/Storage",
# "/tmp" and "/usr/share/qt". It links the library's object code and the recording device library;
# with NO_LIBRARY just what LIBRARIES names. With NO_ACCESS_CONTROL the program may look at what a
# class keeps to itself.
function(filarix_add_test)
  cmake_parse_arguments(arg "NO_LIBRARY;NO_ACCESS_CONTROL" "NAME;TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  add_executable(${arg_NAME} ${arg_SOURCES})
  filarix_target_defaults(${arg_NAME})
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
    COMMAND "${PROJECT_SOURCE_DIR}/tests/support/sandbox.sh" $<TARGET_FILE:${arg_NAME}>)
  set_tests_properties(${arg_NAME} PROPERTIES TIMEOUT ${arg_TIMEOUT})
endfunction()
