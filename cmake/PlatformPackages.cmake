# SPDX-License-Identifier: MIT
# Finds the platform's own libraries, as kesp::Logger and kesp::FileSystem, by CMake package or else by
# pkg-config. Installed as well: a program that links kesp::FuelGauge needs them too.

include(CMakeFindDependencyMacro)
foreach(library IN ITEMS Logger FileSystem)
  if(TARGET kesp::${library})
    continue()
  endif()
  find_package(kesp_${library} CONFIG QUIET HINTS ${CMAKE_CURRENT_LIST_DIR}/..)
  if(NOT TARGET kesp::${library})
    find_dependency(PkgConfig)
    pkg_check_modules(kesp_${library} REQUIRED IMPORTED_TARGET GLOBAL kesp_${library})
    add_library(kesp::${library} ALIAS PkgConfig::kesp_${library})
  endif()
endforeach()
