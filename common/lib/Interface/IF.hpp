// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "KespExport.hpp"

namespace dral {

/// The registries of one interface: for every list of constructor arguments, the named functions
/// that build an implementation of it.
template <typename Interface>
class KESP_EXPORT IF {
 public:
  /// From a registered name to its constructor function. Names are views of string literals.
  template <typename... Args>
  using Constructors =
      std::unordered_map<std::string_view, std::function<std::unique_ptr<Interface>(Args...)>>;

  /// The registry for one argument list; empty unless a library fills it while it is loaded.
  /// A program may add names of its own: in a static initialiser, or before it has threads that
  /// create objects. As long as none is added, any thread may read it.
  template <typename... Args>
  static Constructors<Args...> ifConstructors;
};

template <typename Interface>
template <typename... Args>
typename IF<Interface>::template Constructors<Args...> IF<Interface>::ifConstructors;

}  // namespace dral
