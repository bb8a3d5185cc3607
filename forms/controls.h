// The controls of the forms as plain values: what a person would see of them,
// and the handlers that a change or a click fires. No windows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/text.h"
#include "forms/control.h"
#include "platform/events.h"

namespace tavr {

/// A text box. Setting a text that differs fires the change handler; setting
/// the same text does not. A text ends at its first NUL, as a window's does.
class TextBox : public Control {
 public:
  const std::string& text() const { return text_; }
  void setText(std::string_view text) {
    const std::string_view shown_text = untilNul(text);
    if (shown_text == text_) return;
    text_ = shown_text;
    if (onChange) onChange();
  }

  void type(std::string_view text) override { setText(text); }
  std::string shown() const override { return text_; }

  std::function<void()> onChange;

 private:
  std::string text_;
};

class Label : public Control {
 public:
  std::function<void()> onClick;
  bool highlighted = false;  ///< of a row of choices: the mouse has been over it

 protected:
  void pressed() override {
    if (onClick) onClick();
  }
};

/// A button, a toolbar button or a menu entry.
class Button : public Control {
 public:
  std::function<void()> onClick;

  /// Calls the click handler as a procedure, also of a disabled button.
  void click() const {
    if (onClick) onClick();
  }

 protected:
  void pressed() override { click(); }
};

/// A picture or an animation.
class Picture : public Control {
 public:
  std::function<void()> onClick;
  std::string file;  ///< what it was loaded from

 protected:
  void pressed() override {
    if (onClick) onClick();
  }
};

/// A panel.
class Frame : public Control {};

/// A check box: 0 off, 1 on, 2 grey. Its click handler fires when the value
/// changes, by whatever hand, and never when it is set to what it is.
class CheckBox : public Control {
 public:
  int value() const { return value_; }
  void setValue(int value) {
    if (value == value_) return;
    value_ = value;
    if (onClick) onClick();
  }
  std::string shown() const override { return std::to_string(value_); }

  std::function<void()> onClick;

 protected:
  void pressed() override { setValue(value_ == 0 ? 1 : 0); }

 private:
  int value_ = 0;
};

/// One of a group of options, of which at most one is on.
class OptionButton : public Control {
 public:
  bool value() const { return value_; }
  void setValue(bool value) {
    if (value == value_) return;
    value_ = value;
    if (value_ && onSelect) onSelect();
  }
  std::string shown() const override { return value_ ? "1" : "0"; }

  /// Turned on: the form turns the others of the group off here.
  std::function<void()> onSelect;

 protected:
  void pressed() override { setValue(true); }

 private:
  bool value_ = false;
};

/// A scroll bar; a value outside its range is moved to the nearer end.
class ScrollBar : public Control {
 public:
  int min = 0;
  int max = 100;
  int value() const { return value_; }
  void setValue(int value) {
    const int kept = value < min ? min : value > max ? max : value;
    if (kept == value_) return;
    value_ = kept;
    if (onChange) onChange();
  }
  /// The value of the design, which fires nothing.
  void start(int value) { value_ = value; }
  std::string shown() const override { return std::to_string(value_); }

  std::function<void()> onChange;

 private:
  int value_ = 0;
};

/// A list of choices beside a text that may also be typed freely.
class ComboBox : public Control {
 public:
  std::vector<std::string> items;
  const std::string& text() const { return text_; }
  void setText(std::string_view text) { text_ = untilNul(text); }
  void type(std::string_view text) override { setText(text); }
  std::string shown() const override { return text_; }

 private:
  std::string text_;
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

/// A list box that a person selects rows in.
class ListBox : public Control {
 public:
  struct Row {
    std::string text;
    bool selected = false;
  };
  std::vector<Row> rows;

  void clear() {
    rows.clear();
    ++clearings_;
  }
  /// How often it was cleared: what is filled in behind that begins at its top.
  std::size_t clearings() const { return clearings_; }
  void add(std::string_view text) { rows.push_back({std::string(untilNul(text)), false}); }
  int count() const { return static_cast<int>(rows.size()); }
  std::string list(int index) const {
    return index >= 0 && index < count() ? rows[static_cast<std::size_t>(index)].text
                                         : std::string();
  }
  std::string shown() const override { return std::to_string(count()); }

  std::function<void()> onDoubleClick;

 private:
  std::size_t clearings_ = 0;
};

/// A timer of a form. Enabling starts it anew; its handler runs inside the
/// machine's event pump.
class FormTimer : public Control {
 public:
  FormTimer(Events& events, std::uint32_t interval_ms)
      : events_(events), interval_ms_(interval_ms) {
    Control::enabled = false;
  }
  ~FormTimer() override { stop(); }
  FormTimer(const FormTimer&) = delete;
  FormTimer& operator=(const FormTimer&) = delete;

  bool enabled() const { return Control::enabled; }
  std::uint32_t interval() const { return interval_ms_; }
  void setEnabled(bool on) {
    if (on == enabled()) return;
    if (!on) return stop();
    Control::enabled = true;
    id_ = events_.startTimer(interval_ms_, [this] { tick(); });
  }
  /// One tick by hand.
  void tick() const {
    if (onTick) onTick();
  }

  std::function<void()> onTick;

 private:
  void stop() {
    if (enabled()) events_.stopTimer(id_);
    Control::enabled = false;
  }

  Events& events_;
  std::uint32_t interval_ms_;
  TimerId id_ = 0;
};

}  // namespace tavr
