// A screen reader is a program of its own: here this one asks another process.
#include <gmock/gmock.h>

#include <string>

#include "platform/win32/com.h"
#include "tests/windows/accessible/asked.h"

namespace tavr::win32::testing {
namespace {

constexpr DWORD kLongest = 20000;  // ms, until a window is there
constexpr DWORD kBetweenLooks = 20;

// This program, as the one that shows the forms.
class OtherProcess {
 public:
  OtherProcess() {
    wchar_t file[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, file, MAX_PATH);
    std::wstring line = L"\"" + std::wstring(file) + L"\" --serve";
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    CreateProcessW(file, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &info_);
  }
  ~OtherProcess() {
    TerminateProcess(info_.hProcess, 0);
    WaitForSingleObject(info_.hProcess, kLongest);
    CloseHandle(info_.hThread);
    CloseHandle(info_.hProcess);
  }
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;

  /// The window of a form or, in one, of a control; waits until it is there.
  HWND window(const wchar_t* property, HWND within = nullptr) const {
    Search search{info_.dwProcessId, property, nullptr};
    const ULONGLONG until = GetTickCount64() + kLongest;
    while (GetTickCount64() < until) {
      const auto data = reinterpret_cast<LPARAM>(&search);
      within == nullptr ? EnumWindows(&look, data) : EnumChildWindows(within, &look, data);
      if (search.found != nullptr) break;
      Sleep(kBetweenLooks);
    }
    return search.found;
  }

 private:
  struct Search {
    DWORD process;
    const wchar_t* property;
    HWND found;
  };
  static BOOL CALLBACK look(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<Search*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool wanted = process == search.process && IsWindowVisible(window) &&
                        GetPropW(window, search.property) != nullptr;
    if (wanted) search.found = window;
    return !wanted;
  }

  PROCESS_INFORMATION info_{};
};

TEST(AccessibleFromOutside, AnotherProcessReadsAndPressesAButton) {
  const ComApartment apartment;
  const OtherProcess program;
  const HWND form = program.window(L"Form1");
  ASSERT_NE(form, nullptr);
  const HWND button = program.window(L"Form1.cmd_option", form);
  ASSERT_NE(button, nullptr);
  const Asked told = ask(button);
  EXPECT_EQ(told.name, "Options");
  EXPECT_EQ(told.role, ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_TRUE(told.has(STATE_SYSTEM_FOCUSABLE));
  EXPECT_EQ(told.action, "Press");
  EXPECT_EQ(told.shortcut, "Alt+O");
  const ComPointer<IAccessible> object = accessibleOf(button);
  ASSERT_TRUE(object);
  EXPECT_EQ(object->accDoDefaultAction(self()), S_OK);
  EXPECT_NE(program.window(L"Form3"), nullptr);
}

}  // namespace
}  // namespace tavr::win32::testing
