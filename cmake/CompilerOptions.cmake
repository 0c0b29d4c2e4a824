# SPDX-License-Identifier: MIT
# What every target of the project is compiled with; none of it reaches a user's build.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_compile_options(
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi -Wundef
  -Wno-missing-field-initializers) # what a designated initialiser leaves out has its default

option(KESP_WERROR "Treat warnings as errors" ON)
if(KESP_WERROR)
  add_compile_options(-Werror)
endif()

set(KESP_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined or thread")
if(KESP_SANITIZE)
  add_compile_options(-fsanitize=${KESP_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KESP_SANITIZE})
endif()

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # A file's size or time beyond 32 bits must not make it unreadable.
  add_compile_definitions(_FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
