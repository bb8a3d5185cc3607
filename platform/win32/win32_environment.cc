#include "platform/win32/win32_environment.h"

#include <windows.h>

#include "platform/win32/program_file.h"
#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr std::size_t kUsualRoom = 512;

}  // namespace

// Called with growing room until the text fits; each of the two calls tells in its
// own way that it does not.
std::string Win32Environment::get(std::string_view name) {
  const std::wstring variable = wide(name);
  std::wstring text(kUsualRoom, L'\0');
  for (;;) {
    const DWORD length =
        GetEnvironmentVariableW(variable.c_str(), text.data(), static_cast<DWORD>(text.size()));
    if (length < text.size()) {
      text.resize(length);
      return narrow(text);
    }
    text.resize(length);  // here the room that is needed
  }
}

std::string Win32Environment::expand(std::string_view text) {
  const std::wstring source = wide(text);
  std::wstring expanded(kUsualRoom, L'\0');
  for (;;) {
    const DWORD needed = ExpandEnvironmentStringsW(source.c_str(), expanded.data(),
                                                   static_cast<DWORD>(expanded.size()));
    if (needed == 0) return std::string(text.substr(0, text.find('\0')));
    if (needed <= expanded.size()) {
      expanded.resize(needed - 1);  // the NUL is counted
      return narrow(expanded);
    }
    expanded.resize(needed);
  }
}

std::string Win32Environment::appPath() {
  const std::wstring file = programFile();
  return narrow(file.substr(0, file.rfind(L'\\')));
}

std::string Win32Environment::exeName() {
  const std::wstring file = programFile();
  const std::wstring name = file.substr(file.rfind(L'\\') + 1);
  return narrow(name.substr(0, name.rfind(L'.')));
}

}  // namespace tavr::win32
