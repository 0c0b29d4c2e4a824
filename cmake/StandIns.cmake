# SPDX-License-Identifier: MIT
# This tree's stand-ins for the two platform libraries. Each carries a mark, by which an install tells it
# from the platform's own: it stops before it replaces one of those.

set(mark "FuelGauge's stand-in for a platform library")
# Their interfaces are the platform's: they do not change when the library's does.
foreach(name IN ITEMS Logger FileSystem)
  set(kesp_${name}_VERSION 1.0.0)
endforeach()
set(kesp_Logger_DESCRIPTION "Log records on standard error, where the platform has no logger")
set(kesp_FileSystem_DESCRIPTION "Which paths exist, where the platform has no path library")

if(KESP_INSTALL)
  string(CONFIGURE [=[
    set(libdir "@CMAKE_INSTALL_LIBDIR@")
    cmake_path(ABSOLUTE_PATH libdir BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
    foreach(name IN ITEMS Logger FileSystem)
      foreach(version IN ITEMS "" .1 .@kesp_Logger_VERSION@)
        set(file "$ENV{DESTDIR}${libdir}/libkesp_${name}.so${version}")
        if(EXISTS "${file}")
          file(STRINGS "${file}" ours LIMIT_COUNT 1 REGEX "@mark@")
          if(NOT ours)
            message(FATAL_ERROR "Not ours, and not replaced: ${file}\n"
                                "To use the platform's libraries, configure with -D KESP_PLATFORM=system")
          endif()
        endif()
      endforeach()
    endforeach()]=] check @ONLY)
  install(CODE "${check}") # runs before the installs of what is added below
endif()

file(CONFIGURE OUTPUT mark.cpp
     CONTENT "[[gnu::used, gnu::retain]] static const char mark[] = \"${mark}\";\n")
foreach(name IN ITEMS Logger FileSystem)
  add_subdirectory(common/lib/${name})
  target_sources(kesp_${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/mark.cpp)
endforeach()
