// The text files that one start of the program writes and a later one reads:
// what is read is what was written, and a malformed file is passed over without
// a word.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "basic/number.h"
#include "basic/text.h"
#include "engine/runs.h"
#include "forms/form2.h"
#include "forms/form52.h"
#include "tests/support/started_program.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::StartedProgram;
using testing::TestMachine;
using testing::WatchedProgram;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";
const std::string kPlugIn = kFolder + "plugins\\Önskad läsare =1.tv";
constexpr std::string_view kDefinition =
    "Title\r\nAuthor\r\nAbout\r\n"
    "files\r\nfile=C:\\a = b.log,1\r\nfile=C:\\日本\\x.dat,1\r\nfolder=C:\\größe,1lg1\r\n"
    "folder=C:\\logs,1*.0\r\nregistry\r\n"
    "HKEY_CURRENT_USER\\Software\\Ö,1\r\nHKEY_CURRENT_USER\\Software\\A,name = \"x\",4\r\n";

std::vector<std::string> texts(const TextList& list) {
  std::vector<std::string> rows;
  for (int i = 0; i < list.count(); ++i) rows.push_back(list.at(i));
  return rows;
}

std::vector<std::string> texts(const ListBox& list) {
  std::vector<std::string> rows;
  for (const ListBox::Row& row : list.rows) rows.push_back(row.text);
  return rows;
}

// The form as the program has it open.
template <class FormType>
FormType& opened(StartedProgram& program, std::string_view name) {
  Form* const form = program.program().desk.loaded(name);
  if (form == nullptr) throw std::runtime_error(std::string(name) + " is not open");
  return dynamic_cast<FormType&>(*form);
}

Form2& plugInPanel(StartedProgram& program) {
  program.start();
  program.program().desk.openSettings();
  auto& form = opened<Form2>(program, "Form2");
  form.chameleonButton[31].press();
  return form;
}

// --- Plug-ins -----------------------------------------------------------------

void expectTheDefinition(const TextList& files, const TextList& folders, const TextList& masks,
                         const TextList& flags, const TextList& registry) {
  EXPECT_THAT(texts(files), ElementsAre("C:\\a = b.log", "C:\\日本\\x.dat"));
  EXPECT_THAT(texts(folders), ElementsAre("C:\\größe", "C:\\logs"));
  EXPECT_THAT(texts(masks), ElementsAre("lg", "*."));
  EXPECT_THAT(texts(flags), ElementsAre("1", "0"));
  EXPECT_THAT(texts(registry), ElementsAre("HKEY_CURRENT_USER\\Software\\Ö,1",
                                           "HKEY_CURRENT_USER\\Software\\A,name = \"x\",4"));
}

TEST(TextFiles, APlugInThatWasChosenIsReadBackByEveryReader) {
  TestMachine machine;
  machine.file(kPlugIn, kDefinition).file(kFolder + "plugins\\other.tv", "x");
  {
    StartedProgram first(machine);
    Form2& form = plugInPanel(first);
    ASSERT_EQ(form.View1.count(), 2);
    const int row = form.View1.item(1).text == "other" ? 2 : 1;
    form.View1.item(row).checked = true;
    form.View1.onItemCheck(row);
    expectTheDefinition(form.List7, form.List8, form.List9, form.List10, form.List11);
  }
  machine.stop();

  StartedProgram later(machine);
  Form2& form = plugInPanel(later);
  std::vector<std::string> ticked;
  for (int row = 1; row <= form.View1.count(); ++row) {
    if (form.View1.item(row).checked) ticked.push_back(form.View1.item(row).text);
  }
  EXPECT_THAT(ticked, ElementsAre("Önskad läsare =1"));
  expectTheDefinition(form.List7, form.List8, form.List9, form.List10, form.List11);
  testRun(later.program());
  Form1& main = later.form();
  EXPECT_EQ(main.View100.item(main.View100.count()).text, "Önskad läsare =1");
  expectTheDefinition(main.List7, main.List8, main.List9, main.List10, main.List11);
}

// --- The keep list ------------------------------------------------------------

