// platform/files.h: paths, attributes, deletion, copies and the current
// directory. Searches are in files_search_contract_test.cc, open files in
// open_files_contract_test.cc.
#include "tests/contract/files_contract_test.h"

namespace tavr::contract {
namespace {

constexpr std::uint32_t kNamed = kAttrReadOnly | kAttrHidden | kAttrSystem | kAttrDirectory;

class FilesContract : public FilesContractTest {};

// Paths ---------------------------------------------------------------------------

TEST_F(FilesContract, NamesAreFoundWithoutCase) {
  on().plantFile(at("Sub Folder\\Some.Name"), "x");
  EXPECT_EQ(attributesStatus(at("sUB fOLDER\\sOME.nAME")), kSuccess);
  EXPECT_EQ(files().remove(at("SUB FOLDER\\SOME.NAME")), kSuccess);
  EXPECT_FALSE(on().exists(at("Sub Folder\\Some.Name")));
}

TEST_F(FilesContract, AMissingFileIs2AndAMissingFolderOnTheWayIs3) {
  for (const auto& [name, status] :
       {std::pair("none", kFileNotFound), std::pair("none\\file", kPathNotFound)}) {
    EXPECT_EQ(attributesStatus(at(name)), status);
    EXPECT_EQ(files().setAttributes(at(name), kAttrArchive), status);
    EXPECT_EQ(files().remove(at(name)), status);
    EXPECT_EQ(open(at(name)), status);
    EXPECT_EQ(files().copy(at(name), at("copy")), status);
    EXPECT_EQ(files().setCurrentDirectory(at(name)), status);
  }
  EXPECT_FALSE(on().exists(at("copy")));
}

TEST_F(FilesContract, AFileIsNoFolderOnTheWay) {
  file("a");
  EXPECT_EQ(attributesStatus(at("a\\b")), kPathNotFound);
  EXPECT_EQ(open(at("a\\b"), OpenMode::kOutput), kPathNotFound);
}

TEST_F(FilesContract, APathOf259UnitsIsFoundAndOneOf260IsNot) {
  const std::string longest = longPath(259);
  on().plantFile(longest, "x");
  on().plantFile(longest + "n", "x");
  EXPECT_EQ(attributesStatus(longest), kSuccess);
  EXPECT_EQ(open(longest), kSuccess);
  EXPECT_EQ(findStatus(longest), kSuccess);
  EXPECT_EQ(attributesStatus(longest + "n"), kPathNotFound);
  EXPECT_EQ(open(longest + "n"), kPathNotFound);
  EXPECT_EQ(findStatus(longest + "n"), kPathNotFound);
  EXPECT_EQ(files().remove(longest + "n"), kPathNotFound);
  EXPECT_EQ(files().remove(longest), kSuccess);
  EXPECT_TRUE(on().exists(longest + "n"));
}

TEST_F(FilesContract, LengthCountsUtf16Units) {
  const std::string folder = longPath(200).substr(0, longPath(200).rfind('\\'));
  std::string longest = folder + "\\";
  while (longest.size() < 259) longest += "n";
  longest.replace(longest.size() - 2, 2, "\xF0\x9F\x98\x80");  // one character of two units
  on().plantFile(longest, "x");
  EXPECT_EQ(attributesStatus(longest), kSuccess);
  EXPECT_EQ(attributesStatus(longest + "n"), kPathNotFound);
}

TEST_F(FilesContract, ARelativePathStartsAtTheCurrentDirectory) {
  file("a");
  ASSERT_EQ(files().setCurrentDirectory(at()), kSuccess);
  EXPECT_EQ(attributesStatus("a"), kSuccess);
  EXPECT_EQ(attributesStatus("b"), kFileNotFound);
}

TEST_F(FilesContract, ALeadingBackslashIsTheDriveOfTheProgram) {
  const std::string program = machine().environment.appPath();
  on().plantFolder(program);
  EXPECT_EQ(attributesStatus(program.substr(2)), kSuccess);
}

TEST_F(FilesContract, ABackslashBehindAFileIsAnInvalidName) {
  const std::string path = file("a") + "\\";
  EXPECT_EQ(attributesStatus(path), kInvalidName);
  EXPECT_EQ(open(path), kInvalidName);
  EXPECT_EQ(files().remove(path), kInvalidName);
  EXPECT_TRUE(on().exists(at("a")));
}

// Attributes ------------------------------------------------------------------------

TEST_F(FilesContract, AttributesTellReadOnlyHiddenAndFolders) {
  on().makeReadOnly(file("read-only"));
  on().makeHidden(file("hidden"));
  EXPECT_EQ(attributes(file("plain")) & kNamed, 0U);
  EXPECT_EQ(attributes(at("read-only")) & kNamed, kAttrReadOnly);
  EXPECT_EQ(attributes(at("hidden")) & kNamed, kAttrHidden);
  EXPECT_EQ(attributes(at()) & kNamed, kAttrDirectory);
}

TEST_F(FilesContract, SettingAttributesSetsAndClears) {
  const std::string path = file("a");
  EXPECT_EQ(files().setAttributes(path, kAttrReadOnly | kAttrHidden | kAttrSystem), kSuccess);
  EXPECT_EQ(attributes(path) & kNamed, kAttrReadOnly | kAttrHidden | kAttrSystem);
  EXPECT_EQ(files().setAttributes(path, kAttrArchive), kSuccess);
  EXPECT_EQ(attributes(path) & kNamed, 0U);
}

TEST_F(FilesContract, OtherAttributesChangeNothing) {
  const std::string path = file("a", "content");
  EXPECT_EQ(files().setAttributes(path, kAttrNormal | kAttrCompressed), kSuccess);
  EXPECT_EQ(attributes(path) & (kNamed | kAttrCompressed), 0U);
  EXPECT_EQ(on().contents(path), "content");
}

TEST_F(FilesContract, AttributesOfAHeldFileCanBeReadAndSet) {
  const std::string path = file("held");
  on().hold(path);
  EXPECT_EQ(attributes(path) & kNamed, 0U);
  EXPECT_EQ(files().setAttributes(path, kAttrReadOnly), kSuccess);
  EXPECT_EQ(attributes(path) & kNamed, kAttrReadOnly);
}

// Deletion ----------------------------------------------------------------------------

TEST_F(FilesContract, ADeletedFileIsGone) {
  const std::string path = file("a");
  file("b");
  EXPECT_EQ(files().remove(path), kSuccess);
  EXPECT_FALSE(on().exists(path));
  EXPECT_TRUE(on().exists(at("b")));
  EXPECT_EQ(files().remove(path), kFileNotFound);
}

TEST_F(FilesContract, AReadOnlyFileIsNotDeletedUntilItIsWritable) {
  const std::string path = file("a");
  on().makeReadOnly(path);
  EXPECT_EQ(files().remove(path), kAccessDenied);
  EXPECT_TRUE(on().exists(path));
  ASSERT_EQ(files().setAttributes(path, kAttrArchive), kSuccess);
  EXPECT_EQ(files().remove(path), kSuccess);
}

TEST_F(FilesContract, AReadOnlyFileIsNotDeletedBehindAListingEither) {
  file("a");
  file("b");
  FolderListing listing = listed(at() + "\\", "*.*");
  ASSERT_EQ(files().setAttributes(at("a"), kAttrReadOnly), kSuccess);
  EXPECT_EQ(files().remove(at("a")), kAccessDenied);
  EXPECT_EQ(files().remove(at("b")), kSuccess);
}

TEST_F(FilesContract, AHeldFileIsNotDeleted) {
  const std::string path = file("held");
  on().hold(path);
  EXPECT_EQ(files().remove(path), kSharingViolation);
  listed(at() + "\\", "*.*");
  EXPECT_EQ(files().remove(path), kSharingViolation) << "behind a listing, too";
  EXPECT_TRUE(on().exists(path));
}

TEST_F(FilesContract, AFolderIsNotDeleted) {
  on().plantFolder(at("sub"));
  EXPECT_EQ(files().remove(at("sub")), kAccessDenied);
  EXPECT_TRUE(on().exists(at("sub")));
}

TEST_F(FilesContract, DeletionTakesNoPattern) {
  file("a");
  EXPECT_EQ(files().remove(at("*.*")), kInvalidName);
  EXPECT_EQ(files().remove(at("?")), kInvalidName);
  EXPECT_TRUE(on().exists(at("a")));
}

// Copies --------------------------------------------------------------------------------

TEST_F(FilesContract, ACopyHasContentAndAttributesOfItsSource) {
  const std::string from = file("from", "content");
  on().makeReadOnly(from);
  EXPECT_EQ(files().copy(from, at("to")), kSuccess);
  EXPECT_EQ(on().contents(at("to")), "content");
  EXPECT_EQ(attributes(at("to")) & kNamed, kAttrReadOnly);
  EXPECT_EQ(on().contents(from), "content");
}

TEST_F(FilesContract, ACopyReplacesItsTarget) {
  file("from", "new");
  file("to", "an older and longer text");
  EXPECT_EQ(files().copy(at("from"), at("to")), kSuccess);
  EXPECT_EQ(on().contents(at("to")), "new");
}

TEST_F(FilesContract, ACopyIsRefusedByAHeldSourceAndAReadOnlyTarget) {
  file("from", "new");
  on().hold(file("held"));
  on().makeReadOnly(file("to", "old"));
  EXPECT_EQ(files().copy(at("held"), at("copy")), kSharingViolation);
  EXPECT_FALSE(on().exists(at("copy")));
  EXPECT_EQ(files().copy(at("from"), at("to")), kAccessDenied);
  EXPECT_EQ(on().contents(at("to")), "old");
}

TEST_F(FilesContract, AFileIsNotCopiedOverItself) {
  file("a", "content");
  EXPECT_EQ(files().copy(at("a"), at("A")), kSharingViolation);
  EXPECT_EQ(on().contents(at("a")), "content");
}

// The current directory -----------------------------------------------------------------

TEST_F(FilesContract, TheCurrentDirectoryIsAFolder) {
  file("a");
  on().plantFolder(at("sub"));
  ASSERT_EQ(files().setCurrentDirectory(at()), kSuccess);
  EXPECT_EQ(files().setCurrentDirectory(at("a")), kDirectory);
  EXPECT_EQ(files().setCurrentDirectory(at("none")), kFileNotFound);
  EXPECT_EQ(files().setCurrentDirectory(""), kPathNotFound);
  EXPECT_EQ(attributesStatus("a"), kSuccess) << "a refused change changes nothing";
  EXPECT_EQ(files().setCurrentDirectory("sub"), kSuccess);
  EXPECT_EQ(attributesStatus("..\\a"), kSuccess);
}

}  // namespace
}  // namespace tavr::contract
