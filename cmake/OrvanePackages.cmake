# SPDX-License-Identifier: MIT
# "cpack" in the build folder makes Debian packages: a host author needs no GDAL, a user no headers.
set(ORVANE_PACKAGE_MAINTAINER "The Orvane authors <maintainers@orvane.invalid>" CACHE STRING
  "Who answers for the Debian packages")

# orvane_package(<install component> <package> SECTION ... SYNOPSIS ... DESCRIPTION ... [DEPENDS ...])
function(orvane_package component package)
  cmake_parse_arguments(ARG "" "SECTION;SYNOPSIS;DESCRIPTION;DEPENDS" "" ${ARGN})
  string(TOUPPER "${component}" upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${ARG_SECTION} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${ARG_DEPENDS}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${ARG_SYNOPSIS}\n${ARG_DESCRIPTION}" PARENT_SCOPE)
  install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION share/doc/${package} RENAME copyright
    COMPONENT ${component})
  orvane_compressed("${PROJECT_SOURCE_DIR}/packaging/changelog.in" ${package}/changelog.gz)
  install(FILES "${PROJECT_BINARY_DIR}/packaging/${package}/changelog.gz" DESTINATION share/doc/${package}
    COMPONENT ${component})
endfunction()

# Fills a template for the variable "package", and compresses it.
function(orvane_compressed template result)
  set(plain "${PROJECT_BINARY_DIR}/packaging/${result}.txt")
  configure_file("${template}" "${plain}" @ONLY)
  execute_process(COMMAND gzip -9nc "${plain}" OUTPUT_FILE "${PROJECT_BINARY_DIR}/packaging/${result}"
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvane)
set(CPACK_PACKAGE_VENDOR Orvane)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL program plugin development)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ORVANE_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

orvane_package(plugin orvane-layer-control SECTION libs
  SYNOPSIS "layer control dialog for desktop map programs"
  DESCRIPTION "A plug-in for Qt programs: a dialog that edits how the layers and groups
of a map look, many at once, and switches their schemes.")
# CPack has the loader look at each shared library, although nothing links to this one.
install(FILES "${PROJECT_SOURCE_DIR}/packaging/orvane-layer-control.overrides"
  DESTINATION share/lintian/overrides RENAME orvane-layer-control COMPONENT plugin)
if(QT_VERSION_MAJOR EQUAL 5)
  set(qt_development qtbase5-dev)
else()
  set(qt_development qt6-base-dev)
endif()
if(TARGET orvane_store_postgres)
  set(server_development ", libpq-dev")
endif()
orvane_package(development liborvane-dev SECTION libdevel
  SYNOPSIS "host kit for the Orvane layer control"
  DESCRIPTION "Headers, libraries and CMake files with which a Qt program becomes a host
of the layer control, with a guide and examples."
  DEPENDS "orvane-layer-control (= ${PROJECT_VERSION}), ${qt_development}, libsqlite3-dev${server_development}")
if(ORVANE_BUILD_SHELL)
  orvane_package(program orvane SECTION science
    SYNOPSIS "small desktop map program"
    DESCRIPTION "Orvane shows maps of many layers, styles them in its layer control, and
prints them. It reads vector data in all formats that GDAL reads."
    DEPENDS "orvane-layer-control (= ${PROJECT_VERSION})")
  set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    "qt6-translations-l10n, fonts-noto-cjk | fonts-ipafont-gothic")
else()
  list(REMOVE_ITEM CPACK_COMPONENTS_ALL program)
endif()
if(TARGET orvane_qgis)
  # The libraries of QGIS change with every release, also where their version numbers hardly do.
  string(REGEX MATCH "^([0-9]+\\.[0-9]+)\\.([0-9]+)" release "${QGIS_VERSION}")
  math(EXPR next "${CMAKE_MATCH_2} + 1")
  orvane_package(qgis orvane-qgis SECTION science
    SYNOPSIS "layer control for QGIS"
    DESCRIPTION "A plug-in for QGIS: a dock that edits how the layers and groups of a
project look, many at once, and switches their schemes."
    DEPENDS "qgis (>= ${release}), qgis (<< ${CMAKE_MATCH_1}.${next}~)")
  install(FILES "${PROJECT_SOURCE_DIR}/packaging/orvane-qgis.overrides"
    DESTINATION share/lintian/overrides RENAME orvane-qgis COMPONENT qgis)
  list(APPEND CPACK_COMPONENTS_ALL qgis)
endif()
include(CPack)
