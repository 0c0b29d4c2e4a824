# SPDX-License-Identifier: MIT
# What our own targets are compiled with, as the target kesp_options. None of it reaches a program that
# uses the library.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(kesp_options INTERFACE)

option(KESP_WERROR "Treat warnings as errors" OFF)
if(PROJECT_IS_TOP_LEVEL OR KESP_WERROR)
  target_compile_options(kesp_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi -Wundef
    -Wno-missing-field-initializers # what a designated initialiser leaves out has its default
    $<$<BOOL:${KESP_WERROR}>:-Werror>)
else()
  target_compile_options(kesp_options INTERFACE -w) # warnings that a parent turns on are for its own code
endif()

set(KESP_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined or thread")
if(KESP_SANITIZE)
  target_compile_options(kesp_options INTERFACE
    -fsanitize=${KESP_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kesp_options INTERFACE -fsanitize=${KESP_SANITIZE})
endif()

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # A file's size or time beyond 32 bits must not make it unreadable.
  target_compile_definitions(kesp_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
