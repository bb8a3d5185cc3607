// The desktop of a machine folder: it has a screen and keeps what is asked of
// it; nobody sits before it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/desktop.h"
#include "platform/folder/faults.h"

namespace tavr::folder {

class FolderDesktop : public Desktop {
 public:
  explicit FolderDesktop(Faults& faults) : hot_key_fault_(faults.point("RegisterHotKey")) {}

  ScreenSize screen() override { return {1920, 1080}; }

  bool registerHotKey(int id, std::uint32_t modifiers, std::uint32_t virtual_key) override {
    if (hot_key_fault_.hit() != kSuccess) return false;
    return hot_keys_.try_emplace(id, HotKey{modifiers, virtual_key}).second;
  }
  void unregisterHotKey(int id) override { hot_keys_.erase(id); }

  void addTrayIcon(std::string_view tool_tip) override { tray_tool_tip_ = tool_tip; }
  void changeTrayIcon(std::string_view tool_tip) override {
    if (tray_tool_tip_) tray_tool_tip_ = tool_tip;
  }
  void removeTrayIcon() override { tray_tool_tip_.reset(); }

  std::optional<std::string> chooseFile(std::string_view /*filter*/,
                                        std::string_view /*file_name*/) override {
    return std::exchange(next_file_, std::nullopt);
  }

  // What a script or a test says and asks in the place of a person.
  struct HotKey {
    std::uint32_t modifiers = 0;
    std::uint32_t virtual_key = 0;
    bool operator==(const HotKey&) const = default;
  };
  const std::map<int, HotKey>& hotKeys() const { return hot_keys_; }
  /// Nothing while no icon stands in the notification area.
  const std::optional<std::string>& trayToolTip() const { return tray_tool_tip_; }
  /// What the next file dialog answers; without it the dialog is cancelled.
  void chooseNext(std::string_view file) { next_file_ = file; }

 private:
  Faults::Point& hot_key_fault_;
  std::map<int, HotKey> hot_keys_;
  std::optional<std::string> tray_tool_tip_;
  std::optional<std::string> next_file_;
};

}  // namespace tavr::folder
