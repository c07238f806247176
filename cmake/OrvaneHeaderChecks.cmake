# SPDX-License-Identifier: MIT
# The target header_checks compiles each header alone, so that each header must include what it uses. Installed headers
# can include only each other, as in a host's program. The others are compiled with a precompiled header, which takes a
# tenth of the time and hides at most a missing header of Qt, of the standard library or of GoogleTest.

# orvane_header_check(<target> LIBRARIES ... HEADERS ...)
function(orvane_header_check target)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;HEADERS" ${ARGN})
  set(sources)
  foreach(header IN LISTS ARG_HEADERS)
    string(REPLACE "/" "." name "${header}")
    set(source "${PROJECT_BINARY_DIR}/${target}/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n" @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  add_library(${target} OBJECT EXCLUDE_FROM_ALL ${sources})
  target_link_libraries(${target} PRIVATE orvane_settings ${ARG_LIBRARIES})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/tests")
  # Unused functions and constants of a header are no fault here.
  target_compile_options(${target} PRIVATE -Wno-unused-function -Wno-unused-const-variable)
  set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
endfunction()

set(installed "${PROJECT_BINARY_DIR}/public_headers")
foreach(header IN LISTS ORVANE_PUBLIC_HEADERS)
  configure_file("${PROJECT_SOURCE_DIR}/${header}" "${installed}/orvane/${header}" COPYONLY)
endforeach()
list(TRANSFORM ORVANE_PUBLIC_HEADERS PREPEND "orvane/" OUTPUT_VARIABLE installed_headers)
orvane_header_check(public_header_checks HEADERS ${installed_headers}
  LIBRARIES Qt${QT_VERSION_MAJOR}::Widgets GTest::gtest)
# A host may use C++17, and none of Qt's conveniences that break other libraries.
set_target_properties(public_header_checks PROPERTIES INCLUDE_DIRECTORIES "${installed}" CXX_STANDARD 17)
target_compile_definitions(public_header_checks PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

file(GLOB_RECURSE headers RELATIVE "${PROJECT_SOURCE_DIR}" CONFIGURE_DEPENDS OrvaneShellLib/*.h messages/*.h files/*.h
  store/*.h ovctrls/*.h samples/*.h hostkit/*.h hosttests/*.h component/*.h mapkit/*.h shell/*.h tests/*.h benchmarks/*.h examples/*.h)
if(TARGET OrvaneDesigner)
  list(APPEND headers designer/ControlInDesigner.h designer/DesignerControls.h)
endif()
list(REMOVE_ITEM headers ${ORVANE_PUBLIC_HEADERS})
# Headers of earlier contracts include each other, not those of this tree.
list(FILTER headers EXCLUDE REGEX "^tests/(fixtures/contract_|qgis/)") # the latter need QGIS's own headers
orvane_header_check(inner_header_checks HEADERS ${headers} LIBRARIES
  component_entry orvane_shell_parts sample_maps test_message_boxes SQLite::SQLite3 benchmark::benchmark
  $<TARGET_NAME_IF_EXISTS:Qt${QT_VERSION_MAJOR}::UiPlugin>)
target_precompile_headers(inner_header_checks REUSE_FROM orvane_widgets_test_headers)

add_custom_target(header_checks)
add_dependencies(header_checks public_header_checks inner_header_checks)
