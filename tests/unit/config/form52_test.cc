// The Keep List: what its left list finds, what is kept, and the two files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "config/form52_code.h"
#include "tests/support/fake_form_host.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::FormStage;
using ::testing::IsEmpty;
using testing::TestMachine;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";
const std::string kCookies = "C:\\Users\\user\\Cookies\\";
const std::string kShellsOwn = "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\";
constexpr std::string_view kShellFolders =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr std::string_view kTyped =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\TypedURLs";

std::vector<std::string> texts(const ListBox& list) {
  std::vector<std::string> rows;
  for (const ListBox::Row& row : list.rows) rows.push_back(row.text);
  return rows;
}

class KeepList : public ::testing::Test {
 protected:
  void cookies() {
    machine.value(kShellFolders, "Cookies", "C:\\Users\\user\\Cookies")
        .file(kCookies + "b.txt")
        .file(kCookies + "Abc.txt")
        .file(kCookies + "index.dat");
  }
  void addresses() {
    machine.value(kTyped, "url1", "http://one.example/")
        .value(kTyped, "url2", "http://two.example/");
  }
  FormStage& stage() {
    if (!stage_) stage_ = std::make_unique<FormStage>(machine);
    return *stage_;
  }
  Form52Code& code() {
    if (!code_) {
      code_ = std::make_unique<Form52Code>(stage().context);
      code_->Form_Load();
    }
    return *code_;
  }
  Form52& form() { return code().form; }
  Form52& opened(std::string_view mode) {
    code().open("heading", mode);
    return form();
  }
  std::string kept(std::string_view name) { return machine.read(kFolder + std::string(name)); }

  TestMachine machine;

 private:
  std::unique_ptr<FormStage> stage_;
  std::unique_ptr<Form52Code> code_;
};

// --- the form ---------------------------------------------------------------

TEST_F(KeepList, HasItsControls) {
  EXPECT_EQ(form().caption, "Keep List");
  EXPECT_TRUE(form().topmost);
  const std::vector<std::pair<std::string, std::string>> captions = {
      {"Label1(16)", "Keep List"},
      {"Label1(1)", "Current List"},
      {"Label1(0)", "Keep list"},
      {"keepbutton2", "Click to add selected to keep list"},
      {"keepbutton3", " Delete"},
      {"keepbutton11", "  Refresh"},
      {"keepbutton7", "  OK"},
      {"keepbutton10", " Cancel"},
      {"chameleonButton1", "Select All"},
      {"chameleonButton2", "Select All"},
      {"Command1", "cookies"},
      {"command2", "urls"},
      {"Command3", "Command3"}};
  for (const auto& [name, caption] : captions) {
    const Control* control = form().find(name);
    ASSERT_NE(control, nullptr) << name;
    EXPECT_EQ(control->caption, caption) << name;
  }
  for (const char* name :
       {"Text1", "Text2", "List3", "Dir1", "File1", "Command1", "command2", "Command3"}) {
    EXPECT_FALSE(form().find(name)->visible) << name;
  }
}

TEST_F(KeepList, ItsButtonsForAllRowsAreThoseOfEveryForm) {
  for (ChameleonButton* button : {&form().chameleonButton1, &form().chameleonButton2}) {
    button->mouseMove();
    EXPECT_EQ(button->state(), ChameleonButton::State::kOver);
    EXPECT_TRUE(button->OverTimer.enabled());
  }
}

TEST_F(KeepList, PlacesEveryControlOnceInsideWithoutOverlap) {
  const auto& controls = form().controls();
  EXPECT_EQ(controls.size(), form52Design().size());
  std::set<std::string> names;
  for (const Control* control : controls) {
    const std::string name = fullName(control->design.name, control->design.index);
    EXPECT_TRUE(names.insert(name).second) << name;
    const Box& a = control->box;
    EXPECT_LE(a.left + a.width, form().width) << name;
    EXPECT_LE(a.top + a.height, form().height) << name;
    for (const Control* other : controls) {
      const Box& b = other->box;
      const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left ||
                         a.top + a.height <= b.top || b.top + b.height <= a.top;
      EXPECT_TRUE(apart || other == control) << name;
    }
  }
}

