// What a start shows before its first run: captions, colour, the hidden window, the
// animation, the table.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/start.h"
#include "services/settings_keys.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::Contains;
using ::testing::Each;
using testing::TestMachine;
using testing::WatchedProgram;

const std::string kProgram = "C:\\Program Files\\Tavr Wipe\\";
constexpr std::string_view kCaptions =
    "Label1(0)=Bitte warten\r\nLabel6=viel\r\ncmd_start=Jetzt\r\n";

TestMachine& withCaptions(TestMachine& machine) {
  machine.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavrwork brightbox\\tavrwipe",
                "lang", "de");
  machine.file(kProgram + "lang\\data.lang", "[lang]\r\ntavrwipe=English,0,en|Deutsch,0,de\r\n");
  machine.file(kProgram + "lang\\tavrwipe-de.lang", "[Form1]\r\n" + std::string(kCaptions));
  return machine;
}

TestMachine& withTraces(TestMachine& machine) {
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a", "12345");
  return machine;
}

// The captions stand in the form when the first run begins; the run puts its
// own total into the label that a language file names too.
TEST(StartLook, CaptionsStandBeforeAnUnattendedRunAndChangeNoneOfItsResults) {
  TestMachine plain;
  TestMachine captioned;
  withTraces(plain).run("w2");
  withCaptions(withTraces(captioned));
  WatchedProgram it(captioned);
  std::string waiting;
  std::string size;
  it.events.when([&] { return it.form.View100.count() > 0; },
                 [&] {
                   waiting = it.form.Label1[0].caption;
                   size = it.form.Label6.caption;
                 });
  EXPECT_TRUE(it.start("w2"));
  EXPECT_EQ(waiting, "Bitte warten");
  EXPECT_EQ(size, "0");
  EXPECT_EQ(captioned.read(kProgram + "eresst.txt"), plain.read(kProgram + "eresst.txt"));
  EXPECT_EQ(captioned.read(kProgram + "eraselog.txt"), plain.read(kProgram + "eraselog.txt"));
}

// Whether the window is to be seen while the task table is built.
std::vector<bool> visibleAtTheTable(std::string_view arguments) {
  TestMachine machine;
  WatchedProgram it(machine);
  std::vector<bool> visible;
  const auto change = it.form.Text4.onChange;
  it.form.Text4.onChange = [&] {
    visible.push_back(it.form.visible);
    change();
  };
  it.start(arguments);
  return visible;
}

TEST(StartLook, AHiddenStartHidesTheWindowBeforeTheTableIsBuilt) {
  EXPECT_THAT(visibleAtTheTable("w3-c3"), Each(false));
  EXPECT_THAT(visibleAtTheTable("w3"), Each(false));
  EXPECT_THAT(visibleAtTheTable("w2"), Contains(true));
  EXPECT_THAT(visibleAtTheTable("w3-x"), Contains(true));
}

TEST(StartLook, AnUnattendedStartHasTheAnimation) {
  TestMachine machine;
  WatchedProgram it(machine);
  it.start("t");
  EXPECT_EQ(it.form.Gif89a1.file, kProgram + "search.gif");
}

TestMachine& withColour(TestMachine& machine) {
  return machine.setting("tavrwork brightbox", "color", "255");
}

TEST(StartLook, EveryStartThatCanShowTheStripAndThatOfAParentLooksItsColourUpBeforeTheTable) {
  for (const char* arguments : {"", "s", "d", "x", "w4", "w4-c4", "w4-x"}) {
    TestMachine machine;
    WatchedProgram it(withColour(machine));
    int before_the_table = -1;
    const auto change = it.form.Text4.onChange;
    it.form.Text4.onChange = [&] {
      if (before_the_table < 0) before_the_table = it.wmi.bindings;
      change();
    };
    it.start(arguments);
    EXPECT_EQ(before_the_table, 1) << arguments;
    EXPECT_EQ(it.form.strip_color, 255) << arguments;
    EXPECT_EQ(it.form.chameleonButton9.color, 255) << arguments;
    EXPECT_EQ(it.form.chameleonButton13.hover_color, 255) << arguments;
  }
}

TEST(StartLook, AnUnattendedStartWithoutAParentDoesNotWakeWmiForAStripThatNobodySees) {
  for (const char* arguments : {"t", "t-c", "t-x", "w2", "w2-c2", "w2-x", "w3", "w3-c3", "w3-x"}) {
    TestMachine machine;
    WatchedProgram it(withColour(machine));
    EXPECT_TRUE(it.start(arguments)) << arguments;
    EXPECT_EQ(it.wmi.bindings, 0) << arguments;
    EXPECT_FALSE(it.form.has_look_color) << arguments;
  }
}

// What a start writes, and into Text4, when the rebuilding of the table fails.
std::vector<std::string> changesWithoutATable(TestMachine& machine, std::string_view arguments) {
  WatchedProgram it(machine);
  std::vector<std::string> texts;
  it.form.Text4.onChange = [&] { texts.push_back(it.form.Text4.text()); };
  it.start(arguments);
  return texts;
}

TEST(StartLook, AnUnattendedStartWithoutATablePresetsSixTracksAndBuildsAnew) {
  TestMachine machine;
  const auto texts = changesWithoutATable(machine, "w2");
  ASSERT_GE(texts.size(), 3U);
  EXPECT_EQ(std::vector(texts.begin(), texts.begin() + 3),
            (std::vector<std::string>{"1", "", "1"}));
  for (const char* value : {"8", "9", "10", "11", "12", "13"}) {
    EXPECT_EQ(machine.registryText(Root::kLocalMachine, settings::kSelectionKey, value), "1");
  }
}

TEST(StartLook, AnInteractiveStartWithoutATablePresetsNothing) {
  TestMachine machine;
  EXPECT_EQ(changesWithoutATable(machine, ""), (std::vector<std::string>{"1"}));
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, settings::kSelectionKey, "8"), "<none>");
}

}  // namespace
}  // namespace tavr
