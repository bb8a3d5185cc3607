// A combo box: the native one, whose text may also be typed freely.
#pragma once

#include "forms/controls.h"
#include "ui/win32/bound_control.h"

namespace tavr::win32 {

class BoundComboBox : public BoundControl {
 public:
  BoundComboBox(FormWindow& form, ComboBox& box);

  void onCommand(int code) override;

 protected:
  void syncOwn() override;
  void place(const RECT& box) override;
  void fontChanged() override;

 private:
  void postText(bool from_list);

  ComboBox& box_;
  std::vector<std::string> items_;
  std::string shown_;
};

}  // namespace tavr::win32
