#include "tests/windows/box_answers.h"

#include <windows.h>

namespace tavr::windows_test {

namespace {

constexpr DWORD kBetweenLooks = 50;    // ms
constexpr UINT kLongestAnswer = 1000;  // ms

// Adds the text of a control, by a message: GetWindowText asks no control of
// another process. Of a box all are put together: its message is one of them.
// FALSE when the box does not answer.
BOOL CALLBACK addText(HWND child, LPARAM texts) {
  std::wstring text(1024, L'\0');
  DWORD_PTR size = 0;
  if (SendMessageTimeoutW(child, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                          SMTO_ABORTIFHUNG, kLongestAnswer, &size) == 0) {
    reinterpret_cast<std::wstring*>(texts)->clear();
    return FALSE;
  }
  *reinterpret_cast<std::wstring*>(texts) += text.substr(0, size) + L"\n";
  return TRUE;
}

BOOL CALLBACK answerBox(HWND window, LPARAM answers) {
  constexpr const wchar_t* kBoxClass = L"#32770";
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  if (std::wstring(name) != kBoxClass || GetDlgItem(window, IDYES) == nullptr) return TRUE;
  // A box that is still being made has no message yet.
  if (IsWindowVisible(window) == 0) return TRUE;
  std::wstring text;
  EnumChildWindows(window, addText, reinterpret_cast<LPARAM>(&text));
  if (text.empty()) return TRUE;  // looked at again
  CharLowerW(text.data());
  for (const auto& [part, yes] : *reinterpret_cast<const BoxAnswers::Answers*>(answers)) {
    if (text.find(part) == std::wstring::npos) continue;
    PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(yes ? IDYES : IDNO), 0);
    break;
  }
  return TRUE;
}

}  // namespace

BoxAnswers::BoxAnswers(Answers answers)
    : thread_([this, answers = std::move(answers)] {
        while (!stop_) {
          EnumWindows(answerBox, reinterpret_cast<LPARAM>(&answers));
          Sleep(kBetweenLooks);
        }
      }) {}

BoxAnswers::~BoxAnswers() {
  stop_ = true;
  thread_.join();
}

}  // namespace tavr::windows_test
