// What the save buttons and the exits of the options form store, in order.
#include "tests/support/options_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::FormStage;
using testing::kBrowserSettings;
using testing::kOptionSettings;
using testing::kTimerSettings;
using testing::Options;
using testing::TestMachine;

TEST_F(Options, TheGeneralSettingsAreStoredTrimmed) {
  form().Combo1.setText(" 7 ");
  form().Combo2.setText(" Q ");
  form().chameleonButton9.press();
  EXPECT_THAT(values(Root::kLocalMachine, "software\\tavrwork\\tavr wipe"),
              ElementsAre("secure_value=7", "key=Q"));
}

TEST_F(Options, TheStartPageIsStoredForBrowserAndProtection) {
  form().Text10.setText(" http://a ");
  form().Text20.setText(" A ");
  form().chameleonButton2.press();
  EXPECT_THAT(values(Root::kCurrentUser, kBrowserSettings.substr(18)),
              ElementsAre("Start Page=http://a", "window title=A"));
  EXPECT_THAT(values(Root::kLocalMachine, "software\\tavrwork\\tavr wipe"),
              ElementsAre("homepage=http://a", "titlepage=A"));
}

TEST_F(Options, ABlankPageIsSetInTheBoxesAlone) {
  form().Text20.setText("A");
  form().chameleonButton1.press();
  EXPECT_EQ(form().Text10.text(), "about:blank");
  EXPECT_EQ(form().Text20.text(), "");
  EXPECT_EQ(storedOfBrowser("Start Page"), "<none>");
}

TEST_F(Options, AScheduleIsStoredInItsOrder) {
  load();
  form().Option1.press();
  form().chameleonButton5.press();
  EXPECT_THAT(timerValues(),
              ElementsAre("winstart=0", "startdate=11/20/2026", "starttime=10:00:00 AM", "option=1",
                          "value=45", "min=0", "hour=10", "nextmin=45", "nexthoure=10",
                          "nextday=10", "nextweek=10", "nextmnth=10"));
}

struct KindRow {
  int option;
  const char* value;
  const char* nextmin;
  const char* slot;
};

TEST_F(Options, EveryKindIsStoredWithItsNextTime) {
  const KindRow rows[] = {{1, "45", "45", "10"},
                          {2, "6", "", "16"},
                          {3, "6", "", "11/26/2026"},
                          {4, "2", "", "12/4/2026"},
                          {5, "1", "", "12/20/2026"}};
  load();
  for (const KindRow& row : rows) {
    SCOPED_TRACE(row.option);
    form().options().at(static_cast<std::size_t>(row.option - 1))->press();
    form().chameleonButton5.press();
    EXPECT_EQ(stored(kTimerSettings, "option"), std::to_string(row.option));
    EXPECT_EQ(stored(kTimerSettings, "value"), row.value);
    EXPECT_EQ(stored(kTimerSettings, "nextmin"), row.nextmin);
    for (const char* slot : {"nexthoure", "nextday", "nextweek", "nextmnth"}) {
      EXPECT_EQ(stored(kTimerSettings, slot), row.slot) << slot;
    }
  }
}

TEST_F(Options, WithoutAScheduleEmptyTextsAreStored) {
  load();
  form().chameleonButton5.press();
  EXPECT_THAT(timerValues(),
              ElementsAre("winstart=0", "startdate=11/20/2026", "starttime=10:00:00 AM",
                          "option=", "value=", "min=0", "hour=10",
                          "nextmin=", "nexthoure=", "nextday=", "nextweek=", "nextmnth="));
}

TEST_F(Options, ATypedIntervalIsStoredTrimmed) {
  load();
  form().Option3.press();
  form().Text3.type(" many ");
  form().chameleonButton5.press();
  EXPECT_EQ(stored(kTimerSettings, "value"), "many");
  EXPECT_EQ(stored(kTimerSettings, "nextday"), "");
}

TEST_F(Options, TheStartOfWindowsOverridesEverySchedule) {
  load();
  form().Check1[4].press();
  for (const char* kind : {"Option1", "Option2", "Option4", "Option5", "Option3"}) {
    control(kind).press();
    form().chameleonButton5.press();
    EXPECT_EQ(stored(kTimerSettings, "option"), "6") << kind;
  }
  EXPECT_EQ(stored(kTimerSettings, "winstart"), "1");
  EXPECT_EQ(stored(kTimerSettings, "value"), "0");
  EXPECT_EQ(stored(kTimerSettings, "nextday"), "11/26/2026");
}

