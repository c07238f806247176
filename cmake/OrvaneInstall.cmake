# SPDX-License-Identifier: MIT
# The rules of "cmake --install", in components: "program" is Orvane, "plugin" the component with its texts,
# "development" what host authors build with, and "qgis" all that QGIS needs. No installed file contains the prefix, so that the installation can be
# moved: programs find the component and their texts relative to their own folder, find_package(Orvane) finds the
# libraries in the same way.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Private to the program, so it does not depend on the name of the system's library folder.
set(ORVANE_PLUGIN_DESTINATION lib/orvane)
set(ORVANE_TEXTS_DESTINATION share/orvane/translations)

# For host authors: the contract, the host kit and the libraries that it needs.
set_target_properties(OrvaneShellLib PROPERTIES EXPORT_NAME ShellLib)
set_target_properties(orvane_messages PROPERTIES EXPORT_NAME Messages)
set_target_properties(orvane_files PROPERTIES EXPORT_NAME Files)
set_target_properties(orvane_store PROPERTIES EXPORT_NAME LayerStore)
set_target_properties(orvane_hostkit PROPERTIES EXPORT_NAME HostKit)
set_target_properties(ovctrls PROPERTIES EXPORT_NAME Controls)
set_target_properties(style_samples PROPERTIES EXPORT_NAME Samples)
if(TARGET orvane_store_postgres)
  set_target_properties(orvane_store_postgres PROPERTIES EXPORT_NAME PostgresStore)
  set(orvane_server_stores orvane_store_postgres)
