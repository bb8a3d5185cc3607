// The plain delete and the question whether a file is still there; overwriting
// and the pending renames have files of their own.
#include "services/deletion.h"

#include <gtest/gtest.h>

#include "services/settings_keys.h"
#include "tests/support/forwarding_files.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

// Notes which variables are asked for.
class RecordingEnvironment : public Environment {
 public:
  explicit RecordingEnvironment(Environment& inner) : inner_(inner) {}
  std::string get(std::string_view name) override {
    asked.emplace_back(name);
    return inner_.get(name);
  }
  std::string expand(std::string_view text) override { return inner_.expand(text); }
  std::string appPath() override { return inner_.appPath(); }
  std::string exeName() override { return inner_.exeName(); }

  std::vector<std::string> asked;

 private:
  Environment& inner_;
};

// Counts what could change a file.
class CountedFiles : public testing::ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  OpenedFile open(std::string_view path, OpenMode mode) override {
    ++opened;
    return ForwardingFiles::open(path, mode);
  }
  Status setAttributes(std::string_view path, std::uint32_t attributes) override {
    ++attributes_set;
    return ForwardingFiles::setAttributes(path, attributes);
  }
  Status remove(std::string_view path) override {
    removed.emplace_back(path);
    return ForwardingFiles::remove(path);
  }

  int opened = 0;
  int attributes_set = 0;
  std::vector<std::string> removed;
};

class DeletionTest : public ::testing::Test {
 protected:
  Form1& form() { return machine.program().form; }
  Deletion& deletion() { return machine.program().deletion; }
  void deleteFile(std::string_view path) {
    form().file_system_object.emplace();
    deletion().DeleteAFile(path);
  }
  bool remains(std::string_view path) { return deletion().fFileRemains(path); }

  testing::TestMachine machine;
};

TEST_F(DeletionTest, DeletesAFile) {
  machine.file("C:\\d\\a").file("C:\\d\\b");
  deleteFile("C:\\d\\A");
  EXPECT_FALSE(machine.exists("C:\\d\\a"));
  EXPECT_TRUE(machine.exists("C:\\d\\b"));
}

TEST_F(DeletionTest, WithoutTheFileSystemObjectNothingIsDeleted) {
  machine.file("C:\\d\\a");
  form().file_system_object.reset();
  deletion().DeleteAFile("C:\\d\\a");
  EXPECT_TRUE(machine.exists("C:\\d\\a"));
}

TEST_F(DeletionTest, AReadOnlyFileSurvivesWithItsAttributes) {
  machine.file("C:\\d\\a").readOnly("C:\\d\\a");
  deleteFile("C:\\d\\a");
  std::uint32_t attributes = 0;
  ASSERT_EQ(machine.machine().files.attributes("C:\\d\\a", attributes), kSuccess);
  EXPECT_TRUE(attributes & kAttrReadOnly);
}

TEST_F(DeletionTest, AFileThatIsHeldOrGoneIsPassedOverInSilence) {
  machine.file("C:\\d\\held").file("C:\\d\\next").machineFile("locked.txt", "C:\\d\\held\n");
  deleteFile("C:\\d\\held");
  deleteFile("C:\\d\\gone");
  deleteFile("");
  deleteFile("C:\\d\\next");
  EXPECT_TRUE(machine.exists("C:\\d\\held"));
  EXPECT_FALSE(machine.exists("C:\\d\\next"));
}

TEST_F(DeletionTest, AFolderIsNotDeleted) {
  machine.folder("C:\\d\\sub");
  deleteFile("C:\\d\\sub");
  EXPECT_TRUE(machine.exists("C:\\d\\sub"));
}

TEST_F(DeletionTest, ThePathIsTrimmedBeforeTheDelete) {
  machine.file("C:\\d\\a");
  deleteFile("  C:\\d\\a  ");
  EXPECT_FALSE(machine.exists("C:\\d\\a"));
}

