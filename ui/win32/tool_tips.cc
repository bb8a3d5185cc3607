#include "ui/win32/tool_tips.h"

#include "platform/win32/wide.h"
#include "ui/win32/bound_control.h"
#include "ui/win32/subclass.h"

namespace tavr::win32 {

namespace {

constexpr UINT_PTR kToolSubclass = 3;

bool isOfMouse(UINT message) {
  switch (message) {
    case WM_MOUSEMOVE:
    case WM_NCMOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
      return true;
    default:
      return false;
  }
}

// What TTF_SUBCLASS does, but without its window property.
LRESULT CALLBACK toolProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                               UINT_PTR /*id*/, DWORD_PTR tips) {
  if (isOfMouse(message)) {
    MSG told{window, message, wparam, lparam, static_cast<DWORD>(GetMessageTime()), {}};
    SendMessageW(reinterpret_cast<HWND>(tips), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&told));
  }
  return nextProcedure(window, message, wparam, lparam);
}

}  // namespace

ToolTips::ToolTips(HWND form, bool right_to_left)
    : form_(form),
      tips_(CreateWindowExW(WS_EX_TOPMOST | (right_to_left ? WS_EX_LAYOUTRTL : 0U), TOOLTIPS_CLASSW,
                            nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0, form,
                            nullptr, GetModuleHandleW(nullptr), nullptr)) {}

ToolTips::~ToolTips() {
  if (tips_ != nullptr) DestroyWindow(tips_);
}

void ToolTips::add(HWND window) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = form_;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  tool.lpszText = LPSTR_TEXTCALLBACKW;
  SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  setSubclass(window, &toolProcedure, kToolSubclass, reinterpret_cast<DWORD_PTR>(tips_));
}

void ToolTips::setFont(HFONT font) {
  SendMessageW(tips_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

bool ToolTips::answer(NMHDR& notice) {
  if (notice.code != TTN_GETDISPINFOW) return false;
  auto& info = reinterpret_cast<NMTTDISPINFOW&>(notice);
  const BoundControl* const bound = BoundControl::of(reinterpret_cast<HWND>(notice.idFrom));
  if (!bound) return true;
  // Kept until the next question: the tip holds no longer text by itself.
  static std::wstring text;
  text = wide(bound->tip());
  info.lpszText = text.data();
  return true;
}

}  // namespace tavr::win32
