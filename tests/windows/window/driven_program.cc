#include "tests/windows/window/driven_program.h"

#include <stdexcept>
#include <utility>

#include "platform/win32/wide.h"

namespace tavr::testing {

namespace {

constexpr DWORD kLook = 20;       // ms between two looks
constexpr DWORD kRest = 500;      // ms
constexpr DWORD kPaintTime = 80;  // ms that a redraw may be behind
constexpr DWORD kDriveC = 4;
constexpr wchar_t kBoxClass[] = L"#32770";
constexpr int kBoxText = 0xFFFF;

bool isPen() {
  const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
  return GetProcAddress(ntdll, "wine_get_version") != nullptr && GetLogicalDrives() == kDriveC;
}

std::wstring besideTest(std::wstring_view file) {
  wchar_t own[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  const std::wstring path = own;
  return path.substr(0, path.find_last_of(L'\\') + 1) + std::wstring(file);
}

std::string textOf(HWND window) {
  std::wstring text(4096, L'\0');
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                      SMTO_ABORTIFHUNG, kPatience, &length);
  text.resize(length);
  return win32::narrow(text);
}

template <class Found>
struct Search {
  DWORD process;
  Found found;
  HWND window = nullptr;
};

template <class Found>
BOOL CALLBACK lookAt(HWND window, LPARAM search) {
  auto& wanted = *reinterpret_cast<Search<Found>*>(search);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != wanted.process || !wanted.found(window)) return TRUE;
  wanted.window = window;
  return FALSE;
}

template <class Found>
HWND topWindow(DWORD process, Found found) {
  Search<Found> search{process, found};
  EnumWindows(&lookAt<Found>, reinterpret_cast<LPARAM>(&search));
  return search.window;
}

template <class Found>
HWND childWindow(HWND parent, DWORD process, Found found) {
  Search<Found> search{process, found};
  EnumChildWindows(parent, &lookAt<Found>, reinterpret_cast<LPARAM>(&search));
  return search.window;
}

bool hasClass(HWND window, std::wstring_view name) {
  wchar_t found[64] = L"";
  GetClassNameW(window, found, 64);
  return name == found;
}

}  // namespace

bool comes(const std::function<bool()>& what, std::uint32_t milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!what()) {
    if (GetTickCount64() > end) return false;
    Sleep(kLook);
  }
  return true;
}

DrivenProgram::DrivenProgram(std::string_view arguments, std::wstring_view file) {
  if (!isPen()) throw std::runtime_error("the program is started in a prefix of its own only");
  const std::wstring program = besideTest(file);
  std::wstring command = L"\"" + program + L"\"";
  if (!arguments.empty()) command += L" " + win32::wide(arguments);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION made{};
  if (!CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &start, &made)) {
    throw std::runtime_error(win32::narrow(program) + " does not start");
  }
  CloseHandle(made.hThread);
  process_ = made.hProcess;
  id_ = made.dwProcessId;
}

DrivenProgram::~DrivenProgram() {
  TerminateProcess(process_, 9);
  WaitForSingleObject(process_, kPatience);
  CloseHandle(process_);
}

bool DrivenProgram::running() const { return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT; }

std::optional<DWORD> DrivenProgram::waitForEnd(std::uint32_t milliseconds) const {
  if (WaitForSingleObject(process_, milliseconds) != WAIT_OBJECT_0) return std::nullopt;
  DWORD status = 0;
  GetExitCodeProcess(process_, &status);
  return status;
}

HWND DrivenProgram::form(std::string_view name) const {
  const std::wstring property = win32::wide(name);
  return topWindow(id_, [&](HWND window) { return GetPropW(window, property.c_str()) != nullptr; });
}

HWND DrivenProgram::find(std::string_view name) const {
  const std::size_t point = name.find('.');
  const HWND holder = form(name.substr(0, point));
  if (point == std::string_view::npos || holder == nullptr) return holder;
  const std::wstring property = win32::wide(name);
  return childWindow(holder, id_,
                     [&](HWND window) { return GetPropW(window, property.c_str()) != nullptr; });
}

