// The plug-in panel of Form2: the list, the ticks, and what is done with one
// definition.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "config/form2_code.h"
#include "config/maker_site.h"
#include "services/settings_keys.h"
#include "tests/support/fake_form_host.h"
#include "tests/support/machine_with.h"
#include "tests/support/scheduler_stage.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::FakeFormHost;
using testing::FormStage;
using ::testing::IsEmpty;
using testing::TestMachine;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";
const std::string kPlugIns = kFolder + "plugins\\";
const std::string kAlpha =
    "Alpha\r\nAnn\r\nCleans Alpha\r\nfiles\r\nfile=C:\\a.log  \r\nfolder=C:\\logs  *l1\r\n";
const std::string kBeta = "Beta\r\nBob\r\nCleans Beta\r\nregistry\r\nHKEY_CURRENT_USER\\B,1\r\n";

std::vector<std::string> texts(const TextList& list) {
  std::vector<std::string> rows;
  for (int i = 0; i < list.count(); ++i) rows.push_back(list.at(i));
  return rows;
}

class Form2PlugIns : public ::testing::Test {
 protected:
  Form2PlugIns() { machine.folder(kFolder + "plugins"); }

  void definitions() {
    machine.file(kPlugIns + "alpha.tv", kAlpha).file(kPlugIns + "beta.tv", kBeta);
  }
  FormStage& stage() {
    if (!stage_) stage_ = std::make_unique<FormStage>(machine);
    return *stage_;
  }
  Form2Code& code() {
    if (!code_) code_ = std::make_unique<Form2Code>(stage().context);
    return *code_;
  }
  Form2& form() { return code().form; }
  Button& button(std::size_t number) { return form().chameleonButton.at(number); }
  std::vector<std::string> rows() {
    std::vector<std::string> names;
    for (int i = 1; i <= form().View1.count(); ++i) names.push_back(form().View1.item(i).text);
    return names;
  }
  std::vector<std::string> ticked() {
    std::vector<std::string> names;
    for (int i = 1; i <= form().View1.count(); ++i) {
      if (form().View1.item(i).checked) names.push_back(form().View1.item(i).text);
    }
    return names;
  }
  // As a view tells of a person's tick and click.
  void tick(int row, bool on) {
    form().View1.item(row).checked = on;
    form().View1.onItemCheck(row);
  }
  void choose(int row) { form().View1.onItemClick(row); }
  std::string workFile(std::string_view name) { return machine.read(kFolder + std::string(name)); }
  std::vector<std::string> workFiles() {
    return {workFile("slectplg.cln"), workFile("plgfile.cln"), workFile("plgfoldr.cln"),
            workFile("plgreg.cln")};
  }
  std::string shellLog() {
    machine.stop();
    return machine.readMachineFile("shell.log");
  }

  TestMachine machine;

 private:
  std::unique_ptr<FormStage> stage_;
  std::unique_ptr<Form2Code> code_;
};

// --- listing ----------------------------------------------------------------

TEST_F(Form2PlugIns, EveryRoadToThePanelLists) {
  definitions();
  for (Button* road : {&button(31), &button(3), &form().Toolbar1[7], &button(8)}) {
    form().View1.clear();
    road->press();
    EXPECT_THAT(rows(), ElementsAre("alpha", "beta"));
    EXPECT_EQ(form().View1.item(1).small_icon, "b");
    EXPECT_TRUE(form().frame[3].visible);
  }
}

TEST_F(Form2PlugIns, OnlyDefinitionsAreListed) {
  definitions();
  machine.file(kPlugIns + "notes.txt").folder(kPlugIns + "folder.tv");
  button(31).press();
  EXPECT_THAT(rows(), ElementsAre("alpha", "beta"));
}

TEST_F(Form2PlugIns, ListingNotesTheCookiesFolder) {
  button(31).press();
  const std::string cookies = "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies";
  EXPECT_EQ(form().Text3.text(), cookies);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, settings::kMainKey, "cookies"), cookies);
}