endif()
install(TARGETS OrvaneShellLib orvane_messages orvane_files orvane_store ${orvane_server_stores} orvane_hostkit ovctrls style_samples
  EXPORT OrvaneTargets
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
foreach(header IN LISTS ORVANE_PUBLIC_HEADERS)
  get_filename_component(folder "${header}" DIRECTORY)
  if(TARGET orvane_host_tests OR NOT folder STREQUAL "hosttests")
    install(FILES "${PROJECT_SOURCE_DIR}/${header}" DESTINATION "include/orvane/${folder}" COMPONENT development)
  endif()
endforeach()

# Qt Designer looks into the folder of Qt's plug-ins; that of Debian, below the prefix.
set(ORVANE_DESIGNER_DESTINATION "${CMAKE_INSTALL_LIBDIR}/qt${QT_VERSION_MAJOR}/plugins/designer" CACHE STRING
  "Where the plug-in for Qt Designer is installed, relative to the prefix")
if(TARGET OrvaneDesigner)
  install(TARGETS OrvaneDesigner LIBRARY DESTINATION "${ORVANE_DESIGNER_DESTINATION}" COMPONENT development)
endif()

# The component for hosts that link it, as one archive a room.
set_target_properties(OrvaneLayerControlStatic PROPERTIES EXPORT_NAME LayerControlStatic EXCLUDE_FROM_ALL OFF)
install(TARGETS OrvaneLayerControlStatic component_common component_model component_controls component_styles
    component_place component_nodes component_rows component_trees component_panel component_showing component_pasting
    component_window component_entry
  EXPORT OrvaneLayerControlStaticTargets
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}/orvane-static" COMPONENT development)

# Only a host that asks for them needs GoogleTest.
if(TARGET orvane_host_tests)
  set_target_properties(orvane_host_tests PROPERTIES EXPORT_NAME HostTests)
  install(TARGETS orvane_host_tests EXPORT OrvaneHostTestsTargets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
  set(host_tests_targets OrvaneHostTestsTargets)
endif()

math(EXPR orvane_other_qt "11 - ${QT_VERSION_MAJOR}") # 5 or 6
set(config_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Orvane")
foreach(targets OrvaneTargets OrvaneLayerControlStaticTargets ${host_tests_targets})
  install(EXPORT ${targets} NAMESPACE Orvane:: DESTINATION "${config_folder}" COMPONENT development)
endforeach()
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/OrvaneConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/OrvaneConfig.cmake"
  INSTALL_DESTINATION "${config_folder}" PATH_VARS ORVANE_PLUGIN_DESTINATION ORVANE_TEXTS_DESTINATION)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/OrvaneConfig.cmake" "${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake"
  DESTINATION "${config_folder}" COMPONENT development)

# The pages for host authors, and the examples, which are a project of their own.
set(documents "${CMAKE_INSTALL_DATAROOTDIR}/doc/liborvane-dev")
install(FILES docs/host_guide.md docs/host_tests.md docs/promises.md docs/public_headers.md
  DESTINATION "${documents}" COMPONENT development)
install(FILES examples/CMakeLists.txt DESTINATION "${documents}/examples" COMPONENT development)
install(DIRECTORY examples/minimal_host examples/vector_host examples/dock_host examples/optional_parts examples/host_tests
  DESTINATION "${documents}/examples" COMPONENT development FILES_MATCHING PATTERN "*.h" PATTERN "*.cpp")

# The component, with its message files next to it.
install(TARGETS OrvaneLayerControl LIBRARY DESTINATION "${ORVANE_PLUGIN_DESTINATION}" COMPONENT plugin)
foreach(language IN LISTS ORVANE_LANGUAGES)
  install(FILES "${PROJECT_SOURCE_DIR}/translations/POBEX.${language}.ts"
    DESTINATION "${ORVANE_PLUGIN_DESTINATION}/${language}" RENAME POBEX.LRT COMPONENT plugin)
  # The texts of the host kit and of Orvane, which each host can use.
  install(FILES "${PROJECT_SOURCE_DIR}/translations/orvane.${language}.ts"
    DESTINATION "${ORVANE_TEXTS_DESTINATION}" COMPONENT plugin)
endforeach()

# Orvane itself, and its files for the desktop.
if(ORVANE_BUILD_SHELL)
  install(TARGETS orvane RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT program)
  # With the program, not with the documents: some systems leave those out.
  install(DIRECTORY docs/guide DESTINATION share/orvane COMPONENT program)
  install(FILES docs/teams.md DESTINATION share/orvane COMPONENT program)
  set(packaging "${PROJECT_SOURCE_DIR}/packaging")
  install(FILES "${packaging}/orvane.desktop" DESTINATION share/applications COMPONENT program)
  install(FILES "${packaging}/orvane-mime.xml" DESTINATION share/mime/packages RENAME orvane.xml COMPONENT program)
  install(FILES "${packaging}/orvane.svg" DESTINATION share/icons/hicolor/scalable/apps COMPONENT program)
  install(FILES "${packaging}/orvane-map.svg" DESTINATION share/icons/hicolor/scalable/mimetypes COMPONENT program)
  # The manual page has the options as the program's own --help tells them.
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  install(CODE "execute_process(COMMAND \"${Python3_EXECUTABLE}\" \"${PROJECT_SOURCE_DIR}/tools/man_page.py\" \
    \"$<TARGET_FILE:orvane>\" \"${packaging}/orvane.1.in\" \"${PROJECT_BINARY_DIR}/orvane.1\" \
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND gzip -9nc \"${PROJECT_BINARY_DIR}/orvane.1\" \
    OUTPUT_FILE \"${PROJECT_BINARY_DIR}/orvane.1.gz\" COMMAND_ERROR_IS_FATAL ANY)" COMPONENT program)
  install(FILES "${PROJECT_BINARY_DIR}/orvane.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT program)
endif()

# The plug-in for QGIS, with a component of its own, because this one belongs to QGIS's version of Qt. The component is
# not beside the plug-in: QGIS tries every library in that folder.
if(TARGET orvane_qgis)
  set(ORVANE_QGIS_DESTINATION "${QGIS_PLUGIN_SUBFOLDER}" CACHE STRING
    "Where QGIS looks for plug-ins, relative to the prefix")
  install(TARGETS orvane_qgis LIBRARY DESTINATION "${ORVANE_QGIS_DESTINATION}" COMPONENT qgis)
  set(component_for_qgis "${ORVANE_PLUGIN_DESTINATION}/qgis")
  install(TARGETS OrvaneLayerControl LIBRARY DESTINATION "${component_for_qgis}" COMPONENT qgis)
  foreach(language IN LISTS ORVANE_LANGUAGES)
    install(FILES "${PROJECT_SOURCE_DIR}/translations/POBEX.${language}.ts"
      DESTINATION "${component_for_qgis}/${language}" RENAME POBEX.LRT COMPONENT qgis)
    install(FILES "${PROJECT_SOURCE_DIR}/translations/orvane.${language}.ts"
      DESTINATION "${component_for_qgis}/translations" COMPONENT qgis)
  endforeach()
  file(RELATIVE_PATH way "/${ORVANE_QGIS_DESTINATION}" "/${component_for_qgis}")
  target_compile_definitions(orvane_qgis PRIVATE ORVANE_COMPONENT_WAY="${way}")
endif()
