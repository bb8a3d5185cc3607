// Captions from a language's file: the reader, and what applying it does to a
// form.
#include "config/language.h"

#include <gtest/gtest.h>

#include <string>

#include "config/form2_code.h"
#include "forms/frmabout.h"
#include "services/settings_keys.h"
#include "tests/support/fake_form_host.h"

namespace tavr {
namespace {

using testing::FormStage;
using testing::TestMachine;

const std::string kLang = "C:\\Program Files\\Tavr Wipe\\lang\\";
const std::string kLook = "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavrwork brightbox";
const std::string kChoice = kLook + "\\tavrwipe";

// What a file of these contents gives for a key.
std::string read(std::string_view contents, std::string_view section, std::string_view key) {
  TestMachine machine;
  machine.file(kLang + "x.lang", contents);
  return readlangfile(machine.machine(), kLang + "x.lang", section, key);
}

void choose(TestMachine& machine, std::string_view lang, std::string_view langcode = "0",
            std::string_view langindex = "0") {
  machine.value(kChoice, "lang", lang);
  machine.value(kChoice, "langcode", langcode);
  machine.value(kChoice, "langindex", langindex);
}

// --- The reader -------------------------------------------------------------------

constexpr std::string_view kTwoForms =
    "[Form2]\r\ncmd_plugin=two\r\nonly2=x\r\n[Form3]\r\ncmd_plugin=three\r\nonly3=y\r\n";

TEST(LanguageReader, TakesTheFirstMatchBehindTheSectionNotBeforeIt) {
  EXPECT_EQ(read(kTwoForms, "Form3", "cmd_plugin"), "three");
  EXPECT_EQ(read(kTwoForms, "Form2", "cmd_plugin"), "two");
}

TEST(LanguageReader, AKeyMissingFromItsSectionComesFromALaterOne) {
  EXPECT_EQ(read(kTwoForms, "Form2", "only3"), "y");
  EXPECT_EQ(read(kTwoForms, "Form3", "only2"), "");
}

TEST(LanguageReader, ACaptionEndsAtItsSecondEqualsSign) {
  EXPECT_EQ(read("[Form1]\nCaption = A=B\n", "Form1", "Caption"), "A");
}

TEST(LanguageReader, DropsAllDoubleQuotesAndKeepsTheBlanksInsideThem) {
  EXPECT_EQ(read("[a]\nk = \"say \"\"hello\"\" now\"\n", "a", "k"), "say hello now");
  EXPECT_EQ(read("[a]\nk = \" Delete\"\n", "a", "k"), " Delete");
}

TEST(LanguageReader, ComparesSectionAndKeyWithoutCaseAndKeepsTheValues) {
  EXPECT_EQ(read("  [FORM1]  \n  CMD_Test  =  PrÜfen  \n", "form1", "cmd_tesT"), "PrÜfen");
}

TEST(LanguageReader, ALineWithoutAnEqualsSignEndsTheSearchEmpty) {
  EXPECT_EQ(read("[a]\nk\nk=later\n", "a", "k"), "");
}

TEST(LanguageReader, EmptyLinesAndOtherSectionsStandInNobodysWay) {
  EXPECT_EQ(read("k=before\n[b]\n\n\r\n[a]\n\nk=v", "a", "k"), "v");
}

TEST(LanguageReader, WithoutFileSectionOrKeyTheResultIsEmpty) {
  TestMachine machine;
  EXPECT_EQ(readlangfile(machine.machine(), kLang + "none.lang", "a", "k"), "");
  EXPECT_EQ(read("k=v\n", "a", "k"), "");
  EXPECT_EQ(read("[a]\nother=v\n", "a", "k"), "");
  EXPECT_EQ(read("", "a", "k"), "");
}

// --- Applying -----------------------------------------------------------------------

TEST(ApplyLanguage, WritesCaptionsAndColumnsOfTheMainForm) {
  TestMachine machine;
  choose(machine, "xx");
  machine.file(kLang + "tavrwipe-xx.lang",
               "[Form1]\ncmd_test=prufu\nView100.ColumnHeaders.Item(2)=stato\n"
               "View200.ColumnHeaders.Item(1)=rezulto\nLabel6=grando\n");
  FormStage stage(machine);
  Form1& form = stage.program.form;
  form.Label6.caption = "12.000 KB";
  stage.language.apply(form);
  EXPECT_EQ(form.cmd_test.caption, "prufu");
  EXPECT_EQ(form.View100.columns[1], "stato");
  EXPECT_EQ(form.View200.columns[0], "rezulto");
  EXPECT_EQ(form.Label6.caption, "grando") << "until the next run begins";
  EXPECT_EQ(form.language, "xx");
}

TEST(ApplyLanguage, AMissingKeyBlanksItsCaption) {
  TestMachine machine;
  choose(machine, "xx");
  machine.file(kLang + "tavrwipe-xx.lang", "[Form1]\ncmd_test=prufu\n");
  FormStage stage(machine);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.program.form.cmd_start.caption, "");
  EXPECT_EQ(stage.program.form.View100.columns[0], "");
  EXPECT_EQ(stage.program.form.chameleonButton11.caption, "Exit") << "no key of the form";
}

TEST(ApplyLanguage, WithoutAFileTheDesignStaysTheFontToo) {
  TestMachine machine;
  choose(machine, "xx", "204");
  machine.value(kLook, "font name", "Tahoma");
  machine.folder(kLang);
  FormStage stage(machine);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.program.form.cmd_start.caption, "Erase");
  EXPECT_EQ(stage.program.form.cmd_start.font.name, "Segoe UI");
  EXPECT_EQ(stage.language.langcode, 204);
  EXPECT_EQ(stage.language.file_name, "tavrwipe-xx.lang");
  EXPECT_EQ(stage.program.form.language, "");
}

