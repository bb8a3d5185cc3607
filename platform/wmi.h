// Windows Management Instrumentation, as far as the program uses it: the
// registry provider and the list of processes.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace tavr {

/// The registry provider of this computer (".").
inline constexpr std::string_view kRegistryProviderMoniker =
    "winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv";

class Wmi {
 public:
  virtual ~Wmi() = default;

  /// Binds the registry provider by its moniker. Null: WMI is absent or refuses.
  virtual std::unique_ptr<StdRegProv> bindRegistryProvider(std::string_view moniker) = 0;

  /// Binds "winmgmts:" and runs a query over Win32_Process; `ids` receives the
  /// property processid of each answer, in the machine's order. Name in the
  /// query compares without case. An answer that breaks off counts as far as it
  /// came. False: WMI is absent, refuses, or cannot read the query.
  virtual bool queryProcessIds(std::string_view query, std::vector<std::uint32_t>& ids) = 0;
};

}  // namespace tavr
