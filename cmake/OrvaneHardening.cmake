# SPDX-License-Identifier: MIT
# Optimised builds by GCC and Clang check more at run time, and make a fault in memory harder to exploit. Each flag is
# used only if compiler and linker know it. docs/security.md lists them.
add_library(orvane_hardening INTERFACE)
target_link_libraries(orvane_settings INTERFACE orvane_hardening)
if(NOT UNIX OR NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang" OR ORVANE_SANITIZE)
  return() # sanitizers check more, and do not work with all of these
endif()
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

set(optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")

# Without optimisation the C library only warns. Some compilers define the macro themselves.
target_compile_options(orvane_hardening INTERFACE "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")

# The last one exists on x86 only.
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "ORVANE_HAS${flag}" known)
  check_cxx_compiler_flag(${flag} ${known})
  if(${known})
    target_compile_options(orvane_hardening INTERFACE "$<${optimised}:${flag}>")
  endif()
endforeach()

set(early_binding "LINKER:-z,relro,-z,now")
check_linker_flag(CXX "${early_binding}" ORVANE_HAS_EARLY_BINDING)
if(ORVANE_HAS_EARLY_BINDING)
  target_link_options(orvane_hardening INTERFACE "$<${optimised}:${early_binding}>")
endif()

# CMAKE_POSITION_INDEPENDENT_CODE reaches the linker of programs only after this check.
check_pie_supported(LANGUAGES CXX)
