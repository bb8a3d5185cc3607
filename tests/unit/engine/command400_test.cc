// Before the executor works: the plug-ins are listed, their ticks restored, and
// the work lists filled.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/executors.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";

void definition(TestMachine& machine, const std::string& name, const std::string& path) {
  machine.file(kFolder + "plugins\\" + name + ".tv",
               name + "\r\nme\r\nwhat\r\nfiles\r\nfile=" + path + ",1\r\n");
}

std::vector<std::string> ticked(Form1& form) {
  std::vector<std::string> names;
  for (int row = 1; row <= form.View1.count(); ++row) {
    if (form.View1.item(row).checked) names.push_back(form.View1.item(row).text);
  }
  return names;
}

TEST(PlugInPhase, WithoutASelectionFileLeavesTheListsAsAnEarlierRunLeftThem) {
  TestMachine machine;
  definition(machine, "P", "C:\\x");
  machine.file(kFolder + "plgfile.cln", "C:\\old\r\n");
  WatchedProgram program(machine);
  program.form.List7.add("C:\\earlier");
  Command400(program.program);
  EXPECT_EQ(program.form.View1.count(), 1);  // listed all the same
  EXPECT_EQ(program.form.List7.at(0), "C:\\earlier");
  EXPECT_EQ(machine.read(kFolder + "plgfile.cln"), "C:\\old\r\n");
  EXPECT_FALSE(machine.exists(kFolder + "slectplg.cln"));
}

TEST(PlugInPhase, AnEmptySelectionFileEmptiesTheLists) {
  TestMachine machine;
  definition(machine, "P", "C:\\x");
  machine.file(kFolder + "slectplg.cln", "").file(kFolder + "plgfile.cln", "C:\\old\r\n");
  WatchedProgram program(machine);
  program.form.List7.add("C:\\earlier");
  Command400(program.program);
  EXPECT_EQ(program.form.List7.count(), 0);
  EXPECT_EQ(machine.read(kFolder + "plgfile.cln"), "");
}

