// The task bar of a test: it takes the icons that programs put into the
// notification area.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tavr::testing {

class TaskBar {
 public:
  struct Icon {
    HWND window = nullptr;
    UINT id = 0;
    UINT message = 0;
    std::string tip;
  };

  /// Takes the place of any other for as long as it lives.
  TaskBar();
  ~TaskBar();
  TaskBar(const TaskBar&) = delete;
  TaskBar& operator=(const TaskBar&) = delete;

  /// The icon that stands there now; serves what programs ask meanwhile.
  std::optional<Icon> icon();
  bool showsIcon(std::uint32_t milliseconds = 10000);
  bool losesIcon(std::uint32_t milliseconds = 10000);
  /// Forgets all icons and tells everybody that the task bar is a new one.
  void startAnew();
  /// The mouse on the icon.
  void mouse(UINT message);
  void pump();

 private:
  static LRESULT CALLBACK procedure(HWND, UINT, WPARAM, LPARAM);
  void take(const COPYDATASTRUCT& data);

  HWND window_ = nullptr;
  std::optional<Icon> icon_;
};

}  // namespace tavr::testing
