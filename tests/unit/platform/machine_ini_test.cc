#include "platform/folder/machine_ini.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/folder/malformed_file.h"

namespace tavr::folder {
namespace {

using namespace std::string_literals;

std::string variable(const MachineIni& ini, std::string_view name) {
  for (const auto& [key, value] : ini.environment) {
    if (key == name) return value;
  }
  return "(missing)";
}

// What a malformed text is refused with; "" when it is taken.
std::string refusal(std::string_view text) {
  try {
    parseMachineIni(text);
  } catch (const MalformedFile& error) {
    return error.what();
  }
  return "";
}

TEST(MachineIni, AnEmptyTextGivesEveryDefault) {
  const MachineIni ini = parseMachineIni("");
  EXPECT_EQ(variable(ini, "UserName"), "user");
  EXPECT_EQ(variable(ini, "USERPROFILE"), "C:\\Users\\user");
  EXPECT_EQ(variable(ini, "Temp"), "C:\\Users\\user\\AppData\\Local\\Temp");
  EXPECT_EQ(variable(ini, "PROGRAMDATA"), "C:\\ProgramData");
  EXPECT_EQ(ini.environment.size(), 4U);
  EXPECT_EQ(ini.program_path, "C:\\Program Files\\Tavr Wipe");
  EXPECT_EQ(ini.cookies, "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies");
  EXPECT_FALSE(ini.clock_start);
  EXPECT_FALSE(ini.answers);
  EXPECT_EQ(ini.parent_window, "");
  EXPECT_TRUE(ini.faults.empty());
}

TEST(MachineIni, TheUserNameReachesEveryDefaultThatNamesIt) {
  const MachineIni ini = parseMachineIni("[environment]\nUserName=Zoë\n");
  EXPECT_EQ(variable(ini, "USERPROFILE"), "C:\\Users\\Zoë");
  EXPECT_EQ(variable(ini, "Temp"), "C:\\Users\\Zoë\\AppData\\Local\\Temp");
  EXPECT_EQ(ini.cookies, "C:\\Users\\Zoë\\AppData\\Local\\Microsoft\\Windows\\INetCookies");
}

TEST(MachineIni, ReferencesAreReplacedInTheProfilesFoldersInAnyOrder) {
  const MachineIni ini = parseMachineIni(
      "[folders]\ncookies=<userprofile>\\Cookies\\<UserName>\n"
      "[environment]\nTemp=D:\\<UserName>\\T\nUSERPROFILE=D:\\Home\\<UserName>\nUserName=ann\n"
      "PROGRAMDATA=D:\\<other><UserName>\\<UserName\n");
  EXPECT_EQ(ini.cookies, "D:\\Home\\ann\\Cookies\\ann");
  EXPECT_EQ(variable(ini, "Temp"), "D:\\ann\\T");
  EXPECT_EQ(variable(ini, "PROGRAMDATA"), "D:\\<other>ann\\<UserName");
}

TEST(MachineIni, EverythingElseIsTakenAsItStands) {
  const MachineIni ini = parseMachineIni(
      "[environment]\nAPPDATA=<USERPROFILE>\\Roaming\nTempDir=<UserName>\n"
      "[program]\npath=C:\\<UserName>\n[parent]\nwindow=Window of <UserName>\n");
  EXPECT_EQ(variable(ini, "APPDATA"), "<USERPROFILE>\\Roaming");
  EXPECT_EQ(variable(ini, "TempDir"), "<UserName>");
  EXPECT_EQ(ini.program_path, "C:\\<UserName>");
  EXPECT_EQ(ini.parent_window, "Window of <UserName>");
}

TEST(MachineIni, AReferenceToItselfStaysAsItStands) {
  const MachineIni ini =
      parseMachineIni("[environment]\nUserName=<UserName>\nUSERPROFILE=C:\\<USERPROFILE>\n");
  EXPECT_EQ(variable(ini, "UserName"), "<UserName>");
  EXPECT_EQ(variable(ini, "USERPROFILE"), "C:\\<USERPROFILE>");
}

TEST(MachineIni, NamesCompareWithoutCaseAndBlanksAroundThemDoNotCount) {
  const MachineIni ini = parseMachineIni("  [ PARENT ]  \n\t Window =  Tavrwork Brightbox \t\n");
  EXPECT_EQ(ini.parent_window, "Tavrwork Brightbox");
}

TEST(MachineIni, AVariableGivenInAnotherCaseReplacesTheDefault) {
  const MachineIni ini = parseMachineIni("[environment]\nTEMP=\nAPPDATA=C:\\Roaming\n");
  EXPECT_EQ(variable(ini, "TEMP"), "");
  EXPECT_EQ(variable(ini, "Temp"), "(missing)");
  EXPECT_EQ(variable(ini, "APPDATA"), "C:\\Roaming");
}

TEST(MachineIni, ACommentIsALineOfItsOwnOrStandsBehindABlank) {
  const MachineIni ini = parseMachineIni(
      "; [nonsense]\n  ; no sign here\n[environment] ; the user\nUserName=ann ; her name\n"
      "A=x;y\nB=;z\nUSERPROFILE=C:\\A\t;tab\n[clock]\nstart=            ; empty: the real clock\n");
  EXPECT_EQ(variable(ini, "UserName"), "ann");
  EXPECT_EQ(variable(ini, "A"), "x;y");
  EXPECT_EQ(variable(ini, "B"), ";z");
  EXPECT_EQ(variable(ini, "USERPROFILE"), "C:\\A");
  EXPECT_FALSE(ini.clock_start);
}

TEST(MachineIni, AByteOrderMarkAndCarriageReturnsAreTaken) {
  const MachineIni ini = parseMachineIni("\xEF\xBB\xBF[environment]\r\nUserName=ann\r\n\r\n");
  EXPECT_EQ(variable(ini, "UserName"), "ann");
}

TEST(MachineIni, AClockTextGivesTheStart) {
  const MachineIni ini = parseMachineIni("[clock]\nstart=2026-11-20T10:02:03\n");
  ASSERT_TRUE(ini.clock_start);
  EXPECT_EQ(ini.clock_start->year, 2026);
  EXPECT_EQ(ini.clock_start->month, 11);
  EXPECT_EQ(ini.clock_start->day, 20);
  EXPECT_EQ(ini.clock_start->hour, 10);
  EXPECT_EQ(ini.clock_start->minute, 2);
  EXPECT_EQ(ini.clock_start->second, 3);
}

TEST(MachineIni, ATextThatIsNoTimeIsRefused) {
  for (const std::string text :
       {"2026-11-20", "2026-11-20 10:00:00", "2026-11-20T10:00:00Z", "2026-02-29T10:00:00",
        "2026-13-01T10:00:00", "2026-00-01T10:00:00", "2026-01-00T10:00:00", "2026-01-01T24:00:00",
        "2026-01-01T10:60:00", "2026-01-01T10:00:60", "1600-12-31T10:00:00",
        "+026-11-20T10:00:00"}) {
    EXPECT_EQ(refusal("[clock]\n\nstart=" + text),
              "machine.ini:3: no time such as 2026-11-20T10:00:00: \"" + text + "\"");
  }
  EXPECT_EQ(refusal("[clock]\nstart=2028-02-29T23:59:59"), "");
}

TEST(MachineIni, AnswersKeepTheirOrderAndTheirBlanks) {
  const MachineIni ini = parseMachineIni(
      "[answers]\nDefault=YES\ngoogle chrome=no\na ; b [c]=Yes ; both\ngoogle=yes\n");
  ASSERT_TRUE(ini.answers);
  EXPECT_TRUE(ini.answers->yes_by_default);
  const std::vector<std::pair<std::string, bool>> expected = {
      {"google chrome", false}, {"a ; b [c]", true}, {"google", true}};
  EXPECT_EQ(ini.answers->texts, expected);
}

TEST(MachineIni, AnEmptySectionOfAnswersStillAnswersNo) {
  const MachineIni ini = parseMachineIni("[answers]\n");
  ASSERT_TRUE(ini.answers);
  EXPECT_FALSE(ini.answers->yes_by_default);
}

TEST(MachineIni, FaultsHaveACallAndAnError) {
  const MachineIni ini = parseMachineIni("[fault]\nDeleteFile=3,32\nRegOpenKeyEx = 0 , 5 ; all\n");
  ASSERT_EQ(ini.faults.size(), 2U);
  EXPECT_EQ(ini.faults[0].operation, "DeleteFile");
  EXPECT_EQ(ini.faults[0].nth, 3U);
  EXPECT_EQ(ini.faults[0].error, 32U);
  EXPECT_EQ(ini.faults[1].operation, "RegOpenKeyEx");
  EXPECT_EQ(ini.faults[1].nth, 0U);
  EXPECT_EQ(ini.faults[1].error, 5U);
}

TEST(MachineIni, AnOperationMayFailAtSeveralCalls) {
  const MachineIni ini =
      parseMachineIni("[fault]\nDeleteFile=2,5\nCopyFile=2,5\nDELETEFILE=4,32\ndeletefile=0,3\n");
  ASSERT_EQ(ini.faults.size(), 4U);
  EXPECT_EQ(ini.faults[2].nth, 4U);
  EXPECT_EQ(ini.faults[2].error, 32U);
  EXPECT_EQ(ini.faults[3].nth, 0U);
}

TEST(MachineIni, AFaultOfAnyOtherFormIsRefused) {
  for (const std::string value :
       {"", "3", "3,", ",5", "3;5", "x,5", "1,-5", "1,0x5", "1,5,6", "1,0", "4294967296,5"}) {
    EXPECT_EQ(refusal("[fault]\nDeleteFile=" + value),
              "machine.ini:2: a fault is nth,error, not \"" + value + "\"");
  }
  EXPECT_EQ(refusal("[fault]\nDeleteFileA=1,5"),
            "machine.ini:2: unknown operation \"DeleteFileA\"");
  EXPECT_EQ(refusal("[fault]\nDeleteFile=1,5\ndeletefile=1,32"),
            "machine.ini:3: given twice: \"deletefile\"");
}

TEST(MachineIni, EveryOperationOfTheUsersPageCanFail) {
  // The table of docs/machine-folder.md, by hand.
  for (const std::string operation : {"FindFirstFile",
                                      "GetFileAttributes",
                                      "SetFileAttributes",
                                      "DeleteFile",
                                      "CopyFile",
                                      "SetCurrentDirectory",
                                      "CreateFile",
                                      "ReadFile",
                                      "WriteFile",
                                      "RegOpenKeyEx",
                                      "RegCreateKeyEx",
                                      "RegEnumKey",
                                      "RegEnumValue",
                                      "RegQueryValueEx",
                                      "RegSetValueEx",
                                      "RegDeleteKey",
                                      "RegDeleteValue",
                                      "GetExpandedStringValue",
                                      "GetMultiStringValue",
                                      "SetMultiStringValue",
                                      "CreateKey",
                                      "GetObject",
                                      "ExecQuery",
                                      "Process32First",
                                      "OpenProcess",
                                      "TerminateProcess",
                                      "FindFirstUrlCacheEntry",
                                      "FindNextUrlCacheEntry",
                                      "DeleteUrlCacheEntry",
                                      "SHQueryRecycleBin",
                                      "SHEmptyRecycleBin",
                                      "SHGetSpecialFolderLocation",
                                      "ShellExecute",
                                      "HtmlHelp",
                                      "CreateProcess",
                                      "ReportEvent",
                                      "CreateFileMapping",
                                      "MapViewOfFile",
                                      "FindWindow",
                                      "RegisterHotKey"}) {
    EXPECT_EQ(refusal("[fault]\n" + operation + "=1,5"), "");
  }
}

TEST(MachineIni, WhatItDoesNotKnowIsRefusedWithItsLine) {
  EXPECT_EQ(refusal("\n[colours]\n"), "machine.ini:2: unknown section \"colours\"");
  EXPECT_EQ(refusal("[clock"), "machine.ini:1: no \"]\" behind the section's name");
  EXPECT_EQ(refusal("[program]\ndir=C:\\x"), "machine.ini:2: unknown key \"dir\"");
  EXPECT_EQ(refusal("[folders]\ntemp=C:\\x"), "machine.ini:2: unknown key \"temp\"");
  EXPECT_EQ(refusal("[clock]\nend="), "machine.ini:2: unknown key \"end\"");
  EXPECT_EQ(refusal("[parent]\ntitle="), "machine.ini:2: unknown key \"title\"");
  EXPECT_EQ(refusal("[environment]\nUserName"), "machine.ini:2: no \"=\" in \"UserName\"");
  EXPECT_EQ(refusal("[environment]\n =x"), "machine.ini:2: no name before \"=\"");
  EXPECT_EQ(refusal("UserName=x"), "machine.ini:1: a key before the first section");
  EXPECT_EQ(refusal("[answers]\ndefault=maybe"),
            "machine.ini:2: an answer is yes or no, not \"maybe\"");
  EXPECT_EQ(refusal("[answers]\nchrome="), "machine.ini:2: an answer is yes or no, not \"\"");
  EXPECT_EQ(refusal("[environment]\nA=\xFFx"), "machine.ini:2: is not UTF-8");
  EXPECT_EQ(refusal("[environment]\nA=\0x"s), "machine.ini:2: holds a NUL");
}

TEST(MachineIni, AKeyThatStandsTwiceIsRefused) {
  EXPECT_EQ(refusal("[environment]\nA=1\na=2"), "machine.ini:3: given twice: \"a\"");
  EXPECT_EQ(refusal("[parent]\nwindow=A\n[clock]\n[parent]\nwindow=A"),
            "machine.ini:5: given twice: \"window\"");
}

TEST(MachineIni, AProgramFolderWithoutADriveIsRefusedWithTheLineOfItsKey) {
  EXPECT_EQ(refusal("[program]\npath=\\Tavr\n[clock]\nstart=\n"),
            "machine.ini:2: no full path such as C:\\Program Files\\Tavr Wipe: \"\\Tavr\"");
  EXPECT_EQ(parseMachineIni("[program]\npath=D:\\").program_path, "D:");
}

}  // namespace
}  // namespace tavr::folder
