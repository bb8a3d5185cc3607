// platform/ini.h.
#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using namespace std::string_literals;

constexpr std::uint32_t kRoom = 1024;

class IniContract : public ContractTest {
 protected:
  void plant(std::string_view text) { file("a.ini", text); }
  std::string get(std::string_view section, std::string_view key,
                  std::string_view fallback = "fallback", std::uint32_t capacity = kRoom) {
    return machine().ini.getString(section, key, fallback, capacity, at("a.ini"));
  }
  std::int32_t number(std::string_view key) {
    return machine().ini.getInt("s", key, 77, at("a.ini"));
  }
  std::string section(std::string_view name, std::uint32_t capacity = kRoom) {
    return machine().ini.getSection(name, capacity, at("a.ini"));
  }
  Status write(std::string_view name, std::string_view key, std::string_view value) {
    return machine().ini.writeString(name, key, value, at("a.ini"));
  }
  std::string text() { return on().contents(at("a.ini")); }
};

TEST_F(IniContract, SectionAndKeyAreFoundWithoutCase) {
  plant("[Some Section]\r\nSome Key=value\r\n");
  EXPECT_EQ(get("sOME sECTION", "sOME kEY"), "value");
}

TEST_F(IniContract, WhatIsMissingGivesTheFallback) {
  EXPECT_EQ(get("s", "k"), "fallback") << "no file";
  plant("[s]\r\na=1\r\n");
  EXPECT_EQ(get("s", "k"), "fallback");
  EXPECT_EQ(get("t", "a"), "fallback");
  EXPECT_EQ(get("s", "k", ""), "");
}

TEST_F(IniContract, AnEmptyValueIsNoMissingOne) {
  plant("[s]\r\nk=\r\n");
  EXPECT_EQ(get("s", "k"), "");
}

TEST_F(IniContract, TheFirstMatchCounts) {
  plant("[s]\r\nk=1\r\nk=2\r\n[t]\r\n[s]\r\nk=3\r\nother=4\r\n");
  EXPECT_EQ(get("s", "k"), "1");
  EXPECT_EQ(get("s", "other"), "fallback") << "in a second section of the name";
}

TEST_F(IniContract, BlanksAroundAValueAreNotPartOfIt) {
  plant("[s]\r\n  k \t=  a b \t\r\n");
  EXPECT_EQ(get("s", "k"), "a b");
}

TEST_F(IniContract, OnePairOfEnclosingQuotesIsTakenOff) {
  plant("[s]\r\na=\" double \"\r\nb='single'\r\nc=\"\"two\"\"\r\nd=\"open\r\ne=\"mixed'\r\n");
  EXPECT_EQ(get("s", "a"), " double ");
  EXPECT_EQ(get("s", "b"), "single");
  EXPECT_EQ(get("s", "c"), "\"two\"");
  EXPECT_EQ(get("s", "d"), "\"open");
  EXPECT_EQ(get("s", "e"), "\"mixed'");
}

TEST_F(IniContract, AValueMayHoldTheSignsOfTheFormat) {
  plant("[s]\r\nk=a=b;c[d]\r\n");
  EXPECT_EQ(get("s", "k"), "a=b;c[d]");
}

TEST_F(IniContract, ACommentIsNoKey) {
  plant("[s]\r\n;k=1\r\nk=2\r\n");
  EXPECT_EQ(get("s", "k"), "2");
  EXPECT_EQ(get("s", ";k"), "fallback");
}

TEST_F(IniContract, ABufferKeepsRoomForItsNul) {
  plant("[s]\r\nk=0123456789\r\n");
  EXPECT_EQ(get("s", "k", "", 11), "0123456789");
  EXPECT_EQ(get("s", "k", "", 5), "0123");
  EXPECT_EQ(get("s", "none", "fallback", 5), "fall");
  EXPECT_EQ(get("s", "k", "", 1), "");
}

TEST_F(IniContract, LinesMayEndInLfAlone) {
  plant("[s]\na=1\nb=2");
  EXPECT_EQ(get("s", "a"), "1");
  EXPECT_EQ(get("s", "b"), "2");
}

