// The icon in the notification area and the mouse events that come from it. It
// shows nothing on the form.
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <string_view>

#include "forms/control.h"
#include "forms/property_bag.h"
#include "platform/desktop.h"

namespace tavr {

class TrayArea : public Control {
 public:
  static constexpr std::uint32_t kNotifySize = 88;
  static constexpr std::uint32_t kCallbackMessage = 512;
  static constexpr std::uint32_t kFlagMessage = 1;
  static constexpr std::uint32_t kFlagIcon = 2;
  static constexpr std::uint32_t kFlagTip = 4;

  /// What the icon was last added or changed with.
  struct NotifyRecord {
    std::uint32_t size = kNotifySize;
    std::uint32_t id = 0;  ///< 1 to 65535
    std::uint32_t flags = 0;
    std::uint32_t callback_message = kCallbackMessage;
    std::string tip;  ///< fits 64 characters with its closing NUL
  };

  explicit TrayArea(Desktop& desktop) : desktop_(desktop) { Control::visible = false; }
  ~TrayArea() override;
  TrayArea(const TrayArea&) = delete;
  TrayArea& operator=(const TrayArea&) = delete;

  bool visible() const { return Control::visible; }
  /// Adds or removes the icon; the value it has does nothing.
  void setVisible(bool on);
  const std::string& icon() const { return icon_; }
  /// A picture's file, which the shown icon takes; "" hides the icon.
  void setIcon(std::string_view picture);
  const std::string& toolTip() const { return tool_tip; }
  void setToolTip(std::string_view text);

  void writeProperties(PropertyBag& bag) const;
  /// A key that is missing: no picture, no text, and out of sight.
  void readProperties(const PropertyBag& bag);

  const NotifyRecord& record() const { return record_; }

  /// A tray message, as the callback carries it: 512 to 518; others do nothing.
  void message(std::uint32_t tray_message);

  std::function<void()> onMouseMoveOverIcon;
  std::function<void(int button)> onMouseDown;
  std::function<void(int button)> onMouseUp;
  std::function<void()> onDblClick;

  /// Its small window takes the size of its picture at the first show, once.
  void firstShow(int picture_width, int picture_height);

 private:
  void add();
  void change(std::uint32_t flag);

  Desktop& desktop_;
  std::string icon_;
  NotifyRecord record_;
  std::minstd_rand random_;  // never seeded: every start draws the same numbers
  bool sized_ = false;
};

}  // namespace tavr