TEST_F(KeepList, OpensWithTheHeadingOfItsCaller) {
  code().open("Current Cookies List", "1");
  EXPECT_EQ(form().Label1_1.caption, "Current Cookies List");
  EXPECT_EQ(form().Text1.text(), "1");
}

// --- cookies ----------------------------------------------------------------

TEST_F(KeepList, ListsTheTextFilesOfTheCookiesFolder) {
  cookies();
  EXPECT_THAT(texts(opened("1").List1), ElementsAre("Abc.txt", "b.txt"));
  EXPECT_THAT(texts(form().List2), IsEmpty());
}

TEST_F(KeepList, AsksTheShellForAFolderThatIsGone) {
  machine.value(kShellFolders, "Cookies", "C:\\gone").file(kShellsOwn + "c.txt");
  EXPECT_THAT(texts(opened("1").List1), ElementsAre("c.txt"));
}

TEST_F(KeepList, AsksTheShellForAFolderThatIsNotNamed) {
  machine.file(kShellsOwn + "c.txt");
  EXPECT_THAT(texts(opened("1").List1), ElementsAre("c.txt"));
}

TEST_F(KeepList, WithoutACookiesFolderTheListIsEmpty) {
  EXPECT_THAT(texts(opened("1").List1), IsEmpty());
}

TEST_F(KeepList, ReadsWhatIsKept) {
  cookies();
  machine.file(kFolder + "cookies.tvr", " b.txt \r\n\r\n   \r\nz.txt\r\n")
      .file(kFolder + "url.tvr", "http://one.example/\r\n");
  EXPECT_THAT(texts(opened("1").List2), ElementsAre(" b.txt ", "z.txt"));
}

// --- addresses --------------------------------------------------------------

TEST_F(KeepList, ListsTheAddressesThemselves) {
  addresses();
  machine.file(kFolder + "url.tvr", "http://kept.example/\r\n");
  EXPECT_THAT(texts(opened("2").List1), ElementsAre("http://one.example/", "http://two.example/"));
  EXPECT_THAT(texts(form().List3), ElementsAre("http://one.example/", "http://two.example/"));
  EXPECT_THAT(texts(form().List2), ElementsAre("http://kept.example/"));
}

TEST_F(KeepList, WithoutAddressesTheListIsEmpty) {
  EXPECT_THAT(texts(opened("2").List1), IsEmpty());
}

TEST_F(KeepList, AnEmptyKeyOfAddressesGivesAnEmptyList) {
  machine.key(kTyped);
  EXPECT_THAT(texts(opened("2").List1), IsEmpty());
}

// The names are joined by commas: "a,b" is taken for two values.
TEST_F(KeepList, ANameWithACommaIsTakenForTwo) {
  machine.value(kTyped, "a,b", "http://lost.example/").value(kTyped, "a", "http://a.example/");
  EXPECT_THAT(texts(opened("2").List1),
              ::testing::UnorderedElementsAre("http://a.example/", "http://a.example/", ""));
}

TEST_F(KeepList, LeavesTheMainFormsTextAlone) {
  addresses();
  stage().program.form.Text2.setText("main");
  opened("2");
  EXPECT_EQ(stage().program.form.Text2.text(), "main");
}

TEST_F(KeepList, AnUnknownModeListsNothing) {
  cookies();
  addresses();
  machine.file(kFolder + "cookies.tvr", "b.txt\r\n");
  EXPECT_THAT(texts(opened("3").List1), IsEmpty());
  EXPECT_THAT(texts(form().List2), IsEmpty());
}

// --- adding and deleting ----------------------------------------------------

