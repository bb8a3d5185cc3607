// The list of languages on the main form.
#include "config/language_picker.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "config/language.h"
#include "services/settings_keys.h"
#include "tests/support/fake_form_host.h"

namespace tavr {
namespace {

using testing::FormStage;
using testing::TestMachine;

const std::string kLang = "C:\\Program Files\\Tavr Wipe\\lang\\";
constexpr std::string_view kThree =
    "[lang]\r\ntavrwipe=English,0,en|Русский,204,ru|日本語,128,ja\r\n";

std::string stored(TestMachine& machine, std::string_view name) {
  return machine.program().registry.setting(settings::kLanguageKey, name);
}

TEST(LanguageList, AddsARowForEachEntryInItsOwnScript) {
  TestMachine machine;
  machine.file(kLang + "data.lang", kThree);
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker picker(stage.context);
  std::vector<std::string> added;
  picker.onRowLoaded = [&](Label& row) {
    added.push_back(fullName(row.design.name, row.design.index));
  };
  const Box designed = form.lbllanguage[0].box;
  picker.loadavlang();
  ASSERT_EQ(form.lbllanguage.size(), 3U);
  EXPECT_EQ(form.lbllanguage[1].caption, "Русский");
  EXPECT_EQ(form.lbllanguage[1].tag, "ru");
  EXPECT_EQ(form.lbllanguage[1].font.charset, 204);
  for (const Label& row : form.lbllanguage) {
    EXPECT_EQ(row.font.name, "Arial Unicode MS");
    EXPECT_EQ(row.font.size, "10");
    EXPECT_TRUE(row.visible);
  }
  EXPECT_EQ(added, (std::vector<std::string>{"lbllanguage(1)", "lbllanguage(2)"}));
  EXPECT_EQ(form.lbllanguage[0].box.top, designed.top);
}

TEST(LanguageList, EveryRowStandsBelowTheOneBeforeAndThePanelEndsBelowTheLast) {
  TestMachine machine;
  machine.file(kLang + "data.lang", kThree);
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker(stage.context).loadavlang();
  for (std::size_t i = 1; i < form.lbllanguage.size(); ++i) {
    const Box& above = form.lbllanguage[i - 1].box;
    EXPECT_EQ(form.lbllanguage[i].box.top, above.top + above.height + 6);
    EXPECT_EQ(form.lbllanguage[i].box.left, above.left);
    EXPECT_EQ(form.lbllanguage[i].box.width, above.width);
  }
  const Box& last = form.lbllanguage.back().box;
  EXPECT_GE(form.pictrlang.box.height, last.top + last.height);
  EXPECT_LE(form.pictrlang.box.top + form.pictrlang.box.height, form.height);
}

TEST(LanguageList, TheShippedLanguagesFitTheMainForm) {
  std::ifstream file(std::string(TAVR_SOURCE_DIR) + "/lang/data.lang", std::ios::binary);
  std::ostringstream contents;
  contents << file.rdbuf();
  TestMachine machine;
  machine.file(kLang + "data.lang", contents.str());
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker(stage.context).loadavlang();
  ASSERT_EQ(form.lbllanguage.size(), 12U);
  EXPECT_LE(form.pictrlang.box.top + form.pictrlang.box.height, form.height);
  EXPECT_EQ(form.lbllanguage[9].caption, "简体中文");
  EXPECT_EQ(form.lbllanguage[9].font.charset, 134);
  EXPECT_EQ(form.lbllanguage[11].tag, "ar");
}

TEST(LanguageList, WithoutItsFileOnlyTheDesignedRowStands) {
  TestMachine machine;
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker picker(stage.context);
  const int height = form.pictrlang.box.height;
  picker.loadavlang();
  ASSERT_EQ(form.lbllanguage.size(), 1U);
  EXPECT_EQ(form.lbllanguage[0].caption, "English");
  EXPECT_EQ(form.pictrlang.box.height, height);
}

TEST(LanguageList, MalformedEntriesLeaveWhatTheyLack) {
  TestMachine machine;
  machine.file(kLang + "data.lang", "[lang]\nTAVRWIPE=A|B,x,b||D,1,d,more\n");
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker(stage.context).loadavlang();
  ASSERT_EQ(form.lbllanguage.size(), 4U);
  EXPECT_EQ(form.lbllanguage[0].caption, "A");
  EXPECT_EQ(form.lbllanguage[1].tag, "b");
  EXPECT_EQ(form.lbllanguage[1].font.charset, 0);
  EXPECT_EQ(form.lbllanguage[2].tag, "");
  EXPECT_EQ(form.lbllanguage[3].tag, "d");
}

TEST(LanguageList, AFileWithoutTheProgramsKeyAddsNoRow) {
  TestMachine machine;
  machine.file(kLang + "data.lang", "[lang]\nother=A,0,a|B,0,b\n");
  FormStage stage(machine);
  LanguagePicker(stage.context).loadavlang();
  EXPECT_EQ(stage.program.form.lbllanguage.size(), 1U);
}

TEST(LanguagePick, KeepsTheChoiceHidesThePanelAndTranslatesTheMainForm) {
  TestMachine machine;
  machine.file(kLang + "data.lang", kThree);
  machine.file(kLang + "tavrwipe-ru.lang", "[Form1]\ncmd_test=Проверка\n");
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker picker(stage.context);
  picker.loadavlang();
  form.chameleonButton12.press();
  ASSERT_TRUE(form.pictrlang.visible);
  form.lbllanguage[1].press();
  EXPECT_FALSE(form.pictrlang.visible);
  EXPECT_EQ(stored(machine, "langcode"), "204");
  EXPECT_EQ(stored(machine, "lang"), "ru");
  EXPECT_EQ(stored(machine, "langindex"), "1");
  EXPECT_EQ(stage.language.langcode, 204);
  EXPECT_EQ(stage.language.langindex, 1);
  EXPECT_EQ(form.cmd_test.caption, "Проверка");
  EXPECT_EQ(form.cmd_test.font.charset, 204);
}

TEST(LanguagePick, TheMarkerGoesToThePickedRowAndAtStartToTheOneInForce) {
  TestMachine machine;
  machine.file(kLang + "data.lang", kThree);
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker picker(stage.context);
  picker.loadavlang();
  const auto marks = [&](std::size_t row) {
    const Box& mark = form.imglangselect.box;
    const Box& box = form.lbllanguage[row].box;
    return mark.top >= box.top && mark.top + mark.height <= box.top + box.height;
  };
  form.lbllanguage[2].press();
  EXPECT_TRUE(marks(2));
  stage.language.langindex = 1;
  picker.markRowInForce();
  EXPECT_TRUE(marks(1));
  stage.language.langindex = 9;
  picker.markRowInForce();
  EXPECT_TRUE(marks(1)) << "a row that is not there leaves the marker";
}

TEST(LanguagePick, TheButtonShowsAndHidesThePanel) {
  TestMachine machine;
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker picker(stage.context);
  EXPECT_FALSE(form.pictrlang.visible);
  form.chameleonButton12.press();
  EXPECT_TRUE(form.pictrlang.visible);
  form.chameleonButton12.press();
  EXPECT_FALSE(form.pictrlang.visible);
}

TEST(LanguageHover, ARowLightsUpAndThePanelClearsAllButTheFirst) {
  TestMachine machine;
  machine.file(kLang + "data.lang", kThree);
  FormStage stage(machine);
  Form1& form = stage.program.form;
  LanguagePicker picker(stage.context);
  picker.loadavlang();
  for (Label& row : form.lbllanguage) row.onMouseMove();
  for (int row = 0; row < 3; ++row)
    EXPECT_TRUE(form.lbllanguage[static_cast<std::size_t>(row)].highlighted) << row;
  form.pictrlang.onMouseMove();
  EXPECT_TRUE(form.lbllanguage[0].highlighted);
  EXPECT_FALSE(form.lbllanguage[1].highlighted);
  EXPECT_FALSE(form.lbllanguage[2].highlighted);
}

}  // namespace
}  // namespace tavr
