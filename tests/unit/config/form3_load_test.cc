// What the options form reads when it opens, and what that writes again.
#include "tests/support/options_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::FormStage;
using ::testing::IsEmpty;
using testing::kBrowserSettings;
using testing::kCreate;
using testing::kMainSettings;
using testing::kOptionSettings;
using testing::kTimerSettings;
using testing::Options;
using testing::TestMachine;

TEST_F(Options, AnEmptyRegistryLeavesEverythingOff) {
  load();
  for (const CheckBox& box : form().Check1) EXPECT_EQ(box.value(), 0);
  for (const OptionButton* option : form().options()) EXPECT_FALSE(option->value());
  EXPECT_EQ(form().Text1.text(), "45");
  EXPECT_EQ(form().Text10.text(), "");
  EXPECT_EQ(form().Text20.text(), "");
  EXPECT_EQ(form().Combo1.text(), "");
  EXPECT_EQ(form().Combo2.text(), "");
  EXPECT_EQ(form().back_color, 10118205);
  EXPECT_EQ(form().chameleonButton32.color, 10118205);
  EXPECT_EQ(form().chameleonButton32.hover_color, 10118205);
  EXPECT_THAT(timerValues(), IsEmpty());
  EXPECT_EQ(shellLog(), "");
}

TEST_F(Options, TakeTheColourOfTheLook) {
  machine.setting("tavrwork brightbox", "color", " 255 ");
  load();
  EXPECT_EQ(form().back_color, 255);
  EXPECT_EQ(form().chameleonButton32.color, 255);
}

TEST_F(Options, AColourThatIsNoNumberLeavesTheDesign) {
  machine.setting("tavrwork brightbox", "color", "red");
  load();
  EXPECT_EQ(form().back_color, 0);
}

TEST_F(Options, StandInTheMiddleOfTheScreen) {
  load();
  EXPECT_EQ(form().left, (1920 - form().width) / 2);
  EXPECT_EQ(form().top, (1080 - form().height) / 2 + 13);
  EXPECT_TRUE(form().topmost);
}

TEST_F(Options, TakeTheirPictureFromTheImageList) {
  EXPECT_EQ(form().Image1.file, "");
  load();
  EXPECT_EQ(form().Image1.file, "ImageList1(1)");
}

