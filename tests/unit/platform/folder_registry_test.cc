#include "platform/folder/folder_registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/folder/registry_reader.h"

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kAll = 0x2003F;
constexpr std::uint32_t kAll64 = 0x2013F;
constexpr std::uint32_t kAll32 = 0x2023F;

constexpr const char* kText = R"(Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Key]
"text"="abc"
@="default"
"unended"=hex(1):61,00,62,00
"many NULs"=hex(1):61,00,00,00,00,00
"inner NUL"=hex(1):61,00,00,00,62,00
"odd"=hex(1):61,00,62
"no bytes"=hex(1):
"just the NUL"=""
"expand"=hex(2):e4,00,3d,d8,3b,dc,00,00
"number"=dword:00000105
"binary"=hex:00,ff,00
"strings"=hex(7):61,00,00,00,00,00,00,00
"unclosed"=hex(7):61,00
"wide"=hex(b):01,02,03,04,05,06,07,08

[HKEY_CURRENT_USER\Software\Key\beta]

[HKEY_CURRENT_USER\Software\Key\Alpha]

[HKEY_CURRENT_USER\Software\Key\alpha_1\Deep]

[HKEY_LOCAL_MACHINE\SOFTWARE\Both]
"view"="64"

[HKEY_LOCAL_MACHINE\SOFTWARE\Only64]

[HKEY_LOCAL_MACHINE\SOFTWARE\WOW6432Node\Both]
"view"="32"

[HKEY_LOCAL_MACHINE\SOFTWARE\WOW6432Node\Only32]

[HKEY_LOCAL_MACHINE\SYSTEM\Software\Both]
)";

class FolderRegistryTest : public ::testing::Test {
 protected:
  FolderRegistryTest() { readRegistry("registry.reg", kText, tree_); }

  std::unique_ptr<RegistryKey> open(Root root, std::string_view path, std::uint32_t access) {
    OpenedKey opened = registry_.open(root, path, access);
    EXPECT_EQ(opened.status, kSuccess) << path;
    return std::move(opened.key);
  }
  std::unique_ptr<RegistryKey> key() { return open(Root::kCurrentUser, "Software\\Key", kAll64); }
  Status statusOf(Root root, std::string_view path, std::uint32_t access) {
    return registry_.open(root, path, access).status;
  }

  static std::vector<std::string> subkeys(RegistryKey& key) {
    std::vector<std::string> names;
    std::string name;
    Status status = kSuccess;
    while ((status = key.enumKey(static_cast<std::uint32_t>(names.size()), name)) == kSuccess) {
      names.push_back(name);
    }
    EXPECT_EQ(status, kNoMoreItems);
    return names;
  }

  static std::string text(RegistryKey& key, std::string_view name) {
    RegistryData data;
    EXPECT_EQ(key.queryValue(name, 1024, data), kSuccess) << name;
    return data.data;
  }
  std::string view(std::string_view path, std::uint32_t access) {
    return text(*open(Root::kLocalMachine, path, access), "view");
  }

  RegistryTree tree_;
  Faults faults_;
  FolderRegistry registry_{tree_, faults_};
};

std::string withNuls(const char* text, std::size_t size) { return std::string(text, size); }

TEST_F(FolderRegistryTest, PathsAreFoundWithoutCaseAndWithRepeatedOrTrailingBackslashes) {
  for (const char* path : {"SOFTWARE\\KEY", "software\\key\\", "Software\\\\Key\\\\"}) {
    EXPECT_EQ(statusOf(Root::kCurrentUser, path, kAll), kSuccess) << path;
  }
  EXPECT_EQ(statusOf(Root::kCurrentUser, "Software\\Ke", kAll), kFileNotFound);
  EXPECT_EQ(statusOf(Root::kCurrentUser, "Software\\Key\\beta\\x", kAll), kFileNotFound);
  EXPECT_EQ(statusOf(static_cast<Root>(1), "Software", kAll), kInvalidHandle);
}

TEST_F(FolderRegistryTest, ALeadingBackslashIsABadPathUnderAllRootsButTheClasses) {
  for (const Root root : {Root::kCurrentUser, Root::kLocalMachine, Root::kUsers}) {
    EXPECT_EQ(statusOf(root, "\\Software", kAll), kBadPathname);
    EXPECT_EQ(statusOf(root, "\\", kAll), kBadPathname);
    EXPECT_EQ(registry_.create(root, "\\new", "", kAll).status, kBadPathname);
    EXPECT_EQ(registry_.deleteKey(root, "\\Software"), kBadPathname);
  }
  EXPECT_FALSE(tree_.changed());
  EXPECT_EQ(registry_.create(Root::kClassesRoot, "\\.txt", "", kAll).status, kSuccess);
  EXPECT_EQ(statusOf(Root::kClassesRoot, "\\.TXT", kAll), kSuccess);
  EXPECT_EQ(registry_.deleteKey(Root::kClassesRoot, "\\.txt"), kSuccess);
  EXPECT_EQ(statusOf(static_cast<Root>(1), "\\Software", kAll), kInvalidHandle);
}

