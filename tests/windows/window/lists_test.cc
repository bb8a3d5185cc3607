// The lists with very many rows, and the list of what is kept.
#include <gmock/gmock.h>
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <memory>

#include "platform/win32/wide.h"
#include "tests/windows/accessible/shown_program.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kMillion = 1000000;

class ManyRows : public ::testing::Test {
 protected:
  ManyRows() {
    for (int i = 0; i < kMillion; ++i) {
      results().add({"C:\\Users\\user\\AppData\\Local\\file ", std::to_string(i)});
    }
    shown_.pump();
  }
  ResultList& results() { return shown_.program().form.View200; }
  HWND window() { return shown_.window("Form1", "View200"); }

  win32::testing::ShownProgram shown_;
};

ULONGLONG millisecondsOf(const std::function<void()>& work) {
  const ULONGLONG start = GetTickCount64();
  work();
  return GetTickCount64() - start;
}

TEST_F(ManyRows, AreAllThere) {
  EXPECT_EQ(SendMessageW(window(), LVM_GETITEMCOUNT, 0, 0), kMillion);
  const RemoteList list(GetCurrentProcess(), window());
  EXPECT_EQ(list.text(kMillion - 1), "C:\\Users\\user\\AppData\\Local\\file 999999");
}

TEST_F(ManyRows, ScrollAsFewDo) {
  constexpr int kSteps = 50;
  constexpr ULONGLONG kFluent = 40;  // ms a step
  const ULONGLONG took = millisecondsOf([this] {
    for (int i = 0; i < kSteps; ++i) {
      ListView_EnsureVisible(window(), (i * 7919LL * 127) % kMillion, FALSE);
      UpdateWindow(window());
    }
  });
  EXPECT_LE(took, kSteps * kFluent);
}

TEST_F(ManyRows, TakeMoreWithoutAPause) {
  constexpr int kSteps = 50;
  constexpr ULONGLONG kFluent = 40;  // ms a step, the whole form brought up to date in it
  const ULONGLONG took = millisecondsOf([this] {
    for (int i = 0; i < kSteps; ++i) {
      results().addGhosted({"one more"});
      shown_.pump();
    }
  });
  EXPECT_LE(took, kSteps * kFluent);
  EXPECT_EQ(SendMessageW(window(), LVM_GETITEMCOUNT, 0, 0), kMillion + kSteps);
}

TEST_F(ManyRows, GoAtOnce) {
  const ULONGLONG took = millisecondsOf([this] {
    results().clear();
    shown_.pump();
  });
  EXPECT_LE(took, 250U);
  EXPECT_EQ(SendMessageW(window(), LVM_GETITEMCOUNT, 0, 0), 0);
}

class KeepList : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    constexpr wchar_t kFirst[] = L"http://one.example/";
    constexpr wchar_t kSecond[] = L"http://two.example/";
    RegDeleteTreeW(HKEY_CURRENT_USER, kTyped);
    RegSetKeyValueW(HKEY_CURRENT_USER, kTyped, L"url1", REG_SZ, kFirst, sizeof(kFirst));
    RegSetKeyValueW(HKEY_CURRENT_USER, kTyped, L"url2", REG_SZ, kSecond, sizeof(kSecond));
    program_ = std::make_unique<DrivenProgram>("Form52", L"form_alone.exe");
    ASSERT_TRUE(program_->comesUp("Form52.List1"));
    ASSERT_TRUE(comes([this] { return rows("Form52.List1").size() == 2; }));
    program_->comesToFront("Form52");
  }
  void TearDown() override { program_.reset(); }

  DrivenProgram& program() { return *program_; }
  std::vector<std::string> rows(std::string_view control) {
    const HWND list = program().window(control);
    std::vector<std::string> texts;
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      wchar_t text[256] = L"";
      SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
      texts.push_back(win32::narrow(text));
    }
    return texts;
  }
  POINT onRow(std::string_view control, int row) {
    const HWND list = program().window(control);
    const auto height = static_cast<int>(SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
    return {30, height * row + height / 2};
  }
  void clickRow(std::string_view control, int row) {
    clickAt(program().window(control), onRow(control, row));
  }
  bool kept(std::size_t count) {
    return comes([&] { return rows("Form52.List2").size() == count; });
  }

 private:
  static constexpr wchar_t kTyped[] = L"software\\microsoft\\internet explorer\\typedurls";
  std::unique_ptr<DrivenProgram> program_;
};

TEST_F(KeepList, TheSelectedRowIsAddedOnceAndStored) {
  EXPECT_EQ(program().text("Form52.Label1(1)"), "Current Location bar history List");
  clickRow("Form52.List1", 1);
  program().click("Form52.keepbutton2");
  EXPECT_TRUE(kept(1));
  program().click("Form52.keepbutton2");
  EXPECT_THAT(rows("Form52.List2"), ElementsAre("http://two.example/"));
  program().click("Form52.keepbutton7");
  EXPECT_TRUE(program().goes("Form52"));
  EXPECT_EQ(contents("url.tvr"), "http://two.example/\r\n");
}

TEST_F(KeepList, ADoubleClickAddsAndAnotherTakesAway) {
  doubleClickAt(program().window("Form52.List1"), onRow("Form52.List1", 0));
  EXPECT_TRUE(kept(1));
  EXPECT_THAT(rows("Form52.List2"), ElementsAre("http://one.example/"));
  Sleep(600);  // no third click
  doubleClickAt(program().window("Form52.List2"), onRow("Form52.List2", 0));
  EXPECT_TRUE(kept(0));
}

TEST_F(KeepList, AllRowsAreSelectedByTheButtons) {
  program().click("Form52.chameleonButton1");
  program().click("Form52.keepbutton2");
  EXPECT_TRUE(kept(2));
  program().click("Form52.chameleonButton2");
  program().click("Form52.keepbutton3");
  EXPECT_TRUE(kept(0));
}

TEST_F(KeepList, CancelStoresNothing) {
  program().click("Form52.chameleonButton1");
  program().click("Form52.keepbutton2");
  EXPECT_TRUE(kept(2));
  program().click("Form52.keepbutton10");
  EXPECT_TRUE(program().goes("Form52"));
  EXPECT_FALSE(exists("url.tvr"));
}

}  // namespace
}  // namespace tavr::testing
