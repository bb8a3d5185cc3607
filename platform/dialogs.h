// Message boxes.
#pragma once

#include <cstdint>
#include <string_view>

namespace tavr {

inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Shows a message box and returns the button that was pressed (6 Yes, 7 No,
  /// 1 OK). An empty title shows the application's.
  virtual int messageBox(std::string_view text, std::uint32_t flags, std::string_view title) = 0;
  virtual void beep() = 0;
};

}  // namespace tavr
