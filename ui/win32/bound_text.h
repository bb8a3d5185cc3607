// A text box: the native edit control. A tall one has several lines.
#pragma once

#include "forms/controls.h"
#include "ui/win32/bound_control.h"

namespace tavr::win32 {

class BoundText : public BoundControl {
 public:
  BoundText(FormWindow& form, TextBox& box);
  ~BoundText() override;
  BoundText(const BoundText&) = delete;
  BoundText& operator=(const BoundText&) = delete;

  void onCommand(int code) override;

 protected:
  void syncOwn() override;
  void place(const RECT& box) override;

 private:
  static LRESULT CALLBACK fieldProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
  void showText();
  void showCaret();
  void showScrollBar();
  int lineHeight() const;
  void paintEdge() const;

  TextBox& box_;
  std::string shown_;
  bool typed_ = false;    ///< the form may have put the caret elsewhere since
  bool setting_ = false;  ///< the change comes from here, not from a person
  int above_ = 1;         ///< px from the edge to the text
};

/// The text of a window.
std::string windowText(HWND window);

}  // namespace tavr::win32
