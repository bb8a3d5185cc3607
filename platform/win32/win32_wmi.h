// Windows Management Instrumentation of this computer, through COM.
#pragma once

#include "platform/wmi.h"

namespace tavr::win32 {

class WmiLocator;

class Win32Wmi : public Wmi {
 public:
  Win32Wmi();
  ~Win32Wmi() override;
  Win32Wmi(const Win32Wmi&) = delete;
  Win32Wmi& operator=(const Win32Wmi&) = delete;

  std::unique_ptr<StdRegProv> bindRegistryProvider(std::string_view moniker) override;
  bool queryProcessIds(std::string_view query, std::vector<std::uint32_t>& ids) override;

 private:
  std::unique_ptr<WmiLocator> locator_;
};

}  // namespace tavr::win32
