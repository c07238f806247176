# SPDX-License-Identifier: MIT
# Settings and helper functions that all targets share.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

set(ORVANE_LANGUAGES de fr ja)

# The page for host authors lists the public headers.
set(public_headers_page "${PROJECT_SOURCE_DIR}/docs/public_headers.md")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${public_headers_page}")
file(STRINGS "${public_headers_page}" rows REGEX "^\\| `[A-Za-z/]+\\.h` ")
foreach(row IN LISTS rows)
  string(REGEX REPLACE "^\\| `([A-Za-z/]+\\.h)`.*" "\\1" header "${row}")
  list(APPEND ORVANE_PUBLIC_HEADERS "${header}")
endforeach()

# With -DCMAKE_UNITY_BUILD=ON this many sources are compiled as one, for builds whose sources do not change.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 24)

find_program(ORVANE_CCACHE ccache)
if(ORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ORVANE_CCACHE}")
endif()

# A linker that saves seconds for each program, if one is installed.
find_program(ORVANE_LINKER NAMES mold ld.lld)
if(ORVANE_LINKER)
  get_filename_component(linker "${ORVANE_LINKER}" NAME)
  string(REPLACE "ld.lld" "lld" linker "${linker}")
  add_link_options(-fuse-ld=${linker})
endif()

add_library(orvane_settings INTERFACE)
target_compile_options(orvane_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual $<$<BOOL:${ORVANE_WARNINGS_ARE_ERRORS}>:-Werror>
  # So that ccache can tell whether a precompiled header is still the same.
  $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
  "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
target_compile_definitions(orvane_settings INTERFACE
  QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING)
if(ORVANE_SANITIZE)
  target_compile_options(orvane_settings INTERFACE
    -fsanitize=${ORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    # With sanitizers GCC reports uninitialised reads that do not exist.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(orvane_settings INTERFACE -fsanitize=${ORVANE_SANITIZE})
  add_compile_options(-O1)
  set(ORVANE_TEST_OPTIONS -O0) # saves compile time; the tests run fast without optimisation
endif()

include(OrvaneHardening)

# Installed headers name each other and are named by hosts as <orvane/...>; so they are found in the tree, too.
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/include")
file(CREATE_LINK "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/include/orvane" SYMBOLIC)

# orvane_public(<target> [INTERFACE]): a library that hosts build with.
function(orvane_public target)
  set(reach PUBLIC)
  if("INTERFACE" IN_LIST ARGN)
    set(reach INTERFACE)
  endif()
  target_compile_features(${target} ${reach} cxx_std_17)
  target_include_directories(${target} ${reach}
    "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>" "$<INSTALL_INTERFACE:include>")
endfunction()

# orvane_headers(<target> <header> LIBRARIES ...): headers that are compiled once and shared by all targets of a kind.
# The headers of Qt and GoogleTest take most of the time of a compilation.
function(orvane_headers target header)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;OPTIONS" ${ARGN})
  set(source "${PROJECT_BINARY_DIR}/${target}.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "// Carries the precompiled header.\n")
  add_library(${target} OBJECT EXCLUDE_FROM_ALL "${source}")
  target_link_libraries(${target} PRIVATE orvane_settings ${ARG_LIBRARIES})
  target_compile_options(${target} PRIVATE ${ARG_OPTIONS})
  target_precompile_headers(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/${header}")
endfunction()

# orvane_target(<target> [WIDGETS | CORE] [TEST]): project settings, include root, and the precompiled headers of its
# kind.
function(orvane_target target)
  cmake_parse_arguments(ARG "WIDGETS;CORE;TEST" "" "" ${ARGN})
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:orvane_settings>)
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
  if(ARG_WIDGETS)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    set(kind widgets)
  else()
    set(kind core)
  endif()
  if(ARG_TEST)
    string(APPEND kind _test)
    # Helpers in different test files may have the same name.
    set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
    target_compile_options(${target} PRIVATE ${ORVANE_TEST_OPTIONS})
  endif()
  target_precompile_headers(${target} REUSE_FROM orvane_${kind}_headers)
endfunction()

# orvane_test(<name> [WIDGETS | CORE] SOURCES ... LIBRARIES ...): one GoogleTest program, run offscreen.
function(orvane_test name)
  cmake_parse_arguments(ARG "WIDGETS;CORE" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} GTest::gmock GTest::gtest)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  if(ARG_WIDGETS)
    orvane_target(${name} WIDGETS TEST)
    target_link_libraries(${name} PRIVATE test_main_widgets Qt${QT_VERSION_MAJOR}::Widgets Qt${QT_VERSION_MAJOR}::Test)
  else()
    orvane_target(${name} CORE TEST)
    target_link_libraries(${name} PRIVATE test_main_core)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tools/lsan.supp:print_suppressions=0"
    TIMEOUT 900)
endfunction()