TEST(ApplyLanguage, WithoutAChoiceTheFileWithoutACodeCounts) {
  TestMachine machine;
  machine.file(kLang + "tavrwipe-en.lang", "[Form1]\ncmd_test=x\n");
  FormStage stage(machine);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.language.file_name, "tavrwipe-.lang");
  EXPECT_EQ(stage.program.form.cmd_test.caption, "Test");
}

TEST(ApplyLanguage, AFileThatCannotBeReadGivesEmptyCaptions) {
  TestMachine machine;
  choose(machine, "xx");
  machine.file(kLang + "tavrwipe-xx.lang", "[Form1]\ncmd_test=x\n");
  machine.machineFile("locked.txt", kLang + "tavrwipe-xx.lang\n");
  FormStage stage(machine);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.program.form.cmd_test.caption, "");
}

TEST(ApplyLanguage, GivesEveryKeyedControlTheFontOfTheLook) {
  TestMachine machine;
  choose(machine, "xx", "162");
  machine.value(kLook, "font name", "Tahoma").value(kLook, "font size", "11");
  machine.file(kLang + "tavrwipe-xx.lang", "[Form1]\n");
  FormStage stage(machine);
  Form1& form = stage.program.form;
  stage.language.apply(form);
  for (const Control* control :
       {static_cast<Control*>(&form.cmd_start), static_cast<Control*>(&form.View100),
        static_cast<Control*>(&form.View200), static_cast<Control*>(&form.Label6)}) {
    EXPECT_EQ(control->font.name, "Tahoma");
    EXPECT_EQ(control->font.size, "11");
    EXPECT_EQ(control->font.charset, 162);
  }
  EXPECT_EQ(form.chameleonButton11.font.name, "Segoe UI");
}

TEST(ApplyLanguage, AnEmptyFontFallsBackAndASizeThatIsNoNumberIsRefused) {
  TestMachine machine;
  choose(machine, "xx");
  machine.value(kLook, "font name", "   ").value(kLook, "font size", "large");
  machine.file(kLang + "tavrwipe-xx.lang", "[Form1]\n");
  FormStage stage(machine);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.program.form.cmd_start.font.name, "Segoe UI");
  EXPECT_EQ(stage.program.form.cmd_start.font.size, "9");
}

// Unlike the colour, which the registry provider reads.
TEST(ApplyLanguage, AFontKeptAsAnExpandableTextIsNotRead) {
  TestMachine machine;
  choose(machine, "xx");
  machine
      .rawValue(kLook, "font name", "hex(2):54,00,00,00")   // "T"
      .rawValue(kLook, "font size", "hex(2):37,00,00,00");  // "7"
  machine.file(kLang + "tavrwipe-xx.lang", "[Form1]\n");
  FormStage stage(machine);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.program.form.cmd_start.font.name, "Segoe UI");
  EXPECT_EQ(stage.program.form.cmd_start.font.size, "9");
}

TEST(ApplyLanguage, WithoutAStoredFontItIsNineUnitsOfTheSystems) {
  TestMachine machine;
  choose(machine, "xx");
  machine.file(kLang + "tavrwipe-xx.lang", "[Form1]\n");
  FormStage stage(machine);
  stage.program.form.cmd_start.font = {"Other", "20"};
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.program.form.cmd_start.font.name, "Segoe UI");
  EXPECT_EQ(stage.program.form.cmd_start.font.size, "9");
}

TEST(ApplyLanguage, TheAboutBoxDoesNotReadTheRow) {
  TestMachine machine;
  choose(machine, "xx", "204", "7");
  FormStage stage(machine);
  stage.language.langindex = 3;
  frmabout about(machine.machine().events);
  stage.language.apply(about);
  EXPECT_EQ(stage.language.langindex, 3);
  EXPECT_EQ(stage.language.langcode, 204);
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.language.langindex, 7);
}

TEST(ApplyLanguage, NumbersThatDoNotConvertLeaveTheSharedOnes) {
  TestMachine machine;
  choose(machine, "xx", "abc", "");
  FormStage stage(machine);
  stage.language.langcode = 134;
  stage.language.langindex = 2;
  stage.language.apply(stage.program.form);
  EXPECT_EQ(stage.language.langcode, 134);
  EXPECT_EQ(stage.language.langindex, 2);
}

TEST(ApplyLanguage, TheSettingsFormTakesItsPlugInColumn) {
  TestMachine machine;
  choose(machine, "xx");
  machine.file(kLang + "tavrwipe-xx.lang",
               "[Form2]\nView1.ColumnHeaders.Item(1)=aldonoj\nCheck1(51)=neniu\nLabel2(4)=k\n");
  FormStage stage(machine);
  Form2 form(stage.program.machine);
  stage.language.apply(form);
  EXPECT_EQ(form.View1.columns[0], "aldonoj");
  EXPECT_EQ(form.Check1[51].caption, "neniu");
  EXPECT_EQ(form.Label2[4].caption, "k");
}

}  // namespace
}  // namespace tavr
