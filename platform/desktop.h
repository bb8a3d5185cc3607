// The desktop: the screen, hot keys, the notification area, and the dialog that
// asks for a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavr {

struct ScreenSize {
  int width = 0;  ///< pixels
  int height = 0;
};

class Desktop {
 public:
  virtual ~Desktop() = default;

  virtual ScreenSize screen() = 0;

  /// RegisterHotKey for the main window. False: the combination is taken.
  virtual bool registerHotKey(int id, std::uint32_t modifiers, std::uint32_t virtual_key) = 0;
  /// UnregisterHotKey; one that is not registered is left alone.
  virtual void unregisterHotKey(int id) = 0;

  /// The number of the icon that is added next. A desktop that shows none needs none.
  virtual void identifyTrayIcon(std::uint32_t /*id*/) {}
  /// Shell_NotifyIcon for the program's one icon: added with its tool tip.
  virtual void addTrayIcon(std::string_view tool_tip) = 0;
  /// The same for the icon that stands there: its tool tip is another, or, where that
  /// is the one it has, its picture.
  virtual void changeTrayIcon(std::string_view tool_tip) = 0;
  virtual void removeTrayIcon() = 0;

  /// The common file-open dialog. Nothing: it was cancelled.
  virtual std::optional<std::string> chooseFile(std::string_view filter,
                                                std::string_view file_name) = 0;
};

}  // namespace tavr
