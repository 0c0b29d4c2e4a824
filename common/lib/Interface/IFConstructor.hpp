// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "KespExport.hpp"

namespace dral {

/// Builds one implementation from its constructor's arguments; its address is what a registry
/// holds.
/// @throws whatever the implementation's constructor throws
template <typename Implementation, typename... Args>
KESP_EXPORT std::unique_ptr<Implementation> IFConstructor(Args... args) {
  return std::make_unique<Implementation>(std::move(args)...);
}

}  // namespace dral