bool DrivenProgram::comesToFront(std::string_view form_name) const {
  const HWND wanted = form(form_name);
  if (!comes([&] { return GetForegroundWindow() == wanted; })) return false;
  Sleep(kRest);
  return GetForegroundWindow() == wanted;
}

HWND DrivenProgram::window(std::string_view control) const {
  HWND found = nullptr;
  comes([&] { return (found = find(control)) != nullptr; });
  if (found == nullptr) throw std::runtime_error("not on the screen: " + std::string(control));
  return found;
}

HWND DrivenProgram::windowOfClass(std::wstring_view window_class) const {
  return topWindow(id_, [&](HWND window) { return hasClass(window, window_class); });
}

bool DrivenProgram::sees(std::string_view form_or_control) const {
  const HWND found = find(form_or_control);
  return found != nullptr && IsWindowVisible(found);
}

bool DrivenProgram::comesUp(std::string_view name) const {
  return comes([&] { return sees(name); });
}

bool DrivenProgram::goes(std::string_view name) const {
  return comes([&] { return !sees(name); });
}

std::string DrivenProgram::text(std::string_view control) const { return textOf(window(control)); }

bool DrivenProgram::checked(std::string_view control) const {
  DWORD_PTR state = 0;
  SendMessageTimeoutW(window(control), BM_GETCHECK, 0, 0, SMTO_ABORTIFHUNG, kPatience, &state);
  return state == BST_CHECKED;
}

bool DrivenProgram::enabled(std::string_view control) const {
  return IsWindowEnabled(window(control)) != FALSE;
}

std::vector<COLORREF> DrivenProgram::pixels(std::string_view control) const {
  const HWND at = window(control);
  std::vector<COLORREF> picture = look(at);
  comes([&] {
    Sleep(kPaintTime);
    std::vector<COLORREF> before = std::exchange(picture, look(at));
    return before == picture;
  });
  return picture;
}

std::vector<COLORREF> DrivenProgram::look(HWND window) const {
  RECT area;
  GetWindowRect(window, &area);
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const BITMAPINFO format{{sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                          {}};
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(screen, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
  GdiFlush();
  const auto* const first = static_cast<const COLORREF*>(bits);
  std::vector<COLORREF> picture(first, first + width * height);
  for (COLORREF& pixel : picture) {
    pixel = RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
  }
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return picture;
}

// A window that has just been made may be seen before it stands in its place.
HWND DrivenProgram::placed(std::string_view control) const {
  const HWND found = window(control);
  RECT place{};
  comes([&] {
    const RECT before = place;
    GetWindowRect(found, &place);
    return IsWindowVisible(found) && !IsRectEmpty(&place) && EqualRect(&before, &place);
  });
  return found;
}

void DrivenProgram::click(std::string_view control) const {
  const HWND at = placed(control);
  clickAt(at, middleOf(at));
}

void DrivenProgram::hover(std::string_view control) const {
  const HWND at = placed(control);
  POINT point = middleOf(at);
  ClientToScreen(at, &point);
  movePointer({point.x + 1, point.y + 1});
  movePointer(point);
}

HWND DrivenProgram::waitForBox(std::uint32_t milliseconds) const {
  HWND box = nullptr;
  const auto is_there = [&] {
    box = topWindow(
        id_, [](HWND window) { return hasClass(window, kBoxClass) && IsWindowVisible(window); });
    return box != nullptr;
  };
  comes(is_there, milliseconds);
  return box;
}

std::string DrivenProgram::textOfBox(HWND box) { return textOf(GetDlgItem(box, kBoxText)); }

void DrivenProgram::answer(HWND box, int button) {
  const HWND at = GetDlgItem(box, button);
  clickAt(at, middleOf(at));
}

}  // namespace tavr::testing