TEST_F(Form2PlugIns, ListingRestoresTheTicksAndWritesTheWorkFilesAnew) {
  definitions();
  machine.file(kFolder + "slectplg.cln", " BETA \r\ngone\r\n").file(kFolder + "plgfile.cln", "old");
  button(31).press();
  EXPECT_THAT(ticked(), ElementsAre("beta"));
  EXPECT_THAT(workFiles(), ElementsAre("beta\r\n", "", "", "HKEY_CURRENT_USER\\B,1\r\n"));
  EXPECT_THAT(texts(form().List11), ElementsAre("HKEY_CURRENT_USER\\B,1"));
}

TEST_F(Form2PlugIns, AStarInAStoredNameTicksWhatItMatches) {
  machine.file(kPlugIns + "alpha.tv", kAlpha)
      .file(kPlugIns + "alto.tv", kAlpha)
      .file(kPlugIns + "beta.tv", kBeta)
      .file(kFolder + "slectplg.cln", "al*\r\n");
  button(8).press();
  EXPECT_THAT(ticked(), ElementsAre("alpha", "alto"));
  EXPECT_EQ(workFile("slectplg.cln"), "alpha\r\nalto\r\n");
}

TEST_F(Form2PlugIns, WithoutASelectionNothingIsTickedAndTheWorkFilesAreStillMade) {
  definitions();
  button(31).press();
  EXPECT_THAT(ticked(), IsEmpty());
  for (const char* name : {"slectplg.cln", "plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
    EXPECT_TRUE(machine.exists(kFolder + name)) << name;
    EXPECT_EQ(workFile(name), "") << name;
  }
}

TEST_F(Form2PlugIns, AnEmptyFolderEmptiesTheListAndTheWorkFiles) {
  machine.file(kFolder + "slectplg.cln", "alpha\r\n")
      .file(kFolder + "plgfile.cln", "a\r\n")
      .file(kFolder + "plgfoldr.cln", "a\r\n")
      .file(kFolder + "plgreg.cln", "a\r\n");
  button(31).press();
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_THAT(workFiles(), ElementsAre("", "", "", ""));
}

TEST_F(Form2PlugIns, RefreshFindsNewDefinitionsAndKeepsTheTicks) {
  definitions();
  button(31).press();
  tick(1, true);
  machine.file(kPlugIns + "aaa.tv", kBeta);
  button(8).press();
  EXPECT_THAT(rows(), ElementsAre("aaa", "alpha", "beta"));
  EXPECT_THAT(ticked(), ElementsAre("alpha"));
}

// --- ticks ------------------------------------------------------------------

TEST_F(Form2PlugIns, ATickIsWrittenAtOnce) {
  definitions();
  button(31).press();
  tick(1, true);
  EXPECT_THAT(workFiles(),
              ElementsAre("alpha\r\n", "C:\\a.log\r\n", "C:\\logs\r\n*l\r\n1\r\n", ""));
  EXPECT_THAT(texts(form().List7), ElementsAre("C:\\a.log"));
  EXPECT_THAT(texts(form().List8), ElementsAre("C:\\logs"));
  EXPECT_THAT(texts(form().List9), ElementsAre("*l"));
  EXPECT_THAT(texts(form().List10), ElementsAre("1"));
  tick(1, false);
  EXPECT_THAT(workFiles(), ElementsAre("", "", "", ""));
  EXPECT_EQ(form().List7.count(), 0);
}

// The last two characters of the line belong to the format.
TEST_F(Form2PlugIns, AFileLineWithoutItsTwoCharactersLosesTwoOfThePath) {
  machine.file(kPlugIns + "p.tv", "t\r\na\r\nd\r\nfiles\r\nfile=C:\\a.log\r\n");
  button(31).press();
  tick(1, true);
  EXPECT_EQ(workFile("plgfile.cln"), "C:\\a.l\r\n");
}

TEST_F(Form2PlugIns, SelectAllAndSelectNoneTickEveryRow) {
  definitions();
  button(31).press();
  button(5).press();
  EXPECT_THAT(ticked(), ElementsAre("alpha", "beta"));
  EXPECT_THAT(workFiles(), ElementsAre("alpha\r\nbeta\r\n", "C:\\a.log\r\n",
                                       "C:\\logs\r\n*l\r\n1\r\n", "HKEY_CURRENT_USER\\B,1\r\n"));
  EXPECT_THAT(texts(form().List11), ElementsAre("HKEY_CURRENT_USER\\B,1"));
  button(14).press();
  EXPECT_THAT(ticked(), IsEmpty());
  EXPECT_THAT(workFiles(), ElementsAre("", "", "", ""));
  EXPECT_EQ(form().List11.count(), 0);
}

TEST_F(Form2PlugIns, TheHiddenBoxesTickAndClearEveryRow) {
  definitions();
  button(31).press();
  form().Check1[15].setValue(1);
  EXPECT_THAT(ticked(), ElementsAre("alpha", "beta"));
  EXPECT_EQ(workFile("slectplg.cln"), "alpha\r\nbeta\r\n");
  // 14 puts out 15, whose click puts out 14: both end off, and 14 has the last word.
  form().Check1[14].setValue(1);
  EXPECT_EQ(form().Check1[15].value(), 0);
  EXPECT_EQ(form().Check1[14].value(), 0);
  EXPECT_THAT(ticked(), IsEmpty());
  EXPECT_EQ(workFile("slectplg.cln"), "");
  for (const char* name : {"14", "15"}) {
    EXPECT_EQ(machine.registryText(Root::kLocalMachine, settings::kSelectionKey, name), "0");
  }
}

// The list is still empty when load reads them: the selection is lost.
TEST_F(Form2PlugIns, AStoredOneOfAHiddenBoxEmptiesTheSelection) {
  definitions();
  machine.file(kFolder + "slectplg.cln", "alpha\r\n").select("14");
  code().Form_Load();
  EXPECT_EQ(workFile("slectplg.cln"), "");
  EXPECT_EQ(form().Check1[14].value(), 1);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, settings::kSelectionKey, "14"), "1");
}