TEST_F(FolderRegistryTest, AKeyBelowARootIsDeletedThroughTheRootsHandle) {
  ASSERT_EQ(registry_.create(Root::kUsers, "direct", "", kAll).status, kSuccess);
  EXPECT_EQ(open(Root::kUsers, "", kAll)->deleteKey("direct"), kSuccess);
  EXPECT_EQ(statusOf(Root::kUsers, "direct", kAll), kFileNotFound);
}

TEST_F(FolderRegistryTest, EveryRootOpensWithAnEmptyPath) {
  EXPECT_THAT(subkeys(*open(Root::kLocalMachine, "", kAll64)), ElementsAre("SOFTWARE", "SYSTEM"));
  EXPECT_THAT(subkeys(*open(Root::kClassesRoot, "\\", kAll64)), IsEmpty());
  EXPECT_THAT(subkeys(*open(Root::kUsers, "", kAll)), IsEmpty());
}

TEST_F(FolderRegistryTest, SubkeysEnumerateInTheOrderOfTheirUpperCasedNames) {
  EXPECT_THAT(subkeys(*key()), ElementsAre("Alpha", "alpha_1", "beta"));
}

TEST_F(FolderRegistryTest, ValuesEnumerateInFileOrderWithTheirSizes) {
  struct Row {
    std::string name;
    std::uint32_t type;
    std::uint32_t size;
    bool operator==(const Row&) const = default;
  };
  const auto opened = key();
  std::vector<Row> rows;
  for (Row row; opened->enumValue(static_cast<std::uint32_t>(rows.size()), row.name, row.type,
                                  row.size) == kSuccess;) {
    rows.push_back(row);
  }
  EXPECT_THAT(rows, ElementsAre(Row{"text", 1, 4}, Row{"", 1, 8}, Row{"unended", 1, 3},
                                Row{"many NULs", 1, 2}, Row{"inner NUL", 1, 4}, Row{"odd", 1, 2},
                                Row{"no bytes", 1, 0}, Row{"just the NUL", 1, 1},
                                Row{"expand", 2, 4}, Row{"number", 4, 4}, Row{"binary", 3, 3},
                                Row{"strings", 7, 8}, Row{"unclosed", 7, 2}, Row{"wide", 11, 8}));
  std::string name;
  std::uint32_t number = 0;
  EXPECT_EQ(opened->enumValue(14, name, number, number), kNoMoreItems);
}

TEST_F(FolderRegistryTest, TextEndsInExactlyOneNulHoweverItIsStored) {
  const auto opened = key();
  EXPECT_EQ(text(*opened, "TEXT"), withNuls("abc\0", 4));
  EXPECT_EQ(text(*opened, ""), withNuls("default\0", 8));
  EXPECT_EQ(text(*opened, "unended"), withNuls("ab\0", 3));
  EXPECT_EQ(text(*opened, "many NULs"), withNuls("a\0", 2));
  EXPECT_EQ(text(*opened, "inner NUL"), withNuls("a\0b\0", 4));
  EXPECT_EQ(text(*opened, "odd"), withNuls("a\0", 2));
  EXPECT_EQ(text(*opened, "just the NUL"), withNuls("\0", 1));
  EXPECT_EQ(text(*opened, "expand"), withNuls("\xC3\xA4\xF0\x9F\x90\xBB\0", 7));
}

TEST_F(FolderRegistryTest, OtherTypesComeAsTheirBytesAndStringsAsText) {
  const auto opened = key();
  EXPECT_EQ(text(*opened, "number"), withNuls("\x05\x01\0\0", 4));
  EXPECT_EQ(text(*opened, "binary"), withNuls("\0\xFF\0", 3));
  EXPECT_EQ(text(*opened, "strings"), withNuls("a\0\0\0", 4));
  EXPECT_EQ(text(*opened, "unclosed"), withNuls("a\0\0", 3));
  EXPECT_EQ(text(*opened, "wide"), "\x01\x02\x03\x04\x05\x06\x07\x08");
}