TEST(PlugInPhase, AnEmptyPlugInFolderEmptiesTheSelectionAndTheThreeFiles) {
  for (const bool folder : {true, false}) {
    TestMachine machine;
    if (folder) machine.folder(kFolder + "plugins");
    machine.file(kFolder + "slectplg.cln", "P\r\n");
    for (const char* name : {"plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
      machine.file(kFolder + name, "old\r\n");
    }
    WatchedProgram program(machine);
    Command400(program.program);
    EXPECT_EQ(program.form.View1.count(), 0);
    for (const char* name : {"slectplg.cln", "plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
      EXPECT_TRUE(machine.exists(kFolder + name)) << name;
      EXPECT_EQ(machine.read(kFolder + name), "") << name;
    }
  }
}

TEST(PlugInPhase, TicksWhatTheLinesNameWithoutCaseOrOuterBlanks) {
  TestMachine machine;
  for (const char* name : {"Alpha", "Beta", "Gamma"}) definition(machine, name, "C:\\x");
  machine.file(kFolder + "slectplg.cln", "  ALPHA \r\ngamma\r\nDelta\r\n");
  WatchedProgram program(machine);
  Command400(program.program);
  EXPECT_THAT(ticked(program.form), ElementsAre("Alpha", "Gamma"));
  EXPECT_EQ(machine.read(kFolder + "slectplg.cln"), "Alpha\r\nGamma\r\n");
}

TEST(PlugInPhase, ALineIsAPattern) {
  const std::pair<const char*, std::vector<std::string>> lines[] = {
      {"al*", {"Albert", "Alpha"}},
      {"?eta", {"Beta"}},
      {"[a-b]*", {"Albert", "Alpha", "Beta"}},
      {"*", {"Albert", "Alpha", "Beta"}},
      {"#", {}},
      {"[", {"Albert", "Alpha", "Beta"}},  // fails to compare, which counts as a match
  };
  for (const auto& [line, names] : lines) {
    TestMachine machine;
    for (const char* name : {"Alpha", "Beta", "Albert"}) definition(machine, name, "C:\\x");
    machine.file(kFolder + "slectplg.cln", std::string(line) + "\r\n");
    WatchedProgram program(machine);
    Command400(program.program);
    EXPECT_EQ(ticked(program.form), names) << line;
  }
}

TEST(PlugInPhase, ANameWithANumberSignMissesItself) {
  TestMachine machine;
  definition(machine, "C#", "C:\\x");
  machine.file(kFolder + "slectplg.cln", "C#\r\n");
  WatchedProgram program(machine);
  Command400(program.program);
  EXPECT_THAT(ticked(program.form), IsEmpty());
}

TEST(PlugInPhase, MarksTheRowOfTheTaskTableAndAddsNone) {
  TestMachine machine;
  definition(machine, "P", "C:\\x");
  definition(machine, "Q", "C:\\x");
  machine.file(kFolder + "slectplg.cln", "P\r\n");
  WatchedProgram program(machine);
  program.form.View100.add("P", "a");  // a catalogue row of that name is left alone
  program.form.View100.add("P", "c");
  program.form.View100.add("Q", "c");
  Command400(program.program);
  EXPECT_EQ(program.form.View100.count(), 3);
  EXPECT_EQ(program.form.View100.item(1).small_icon, "a");
  EXPECT_EQ(program.form.View100.item(2).small_icon, "o");
  EXPECT_EQ(program.form.View100.item(3).small_icon, "c");
}

TEST(PlugInPhase, FillsTheWorkListsFromTheTickedDefinitions) {
  TestMachine machine;
  definition(machine, "P", "C:\\x\\p.dat");
  definition(machine, "Q", "C:\\x\\q.dat");
  machine.file(kFolder + "slectplg.cln", "Q\r\n");
  WatchedProgram program(machine);
  Command400(program.program);
  EXPECT_EQ(program.form.List7.count(), 1);
  EXPECT_EQ(program.form.List7.at(0), "C:\\x\\q.dat");
}

TEST(PlugInPhase, PumpsForEachDefinitionReadLineAndWrittenLine) {
  const std::string entries =
      "P\r\nme\r\nwhat\r\nfiles\r\nfile=C:\\x,1\r\nfolder=C:\\app,,* 1\r\n"
      "registry\r\nHKEY_CURRENT_USER\\A,1\r\nHKEY_CURRENT_USER\\B,1\r\n";
  const auto pumps = [&](std::initializer_list<const char*> names, const char* selection) {
    TestMachine machine;
    for (const char* name : names) {
      machine.file(kFolder + "plugins\\" + name + ".tv", entries);
    }
    if (selection != nullptr) machine.file(kFolder + "slectplg.cln", selection);
    WatchedProgram program(machine);
    Command400(program.program);
    return program.events.pumped;
  };
  EXPECT_EQ(pumps({"P", "Q", "R"}, nullptr), 3) << "listed";
  EXPECT_EQ(pumps({"P", "Q", "R"}, ""), 3 + 3) << "and looked at for the selection";
  EXPECT_EQ(pumps({"P", "Q", "R"}, "x\r\ny\r\n"), 3 + 2 + 3) << "and two lines that tick none";
  // One file, the three lines of a folder, two of the registry.
  EXPECT_EQ(pumps({"P"}, "P\r\n"), 1 + 1 + 1 + 1 + 3 + 2);
}

TEST(PlugInPhase, KeepsTheCookiesFolderAsTheShellReportsIt) {
  TestMachine machine;
  machine.ini("[folders]\ncookies= C:\\Cookies \n");
  WatchedProgram program(machine);
  Command400(program.program);
  EXPECT_EQ(program.form.Text3.text(), "C:\\Cookies");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, "software\\tavrwork\\Tavr Wipe", "cookies"),
            "C:\\Cookies");
}

TEST(PlugInPhase, WithoutACookiesFolderKeepsWhatIsThere) {
  TestMachine machine;
  machine.ini("[fault]\nSHGetSpecialFolderLocation=0,2\n");
  WatchedProgram program(machine);
  program.form.Text3.setText("C:\\before");
  Command400(program.program);
  EXPECT_EQ(program.form.Text3.text(), "C:\\before");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, "software\\tavrwork\\Tavr Wipe", "cookies"),
            "<none>");
}

TEST(PlugInPhase, BothRunsReportPlugInItemsAndLeaveThem) {
  for (const RunKind kind : {RunKind::erase, RunKind::test}) {
    TestMachine machine;
    definition(machine, "P", "C:\\x.dat");
    machine.file(kFolder + "slectplg.cln", "P\r\n").file("C:\\x.dat", "12345");
    WatchedProgram program(machine);
    program.run(kind);
    EXPECT_THAT(program.rows(), ElementsAre("Plug In Application Files = C:\\x.dat <OK>"));
    EXPECT_EQ(program.form.txtfilecount.text(), "1");
    EXPECT_EQ(program.task("P"), "Done|");
    EXPECT_TRUE(machine.exists("C:\\x.dat"));
  }
}

}  // namespace
}  // namespace tavr
