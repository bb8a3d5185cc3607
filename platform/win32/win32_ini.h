// INI files through the profile services of Windows themselves, which get no path
// that another operation on files would refuse.
#pragma once

#include "platform/ini.h"

namespace tavr::win32 {

class Win32IniFiles : public IniFiles {
 public:
  std::string getString(std::string_view section, std::string_view key, std::string_view fallback,
                        std::uint32_t capacity, std::string_view file) override;
  std::int32_t getInt(std::string_view section, std::string_view key, std::int32_t fallback,
                      std::string_view file) override;
  std::string getSection(std::string_view section, std::uint32_t capacity,
                         std::string_view file) override;
  Status writeString(std::string_view section, std::string_view key, std::string_view value,
                     std::string_view file) override;
};

}  // namespace tavr::win32
