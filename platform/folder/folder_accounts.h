// A machine folder keeps no accounts and no access lists.
#pragma once

#include "platform/security.h"

namespace tavr::folder {

class FolderAccounts : public Accounts {
 public:
  Status sidOf(std::string_view /*account*/, std::string& sid) override {
    sid.clear();
    return kNoneMapped;
  }
};

}  // namespace tavr::folder
