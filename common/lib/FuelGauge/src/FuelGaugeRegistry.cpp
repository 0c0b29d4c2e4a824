// SPDX-License-Identifier: MIT
#include "Bq27542FuelGauge.hpp"

#include <memory>
#include <string_view>
#include "FuelGaugeIF.hpp"
#include "IFConstructor.hpp"

namespace dral {

template KESP_EXPORT std::unique_ptr<Bq27542FuelGauge>
IFConstructor<Bq27542FuelGauge, std::string_view>(std::string_view arg);

// Made before the program's own static initialisers, one of which may create a gauge: in a program that is
// linked statically, they would have no order.
template <>
template <>
[[gnu::init_priority(101)]] IF<FuelGaugeIF>::Constructors<std::string_view>
    IF<FuelGaugeIF>::ifConstructors<std::string_view> = {
        {"DefaultIF", &IFConstructor<Bq27542FuelGauge, std::string_view>},
        {"Bq27542FuelGauge", &IFConstructor<Bq27542FuelGauge, std::string_view>},
};

template KESP_EXPORT std::unique_ptr<FuelGaugeIF>
InterfaceFactory::Create<FuelGaugeIF, std::string_view>(std::string_view name,
                                                        std::string_view arg);

}  // namespace dral
