# SPDX-License-Identifier: MIT
# The two platform libraries, as the targets kesp::Logger and kesp::FileSystem: the stand-ins of this
# tree, or those that the system (a device's SDK) has, by CMake package or by pkg-config.

set(KESP_PLATFORM standin CACHE STRING "Where kesp_Logger and kesp_FileSystem come from")
set_property(CACHE KESP_PLATFORM PROPERTY STRINGS standin system)

if(KESP_PLATFORM STREQUAL "standin")
  add_subdirectory(common/lib/Logger)
  add_subdirectory(common/lib/FileSystem)
elseif(KESP_PLATFORM STREQUAL "system")
  message(STATUS "KESP_PLATFORM is system: no tests, since they capture records in the stand-in")
  set(BUILD_TESTING OFF)
  foreach(library IN ITEMS Logger FileSystem)
    find_package(kesp_${library} CONFIG QUIET)
    if(NOT TARGET kesp::${library})
      find_package(PkgConfig REQUIRED)
      pkg_check_modules(kesp_${library} REQUIRED IMPORTED_TARGET GLOBAL kesp_${library})
      add_library(kesp::${library} ALIAS PkgConfig::kesp_${library})
    endif()
  endforeach()
else()
  message(FATAL_ERROR "KESP_PLATFORM is '${KESP_PLATFORM}'; it must be 'standin' or 'system'")
endif()
