// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "IF.hpp"
#include "KespExport.hpp"

namespace dral {

/// Builds implementations of an interface by their registered names.
class KESP_EXPORT InterfaceFactory {
 public:
  /// Builds a new object with the constructor registered as @p name, or as "DefaultIF" when there
  /// is no such name. Thread-safe. Retains neither @p name nor the arguments. Do not call it from a
  /// destructor of a static object, nor otherwise once the process is exiting: the registry is static too,
  /// and may be gone.
  ///
  /// The argument list chooses the registry, so name it: `Create<FuelGaugeIF,
  /// std::string_view>(…)`. Left to deduction, a `std::string` argument selects another registry,
  /// which is empty.
  ///
  /// @throws std::out_of_range when neither @p name nor "DefaultIF" is registered
  /// @throws std::bad_function_call when the registered function is empty
  /// @throws whatever the implementation's constructor throws
  template <typename Interface, typename... Args>
  static std::unique_ptr<Interface> Create(std::string_view name, Args... args) {
    const auto& constructors = IF<Interface>::template ifConstructors<Args...>;
    const auto found = constructors.find(name);
    const auto& constructor =
        found != constructors.end() ? found->second : constructors.at("DefaultIF");
    return constructor(std::move(args)...);
  }
};

}  // namespace dral
