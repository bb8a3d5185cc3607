// The state of the self-drawn progress bar: its properties and the rules that
// are checked when one is set. A breach shows a box and leaves the property.
#pragma once

#include <functional>
#include <string>

#include "forms/control.h"
#include "platform/dialogs.h"

namespace tavr {

class ProgressBar : public Control {
 public:
  explicit ProgressBar(Dialogs& dialogs) : dialogs_(dialogs) { Control::visible = false; }

  int value() const { return value_; }
  int min() const { return min_; }
  int max() const { return max_; }
  bool visible() const { return Control::visible; }

  /// Not checked against Max: a value above it is kept as it is.
  void setValue(int value);
  void setMin(int min);
  void setMax(int max);
  void setVisible(bool on) { Control::visible = on; }
  std::string shown() const override { return std::to_string(value_); }

  /// Called when a value has been set, also to the one it had.
  std::function<void(int)> onValue;

 private:
  void complain(const char* text);

  Dialogs& dialogs_;
  int value_ = 0;
  int min_ = 0;
  int max_ = 100;
};

}  // namespace tavr
