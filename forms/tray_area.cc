#include "forms/tray_area.h"

#include <functional>

#include "basic/utf.h"

namespace tavr {

namespace {

// The fixed text of the record, less its closing NUL.
constexpr std::size_t kTipLength = 63;

}  // namespace

TrayArea::~TrayArea() {
  if (visible()) desktop_.removeTrayIcon();
}

void TrayArea::setVisible(bool on) {
  if (on == visible()) return;
  Control::visible = on;
  if (on) {
    add();
  } else {
    desktop_.removeTrayIcon();
  }
}

void TrayArea::add() {
  // One icon a process: any number in the range tells it from no other.
  record_.id = 1 + static_cast<std::uint32_t>(std::hash<const void*>{}(this) % 65535);
  record_.flags = kFlagMessage;
  if (!icon_.empty()) record_.flags += kFlagIcon;
  if (!tool_tip.empty()) record_.flags += kFlagTip;
  record_.tip = leftUtf16(tool_tip, kTipLength);
  desktop_.addTrayIcon(record_.tip);
}

void TrayArea::setIcon(std::string_view picture) {
  icon_ = picture;
  if (icon_.empty()) return setVisible(false);
  if (visible()) record_.flags |= kFlagIcon;
}

void TrayArea::setToolTip(std::string_view text) {
  tool_tip = text;
  if (!visible()) return;
  desktop_.removeTrayIcon();
  add();
}

void TrayArea::message(std::uint32_t tray_message) {
  switch (tray_message) {
    case 512:
      if (onMouseMoveOverIcon) onMouseMoveOverIcon();
      break;
    case 513:
    case 516:
      if (onMouseDown) onMouseDown(tray_message == 513 ? 1 : 2);
      break;
    case 514:
    case 517:
      if (onMouseUp) onMouseUp(tray_message == 514 ? 1 : 2);
      break;
    case 515:
    case 518:
      if (onDblClick) onDblClick();
      break;
    default:
      break;
  }
}

void TrayArea::firstShow(int picture_width, int picture_height) {
  if (sized_) return;
  sized_ = true;
  box.width = picture_width;
  box.height = picture_height;
}

}  // namespace tavr
