// The accounts of the machine, and what of an answer is kept.
#include "platform/win32/win32_accounts.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/win32/win32_environment.h"

namespace tavr::win32 {
namespace {

// Of the user whom this process runs for.
std::string ownSid() {
  HANDLE token = nullptr;
  EXPECT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
  DWORD size = 0;
  GetTokenInformation(token, TokenUser, nullptr, 0, &size);
  std::vector<std::uint64_t> room(size / sizeof(std::uint64_t) + 1);
  EXPECT_TRUE(GetTokenInformation(token, TokenUser, room.data(), size, &size));
  CloseHandle(token);
  const PSID sid = reinterpret_cast<const TOKEN_USER*>(room.data())->User.Sid;
  return {static_cast<const char*>(sid), GetLengthSid(sid)};
}

TEST(Win32AccountsTest, TheUsersNameGivesTheUsersSid) {
  Win32Accounts accounts;
  std::string sid;
  ASSERT_EQ(accounts.sidOf(Win32Environment().get("UserName"), sid), kSuccess);
  EXPECT_EQ(sid, ownSid());
}

TEST(Win32AccountsTest, AnAnswerIsForItsOwnNameAlone) {
  Win32Accounts accounts;
  const std::string user = Win32Environment().get("UserName");
  std::string sid;
  ASSERT_EQ(accounts.sidOf(user, sid), kSuccess);
  EXPECT_EQ(accounts.sidOf("tavr nobody", sid), kNoneMapped);
  EXPECT_EQ(sid, "");
  EXPECT_EQ(accounts.sidOf("tavr nobody", sid), kNoneMapped) << "asked again";
  ASSERT_EQ(accounts.sidOf(user, sid), kSuccess);
  EXPECT_EQ(sid, ownSid());
  ASSERT_EQ(accounts.sidOf(user, sid), kSuccess) << "within the second";
  EXPECT_EQ(sid, ownSid());
}

}  // namespace
}  // namespace tavr::win32
