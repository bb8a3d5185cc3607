#include "config/look_color.h"

#include <string>

#include "basic/number.h"
#include "basic/text.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr std::int32_t kDefaultColor = 10118205;

}  // namespace

std::int32_t lookColor(Machine& machine) {
  std::string text;
  if (const auto provider = machine.wmi.bindRegistryProvider(kRegistryProviderMoniker)) {
    provider->getExpandedStringValue(static_cast<std::uint32_t>(Root::kLocalMachine),
                                     settings::kLookKey, "color", text);
  }
  return Trim(text).empty() ? kDefaultColor : toLong(text);
}

}  // namespace tavr