TEST_F(FolderRegistryTest, ABufferThatIsTooSmallGivesTypeAndSizeButNoData) {
  const auto opened = key();
  RegistryData data;
  EXPECT_EQ(opened->queryValue("text", 0, data), kMoreData);
  EXPECT_EQ(data.type, kRegSz);
  EXPECT_EQ(data.size, 4u);
  EXPECT_EQ(data.data, "");
  EXPECT_EQ(opened->queryValue("text", 3, data), kMoreData);
  EXPECT_EQ(opened->queryValue("text", 4, data), kSuccess);
  EXPECT_EQ(data.data, withNuls("abc\0", 4));
  EXPECT_EQ(opened->queryValue("binary", 2, data), kMoreData);
  EXPECT_EQ(data.data, "");
  EXPECT_EQ(opened->queryValue("missing", 4, data), kFileNotFound);
  EXPECT_EQ(data.size, 0u);
}

TEST_F(FolderRegistryTest, AValueOfNoBytesIsReadWithoutABuffer) {
  RegistryData data;
  EXPECT_EQ(key()->queryValue("no bytes", 0, data), kSuccess);
  EXPECT_EQ(data.type, kRegSz);
  EXPECT_EQ(data.size, 0u);
  EXPECT_EQ(data.data, "");
}

TEST_F(FolderRegistryTest, ATextSetWithOrWithoutItsNulReadsTheSame) {
  const auto opened = key();
  EXPECT_EQ(opened->setValue("new", kRegSz, "\xC3\xA4"), kSuccess);
  EXPECT_EQ(opened->setValue("Text", kRegSz, withNuls("x\0", 2)), kSuccess);
  EXPECT_EQ(opened->setValue("nothing", kRegSz, ""), kSuccess);
  EXPECT_EQ(text(*opened, "new"), withNuls("\xC3\xA4\0", 3));
  EXPECT_EQ(text(*opened, "text"), withNuls("x\0", 2));
  EXPECT_EQ(text(*opened, "nothing"), "");

  const RegistryNodePtr node = tree_.root("HKEY_CURRENT_USER")->subkey("Software")->subkey("Key");
  EXPECT_EQ(node->value("new")->data, withNuls("\xE4\0\0\0", 4));
  EXPECT_EQ(node->value("nothing")->data, "");
  EXPECT_EQ(node->values().back()->name, "nothing");
}

TEST_F(FolderRegistryTest, DeletingAMissingValueGivesNotFound) {
  const auto opened = key();
  EXPECT_EQ(opened->deleteValue("NUMBER"), kSuccess);
  EXPECT_EQ(opened->deleteValue("number"), kFileNotFound);
  EXPECT_EQ(opened->deleteValue(""), kSuccess);
  EXPECT_EQ(opened->deleteValue(""), kFileNotFound);
}

TEST_F(FolderRegistryTest, OnlyKeysWithoutSubkeysAreDeleted) {
  const auto opened = key();
  EXPECT_EQ(opened->deleteKey("alpha_1"), kAccessDenied);
  EXPECT_EQ(opened->deleteKey("ALPHA_1\\deep\\"), kSuccess);
  EXPECT_EQ(opened->deleteKey("alpha_1"), kSuccess);
  EXPECT_EQ(opened->deleteKey("alpha_1"), kFileNotFound);
  EXPECT_THAT(subkeys(*opened), ElementsAre("Alpha", "beta"));
  EXPECT_EQ(registry_.deleteKey(Root::kCurrentUser, "Software\\Key\\beta"), kSuccess);
  EXPECT_EQ(registry_.deleteKey(Root::kCurrentUser, "Software\\Key\\beta"), kFileNotFound);
  EXPECT_EQ(registry_.deleteKey(Root::kCurrentUser, "Software"), kAccessDenied);
  EXPECT_EQ(registry_.deleteKey(Root::kUsers, ""), kAccessDenied);
  EXPECT_EQ(registry_.deleteKey(static_cast<Root>(0), "Software"), kInvalidHandle);
}

TEST_F(FolderRegistryTest, AnEmptySubkeyNameAddressesTheKeyItself) {
  EXPECT_EQ(key()->deleteKey(""), kAccessDenied);
  EXPECT_EQ(open(Root::kCurrentUser, "Software\\Key\\beta", kAll64)->deleteKey(""), kSuccess);
  EXPECT_EQ(statusOf(Root::kCurrentUser, "Software\\Key\\beta", kAll64), kFileNotFound);
}

