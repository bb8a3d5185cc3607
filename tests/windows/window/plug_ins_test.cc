// The panel of the plug-ins.
#include <windows.h>
// Behind windows.h.
#include <dlgs.h>

#include <gmock/gmock.h>

#include "platform/win32/wide.h"

#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::string_view kDefinition =
    "Player\r\nAn author\r\nForgets what was played\r\n[file]\r\nC:\\nowhere\\played.lst\r\n";

class PlugIns : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    write("plugins\\alpha.tv", kDefinition);
    write("plugins\\beta.tv", kDefinition);
  }
  void open() {
    start();
    program().click("Form1.cmd_settings");
    ASSERT_TRUE(program().comesUp("Form2"));
    program().click("Form2.chameleonButton31");
    ASSERT_TRUE(program().comesUp("Form2.View1"));
    ASSERT_TRUE(comes([this] { return rows().size() == 2; }));
  }
  std::vector<std::string> rows() { return list("Form2.View1").column(); }
  void clickRow(int row) {
    clickAt(program().window("Form2.View1"), list("Form2.View1").onText(row));
  }
  void clickBox(int row) {
    clickAt(program().window("Form2.View1"), list("Form2.View1").onBox(row));
  }
  // Of a control of a dialog of the system, wherever it stands in it.
  static std::string textOf(HWND dialog, int id) {
    HWND at = nullptr;
    while ((at = FindWindowExW(dialog, at, nullptr, nullptr)) != nullptr) {
      const HWND control = GetDlgCtrlID(at) == id ? at : GetDlgItem(at, id);
      if (control == nullptr) continue;
      wchar_t text[64] = L"";
      SendMessageW(control, WM_GETTEXT, 64, reinterpret_cast<LPARAM>(text));
      return win32::narrow(text);
    }
    return "<none>";
  }
  static bool chosen(std::string_view names) {
    return comes([&] { return contents("slectplg.cln") == names; });
  }
};

TEST_F(PlugIns, TheDefinitionsOfTheFolderAreListed) {
  open();
  EXPECT_THAT(rows(), ElementsAre("alpha", "beta"));
  EXPECT_EQ(list("Form2.View1").header(0), "Application Plugins");
}

TEST_F(PlugIns, AClickOnTheBoxChoosesAndTakesBack) {
  open();
  clickBox(1);
  EXPECT_TRUE(chosen("beta\r\n"));
  clickBox(1);
  EXPECT_TRUE(chosen(""));
}

TEST_F(PlugIns, AClickOnTheNameOnlySelects) {
  open();
  clickRow(0);
  EXPECT_TRUE(chosen(""));
}

TEST_F(PlugIns, TheSpaceBarTicksTheSelectedOne) {
  open();
  clickRow(0);
  pressKey(VK_SPACE);
  EXPECT_TRUE(chosen("alpha\r\n"));
}

TEST_F(PlugIns, ATickIsKeptForTheNextTime) {
  open();
  clickBox(0);
  EXPECT_TRUE(chosen("alpha\r\n"));
  end();
  open();
  EXPECT_TRUE(chosen("alpha\r\n"));
  clickBox(0);
  EXPECT_TRUE(chosen(""));
}

TEST_F(PlugIns, AllAreTickedAndNone) {
  open();
  program().click("Form2.chameleonButton5");
  EXPECT_TRUE(chosen("alpha\r\nbeta\r\n"));
  program().click("Form2.chameleonButton14");
  EXPECT_TRUE(chosen(""));
}

// The information is that of the row that is marked, however it was marked.
TEST_F(PlugIns, ARowIsMarkedByTheArrowsAndByAPressThatIsDragged) {
  write("plugins\\beta.tv", "Viewer\r\nAn author\r\nForgets what was seen\r\n");
  open();
  const auto told = [this] {
    program().click("Form2.chameleonButton10");
    EXPECT_TRUE(program().comesUp("frmmsg"));
    const std::string heading = program().text("frmmsg.Text1");
    program().click("frmmsg.command2");
    EXPECT_TRUE(program().goes("frmmsg"));
    return heading;
  };
  clickRow(0);
  EXPECT_THAT(told(), HasSubstr("Forgets what was played"));
  SetForegroundWindow(program().form("Form2"));
  clickRow(0);
  pressKey(VK_DOWN);
  EXPECT_THAT(told(), HasSubstr("Forgets what was seen"));
  const HWND view = program().window("Form2.View1");
  POINT from = list("Form2.View1").onText(0);
  ClientToScreen(view, &from);
  dragMouse(from, {from.x + 40, from.y});
  EXPECT_THAT(told(), HasSubstr("Forgets what was played"));
}

