// The state of the self-drawn progress bar: its properties and the rules that
// are checked when one is set. A breach shows a box and leaves the property.
#pragma once

#include <functional>
#include <string>

#include "forms/control.h"
#include "forms/property_bag.h"
#include "platform/dialogs.h"

namespace tavr {

class ProgressBar : public Control {
 public:
  explicit ProgressBar(Dialogs& dialogs) : dialogs_(dialogs) { Control::visible = false; }

  int value() const { return value_; }
  int style() const { return style_; }
  int progressLook() const { return progress_look_; }
  int min() const { return min_; }
  int max() const { return max_; }
  bool visible() const { return Control::visible; }

  /// Not checked against Max: a value above it is kept as it is.
  void setValue(int value);
  void setStyle(int style);
  void setProgressLook(int look);
  void setMin(int min);
  void setMax(int max);
  void setVisible(bool on) { Control::visible = on; }
  std::string shown() const override { return std::to_string(value_); }

  void writeProperties(PropertyBag& bag) const;
  /// Taken as they were stored, without a check; a key that is missing takes the
  /// value of a fresh bar.
  void readProperties(const PropertyBag& bag);

  /// Called when a value has been set, also to the one it had.
  std::function<void(int)> onValue;
  /// Asks a view to draw it: after every property that was set.
  std::function<void()> onRedraw;

 private:
  void complain(const char* text);
  void redraw() const {
    if (onRedraw) onRedraw();
  }

  Dialogs& dialogs_;
  int value_ = 0;
  int style_ = 0;
  int progress_look_ = 0;
  int min_ = 0;
  int max_ = 100;
};

}  // namespace tavr
