#include "tests/windows/registry_export.h"

#include <windows.h>

#include <vector>

#include "platform/win32/wide.h"

namespace tavr::windows_test {

namespace {

constexpr REGSAM kRead = KEY_READ | KEY_WOW64_64KEY;
constexpr DWORD kLongestName = 16384;

// What the system writes by itself when programs start and windows open: the
// hardware, the display, counts of starts. The key that CurrentControlSet is
// another name of. And the registered components: no run has business there, and
// to read their thousands of keys takes longer than a run.
bool skipped(const std::string& path) {
  const std::wstring text = win32::wide(path);
  for (const wchar_t* key :
       {L"HKEY_LOCAL_MACHINE\\HARDWARE", L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes",
        L"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Classes",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Class",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\DeviceClasses",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\ServiceCurrent",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Video",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum",
        L"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Hardware Profiles"}) {
    if (lstrcmpiW(text.c_str(), key) == 0) return true;
  }
  return false;
}

std::string escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\' || c == '"') out += '\\';
    out += c;
  }
  return out;
}

class Export {
 public:
  std::string text = "Windows Registry Editor Version 5.00\n";

  void add(HKEY key, const std::string& path) {
    if (skipped(path)) return;
    text += "\n[" + path + "]\n";
    for (DWORD i = 0; addValue(key, i); ++i) {
    }
    std::vector<wchar_t> name(256);
    for (DWORD i = 0;; ++i) {
      DWORD size = static_cast<DWORD>(name.size());
      if (RegEnumKeyExW(key, i, name.data(), &size, nullptr, nullptr, nullptr, nullptr) != 0) break;
      HKEY child = nullptr;
      if (RegOpenKeyExW(key, name.data(), 0, kRead, &child) != 0) continue;
      add(child, path + "\\" + win32::narrow({name.data(), size}));
      RegCloseKey(child);
    }
  }

 private:
  bool addValue(HKEY key, DWORD index) {
    DWORD name_size = kLongestName;
    DWORD size = static_cast<DWORD>(data_.size());
    DWORD type = 0;
    LSTATUS status =
        RegEnumValueW(key, index, name_.data(), &name_size, nullptr, &type, data_.data(), &size);
    if (status == ERROR_MORE_DATA) {
      data_.resize(size + 1);
      return addValue(key, index);
    }
    if (status != ERROR_SUCCESS) return false;
    const std::string name = win32::narrow({name_.data(), name_size});
    text += name.empty() ? "@" : "\"" + escaped(name) + "\"";
    constexpr char kDigits[] = "0123456789abcdef";
    text += "=hex(";
    if (type > 15) text += kDigits[type >> 4 & 15];
    text += std::string(1, kDigits[type & 15]) + "):";
    for (DWORD i = 0; i < size; ++i) {
      if (i > 0) text += ',';
      text += kDigits[data_[i] >> 4];
      text += kDigits[data_[i] & 15];
    }
    text += '\n';
    return true;
  }

  std::vector<wchar_t> name_ = std::vector<wchar_t>(kLongestName);
  std::vector<BYTE> data_ = std::vector<BYTE>(4096);
};

}  // namespace

std::string exportRegistry() {
  Export all;
  all.add(HKEY_LOCAL_MACHINE, "HKEY_LOCAL_MACHINE");
  all.add(HKEY_CURRENT_USER, "HKEY_CURRENT_USER");
  return all.text;
}

}  // namespace tavr::windows_test
