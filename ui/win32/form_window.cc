#include "ui/win32/form_window.h"

#include <oleacc.h>

#include <utility>

#include "platform/win32/held_windows.h"
#include "platform/win32/wide.h"
#include "ui/win32/accessible_name.h"
#include "ui/win32/accessible_order.h"
#include "ui/win32/artwork.h"
#include "ui/win32/control_places.h"
#include "ui/win32/screen_scale.h"
#include "ui/win32/shadow.h"

namespace tavr::win32 {

namespace {

constexpr wchar_t kClass[] = L"TavrForm";
constexpr COLORREF kMaskColor = 0xFF00FF;
constexpr DWORD kStyle = WS_POPUP | WS_CLIPCHILDREN | WS_SYSMENU;

}  // namespace

LRESULT CALLBACK formProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_NCCREATE) {
    const auto* const create = reinterpret_cast<const CREATESTRUCTW*>(lparam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
  }
  auto* const form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!form || !form->window_) return DefWindowProcW(window, message, wparam, lparam);
  return form->handle(message, wparam, lparam);
}

void FormWindow::registerClass() {
  WNDCLASSEXW window_class{};
  if (GetClassInfoExW(GetModuleHandleW(nullptr), kClass, &window_class)) return;
  window_class.cbSize = sizeof(window_class);
  window_class.style = CS_DBLCLKS;
  window_class.lpfnWndProc = &formProcedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.lpszClassName = kClass;
  window_class.hIcon = programIcon(GetSystemMetrics(SM_CXICON));
  window_class.hIconSm = programIcon(GetSystemMetrics(SM_CXSMICON));
  RegisterClassExW(&window_class);
}

FormWindow::FormWindow(Form& form, HWND owner, ActionQueue& actions, Dialogs& dialogs,
                       FormEvents events)
    : form_(form), actions_(actions), events_(std::move(events)) {
  registerClass();
  const DWORD extended = WS_EX_CONTROLPARENT | (events_.has_task_button ? WS_EX_APPWINDOW : 0U);
  // A form without a task button would not come back.
  const DWORD style = kStyle | (events_.has_task_button ? WS_MINIMIZEBOX : 0U);
  window_ = CreateWindowExW(extended, kClass, wide(form.caption).c_str(), style, 0, 0, 0, 0, owner,
                            nullptr, GetModuleHandleW(nullptr), this);
  SetPropW(window_, wide(form.name()).c_str(), window_);
  shape_ = std::make_unique<TransForm>(window_, dialogs);
  shape_->MaskColor = kMaskColor;
  takeDpi(dpiOf(window_));
  placed_left_ = form.left;
  placed_top_ = form.top;
  layOut();
  shape_->load();
  form_.onTopmost = [this](bool on) { setTopmost(on); };
}

FormWindow::~FormWindow() {
  form_.onTopmost = nullptr;
  actions_.discard(this);
  annotation_.clear();
  if (shadow_) detachShadow(window_);
  bound_.clear();
  tips_.reset();
  shape_.reset();
  if (shape_picture_ != nullptr) DeleteObject(shape_picture_);
  const HWND window = std::exchange(window_, nullptr);
  DestroyWindow(window);
  if (panel_brush_ != nullptr) DeleteObject(panel_brush_);
}

FormWindow* FormWindow::of(HWND window) {
  const HWND root = GetAncestor(window, GA_ROOT);
  wchar_t name[16] = L"";
  GetClassNameW(root, name, 16);
  if (std::wstring_view(name) != kClass) return nullptr;
  return reinterpret_cast<FormWindow*>(GetWindowLongPtrW(root, GWLP_USERDATA));
}

