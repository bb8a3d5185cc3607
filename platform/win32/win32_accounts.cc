#include "platform/win32/win32_accounts.h"

#include <windows.h>

#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

constexpr std::uint64_t kHolds = 1000;  // ms
constexpr DWORD kLongestDomain = 256;   // characters, a DNS name's limit and its end

Status lookUp(std::string_view account, std::string& sid) {
  sid.assign(SECURITY_MAX_SID_SIZE, '\0');
  std::wstring domain(kLongestDomain, L'\0');
  DWORD size = SECURITY_MAX_SID_SIZE;
  DWORD domain_size = kLongestDomain;
  SID_NAME_USE use = SidTypeUnknown;
  const bool found = LookupAccountNameW(nullptr, wide(account).c_str(), sid.data(), &size,
                                        domain.data(), &domain_size, &use) != FALSE;
  const Status status = found ? kSuccess : lastStatus();
  sid.resize(found ? GetLengthSid(sid.data()) : 0);
  return status;
}

}  // namespace

Status Win32Accounts::sidOf(std::string_view account, std::string& sid) {
  const std::uint64_t now = GetTickCount64();
  if (now < known_until_ && account == known_account_) {
    sid = known_sid_;
    return kSuccess;
  }
  const Status status = lookUp(account, sid);
  known_until_ = status == kSuccess ? now + kHolds : 0;
  known_account_ = account;
  known_sid_ = sid;
  return status;
}

}  // namespace tavr::win32
