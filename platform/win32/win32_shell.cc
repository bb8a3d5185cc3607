#include "platform/win32/win32_shell.h"

#include <windows.h>
// Behind windows.h.
#include <shellapi.h>
#include <shlobj.h>

#include <memory>
#include <string>

#include "basic/text.h"
#include "platform/win32/system_library.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"

// In shell32 and its import library, and in no header of MinGW-w64.
extern "C" __declspec(dllimport) void __stdcall SHUpdateRecycleBinIcon();

namespace tavr::win32 {

namespace {

using HtmlHelpCall = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
constexpr UINT kCloseAllHelp = 0x12;  // HH_CLOSE_ALL

struct FreeTaskMemory {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};

// "help.chm::/page.htm>window" without page and window.
std::string_view helpFile(std::string_view text) {
  text = text.substr(0, text.find("::"));
  return text.substr(0, text.find('>'));
}

// A program is looked for in the current directory, too, unless the environment
// forbids it; a run moves that directory to folders where anybody writes, and what
// is started gets the program's rights.
void leaveOutCurrentDirectory() {
  constexpr const wchar_t* kVariable = L"NoDefaultCurrentDirectoryInExePath";
  if (GetEnvironmentVariableW(kVariable, nullptr, 0) == 0) SetEnvironmentVariableW(kVariable, L"1");
}

}  // namespace

Status Win32Shell::specialFolder(int id, std::string& buffer) {
  buffer.clear();
  LPITEMIDLIST list = nullptr;
  const HRESULT result = SHGetSpecialFolderLocation(nullptr, id, &list);
  if (FAILED(result)) return resultStatus(result);
  const std::unique_ptr<ITEMIDLIST, FreeTaskMemory> owned(list);
  wchar_t path[MAX_PATH] = L"";
  if (!SHGetPathFromIDListW(list, path)) return kFileNotFound;
  buffer = narrow(path);
  buffer += '\0';
  return kSuccess;
}

Status Win32Shell::queryRecycleBin(std::int64_t& size, std::int64_t& items) {
  SHQUERYRBINFO bin{};
  bin.cbSize = sizeof(bin);
  const Status status = resultStatus(SHQueryRecycleBinW(nullptr, &bin));
  size = bin.i64Size;
  items = bin.i64NumItems;
  return status;
}

Status Win32Shell::emptyRecycleBin(std::uint32_t flags) {
  const HRESULT result = SHEmptyRecycleBinW(nullptr, nullptr, flags);
  // What an empty bin answers.
  return result == E_UNEXPECTED ? kSuccess : resultStatus(result);
}

void Win32Shell::updateRecycleBinIcon() { SHUpdateRecycleBinIcon(); }

Status Win32Shell::execute(std::string_view verb, std::string_view file, int show) {
  const std::wstring wide_verb = wide(verb);
  const std::wstring wide_file = wide(file);
  SHELLEXECUTEINFOW call{};
  call.cbSize = sizeof(call);
  // Without a wait this program could end under a conversation with the opened one.
  call.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  call.hwnd = GetDesktopWindow();
  call.lpVerb = verb.empty() ? nullptr : wide_verb.c_str();
  call.lpFile = wide_file.c_str();
  call.nShow = show;
  return ShellExecuteExW(&call) ? kSuccess : lastStatus();
}

Status Win32Shell::run(std::string_view command, int window_style) {
  std::wstring text = wide(Trim(command));  // the call writes into it
  if (text.empty()) return kFileNotFound;
  leaveOutCurrentDirectory();
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = static_cast<WORD>(window_style);
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(nullptr, text.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &started)) {
    // A missing folder on the way to a program is a missing program.
    const Status status = lastStatus();
    return status == kPathNotFound || status == kInvalidName ? kFileNotFound : status;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return kSuccess;
}

Win32Shell::~Win32Shell() {
  if (html_help_ == nullptr) return;
  // A help window that outlives the program's own would run into its end.
  reinterpret_cast<HtmlHelpCall>(html_help_)(nullptr, nullptr, kCloseAllHelp, 0);
}

Status Win32Shell::loadHelp() {
  if (html_help_ != nullptr) return kSuccess;
  SystemLibrary control(L"hhctrl.ocx");
  html_help_ = control.find<void*>("HtmlHelpW");
  if (html_help_ == nullptr) return lastStatus();
  control.keep();
  return kSuccess;
}

Status Win32Shell::htmlHelp(std::string_view file_and_window, std::uint32_t command,
                            std::uint32_t data) {
  // The viewer would say in a box of its own that there is no such file.
  const std::wstring file = wide(helpFile(file_and_window));
  if (GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES) return lastStatus();
  if (const Status status = loadHelp()) return status;
  const auto call = reinterpret_cast<HtmlHelpCall>(html_help_);
  const std::wstring text = wide(file_and_window);
  const HWND window = call(GetDesktopWindow(), text.c_str(), command, data);
  return window != nullptr ? kSuccess : kFileNotFound;
}

}  // namespace tavr::win32