TEST_F(IniContract, ANumberIsTheLeadingDigits) {
  plant("[s]\r\na=42\r\nb=42 x\r\nc=-7\r\nd=text\r\ne=\r\n");
  EXPECT_EQ(number("a"), 42);
  EXPECT_EQ(number("b"), 42);
  EXPECT_EQ(number("c"), -7);
  EXPECT_EQ(number("d"), 0) << "no number";
  EXPECT_EQ(number("none"), 77);
}

TEST_F(IniContract, ASectionIsItsLinesEachWithItsNul) {
  plant("[s]\r\na=1\r\n; comment\r\n\r\n b = 2 \r\n[t]\r\nc=3\r\n[empty]\r\n");
  EXPECT_EQ(section("S"), "a=1\0b=2\0\0"s);
  EXPECT_EQ(section("none"), "");
  EXPECT_EQ(section("empty"), "");
}

TEST_F(IniContract, ASectionIsCutToItsBuffer) {
  plant("[s]\r\na=1\r\nb=2\r\n");
  EXPECT_EQ(section("s", 9), "a=1\0b=2\0\0"s);
  EXPECT_EQ(section("s", 8), "a=1\0b=\0\0"s);
  EXPECT_EQ(section("s", 4), "a=\0\0"s);
}

TEST_F(IniContract, WritingMakesFileSectionAndLine) {
  EXPECT_EQ(write("s", "k", "value"), kSuccess);
  EXPECT_EQ(get("s", "k"), "value");
  EXPECT_EQ(text(), "[s]\r\nk=value\r\n");
}

TEST_F(IniContract, WritingKeepsEveryOtherLine) {
  plant("; head\r\n[s]\r\na=1\r\n; in it\r\nK=2\r\n\r\n[t]\r\nk=3\r\n");
  EXPECT_EQ(write("s", "k", "new"), kSuccess);
  EXPECT_EQ(text(), "; head\r\n[s]\r\na=1\r\n; in it\r\nK=new\r\n\r\n[t]\r\nk=3\r\n");
}

TEST_F(IniContract, ANewKeyGoesToItsSection) {
  plant("[s]\r\na=1\r\n\r\n[t]\r\nb=2\r\n");
  EXPECT_EQ(write("s", "k", "new"), kSuccess);
  EXPECT_EQ(get("s", "k"), "new");
  EXPECT_EQ(get("t", "k"), "fallback");
  EXPECT_EQ(get("s", "a"), "1");
  EXPECT_EQ(get("t", "b"), "2");
}

TEST_F(IniContract, AFileThatRefusesIsNotChanged) {
  plant("[s]\r\nk=1\r\n");
  on().makeReadOnly(at("a.ini"));
  EXPECT_EQ(write("s", "k", "2"), kAccessDenied);
  EXPECT_EQ(get("s", "k"), "1");
}

TEST_F(IniContract, AHeldFileIsNeitherReadNorWritten) {
  plant("[s]\r\nk=1\r\n");
  on().hold(at("a.ini"));
  EXPECT_EQ(write("s", "k", "2"), kSharingViolation);
  EXPECT_EQ(get("s", "k"), "fallback");
  EXPECT_EQ(text(), "[s]\r\nk=1\r\n");
}

// Turkish, Japanese and Arabic, as the files of languages are written.
constexpr std::string_view kTexts[] = {"\u00dc\u011f\u0131\u015f\u00e7 \u0130zleri sil",
                                       "\u5c65\u6b74\u3092\u6d88\u53bb",
                                       "\u0645\u0633\u062d \u0627\u0644\u0622\u062b\u0627\u0631"};

TEST_F(IniContract, TextBeyondAsciiIsReadAsUtf8) {
  for (const std::string_view text : kTexts) {
    plant("[s]\r\nk=" + std::string(text) + "\r\nother=1\r\n");
    EXPECT_EQ(get("s", "k"), text);
    EXPECT_EQ(section("s"), "k=" + std::string(text) + "\0other=1\0\0"s);
  }
}

