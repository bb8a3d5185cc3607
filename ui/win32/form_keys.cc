// How a form's window finds its way by the keyboard.
#include <algorithm>

#include "basic/text.h"
#include "forms/controls.h"
#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

Control* FormWindow::focused() const {
  for (HWND at = GetFocus(); at != nullptr && at != window_; at = GetAncestor(at, GA_PARENT)) {
    if (BoundControl* const bound = BoundControl::of(at)) {
      return boundOf(bound->control()) == bound ? &bound->control() : nullptr;
    }
  }
  return nullptr;
}

void FormWindow::focusFirst() {
  // The click that activates the form has put it there.
  if (const Control* const at = focused(); at && at->enabled) return;
  Control* target = last_focus_;
  if (!target || !target->enabled || !inSight(form_, *target)) {
    target = nextFocus(form_, nullptr, false);
    // The strip's own buttons come first in the forms, but nobody starts there.
    const Control* const first = target;
    while (target && lookOf(form_, *target).role == ButtonRole::kStrip) {
      target = nextFocus(form_, target, false);
      if (target == first) break;
    }
  }
  giveFocus(target);
}

void FormWindow::moveFocus(bool back, bool in_group) {
  showFocus();
  Control* const from = focused();
  Control* const to =
      in_group && from ? nextInGroup(form_, *from, back) : nextFocus(form_, from, back);
  BoundControl* const bound = to ? boundOf(*to) : nullptr;
  if (!bound) return;
  SetFocus(bound->window());
  if (dynamic_cast<TextBox*>(to)) SendMessageW(bound->window(), EM_SETSEL, 0, -1);
}

// A window that is disabled or hidden with the focus keeps it and takes every
// key with it.
void FormWindow::moveFocusFrom(Control& control) {
  Control* const before = focused();
  if (!before) return;
  bool concerned = before == &control;
  for (const Control* at = before; at && !concerned; at = holderOf(form_, *at)) {
    concerned = at == &control;
  }
  if (!concerned) return;
  Control* to = isGrouped(*before) ? nextInGroup(form_, *before, false) : nullptr;
  if (!to || to == before) to = nextFocus(form_, before, false);
  giveFocus(to != before ? to : nullptr);
}

// Its own turn to be brought up to date may still be to come, and a disabled window
// refuses the focus.
void FormWindow::giveFocus(Control* to) {
  if (BoundControl* const bound = to ? boundOf(*to) : nullptr) {
    EnableWindow(bound->window(), TRUE);
    SetFocus(bound->window());
    if (focused() == to) return;
  }
  SetFocus(window_);
}

void FormWindow::enable(BoundControl& bound, bool on) {
  if (!on) moveFocusFrom(bound.control());
  EnableWindow(bound.window(), on ? TRUE : FALSE);
  InvalidateRect(bound.window(), nullptr, FALSE);
}

void FormWindow::show(BoundControl& bound, bool on) {
  if (!on) moveFocusFrom(bound.control());
  ShowWindow(bound.window(), on ? SW_SHOWNA : SW_HIDE);
}

void FormWindow::showFocus() {
  if (shows_focus_) return;
  shows_focus_ = true;
  if (const HWND focus = GetFocus()) InvalidateRect(focus, nullptr, FALSE);
}

void FormWindow::hideFocus() {
  if (!shows_focus_) return;
  shows_focus_ = false;
  if (const HWND focus = GetFocus()) InvalidateRect(focus, nullptr, FALSE);
}

std::string FormWindow::captionOf(const Control& control) const {
  const auto cue = std::ranges::find(cues_, &control, &AccessKey::shown);
  return std::string(Trim(cue == cues_.end() ? control.caption : captionWithKey(*cue)));
}

int FormWindow::accessKeyPosition(const Control& control) const {
  const auto cue = std::ranges::find(cues_, &control, &AccessKey::shown);
  if (cue == cues_.end() || cue->position < 0) return -1;
  const std::size_t blanks = control.caption.size() - LTrim(control.caption).size();
  return cue->position - static_cast<int>(blanks);
}

void FormWindow::showCues(bool on) {
  if (on == !cues_.empty()) return;
  cues_ = on ? accessKeys(form_) : std::vector<AccessKey>();
  for (const auto& [control, bound] : bound_) bound->cuesChanged();
}

bool FormWindow::serveAccessKey(WPARAM character) {
  const char32_t letter = upperCase(static_cast<char32_t>(character));
  for (const AccessKey& key : accessKeys(form_)) {
    if (key.letter != letter) continue;
    BoundControl* const bound = key.target->enabled ? boundOf(*key.target) : nullptr;
    if (bound) bound->onAccessKey();
    return true;
  }
  return false;
}

// Buttons and links make something of Enter themselves, and so does a list that
// has dropped down.
bool FormWindow::pressDefault(bool repeated) {
  const Control* const at = focused();
  if (!at || at->design.kind == ControlKind::kButton || at->design.kind == ControlKind::kLabel ||
      at->design.kind == ControlKind::kToolbarButton) {
    return false;
  }
  if (hasOpenList()) return false;
  Button* const button = defaultButton(form_);
  if (!button) return false;
  if (repeated) return true;
  actions_.post(this, [button] { button->press(); });
  return true;
}

bool FormWindow::hasOpenList() const {
  const Control* const at = focused();
  if (!at || at->design.kind != ControlKind::kComboBox) return false;
  return SendMessageW(boundOf(*at)->window(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

// An open list closes as by the button that opened it.
bool FormWindow::closeList() {
  const Control* const list = form_.find("pictrlang");
  Control* const opener = form_.find("chameleonButton12");
  if (!list || !opener || !list->visible) return false;
  if (const BoundControl* const bound = boundOf(*opener)) SetFocus(bound->window());
  actions_.post(this, [opener] { opener->press(); });
  return true;
}

bool FormWindow::serveKey(const MSG& message) {
  if (!IsWindowEnabled(window_)) return false;
  switch (message.message) {
    case WM_KEYDOWN:
      if (message.wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0) {
        moveFocus(GetKeyState(VK_SHIFT) < 0);
        return true;
      }
      if (message.wParam == VK_ESCAPE && hasOpenList()) return false;
      if (message.wParam == VK_ESCAPE && !events_.has_task_button) {
        if (events_.close) actions_.post(this, events_.close);
        return true;
      }
      if (message.wParam == VK_ESCAPE) return closeList();
      return message.wParam == VK_RETURN && pressDefault(isRepeated(message.lParam));
    case WM_SYSKEYDOWN:
      if (message.wParam == VK_MENU) showCues(true);
      return false;
    case WM_SYSKEYUP:
    case WM_KEYUP:
      if (message.wParam == VK_MENU) showCues(false);
      return false;
    case WM_SYSCHAR:
      // Where nothing has the focus plain letters come as these, too; and one that
      // is held presses once.
      if ((message.lParam & (KF_ALTDOWN << 16)) == 0) return false;
      if (isRepeated(message.lParam)) return true;
      showFocus();
      return serveAccessKey(message.wParam);
    default:
      return false;
  }
}

}  // namespace tavr::win32
