// The start with a window: what loading reads, where the form stands, which
// dialogs come up, and the hot key.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/window.h"
#include "tests/support/started_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;
using HotKey = folder::FolderDesktop::HotKey;

constexpr std::string_view kFirstTime = "software\\tavrwork\\tavr wipe\\option";

TestMachine& usedBefore(TestMachine& machine) {
  return machine.setting(kOptionSetting, "firsttime", "1");
}

TEST(InteractiveStart, ShowsTheFormInTheMiddleOfTheScreenWithAShadow) {
  TestMachine machine;
  usedBefore(machine);
  StartedProgram started(machine);
  EXPECT_FALSE(started.start());
  EXPECT_TRUE(started.form().visible);
  EXPECT_TRUE(started.form().enabled);
  EXPECT_TRUE(started.form().shadow);
  EXPECT_EQ(started.form().left, (1920 - 960) / 2);
  EXPECT_EQ(started.form().top, (1080 - 640) / 2);
  EXPECT_EQ(started.form().Gif89a1.file, "C:\\Program Files\\Tavr Wipe\\search.gif");
  EXPECT_TRUE(started.form().Timer1.enabled());
  EXPECT_THAT(started.runs, IsEmpty());
  EXPECT_TRUE(started.desktop().hotKeys().empty());
}

TEST(InteractiveStart, UnknownArgumentsGiveAWindowWithoutShadow) {
  TestMachine machine;
  usedBefore(machine);
  StartedProgram started(machine);
  started.start("w4 -c4");
  EXPECT_TRUE(started.form().visible);
  EXPECT_FALSE(started.form().shadow);
}

TEST(InteractiveStart, ReadsLanguageFileStartPageAndTitle) {
  TestMachine machine;
  usedBefore(machine)
      .setting(kMainSetting, "language", "  deutsch.ini ")
      .setting(kMainSetting, "homepage", " http://a/ ")
      .setting(kMainSetting, "titlepage", " title ");
  StartedProgram started(machine);
  started.start();
  EXPECT_EQ(started.form().txtlang.text(), "deutsch.ini");
  EXPECT_EQ(started.form().Text12.text(), "http://a/");
  EXPECT_EQ(started.form().Text13.text(), " title ");
}

TEST(InteractiveStart, WithoutALanguageTheTextsAreEnglish) {
  TestMachine machine;
  usedBefore(machine).setting(kMainSetting, "language", "  ");
  StartedProgram started(machine);
  started.start();
  EXPECT_EQ(started.form().txtlang.text(), "english.ini");
}

TEST(InteractiveStart, WithNothingStoredTheTextsAreEnglishAndStartPageAndTitleEmpty) {
  TestMachine machine;
  StartedProgram started(machine);
  started.form().Text12.setText("before");
  started.form().Text13.setText("before");
  started.start();
  EXPECT_EQ(started.form().txtlang.text(), "english.ini");
  EXPECT_EQ(started.form().Text12.text(), "");
  EXPECT_EQ(started.form().Text13.text(), "");
}

TEST(InteractiveStart, TheVeryFirstStartOpensTheSettings) {
  TestMachine machine;
  StartedProgram started(machine);
  started.start();
  EXPECT_TRUE(started.open("Form2"));
  EXPECT_FALSE(started.form().enabled);
  EXPECT_TRUE(started.form().visible);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kFirstTime, "firsttime"), "1");
  started.program().desk.unload("Form2");
  EXPECT_TRUE(started.form().enabled);
}

TEST(InteractiveStart, ALaterStartOpensNoSettings) {
  TestMachine machine;
  usedBefore(machine);
  StartedProgram started(machine);
  started.start();
  EXPECT_FALSE(started.open("Form2"));
}

TEST(InteractiveStart, AnUnattendedStartNeitherOpensTheSettingsNorCountsAsTheFirst) {
  TestMachine machine;
  StartedProgram started(machine);
  EXPECT_TRUE(started.start("t"));
  EXPECT_FALSE(started.open("Form2"));
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kFirstTime, "firsttime"), "<none>");
}

TEST(InteractiveStart, DShowsTheSettingsAloneAndTheirCloseEndsTheProgram) {
  TestMachine machine;
  StartedProgram started(machine);
  EXPECT_FALSE(started.start("d"));
  EXPECT_TRUE(started.open("Form2"));
  EXPECT_FALSE(started.form().visible);
  EXPECT_FALSE(started.form().shadow);
  EXPECT_EQ(started.program().desk.dialogMode(), "d");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kFirstTime, "firsttime"), "<none>");
  Control* const exit = started.program().desk.loaded("Form2")->find("chameleonButton4");
  ASSERT_NE(exit, nullptr);
  EXPECT_TRUE(started.ends([&] { exit->press(); }));
}

TEST(InteractiveStart, SStartsOutOfSightWithATrayIcon) {
  TestMachine machine;
  usedBefore(machine);
  StartedProgram started(machine);
  EXPECT_FALSE(started.start("s"));
  EXPECT_EQ(started.form().window_state, WindowState::kMinimised);
  EXPECT_FALSE(started.form().visible);
  EXPECT_EQ(started.desktop().trayToolTip(), "Spoorwipe");
  EXPECT_THAT(started.runs, IsEmpty());
}

