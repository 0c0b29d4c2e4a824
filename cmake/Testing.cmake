# SPDX-License-Identifier: MIT
if(KESP_TESTS)
  enable_testing()
  if(CMAKE_CROSSCOMPILING AND EXISTS /usr/src/googletest)
    find_package(GTest QUIET)
  else()
    find_package(GTest REQUIRED)
  endif()
  if(NOT GTest_FOUND)
    # Debian's cross compilers come without one, but its sources build for all.
    add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL)
  endif()
  include(GoogleTest)
endif()

# add_gauge_test(NAME COMMAND command...): a test whose command finds a simulated gauge at the real
# sysfs path. Skipped where the system allows no private mount namespace.
function(add_gauge_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" COMMAND)
  list(POP_FRONT arg_COMMAND command)
  if(TARGET ${command})
    set(command ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${command}>)
  endif()
  add_test(NAME ${name}
           COMMAND ${PROJECT_SOURCE_DIR}/simulation/with-gauge ${command} ${arg_COMMAND})
  set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
endfunction()