void FormWindow::takeLook(COLORREF strip, bool right_to_left) {
  strip_ = strip;
  palette_ = Palette::of(strip);
  if (panel_brush_ != nullptr) DeleteObject(panel_brush_);
  panel_brush_ = CreateSolidBrush(palette_.panel);
  // A window takes its direction when it is made.
  if (right_to_left != right_to_left_ || !tips_) {
    right_to_left_ = right_to_left;
    last_focus_ = focused();
    bound_.clear();
    ordered_ = 0;
    tips_ = std::make_unique<ToolTips>(window_, right_to_left);
    tips_->setFont(fonts_->get(ControlFont()));
  }
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void FormWindow::sync(COLORREF strip, bool right_to_left, bool may_show) {
  const bool turned = right_to_left != right_to_left_;
  if (strip != strip_ || turned || !tips_) takeLook(strip, right_to_left);
  if (form_.left != placed_left_ || form_.top != placed_top_) {
    placed_left_ = form_.left;
    placed_top_ = form_.top;
    layOut();
  }
  syncControls();
  // The window that had the focus has gone with the direction.
  if (turned && GetActiveWindow() == window_) focusFirst();
  syncFrame(may_show);
}

void FormWindow::syncFrame(bool may_show) {
  const Control* const label = titleLabel();
  const std::string& now = label ? label->caption : form_.caption;
  const ControlFont font = label ? label->font : ControlFont();
  if (now != shown_title_ || font != title_font_) {
    shown_title_ = now;
    title_font_ = font;
    SetWindowTextW(window_, wide(now.empty() ? form_.caption : now).c_str());
    InvalidateRect(window_, nullptr, FALSE);
  }
  const long role = events_.has_task_button ? 0 : ROLE_SYSTEM_DIALOG;
  annotation_.show(window_, accessibleFormName(form_), role);
  // A message box that is open holds every window.
  if (!HeldWindows::any() && form_.enabled != (IsWindowEnabled(window_) != FALSE)) {
    EnableWindow(window_, form_.enabled ? TRUE : FALSE);
  }
  setTopmost(form_.topmost);
  syncShown(form_.visible && may_show);
}

void FormWindow::setTopmost(bool on) {
  if (on == topmost_) return;
  topmost_ = on;
  SetWindowPos(window_, on ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void FormWindow::syncShown(bool show) {
  const bool again = std::exchange(shown_again_, form_.shown_again) != form_.shown_again;
  // What has made a form without a task button an icon, a person cannot undo.
  const bool lost = show && !events_.minimise && IsIconic(window_);
  if (show == (IsWindowVisible(window_) != FALSE) && !lost) {
    if (show && again) {
      // It may be the active one already, below another.
      SetWindowPos(window_, topmost_ ? HWND_TOPMOST : HWND_TOP, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      SetForegroundWindow(window_);
    }
    return;
  }
  ShowWindow(window_, show ? SW_SHOWNORMAL : SW_HIDE);
  if (show) SetForegroundWindow(window_);
}

void FormWindow::syncControls() {
  for (Control* const control : form_.controls()) {
    BoundControl* bound = boundOf(*control);
    if (!bound && inSight(form_, *control)) bound = makeWindowOf(*control);
    if (bound) bound->sync();
  }
  if (ordered_ == bound_.size()) return;
  ordered_ = bound_.size();
  std::vector<BoundControl*> made;
  for (Control* const control : form_.controls()) {
    if (BoundControl* const bound = boundOf(*control)) made.push_back(bound);
  }
  orderForReading(form_, std::move(made));
}

BoundControl* FormWindow::boundOf(const Control& control) const {
  const auto found = bound_.find(&control);
  return found == bound_.end() ? nullptr : found->second.get();
}

// The title is drawn with the strip; a menu is one of Windows.
BoundControl* FormWindow::makeWindowOf(Control& control) {
  if (lookOf(form_, control).label == LabelLook::kTitle) return nullptr;
  if (control.design.name == "bccc" || control.design.kind == ControlKind::kMenuEntry) {
    return nullptr;
  }
  std::unique_ptr<BoundControl> made = makeBound(*this, control);
  if (!made || made->window() == nullptr) return nullptr;
  tips_->add(made->window());
  return (bound_[&control] = std::move(made)).get();
}

HWND FormWindow::windowOfHolder(const Control& control) {
  Control* const holder = holderOf(form_, control);
  if (!holder) return window_;
  BoundControl* bound = boundOf(*holder);
  if (!bound) bound = makeWindowOf(*holder);
  return bound ? bound->window() : window_;
}

}  // namespace tavr::win32
