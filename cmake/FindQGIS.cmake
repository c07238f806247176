# SPDX-License-Identifier: MIT
# QGIS's headers and libraries: QGIS::Core, QGIS::Gui. Sets QGIS_VERSION, QGIS_QT_VERSION_MAJOR, and
# QGIS_PLUGIN_SUBFOLDER, where this QGIS looks for plug-ins below its prefix.
find_path(QGIS_INCLUDE_DIR qgsmaplayer.h PATH_SUFFIXES qgis)
find_library(QGIS_CORE_LIBRARY qgis_core)
find_library(QGIS_GUI_LIBRARY qgis_gui)

if(QGIS_INCLUDE_DIR)
  file(STRINGS "${QGIS_INCLUDE_DIR}/qgsconfig.h" line REGEX "#define _QGIS_VERSION ")
  string(REGEX REPLACE ".*\"([0-9.]+).*" "\\1" QGIS_VERSION "${line}")
  file(STRINGS "${QGIS_INCLUDE_DIR}/qgsconfig.h" line REGEX "#define QGIS_PLUGIN_SUBDIR ")
  string(REGEX REPLACE ".*\"(.+)\".*" "\\1" QGIS_PLUGIN_SUBFOLDER "${line}")
  set(QGIS_QT_VERSION_MAJOR 5) # all of QGIS 3 as distributions pack it
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QGIS
  REQUIRED_VARS QGIS_CORE_LIBRARY QGIS_GUI_LIBRARY QGIS_INCLUDE_DIR VERSION_VAR QGIS_VERSION)
mark_as_advanced(QGIS_INCLUDE_DIR QGIS_CORE_LIBRARY QGIS_GUI_LIBRARY)

foreach(part IN ITEMS Core Gui)
  string(TOUPPER ${part} upper)
  if(QGIS_FOUND AND NOT TARGET QGIS::${part})
    add_library(QGIS::${part} UNKNOWN IMPORTED)
    set_target_properties(QGIS::${part} PROPERTIES
      IMPORTED_LOCATION "${QGIS_${upper}_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${QGIS_INCLUDE_DIR}")
  endif()
endforeach()
