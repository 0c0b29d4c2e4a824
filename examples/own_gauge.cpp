// SPDX-License-Identifier: MIT
// A class of one's own under a name in the factory: the code under test is only told another name.
#include <FuelGaugeIF.hpp>
#include <FuelGaugeNames.hpp>
#include <IFConstructor.hpp>
#include <iostream>

using namespace dral;

class LowGauge : public FuelGaugeIF {
 public:
  explicit LowGauge(std::string_view /*lifetimeFile*/) {}

 private:
  FuelGaugeStatus DoSet(FuelGaugeProperty /*property*/, PropertyValue /*value*/) override {
    return FuelGaugeStatus::Failure;
  }
  std::pair<FuelGaugeStatus, PropertyValue> DoGet(FuelGaugeProperty property,
                                                  PropertyValue hint) override {
    if (property == FuelGaugeProperty::StateOfCharge) {
      return {FuelGaugeStatus::Success, 3};
    }
    return {FuelGaugeStatus::Failure, hint};
  }
  FuelGaugeStatus DoReset(FuelGaugeProperty /*property*/) override {
    return FuelGaugeStatus::Failure;
  }
};

// Before main, or else before any thread is there that creates a gauge.
const bool registered = IF<FuelGaugeIF>::ifConstructors<std::string_view>
                            .emplace("LowGauge", IFConstructor<LowGauge, std::string_view>)
                            .second;

int main() {
  const auto gauge = InterfaceFactory::Create<FuelGaugeIF, std::string_view>("LowGauge", "");
  for (const auto property : {FuelGaugeProperty::StateOfCharge, FuelGaugeProperty::VoltageNow}) {
    const auto [status, number] = gauge->Get<int>(property);
    std::cout << NameOf(property) << " " << NameOf(status) << " " << number << "\n";
  }
  return registered ? 0 : 1;
}
