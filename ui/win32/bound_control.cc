#include "ui/win32/bound_control.h"

#include <unordered_map>
#include <utility>

#include "forms/chameleon_button.h"
#include "platform/win32/wide.h"
#include "ui/win32/accessible_name.h"
#include "ui/win32/bound_button.h"
#include "ui/win32/bound_check_box.h"
#include "ui/win32/bound_combo_box.h"
#include "ui/win32/bound_frame.h"
#include "ui/win32/bound_label.h"
#include "ui/win32/bound_list_box.h"
#include "ui/win32/bound_list_view.h"
#include "ui/win32/bound_option.h"
#include "ui/win32/bound_picture.h"
#include "ui/win32/bound_progress_bar.h"
#include "ui/win32/bound_result_list.h"
#include "ui/win32/bound_scroll_bar.h"
#include "ui/win32/bound_text.h"
#include "ui/win32/caption.h"
#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"
#include "ui/win32/subclass.h"

namespace tavr::win32 {

namespace {

constexpr UINT_PTR kEdgeSubclass = 2;

// The windows that show a control, among all that exist. A window property would
// be asked of another process under Wine, at every message of a control.
std::unordered_map<HWND, BoundControl*>& boundWindows() {
  static std::unordered_map<HWND, BoundControl*> all;
  return all;
}

template <class Kind, class Bound>
std::unique_ptr<BoundControl> tryKind(FormWindow& form, Control& control) {
  auto* const kind = dynamic_cast<Kind*>(&control);
  return kind ? std::make_unique<Bound>(form, *kind) : nullptr;
}

// A form's own sign stands on its strip already.
std::unique_ptr<BoundControl> tryPicture(FormWindow& form, Control& control) {
  const ControlLook& look = lookOf(form.form(), control);
  const bool shown = !look.icon.empty() || !look.panel.empty();
  return shown ? tryKind<Picture, BoundPicture>(form, control) : nullptr;
}

using Maker = std::unique_ptr<BoundControl> (*)(FormWindow&, Control&);

constexpr Maker kMakers[] = {
    tryKind<Button, BoundButton>,       tryKind<Label, BoundLabel>,
    tryKind<CheckBox, BoundCheckBox>,   tryKind<OptionButton, BoundOption>,
    tryKind<Frame, BoundFrame>,         tryPicture,
    tryKind<TextBox, BoundText>,        tryKind<ComboBox, BoundComboBox>,
    tryKind<ListView, BoundListView>,   tryKind<ResultList, BoundResultList>,
    tryKind<ListBox, BoundListBox>,     tryKind<ProgressBar, BoundProgressBar>,
    tryKind<ScrollBar, BoundScrollBar>,
};

}  // namespace

std::unique_ptr<BoundControl> makeBound(FormWindow& form, Control& control) {
  for (const Maker maker : kMakers) {
    if (auto bound = maker(form, control)) return bound;
  }
  return nullptr;
}

BoundControl::BoundControl(FormWindow& form, Control& control)
    : form_(form), control_(control), look_(lookOf(form.form(), control)) {}

BoundControl::~BoundControl() {
  form_.actions().discard(this);
  if (window_ == nullptr) return;
  // No message finds this from here on: what was derived of it is gone.
  boundWindows().erase(window_);
  annotation_.clear();
  RemovePropW(window_, nameProperty().c_str());
  removeSubclass(window_, &edgeProcedure, kEdgeSubclass);
  DestroyWindow(window_);
}

std::wstring BoundControl::nameProperty() const {
  const ControlDesign& design = control_.design;
  return wide(std::string(form_.form().name()) + "." + fullName(design.name, design.index));
}

BoundControl* BoundControl::of(HWND window) {
  const auto found = boundWindows().find(window);
  return found == boundWindows().end() ? nullptr : found->second;
}

void BoundControl::create(const wchar_t* window_class, DWORD style, DWORD extended_style) {
  window_ = CreateWindowExW(extended_style, window_class, L"", WS_CHILD | WS_CLIPSIBLINGS | style,
                            0, 0, 0, 0, form_.windowOfHolder(control_), nullptr,
                            GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) return;
  boundWindows().emplace(window_, this);
  SetPropW(window_, nameProperty().c_str(), window_);
  if ((style & WS_BORDER) == 0) return;
  setSubclass(window_, &edgeProcedure, kEdgeSubclass, reinterpret_cast<DWORD_PTR>(this));
}

// The line around a native control, in the colours of the form.
LRESULT CALLBACK BoundControl::edgeProcedure(HWND window, UINT message, WPARAM wparam,
                                             LPARAM lparam, UINT_PTR /*id*/, DWORD_PTR data) {
  const LRESULT answer = nextProcedure(window, message, wparam, lparam);
  if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
    RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
  }
  if (message != WM_NCPAINT) return answer;
  const Palette& palette = reinterpret_cast<const BoundControl*>(data)->form_.palette();
  RECT area;
  GetWindowRect(window, &area);
  OffsetRect(&area, -area.left, -area.top);
  const HDC dc = GetWindowDC(window);
  SetDCBrushColor(dc, GetFocus() == window ? palette.accent : palette.border);
  FrameRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  ReleaseDC(window, dc);
  return answer;
}

void BoundControl::post(std::function<void()> action) {
  form_.actions().post(this, std::move(action));
}

void BoundControl::syncPlace() {
  const RECT box = form_.pixels(control_, look_);
  if (EqualRect(&box, &placed_)) return;
  placed_ = box;
  place(box);
}

void BoundControl::place(const RECT& box) {
  SetWindowPos(window_, nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void BoundControl::fontChanged() {
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(native_font_), TRUE);
}

void BoundControl::sync() {
  if (window_ == nullptr) return;
  const HFONT native = form_.fonts().get(control_.font);
  if (native != native_font_ || font_ != control_.font) {
    native_font_ = native;
    font_ = control_.font;
    fontChanged();
  }
  syncPlace();
  syncOwn();
  const bool enabled = IsWindowEnabled(window_) != FALSE;
  if (enabled != control_.enabled) form_.enable(*this, control_.enabled);
  const bool shown = (GetWindowLongW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown != control_.visible) {
    form_.show(*this, control_.visible);
  }
  syncAccessible();
}

std::string BoundControl::tip() const {
  if (!control_.tool_tip.empty() || !showsSignAlone(form_.form(), control_)) {
    return control_.tool_tip;
  }
  return accessibleName(form_.form(), control_, form_.language());
}

void BoundControl::syncAccessible() {
  annotation_.show(window_, accessibleName(form_.form(), control_, form_.language()));
}

void BoundControl::onAccessKey() { SetFocus(window_); }

HBRUSH BoundControl::onColor(HDC dc) {
  const Palette& palette = form_.palette();
  SetTextColor(dc, control_.enabled ? palette.text : disabledText(palette, palette.panel));
  SetBkColor(dc, palette.panel);
  return form_.panelBrush();
}

}  // namespace tavr::win32
