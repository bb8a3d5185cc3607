// The native window of one form: it makes the windows of its controls, lays
// them out for the monitor's resolution and the language's direction, paints
// the form's own ground and title strip, and finds its way by the keyboard. It
// decides nothing: what a person does goes back to the form.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/form.h"
#include "platform/win32/com.h"
#include "ui/win32/access_keys.h"
#include "ui/win32/accessible_annotation.h"
#include "ui/win32/action_queue.h"
#include "ui/win32/bound_control.h"
#include "ui/win32/drawing.h"
#include "ui/win32/fonts.h"
#include "ui/win32/tool_tips.h"
#include "ui/win32/trans_form.h"

namespace tavr::win32 {

/// What a form's window asks of the program around it.
struct FormEvents {
  std::function<void()> close;     ///< the system menu's close, ALT+F4, Esc of a dialog
  std::function<void()> minimise;  ///< the task bar's
  std::function<void()> activate;
  /// Messages that only the main window has; answers whether it served one.
  std::function<bool(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& answer)> other;
  bool has_task_button = false;
};

class FormWindow {
 public:
  /// Hidden; `owner` stays below it.
  FormWindow(Form& form, HWND owner, ActionQueue& actions, Dialogs& dialogs, FormEvents events);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  HWND window() const { return window_; }
  Form& form() const { return form_; }
  ActionQueue& actions() { return actions_; }
  static FormWindow* of(HWND window);

  /// Brings all that is shown up to the form's state. `strip` is the colour of
  /// the title strip; `may_show` holds a form back that has not been loaded.
  void sync(COLORREF strip, bool right_to_left, bool may_show);
  /// Serves a key ahead of the focused window; true when it was for the form.
  bool serveKey(const MSG& message);
  void setShadow(bool on);
  /// The one in force, "de": signs are read out in it.
  void setLanguage(std::string_view language) { language_ = language; }
  const std::string& language() const { return language_; }

  // What the windows of the controls ask.
  double scale() const { return dpi_ / 96.0; }
  int px(int length) const { return MulDiv(length, dpi_, 96); }
  RECT pixels(const Control& control, const ControlLook& look) const;
  const Palette& palette() const { return palette_; }
  HBRUSH panelBrush() const { return panel_brush_; }
  Fonts& fonts() { return *fonts_; }
  bool rightToLeft() const { return right_to_left_; }
  COLORREF backgroundOf(const Control& control) const;
  HWND windowOfHolder(const Control& control);
  bool route(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& answer);

  // The keyboard's cues.
  bool showsFocus() const { return shows_focus_; }
  void showFocus();
  void hideFocus();
  void moveFocus(bool back, bool in_group = false);
  /// The caption as it is drawn at the moment. Blanks around it once held it off
  /// its box, which the drawings do by themselves.
  std::string captionOf(const Control& control) const;
  /// Where its access key stands in `captionOf`; -1 while none is shown.
  int accessKeyPosition(const Control& control) const;

  // What a control's window loses, the focus may lose with it.
  void enable(BoundControl& bound, bool on);
  void show(BoundControl& bound, bool on);

  // Ground that several controls draw.
  void fill(HDC dc, const RECT& area, COLORREF color) const;
  void drawSeparator(HDC dc, const RECT& area) const;
  void drawToolbarEdge(HDC dc, const RECT& area) const;
  void drawPanel(HDC dc, const RECT& area) const;

 private:
  friend LRESULT CALLBACK formProcedure(HWND, UINT, WPARAM, LPARAM);
  static void registerClass();
  LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT onSystemCommand(WPARAM wparam, LPARAM lparam);

  void takeDpi(int dpi);
  void takeLook(COLORREF strip, bool right_to_left);
  /// `suggested` is the place that the system gives it, null for the form's own.
  void layOut(const RECT* suggested = nullptr);
  void shapeCorners(SIZE size);
  void takePosition();
  void syncFrame(bool may_show);
  void setTopmost(bool on);
  void syncShown(bool show);
  void syncControls();
  BoundControl* boundOf(const Control& control) const;
  BoundControl* makeWindowOf(Control& control);
  Control* focused() const;
  void focusFirst();
  void moveFocusFrom(Control& control);
  void giveFocus(Control* to);

  bool serveAccessKey(WPARAM character);
  bool pressDefault(bool repeated);
  bool hasOpenList() const;
  bool closeList();
  void showCues(bool on);

  void paint(HDC dc) const;
  void fillArea(HDC dc, int left, int top, int right, int bottom, COLORREF color) const;
  const Control* titleLabel() const;
  int startOf(const Control& control, const ControlLook& look) const;
  int widthOf(const Control& control) const;

  const ComApartment com_;  // screen readers ask from outside
  Form& form_;
  ActionQueue& actions_;
  FormEvents events_;
  HWND window_ = nullptr;
  int dpi_ = 96;
  bool right_to_left_ = false;
  bool shadow_ = false;
  bool shows_focus_ = false;
  bool placing_ = false;
  COLORREF strip_ = 0;
  Palette palette_{};
  HBRUSH panel_brush_ = nullptr;
  std::unique_ptr<Fonts> fonts_;
  std::unique_ptr<TransForm> shape_;
  HBITMAP shape_picture_ = nullptr;
  std::unique_ptr<ToolTips> tips_;
  std::unordered_map<const Control*, std::unique_ptr<BoundControl>> bound_;
  std::size_t ordered_ = 0;      ///< how many of them stand in the order of reading
  std::vector<AccessKey> cues_;  ///< empty while ALT is not held
  Control* last_focus_ = nullptr;
  int placed_left_ = 0;
  int placed_top_ = 0;
  std::string shown_title_;
  ControlFont title_font_;
  std::string language_;
  AccessibleAnnotation annotation_;
  bool topmost_ = false;
  int shown_again_ = 0;
};

}  // namespace tavr::win32