TEST_F(DeletionTest, NeverOverwritesAlsoWithSecureErasingOn) {
  machine.setting("Tavr wipe\\option\\option", "3", "1").setting("tavr wipe", "secure_value", "3");
  machine.file("C:\\d\\a", "secret");
  CountedFiles files(machine.machine().files);
  Machine fake = testing::machineWith(machine.machine(), files);
  Form1 own_form(fake);
  own_form.file_system_object.emplace();
  FileNumbers numbers(fake);
  Deletion(fake, own_form, numbers).DeleteAFile("C:\\d\\a");
  EXPECT_EQ(files.opened, 0);
  EXPECT_EQ(files.attributes_set, 0);
  EXPECT_EQ(files.removed, std::vector<std::string>({"C:\\d\\a"}));
}

TEST_F(DeletionTest, AFileOfTheRecycleBinIsDeletedWithoutAskingForItsRights) {
  machine.file("C:\\$Recycle.Bin\\S-1\\$R1").file("C:\\d\\a");
  RecordingEnvironment environment(machine.machine().environment);
  Machine& real = machine.machine();
  Machine fake = testing::machineWith(real, environment);
  Form1 own_form(fake);
  own_form.file_system_object.emplace();
  FileNumbers numbers(fake);
  Deletion own(fake, own_form, numbers);
  own.DeleteAFile("C:\\$RECYCLE.BIN\\S-1\\$R1");
  EXPECT_FALSE(machine.exists("C:\\$Recycle.Bin\\S-1\\$R1"));
  EXPECT_TRUE(environment.asked.empty());
  own.DeleteAFile("C:\\d\\a");
  EXPECT_EQ(environment.asked, std::vector<std::string>({"username"}));
}

TEST_F(DeletionTest, ChangingRightsTrimsThePathInPlaceOutsideTheRecycleBin) {
  std::string path = "  C:\\d\\a ";
  deletion().changepermission(path);
  EXPECT_EQ(path, "C:\\d\\a");
  std::string recycled = " C:\\$recycle.BIN\\a ";
  deletion().changepermission(recycled);
  EXPECT_EQ(recycled, " C:\\$recycle.BIN\\a ");
}

TEST_F(DeletionTest, AFileWithContentRemains) {
  machine.file("C:\\d\\a", "x").file("C:\\d\\held", "x");
  machine.machineFile("locked.txt", "C:\\d\\held\n");
  EXPECT_TRUE(remains("C:\\d\\a"));
  EXPECT_TRUE(remains("C:\\d\\held"));
}

TEST_F(DeletionTest, AnEmptyFileThatCanBeOpenedRemains) {
  machine.file("C:\\d\\a", "");
  EXPECT_TRUE(remains("C:\\d\\a"));
}

TEST_F(DeletionTest, AnEmptyVisibleFileThatCannotBeOpenedIsTheOneThatDoesNot) {
  machine.file("C:\\d\\held", "").machineFile("locked.txt", "C:\\d\\held\n");
  EXPECT_FALSE(remains("C:\\d\\held"));
}

TEST_F(DeletionTest, AnEmptyHiddenOrSystemFileThatCannotBeOpenedRemains) {
  machine.file("C:\\d\\hidden", "").file("C:\\d\\system", "");
  machine.machineFile("locked.txt", "C:\\d\\hidden\nC:\\d\\system\n");
  Files& files = machine.machine().files;
  ASSERT_EQ(files.setAttributes("C:\\d\\hidden", kAttrHidden), kSuccess);
  ASSERT_EQ(files.setAttributes("C:\\d\\system", kAttrSystem), kSuccess);
  EXPECT_TRUE(remains("C:\\d\\hidden"));
  EXPECT_TRUE(remains("C:\\d\\system"));
}

TEST_F(DeletionTest, AFileThatIsGoneRemains) {
  EXPECT_TRUE(remains("C:\\d\\gone"));
  EXPECT_TRUE(remains(""));
}

}  // namespace
}  // namespace tavr
