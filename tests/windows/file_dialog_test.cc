// The dialog that asks for a file, with somebody at its keys.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <dlgs.h>

#include <optional>
#include <string>

#include "platform/win32/wide.h"
#include "platform/win32/win32_desktop.h"
#include "tests/contract/win32_parent_window.h"

namespace tavr::win32 {
namespace {

using ::testing::EndsWith;
using ::testing::Optional;

BOOL CALLBACK seeDialog(HWND window, LPARAM found) {
  wchar_t name[8] = {};
  GetClassNameW(window, name, 8);
  if (std::wstring_view(name) != L"#32770" || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

// What the person does in the dialog, once it is there.
struct Person {
  static constexpr UINT kInterval = 50;  // ms
  static constexpr int kPatience = 20;   // answers, then the dialog is cancelled

  Person(WORD button, const wchar_t* file) : button_(button), file_(file) {
    waiting_ = this;
    timer_ = SetTimer(nullptr, 0, kInterval, &look);
  }
  ~Person() {
    KillTimer(nullptr, timer_);
    waiting_ = nullptr;
  }
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  HWND owner = nullptr;

 private:
  static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) {
    HWND dialog = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &seeDialog, reinterpret_cast<LPARAM>(&dialog));
    if (dialog != nullptr && waiting_ != nullptr) waiting_->answer(dialog);
  }
  void answer(HWND dialog) {
    owner = GetWindow(dialog, GW_OWNER);
    SetDlgItemTextW(dialog, edt1, file_);
    SetDlgItemTextW(dialog, cmb13, file_);
    PostMessageW(dialog, WM_COMMAND, ++answers_ < kPatience ? button_ : WORD{IDCANCEL}, 0);
  }

  static inline Person* waiting_ = nullptr;
  WORD button_;
  const wchar_t* file_;
  UINT_PTR timer_ = 0;
  int answers_ = 0;
};

class FileDialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!contract::ParentWindow::possible()) GTEST_SKIP() << "no display";
    window_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr,
                              nullptr, GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(window_, nullptr);
    desktop_.setWindow(window_);
  }
  void TearDown() override {
    if (window_ != nullptr) DestroyWindow(window_);
  }

  HWND window_ = nullptr;
  Win32Desktop desktop_;
};

TEST_F(FileDialogTest, GivesTheWholePathOfWhatIsChosen) {
  Person person(IDOK, L"plug-in.tvr");
  EXPECT_THAT(desktop_.chooseFile("Plug-ins|*.tvr|All|*.*", ""),
              Optional(EndsWith("\\plug-in.tvr")));
  EXPECT_EQ(person.owner, window_);
}

TEST_F(FileDialogTest, GivesNothingWhenItIsCancelled) {
  Person person(IDCANCEL, L"plug-in.tvr");
  EXPECT_EQ(desktop_.chooseFile("All|*.*", ""), std::nullopt);
  EXPECT_EQ(person.owner, window_);
}

// Also where another dialog has been open before.
TEST_F(FileDialogTest, OpensAgain) {
  for (const char* name : {"one.tvr", "two.tvr"}) {
    const std::wstring file = wide(name);
    Person person(IDOK, file.c_str());
    EXPECT_THAT(desktop_.chooseFile("All|*.*", ""), Optional(EndsWith(std::string("\\") + name)));
  }
}

}  // namespace
}  // namespace tavr::win32
