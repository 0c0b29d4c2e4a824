// SPDX-License-Identifier: MIT
#pragma once

#if __cplusplus < 201703L
#error "the headers of libkesp_FuelGauge need C++17 or later, such as -std=c++17"
#include "C++17"  // ends the compilation here: each further error would only hide the one above
#endif

/// Marks what a shared library offers to others; everything else in it stays hidden.
#define KESP_EXPORT __attribute__((visibility("default")))
