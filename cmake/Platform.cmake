# SPDX-License-Identifier: MIT
# Where the two platform libraries come from: the stand-ins of this tree, or the system (a device's
# SDK). Either way they are the targets kesp::Logger and kesp::FileSystem.

set(KESP_PLATFORM standin CACHE STRING "Where kesp_Logger and kesp_FileSystem come from")
set_property(CACHE KESP_PLATFORM PROPERTY STRINGS standin system)

if(KESP_PLATFORM STREQUAL "system")
  message(STATUS "KESP_PLATFORM is system: no tests, since they capture records in the stand-in")
  set(KESP_TESTS OFF)
  include(cmake/PlatformPackages.cmake)
elseif(NOT KESP_PLATFORM STREQUAL "standin")
  message(FATAL_ERROR "KESP_PLATFORM is '${KESP_PLATFORM}'; it must be 'standin' or 'system'")
endif()
