// Root texts and deletions; the enumerators, readers and masks have files of
// their own.
#include "services/registry_layer.h"

#include "tests/unit/services/registry_fixture.h"

namespace tavr {
namespace {

class RegistryLayerTest : public RegistryTest {
 protected:
  bool keyExists(std::string_view path) {
    return machine.machine().registry.open(Root::kCurrentUser, path, 0x20019).status == kSuccess;
  }
};

TEST_F(RegistryLayerTest, TheFourRootsAreKnownInAnyCase) {
  EXPECT_EQ(layer().fHiveCode("HKCR"), 0x80000000u);
  EXPECT_EQ(layer().fHiveCode("hkcu"), 0x80000001u);
  EXPECT_EQ(layer().fHiveCode("HkLm"), 0x80000002u);
  EXPECT_EQ(layer().fHiveCode("HKU"), 0x80000003u);
}

TEST_F(RegistryLayerTest, TheModulesCopyKnowsTheSameRoots) {
  for (const char* root : {"HKCR", "hkcu", "HKLM", "HKU", "HKXX", ""}) {
    EXPECT_EQ(moduleHiveCode(machine.machine(), root), layer().fHiveCode(root)) << root;
  }
}

TEST_F(RegistryLayerTest, ThePathOfAFileIsARoot) {
  machine.file("C:\\d\\data.lang").folder("C:\\d\\folder");
  EXPECT_EQ(layer().fHiveCode("c:\\D\\DATA.lang"), kFileRoot);
  EXPECT_EQ(layer().fHiveCode("C:\\d\\gone.lang"), kNoRoot);
  EXPECT_EQ(layer().fHiveCode("C:\\d\\folder"), kNoRoot);
  EXPECT_EQ(moduleHiveCode(machine.machine(), "C:\\d\\data.lang"), kFileRoot);
}

TEST_F(RegistryLayerTest, AHiddenFileIsNoRoot) {
  machine.file("C:\\d\\hidden.ini");
  ASSERT_EQ(machine.machine().files.setAttributes("C:\\d\\hidden.ini", kAttrHidden), kSuccess);
  EXPECT_EQ(layer().fHiveCode("C:\\d\\hidden.ini"), kNoRoot);
}

TEST_F(RegistryLayerTest, AnEmptyRootIsUnknown) {
  EXPECT_EQ(layer().fHiveCode(""), kNoRoot);
  EXPECT_EQ(layer().fEnumKey("", "Software"), kUnknownRoot);
}

TEST_F(RegistryLayerTest, HkccIsUnknownUnlessAFileHasThatName) {
  machine.folder("C:\\d");
  ASSERT_EQ(machine.machine().files.setCurrentDirectory("C:\\d"), kSuccess);
  EXPECT_EQ(layer().fHiveCode("HKCC"), kNoRoot);
  machine.file("C:\\d\\HKCC").file("C:\\d\\HKDD");
  EXPECT_EQ(layer().fHiveCode("HKCC"), kFileRoot);
  EXPECT_EQ(layer().fHiveCode("HKDD"), kFileRoot);
}

TEST_F(RegistryLayerTest, TheModulesCopyLooksForNoFileBehindHkccAndHkdd) {
  machine.file("C:\\d\\HKCC").file("C:\\d\\HKDD");
  ASSERT_EQ(machine.machine().files.setCurrentDirectory("C:\\d"), kSuccess);
  EXPECT_EQ(moduleHiveCode(machine.machine(), "HKCC"), kNoRoot);
  EXPECT_EQ(moduleHiveCode(machine.machine(), "hkdd"), kNoRoot);
}

TEST_F(RegistryLayerTest, AFileNamedLikeARootDoesNotHideIt) {
  machine.file("C:\\d\\HKCU");
  ASSERT_EQ(machine.machine().files.setCurrentDirectory("C:\\d"), kSuccess);
  EXPECT_EQ(layer().fHiveCode("HKCU"), 0x80000001u);
}

TEST_F(RegistryLayerTest, AnUnknownRootIsStatus99Everywhere) {
  ReadValue value;
  std::string packed;
  EXPECT_EQ(layer().fEnumKey("HKXX", "a", packed), 99u);
  EXPECT_EQ(layer().fEnumValue("HKXX", "a", packed), 99u);
  EXPECT_EQ(layer().fEnumValueb("HKXX", "a"), 99u);
  EXPECT_EQ(layer().fEnumValuec("HKXX", "a"), 99u);
  EXPECT_EQ(layer().fDeleteKey("HKXX", "a", "b"), 99u);
  EXPECT_EQ(layer().fDeleteValue("HKXX", "a", "b"), 99u);
  EXPECT_EQ(layer().fReadValue("HKXX", "a", "b", "s", "", value), 99u);
  EXPECT_EQ(packed, "");
}

TEST_F(RegistryLayerTest, DeletesAKeyBelowItsParent) {
  machine.key("HKEY_CURRENT_USER\\Software\\Test\\Child");
  EXPECT_EQ(layer().fDeleteKey("HKCU", "Software\\TEST", "child"), kSuccess);
  EXPECT_FALSE(keyExists("Software\\Test\\Child"));
  EXPECT_TRUE(keyExists("Software\\Test"));
}

TEST_F(RegistryLayerTest, AKeyWithSubkeysIsNotDeleted) {
  machine.key("HKEY_CURRENT_USER\\Software\\Test\\Child\\Grandchild");
  EXPECT_EQ(layer().fDeleteKey("HKCU", "Software\\Test", "Child"), kAccessDenied);
  EXPECT_TRUE(keyExists("Software\\Test\\Child\\Grandchild"));
}

TEST_F(RegistryLayerTest, DeletingWhatIsMissingIsSuccess) {
  machine.key(kKey);
  EXPECT_EQ(layer().fDeleteKey("HKCU", "Software\\Test", "Gone"), kSuccess);
  EXPECT_EQ(layer().fDeleteKey("HKCU", "Software\\Gone", "Child"), kSuccess);
  EXPECT_EQ(layer().fDeleteValue("HKCU", "Software\\Test", "gone"), kSuccess);
  EXPECT_EQ(layer().fDeleteValue("HKCU", "Software\\Gone", "gone"), kSuccess);
}

TEST_F(RegistryLayerTest, AnyOtherErrorOfADeletionComesBack) {
  machine.value(kKey, "a", "1").ini("[fault]\nRegDeleteValue=1,5\nRegOpenKeyEx=2,6\n");
  EXPECT_EQ(layer().fDeleteValue("HKCU", "Software\\Test", "a"), kAccessDenied);
  EXPECT_EQ(layer().fDeleteValue("HKCU", "Software\\Test", "a"), kInvalidHandle);
  EXPECT_EQ(layer().fDeleteValue("HKCU", "Software\\Test", "a"), kSuccess);
  EXPECT_EQ(machine.registryText(Root::kCurrentUser, "Software\\Test", "a"), "<none>");
}

TEST_F(RegistryLayerTest, DeletesAValueInAnyCaseAndWithABackslashBehindTheKey) {
  machine.value(kKey, "url1", "x").value(kKey, "url2", "y");
  EXPECT_EQ(layer().fDeleteValue("HKCU", "software\\test\\", "URL1"), kSuccess);
  EXPECT_EQ(machine.registryText(Root::kCurrentUser, "Software\\Test", "url1"), "<none>");
  EXPECT_EQ(machine.registryText(Root::kCurrentUser, "Software\\Test", "url2"), "y");
}

TEST_F(RegistryLayerTest, ABackslashBehindTheKeyIsTheSameKeyInEveryRoutine) {
  machine.value(kKey, "a", "1").key("HKEY_CURRENT_USER\\Software\\Test\\Child");
  const std::string_view path = "software\\test\\";
  ReadValue value;
  std::string text;
  EXPECT_EQ(layer().fEnumKey("HKCU", path), kSuccess);
  EXPECT_EQ(rows(List12), Rows({"Child"}));
  EXPECT_EQ(layer().fEnumValueb("HKCU", path), kSuccess);
  EXPECT_EQ(rows(List20), Rows({"a"}));
  EXPECT_EQ(layer().fReadValue("HKCU", path, "a", "s", "", value), kSuccess);
  EXPECT_EQ(layer().GetRegistryValue(Root::kCurrentUser, path, "a"),
            RegistryVariant(std::string("1")));
  EXPECT_TRUE(layer().fSaveString(Root::kCurrentUser, path, "a", "2"));
  EXPECT_TRUE(layer().fGetString(Root::kCurrentUser, "Software\\Test", "a", text));
  EXPECT_EQ(text, "2");
  EXPECT_EQ(layer().fDeleteKey("HKCU", path, "Child"), kSuccess);
  EXPECT_FALSE(keyExists("Software\\Test\\Child"));
}

TEST_F(RegistryLayerTest, AValueOfAFileLosesItsTextAndKeepsItsLine) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=1\r\nb=2\r\n");
  EXPECT_EQ(layer().fDeleteValue("C:\\d\\a.ini", "s", "a"), kSuccess);
  EXPECT_EQ(machine.read("C:\\d\\a.ini"), "[s]\r\na=\r\nb=2\r\n");
}

TEST_F(RegistryLayerTest, AValueOfAFileThatRefusesToBeWrittenCountsAsDeleted) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=1\r\n").machineFile("locked.txt", "C:\\d\\a.ini\n");
  EXPECT_EQ(layer().fDeleteValue("C:\\d\\a.ini", "s", "a"), kSuccess);
  EXPECT_EQ(machine.read("C:\\d\\a.ini"), "[s]\r\na=1\r\n");
}

TEST_F(RegistryLayerTest, AFileAsRootOfKeysFailsWithThePlatformsError) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=1\r\n");
  std::string packed;
  EXPECT_EQ(layer().fEnumKey("C:\\d\\a.ini", "s", packed), kInvalidHandle);
  EXPECT_EQ(packed, "");
  EXPECT_EQ(layer().fDeleteKey("C:\\d\\a.ini", "s", "a"), kInvalidHandle);
  EXPECT_EQ(machine.read("C:\\d\\a.ini"), "[s]\r\na=1\r\n");
}

}  // namespace
}  // namespace tavr