TEST(InteractiveStart, SWithTheWindowsStartOptionErasesOnce) {
  TestMachine machine;
  usedBefore(machine).setting("tavr wipe\\timer", "winstart", "1");
  StartedProgram started(machine);
  EXPECT_FALSE(started.start("S"));
  EXPECT_THAT(started.runs, ElementsAre(RunKind::erase));
  EXPECT_EQ(started.form().Text5.text(), "2");
}

TEST(InteractiveStart, TheWindowsStartOptionIsOnForExactlyTheNumberOne) {
  const std::pair<const char*, bool> kTexts[] = {{"1.0", true}, {"2", false}, {"abc", false}};
  for (const auto& [text, on] : kTexts) {
    TestMachine machine;
    usedBefore(machine).setting("tavr wipe\\timer", "winstart", text);
    StartedProgram started(machine);
    started.start("s");
    EXPECT_EQ(started.runs.size(), on ? 1U : 0U) << text;
  }
}

// Whoever set Text5 before: the trigger is another text first.
TEST(InteractiveStart, TheWindowsStartErasesAlsoWhereTheTriggerStoodAlready) {
  TestMachine machine;
  usedBefore(machine).setting("tavr wipe\\timer", "winstart", "1");
  StartedProgram started(machine);
  started.start("s");
  Form_Load(started.program());
  EXPECT_THAT(started.runs, ElementsAre(RunKind::erase, RunKind::erase));
}

TEST(InteractiveStart, TheRunAtWindowsStartFindsTheTextsReadAndNoHotKeyYet) {
  TestMachine machine;
  usedBefore(machine)
      .setting("tavr wipe\\timer", "winstart", "1")
      .setting(kOptionsSetting, "5", "1")
      .setting(kMainSetting, "key", "K")
      .setting(kMainSetting, "language", "english.ini")
      .setting(kMainSetting, "homepage", "http://a/");
  StartedProgram started(machine);
  std::string seen;
  bool hot_key = true;
  started.program().onRunFinished = [&](RunKind) {
    seen = started.form().txtlang.text() + " " + started.form().Text12.text();
    hot_key = !started.desktop().hotKeys().empty();
  };
  started.start("s");
  EXPECT_EQ(seen, "english.ini http://a/");
  EXPECT_FALSE(hot_key);
  EXPECT_FALSE(started.desktop().hotKeys().empty());
}