TEST(TextFiles, TheKeepListsComeBackEachFromItsOwnFile) {
  TestMachine machine;
  const std::vector<std::string> cookies = {"größe=1.txt", "日本[1].txt", "a,b|c.txt"};
  const std::vector<std::string> addresses = {"http://x.example/?a=b&c=\"d\"", "http://日本/"};
  {
    StartedProgram first(machine);
    first.start();
    for (const char* mode : {"1", "2"}) {
      first.program().desk.openKeepList("heading", mode);
      auto& form = opened<Form52>(first, "Form52");
      for (const std::string& entry : mode[0] == '1' ? cookies : addresses) form.List2.add(entry);
      form.keepbutton7.press();
    }
  }
  machine.stop();

  StartedProgram later(machine);
  later.start();
  later.program().desk.openKeepList("heading", "1");
  auto& form = opened<Form52>(later, "Form52");
  EXPECT_EQ(texts(form.List2), cookies);
  form.keepbutton10.press();
  later.program().desk.openKeepList("heading", "2");
  EXPECT_EQ(texts(opened<Form52>(later, "Form52").List2), addresses);
}

// The form has one right list for both modes and never empties it itself.
TEST(TextFiles, AModeThatIsChangedInTheOpenKeepListAddsItsFile) {
  TestMachine machine;
  machine.file(kFolder + "cookies.tvr", "a.txt\r\n").file(kFolder + "url.tvr", "http://b/\r\n");
  StartedProgram program(machine);
  program.start();
  program.program().desk.openKeepList("heading", "1");
  program.program().desk.openKeepList("heading", "2");
  EXPECT_THAT(texts(opened<Form52>(program, "Form52").List2), ElementsAre("a.txt", "http://b/"));
}

// --- The language -------------------------------------------------------------

TEST(TextFiles, TheLanguageThatWasPickedIsThatOfTheNextStart) {
  TestMachine machine;
  machine.file(kFolder + "lang\\data.lang", "[lang]\ntavrwipe=English,0,en|Русский,204,ru\n")
      .file(kFolder + "lang\\tavrwipe-ru.lang",
            "[Form1]\ncmd_test=Проверка\n[Form2]\nchameleonButton4=Выход\n");
  {
    StartedProgram first(machine);
    first.start();
    first.form().lbllanguage[1].press();
  }
  machine.stop();

  StartedProgram later(machine);
  later.start();
  const Form1& form = later.form();
  EXPECT_EQ(form.cmd_test.caption, "Проверка");
  EXPECT_EQ(form.cmd_test.font.charset, 204);
  EXPECT_EQ(later.program().language.langindex, 1);
  EXPECT_GE(form.imglangselect.box.top, form.lbllanguage[1].box.top);
  later.program().desk.openSettings();
  EXPECT_EQ(opened<Form2>(later, "Form2").chameleonButton[4].caption, "Выход");
}

// --- What a caller reads ------------------------------------------------------

