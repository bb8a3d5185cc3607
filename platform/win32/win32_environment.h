// The surroundings of this process.
#pragma once

#include "platform/environment.h"

namespace tavr::win32 {

class Win32Environment : public Environment {
 public:
  std::string get(std::string_view name) override;
  std::string expand(std::string_view text) override;
  std::string appPath() override;
  std::string exeName() override;
};

}  // namespace tavr::win32
