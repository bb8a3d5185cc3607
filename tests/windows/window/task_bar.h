// The task bar of a test: it takes the icons that programs put into the
// notification area. It stands on a thread of its own, as programs wait for it.
#pragma once

#include <windows.h>

#include <future>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace tavr::testing {

class TaskBar {
 public:
  struct Icon {
    HWND window = nullptr;
    UINT id = 0;
    UINT message = 0;
    std::string tip;
    std::string picture;  ///< its bytes, whatever their order
  };

  /// Takes the place of any other for as long as it lives.
  TaskBar();
  ~TaskBar();
  TaskBar(const TaskBar&) = delete;
  TaskBar& operator=(const TaskBar&) = delete;

  /// The icon that stands there now.
  std::optional<Icon> icon() const;
  bool showsIcon(std::uint32_t milliseconds = 10000) const;
  bool losesIcon(std::uint32_t milliseconds = 10000) const;
  /// Drops the icon of a program that could not take it away.
  void forget();
  /// Forgets all icons and tells everybody that the task bar is a new one.
  void startAnew();
  /// The mouse on the icon.
  void mouse(UINT message) const;

 private:
  static LRESULT CALLBACK procedure(HWND, UINT, WPARAM, LPARAM);
  void take(const COPYDATASTRUCT& data);
  void serve();

  HWND window_ = nullptr;
  mutable std::mutex guard_;
  std::optional<Icon> icon_;
  std::promise<void> made_;
  std::thread thread_;
};

}  // namespace tavr::testing
