// The registry lines of plug-ins: how they are read, reported and, by the
// removing executor, carried out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "engine/plug_in_registry.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

TEST(RegistryLine, GivesRootPathAndKind) {
  struct Row {
    const char* line;
    const char* root;
    const char* path;
    char kind;
  };
  const Row rows[] = {
      {"HKEY_CURRENT_USER\\Software\\A,1", "HKCU", "Software\\A", '1'},
      {"HKEY_LOCAL_MACHINE\\Software\\A,2", "HKLM", "Software\\A", '2'},
      {"HKEY_USERS\\.DEFAULT,3", "HKU", ".DEFAULT", '3'},
      {"HKEY_CLASSES_ROOT\\.x,name,4", "HKCR", ".x,name", '4'},
      {"HKEY_CURRENT_CONFIG\\A,1", "HKCC", "A", '1'},
      {"HKEY_DYN_DATA\\A,1", "HKDD", "A", '1'},
      {"hkey_current_user\\Software\\A,1", "HKCU", "Software\\A", '1'},
      {"HKEY_CURRENT_USER\\Software\\A,1   ", "HKCU", "Software\\A", '1'},
      {"HKEY_CURRENT_USER\\Software\\A.5", "HKCU", "Software\\A", '5'},
      {"HKEY_CURRENT_USER\\Software\\A, 1", "HKCU", "Software\\A,", '1'},
      {"HKEY_ELSEWHERE\\Software\\A,2", "", "", '2'},
      {"HKCU\\Software\\A,1", "", "", '1'},
      {"HKEY_CURRENT_USER", "HKCU", "", 'R'},
      {"", "", "", 0},
  };
  for (const Row& row : rows) {
    const PlugInRegistryLine line = parsePlugInRegistryLine(row.line);
    EXPECT_EQ(line.root, row.root) << row.line;
    EXPECT_EQ(line.path, row.path) << row.line;
    EXPECT_EQ(line.kind, row.kind) << row.line;
  }
}

class RegistryEntries : public ::testing::Test {
 protected:
  RegistryEntries() {
    machine.value("HKEY_CURRENT_USER\\Software\\App\\Sub", "v", "1")
        .key("HKEY_CURRENT_USER\\Software\\App\\Other")
        .value("HKEY_CURRENT_USER\\Software\\App", "One", "1")
        .value("HKEY_CURRENT_USER\\Software\\App", "Two,and", "2");
  }

  // The rows of one line; the count of registry tracks goes to `count`.
  std::vector<std::string> rows(std::string_view line, bool remove = false) {
    WatchedProgram program(machine);
    plugInRegistryLine(program.program, line, remove);
    count = program.form.txtregcount.text();
    ghosted = program.form.View200.count() == 0 || program.form.View200.ghosted(1);
    return program.rows();
  }
  bool has(std::string_view key) { return machine.keyExists(Root::kCurrentUser, key); }
  std::string value(std::string_view name) {
    return machine.registryText(Root::kCurrentUser, "Software\\App", name);
  }

  TestMachine machine;
  std::string count;
  bool ghosted = false;
};

TEST_F(RegistryEntries, TheKeyItself) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software\\App\\Sub,1"),
              ElementsAre("Plug In Registry Links = HKCU\\Software\\App\\Sub <OK>"));
  EXPECT_EQ(count, "1");
  EXPECT_TRUE(ghosted);
  EXPECT_TRUE(has("Software\\App\\Sub"));
}

TEST_F(RegistryEntries, AllSubkeys) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software\\App,2"),
              ElementsAre("Plug In Registry Links = HKCU\\Software\\App\\Other <OK>",
                          "Plug In Registry Links = HKCU\\Software\\App\\Sub <OK>"));
  EXPECT_EQ(count, "2");
}

TEST_F(RegistryEntries, AllValues) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software\\App,3"),
              ElementsAre("Plug In Registry Links = HKCU\\Software\\App\\One <OK>",
                          "Plug In Registry Links = HKCU\\Software\\App\\Two,and <OK>"));
  EXPECT_EQ(count, "2");
}

TEST_F(RegistryEntries, OneValueIsAllBehindTheFirstComma) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software\\App,Two,and,4"),
              ElementsAre("Plug In Registry Links = HKCU\\Software\\App\\Two,and <OK>"));
  EXPECT_EQ(count, "1");
}