TEST_F(FolderRegistryTest, ADeletedKeyAnswersEverythingWith1018) {
  const auto beta = open(Root::kCurrentUser, "Software\\Key\\beta", kAll64);
  ASSERT_EQ(key()->deleteKey("beta"), kSuccess);
  ASSERT_EQ(registry_.create(Root::kCurrentUser, "Software\\Key\\beta", "", kAll64).status, 0u);
  std::string name;
  std::uint32_t number = 0;
  RegistryData data;
  EXPECT_EQ(beta->enumKey(0, name), kKeyDeleted);
  EXPECT_EQ(beta->enumValue(0, name, number, number), kKeyDeleted);
  EXPECT_EQ(beta->queryValue("x", 9, data), kKeyDeleted);
  EXPECT_EQ(beta->setValue("x", kRegSz, "y"), kKeyDeleted);
  EXPECT_EQ(beta->deleteValue("x"), kKeyDeleted);
  EXPECT_EQ(beta->deleteKey("x"), kKeyDeleted);
}

TEST_F(FolderRegistryTest, AMaskThatNamesNoViewMeansThe32BitView) {
  EXPECT_EQ(view("SOFTWARE\\Both", kAll), withNuls("32\0", 3));
  EXPECT_EQ(view("software\\both\\", kAll32), withNuls("32\0", 3));
  EXPECT_EQ(view("Software\\Both", kAll64), withNuls("64\0", 3));
  EXPECT_EQ(statusOf(Root::kLocalMachine, "SOFTWARE\\Only64", kAll), kFileNotFound);
  EXPECT_EQ(statusOf(Root::kLocalMachine, "SOFTWARE\\Only32", kAll64), kFileNotFound);
  EXPECT_EQ(statusOf(Root::kLocalMachine, "SOFTWARE\\Both", kAll | 0x300), kInvalidParameter);
}

TEST_F(FolderRegistryTest, APathThatNamesThe32BitKeysItselfStaysThere) {
  EXPECT_EQ(view("SOFTWARE\\wow6432node\\Both", kAll), withNuls("32\0", 3));
  EXPECT_EQ(view("SOFTWARE\\WOW6432Node\\Both", kAll64), withNuls("32\0", 3));
}

TEST_F(FolderRegistryTest, OnlySoftwareOfTheMachineHasTwoViews) {
  EXPECT_EQ(statusOf(Root::kLocalMachine, "SYSTEM\\Software\\Both", kAll), kSuccess);
  EXPECT_EQ(statusOf(Root::kCurrentUser, "Software\\Key", kAll), kSuccess);
}

TEST_F(FolderRegistryTest, HandlesOnTheMachineAndItsSoftwareStayInTheirView) {
  const auto software = open(Root::kLocalMachine, "SOFTWARE", kAll);
  EXPECT_THAT(subkeys(*software), ElementsAre("Both", "Only32"));
  EXPECT_EQ(software->deleteKey("Only64"), kFileNotFound);
  EXPECT_EQ(software->deleteKey("WOW6432Node\\Only32"), kSuccess);
  EXPECT_THAT(subkeys(*software), ElementsAre("Both"));

  EXPECT_EQ(open(Root::kLocalMachine, "", kAll)->deleteKey("Software\\Both"), kSuccess);
  EXPECT_EQ(view("SOFTWARE\\Both", kAll64), withNuls("64\0", 3));
  EXPECT_EQ(open(Root::kLocalMachine, "", kAll64)->deleteKey("SOFTWARE\\Only64"), kSuccess);
  EXPECT_THAT(subkeys(*open(Root::kLocalMachine, "SOFTWARE", kAll64)),
              ElementsAre("Both", "WOW6432Node"));
}

TEST_F(FolderRegistryTest, DeletingBelowARootSeesThe64BitView) {
  EXPECT_EQ(registry_.deleteKey(Root::kLocalMachine, "SOFTWARE\\Both"), kSuccess);
  EXPECT_EQ(view("SOFTWARE\\Both", kAll32), withNuls("32\0", 3));
}

TEST_F(FolderRegistryTest, CreatingMakesEveryMissingKeyInTheViewOfTheMask) {
  OpenedKey made = registry_.create(Root::kLocalMachine, "software\\A\\b\\", "1", kAll);
  ASSERT_EQ(made.status, kSuccess);
  EXPECT_EQ(made.key->setValue("n", kRegSz, "v"), kSuccess);
  EXPECT_EQ(text(*open(Root::kLocalMachine, "SOFTWARE\\WOW6432Node\\a\\B", kAll64), "n"),
            withNuls("v\0", 2));
  EXPECT_EQ(statusOf(Root::kLocalMachine, "SOFTWARE\\A", kAll64), kFileNotFound);
  EXPECT_EQ(registry_.create(static_cast<Root>(1), "x", "", kAll).status, kInvalidHandle);
}

