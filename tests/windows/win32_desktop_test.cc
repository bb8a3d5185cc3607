// The icon in the notification area, seen from a task bar of the test's own, and
// the desktop before there are windows.
#include "platform/win32/win32_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <shellapi.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/plain_window.h"
#include "platform/win32/wide.h"
#include "tests/contract/win32_differences.h"
#include "tests/contract/win32_parent_window.h"

namespace tavr::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr DWORD kRetry = 1000;  // ms

// As Wine's shell hands it to the task bar.
struct NotifyData {
  LONG window;
  UINT id;
  UINT flags;
  UINT message;
  wchar_t tip[128];
};

// Writes down what it is asked: "add 7 tip", the flags and the text that they name.
class TaskBar {
 public:
  TaskBar() {
    // What the shell's calls look for.
    window_ = makePlainWindow(L"Shell_TrayWnd", &procedure, this);
    // The first of its class is found, ahead of one that the system runs.
    SetWindowPos(window_, HWND_TOPMOST, 0, 0, 1, 1, SWP_NOACTIVATE);
  }
  ~TaskBar() { DestroyWindow(window_); }
  TaskBar(const TaskBar&) = delete;
  TaskBar& operator=(const TaskBar&) = delete;

  std::vector<std::string> taken() { return std::exchange(taken_, {}); }
  bool takes = true;
  int refused = 0;
  UINT last_id = 0;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto* const bar = reinterpret_cast<TaskBar*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (bar == nullptr || message != WM_COPYDATA) {
      return DefWindowProcW(window, message, wparam, lparam);
    }
    return bar->take(*reinterpret_cast<const COPYDATASTRUCT*>(lparam)) ? TRUE : FALSE;
  }
  bool take(const COPYDATASTRUCT& data) {
    if (!takes) {
      ++refused;
      return false;
    }
    const auto& asked = *static_cast<const NotifyData*>(data.lpData);
    const char* const name = data.dwData == NIM_ADD      ? "add "
                             : data.dwData == NIM_MODIFY ? "change "
                                                         : "remove ";
    const std::string tip = (asked.flags & NIF_TIP) != 0 ? " " + narrow(asked.tip) : "";
    last_id = asked.id;
    taken_.push_back(name + std::to_string(asked.flags) + tip);
    return true;
  }

  HWND window_ = nullptr;
  std::vector<std::string> taken_;
};

void pumpFor(DWORD milliseconds) {
  for (const ULONGLONG end = GetTickCount64() + milliseconds; GetTickCount64() < end; Sleep(10)) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
}

TEST(Win32DesktopTest, BeforeThereAreWindowsNothingIsTakenShownOrChosen) {
  Win32Desktop desktop;
  EXPECT_FALSE(desktop.registerHotKey(1, 0, 0x70));
  desktop.unregisterHotKey(1);
  desktop.addTrayIcon("tip");
  desktop.changeTrayIcon("tip");
  desktop.removeTrayIcon();
  EXPECT_EQ(desktop.chooseFile("All|*.*", ""), std::nullopt);
  EXPECT_GE(desktop.screen().width, 0);
}

class TrayIconTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!contract::onWine()) GTEST_SKIP() << "the task bar of Windows is asked in its own words";
    if (!contract::ParentWindow::possible()) GTEST_SKIP() << "no display";
    bar_.emplace();
    window_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(window_, nullptr);
    desktop_.emplace();
    desktop_->setTray(window_, LoadIconW(nullptr, IDI_APPLICATION));
  }
  void TearDown() override {
    desktop_.reset();
    if (window_ != nullptr) DestroyWindow(window_);
  }

  std::optional<TaskBar> bar_;
  std::optional<Win32Desktop> desktop_;
  HWND window_ = nullptr;
};

