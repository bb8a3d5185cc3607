#include "forms/progress_bar.h"

namespace tavr {

void ProgressBar::complain(const char* text) { dialogs_.messageBox(text, 0, "Error"); }

void ProgressBar::setValue(int value) {
  if (value < min_) return complain("Value can NOT be smaller than minimum !");
  value_ = value;
  if (onValue) onValue(value);
}

void ProgressBar::setMin(int min) {
  if (min > max_) return complain("Minimum can NOT be biger than maximum !");
  if (min < 0) return complain("Minimum can NOT be smaller then 0 !");
  min_ = min;
}

void ProgressBar::setMax(int max) {
  if (max < min_) return complain("Maximum can NOT be smaller than minimum !");
  max_ = max;
}

}  // namespace tavr
