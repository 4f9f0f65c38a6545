# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
#
# What `cmake --install` puts where, by component:
#
#   runtime         libFilarixModule.so.1, all that a panel needs of us
#   development     headers, the link name, and the CMake, pkg-config and qmake packages
#   l10n            the library's translations, which hosts load
#   host            libFilarixHost.so.1, the companion
#   host-development  its headers, its link name and its CMake, pkg-config and qmake packages
#   host-l10n       its translations
#   designer        the Qt Designer plugin
#   device-headers  the interface of the panel's device library, for hosts that use it themselves
#   simulator       the stand-in device library with its translations
#   panel           filarix-panel with its manual page and its translations
#   check           filarix-check with its manual page
#   doc             documentation for hosts' developers
#   licence         the text that goes along with all of them
#
# A plain install takes the first six and the licence, or the first three where the companion is not
# built. The first three alone make a whole library. The others are installed by name only, so that the stand-in never
# reaches a panel by accident. Everything may be moved as a whole, lie in a sysroot or be
# installed with DESTDIR: the packages find their files from where they are themselves.

include(CMakePackageConfigHelpers)

if(FILARIX_QT EQUAL 5)
  set(filarix_qmake_features "${CMAKE_INSTALL_LIBDIR}/qt5/mkspecs/features")
else()
  set(filarix_qmake_features "${CMAKE_INSTALL_DATADIR}/qt4/mkspecs/features")
endif()
set(FILARIX_QMAKE_FEATURES_DIR "${filarix_qmake_features}" CACHE STRING
  "Where the qmake feature filarixmodule.prf goes; qmake finds it in its own folder of features")