TEST_F(TrayIconTest, IsAddedWithAllAndChangedWithWhatIsAnother) {
  desktop_->addTrayIcon("one");
  desktop_->changeTrayIcon("two");
  desktop_->changeTrayIcon("two");
  desktop_->removeTrayIcon();
  desktop_->removeTrayIcon();
  EXPECT_THAT(bar_->taken(), ElementsAre("add 7 one", "change 4 two", "change 2", "remove 0"));
}

TEST_F(TrayIconTest, KeepsTheNumberThatItWasAddedWith) {
  desktop_->identifyTrayIcon(4711);
  desktop_->addTrayIcon("one");
  EXPECT_EQ(bar_->last_id, 4711U);
  desktop_->identifyTrayIcon(5);
  desktop_->changeTrayIcon("two");
  EXPECT_EQ(bar_->last_id, 4711U);
  desktop_->removeTrayIcon();
  EXPECT_EQ(bar_->last_id, 4711U);
}

TEST_F(TrayIconTest, WithoutATipItIsAddedWithoutOne) {
  desktop_->addTrayIcon("");
  EXPECT_THAT(bar_->taken(), ElementsAre("add 3"));
}

TEST_F(TrayIconTest, ALongTipIsCutAndAPairOfSurrogatesNotSplit) {
  desktop_->addTrayIcon(std::string(64, 'x'));
  EXPECT_THAT(bar_->taken(), ElementsAre("add 7 " + std::string(63, 'x')));
  desktop_->changeTrayIcon(std::string(62, 'y') + "\xF0\x9F\x98\x80z");
  EXPECT_THAT(bar_->taken(), ElementsAre("change 4 " + std::string(62, 'y')));
}

TEST_F(TrayIconTest, GoesWithTheDesktopAndWithItsWindow) {
  desktop_->addTrayIcon("tip");
  desktop_->setTray(nullptr, nullptr);
  EXPECT_THAT(bar_->taken(), ElementsAre("add 7 tip", "remove 0"));
  desktop_->setTray(window_, nullptr);
  desktop_->addTrayIcon("tip");
  desktop_.reset();
  EXPECT_THAT(bar_->taken(), ElementsAre("add 5 tip", "remove 0"));
}

TEST_F(TrayIconTest, ATaskBarThatDoesNotTakeItIsAskedAgain) {
  bar_->takes = false;
  desktop_->addTrayIcon("one");
  EXPECT_GT(bar_->refused, 0);
  desktop_->changeTrayIcon("two");
  bar_->takes = true;
  EXPECT_THAT(bar_->taken(), IsEmpty());
  pumpFor(kRetry + kRetry / 2);
  EXPECT_THAT(bar_->taken(), ElementsAre("add 7 two")) << "with what it has become";
  pumpFor(kRetry + kRetry / 2);
  EXPECT_THAT(bar_->taken(), IsEmpty()) << "once it stands there nobody asks";
  desktop_->removeTrayIcon();
  EXPECT_THAT(bar_->taken(), ElementsAre("remove 0"));
}

TEST_F(TrayIconTest, ARemovedOneIsNotAskedForAgain) {
  bar_->takes = false;
  desktop_->addTrayIcon("one");
  desktop_->removeTrayIcon();
  bar_->takes = true;
  pumpFor(kRetry + kRetry / 2);
  EXPECT_THAT(bar_->taken(), IsEmpty());
}

// It may have taken the icon and been late with its answer.
TEST_F(TrayIconTest, ATaskBarThatDidNotTakeItIsToldOfItsRemovalToo) {
  bar_->takes = false;
  desktop_->addTrayIcon("one");
  bar_->takes = true;
  desktop_->removeTrayIcon();
  desktop_->removeTrayIcon();
  EXPECT_THAT(bar_->taken(), ElementsAre("remove 0"));
}

TEST_F(TrayIconTest, ATaskBarThatHasStartedAnewGetsItAgain) {
  desktop_->addTrayIcon("one");
  desktop_->addTrayIcon("one");
  EXPECT_THAT(bar_->taken(), ElementsAre("add 7 one", "add 7 one"));
}

}  // namespace
}  // namespace tavr::win32
