// The accounts that this machine knows.
#pragma once

#include "platform/security.h"

namespace tavr::win32 {

class Win32Accounts : public Accounts {
 public:
  Status sidOf(std::string_view account, std::string& sid) override;
};

}  // namespace tavr::win32
