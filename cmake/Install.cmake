# SPDX-License-Identifier: MIT
include(CMakePackageConfigHelpers)

# Folders may be absolute: those do not move with the prefix.
set(prefix "\${prefix}")
cmake_path(APPEND prefix ${CMAKE_INSTALL_LIBDIR} OUTPUT_VARIABLE KESP_PC_LIBDIR)
cmake_path(APPEND prefix ${CMAKE_INSTALL_INCLUDEDIR} OUTPUT_VARIABLE KESP_PC_INCLUDEDIR)
# From the place of a package's files to the prefix, so that an installed tree can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
           BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE KESP_PC_TO_PREFIX)

# install_library(TARGET): a library with its headers in a folder of their own, include/TARGET, its
# CMake package (the target kesp::NAME, for a TARGET kesp_NAME) and its pkg-config file. It finds the
# libraries that it needs itself beside it. Its version is TARGET_VERSION, whose major is the SONAME's.
function(install_library target)
  string(REGEX REPLACE "^kesp_" "" name ${target})
  set(version ${${target}_VERSION})
  string(REGEX MATCH "^[0-9]+" soversion ${version})
  set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${target})
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name}
    VERSION ${version}
    SOVERSION ${soversion}
    INSTALL_RPATH $ORIGIN
    POSITION_INDEPENDENT_CODE ON) # a static library may become a part of a shared one
  if(NOT KESP_INSTALL)
    return()
  endif()
  install(TARGETS ${target} EXPORT ${target}Targets FILE_SET HEADERS
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target})
  install(EXPORT ${target}Targets NAMESPACE kesp:: DESTINATION ${package_dir})

  configure_file(${PROJECT_SOURCE_DIR}/cmake/config.cmake.in ${target}Config.cmake @ONLY)
  write_basic_package_version_file(${target}ConfigVersion.cmake VERSION ${version} COMPATIBILITY SameMajorVersion)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}Config.cmake
                ${CMAKE_CURRENT_BINARY_DIR}/${target}ConfigVersion.cmake
          DESTINATION ${package_dir})

  set(description "${${target}_DESCRIPTION}")
  set(requires "") # a shared library finds what it needs itself
  if(NOT BUILD_SHARED_LIBS)
    set(requires "${${target}_REQUIRES}")
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${target}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
