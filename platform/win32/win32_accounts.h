// The accounts that this machine knows.
#pragma once

#include <cstdint>

#include "platform/security.h"

namespace tavr::win32 {

class Win32Accounts : public Accounts {
 public:
  /// A lookup may ask a server of the domain, and every deletion asks for the same
  /// account: an answer holds for a second.
  Status sidOf(std::string_view account, std::string& sid) override;

 private:
  std::string known_account_;
  std::string known_sid_;
  std::uint64_t known_until_ = 0;  // ms since the system's start
};

}  // namespace tavr::win32