TEST_F(FolderRegistryTest, CreatingAnExistingKeyOpensItAndChangesNothing) {
  OpenedKey opened = registry_.create(Root::kCurrentUser, "SOFTWARE\\KEY", "1", kAll);
  ASSERT_EQ(opened.status, kSuccess);
  EXPECT_EQ(text(*opened.key, "text"), withNuls("abc\0", 4));
  EXPECT_FALSE(tree_.changed());
}

TEST_F(FolderRegistryTest, NamesBeyondTheLimitsAreInvalid) {
  const std::string name(255, 'x');
  EXPECT_EQ(registry_.create(Root::kUsers, name, "", kAll).status, kSuccess);
  EXPECT_EQ(statusOf(Root::kUsers, name + "\\a", kAll), kFileNotFound);
  EXPECT_EQ(statusOf(Root::kUsers, name + "x", kAll), kInvalidParameter);
  EXPECT_EQ(registry_.create(Root::kUsers, "a\\" + name + "x", "", kAll).status, kInvalidParameter);
  EXPECT_EQ(registry_.deleteKey(Root::kUsers, name + "x"), kInvalidParameter);
  EXPECT_EQ(registry_.create(Root::kUsers, "two\nlines", "", kAll).status, kInvalidParameter);
  EXPECT_THAT(subkeys(*open(Root::kUsers, "", kAll)), ElementsAre(name));
}

TEST_F(FolderRegistryTest, ARightThatTheMaskLacksIsDenied) {
  std::string name;
  std::uint32_t number = 0;
  RegistryData data;
  const auto query = open(Root::kCurrentUser, "Software\\Key", 0x1);
  EXPECT_EQ(query->queryValue("text", 9, data), kSuccess);
  EXPECT_EQ(query->enumValue(0, name, number, number), kSuccess);
  EXPECT_EQ(query->enumKey(0, name), kAccessDenied);
  EXPECT_EQ(query->setValue("text", kRegSz, "x"), kAccessDenied);
  EXPECT_EQ(query->deleteValue("text"), kAccessDenied);

  const auto set = open(Root::kCurrentUser, "Software\\Key", 0x2);
  EXPECT_EQ(set->queryValue("text", 9, data), kAccessDenied);
  EXPECT_EQ(set->enumValue(0, name, number, number), kAccessDenied);
  EXPECT_EQ(set->setValue("text", kRegSz, "x"), kSuccess);
  EXPECT_EQ(set->deleteValue("text"), kSuccess);

  const auto enumerate = open(Root::kCurrentUser, "Software\\Key", 0x8);
  EXPECT_EQ(enumerate->enumKey(0, name), kSuccess);
  EXPECT_EQ(enumerate->enumValue(0, name, number, number), kAccessDenied);
}

TEST_F(FolderRegistryTest, AFaultIsAnsweredInsteadOfTheOperation) {
  const auto opened = key();
  std::string name;
  std::uint32_t number = 0;
  RegistryData data;
  for (const char* operation :
       {"RegOpenKeyEx", "RegCreateKeyEx", "RegEnumKey", "RegEnumValue", "RegQueryValueEx",
        "RegSetValueEx", "RegDeleteKey", "RegDeleteValue"}) {
    faults_.add(operation, 2, kAccessDenied);
  }
  const auto twice = [](auto operation) {
    const Status first = operation();
    return std::pair(first, operation());
  };
  const std::pair expected(kSuccess, kAccessDenied);
  EXPECT_EQ(twice([&] { return statusOf(Root::kCurrentUser, "Software", kAll); }), expected);
  EXPECT_EQ(twice([&] { return registry_.create(Root::kUsers, "n", "", kAll).status; }), expected);
  EXPECT_EQ(twice([&] { return opened->enumKey(0, name); }), expected);
  EXPECT_EQ(twice([&] { return opened->enumValue(0, name, number, number); }), expected);
  EXPECT_EQ(twice([&] { return opened->queryValue("text", 9, data); }), expected);
  EXPECT_EQ(twice([&] { return opened->setValue("text", kRegSz, "x"); }), expected);
  EXPECT_EQ(twice([&] { return opened->deleteValue("text"); }).second, kAccessDenied);
  EXPECT_EQ(opened->deleteKey("beta"), kSuccess);
  EXPECT_EQ(registry_.deleteKey(Root::kUsers, "n"), kAccessDenied);
  EXPECT_EQ(registry_.deleteKey(Root::kUsers, "n"), kSuccess);
}

}  // namespace
}  // namespace tavr::folder