TEST(InteractiveStart, TheScheduleTicksEveryTenSecondsFromLoading) {
  TestMachine machine;
  // A schedule of days without a date is due at the first tick.
  usedBefore(machine)
      .setting("tavr wipe\\timer", "option", "3")
      .setting("tavr wipe\\timer", "value", "1");
  StartedProgram started(machine);
  started.start();
  machine.machine().events.wait(9'000);
  EXPECT_THAT(started.runs, IsEmpty());
  machine.machine().events.wait(2'000);
  EXPECT_THAT(started.runs, ElementsAre(RunKind::erase));
}

TEST(InteractiveStart, WithoutSTheWindowsStartOptionDoesNothing) {
  TestMachine machine;
  usedBefore(machine).setting("tavr wipe\\timer", "winstart", "1");
  StartedProgram started(machine);
  started.start();
  EXPECT_THAT(started.runs, IsEmpty());
}

TEST(HotKey, IsRegisteredWithAltAndTheFirstCharacterOfTheKey) {
  TestMachine machine;
  usedBefore(machine).setting(kOptionsSetting, "5", "1").setting(kMainSetting, "key", " KEY ");
  StartedProgram started(machine);
  started.start();
  EXPECT_THAT(started.desktop().hotKeys(), ElementsAre(std::pair{1, HotKey{1, 'K'}}));
  EXPECT_TRUE(started.program().hot_key_installed);
}

TEST(HotKey, TakesTheCharacterAsItStands) {
  TestMachine machine;
  usedBefore(machine).setting(kOptionsSetting, "5", "1").setting(kMainSetting, "key", "k");
  StartedProgram started(machine);
  started.start();
  EXPECT_THAT(started.desktop().hotKeys(), ElementsAre(std::pair{1, HotKey{1, 'k'}}));
}

TEST(HotKey, ARepeatedLoadReleasesItFirst) {
  TestMachine machine;
  usedBefore(machine).setting(kOptionsSetting, "5", "1").setting(kMainSetting, "key", "Q");
  StartedProgram started(machine);
  started.start();
  started.start();
  EXPECT_THAT(started.desktop().hotKeys(), ElementsAre(std::pair{1, HotKey{1, 'Q'}}));
  EXPECT_EQ(started.program().hot_key_count, 1);
}

TEST(HotKey, NeedsBothTheOptionAndAKey) {
  for (const auto& [option, key] : {std::pair{"1", "  "}, std::pair{"0", "K"}}) {
    TestMachine machine;
    usedBefore(machine).setting(kOptionsSetting, "5", option).setting(kMainSetting, "key", key);
    StartedProgram started(machine);
    started.start();
    EXPECT_TRUE(started.desktop().hotKeys().empty());
    EXPECT_FALSE(started.program().hot_key_installed);
  }
}

TEST(HotKey, ItsOptionIsOnForExactlyTheNumberOne) {
  const std::pair<const char*, bool> kTexts[] = {{"1.0", true}, {"2", false}, {"abc", false}};
  for (const auto& [text, on] : kTexts) {
    TestMachine machine;
    usedBefore(machine).setting(kOptionsSetting, "5", text).setting(kMainSetting, "key", "K");
    StartedProgram started(machine);
    started.start();
    EXPECT_EQ(started.program().hot_key_installed, on) << text;
  }
}

TEST(HotKey, ATakenCombinationIsNotNoticed) {
  TestMachine machine;
  usedBefore(machine)
      .setting(kOptionsSetting, "5", "1")
      .setting(kMainSetting, "key", "K")
      .ini("[fault]\nRegisterHotKey=1,1409\n");
  StartedProgram started(machine);
  EXPECT_FALSE(started.start());
  EXPECT_TRUE(started.desktop().hotKeys().empty());
  EXPECT_TRUE(started.program().hot_key_installed);
}

TEST(InteractiveStart, LooksUpWhereTheSettingsButtonStandsInTwips) {
  TestMachine machine;
  usedBefore(machine);
  StartedProgram started(machine);
  started.start();
  EXPECT_EQ(started.program().settings_button_left, (480 + 12) * 15);
  EXPECT_EQ(started.program().settings_button_top, (220 + 94) * 15);
}

TEST(InteractiveStart, TheLanguageListIsFilledAndTheLanguageInForceApplied) {
  TestMachine machine;
  usedBefore(machine)
      .setting("tavrwork brightbox\\tavrwipe", "langcode", "0")
      .setting("tavrwork brightbox\\tavrwipe", "lang", "de")
      .setting("tavrwork brightbox\\tavrwipe", "langindex", "1")
      .file("C:\\Program Files\\Tavr Wipe\\lang\\data.lang",
            "[lang]\r\ntavrwipe = English,0,en|Deutsch,0,de\r\n")
      .file("C:\\Program Files\\Tavr Wipe\\lang\\tavrwipe-de.lang",
            "[Form1]\r\ncmd_test = Testen\r\n");
  StartedProgram started(machine);
  started.start();
  ASSERT_EQ(started.form().lbllanguage.size(), 2u);
  EXPECT_EQ(started.form().lbllanguage[1].caption, "Deutsch");
  EXPECT_EQ(started.form().cmd_test.caption, "Testen");
  EXPECT_EQ(started.form().cmd_start.caption, "");
  const Box& marker = started.form().imglangselect.box;
  EXPECT_GT(marker.top, started.form().lbllanguage[0].box.top);
  EXPECT_NE(started.form().find("lbllanguage(1)"), nullptr);
}

TEST(InteractiveStart, AFirstTimeMarkThatIsNoNumberOrZeroCountsAsTheFirst) {
  for (const char* mark : {"0", "abc"}) {
    TestMachine machine;
    machine.setting(kOptionSetting, "firsttime", mark);
    StartedProgram started(machine);
    started.start();
    EXPECT_TRUE(started.open("Form2")) << mark;
    EXPECT_EQ(machine.registryText(Root::kLocalMachine, kFirstTime, "firsttime"), "1") << mark;
  }
}

TEST(InteractiveStart, TheStripAndItsFourButtonsTakeTheConfiguredColourOrKeepTheDesigns) {
  for (const auto& [text, color] :
       {std::pair{" 255 ", 255}, {"0", 0}, {"-1", -1}, {"blue", ChameleonButton::kOfScheme}}) {
    TestMachine machine;
    usedBefore(machine).setting("tavrwork brightbox", "color", text);
    StartedProgram started(machine);
    started.start();
    const Form1& form = started.form();
    EXPECT_EQ(form.has_look_color, color != ChameleonButton::kOfScheme) << text;
    EXPECT_EQ(form.strip_color, form.has_look_color ? color : 0) << text;
    for (const StripButton* button : {&form.chameleonButton9, &form.chameleonButton10,
                                      &form.chameleonButton12, &form.chameleonButton13}) {
      EXPECT_EQ(button->color, color) << text;
      EXPECT_EQ(button->hover_color, color) << text;
    }
    EXPECT_EQ(form.chameleonButton11.color, ChameleonButton::kOfScheme) << text;
  }
}

TEST(InteractiveStart, TheColumnHeadersOfBothTablesCannotBeClicked) {
  TestMachine machine;
  usedBefore(machine);
  StartedProgram started(machine);
  EXPECT_TRUE(started.form().View100.header.clickable());
  EXPECT_TRUE(started.form().View200.header.clickable());
  started.start();
  EXPECT_FALSE(started.form().View100.header.clickable());
  EXPECT_FALSE(started.form().View200.header.clickable());
}

}  // namespace
}  // namespace tavr
