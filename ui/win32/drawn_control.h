// The window of a control that the program draws itself: the hover, press and
// focus of it, and painting without flicker.
#pragma once

#include "ui/win32/accessible_link.h"
#include "ui/win32/accessible_object.h"
#include "ui/win32/bound_control.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

class DrawnControl : public BoundControl, private AccessibleSource {
 public:
  static constexpr wchar_t kClass[] = L"TavrControl";

  void cuesChanged() override { invalidate(); }
  void paint(HDC dc);
  void invalidate() { InvalidateRect(window_, nullptr, FALSE); }

 protected:
  DrawnControl(FormWindow& form, Control& control, DWORD extended_style = 0);

  virtual void draw(HDC dc, const RECT& area, const DrawnState& state) = 0;
  /// What is shown, as far as the drawing depends on it: a change redraws.
  virtual std::string drawnOf() const { return control_.caption; }
  /// Whether a person works on it: else the mouse passes through to the form.
  virtual bool takesMouse() const { return true; }
  virtual bool showsHand() const { return false; }

  // A person's hand on it.
  virtual void onMove(bool /*any_button_down*/) {}
  virtual void onLeave() {}
  virtual void onDown(MouseButton /*button*/) {}
  /// `inside`: the left button went down on it and the pointer is over it. A left
  /// button then presses it.
  virtual void onUp(MouseButton button, bool inside);
  /// A button or a key that is down on it will not come up there.
  virtual void onCancel() {}
  virtual bool onKey(WPARAM /*key*/, bool /*down*/) { return false; }
  /// The questions that a native control of its kind answers; 0 for any other.
  virtual LRESULT asked(UINT /*message*/) const { return 0; }

  void postPress();
  /// A move of the pointer, served once at a time: its handler may read a file.
  void postMove(std::function<void()> action);

  void syncOwn() override;
  void fontChanged() override { invalidate(); }
  void syncAccessible() override { accessible_.tell(window_); }

  bool hovered_ = false;
  /// It looks pressed: the left button went down on it and the pointer is over it,
  /// or the space bar is down.
  bool held_ = false;

 private:
  friend LRESULT CALLBACK drawnControlProcedure(HWND, UINT, WPARAM, LPARAM);
  static void registerClass();
  LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);
  bool handleMouse(UINT message, WPARAM wparam, LPARAM lparam);
  void mouseMoved(WPARAM keys, LPARAM point);
  bool contains(LPARAM point) const;
  void mouseDown(MouseButton button, LPARAM point);
  void mouseUp(MouseButton button, WPARAM keys, LPARAM point);
  void letGo();
  DrawnState state() const;
  AccessibleFacts accessibleFacts() const override;
  std::string accessibleShortcut() const override;
  void accessiblePress() override;

  AccessibleLink accessible_{*this};
  bool left_down_ = false;  ///< the left button went down on it
  bool captures_ = false;   ///< the mouse, for as long as a button is down
  bool move_waits_ = false;
  std::string drawn_;
  std::string caption_;  ///< the window's text
};

}  // namespace tavr::win32
