// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"
#include "IF.hpp"
#include "InterfaceFactory.hpp"
#include "KespExport.hpp"
#include "PropertyValue.hpp"

namespace dral {

/// A battery fuel gauge. `OpenFuelGauge` gives one, and so does the factory, by name:
///
///     auto gauge = InterfaceFactory::Create<FuelGaugeIF, std::string_view>("DefaultIF", "");
///     auto [status, microvolts] = gauge->Get<int>(FuelGaugeProperty::VoltageNow);
///
/// The second argument is the path of a lifetime override file (see `LifetimeDataParser`), empty
/// for none. Creation throws `std::invalid_argument` or `std::out_of_range` when a field's value in
/// that file is no number or too large, and `std::bad_alloc`. The operations answer with a status
/// and throw only `std::bad_alloc`, when there is no memory left to pass a value along or to log a
/// failure.
///
/// After each operation `errno` is 0, or the error of the system call that failed: of a read's open or
/// read, whatever type was asked for; of a write's stat, open, write or close, also when the status is
/// Success, since the kernel may refuse the value of a file that it opened. It is 0 when the request or the
/// file's contents are the reason. A gauge of a user's own may do the same, but need not.
///
/// Thread-safe: any thread may call any operation at any time, and the file operations of one
/// object never overlap. Two objects, or two processes, do not exclude each other: to change a record
/// beside other writers, hold a lock from the read to the write, such as flock(2) on the property's
/// file, as the fuelgauge command does. Destroy the object when no call is running.
class KESP_EXPORT FuelGaugeIF {
 public:
  FuelGaugeIF();
  virtual ~FuelGaugeIF();

  /// Writes @p value to @p property, as text or, for a `LifetimeData`, as the binary record.
  /// @return Success once the file was opened and written, even when the kernel then refused the
  ///         value; FileError when the file is missing or cannot be opened; Failure when the
  ///         property is unknown or not settable
  [[nodiscard]] FuelGaugeStatus Set(FuelGaugeProperty property, PropertyValue value);

  /// Reads @p property as the alternative that @p hint holds. The answer always holds that
  /// alternative, but for `LifetimeDataResetValue`, which answers the value as it is kept.
  /// @return Success and the value. As a string: FileError or NoData and an empty string; as a
  ///         record: FileError and the default record, or NoData and what could be read of it; as
  ///         a number or bool: Failure and @p hint unchanged when the file is missing, unreadable
  ///         or holds no number that fits. Failure and @p hint for an unknown property.
  [[nodiscard]] std::pair<FuelGaugeStatus, PropertyValue> Get(FuelGaugeProperty property,
                                                              PropertyValue hint) {
    return DoGet(property, std::move(hint));
  }

  /// Reads @p property as a @p T, one of the alternatives of `PropertyValue`.
  /// @return as above with the hint `T{}`; Failure and `T{}` when the answer holds another type
  template <typename T>
  [[nodiscard]] std::pair<FuelGaugeStatus, T> Get(FuelGaugeProperty property) {
    static_assert(std::is_constructible_v<PropertyValue, std::in_place_type_t<T>>,
                  "T must be one of the alternatives of PropertyValue");
    auto [status, value] = Get(property, PropertyValue{std::in_place_type<T>});
    if (auto* held = std::get_if<T>(&value)) {
      return {status, std::move(*held)};
    }
    return {FuelGaugeStatus::Failure, T{}};
  }

  /// Writes the property's reset value.
  /// @return as `Set`
  [[nodiscard]] FuelGaugeStatus Reset(FuelGaugeProperty property);

 protected:
  // What an implementation supplies. The hooks are called from several threads at once, and what they
  // throw reaches the caller: to keep the promises above, an implementation serialises its file
  // operations and turns its exceptions into statuses.

  /// Serves `Set`.
  virtual FuelGaugeStatus DoSet(FuelGaugeProperty property, PropertyValue value) = 0;
  /// Serves `Get`.
  virtual std::pair<FuelGaugeStatus, PropertyValue> DoGet(FuelGaugeProperty property,
                                                          PropertyValue hint) = 0;
  /// Serves `Reset`.
  virtual FuelGaugeStatus DoReset(FuelGaugeProperty property) = 0;

 private:
  class Impl;
  std::unique_ptr<Impl> impl;
};

/// The gauges that the library offers: "Bq27542FuelGauge", and the same as "DefaultIF". Declared
/// here and defined in the library alone, so that every module of a process asks one registry.
template <>
template <>
KESP_EXPORT IF<FuelGaugeIF>::Constructors<std::string_view>
    IF<FuelGaugeIF>::ifConstructors<std::string_view>;

extern template KESP_EXPORT std::unique_ptr<FuelGaugeIF>
InterfaceFactory::Create<FuelGaugeIF, std::string_view>(std::string_view name,
                                                        std::string_view arg);

}  // namespace dral