set(FILARIX_INSTALL_HEADERDIR "${CMAKE_INSTALL_INCLUDEDIR}/filarix")
set(FILARIX_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/FilarixModule")

# The published interface: the exported classes, what their headers include, the builder of rows, and
# the facts about a panel.
set(FILARIX_PUBLIC_HEADERS
  base/compat.h
  base/filarixglobal.h
  base/filarixpanel.h
  controls/checkbox.h
  controls/combobox.h
  controls/doublespinbox.h
  controls/groupbox.h
  controls/lineedit.h
  controls/listwidget.h
  controls/pushbutton.h
  controls/scrollbar.h
  controls/spinbox.h
  editor/wgcodeediter.h
  editor/whighlighter.h
  list/filarixrows.h
  list/mjline.h
  list/tlistwidget.h
  tables/conneditor.h
  tables/dataeditor.h
  tables/filedialog.h
  transfer/dialog.h
  transfer/importmanage.h
  transfer/messagebox.h
  window/wmmainwindow.h
)

# And the one that the build writes.
set(FILARIX_VERSION_HEADER "${CMAKE_CURRENT_BINARY_DIR}/version/filarixversion.h")

# The same of the companion: every header with an exported class or function, and no other. What is
# left out may change without a host noticing.
set(FILARIX_HOST_PUBLIC_HEADERS
  base/clickgate.h
  base/filarixhostglobal.h
  base/message.h
  base/questioner.h
  guards/checkmarks.h
  guards/errormarks.h
  guards/finddialogfitter.h
  guards/finddialogguide.h
  guards/finddialogkeypad.h
  guards/fittedlist.h
  guards/lineentry.h
  guards/owntransfer.h
  guards/pickerfacts.h
  guards/pickertable.h
  guards/programguard.h
  guards/programpickers.h
  guards/programwalk.h
  guards/rowwatcher.h
  guards/unsavedlist.h
  guards/windowcommands.h
  guards/windowdialogs.h
  guards/windowprogram.h
  programs/checkeddownload.h
  programs/downloadfacts.h
  programs/historystore.h
  programs/keptwork.h
  programs/plctransfer.h
  programs/programcomparison.h
  programs/programdirectory.h
  programs/programhistory.h
  programs/programinspection.h
  programs/programkeeper.h
  programs/programlisting.h
  programs/programname.h
  programs/programondisk.h
  programs/programopener.h
  programs/programsnapshot.h
  programs/programstate.h
  programs/programsummary.h
  programs/recentprograms.h
  programs/storecheck.h
  programs/unsavedoffer.h
  programs/unsavedrows.h
  programs/unsavedsession.h
  programs/unsavedstore.h
  programs/unsavedwork.h
  programs/windinginspection.h
  stick/devicewatch.h
  stick/folderwatch.h
  stick/importguard.h
  stick/stick.h
  stick/transfernames.h
  stick/transferreport.h
  storage/connectionfile.h
  storage/durablefile.h
  storage/filejob.h
  storage/filestamp.h
  storage/filetaskqueue.h
  storage/filetaskrunner.h
  storage/filethread.h
  storage/rowfile.h
  storage/rowkeeper.h
  storage/rowtext.h
  storage/settingsfile.h
  storage/writeleave.h
  winding/blockreader.h
  winding/coildrawing.h
  winding/coilfigures.h
  winding/coilframe.h
  winding/coilpicture.h
  winding/finding.h
  winding/machineprofile.h
  winding/modalwords.h
  winding/programcheck.h
  winding/programinterpreter.h
  winding/programreading.h
  winding/windingmodel.h
  winding/windingreview.h
)

# The way from one installed folder to another.
function(filarix_relative_path out from to)
  cmake_path(ABSOLUTE_PATH from BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
  cmake_path(ABSOLUTE_PATH to BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
  file(RELATIVE_PATH path "${from}" "${to}")
  string(REGEX REPLACE "/$" "" path "${path}")
  set(${out} "${path}" PARENT_SCOPE)
endfunction()

# The library. A host that links it need not have the device library at hand: that is found when the
# program is loaded. Without one in the build its symbols are the host's to link, and the linker
# says so.
set(FILARIX_LINK_OPTIONS "")
if(FILARIX_HMIDEVICE_LIBRARY OR TARGET HMIDevice)
  set(FILARIX_LINK_OPTIONS "-Wl,--allow-shlib-undefined")
endif()
#
# The run path of a build is as long as its folder's name, and leaves its length behind when the install
# step replaces it: relative to the file it is the same wherever the build is made.
set_target_properties(FilarixModule PROPERTIES
  EXPORT_NAME Module INSTALL_RPATH "$ORIGIN" BUILD_RPATH_USE_ORIGIN ON)
target_include_directories(FilarixModule INTERFACE
  $<INSTALL_INTERFACE:${FILARIX_INSTALL_HEADERDIR}>)
target_link_options(FilarixModule INTERFACE $<INSTALL_INTERFACE:${FILARIX_LINK_OPTIONS}>)
set_target_properties(filarix_qt_gui PROPERTIES EXPORT_NAME QtGui)
install(TARGETS FilarixModule filarix_qt_gui
  EXPORT FilarixModuleTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    COMPONENT runtime NAMELINK_COMPONENT development)
install(FILES ${FILARIX_PUBLIC_HEADERS} "${FILARIX_VERSION_HEADER}"
  DESTINATION "${FILARIX_INSTALL_HEADERDIR}" COMPONENT development)

# find_package(FilarixModule)
install(EXPORT FilarixModuleTargets
  NAMESPACE Filarix:: DESTINATION "${FILARIX_INSTALL_CMAKEDIR}" COMPONENT development)
configure_package_config_file(
  cmake/FilarixModuleConfig.cmake.in FilarixModuleConfig.cmake
  INSTALL_DESTINATION "${FILARIX_INSTALL_CMAKEDIR}"
  PATH_VARS FILARIX_TRANSLATIONS_DIR
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(FilarixModuleConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/FilarixModuleConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/FilarixModuleConfigVersion.cmake"
  DESTINATION "${FILARIX_INSTALL_CMAKEDIR}" COMPONENT development)

# pkg-config filarixmodule
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
filarix_relative_path(FILARIX_PREFIX_FROM_PKGCONFIG "${pkgconfig_dir}" ".")
filarix_relative_path(FILARIX_LIBDIR_FROM_PREFIX "." "${CMAKE_INSTALL_LIBDIR}")
filarix_relative_path(FILARIX_HEADERDIR_FROM_PREFIX "." "${FILARIX_INSTALL_HEADERDIR}")
filarix_relative_path(FILARIX_TRANSLATIONS_FROM_PREFIX "." "${FILARIX_TRANSLATIONS_DIR}")
configure_file(cmake/filarixmodule.pc.in filarixmodule.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/filarixmodule.pc"
  DESTINATION "${pkgconfig_dir}" COMPONENT development)

# CONFIG += filarixmodule
filarix_relative_path(FILARIX_LIBDIR_FROM_FEATURES
  "${FILARIX_QMAKE_FEATURES_DIR}" "${CMAKE_INSTALL_LIBDIR}")
filarix_relative_path(FILARIX_HEADERDIR_FROM_FEATURES
  "${FILARIX_QMAKE_FEATURES_DIR}" "${FILARIX_INSTALL_HEADERDIR}")
filarix_relative_path(FILARIX_TRANSLATIONS_FROM_FEATURES
  "${FILARIX_QMAKE_FEATURES_DIR}" "${FILARIX_TRANSLATIONS_DIR}")
configure_file(cmake/filarixmodule.prf.in filarixmodule.prf @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/filarixmodule.prf"
  DESTINATION "${FILARIX_QMAKE_FEATURES_DIR}" COMPONENT development)

# The companion: find_package(FilarixModule COMPONENTS Host), pkg-config filarixhost and
# CONFIG += filarixhost.
if(TARGET FilarixHost)
  set_target_properties(FilarixHost PROPERTIES
    EXPORT_NAME Host INSTALL_RPATH "$ORIGIN" BUILD_RPATH_USE_ORIGIN ON)
  target_include_directories(FilarixHost INTERFACE
    $<INSTALL_INTERFACE:${FILARIX_INSTALL_HEADERDIR}/host>)
  install(TARGETS FilarixHost
    EXPORT FilarixHostTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
      COMPONENT host NAMELINK_COMPONENT host-development)
  foreach(header IN LISTS FILARIX_HOST_PUBLIC_HEADERS)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES "host/${header}"
      DESTINATION "${FILARIX_INSTALL_HEADERDIR}/host/${folder}" COMPONENT host-development)
  endforeach()
  install(EXPORT FilarixHostTargets FILE FilarixModuleHostTargets.cmake
    NAMESPACE Filarix:: DESTINATION "${FILARIX_INSTALL_CMAKEDIR}" COMPONENT host-development)
  configure_file(cmake/filarixhost.pc.in filarixhost.pc @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/filarixhost.pc"
    DESTINATION "${pkgconfig_dir}" COMPONENT host-development)
  configure_file(cmake/filarixhost.prf.in filarixhost.prf @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/filarixhost.prf"
    DESTINATION "${FILARIX_QMAKE_FEATURES_DIR}" COMPONENT host-development)
endif()

function(filarix_install_translations name)
  set(files "")
  foreach(language IN LISTS FILARIX_LANGUAGES)
    list(APPEND files "${PROJECT_BINARY_DIR}/translations/${name}_${language}.qm")
  endforeach()
  install(FILES ${files} DESTINATION "${FILARIX_TRANSLATIONS_DIR}" ${ARGN})
endfunction()
if(FILARIX_TRANSLATIONS)
  filarix_install_translations(filarix COMPONENT l10n)
  if(TARGET FilarixHost)
    filarix_install_translations(filarixhost COMPONENT host-l10n)
  endif()
endif()

set(FILARIX_DESIGNER_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/qt5/plugins/designer" CACHE STRING
  "Where the Designer plugin goes; Qt Designer looks into Qt's own folder of plugins")
if(TARGET filarixmoduledesigner)
  install(TARGETS filarixmoduledesigner
    LIBRARY DESTINATION "${FILARIX_DESIGNER_PLUGIN_DIR}" COMPONENT designer EXCLUDE_FROM_ALL)
endif()

install(DIRECTORY "${FILARIX_HMIDEVICE_INCLUDE_DIR}/hmidevice"
  DESTINATION "${FILARIX_INSTALL_HEADERDIR}" COMPONENT device-headers EXCLUDE_FROM_ALL
  FILES_MATCHING PATTERN "*.h")
if(TARGET HMIDevice)
  install(TARGETS HMIDevice
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
      COMPONENT simulator NAMELINK_SKIP EXCLUDE_FROM_ALL)
  if(FILARIX_TRANSLATIONS)
    filarix_install_translations(hmidevice-sim COMPONENT simulator EXCLUDE_FROM_ALL)
  endif()
endif()
# What tells the version has it from project(), and its date from the changelog.
file(STRINGS CHANGELOG.md heading REGEX "^## ${PROJECT_VERSION}, " LIMIT_COUNT 1)
if(NOT heading MATCHES ", ([0-9]+-[0-9]+-[0-9]+)$")
  message(FATAL_ERROR "CHANGELOG.md has no section \"${PROJECT_VERSION}, <date>\"")
endif()
set(FILARIX_RELEASE_DATE "${CMAKE_MATCH_1}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)
if(TARGET filarix-panel)
  filarix_relative_path(libdir_from_bindir "${CMAKE_INSTALL_BINDIR}" "${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(filarix-panel PROPERTIES
    INSTALL_RPATH "$ORIGIN/${libdir_from_bindir}" BUILD_RPATH_USE_ORIGIN ON)
  install(TARGETS filarix-panel
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT panel EXCLUDE_FROM_ALL)
  configure_file(panel/filarix-panel.1.in filarix-panel.1 @ONLY)
  configure_file(panel/desktop/org.filarix.panel.metainfo.xml.in org.filarix.panel.metainfo.xml @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/filarix-panel.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT panel EXCLUDE_FROM_ALL)
  install(FILES panel/desktop/filarix-panel.desktop
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT panel EXCLUDE_FROM_ALL)
  install(FILES panel/desktop/filarix-panel.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT panel EXCLUDE_FROM_ALL)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/org.filarix.panel.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT panel EXCLUDE_FROM_ALL)
  if(FILARIX_TRANSLATIONS)
    filarix_install_translations(filarix-panel COMPONENT panel EXCLUDE_FROM_ALL)
  endif()
endif()

if(TARGET filarix-check)
  install(TARGETS filarix-check
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT check EXCLUDE_FROM_ALL)
  configure_file(check/filarix-check.1.in filarix-check.1 @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/filarix-check.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT check EXCLUDE_FROM_ALL)
endif()

install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT licence)

install(FILES docs/abi.md docs/security.md
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT doc EXCLUDE_FROM_ALL)