TEST_F(KeepList, AddsTheSelectedRowsOnce) {
  cookies();
  opened("1");
  form().List1.rows[1].selected = true;
  form().keepbutton2.press();
  EXPECT_THAT(texts(form().List2), ElementsAre("b.txt"));
  form().chameleonButton1.press();
  form().keepbutton2.press();
  EXPECT_THAT(texts(form().List2), ElementsAre("b.txt", "Abc.txt"));
}

TEST_F(KeepList, NamesThatDifferInCaseOrBlanksAreTheSame) {
  cookies();
  machine.file(kFolder + "cookies.tvr", "abc.txt \r\n");
  opened("1");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  EXPECT_THAT(texts(form().List2), ElementsAre("abc.txt ", "b.txt"));
}

// The comparison knows no wildcards.
TEST_F(KeepList, AStarInAKeptRowIsAStar) {
  cookies();
  machine.file(kFolder + "cookies.tvr", "*.txt\r\n");
  opened("1");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  EXPECT_THAT(texts(form().List2), ElementsAre("*.txt", "Abc.txt", "b.txt"));
}

TEST_F(KeepList, EmptyRowsAreNotAdded) {
  machine.value(kTyped, "url1", "").value(kTyped, "url2", "  ").value(kTyped, "url3", " x ");
  opened("2");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  EXPECT_THAT(texts(form().List2), ElementsAre(" x "));
}

TEST_F(KeepList, DeletesTheSelectedRows) {
  machine.file(kFolder + "cookies.tvr", "a\r\nb\r\nc\r\nd\r\n");
  opened("1");
  for (const std::size_t row : {1U, 2U}) form().List2.rows[row].selected = true;
  form().keepbutton3.press();
  EXPECT_THAT(texts(form().List2), ElementsAre("a", "d"));
  form().chameleonButton2.press();
  form().keepbutton3.press();
  EXPECT_THAT(texts(form().List2), IsEmpty());
}

TEST_F(KeepList, ADoubleClickAddsOrDeletesTheRow) {
  cookies();
  opened("1");
  form().List1.rows[0].selected = true;
  form().List1.onDoubleClick();
  EXPECT_THAT(texts(form().List2), ElementsAre("Abc.txt"));
  form().List2.rows[0].selected = true;
  form().List2.onDoubleClick();
  EXPECT_THAT(texts(form().List2), IsEmpty());
}

// --- refresh, OK, Cancel ----------------------------------------------------

TEST_F(KeepList, RefreshReadsTheCookiesAnew) {
  cookies();
  opened("1");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  machine.file(kCookies + "new.txt");
  form().keepbutton11.press();
  EXPECT_THAT(texts(form().List1), ElementsAre("Abc.txt", "b.txt", "new.txt"));
  EXPECT_THAT(texts(form().List2), ElementsAre("Abc.txt", "b.txt"));
}

TEST_F(KeepList, RefreshListsEveryAddressOnce) {
  machine.file(kFolder + "url.tvr", "http://kept.example/\r\n");
  addresses();
  opened("2");
  form().keepbutton11.press();
  EXPECT_THAT(texts(form().List1), ElementsAre("http://one.example/", "http://two.example/"));
  EXPECT_THAT(texts(form().List2), ElementsAre("http://kept.example/"));
}

TEST_F(KeepList, OkReplacesTheFileAndCloses) {
  machine.file(kFolder + "cookies.tvr", " a.txt \r\nold.txt\r\n")
      .file(kFolder + "url.tvr", "http://kept.example/\r\n")
      .readOnly(kFolder + "cookies.tvr");
  opened("1");
  form().List2.rows[1].selected = true;
  form().keepbutton3.press();
  form().List2.add("   ");
  form().keepbutton7.press();
  EXPECT_EQ(kept("cookies.tvr"), "a.txt\r\n");
  EXPECT_EQ(kept("url.tvr"), "http://kept.example/\r\n");
  EXPECT_THAT(stage().host.calls, ElementsAre("unload Form52"));
}

TEST_F(KeepList, OkKeepsTheAddressesInAFileOfTheirOwn) {
  addresses();
  opened("2");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  form().keepbutton7.press();
  EXPECT_EQ(kept("url.tvr"), "http://one.example/\r\nhttp://two.example/\r\n");
  EXPECT_FALSE(machine.exists(kFolder + "cookies.tvr"));
}

