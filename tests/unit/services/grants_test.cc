// To whom the services grant access before they touch a key or a file: to the
// account that the environment names, on a machine that knows that one alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/program.h"
#include "services/access.h"
#include "services/access_list.h"
#include "tests/support/access_lists.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;

constexpr std::string_view kSessionManager = "system\\currentcontrolset\\control\\session manager";

const std::string kAnn = std::string("\1\1\0\0\0\0\0\5a\0\0\0", 12);
const std::string kSystem = std::string("\1\1\0\0\0\0\0\5s\0\0\0", 12);

std::string plainList() {
  AccessList list(AccessList::kHeaderSize + 20);
  EXPECT_TRUE(list.add(AccessEntry(kAceAllowed, 0, 3, kSystem)));
  return list.bytes();
}

// "ann 10000000": account and mask.
std::vector<std::string> shown(const SecurityDescriptor& descriptor) {
  std::vector<std::string> lines;
  if (!descriptor.dacl) return {"no list"};
  const AccessList list(*descriptor.dacl);
  for (const AccessEntry& entry : list.entries()) {
    char mask[16];
    std::snprintf(mask, sizeof mask, " %X", entry.mask());
    const bool everyone = entry.sid() == everyoneSid();
    lines.push_back((everyone              ? "everyone"
                     : entry.sid() == kAnn ? "ann"
                                           : "system") +
                    std::string(mask));
  }
  return lines;
}

class GrantsTest : public ::testing::Test {
 protected:
  GrantsTest() {
    accounts.sids["ann"] = kAnn;
    world.ini("[environment]\nUserName=ann\n");
    world.value("HKEY_CURRENT_USER\\Software\\a", "x", "1");
    world.key("HKEY_LOCAL_MACHINE\\" + std::string(kSessionManager));
    world.file("C:\\d\\a").file("C:\\$Recycle.Bin\\S-1\\$R1");
  }
  // The program on the machine with the lists, made at the first use.
  Program& program() {
    if (!program_) {
      Machine& m = world.machine();
      registry.emplace(m.registry);
      files.emplace(m.files);
      listed_.emplace(testing::machineWith(m, *registry, *files, accounts));
      program_.emplace(*listed_);
    }
    return *program_;
  }
  std::vector<std::string> keyList(std::string_view key) {
    const auto found = registry->lists.find(key);
    return found == registry->lists.end() ? std::vector<std::string>{"untouched"}
                                          : shown(found->second);
  }
  // The file with a list of its own, deleted as a track deletes it.
  void deleteFile(std::string_view path, const std::string& listed) {
    program();
    files->lists[listed].dacl = plainList();
    program().form.file_system_object.emplace();
    program().deletion.DeleteAFile(path);
  }

  testing::TestMachine world;
  testing::ListedAccounts accounts;
  std::optional<testing::ListedRegistry> registry;
  std::optional<testing::ListedFiles> files;

 private:
  std::optional<Machine> listed_;
  std::optional<Program> program_;
};

const auto kGranted = ElementsAre("ann 10000000", "everyone 10000000", "ann E0010000");

TEST_F(GrantsTest, ReadingASettingGrantsTheKeyToTheUser) {
  std::string text;
  EXPECT_TRUE(program().registry.fGetString(Root::kCurrentUser, "Software\\a", "x", text));
  EXPECT_EQ(text, "1");
  EXPECT_THAT(keyList("software\\a"), kGranted);
  EXPECT_FALSE(program().form.grant_failed);
}

TEST_F(GrantsTest, WritingASettingGrantsTheKeyToTheUser) {
  EXPECT_TRUE(program().registry.fSaveString(Root::kCurrentUser, "Software\\a", "x", "2"));
  EXPECT_EQ(world.registryText(Root::kCurrentUser, "Software\\a", "x"), "2");
  EXPECT_THAT(keyList("software\\a"), kGranted);
}

TEST_F(GrantsTest, ReadingThePendingListGrantsItsKeyToTheUser) {
  program().deletion.pndtxt();
  EXPECT_THAT(keyList(kSessionManager), kGranted);
  EXPECT_FALSE(program().form.grant_failed);
}

TEST_F(GrantsTest, SavingThePendingListGrantsItsKeyToTheUser) {
  program().deletion.savepending();
  EXPECT_THAT(keyList(kSessionManager), kGranted);
}

TEST_F(GrantsTest, AFileThatIsDeletedIsGrantedToTheUserWithFullRightsByItsTrimmedPath) {
  deleteFile("  C:\\d\\a ", "C:\\d\\a");
  EXPECT_EQ(files->written, 1);
  EXPECT_THAT(shown(files->lists["C:\\d\\a"]), ElementsAre("system 3", "ann 10000000"));
  EXPECT_FALSE(world.exists("C:\\d\\a"));
}

TEST_F(GrantsTest, AFileThatDoesNotShowItsListGoesAllTheSame) {
  program();
  files->read_status = kAccessDenied;
  deleteFile("C:\\d\\a", "C:\\d\\a");
  EXPECT_EQ(files->written, 0);
  EXPECT_FALSE(world.exists("C:\\d\\a"));
}

TEST_F(GrantsTest, AFileThatRefusesANewListGoesAllTheSame) {
  program();
  files->refuses = true;
  deleteFile("C:\\d\\a", "C:\\d\\a");
  EXPECT_EQ(files->written, 1);
  EXPECT_THAT(shown(files->lists["C:\\d\\a"]), ElementsAre("system 3"));
  EXPECT_FALSE(world.exists("C:\\d\\a"));
}

TEST_F(GrantsTest, AFileOfTheRecycleBinGoesAndKeepsItsList) {
  const std::string path = "C:\\$RECYCLE.bin\\S-1\\$R1";
  deleteFile(path, path);
  EXPECT_EQ(files->written, 0);
  EXPECT_EQ(accounts.lookups, 0);
  EXPECT_THAT(shown(files->lists[path]), ElementsAre("system 3"));
  EXPECT_FALSE(world.exists("C:\\$Recycle.Bin\\S-1\\$R1"));
}

}  // namespace
}  // namespace tavr
