// A parent program's window, as far as the link to it is concerned: a title, and
// the texts at the addresses that are sent to it.
#pragma once

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace tavr::contract {

/// On a thread of its own, as another program's would be, but in this process:
/// an address that is sent to it is good here.
class ParentWindow {
 public:
  explicit ParentWindow(std::string_view title);
  ~ParentWindow();
  ParentWindow(const ParentWindow&) = delete;
  ParentWindow& operator=(const ParentWindow&) = delete;

  /// Read when no message is under way.
  const std::vector<std::string>& texts() const { return texts_; }

  /// False: this session has no display and windows cannot be made.
  static bool possible();

 private:
  std::vector<std::string> texts_;
  void* window_ = nullptr;  // HWND
  std::thread thread_;
};

}  // namespace tavr::contract
