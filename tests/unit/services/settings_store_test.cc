// fGetString and fSaveString: the program's own settings.
#include "basic/number.h"
#include "services/registry_layer.h"
#include "services/settings_keys.h"
#include "tests/unit/services/registry_fixture.h"

namespace tavr {
namespace {

class SettingsStoreTest : public RegistryTest {
 protected:
  static constexpr std::string_view kStored =
      "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\Tavr Wipe";

  /// What a read makes of the text it is handed.
  std::string read(std::string_view name, std::string text = "before", bool expected = true) {
    EXPECT_EQ(layer().fGetString(Root::kLocalMachine, settings::kMainKey, name, text), expected);
    return text;
  }
  bool save(std::string_view name, std::string_view text) {
    return layer().fSaveString(Root::kLocalMachine, settings::kMainKey, name, text);
  }
};

TEST_F(SettingsStoreTest, AnEmptyRegistryReadsAsEmptyTextAndEveryFlagIsOff) {
  EXPECT_EQ(read("homepage", "before", false), "");
  EXPECT_EQ(layer().setting(settings::kSelectionKey, "45"), "");
  EXPECT_NE(Val(layer().setting(settings::kSelectionKey, "45")), 1);
}

TEST_F(SettingsStoreTest, AMissingValueEmptiesTheText) {
  machine.value(kStored, "other", "x");
  EXPECT_EQ(read("gone", "before", false), "");
}

TEST_F(SettingsStoreTest, ATextReplacesTheText) {
  machine.value(kStored, "key", "A");
  EXPECT_EQ(read("KEY"), "A");
}

TEST_F(SettingsStoreTest, AFlagIsOnOnlyWhenItsNumberIsOne) {
  for (const auto& [text, on] : std::vector<std::pair<std::string, bool>>{
           {"1", true}, {"1.0", true}, {"1e0", true}, {"2", false}, {"abc", false}, {"", false}}) {
    ASSERT_TRUE(save("flag", text));
    EXPECT_EQ(Val(read("flag")) == 1, on) << text;
  }
}

TEST_F(SettingsStoreTest, ANumberReadsAsDecimalDigits) {
  machine.rawValue(kStored, "one", "dword:00000001").rawValue(kStored, "zero", "dword:00000000");
  EXPECT_EQ(read("one", ""), "1");
  EXPECT_EQ(read("zero", ""), "0");
}

TEST_F(SettingsStoreTest, EachByteOfANumberLosesItsLeadingZero) {
  machine.rawValue(kStored, "a", "dword:00000105")
      .rawValue(kStored, "b", "dword:00001005")
      .rawValue(kStored, "c", "dword:00000010")
      .rawValue(kStored, "d", "dword:00010203");
  EXPECT_EQ(read("a", ""), "21");
  EXPECT_EQ(read("b", ""), "261");
  EXPECT_EQ(read("c", ""), "16");
  EXPECT_EQ(read("d", ""), "291");  // 1, 2, 3
}

TEST_F(SettingsStoreTest, OnlyANulInTheLastByteOfANumberIsCut) {
  machine.rawValue(kStored, "high", "dword:01000000").rawValue(kStored, "all", "dword:ffffffff");
  EXPECT_EQ(read("high", ""), "4096");  // 1, 0, 0, 0
  EXPECT_EQ(read("all", ""), "4294967295");
}

TEST_F(SettingsStoreTest, ANumberAppendsItsDigitsToTheTextThatCameIn) {
  machine.rawValue(kStored, "one", "dword:00000001");
  EXPECT_EQ(read("one", "1"), "4097");  // 1 and 0, 0, 1
}

TEST_F(SettingsStoreTest, AnyOtherTypeLeavesTheTextAndSucceeds) {
  machine.rawValue(kStored, "binary", "hex:31,00")
      .rawValue(kStored, "expand", "hex(2):31,00,00,00")
      .rawValue(kStored, "multi", "hex(7):31,00,00,00,00,00");
  EXPECT_EQ(read("binary"), "before");
  EXPECT_EQ(read("expand"), "before");
  EXPECT_EQ(read("multi"), "before");
}

TEST_F(SettingsStoreTest, AValueLongerThan1024BytesReadsAsAbsent) {
  std::string bytes_of_1025 = "hex:31";
  for (int i = 0; i < 1024; ++i) bytes_of_1025 += ",31";
  machine.value(kStored, "fits", std::string(1023, 'x'))
      .value(kStored, "long", std::string(1024, 'x'))
      .rawValue(kStored, "binary", bytes_of_1025);
  EXPECT_EQ(read("fits"), std::string(1023, 'x'));
  EXPECT_EQ(read("long", "before", false), "");
  EXPECT_EQ(read("binary", "before", false), "");
}

TEST_F(SettingsStoreTest, AnEmptyTextIsStoredAndReadsAsEmptyAndPresent) {
  ASSERT_TRUE(save("empty", ""));
  EXPECT_EQ(read("empty"), "");
}

TEST_F(SettingsStoreTest, ASavedTextCreatesTheWholeKeyInThe32BitView) {
  ASSERT_TRUE(save("secure_value", "3"));
  machine.stop();
  const std::string file = machine.readMachineFile("registry.reg");
  EXPECT_NE(file.find("[HKEY_LOCAL_MACHINE\\software\\WOW6432Node\\tavrwork\\Tavr Wipe]\n"
                      "\"secure_value\"=\"3\"\n"),
            std::string::npos)
      << file;
  EXPECT_EQ(file.find("[HKEY_LOCAL_MACHINE\\software\\tavrwork"), std::string::npos) << file;
}

TEST_F(SettingsStoreTest, ASavedTextReplacesAnyType) {
  machine.rawValue(kStored, "count", "dword:00000005");
  ASSERT_TRUE(save("count", "12"));
  EXPECT_EQ(read("count"), "12");
}

TEST_F(SettingsStoreTest, SettingsAreNotReadInThe64BitView) {
  machine.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\tavrwork\\Tavr Wipe", "key", "A");
  EXPECT_EQ(read("key", "before", false), "");
}

TEST_F(SettingsStoreTest, TheUsersBrowserValuesHaveOneView) {
  machine.value("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                "http://a");
  std::string text;
  EXPECT_TRUE(layer().fGetString(
      Root::kCurrentUser, "software\\microsoft\\internet explorer\\main\\", "start page", text));
  EXPECT_EQ(text, "http://a");
}

TEST_F(SettingsStoreTest, EverySpellingOfAPathIsOneKey) {
  ASSERT_TRUE(layer().fSaveString(Root::kLocalMachine, "Software\\tavrwork\\tavr wipe\\option\\win",
                                  "45", "1"));
  for (const char* spelling :
       {"software\\tavrwork\\tavr wipe\\option\\win", "SOFTWARE\\TAVRWORK\\Tavr Wipe\\Option\\Win",
        "Software\\Tavrwork\\tavr wipe\\option\\win\\"}) {
    EXPECT_EQ(layer().setting(spelling, "45"), "1") << spelling;
  }
}

TEST_F(SettingsStoreTest, TheDeeperKeyOfTheCacheTestIsNotTheMainKey) {
  ASSERT_TRUE(save("secure_clean", "1"));
  EXPECT_EQ(layer().setting(settings::kMainKeyOfCache, "secure_clean"), "1");
  EXPECT_EQ(layer().setting(settings::kMainKeyOfCacheTest, "secure_clean"), "");
}

TEST_F(SettingsStoreTest, TheColourHasADefaultAndIsReadFromBothKindsOfText) {
  constexpr std::string_view kLook =
      "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavrwork brightbox";
  const auto color = [](testing::TestMachine& made) {
    made.run("");
    return made.program().form.strip_color;
  };
  testing::TestMachine empty;
  EXPECT_EQ(color(empty), 10118205);
  testing::TestMachine blank;
  EXPECT_EQ(color(blank.value(kLook, "color", "  ")), 10118205);
  testing::TestMachine plain;
  EXPECT_EQ(color(plain.value(kLook, "color", " 255 ")), 255);
  testing::TestMachine expandable;  // "7"
  EXPECT_EQ(color(expandable.rawValue(kLook, "color", "hex(2):37,00,00,00")), 7);
  testing::TestMachine wrong;
  EXPECT_EQ(color(wrong.value(kLook, "color", "blue")), 0);
}

TEST_F(SettingsStoreTest, AFailedWriteIsFalseAndTheOldStateStays) {
  machine.value(kStored, "key", "A").ini("[fault]\nRegSetValueEx=1,5\nRegCreateKeyEx=2,5\n");
  EXPECT_FALSE(save("key", "B"));
  EXPECT_FALSE(save("key", "C"));
  EXPECT_EQ(read("key"), "A");
  EXPECT_TRUE(save("key", "D"));
  EXPECT_EQ(read("key"), "D");
}

TEST_F(SettingsStoreTest, AFailedReadIsFalseAndEmpty) {
  machine.value(kStored, "key", "A").ini("[fault]\nRegQueryValueEx=1,5\n");
  EXPECT_EQ(read("key", "before", false), "");
  EXPECT_EQ(read("key"), "A");
}

// The flag tells of the grant alone: the value is read and written all the same.
TEST_F(SettingsStoreTest, EveryReadAndWriteTellsHowItsGrantWent) {
  constexpr std::string_view kWider = "SOFTWARE\\Tavrwork\\Wider";
  machine.value("HKEY_LOCAL_MACHINE\\" + std::string(kWider), "x", "1").value(kStored, "key", "A");
  bool failed = false;
  const RegistryLayer told(machine.machine(), List12, List20, Text2, &failed);
  std::string text;
  EXPECT_TRUE(told.fGetString(Root::kLocalMachine, settings::kMainKey, "key", text));
  EXPECT_TRUE(failed) << "the key is in the 32-bit view alone";
  EXPECT_FALSE(told.fGetString(Root::kLocalMachine, kWider, "x", text));
  EXPECT_FALSE(failed) << "the key is in the 64-bit view alone";
  EXPECT_TRUE(told.fSaveString(Root::kLocalMachine, settings::kMainKey, "key", "B"));
  EXPECT_TRUE(failed);
  told.fSaveString(Root::kLocalMachine, kWider, "x", "2");
  EXPECT_FALSE(failed);
}

}  // namespace
}  // namespace tavr
