#include "tests/windows/window/window_test.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

#include "platform/win32/wide.h"
#include "services/settings_keys.h"

namespace tavr::testing {

namespace {

constexpr std::string_view kSettings = "SOFTWARE\\tavrwork";
// Where a program of 32 bits kept its settings, and this one still does.
constexpr REGSAM kView = KEY_WOW64_32KEY;

class Key {
 public:
  explicit Key(std::string_view path) {
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, win32::wide(path).c_str(), 0, nullptr, 0,
                    KEY_ALL_ACCESS | kView, nullptr, &key_, nullptr);
  }
  ~Key() { RegCloseKey(key_); }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

}  // namespace

void WindowTest::removeFolder(const std::wstring& folder) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L"\\" + name;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      removeFolder(path);
    } else {
      DeleteFileW(path.c_str());
    }
  } while (FindNextFileW(search, &found));
  FindClose(search);
  RemoveDirectoryW(folder.c_str());
}

void WindowTest::SetUp() {
  RegDeleteTreeW(Key(kSettings).get(), nullptr);
  removeFolder(place("plugins"));
  for (const char* file : {"eraselog.txt", "slectplg.cln", "cookies.tvr", "url.tvr"}) {
    DeleteFileW(place(file).c_str());
  }
  set(settings::kFirstTimeKey, "firsttime", "1");
  movePointer({2, 2});
}

void WindowTest::TearDown() { end(); }

DrivenProgram& WindowTest::start(std::string_view arguments) {
  program_ = std::make_unique<DrivenProgram>(arguments);
  const bool shown = !arguments.empty() || program_->comesUp("Form1.View100");
  if (!shown) throw std::runtime_error("the main form did not come up");
  // Nobody is as fast as the first moments of a window on a display.
  if (arguments.empty() && program_->sees("Form1")) program_->comesToFront("Form1");
  return *program_;
}

std::string WindowTest::setting(std::string_view key, std::string_view name) {
  wchar_t text[1024] = L"";
  DWORD size = sizeof(text);
  const LSTATUS status = RegQueryValueExW(Key(key).get(), win32::wide(name).c_str(), nullptr,
                                          nullptr, reinterpret_cast<BYTE*>(text), &size);
  return status == ERROR_SUCCESS ? win32::narrow(text) : std::string();
}

void WindowTest::set(std::string_view key, std::string_view name, std::string_view text) {
  const std::wstring value = win32::wide(text);
  RegSetValueExW(Key(key).get(), win32::wide(name).c_str(), 0, REG_SZ,
                 reinterpret_cast<const BYTE*>(value.c_str()),
                 static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

void WindowTest::select(int track) { set(settings::kSelectionKey, std::to_string(track), "1"); }

std::wstring WindowTest::place(std::string_view file) {
  if (file.size() > 1 && file[1] == ':') return win32::wide(file);
  wchar_t own[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  const std::wstring path = own;
  return path.substr(0, path.find_last_of(L'\\') + 1) + win32::wide(file);
}

void WindowTest::write(std::string_view file, std::string_view contents) {
  const std::wstring path = place(file);
  for (std::size_t at = path.find(L'\\', 3); at != path.npos; at = path.find(L'\\', at + 1)) {
    CreateDirectoryW(path.substr(0, at).c_str(), nullptr);
  }
  const HANDLE handle =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  ASSERT_NE(handle, INVALID_HANDLE_VALUE) << file;
  DWORD written = 0;
  WriteFile(handle, contents.data(), static_cast<DWORD>(contents.size()), &written, nullptr);
  CloseHandle(handle);
}

bool WindowTest::exists(std::string_view file) {
  return GetFileAttributesW(place(file).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string WindowTest::contents(std::string_view file) {
  const HANDLE handle = CreateFileW(place(file).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return {};
  std::string text(GetFileSize(handle, nullptr), '\0');
  DWORD read = 0;
  ReadFile(handle, text.data(), static_cast<DWORD>(text.size()), &read, nullptr);
  CloseHandle(handle);
  return text;
}

}  // namespace tavr::testing
