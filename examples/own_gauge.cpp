// SPDX-License-Identifier: MIT
// A gauge of your own, registered in the factory: the code under test only gets another name.
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

int main() {
  // Before any thread creates a gauge.
  IF<FuelGaugeIF>::ifConstructors<std::string_view>.emplace(
      "LowGauge", IFConstructor<LowGauge, std::string_view>);
  const auto gauge = InterfaceFactory::Create<FuelGaugeIF, std::string_view>("LowGauge", "");
  for (const auto property : {FuelGaugeProperty::StateOfCharge, FuelGaugeProperty::VoltageNow}) {
    const auto [status, number] = gauge->Get<int>(property);
    std::cout << NameOf(property) << " " << NameOf(status) << " " << number << "\n";
  }
}
