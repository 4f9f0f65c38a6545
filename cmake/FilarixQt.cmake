# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# The one place that knows which toolkit is built against: Qt 5.15 on PCs and in CI, Qt 4.8 on the
# panels. Gives the targets Filarix::QtGui (Core, Gui, Widgets) and, for tests, Filarix::QtTest; and
# the names under which the installed packages ask a host for the toolkit (FILARIX_QT_*).

set(FILARIX_QT "5" CACHE STRING "Major version of the toolkit: 5, or 4 for the panels")
set_property(CACHE FILARIX_QT PROPERTY STRINGS 5 4)

add_library(filarix_qt_gui INTERFACE)
add_library(Filarix::QtGui ALIAS filarix_qt_gui)

if(FILARIX_QT EQUAL 5)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets)
  target_link_libraries(filarix_qt_gui INTERFACE Qt5::Core Qt5::Gui Qt5::Widgets)
  set(FILARIX_QT_TARGETS Qt5::Core Qt5::Gui Qt5::Widgets)
  set(FILARIX_QT_PACKAGE "Qt5 5.15 COMPONENTS Core Gui Widgets")
  set(FILARIX_QT_PKGCONFIG "Qt5Core Qt5Gui Qt5Widgets")
  set(FILARIX_QT_QMAKE "core gui widgets")
elseif(FILARIX_QT EQUAL 4)
  find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui)
  target_link_libraries(filarix_qt_gui INTERFACE Qt4::QtCore Qt4::QtGui)
  set(FILARIX_QT_TARGETS Qt4::QtCore Qt4::QtGui)
  set(FILARIX_QT_PACKAGE "Qt4 4.8 COMPONENTS QtCore QtGui")
  set(FILARIX_QT_PKGCONFIG "QtCore QtGui")
  set(FILARIX_QT_QMAKE "core gui")
  # What it shows its windows on: an X server, or a screen that it serves itself.
  if(Q_WS_QWS)
    set(FILARIX_QT_DISPLAY qws)
  else()
    set(FILARIX_QT_DISPLAY x11)
  endif()
else()
  message(FATAL_ERROR "FILARIX_QT is ${FILARIX_QT}; it must be 5 or 4")
endif()

