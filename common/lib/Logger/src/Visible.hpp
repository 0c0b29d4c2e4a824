// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace dral {

/// @return @p text with each byte that is not printable ASCII as "\x0a". Text comes from devices, files
///         and command lines: a newline in it must not begin a record that nobody logged, nor an escape
///         sequence reach the terminal.
[[gnu::visibility("hidden")]] std::string Visible(std::string_view text);

}  // namespace dral
