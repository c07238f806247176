# SPDX-License-Identifier: MIT
# The rules of "cmake --install". No installed file contains the prefix, so that the installation can be moved: the
# program finds its component and its texts relative to its own folder, and find_package(Orvane) of a host author finds
# the libraries in the same way.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Private to the program, so it does not depend on the name of the system's library folder.
set(ORVANE_PLUGIN_DESTINATION lib/orvane)

# For host authors: the contract, the host kit and the libraries that it needs.
set_target_properties(OrvaneShellLib PROPERTIES EXPORT_NAME ShellLib)
set_target_properties(orvane_messages PROPERTIES EXPORT_NAME Messages)
set_target_properties(orvane_files PROPERTIES EXPORT_NAME Files)
set_target_properties(orvane_store PROPERTIES EXPORT_NAME LayerStore)
set_target_properties(orvane_hostkit PROPERTIES EXPORT_NAME HostKit)
set_target_properties(ovctrls PROPERTIES EXPORT_NAME Controls)
set_target_properties(style_samples PROPERTIES EXPORT_NAME Samples)
install(TARGETS OrvaneShellLib orvane_messages orvane_files orvane_store orvane_hostkit ovctrls style_samples
  EXPORT OrvaneTargets
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
set(config_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Orvane")
foreach(header IN LISTS ORVANE_PUBLIC_HEADERS)
  get_filename_component(folder "${header}" DIRECTORY)
  if(folder STREQUAL "hosttests")
    if(NOT TARGET orvane_host_tests)
      continue()
    endif()
    set(header_component HostTests)
  else()
    set(header_component Unspecified)
  endif()
  install(FILES "${PROJECT_SOURCE_DIR}/${header}" DESTINATION "include/orvane/${folder}" COMPONENT ${header_component})
endforeach()

# Their own component: only who asks for it needs GoogleTest.
if(TARGET orvane_host_tests)
  set_target_properties(orvane_host_tests PROPERTIES EXPORT_NAME HostTests)
  install(TARGETS orvane_host_tests EXPORT OrvaneHostTestsTargets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT HostTests)
  install(EXPORT OrvaneHostTestsTargets NAMESPACE Orvane:: DESTINATION "${config_folder}" COMPONENT HostTests)
endif()
install(EXPORT OrvaneTargets NAMESPACE Orvane:: DESTINATION "${config_folder}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/OrvaneConfig.cmake.in" "${CMAKE_BINARY_DIR}/OrvaneConfig.cmake"
  INSTALL_DESTINATION "${config_folder}" PATH_VARS ORVANE_PLUGIN_DESTINATION)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/OrvaneConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/OrvaneConfig.cmake" "${CMAKE_BINARY_DIR}/OrvaneConfigVersion.cmake"
  DESTINATION "${config_folder}")

# The component, with its message files next to it.
install(TARGETS OrvaneLayerControl LIBRARY DESTINATION "${ORVANE_PLUGIN_DESTINATION}")
foreach(language IN LISTS ORVANE_LANGUAGES)
  install(FILES "${PROJECT_SOURCE_DIR}/translations/POBEX.${language}.ts"
    DESTINATION "${ORVANE_PLUGIN_DESTINATION}/${language}" RENAME POBEX.LRT)
endforeach()

# Orvane itself, and its files for the desktop.
if(ORVANE_BUILD_SHELL)
  install(TARGETS orvane RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  foreach(language IN LISTS ORVANE_LANGUAGES)
    install(FILES "${PROJECT_SOURCE_DIR}/translations/orvane.${language}.ts" DESTINATION share/orvane/translations)
  endforeach()
  set(packaging "${PROJECT_SOURCE_DIR}/packaging")
  install(FILES "${packaging}/orvane.desktop" DESTINATION share/applications)
  install(FILES "${packaging}/orvane-mime.xml" DESTINATION share/mime/packages RENAME orvane.xml)
  install(FILES "${packaging}/orvane.svg" DESTINATION share/icons/hicolor/scalable/apps)
  install(FILES "${packaging}/orvane-map.svg" DESTINATION share/icons/hicolor/scalable/mimetypes)
  install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION share/doc/orvane RENAME copyright)
  install(FILES "${packaging}/orvane.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endif()

# "cpack" in the build folder makes a Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvane)
set(CPACK_PACKAGE_VENDOR Orvane)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Small desktop map program with a layer control for other programs")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Orvane authors")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