# Called by what builds tests only, so that a host needs no QtTest to take the library in.
function(filarix_find_qt_test)
  if(TARGET Filarix::QtTest)
    return()
  endif()
  add_library(filarix_qt_test INTERFACE)
  add_library(Filarix::QtTest ALIAS filarix_qt_test)
  if(FILARIX_QT EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
    target_link_libraries(filarix_qt_test INTERFACE Filarix::QtGui Qt5::Test)
  else()
    find_package(Qt4 4.8 REQUIRED COMPONENTS QtTest)
    target_link_libraries(filarix_qt_test INTERFACE Filarix::QtGui Qt4::QtTest)
  endif()
endfunction()

# filarix_add_precompiled(NAME LIBRARY header ...): the headers, compiled once, for targets that link LIBRARY.
function(filarix_add_precompiled name library)
  file(GENERATE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp" CONTENT "")
  add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  filarix_target_defaults(${name})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
  target_link_libraries(${name} PRIVATE ${library})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

set(FILARIX_PRECOMPILED_HEADERS
  <algorithm> <functional> <memory> <random>
  <QApplication> <QBoxLayout> <QComboBox> <QDateTime> <QDesktopWidget> <QDir> <QFile> <QGridLayout>
  <QHeaderView> <QLabel> <QLineEdit> <QListWidget> <QMessageBox> <QPainter> <QPlainTextEdit> <QPointer>
  <QProgressDialog> <QPushButton> <QScopedPointer> <QScrollArea> <QScrollBar> <QSettings> <QTableWidget>
  <QTextBlock> <QTextStream> <QThread> <QTimer> <QToolBar> <QToolButton>)

# The compiler's cache works from preprocessed sources, which have to name the headers then.
function(filarix_reuse_precompiled target precompiled)
  target_precompile_headers(${target} REUSE_FROM ${precompiled})
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()

# Has a target that links Filarix::QtGui take the toolkit's headers as they were compiled, in a quick build.
function(filarix_precompile target)
  if(NOT FILARIX_QUICK_BUILD)
    return()
  endif()
  if(NOT TARGET filarix_precompiled)
    filarix_add_precompiled(filarix_precompiled Filarix::QtGui ${FILARIX_PRECOMPILED_HEADERS})
    # The compiler does not know what strict targets lack, and takes nothing that has more.
    filarix_strict_warnings(filarix_precompiled)
  endif()
  filarix_reuse_precompiled(${target} filarix_precompiled)
endfunction()

# The same for a test program, which links Filarix::QtTest. Its own code is hardly optimised then; the
# library's and the companion's is as ever. Hundreds of programs hold both: the quicker linker makes them.
function(filarix_precompile_test target)
  if(NOT FILARIX_QUICK_BUILD)
    return()
  endif()
  if(NOT TARGET filarix_precompiled_tests)
    filarix_add_precompiled(filarix_precompiled_tests Filarix::QtTest
      ${FILARIX_PRECOMPILED_HEADERS} <QSignalSpy> <QTest>)
  endif()
  filarix_reuse_precompiled(${target} filarix_precompiled_tests)
  # The sources of most test programs include their moc's output: what is left for it is an empty file.
  set_property(SOURCE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/mocs_compilation.cpp"
    PROPERTY SKIP_PRECOMPILE_HEADERS ON)
  # As the headers are compiled, whatever libraries the program links.
  target_compile_options(${target} PRIVATE -fPIC)
  include(CheckLinkerFlag)
  check_linker_flag(CXX -fuse-ld=gold FILARIX_HAS_QUICK_LINKER)
  if(FILARIX_HAS_QUICK_LINKER)
    target_link_options(${target} PRIVATE -fuse-ld=gold)
  endif()
  if(NOT FILARIX_COVERAGE)
    target_compile_options(${target} PRIVATE -O1)
  endif()
endfunction()

# Compiles a resource file into a target. Its qInitResources_ and qCleanupResources_ functions are
# exported: hosts unload and reload the icons by them.
function(filarix_add_resource target file)
  if(FILARIX_QT EQUAL 5)
    qt5_add_resources(source "${file}")
  else()
    qt4_add_resources(source "${file}")
  endif()
  set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS -fvisibility=default)
  target_sources(${target} PRIVATE ${source})
endfunction()

# A library's classes have plain names, and a host may have a Dialog or a Label of its own. The
# linker of programs puts a host's names first, so a library looks its own up before it is loaded.
# Where a name is not its own, everything stays as it is: hosts may interpose system(), say.
#
# Hosts have to be compiled with -fPIC then: base/filarixglobal.h says why.
function(filarix_bind_own_names target)
  target_link_options(${target} PRIVATE -Wl,-Bsymbolic)
  filarix_compile_hosts_with_pic(${target})
endfunction()

# The newer toolkit brings the switch itself.
function(filarix_compile_hosts_with_pic target)
  if(FILARIX_QT EQUAL 4)
    target_compile_options(${target} INTERFACE -fPIC)
  endif()
endfunction()

# What all our own targets share. Private, so that nothing of it reaches a host: a host may use
# the keywords and its own warning level.
function(filarix_target_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_11)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 11
    CXX_STANDARD_REQUIRED ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    AUTOMOC ON
    AUTORCC ON)
  # The calls that both toolkits have are deprecated in the newer one.
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_DEPRECATED_WARNINGS)
  # Files of 2 GiB and more, and file systems that number their files beyond 32 bits.
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_definitions(${target} PRIVATE _FILE_OFFSET_BITS=64)
  endif()
  target_compile_options(${target} PRIVATE -Wall -Wextra -Woverloaded-virtual)
  if(FILARIX_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(FILARIX_SANITIZE)
    # A finding ends the program, so that no test passes over it.
    target_compile_options(${target} PRIVATE
      -fsanitize=${FILARIX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${FILARIX_SANITIZE})
  endif()
  if(FILARIX_COVERAGE)
    # Only what a test can take shall count as a branch: nothing here throws, no static is made by two
    # threads at once, and at C++17 Q_FOREACH no longer hides the condition that a break leaves it by.
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic
      -fno-exceptions -fno-threadsafe-statics)
    target_link_options(${target} PRIVATE --coverage)
    set_target_properties(${target} PROPERTIES CXX_STANDARD 17)
  endif()
endfunction()

# A host that takes in the sources compiles them with its own warnings: what we ship stays clean under
# the usual ones.
function(filarix_strict_warnings target)
  target_compile_options(${target} PRIVATE -Wshadow -Wpedantic)
endfunction()