TEST_F(Options, WithTheStartOfWindowsTurnedOffNoScheduleIsLeft) {
  machine.setting(kTimerSettings, "option", "6").setting(kTimerSettings, "value", "0");
  machine.setting("tavr wipe\\option\\option", "4", "1");
  load();
  ASSERT_TRUE(form().Option6.value());
  form().Check1[4].press();
  form().chameleonButton5.press();
  EXPECT_EQ(stored(kTimerSettings, "winstart"), "0");
  EXPECT_EQ(stored(kTimerSettings, "option"), "");
  EXPECT_EQ(stored(kTimerSettings, "value"), "");
}

TEST_F(Options, EntriesOfEarlierInstallationsAreCleared) {
  const std::string nt = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Run";
  const std::string run = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
  for (const std::string& key : {nt, run}) {
    machine.value(key, "Tavr Wipe", "old.exe").value(key, "Other", "other.exe");
  }
  form().chameleonButton5.press();
  for (const std::string& key : {nt, run}) {
    const OpenedKey opened =
        machine.machine().registry.open(Root::kLocalMachine, key.substr(19), 0x20019 | 0x100);
    ASSERT_EQ(opened.status, kSuccess);
    RegistryData data;
    EXPECT_EQ(opened.key->queryValue("Tavr Wipe", 1024, data), kFileNotFound) << key;
    EXPECT_EQ(opened.key->queryValue("Other", 1024, data), kSuccess) << key;
  }
}

TEST_F(Options, EveryExitSavesAllInOrder) {
  for (const char* exit : {"chameleonButton4", "chameleonButton19", "chameleonButton32"}) {
    SCOPED_TRACE(exit);
    TestMachine other;
    FormStage own(other);
    Form3Code options(own.context);
    std::vector<std::string> pressed;
    options.form.chameleonButton9.onClick = [&] { pressed.emplace_back("9"); };
    options.form.chameleonButton2.onClick = [&] { pressed.emplace_back("2"); };
    options.form.chameleonButton5.onClick = [&] { pressed.emplace_back("5"); };
    options.form.find(exit)->press();
    EXPECT_THAT(pressed, ElementsAre("9", "2", "5"));
    if (std::string_view(exit) == "chameleonButton32") {
      EXPECT_THAT(own.host.calls, ElementsAre("detach Form3", "unload Form3"));
    } else {
      EXPECT_THAT(own.host.calls, ElementsAre("unload Form3"));
    }
  }
}

TEST_F(Options, ClosingTakesTheShadowAway) {
  load();
  form().Timer1.tick();
  form().chameleonButton32.press();
  EXPECT_FALSE(form().shadow);
}

TEST_F(Options, ExitOfAFreshFormStoresEmptyTexts) {
  machine.value(kBrowserSettings, "Start Page", "http://a")
      .value(kBrowserSettings, "window title", "A");
  load();
  form().chameleonButton19.press();
  EXPECT_THAT(values(Root::kLocalMachine, "software\\tavrwork\\tavr wipe"),
              ElementsAre("secure_value=", "key=", "homepage=http://a", "titlepage=A"));
  EXPECT_EQ(storedOfBrowser("Start Page"), "http://a");
  EXPECT_EQ(stored(kTimerSettings, "option"), "");
}

TEST_F(Options, EveryExitComputesTheScheduleAnew) {
  machine.setting(kTimerSettings, "option", "1").setting(kTimerSettings, "value", "10");
  machine.setting(kTimerSettings, "nextmin", "3").setting(kTimerSettings, "nexthoure", "10");
  load();
  stage().context.machine.events.wait(20 * 60'000);
  form().chameleonButton19.press();
  EXPECT_EQ(stored(kTimerSettings, "nextmin"), "30");
  EXPECT_EQ(stored(kTimerSettings, "value"), "10");
}

TEST_F(Options, ARoundTripKeepsTheSettings) {
  load();
  form().Option4.press();
  form().Text4.type("3");
  form().Combo1.setText("4");
  form().Combo2.setText("X");
  form().Check1[5].press();
  form().chameleonButton19.press();
  Form3Code again(stage().context);
  again.Form_Load();
  EXPECT_TRUE(again.form.Option4.value());
  EXPECT_EQ(again.form.Text4.text(), "3");
  EXPECT_EQ(again.form.Combo1.text(), "4");
  EXPECT_EQ(again.form.Combo2.text(), "X");
  EXPECT_EQ(again.form.Check1[5].value(), 1);
}

TEST_F(Options, EveryControlOfTheFreshFormIsPressedWithoutHarm) {
  for (Control* placed : form().controls()) placed->press();
  for (std::size_t i = 0; i < form().Check1.size(); ++i) {
    EXPECT_EQ(stored(kOptionSettings, std::to_string(i)), form().Check1.at(i).shown()) << i;
  }
  EXPECT_TRUE(form().Option6.value());
  EXPECT_EQ(form().Text10.text(), "about:blank");
}

}  // namespace
}  // namespace tavr