TEST_F(Form2PlugIns, LoadWithoutThemLeavesTheSelectionAlone) {
  machine.file(kFolder + "slectplg.cln", "alpha\r\n").select("52").select("14", "0");
  code().Form_Load();
  EXPECT_EQ(workFile("slectplg.cln"), "alpha\r\n");
}

TEST_F(Form2PlugIns, WorkListsWithoutTheFileListStayEmpty) {
  definitions();
  button(31).press();
  button(5).press();
  // The work files cannot be made anew, and the first of them is missing.
  std::filesystem::remove(machine.host(kFolder + "plgfile.cln"));
  machine.folder(kFolder + "plgfile.cln");
  form().View1.onItemCheck(1);
  EXPECT_EQ(form().List7.count(), 0);
  EXPECT_EQ(form().List8.count(), 0);
  EXPECT_EQ(form().List11.count(), 0);
}

TEST_F(Form2PlugIns, ATickedRowWhoseDefinitionIsGoneIsEmpty) {
  definitions();
  button(31).press();
  std::filesystem::remove(machine.host(kPlugIns + "alpha.tv"));
  button(5).press();
  EXPECT_THAT(workFiles(), ElementsAre("alpha\r\nbeta\r\n", "", "", "HKEY_CURRENT_USER\\B,1\r\n"));
}

// The two forms have lists of their own and one set of files.
TEST_F(Form2PlugIns, TheMainFormsListsStayAsTheyAre) {
  definitions();
  button(31).press();
  button(5).press();
  EXPECT_EQ(stage().program.form.View1.count(), 0);
  EXPECT_EQ(stage().program.form.List7.count(), 0);
}