TEST_F(Options, TheCombosOfferPassesAndLetters) {
  load();
  EXPECT_THAT(form().Combo1.items, ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10"));
  ASSERT_EQ(form().Combo2.items.size(), 26U);
  EXPECT_EQ(form().Combo2.items.front(), "A");
  EXPECT_EQ(form().Combo2.items.back(), "Z");
}

TEST_F(Options, ACombosTextIsKeptAsStored) {
  machine.setting(kMainSettings, "secure_value", "20").setting(kMainSettings, "key", "ab");
  load();
  EXPECT_EQ(form().Combo1.text(), "20");
  EXPECT_EQ(form().Combo2.text(), "ab");
  code().chameleonButton9_Click();
  EXPECT_EQ(stored(kMainSettings, "secure_value"), "20");
  EXPECT_EQ(stored(kMainSettings, "key"), "ab");
}

TEST_F(Options, ReadTheBrowsersPageAndTitle) {
  machine.value(kBrowserSettings, "Start Page", "http://a")
      .value(kBrowserSettings, "window title", "A");
  load();
  EXPECT_EQ(form().Text10.text(), "http://a");
  EXPECT_EQ(form().Text20.text(), "A");
}

TEST_F(Options, BoxesComeBackAsStored) {
  for (const char* name : {"0", "1", "2", "3", "5"}) machine.setting(kOptionSettings, name, "1");
  machine.setting(kOptionSettings, "4", "0");
  load();
  for (const int index : {0, 1, 2, 3, 5}) {
    EXPECT_EQ(form().Check1.at(static_cast<std::size_t>(index)).value(), 1) << index;
  }
  EXPECT_EQ(form().Check1[4].value(), 0);
  EXPECT_EQ(shellLog(), "");
}

TEST_F(Options, AStoredOneIsWrittenAgainAtLoad) {
  machine.setting(kOptionSettings, "3", "1.0");
  load();
  EXPECT_EQ(form().Check1[3].value(), 1);
  EXPECT_EQ(stored(kOptionSettings, "3"), "1");
}

TEST_F(Options, TheThirdStateIsKept) {
  machine.setting(kOptionSettings, "3", "2").setting(kOptionSettings, "4", "2");
  load();
  EXPECT_EQ(form().Check1[3].value(), 2);
  EXPECT_EQ(stored(kOptionSettings, "3"), "2");
  EXPECT_EQ(shellLog(), "");
  form().Label2[18].press();
  EXPECT_EQ(form().Check1[3].value(), 2);
}

TEST_F(Options, OtherStoredTextsLeaveABoxOff) {
  machine.setting(kOptionSettings, "0", "abc")
      .setting(kOptionSettings, "1", "3")
      .setting(kOptionSettings, "3", "-1");
  load();
  EXPECT_EQ(form().Check1[0].value(), 0);
  EXPECT_EQ(form().Check1[1].value(), 0);
  EXPECT_EQ(form().Check1[3].value(), 0);
  EXPECT_EQ(stored(kOptionSettings, "0"), "abc");
}

TEST_F(Options, AStoredLogOnTaskIsMadeAtEveryOpening) {
  machine.setting(kOptionSettings, "4", "1");
  load();
  EXPECT_EQ(form().Check1[4].value(), 1);
  EXPECT_EQ(shellLog(), kCreate);
}

TEST_F(Options, TheHiddenBoxHasNoEffect) {
  machine.setting(kOptionSettings, "2", "1");
  load();
  EXPECT_EQ(form().Check1[2].value(), 1);
  EXPECT_THAT(values(Root::kLocalMachine, "software\\tavrwork\\tavr wipe\\option\\option"),
              ElementsAre("2=1"));
  EXPECT_EQ(shellLog(), "");
  EXPECT_THAT(timerValues(), IsEmpty());
}

TEST_F(Options, EveryKindOfScheduleComesBack) {
  for (int kind = 1; kind <= 6; ++kind) {
    SCOPED_TRACE(kind);
    TestMachine other;
    other.setting(kTimerSettings, "option", std::to_string(kind))
        .setting(kTimerSettings, "value", "17");
    FormStage own(other);
    Form3Code options(own.context);
    options.Form_Load();
    for (int i = 1; i <= 6; ++i) {
      EXPECT_EQ(options.form.options().at(static_cast<std::size_t>(i - 1))->value(), i == kind);
    }
    if (kind < 6) {
      EXPECT_EQ(options.form.intervals().at(static_cast<std::size_t>(kind - 1))->text(), "17");
    }
    if (kind != 1) {
      EXPECT_EQ(options.form.Text1.text(), "45");
    }
  }
}

TEST_F(Options, AnIntervalComesBackAsANumber) {
  machine.setting(kTimerSettings, "option", "3").setting(kTimerSettings, "value", "12 days");
  load();
  EXPECT_EQ(form().Text3.text(), "12");
  EXPECT_EQ(form().VScroll3.value(), 6);
}

TEST_F(Options, AnUnknownKindLeavesTheOptions) {
  machine.setting(kTimerSettings, "option", "7").setting(kTimerSettings, "value", "12");
  load();
  for (const OptionButton* option : form().options()) EXPECT_FALSE(option->value());
}

TEST_F(Options, TheShadowComesWithTheTimer) {
  load();
  EXPECT_EQ(form().Timer1.interval(), 300U);
  EXPECT_FALSE(form().shadow);
  stage().context.machine.events.wait(300);
  EXPECT_TRUE(form().shadow);
  stage().context.machine.events.wait(300);
  EXPECT_TRUE(form().shadow);
}

}  // namespace
}  // namespace tavr
