// The enumerators: what they put into their list and what into their text.
#include "services/registry_layer.h"
#include "tests/unit/services/registry_fixture.h"

namespace tavr {
namespace {

class RegistryEnumerationTest : public RegistryTest {
 protected:
  // One value of every kind that is treated in its own way.
  void makeValues() {
    machine.value(kKey, "text", "data")
        .rawValue(kKey, "number", "dword:00000007")
        .rawValue(kKey, "short", "hex:01,02")
        .rawValue(kKey, "long", "hex:01,02,03")
        .rawValue(kKey, "expand", "hex(2):25,00,00,00")
        .rawValue(kKey, "multi", "hex(7):61,00,00,00,00,00");
  }
};

TEST_F(RegistryEnumerationTest, SubkeysStandInTheListAndEndInNulsInTheText) {
  machine.key("HKEY_CURRENT_USER\\Software\\Test\\b").key("HKEY_CURRENT_USER\\Software\\Test\\A");
  std::string packed;
  EXPECT_EQ(layer().fEnumKey("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(rows(List12), Rows({"A", "b"}));
  EXPECT_EQ(packed, bytes("A\0b\0\0"));
}

TEST_F(RegistryEnumerationTest, AnEmptyKeyGivesTwoNuls) {
  machine.key(kKey);
  for (const int which : {0, 1, 2, 3}) {
    std::string packed;
    Status status = kUnknownRoot;
    if (which == 0) status = layer().fEnumKey("HKCU", "Software\\Test", packed);
    if (which == 1) status = layer().fEnumValueb("HKCU", "Software\\Test", packed);
    if (which == 2) status = layer().fEnumValuec("HKCU", "Software\\Test", packed);
    if (which == 3) status = layer().fEnumValue("HKCU", "Software\\Test", packed);
    EXPECT_EQ(status, kSuccess) << which;
    EXPECT_EQ(packed, bytes("\0\0")) << which;
  }
  EXPECT_EQ(List12.count(), 0);
  EXPECT_EQ(List20.count(), 0);
}

TEST_F(RegistryEnumerationTest, TheTextIsOnlyAppendedTo) {
  machine.value(kKey, "a", "1");
  std::string packed = "before";
  EXPECT_EQ(layer().fEnumValueb("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(packed, bytes("beforea=1\0\0"));
}

TEST_F(RegistryEnumerationTest, AMissingKeyIsStatus2AndAnEmptyList) {
  List12.add("old");
  std::string packed;
  EXPECT_EQ(layer().fEnumKey("HKCU", "Software\\Gone", packed), kFileNotFound);
  EXPECT_EQ(List12.count(), 0);
  EXPECT_EQ(packed, "");
}

TEST_F(RegistryEnumerationTest, EveryEnumeratorClearsItsListFirstAlsoForAnUnknownRoot) {
  List12.add("old");
  List20.add("old");
  EXPECT_EQ(layer().fEnumKey("HKXX", "a"), kUnknownRoot);
  EXPECT_EQ(List12.count(), 0);
  EXPECT_EQ(List20.count(), 1);
  List12.add("old");
  EXPECT_EQ(layer().fEnumValueb("HKXX", "a"), kUnknownRoot);
  EXPECT_EQ(List20.count(), 0);
  EXPECT_EQ(List12.count(), 1);
  EXPECT_EQ(layer().fEnumValuec("HKXX", "a"), kUnknownRoot);
  EXPECT_EQ(List12.count(), 0);
}

TEST_F(RegistryEnumerationTest, OneEnumeratorFillsList20TheOtherList12) {
  machine.value(kKey, "a", "1").value(kKey, "b", "2");
  layer().fEnumValueb("HKCU", "Software\\Test");
  EXPECT_EQ(rows(List20), Rows({"a", "b"}));
  EXPECT_EQ(List12.count(), 0);
  List20.clear();
  layer().fEnumValuec("HKCU", "Software\\Test");
  EXPECT_EQ(rows(List12), Rows({"a", "b"}));
  EXPECT_EQ(List20.count(), 0);
}

TEST_F(RegistryEnumerationTest, EveryTypeIsListedButOnlySomeArePacked) {
  makeValues();
  std::string packed;
  EXPECT_EQ(layer().fEnumValueb("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(rows(List20), Rows({"text", "number", "short", "long", "expand", "multi"}));
  EXPECT_EQ(packed, bytes("text=data\0number=0\0short=0\0\0"));
}

TEST_F(RegistryEnumerationTest, AnEmptyNameIsNotListedForTheTypesThatArePacked) {
  machine.value(kKey, "", "default").value(kKey, "a", "1");
  std::string packed;
  layer().fEnumValuec("HKCU", "Software\\Test", packed);
  EXPECT_EQ(rows(List12), Rows({"a"}));
  EXPECT_EQ(packed, bytes("=default\0a=1\0\0"));
}

TEST_F(RegistryEnumerationTest, AnEmptyNameOfAnotherTypeIsAnEmptyRow) {
  machine.rawValue(kKey, "", "hex(2):25,00,00,00").value(kKey, "a", "1");
  std::string packed;
  layer().fEnumValuec("HKCU", "Software\\Test", packed);
  EXPECT_EQ(rows(List12), Rows({"", "a"}));
  EXPECT_EQ(packed, bytes("a=1\0\0"));
}

TEST_F(RegistryEnumerationTest, ANameOfBlanksIsNotListed) {
  machine.value(kKey, "  ", "x").value(kKey, " a ", "1");
  layer().fEnumValueb("HKCU", "Software\\Test");
  EXPECT_EQ(rows(List20), Rows({" a "}));
}

TEST_F(RegistryEnumerationTest, ASubkeysNameLosesLeadingBlanksAndKeepsTrailingOnes) {
  machine.key("HKEY_CURRENT_USER\\Software\\Test\\  Two  ");
  std::string packed;
  layer().fEnumKey("HKCU", "Software\\Test", packed);
  EXPECT_EQ(rows(List12), Rows({"Two  "}));
  EXPECT_EQ(packed, bytes("Two  \0\0"));
}

TEST_F(RegistryEnumerationTest, TheThirdEnumeratorJoinsNamesInText2AndEndsWithBlanks) {
  machine.value(kKey, "a", "1").value(kKey, "b", "2");
  std::string packed;
  EXPECT_EQ(layer().fEnumValue("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(Text2.text(), "a,b," + std::string(2048, ' '));
  EXPECT_EQ(packed, bytes("a=1\0b=2\0\0"));
}

TEST_F(RegistryEnumerationTest, Text2IsNotClearedFirst) {
  machine.value(kKey, "a", "1");
  Text2.setText("old");
  std::string packed;
  layer().fEnumValue("HKCU", "Software\\Test", packed);
  EXPECT_TRUE(Text2.text().starts_with("old,a, "));
}

TEST_F(RegistryEnumerationTest, Text2TakesAnEmptyNameToo) {
  machine.value(kKey, "", "default").value(kKey, "b", "2");
  Text2.setText("x");
  std::string packed;
  layer().fEnumValue("HKCU", "Software\\Test", packed);
  EXPECT_TRUE(Text2.text().starts_with("x,,b, "));
}

TEST_F(RegistryEnumerationTest, AFilesSectionComesRawInABufferAndListsNothing) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=1\r\nb=2\r\n[t]\r\nc=3\r\n");
  List20.add("old");
  std::string packed = "before";
  EXPECT_EQ(layer().fEnumValueb("C:\\d\\a.ini", "s", packed), kSuccess);
  EXPECT_EQ(List20.count(), 0);
  EXPECT_EQ(packed.size(), 8192u);
  EXPECT_EQ(packed.substr(0, 10), bytes("a=1\0b=2\0\0 "));
  EXPECT_EQ(packed.find_first_not_of(' ', 9), std::string::npos);
}

TEST_F(RegistryEnumerationTest, AFilesSectionForList12EmptiesItAndLeavesTheOther) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=1\r\n");
  List12.add("old");
  List20.add("kept");
  std::string packed;
  EXPECT_EQ(layer().fEnumValuec("C:\\d\\a.ini", "s", packed), kSuccess);
  EXPECT_EQ(List12.count(), 0);
  EXPECT_EQ(rows(List20), Rows({"kept"}));
  EXPECT_EQ(packed.size(), 8192u);
  EXPECT_EQ(packed.substr(0, 6), bytes("a=1\0\0 "));
}

TEST_F(RegistryEnumerationTest, AFilesSectionLeavesText2AsItWas) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=1\r\n");
  Text2.setText("old");
  List12.add("kept");
  List20.add("kept");
  std::string packed;
  EXPECT_EQ(layer().fEnumValue("C:\\d\\a.ini", "s", packed), kSuccess);
  EXPECT_EQ(Text2.text(), "old");
  EXPECT_EQ(rows(List12), Rows({"kept"}));
  EXPECT_EQ(rows(List20), Rows({"kept"}));
  EXPECT_EQ(packed.substr(0, 6), bytes("a=1\0\0 "));
}

TEST_F(RegistryEnumerationTest, AnEmptyKeyLeavesTheBlanksOfTheLastStepInText2) {
  machine.key(kKey);
  std::string packed;
  EXPECT_EQ(layer().fEnumValue("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(Text2.text(), std::string(2048, ' '));
}

TEST_F(RegistryEnumerationTest, AFailedReadEndsTheWalkWithItsStatus) {
  machine.value(kKey, "a", "1").value(kKey, "b", "2").ini("[fault]\nRegQueryValueEx=2,5\n");
  std::string packed;
  EXPECT_EQ(layer().fEnumValueb("HKCU", "Software\\Test", packed), kAccessDenied);
  EXPECT_EQ(rows(List20), Rows({"a"}));
  EXPECT_EQ(packed, bytes("a=1\0"));
}

TEST_F(RegistryEnumerationTest, AFailedStepEndsTheWalkAsIfNothingWereLeft) {
  machine.value(kKey, "a", "1").value(kKey, "b", "2").ini("[fault]\nRegEnumValue=2,5\n");
  std::string packed;
  EXPECT_EQ(layer().fEnumValueb("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(rows(List20), Rows({"a"}));
  EXPECT_EQ(packed, bytes("a=1\0\0"));
}

TEST_F(RegistryEnumerationTest, AFailedStepAmongSubkeysEndsTheWalkAsIfNothingWereLeft) {
  for (const char* name : {"a", "b", "c"}) machine.key(std::string(kKey) + "\\" + name);
  machine.ini("[fault]\nRegEnumKey=2,5\n");
  std::string packed;
  EXPECT_EQ(layer().fEnumKey("HKCU", "Software\\Test", packed), kSuccess);
  EXPECT_EQ(rows(List12), Rows({"a"}));
  EXPECT_EQ(packed, bytes("a\0\0"));
}

TEST_F(RegistryEnumerationTest, ANameThatFillsTheBufferEndsTheWalk) {
  const std::string fits(2047, 'f');
  machine.value(kKey, fits, "1").value(kKey, std::string(2048, 'x'), "2").value(kKey, "b", "3");
  EXPECT_EQ(layer().fEnumValueb("HKCU", "Software\\Test"), kSuccess);
  EXPECT_EQ(rows(List20), Rows({fits}));
}

TEST_F(RegistryEnumerationTest, TracksSeeThe64BitView) {
  machine.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Test", "wide", "1")
      .value("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Test", "narrow", "1");
  layer().fEnumValueb("HKLM", "software\\test");
  EXPECT_EQ(rows(List20), Rows({"wide"}));
}

}  // namespace
}  // namespace tavr
