// What the self-drawn controls need beside a picture: timers that never tick,
// and boxes that are only written down.
#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/events.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

class StillEvents : public Events {
 public:
  void doEvents() override {}
  void wait(std::uint32_t) override {}
  TimerId startTimer(std::uint32_t, std::function<void()>) override { return 1; }
  void stopTimer(TimerId) override {}
};

struct ShownBox {
  std::string text;
  std::uint32_t flags = 0;
  std::string title;
};

class NotingDialogs : public Dialogs {
 public:
  int messageBox(std::string_view text, std::uint32_t flags, std::string_view title) override {
    boxes.push_back({std::string(text), flags, std::string(title)});
    return 1;
  }
  void beep() override {}

  std::vector<ShownBox> boxes;
};

/// Of a scheme in black, as far as a palette goes.
inline Palette highContrast() {
  Palette palette = Palette::ofSystem();
  palette.window = palette.panel = palette.raised = palette.hover = RGB(0, 0, 0);
  palette.text = palette.faint_text = palette.border = RGB(255, 255, 255);
  palette.accent = palette.selection = RGB(26, 235, 255);
  palette.accent_text = RGB(0, 0, 0);
  return palette;
}

}  // namespace tavr::win32
