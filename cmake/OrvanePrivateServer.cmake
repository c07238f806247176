# SPDX-License-Identifier: MIT
# What tests and benchmarks need for maps in a PostgreSQL server: a server of their own, a network that can be slow, silent
# or cut, and a connection without the store. Needs GTest.
set(support "${PROJECT_SOURCE_DIR}/tests/support")
if(NOT TARGET orvane_core_test_headers)
  orvane_headers(orvane_core_test_headers CoreTestPch.h
    LIBRARIES Qt${QT_VERSION_MAJOR}::Core GTest::gmock OPTIONS ${ORVANE_TEST_OPTIONS})
endif()

# orvane_server_part(<target> SOURCE...): a library for tests with a server.
function(orvane_server_part target)
  add_library(${target} STATIC ${ARGN})
  target_link_libraries(${target} PUBLIC Qt${QT_VERSION_MAJOR}::Core GTest::gmock)
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/tests")
  orvane_target(${target} CORE TEST)
endfunction()

if(CMAKE_SYSTEM_NAME STREQUAL Linux)
  orvane_server_part(test_cutting_proxy
    "${support}/CuttingProxy.cpp" "${support}/ProxyNetwork.cpp" "${support}/UnixSocket.cpp")
endif()

# Without the server's programs, which distributions keep outside of the search path, those tests are skipped.
find_package(PostgreSQL QUIET)
if(PostgreSQL_FOUND)
  execute_process(COMMAND pg_config --bindir OUTPUT_VARIABLE postgresql_programs OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  file(GLOB postgresql_folders "/usr/lib/postgresql/*/bin")
  list(SORT postgresql_folders COMPARE NATURAL ORDER DESCENDING)
  find_program(ORVANE_INITDB initdb HINTS "${postgresql_programs}" PATHS ${postgresql_folders})
  set(programs "")
  if(ORVANE_INITDB)
    cmake_path(GET ORVANE_INITDB PARENT_PATH programs)
  else()
    message(STATUS "PostgreSQL's server was not found: the tests with a server are skipped.")
  endif()

  add_executable(server_keeper "${support}/server_keeper.cpp")
  target_link_libraries(server_keeper PRIVATE Qt${QT_VERSION_MAJOR}::Core GTest::gmock) # for the precompiled headers
  orvane_target(server_keeper CORE TEST)
  orvane_server_part(test_private_server "${support}/PrivateServer.cpp")
  add_dependencies(test_private_server server_keeper)
  target_compile_definitions(test_private_server PRIVATE
    ORVANE_POSTGRESQL_PROGRAMS="${programs}" ORVANE_SERVER_KEEPER="$<TARGET_FILE:server_keeper>")
  orvane_server_part(test_raw_link "${PROJECT_SOURCE_DIR}/tests/store/postgres/RawLink.cpp")
  target_link_libraries(test_raw_link PUBLIC test_private_server PostgreSQL::PostgreSQL)
endif()
