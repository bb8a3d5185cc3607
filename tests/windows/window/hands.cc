// A person's hands on the mouse and the keyboard of the session.
#include <array>

#include "platform/win32/wide.h"
#include "tests/windows/window/driven_program.h"

namespace tavr::testing {

namespace {

constexpr DWORD kMoment = 40;  // ms between two movements of a hand
constexpr int kWholeScreen = 65535;

void sendMouse(DWORD what, POINT at = {}) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = what;
  input.mi.dx = at.x;
  input.mi.dy = at.y;
  SendInput(1, &input, sizeof(input));
}

INPUT keyInput(int key, bool down) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC));
  input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  return input;
}

void sendKey(int key, bool down) {
  INPUT input = keyInput(key, down);
  SendInput(1, &input, sizeof(input));
  Sleep(kMoment);
}

}  // namespace

void movePointer(POINT screen) {
  constexpr int kTries = 20;
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height = GetSystemMetrics(SM_CYSCREEN);
  // Rounded up, so that the whole way back gives the pixel again.
  const POINT at{(screen.x * kWholeScreen + width - 2) / (width - 1),
                 (screen.y * kWholeScreen + height - 2) / (height - 1)};
  // The display tells of earlier movements late, which takes the pointer back.
  for (int rested = 0, tries = 0; rested < 2 && tries < kTries; ++tries) {
    POINT now{};
    GetCursorPos(&now);
    const bool there = tries > 0 && now.x == screen.x && now.y == screen.y;
    rested = there ? rested + 1 : 0;
    if (!there) sendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, at);
    Sleep(kMoment);
  }
}

void pressMouse(bool right) {
  sendMouse(right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN);
  Sleep(kMoment);
  sendMouse(right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP);
  Sleep(kMoment);
}

POINT middleOf(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  return {area.right / 2, area.bottom / 2};
}

void clickAt(HWND window, POINT client, bool right) {
  ClientToScreen(window, &client);
  movePointer(client);
  pressMouse(right);
}

void doubleClickAt(HWND window, POINT client) {
  clickAt(window, client);
  pressMouse();
}

void dragMouse(POINT from, POINT to) {
  constexpr int kSteps = 5;
  movePointer(from);
  sendMouse(MOUSEEVENTF_LEFTDOWN);
  Sleep(kMoment);
  for (int i = 1; i <= kSteps; ++i) {
    movePointer({from.x + (to.x - from.x) * i / kSteps, from.y + (to.y - from.y) * i / kSteps});
  }
  sendMouse(MOUSEEVENTF_LEFTUP);
  Sleep(kMoment);
}

void pressKey(int key, int with) {
  if (with != 0) sendKey(with, true);
  sendKey(key, true);
  sendKey(key, false);
  if (with != 0) sendKey(with, false);
}

void typeText(std::string_view text) {
  for (const wchar_t unit : win32::wide(text)) {
    std::array<INPUT, 2> strokes{};
    for (INPUT& stroke : strokes) {
      stroke.type = INPUT_KEYBOARD;
      stroke.ki.wScan = unit;
      stroke.ki.dwFlags = KEYEVENTF_UNICODE;
    }
    strokes[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    SendInput(2, strokes.data(), sizeof(INPUT));
    Sleep(kMoment / 2);
  }
}

}  // namespace tavr::testing
