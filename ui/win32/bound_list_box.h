// A list box in which a person selects several rows.
#pragma once

#include <vector>

#include "forms/controls.h"
#include "ui/win32/bound_control.h"

namespace tavr::win32 {

class BoundListBox : public BoundControl {
 public:
  BoundListBox(FormWindow& form, ListBox& list);

  void onCommand(int code) override;

 protected:
  void syncOwn() override;

 private:
  void showRows();
  void showSelection();
  void takeSelection();

  ListBox& list_;
  std::vector<ListBox::Row> shown_;
  std::size_t clearings_ = 0;
};

}  // namespace tavr::win32
