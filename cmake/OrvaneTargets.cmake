# SPDX-License-Identifier: MIT
# Settings and helper functions that every target of the house shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

set(ORVANE_LANGUAGES de fr ja)

find_program(ORVANE_CCACHE ccache)
if(ORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ORVANE_CCACHE}")
endif()

add_library(orvane_settings INTERFACE)
target_compile_options(orvane_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
target_compile_definitions(orvane_settings INTERFACE
  QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING)
if(ORVANE_SANITIZE)
  target_compile_options(orvane_settings INTERFACE
    -fsanitize=${ORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    # GCC sees uninitialised reads that are not there once its checks are woven in.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(orvane_settings INTERFACE -fsanitize=${ORVANE_SANITIZE})
endif()

# orvane_target(<target> [WIDGETS | CORE]): house settings, include root, and the precompiled headers of its kind.
function(orvane_target target)
  cmake_parse_arguments(ARG "WIDGETS;CORE;NO_PCH" "" "" ${ARGN})
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:orvane_settings>)
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
  if(ARG_WIDGETS)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  endif()
  if(ARG_NO_PCH)
    return()
  endif()
  if(ARG_WIDGETS)
    target_precompile_headers(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/WidgetsPch.h")
  elseif(ARG_CORE)
    target_precompile_headers(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/CorePch.h")
  endif()
endfunction()

# orvane_test(<name> [WIDGETS | CORE] SOURCES ... LIBRARIES ...): one GoogleTest program, run offscreen.
function(orvane_test name)
  cmake_parse_arguments(ARG "WIDGETS;CORE" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} GTest::gmock GTest::gtest)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  if(ARG_WIDGETS)
    orvane_target(${name} WIDGETS)
    target_link_libraries(${name} PRIVATE test_main_widgets Qt6::Widgets Qt6::Test)
  else()
    orvane_target(${name} CORE)
    target_link_libraries(${name} PRIVATE test_main_core)
  endif()
  target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
  if(ORVANE_SANITIZE)
    target_compile_options(${name} PRIVATE -O0) # the tests themselves are quick, compiling them is not
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tools/lsan.supp:print_suppressions=0"
    TIMEOUT 900)
endfunction()
