#include "platform/win32/win32_accounts.h"

#include <windows.h>

#include "platform/win32/wide.h"

namespace tavr::win32 {

Status Win32Accounts::sidOf(std::string_view account, std::string& sid) {
  sid.clear();
  const std::wstring name = wide(account);
  DWORD size = 0;
  DWORD domain_size = 0;
  SID_NAME_USE use = SidTypeUnknown;
  LookupAccountNameW(nullptr, name.c_str(), nullptr, &size, nullptr, &domain_size, &use);
  if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) return GetLastError();
  std::string bytes(size, '\0');
  std::wstring domain(domain_size, L'\0');
  if (!LookupAccountNameW(nullptr, name.c_str(), bytes.data(), &size, domain.data(), &domain_size,
                          &use)) {
    return GetLastError();
  }
  bytes.resize(GetLengthSid(bytes.data()));
  sid = std::move(bytes);
  return kSuccess;
}

}  // namespace tavr::win32
