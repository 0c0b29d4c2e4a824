# SPDX-License-Identifier: MIT
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(triplet s390x-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
