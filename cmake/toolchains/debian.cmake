# SPDX-License-Identifier: MIT
# Builds for the machine CMAKE_SYSTEM_PROCESSOR with Debian's cross compiler for `triplet`, and runs
# what was built in QEMU's user-mode emulator. Included by the file of each target.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${triplet}-gcc) # GoogleTest's project asks for one
set(CMAKE_CXX_COMPILER ${triplet}-g++)

# The target's loader and its libraries, libstdc++ among them, are here.
set(CMAKE_FIND_ROOT_PATH /usr/${triplet})
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${CMAKE_SYSTEM_PROCESSOR} -L ${CMAKE_FIND_ROOT_PATH})

# Nothing of the host's is found, except programs and the packages that are headers alone.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${CMAKE_FIND_ROOT_PATH}/lib/pkgconfig)
set(CLI11_DIR /usr/share/cmake/CLI11)
set(nlohmann_json_DIR /usr/share/cmake/nlohmann_json)