TEST_F(PlugIns, TheSelectedOneIsDeletedWhenThePersonAgrees) {
  open();
  clickRow(0);
  program().click("Form2.chameleonButton9");
  const HWND box = program().waitForBox();
  ASSERT_NE(box, nullptr);
  EXPECT_THAT(DrivenProgram::textOfBox(box), HasSubstr("alpha"));
  DrivenProgram::answer(box, IDYES);
  EXPECT_TRUE(comes([] { return !exists("plugins\\alpha.tv"); }));
  program().click("Form2.chameleonButton8");
  EXPECT_TRUE(comes([this] { return rows().size() == 1; }));
  EXPECT_THAT(rows(), ElementsAre("beta"));
}

TEST_F(PlugIns, ItStaysWhenThePersonDoesNot) {
  open();
  clickRow(0);
  program().click("Form2.chameleonButton9");
  const HWND box = program().waitForBox();
  ASSERT_NE(box, nullptr);
  DrivenProgram::answer(box, IDNO);
  EXPECT_TRUE(comes([&] { return !IsWindow(box); }));
  EXPECT_TRUE(exists("plugins\\alpha.tv"));
}

TEST_F(PlugIns, ADefinitionIsImportedThroughTheFileDialog) {
  write("C:\\imported\\gamma.tv", kDefinition);
  open();
  program().click("Form2.chameleonButton11");
  const HWND dialog = program().waitForBox();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(comes([&] { return GetForegroundWindow() == dialog; }));
  Sleep(500);  // until it has put the focus into its name
  pressKey('A', VK_CONTROL);
  pressKey(VK_DELETE);
  typeText("C:\\imported\\gamma.tv");
  pressKey(VK_RETURN);
  EXPECT_TRUE(comes([] { return exists("plugins\\gamma.tv"); }));
  EXPECT_EQ(contents("plugins\\gamma.tv"), kDefinition);
  program().click("Form2.chameleonButton8");
  EXPECT_TRUE(comes([this] { return rows().size() == 3; }));
  removeFolder(place("C:\\imported"));
}

TEST_F(PlugIns, TheFileDialogMayBeLeft) {
  open();
  program().click("Form2.chameleonButton11");
  const HWND dialog = program().waitForBox();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(comes([&] { return GetForegroundWindow() == dialog; }));
  EXPECT_EQ(textOf(dialog, cmb1), "*.tv") << "the kind of files";
  EXPECT_EQ(textOf(dialog, cmb13), "*.tv") << "the name";
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(comes([&] { return !IsWindow(dialog); }));
  EXPECT_THAT(rows(), ElementsAre("alpha", "beta"));
  EXPECT_TRUE(program().sees("Form2"));
}

TEST_F(PlugIns, TheFileDialogBelongsToTheSettingsWhichWaitForIt) {
  open();
  const HWND settings = program().form("Form2");
  program().click("Form2.chameleonButton11");
  const HWND dialog = program().waitForBox();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(GetWindow(dialog, GW_OWNER), settings);
  EXPECT_TRUE(comes([&] { return GetForegroundWindow() == dialog; }));
  EXPECT_FALSE(IsWindowEnabled(settings));
  EXPECT_FALSE(IsWindowEnabled(program().form("Form1")));
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(comes([&] { return IsWindowEnabled(settings) != FALSE; }));
  EXPECT_TRUE(program().comesToFront("Form2"));
  EXPECT_FALSE(IsWindowEnabled(program().form("Form1"))) << "the settings are still open";
}

TEST_F(PlugIns, TheInformationIsShownInTheProgramsOwnMessage) {
  open();
  clickRow(1);
  program().click("Form2.chameleonButton10");
  ASSERT_TRUE(program().comesUp("frmmsg"));
  EXPECT_EQ(program().text("frmmsg.Text1"),
            "Forgets what was played\r\n\r\n  Designed By : An author");
  program().click("frmmsg.command2");
  EXPECT_TRUE(program().goes("frmmsg"));
  EXPECT_TRUE(program().sees("Form2"));
}

}  // namespace
}  // namespace tavr::testing