// --- one definition ---------------------------------------------------------

TEST_F(Form2PlugIns, AClickedRowIsNoted) {
  definitions();
  button(31).press();
  choose(2);
  EXPECT_EQ(form().Text4.text(), "2");
}

TEST_F(Form2PlugIns, InfoShowsTheHeaderOfTheSelectedRow) {
  definitions();
  button(31).press();
  choose(2);
  button(10).press();
  EXPECT_THAT(stage().host.messages,
              ElementsAre(FakeFormHost::Message{"Spoorwipe", "Cleans Beta\r\n\r  Designed By : Bob",
                                                "Beta"}));
}

TEST_F(Form2PlugIns, InfoOfAShortDefinitionShowsWhatThereIs) {
  machine.file(kPlugIns + "p.tv", "Only a title\r\n");
  button(31).press();
  choose(1);
  button(10).press();
  EXPECT_THAT(stage().host.messages, ElementsAre(FakeFormHost::Message{
                                         "Spoorwipe", "\r\n\r  Designed By : ", "Only a title"}));
}

TEST_F(Form2PlugIns, InfoWithoutASelectedRowIsTheEmptyFrame) {
  definitions();
  button(31).press();
  button(10).press();
  EXPECT_THAT(stage().host.messages,
              ElementsAre(FakeFormHost::Message{"Spoorwipe", "\r\n\r  Designed By : ", ""}));
}

// The form's rows and the main form's are two lists over one set of files: the
// main form lists anew, so a definition that has gone meanwhile leaves them.
TEST_F(Form2PlugIns, ARunRewritesTheFilesFromTheMainFormsRows) {
  definitions();
  button(31).press();
  tick(1, true);
  tick(2, true);
  EXPECT_EQ(workFile("slectplg.cln"), "alpha\r\nbeta\r\n");
  std::filesystem::remove(machine.host(kPlugIns + "alpha.tv"));
  stage().program.form.chameleonButton6.press();
  EXPECT_EQ(workFile("slectplg.cln"), "beta\r\n");
  EXPECT_EQ(workFile("plgfile.cln"), "");
  EXPECT_THAT(ticked(), ElementsAre("alpha", "beta"));
}

TEST_F(Form2PlugIns, DeleteAsksWithTheTextsOfTheLanguage) {
  definitions();
  machine.file(kFolder + "lang\\english.ini", "[001]\r\n049=Remove <\r\n050=> now\r\n")
      .ini("[answers]\ndefault=no\nRemove <beta> now   ?=yes\n");
  button(31).press();
  stage().program.form.txtlang.setText("english.ini");
  choose(1);
  button(9).press();
  EXPECT_TRUE(machine.exists(kPlugIns + "alpha.tv"));
  choose(2);
  button(9).press();
  EXPECT_FALSE(machine.exists(kPlugIns + "beta.tv"));
  EXPECT_THAT(rows(), ElementsAre("alpha", "beta"));  // until the list is refreshed
  button(8).press();
  EXPECT_THAT(rows(), ElementsAre("alpha"));
}

TEST_F(Form2PlugIns, DeleteAsksForYesOrNoWithTheSignOfAQuestion) {
  definitions();
  const Machine& m = stage().program.machine;
  testing::Person person;
  person.answer = kAnswerNo;
  Machine asking = testing::machineWith(m, person);
  FormContext context{asking,
                      stage().program.registry,
                      stage().program.numbers,
                      stage().program.tracks,
                      stage().language,
                      stage().host};
  Form2Code code(context);
  code.form.chameleonButton[31].press();
  code.form.View1.onItemClick(1);
  code.form.chameleonButton[9].press();
  ASSERT_THAT(person.boxes, ::testing::SizeIs(1));
  EXPECT_EQ(person.boxes[0].flags, 36U);
  EXPECT_TRUE(machine.exists(kPlugIns + "alpha.tv"));
}

