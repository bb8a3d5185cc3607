#include "forms/tray_area.h"

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
  record_.id = std::uniform_int_distribution<std::uint32_t>(1, 65535)(random_);
  record_.flags = kFlagMessage;
  if (!icon_.empty()) record_.flags += kFlagIcon;
  if (!tool_tip.empty()) record_.flags += kFlagTip;
  record_.tip = leftUtf16(tool_tip, kTipLength);
  desktop_.identifyTrayIcon(record_.id);
  desktop_.addTrayIcon(record_.tip);
}

// Only what the flag names is taken from the record.
void TrayArea::change(std::uint32_t flag) {
  if (!visible()) return;
  record_.flags = flag;
  record_.tip = leftUtf16(tool_tip, kTipLength);
  desktop_.changeTrayIcon(record_.tip);
}

void TrayArea::setIcon(std::string_view picture) {
  icon_ = picture;
  if (icon_.empty()) return setVisible(false);
  change(kFlagIcon);
}

void TrayArea::setToolTip(std::string_view text) {
  tool_tip = text;
  change(kFlagTip);
}

void TrayArea::writeProperties(PropertyBag& bag) const {
  bag["Icon"] = icon_;
  bag["ToolTip"] = tool_tip;
  bag["Visible"] = storedText(visible());
}

void TrayArea::readProperties(const PropertyBag& bag) {
  const auto read = [&bag](std::string_view key) {
    const auto stored = bag.find(key);
    return stored == bag.end() ? std::string() : stored->second;
  };
  setIcon(read("Icon"));
  setToolTip(read("ToolTip"));
  bool shown = false;
  fromStored(read("Visible"), shown);
  setVisible(shown);
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