TEST(TextFiles, ACallerReadsTheTotalsOfTheRunFromTheResultFile) {
  TestMachine machine;
  machine.select("10").select("53");
  for (int i = 0; i < 12; ++i) {
    machine.file("C:\\Users\\user\\AppData\\Local\\Temp\\" + std::to_string(i),
                 std::string(static_cast<std::size_t>(i) * 1000, 'x'));
  }
  WatchedProgram program(machine);
  program.start("w2");
  std::string text = machine.read(kFolder + "eresst.txt");
  ASSERT_TRUE(text.ends_with("\r\n"));
  text.resize(text.size() - 2);
  const std::vector<std::string> fields = Split(text, '|');
  ASSERT_EQ(fields.size(), 2U) << text;
  EXPECT_EQ(Val(fields[0]), 12 + 2);  // the files, and two values of the icon cache
  EXPECT_EQ(Val(fields[1]), 66'000);
  EXPECT_EQ(fields[0], numberText(Val(fields[0])));
}

// --- The machine's own files --------------------------------------------------

TEST(TextFiles, TheMachineIsReadBackAsTheProgramLeftIt) {
  TestMachine machine;
  machine.setting("tavr wipe", "homepage", "größe \"x\" \\ 日本")
      .machineFile("processes.txt", "4 System\n40 größe.exe\n41 b.exe\n")
      .machineFile("urlcache.txt", "1\thttp://a/\t\n1\thttp://日本/?x=1\tC:\\c\\é.gif\n");
  Machine& first = machine.machine();
  std::unique_ptr<Process> process;
  ASSERT_EQ(first.processes.open(41, 1, process), kSuccess);
  ASSERT_EQ(process->terminate(0), kSuccess);
  process.reset();
  ASSERT_EQ(first.url_cache.remove("http://a/"), kSuccess);
  machine.program().registry.saveSetting("software\\tavrwork\\tavr wipe", "titlepage", " =\t\"");
  machine.stop();

  Machine& later = machine.machine();
  std::vector<ProcessEntry> running;
  ASSERT_EQ(later.processes.snapshot(running), kSuccess);
  ASSERT_EQ(running.size(), 2U);
  EXPECT_EQ(running[1].id, 40U);
  EXPECT_EQ(running[1].image, "größe.exe");
  CacheEntry entry;
  const auto walk = later.url_cache.findFirst(entry);
  ASSERT_NE(walk, nullptr);
  EXPECT_EQ(entry.url.value_or(""), "http://日本/?x=1");
  EXPECT_EQ(entry.local_file.value_or(""), "C:\\c\\é.gif");
  EXPECT_FALSE(walk->next(entry));
  const RegistryLayer& registry = machine.program().registry;
  EXPECT_EQ(registry.setting("software\\tavrwork\\tavr wipe", "homepage"), "größe \"x\" \\ 日本");
  EXPECT_EQ(registry.setting("software\\tavrwork\\tavr wipe", "titlepage"), " =\t\"");
}

// --- Malformed files ----------------------------------------------------------

class MalformedTextFiles : public ::testing::TestWithParam<std::string> {
 protected:
  // Every text file of the program's folder holds the same nonsense.
  MalformedTextFiles() {
    for (const char* name : {"slectplg.cln", "plgfile.cln", "plgfoldr.cln", "plgreg.cln",
                             "cookies.tvr", "url.tvr", "eresst.txt", "plugins\\x.tv",
                             "lang\\data.lang", "lang\\tavrwipe-de.lang", "lang\\english.ini"}) {
      machine.file(kFolder + name, GetParam());
    }
    machine.select("10").value(
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavrwork brightbox\\tavrwipe", "lang",
        "de");
  }

  TestMachine machine;
};

TEST_P(MalformedTextFiles, ArePassedOverWithoutAWord) {
  WatchedProgram program(machine);
  Form_Initialize(program.program, "");
  Form_Load(program.program);
  FormDesk& desk = program.program.desk;
  EXPECT_EQ(program.form.cmd_test.caption, "") << "a file without the key blanks its caption";
  EXPECT_EQ(program.form.lbllanguage.size(), 1U);
  desk.openSettings();
  auto& form2 = dynamic_cast<Form2&>(*desk.loaded("Form2"));
  form2.chameleonButton[31].press();
  EXPECT_EQ(form2.View1.count(), 1);
  for (const char* mode : {"1", "2"}) desk.openKeepList("heading", mode);
  EXPECT_FALSE(program.run(RunKind::test));
  EXPECT_THAT(machine.read(kFolder + "eraselog.txt"), HasSubstr("Test Completed"));
  EXPECT_THAT(program.dialogs.asked, IsEmpty());
  EXPECT_FALSE(program.program.message.visible);
  EXPECT_EQ(program.program.numbers.freeFile(), 1) << "nothing stays open";
}

INSTANTIATE_TEST_SUITE_P(Contents, MalformedTextFiles,
                         ::testing::Values("", "\r\n\r\n\r\n", "\r\r\r", "=", "[", "[]\n=\n\"\"",
                                           "||,,|", std::string("\0\xFF\xFE\0[\0\n", 7),
                                           std::string(70'000, '#'), std::string(3'000, '\n')));

}  // namespace
}  // namespace tavr
