// SPDX-License-Identifier: MIT
#pragma once

/// Marks what a shared library offers to others; everything else in it stays hidden.
#define KESP_EXPORT __attribute__((visibility("default")))
