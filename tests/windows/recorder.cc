// A program that writes down how it was started and ends: its command line and the
// style of its window. The tests start copies of it under the names of other
// programs; the note stands beside the copy, under its name and ".txt".
#include <windows.h>

#include <string>

namespace {

std::string narrow(const std::wstring& text) {
  std::string out(text.size() * 3, '\0');
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                       out.data(), static_cast<int>(out.size()), nullptr, nullptr);
  out.resize(static_cast<std::size_t>(size));
  return out;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  STARTUPINFOW startup = {};
  GetStartupInfoW(&startup);
  const bool styled = (startup.dwFlags & STARTF_USESHOWWINDOW) != 0;
  const std::string note = narrow(GetCommandLineW()) + "\n" +
                           (styled ? std::to_string(startup.wShowWindow) : "none") + "\n";
  // Complete when it stands under its name.
  const std::wstring name = std::wstring(path) + L".txt";
  const HANDLE file = CreateFileW((name + L".new").c_str(), GENERIC_WRITE, 0, nullptr,
                                  CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  DWORD written = 0;
  WriteFile(file, note.data(), static_cast<DWORD>(note.size()), &written, nullptr);
  CloseHandle(file);
  return MoveFileExW((name + L".new").c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
