// The window of a parent program, as another process sees it: found by its
// title, told by a message that the totals stand in the named mapping.
#pragma once

#include <functional>
#include <string>
#include <thread>

namespace tavr::windows_test {

/// Lives on a thread of its own. `on_totals` is called there with each text that
/// a message announces.
class TotalsWindow {
 public:
  /// Raises std::runtime_error when no window can be made, as without a display.
  TotalsWindow(const std::wstring& title, std::function<void(const std::string&)> on_totals);
  ~TotalsWindow();
  TotalsWindow(const TotalsWindow&) = delete;
  TotalsWindow& operator=(const TotalsWindow&) = delete;

 private:
  std::function<void(const std::string&)> on_totals_;
  void* window_ = nullptr;  // HWND
  std::thread thread_;
};

}  // namespace tavr::windows_test