TEST_F(Form2PlugIns, DeleteTakesAReadOnlyDefinitionToo) {
  definitions();
  machine.readOnly(kPlugIns + "alpha.tv").ini("[answers]\ndefault=yes\n");
  button(31).press();
  choose(1);
  button(9).press();
  EXPECT_FALSE(machine.exists(kPlugIns + "alpha.tv"));
  EXPECT_TRUE(machine.exists(kPlugIns + "beta.tv"));
}

TEST_F(Form2PlugIns, WithoutASelectedRowNothingIsDeleted) {
  definitions();
  machine.ini("[answers]\ndefault=yes\n");
  button(31).press();
  button(9).press();
  form().Text4.setText("7");
  button(9).press();
  EXPECT_TRUE(machine.exists(kPlugIns + "alpha.tv"));
  EXPECT_TRUE(machine.exists(kPlugIns + "beta.tv"));
}

TEST_F(Form2PlugIns, ImportCopiesTheChosenDefinition) {
  machine.file("C:\\Users\\user\\Downloads\\gamma.tv", kBeta);
  button(31).press();
  stage().desktop().chooseNext("  C:\\Users\\user\\Downloads\\gamma.tv ");
  button(11).press();
  EXPECT_EQ(machine.read(kPlugIns + "gamma.tv"), kBeta);
  EXPECT_TRUE(machine.exists("C:\\Users\\user\\Downloads\\gamma.tv"));
  EXPECT_THAT(rows(), IsEmpty());  // until the list is refreshed
}

TEST_F(Form2PlugIns, ACancelledOrFailedImportChangesNothing) {
  definitions();
  button(31).press();
  button(11).press();
  stage().desktop().chooseNext("C:\\Users\\user\\missing.tv");
  button(11).press();
  button(8).press();
  EXPECT_THAT(rows(), ElementsAre("alpha", "beta"));
}

TEST_F(Form2PlugIns, ImportReplacesADefinitionOfTheSameName) {
  definitions();
  machine.file("C:\\Users\\user\\alpha.tv", "newer");
  button(31).press();
  stage().desktop().chooseNext("C:\\Users\\user\\alpha.tv");
  button(11).press();
  EXPECT_EQ(machine.read(kPlugIns + "alpha.tv"), "newer");
}

TEST_F(Form2PlugIns, ImportLeavesAReadOnlyDefinitionOfTheSameNameAndSaysNothing) {
  definitions();
  const std::string before = machine.read(kPlugIns + "alpha.tv");
  machine.readOnly(kPlugIns + "alpha.tv");
  machine.file("C:\\Users\\user\\alpha.tv", "newer");
  button(31).press();
  stage().desktop().chooseNext("C:\\Users\\user\\alpha.tv");
  button(11).press();
  EXPECT_EQ(machine.read(kPlugIns + "alpha.tv"), before);
  EXPECT_THAT(stage().host.messages, IsEmpty());
}

TEST_F(Form2PlugIns, DownloadOpensThePageOfTheMaker) {
  code().Form_Load();
  button(12).press();
  EXPECT_TRUE(form().topmost);
  EXPECT_EQ(shellLog(), "execute 1 open " + std::string(kMakerSite) + "/plugin.htm\n");
}

TEST_F(Form2PlugIns, WhileThePageIsOpenedTheFormStepsAside) {
  code().Form_Load();
  std::vector<std::string> steps;
  form().onTopmost = [&](bool on) {
    const bool opened = !machine.readMachineFile("shell.log").empty();
    steps.push_back(std::string(on ? "on top" : "aside") + (opened ? ", opened" : ""));
  };
  button(12).press();
  EXPECT_THAT(steps, ElementsAre("aside", "on top, opened"));
}

TEST_F(Form2PlugIns, TheMakerToolIsStartedFromTheProgramsFolder) {
  button(13).press();
  EXPECT_EQ(shellLog(), "execute 1 open " + kFolder + "plug-in maker.exe\n");
}

}  // namespace
}  // namespace tavr
