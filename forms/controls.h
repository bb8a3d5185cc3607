// The controls of the forms as plain values: what a person would see of them,
// and the handlers that a change or a click fires. No windows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/text.h"
#include "platform/events.h"

namespace tavr {

/// A text box. Setting a text that differs fires the change handler; setting
/// the same text does not. A text ends at its first NUL, as a window's does.
class TextBox {
 public:
  const std::string& text() const { return text_; }
  void setText(std::string_view text) {
    const std::string_view shown = untilNul(text);
    if (shown == text_) return;
    text_ = shown;
    if (onChange) onChange();
  }

  std::function<void()> onChange;

 private:
  std::string text_;
};

struct Label {
  std::string caption;
  bool visible = true;
};

/// A button, a toolbar button or a menu entry.
struct Button {
  bool enabled = true;
  std::function<void()> onClick;

  void click() const {
    if (onClick) onClick();
  }
};

/// A picture or an animation.
struct Picture {
  bool visible = true;
};

/// An ordered list of text. Reading outside gives "" without an error; a row
/// ends at the first NUL of the text added.
class TextList {
 public:
  void clear() { rows_.clear(); }
  void add(std::string_view text) { rows_.emplace_back(untilNul(text)); }
  int count() const { return static_cast<int>(rows_.size()); }
  const std::string& at(int index) const {
    static const std::string kNone;
    return index >= 0 && index < count() ? rows_[static_cast<std::size_t>(index)] : kNone;
  }

 private:
  std::vector<std::string> rows_;
};

/// A timer of a form. Enabling starts it anew; its handler runs inside the
/// machine's event pump.
class FormTimer {
 public:
  FormTimer(Events& events, std::uint32_t interval_ms)
      : events_(events), interval_ms_(interval_ms) {}
  ~FormTimer() { setEnabled(false); }
  FormTimer(const FormTimer&) = delete;
  FormTimer& operator=(const FormTimer&) = delete;

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    if (enabled) {
      id_ = events_.startTimer(interval_ms_, [this] {
        if (onTick) onTick();
      });
    } else {
      events_.stopTimer(id_);
    }
  }

  std::function<void()> onTick;

 private:
  Events& events_;
  std::uint32_t interval_ms_;
  TimerId id_ = 0;
  bool enabled_ = false;
};

}  // namespace tavr
