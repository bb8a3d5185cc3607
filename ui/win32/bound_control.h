// A native window that shows one control of a form. It compares what it shows
// with the control and updates the difference; what a person does to it, it
// queues. A control has no window before it is first in sight. The window is
// found from outside by a property with the control's name, "Form1.cmd_test", as
// a form's is by its own.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "forms/control.h"
#include "ui/win32/accessible_annotation.h"
#include "ui/win32/form_looks.h"

namespace tavr::win32 {

class FormWindow;

class BoundControl {
 public:
  BoundControl(FormWindow& form, Control& control);
  /// Destroys the window and drops what it has queued.
  virtual ~BoundControl();
  BoundControl(const BoundControl&) = delete;
  BoundControl& operator=(const BoundControl&) = delete;

  HWND window() const { return window_; }
  Control& control() const { return control_; }
  /// What a tip shows; "" for none.
  std::string tip() const;

  /// Brings everything shown up to the control's state.
  void sync();
  /// The person pressed its access key: it takes the focus, and a button acts.
  virtual void onAccessKey();
  /// The caption is to be shown anew: the access keys came into sight or went.
  virtual void cuesChanged() {}

  // What its window tells the window that holds it.
  virtual void onCommand(int /*code*/) {}
  virtual void onScroll(int /*code*/, int /*position*/) {}
  virtual LRESULT onNotify(NMHDR& /*header*/) { return 0; }
  virtual HBRUSH onColor(HDC dc);

  /// The control that a window shows, null for a window that shows none.
  static BoundControl* of(HWND window);

 protected:
  /// Makes the window; the derived constructor's last step.
  void create(const wchar_t* window_class, DWORD style, DWORD extended_style = 0);
  /// The kind's own part of `sync`: text, value, rows.
  virtual void syncOwn() = 0;
  /// Puts the window where the box is.
  virtual void place(const RECT& box);
  virtual void fontChanged();
  /// Tells those who read the screen to a person what has changed.
  virtual void syncAccessible();

  FormWindow& form_;
  Control& control_;
  const ControlLook& look_;
  HWND window_ = nullptr;

  void post(std::function<void()> action);

 private:
  static LRESULT CALLBACK edgeProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
  void syncPlace();
  std::wstring nameProperty() const;

  RECT placed_{};
  ControlFont font_;
  HFONT native_font_ = nullptr;
  AccessibleAnnotation annotation_;
};

/// Whether WM_KEYDOWN comes of a key that was down before.
inline bool isRepeated(LPARAM key_data) { return (key_data & (KF_REPEAT << 16)) != 0; }

/// The window of a control of any kind; null for a kind without one.
std::unique_ptr<BoundControl> makeBound(FormWindow& form, Control& control);

}  // namespace tavr::win32
