// A real window for the tests, and a pump of its messages. It needs a display.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

namespace tavr::win32 {

class TestWindow {
 public:
  /// Hidden, at 200,150 and this large. No caption: a popup.
  TestWindow(SIZE size, bool caption);
  ~TestWindow();
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;

  HWND handle() const { return handle_; }
  RECT rect() const;
  /// Shown, and what that brings along has been handled.
  void show();
  void moveTo(int left, int top, int width, int height);
  /// The end, before the object's own.
  void destroy();

  /// Called for each message that nobody took before; an answer ends it.
  std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)> onMessage;

 private:
  static LRESULT CALLBACK procedure(HWND, UINT, WPARAM, LPARAM);

  HWND handle_;
};

/// Handles what is waiting, and what comes for a moment.
void pump(DWORD milliseconds = 60);

}  // namespace tavr::win32
