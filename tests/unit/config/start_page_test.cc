// The watch over the browser's start page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/scheduler_stage.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kBrowserSettings;
using testing::kMainSettings;
using testing::Person;
using testing::Scheduler;

class StartPage : public Scheduler {
 protected:
  StartPage() {
    machine.setting(kMainSettings, "protect_home", "1");
    machine.value(kBrowserSettings, "Start Page", " http://New/ ");
    machine.value(kBrowserSettings, "window title", "New");
    machine.file("C:\\Program Files\\Tavr Wipe\\lang\\english.ini",
                 "[001]\r\n016=The page has changed. Restore it?\r\n");
  }
  void hold(std::string_view page, std::string_view title) {
    stage();
    form().txtlang.setText("english.ini");
    form().Text12.setText(page);
    form().Text13.setText(title);
  }
  const Person::Box kQuestion = {
      "The page has changed. Restore it?\rThe page has changed. Restore it?", 52, ""};
};

TEST_F(StartPage, IsPutBackOnYes) {
  hold(" http://old ", " Old ");
  tick();
  EXPECT_THAT(person.boxes, ElementsAre(kQuestion));
  EXPECT_EQ(storedOfBrowser("Start Page"), "http://old");
  EXPECT_EQ(storedOfBrowser("window title"), "Old");
  EXPECT_EQ(storedMain("homepage"), "<none>");
  EXPECT_EQ(form().Text12.text(), " http://old ");
  tick();
  EXPECT_EQ(person.boxes.size(), 1U);
}

TEST_F(StartPage, IsWatchedForTheNumberOneHoweverItIsWritten) {
  machine.setting(kMainSettings, "protect_home", "1.0");
  hold("http://old", "Old");
  tick();
  EXPECT_THAT(person.boxes, ElementsAre(kQuestion));
}

TEST_F(StartPage, IsAcceptedOnNo) {
  person.answer = kAnswerNo;
  hold("http://old", "Old");
  tick();
  EXPECT_THAT(person.boxes, ElementsAre(kQuestion));
  EXPECT_EQ(storedOfBrowser("Start Page"), " http://New/ ");
  EXPECT_EQ(storedMain("homepage"), " http://New/ ");
  EXPECT_EQ(storedMain("titlepage"), "New");
  EXPECT_EQ(form().Text12.text(), "http://New/");
  EXPECT_EQ(form().Text13.text(), "New");
  tick();
  EXPECT_EQ(person.boxes.size(), 1U);
}

TEST_F(StartPage, ItsTitleIsKeptAsReadAndShownTrimmed) {
  machine.value(kBrowserSettings, "window title", " New ");
  person.answer = kAnswerNo;
  hold("http://old", "Old");
  tick();
  EXPECT_EQ(storedMain("titlepage"), " New ");
  EXPECT_EQ(form().Text13.text(), "New");
}

TEST_F(StartPage, WhatIsAcceptedIsReadAnewBehindTheQuestion) {
  person.answer = kAnswerNo;
  person.onBox = [this] {
    Registry& registry = stage().context.machine.registry;
    const OpenedKey key = registry.open(Root::kCurrentUser, kBrowserSettings.substr(18), 0x2001F);
    ASSERT_EQ(key.status, kSuccess);
    key.key->setValue("Start Page", 1, "http://newer/");
    key.key->setValue("window title", 1, "Newer");
  };
  hold("http://old", "Old");
  tick();
  EXPECT_EQ(storedMain("homepage"), "http://newer/");
  EXPECT_EQ(storedMain("titlepage"), "Newer");
  EXPECT_EQ(form().Text12.text(), "http://newer/");
  EXPECT_EQ(form().Text13.text(), "Newer");
}

// A question may stand open for hours.
TEST_F(StartPage, TheScheduleGoesByTheTimeBehindTheQuestion) {
  startClockAt("10:00:00");
  timerSetting("option", "1");
  timerSetting("nextmin", "1");
  timerSetting("nexthoure", "10");
  hold("http://old", "Old");
  person.onBox = [this] { events().wait(60'000); };
  tick();
  EXPECT_THAT(fired, ::testing::SizeIs(1));
}

TEST_F(StartPage, IsComparedWithoutCaseAndBlanks) {
  hold("HTTP://NEW/ ", " nEW ");
  tick();
  EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(StartPage, ADifferentTitleAloneIsAskedAbout) {
  hold("http://new/", "Old");
  tick();
  EXPECT_THAT(person.boxes, ElementsAre(kQuestion));
  EXPECT_EQ(storedOfBrowser("Start Page"), "http://new/");
  EXPECT_EQ(storedOfBrowser("window title"), "Old");
}

TEST_F(StartPage, WithoutALanguageFileTheQuestionIsEmpty) {
  hold("http://old", "Old");
  form().txtlang.setText("none.ini");
  tick();
  EXPECT_THAT(person.boxes, ElementsAre(Person::Box{"\r", 52, ""}));
}

TEST_F(StartPage, IsWatchedWithoutASchedule) {
  hold("http://old", "Old");
  play(60'000);
  EXPECT_EQ(person.boxes.size(), 1U);
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(StartPage, TheScheduleRunsInTheSameTick) {
  timerSetting("option", "3");
  timerSetting("nextday", "11/20/2026");
  timerSetting("value", "1");
  hold("http://old", "Old");
  tick();
  EXPECT_EQ(person.boxes.size(), 1U);
  EXPECT_EQ(fired.size(), 1U);
}

TEST_F(Scheduler, WithoutProtectionTheStartPageIsFree) {
  for (const char* flag : {"", "0", "2", "abc"}) {
    stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe", "protect_home", flag);
    form().Text12.setText("http://old");
    tick();
  }
  EXPECT_THAT(person.boxes, IsEmpty());
}

}  // namespace
}  // namespace tavr
