#include "ui/win32/bound_text.h"

#include <commctrl.h>

#include "forms/form3.h"
#include "platform/win32/wide.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

constexpr int kSeveralLines = 40;  // px of height from which a box shows lines
constexpr int kInset = 4;          // px between the frame and the text

bool hasLines(const Control& control) { return control.box.height >= kSeveralLines; }

// An edit control breaks lines at CR LF alone.
std::wstring withFullBreaks(std::string_view text) {
  std::string broken;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (text[i] != '\r' && text[i] != '\n') {
      broken += text[i];
    } else {
      broken += "\r\n";
      if (pair) ++i;
    }
  }
  return wide(broken);
}

DWORD styleOf(const Control& control) {
  // Several lines are only ever a message to read.
  return hasLines(control) ? ES_MULTILINE | ES_READONLY | WS_VSCROLL | ES_AUTOVSCROLL
                           : ES_AUTOHSCROLL;
}

}  // namespace

std::string windowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return narrow(text);
}

BoundText::BoundText(FormWindow& form, TextBox& box) : BoundControl(form, box), box_(box) {
  const DWORD direction = form.rightToLeft() ? WS_EX_RTLREADING | WS_EX_RIGHT : 0;
  create(WC_EDITW, styleOf(box) | WS_BORDER, direction);
}

void BoundText::place(const RECT& box) {
  BoundControl::place(box);
  if (hasLines(box_)) return;
  const int inset = form_.px(kInset);
  SendMessageW(window_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(inset, inset));
}

void BoundText::showText() {
  shown_ = box_.text();
  setting_ = true;
  SetWindowTextW(window_, hasLines(box_) ? withFullBreaks(shown_).c_str() : wide(shown_).c_str());
  setting_ = false;
  const auto* const with_caret = dynamic_cast<const Form3::CaretBox*>(&box_);
  if (!with_caret) return;
  SendMessageW(window_, EM_SETSEL, with_caret->caret, static_cast<LPARAM>(with_caret->caret));
}

void BoundText::syncOwn() {
  if (box_.text() != shown_) showText();
}

void BoundText::onCommand(int code) {
  if (code != EN_CHANGE || setting_ || hasLines(box_)) return;
  post([this] {
    const std::string typed = shown_ = windowText(window_);
    box_.type(typed);  // its handler may close the form, and this with it
  });
}

}  // namespace tavr::win32
