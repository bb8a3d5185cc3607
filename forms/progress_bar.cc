#include "forms/progress_bar.h"

namespace tavr {

void ProgressBar::complain(const char* text) { dialogs_.messageBox(text, 0, "Error"); }

void ProgressBar::setValue(int value) {
  if (value < min_) return complain("Value can NOT be smaller than minimum !");
  value_ = value;
  redraw();
  if (onValue) onValue(value);
}

void ProgressBar::setStyle(int style) {
  style_ = style;
  redraw();
}

void ProgressBar::setProgressLook(int look) {
  progress_look_ = look;
  redraw();
}

void ProgressBar::setMin(int min) {
  if (min > max_) return complain("Minimum can NOT be biger than maximum !");
  if (min < 0) return complain("Minimum can NOT be smaller then 0 !");
  min_ = min;
  redraw();
}

void ProgressBar::setMax(int max) {
  if (max < min_) return complain("Maximum can NOT be smaller than minimum !");
  max_ = max;
  redraw();
}

void ProgressBar::writeProperties(PropertyBag& bag) const {
  bag["Value"] = storedText(value_);
  bag["Style"] = storedText(style_);
  bag["ProgressLook"] = storedText(progress_look_);
  bag["Min"] = storedText(min_);
  bag["Max"] = storedText(max_);
}

void ProgressBar::readProperties(const PropertyBag& bag) {
  const auto read = [&bag](std::string_view key, int fresh, int& property) {
    const auto stored = bag.find(key);
    property = fresh;
    if (stored != bag.end()) fromStored(stored->second, property);
  };
  read("Value", 0, value_);
  read("Style", 0, style_);
  read("ProgressLook", 0, progress_look_);
  read("Min", 0, min_);
  read("Max", 100, max_);
  redraw();
}

}  // namespace tavr
