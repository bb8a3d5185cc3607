// services/access.h on files whose lists Windows itself keeps.
#include <vector>

#include "platform/win32/wide.h"
#include "services/access.h"
#include "tests/contract/contract_test.h"
#include "tests/windows/access_entries.h"

namespace tavr::contract {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using win32::wide;

class FileAccess : public ContractTest {
 protected:
  std::string user() { return machine().environment.get("UserName"); }
  std::string userSid() {
    std::string sid;
    EXPECT_EQ(machine().accounts.sidOf(user(), sid), kSuccess) << user();
    return sid;
  }
  void grant(const std::string& path) { GrantFileAccess(machine(), user(), path, kMask); }
  std::vector<Entry> list(const std::string& path) {
    SecurityDescriptor found;
    EXPECT_EQ(machine().files.security(path, found), kSuccess) << path;
    return entriesOf(found, kFileRights);
  }
  // Of the user's entries in the list.
  std::vector<int> userFlags(const std::string& path) {
    std::vector<int> flags;
    for (const Entry& entry : list(path)) {
      if (entry.sid == userSid() && entry.type == kAceAllowed) flags.push_back(entry.flags);
    }
    return flags;
  }

  static constexpr std::uint32_t kMask = 0x10000000;  // GENERIC_ALL, as the program grants it
};

TEST_F(FileAccess, TheUserHasOneEntryForAFile) {
  const std::string path = file("a");
  grant(path);
  EXPECT_THAT(userFlags(path), ElementsAre(0));
}

TEST_F(FileAccess, TheUserHasTwoEntriesForAFolder) {
  on().plantFolder(at("sub"));
  grant(at("sub"));
  EXPECT_THAT(userFlags(at("sub")), ElementsAre(kObjectInherit | kInheritOnly, kContainerInherit));
}

TEST_F(FileAccess, TheUsersEntryHoldsAllRightsOfAFile) {
  const std::string path = file("a");
  grant(path);
  EXPECT_THAT(list(path), Contains(Entry{kAceAllowed, 0, userSid(), FILE_ALL_ACCESS}));
}

TEST_F(FileAccess, ALaterGrantLeavesTheListAsItIs) {
  const std::string path = file("a");
  grant(path);
  const std::vector<Entry> once = list(path);
  EXPECT_THAT(once, ::testing::Not(IsEmpty()));
  grant(path);
  grant(path);
  EXPECT_EQ(list(path), once);
}

TEST_F(FileAccess, TheEntriesOfOthersStayBefore) {
  const std::string path = file("a");
  std::vector<Entry> others = list(path);
  std::erase_if(others, [this](const Entry& entry) { return entry.sid == userSid(); });
  grant(path);
  std::vector<Entry> after = list(path);
  ASSERT_FALSE(after.empty());
  EXPECT_EQ(after.back().sid, userSid());
  std::erase_if(after, [this](const Entry& entry) { return entry.sid == userSid(); });
  EXPECT_EQ(after, others);
}

TEST_F(FileAccess, TheOwnerStays) {
  const std::string path = file("a");
  const std::string before = ownerOf(wide(path), SE_FILE_OBJECT);
  EXPECT_NE(before, "");
  grant(path);
  EXPECT_EQ(ownerOf(wide(path), SE_FILE_OBJECT), before);
}

TEST_F(FileAccess, TheFileIsReadAndWrittenAsBefore) {
  const std::string path = file("a", "text");
  grant(path);
  EXPECT_EQ(on().contents(path), "text");
  const OpenedFile opened = machine().files.open(path, OpenMode::kBinary);
  EXPECT_EQ(opened.status, kSuccess);
}

TEST_F(FileAccess, WhatIsMissingIsNotMade) {
  grant(at("none"));
  EXPECT_FALSE(on().exists(at("none")));
}

TEST_F(FileAccess, AnAccountThatNobodyKnowsChangesNothing) {
  const std::string path = file("a");
  const std::vector<Entry> before = list(path);
  GrantFileAccess(machine(), "tavr contract nobody", path, kMask);
  EXPECT_EQ(list(path), before);
}

}  // namespace
}  // namespace tavr::contract
