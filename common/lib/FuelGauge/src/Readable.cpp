// SPDX-License-Identifier: MIT
#include "Readable.hpp"

#include <array>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <variant>

#include "Decimal.hpp"

namespace dral {
namespace {

using Answer = std::pair<FuelGaugeStatus, PropertyValue>;

// Reads the file as the alternative that a hint holds.
struct ReadAs {
  const std::string& location;

  Answer operator()(const std::string& /*hint*/) const {
    auto [status, text] = Readable::GetTextFileContents(location);
    std::erase(text, '\n');
    return {status, std::move(text)};
  }

  // A failed read leaves an empty text. The conversions below throw on it, so what they return is always
  // a success.
  Answer operator()(int /*hint*/) const {
    const auto [status, text] = Readable::GetTextFileContents(location);
    return {status, int{DecimalToInt32(text)}};
  }

  Answer operator()(unsigned int /*hint*/) const {
    const auto [status, text] = Readable::GetTextFileContents(location);
    const std::uint64_t value = DecimalToUint64(text);
    if (value > std::numeric_limits<std::uint32_t>::max()) {
      KESP_LOG("Readable", LogFailure) << "Value out of range for unsigned int: " << value;
      throw std::out_of_range(text);
    }
    return {status, static_cast<unsigned int>(value)};
  }

  Answer operator()(bool /*hint*/) const {
    const auto [status, text] = Readable::GetTextFileContents(location);
    return {status, DecimalToInt32(text) == 1};
  }

  Answer operator()(const LifetimeData& /*hint*/) const {
    return Readable::GetBinaryFileContents<LifetimeData>(location);
  }
};

}  // namespace

std::pair<FuelGaugeStatus, PropertyValue> Readable::Get(PropertyValue hint) const {
  const auto entry = propertyMap.find(property);
  if (entry == propertyMap.end()) {
    KESP_LOG("Readable", LogFailure) << "Readable Missing FuelGaugeProperty definition: "
                                     << static_cast<std::uint32_t>(property);
    throw std::logic_error("Readable Missing FuelGaugeProperty definition");
  }
  const std::string& location = entry->second.location;
  if (location.empty()) {
    KESP_LOG("Readable", LogFailure) << "FuelGaugeProperty:" << static_cast<std::uint32_t>(property)
                                     << "not resettable, filepath empty";
    throw std::logic_error("Readable Missing FuelGaugeProperty filepath");
  }
  return std::visit(ReadAs{location}, hint);
}

std::pair<FuelGaugeStatus, std::string> Readable::GetTextFileContents(const std::string& path) {
  File file(path, O_RDONLY);
  if (file.Error() != 0) {
    KESP_LOG("Readable", LogFailure) << "Readable::Get failed to open file: " << path
                                     << "error: " << std::strerror(file.Error());
    return {FuelGaugeStatus::FileError, {}};
  }
  std::string text;
  // On most hosts a page, the most that a sysfs attribute holds; the read fills what it uses.
  std::array<char, 4096> block;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  std::size_t count = 0;
  do {
    count = file.Read(block);
    text.append(block.data(), count);
  } while (count == block.size());
  // A dead bus shows up on read, not on open. Text read before the error cannot be trusted.
  if (file.Error() != 0 || text.empty()) {
    KESP_LOG("Readable", LogFailure) << "Bad or No data encountered in file:" << path;
    return {FuelGaugeStatus::NoData, {}};
  }
  return {FuelGaugeStatus::Success, std::move(text)};
}

}  // namespace dral
