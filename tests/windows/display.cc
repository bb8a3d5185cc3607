// Looks before the first test whether this process is able to have windows. Wine
// decides that once, when a process first asks for the desktop; where that fails
// (its desktop process was late, or could not reach the display) no window comes
// to be for as long as the process lives, and no test of a window would tell
// anything. Without DISPLAY no display was promised: on Windows itself, or for the
// tests that draw into memory.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <cstdlib>

namespace tavr::win32::testing {
namespace {

constexpr int kNoDisplay = 75;  // as in scripts/test-windows, which then starts anew

class Display : public ::testing::Environment {
 public:
  void SetUp() override {
    if (std::getenv("DISPLAY") == nullptr) return;
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                        nullptr, nullptr);
    if (window == nullptr) {
      std::fputs("no window can be made on this display\n", stderr);
      std::exit(kNoDisplay);
    }
    DestroyWindow(window);
  }
};

[[maybe_unused]] ::testing::Environment* const display =
    ::testing::AddGlobalTestEnvironment(new Display);

}  // namespace
}  // namespace tavr::win32::testing