TEST_F(IniContract, SectionsAndKeysBeyondAsciiAreFound) {
  for (const std::string_view text : kTexts) {
    plant("[" + std::string(text) + "]\r\n" + std::string(text) + "=5\r\n");
    EXPECT_EQ(get(text, text), "5");
    EXPECT_EQ(machine().ini.getInt(text, text, 77, at("a.ini")), 5);
    EXPECT_EQ(section(text), std::string(text) + "=5\0\0"s);
    EXPECT_EQ(get(text, "k"), "fallback");
  }
}

TEST_F(IniContract, TextBeyondAsciiIsWrittenAsUtf8) {
  for (const std::string_view text : kTexts) {
    plant("[first]\r\na=1\r\n");
    EXPECT_EQ(write(text, text, text), kSuccess);
    const std::string name(text);
    EXPECT_NE(this->text().find("[" + name + "]\r\n" + name + "=" + name + "\r\n"),
              std::string::npos)
        << this->text();
    EXPECT_EQ(get(text, text), text);
    EXPECT_EQ(write(text, text, "other"), kSuccess);
    EXPECT_EQ(section(text), name + "=other\0\0"s) << "replaced, not added";
  }
}

TEST_F(IniContract, ABufferCountsCharactersWhateverTheirBytes) {
  plant("[s]\r\nk=" + std::string(kTexts[1]) + "\r\n");
  EXPECT_EQ(get("s", "k", "", 7), kTexts[1]);
  EXPECT_EQ(get("s", "k", "", 4), kTexts[1].substr(0, 9));
}

TEST_F(IniContract, ALongValueIsCutToItsBufferAlone) {
  const std::string value(3000, 'x');
  plant("[s]\r\nk=" + value + "\r\n");
  EXPECT_EQ(get("s", "k", "", 255), value.substr(0, 254));
  EXPECT_EQ(get("s", "k", "", 4000), value);
}

// Cut between characters, whatever the number of bytes of each.
TEST_F(IniContract, ALongValueOfAnotherScriptIsCutToItsBufferToo) {
  std::string value;
  for (int i = 0; i < 300; ++i) value += "\u5c65";
  plant("[s]\r\nk=" + value + "\r\n");
  EXPECT_EQ(get("s", "k", "", 255), value.substr(0, 254 * 3));
  EXPECT_EQ(get("s", "k", "", 4000), value);
}

TEST_F(IniContract, APathThatIsNoFilesIsNoIniFileEither) {
  plant("[s]\r\nk=1\r\n");
  const std::string long_path = at(std::string(260, 'n'));
  for (const std::string& path : {long_path, at("a.ini:stream"), "\\\\?\\" + at("a.ini")}) {
    EXPECT_EQ(machine().ini.getString("s", "k", "fallback ", kRoom, path), "fallback") << path;
    EXPECT_EQ(machine().ini.getInt("s", "k", 77, path), 77) << path;
    EXPECT_EQ(machine().ini.getSection("s", kRoom, path), "") << path;
  }
  EXPECT_EQ(machine().ini.writeString("s", "k", "2", long_path), kPathNotFound);
  EXPECT_EQ(machine().ini.writeString("s", "k", "2", "\\\\?\\" + at("a.ini")), kPathNotFound);
  EXPECT_EQ(machine().ini.writeString("s", "k", "2", at("a.ini:stream")), kInvalidName);
  EXPECT_EQ(text(), "[s]\r\nk=1\r\n");
}

TEST_F(IniContract, ALeadingBackslashIsTheDriveOfTheProgram) {
  plant("[s]\r\nk=1\r\n");
  ASSERT_EQ(at().substr(0, 2), machine().environment.appPath().substr(0, 2));
  EXPECT_EQ(machine().ini.getString("s", "k", "", kRoom, at("a.ini").substr(2)), "1");
}

}  // namespace
}  // namespace tavr::contract