TEST_F(KeepList, OkReplacesTheAddressesThoughTheirFileIsReadOnly) {
  addresses();
  machine.file(kFolder + "url.tvr", " http://kept.example/ \r\nhttp://old.example/\r\n")
      .readOnly(kFolder + "url.tvr");
  opened("2");
  form().List2.rows[1].selected = true;
  form().keepbutton3.press();
  form().List2.add("   ");
  form().keepbutton7.press();
  EXPECT_EQ(kept("url.tvr"), "http://kept.example/\r\n");
}

TEST_F(KeepList, AFileThatSomebodyHoldsLeavesTheListEmpty) {
  cookies();
  machine.file(kFolder + "cookies.tvr", "kept.txt\r\n")
      .machineFile("locked.txt", kFolder + "cookies.tvr\n");
  EXPECT_THAT(texts(opened("1").List2), IsEmpty());
  EXPECT_THAT(texts(form().List1), ElementsAre("Abc.txt", "b.txt"));
}

TEST_F(KeepList, OpenedForTheOtherKindItKeepsWhatWasReadBefore) {
  machine.file(kFolder + "cookies.tvr", "kept.txt\r\n")
      .file(kFolder + "url.tvr", "http://kept.example/\r\n");
  opened("1");
  EXPECT_THAT(texts(opened("2").List2), ElementsAre("kept.txt", "http://kept.example/"));
}

TEST_F(KeepList, WhatIsWrittenIsReadBack) {
  cookies();
  opened("1");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  form().keepbutton7.press();
  Form52Code again(stage().context);
  again.open("heading", "1");
  EXPECT_THAT(texts(again.form.List2), ElementsAre("Abc.txt", "b.txt"));
}

TEST_F(KeepList, AnEmptyListLeavesAnEmptyFileThatTheNextLoadSkips) {
  opened("1");
  form().keepbutton7.press();
  ASSERT_TRUE(machine.exists(kFolder + "cookies.tvr"));
  EXPECT_EQ(kept("cookies.tvr"), "");
  Form52Code again(stage().context);
  again.open("heading", "1");
  EXPECT_THAT(texts(again.form.List2), IsEmpty());
}

TEST_F(KeepList, CancelWritesNothing) {
  cookies();
  opened("1");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  form().keepbutton10.press();
  EXPECT_FALSE(machine.exists(kFolder + "cookies.tvr"));
  EXPECT_THAT(stage().host.calls, ElementsAre("unload Form52"));
}

// No run looks at the list.
TEST_F(KeepList, ARunErasesTheKeptCookiesAllTheSame) {
  machine.select("52").file(kShellsOwn + "Abc.txt").file(kShellsOwn + "b.txt");
  opened("1");
  form().chameleonButton1.press();
  form().keepbutton2.press();
  form().keepbutton7.press();
  EXPECT_EQ(kept("cookies.tvr"), "Abc.txt\r\nb.txt\r\n");
  stage().program.form.Text4.setText("1");
  stage().program.form.chameleonButton5.click();
  EXPECT_FALSE(machine.exists(kShellsOwn + "Abc.txt"));
  EXPECT_FALSE(machine.exists(kShellsOwn + "b.txt"));
  EXPECT_EQ(kept("cookies.tvr"), "Abc.txt\r\nb.txt\r\n");
}

TEST_F(KeepList, TheLeftoverButtonDoesNothing) {
  cookies();
  opened("1");
  form().Command3.press();
  EXPECT_TRUE(machine.exists(kCookies + "b.txt"));
  EXPECT_EQ(texts(form().List1).size(), 2U);
}

TEST_F(KeepList, EveryButtonOfTheFreshFormCanBePressed) {
  for (Control* control : form().controls()) EXPECT_NO_THROW(control->press());
}

}  // namespace
}  // namespace tavr
