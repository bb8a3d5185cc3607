#include "ui/win32/bound_text.h"

#include <algorithm>

#include "forms/form3.h"
#include "platform/win32/wide.h"
#include "ui/win32/form_window.h"
#include "ui/win32/subclass.h"

namespace tavr::win32 {

namespace {

constexpr int kSeveralLines = 40;  // px of height from which a box shows lines
constexpr int kInset = 4;          // px between the frame and the text
constexpr int kEdge = 1;
constexpr UINT_PTR kFieldSubclass = 1;

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
  create(WC_EDITW, styleOf(box), direction);
  setSubclass(window_, &fieldProcedure, kFieldSubclass, reinterpret_cast<DWORD_PTR>(this));
}

BoundText::~BoundText() { removeSubclass(window_, &fieldProcedure, kFieldSubclass); }

int BoundText::lineHeight() const {
  const HDC dc = GetDC(window_);
  const HGDIOBJ before =
      SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, before);
  ReleaseDC(window_, dc);
  return metrics.tmHeight;
}

// An edit control begins at its upper edge: a single line is brought to the
// middle by what is taken off above and below.
void BoundText::place(const RECT& box) {
  const int spare = static_cast<int>(box.bottom - box.top) - lineHeight();
  above_ = hasLines(box_) ? kEdge : std::max(kEdge, spare / 2);
  BoundControl::place(box);
  SetWindowPos(window_, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  const int inset = form_.px(kInset);
  SendMessageW(window_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(inset, inset));
  showScrollBar();
}

void BoundText::showScrollBar() {
  if (!hasLines(box_)) return;
  RECT area;
  GetClientRect(window_, &area);
  const auto lines = static_cast<int>(SendMessageW(window_, EM_GETLINECOUNT, 0, 0));
  ShowScrollBar(window_, SB_VERT, lines * lineHeight() > area.bottom);
}

// The ground around the text and the line around both: the border of an edit
// control is in colours of its own.
void BoundText::paintEdge() const {
  const Palette& palette = form_.palette();
  RECT area;
  RECT text;
  GetWindowRect(window_, &area);
  GetClientRect(window_, &text);
  OffsetRect(&area, -area.left, -area.top);
  OffsetRect(&text, kEdge, above_);
  const HDC dc = GetWindowDC(window_);
  form_.fill(dc, {area.left, area.top, area.right, text.top}, palette.panel);
  form_.fill(dc, {area.left, text.bottom, area.right, area.bottom}, palette.panel);
  SetDCBrushColor(dc, GetFocus() == window_ ? palette.accent : palette.border);
  FrameRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  ReleaseDC(window_, dc);
}

LRESULT CALLBACK BoundText::fieldProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                           UINT_PTR /*id*/, DWORD_PTR data) {
  const auto& field = *reinterpret_cast<const BoundText*>(data);
  if (message == WM_NCCALCSIZE) {
    auto& area = *reinterpret_cast<RECT*>(lparam);
    InflateRect(&area, -kEdge, -field.above_);
  }
  const LRESULT answer = nextProcedure(window, message, wparam, lparam);
  if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
    RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
  }
  if (message == WM_NCPAINT) field.paintEdge();
  // What is not text is part of the field, too.
  if (message == WM_NCHITTEST && (answer == HTNOWHERE || answer == HTBORDER)) return HTCLIENT;
  return answer;
}

void BoundText::showText() {
  shown_ = box_.text();
  setting_ = true;
  SetWindowTextW(window_, hasLines(box_) ? withFullBreaks(shown_).c_str() : wide(shown_).c_str());
  setting_ = false;
  showScrollBar();
  showCaret();
}

// A form has a word on the caret of some boxes.
void BoundText::showCaret() {
  typed_ = false;
  const auto* const with_caret = dynamic_cast<const Form3::CaretBox*>(&box_);
  if (!with_caret) return;
  SendMessageW(window_, EM_SETSEL, with_caret->caret, static_cast<LPARAM>(with_caret->caret));
}

void BoundText::syncOwn() {
  if (box_.text() != shown_) showText();
  if (typed_) showCaret();
}

void BoundText::onCommand(int code) {
  if (code != EN_CHANGE || setting_ || hasLines(box_)) return;
  post([this] {
    typed_ = true;
    const std::string typed = shown_ = windowText(window_);
    box_.type(typed);  // its handler may close the form, and this with it
  });
}

}  // namespace tavr::win32