TEST_F(RegistryEntries, AreReportedWithoutALookAtTheRegistryForKindsOneAndFour) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\No\\Such,1"),
              ElementsAre("Plug In Registry Links = HKCU\\No\\Such <OK>"));
  EXPECT_THAT(rows("HKEY_CURRENT_CONFIG\\No,value,4"),
              ElementsAre("Plug In Registry Links = HKCC\\No\\value <OK>"));
}

TEST_F(RegistryEntries, AValueLineWithoutACommaReportsNothing) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software\\App,4"), IsEmpty());
  EXPECT_EQ(count, "");
}

TEST_F(RegistryEntries, AKeyLineWithoutABackslashReportsNothing) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software,1"), IsEmpty());
}

TEST_F(RegistryEntries, AnyOtherKindIsSkippedSilently) {
  for (const char* line :
       {"HKEY_CURRENT_USER\\Software\\App,0", "HKEY_CURRENT_USER\\Software\\App,5",
        "HKEY_CURRENT_USER\\Software\\App,x", "HKEY_CURRENT_USER\\Software", "", "1"}) {
    EXPECT_THAT(rows(line, true), IsEmpty()) << line;
  }
  EXPECT_TRUE(has("Software\\App\\Sub"));
}

TEST_F(RegistryEntries, AnUnknownRootReportsNothing) {
  for (const char* kind : {"1", "2", "3", "4"}) {
    EXPECT_THAT(rows(std::string("HKEY_ELSEWHERE\\Software\\App,") + kind, true), IsEmpty())
        << kind;
  }
}

TEST_F(RegistryEntries, OfARootThatIsNotWorkedOnEnumerateNothing) {
  EXPECT_THAT(rows("HKEY_DYN_DATA\\Software\\App,2"), IsEmpty());
  EXPECT_THAT(rows("HKEY_CURRENT_CONFIG\\Software\\App,3"), IsEmpty());
}

TEST_F(RegistryEntries, TheNamesOfAnEarlierEnumerationAreNotReportedAgain) {
  WatchedProgram program(machine);
  plugInRegistryLine(program.program, "HKEY_CURRENT_USER\\Software\\App,2", false);
  plugInRegistryLine(program.program, "HKEY_ELSEWHERE\\Software\\App,2", false);
  plugInRegistryLine(program.program, "HKEY_CURRENT_USER\\No\\Such,3", false);
  EXPECT_EQ(program.form.View200.count(), 2u);
}

// --- Removing -------------------------------------------------------------------

TEST_F(RegistryEntries, RemovingTheKeyItself) {
  rows("HKEY_CURRENT_USER\\Software\\App\\Sub,1", true);
  EXPECT_FALSE(has("Software\\App\\Sub"));
  EXPECT_TRUE(has("Software\\App\\Other"));
}

TEST_F(RegistryEntries, RemovingAKeyWithSubkeysFailsQuietly) {
  EXPECT_THAT(rows("HKEY_CURRENT_USER\\Software\\App,1", true), ::testing::SizeIs(1));
  EXPECT_TRUE(has("Software\\App\\Sub"));
}

TEST_F(RegistryEntries, RemovingAllSubkeys) {
  rows("HKEY_CURRENT_USER\\Software\\App,2", true);
  EXPECT_FALSE(has("Software\\App\\Sub"));
  EXPECT_FALSE(has("Software\\App\\Other"));
  EXPECT_EQ(value("One"), "1");
}

TEST_F(RegistryEntries, RemovingAllValues) {
  rows("HKEY_CURRENT_USER\\Software\\App,3", true);
  EXPECT_EQ(value("One"), "<none>");
  EXPECT_EQ(value("Two,and"), "<none>");
  EXPECT_TRUE(has("Software\\App\\Sub"));
}

TEST_F(RegistryEntries, RemovingOneValue) {
  rows("HKEY_CURRENT_USER\\Software\\App,Two,and,4", true);
  EXPECT_EQ(value("One"), "1");
  EXPECT_EQ(value("Two,and"), "<none>");
}

}  // namespace
}  // namespace tavr
