#include "platform/win32/win32_registry.h"

#include <windows.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/win32/wide.h"
#include "platform/win32/win32_registry_key.h"

namespace tavr::win32 {

namespace {

constexpr REGSAM kBothViews = KEY_WOW64_32KEY | KEY_WOW64_64KEY;
// As keys have always been made for this program; Windows does not look at it.
constexpr DWORD kAttributesLength = 50;

// Numbers come from callers as they are, and one that is no root could be a
// handle of this process that happens to be a key.
HKEY handleOf(Root root) {
  switch (root) {
    case Root::kClassesRoot:
      return HKEY_CLASSES_ROOT;
    case Root::kCurrentUser:
      return HKEY_CURRENT_USER;
    case Root::kLocalMachine:
      return HKEY_LOCAL_MACHINE;
    case Root::kUsers:
      return HKEY_USERS;
  }
  return nullptr;
}

// What every call asks first.
Status refusal(HKEY root, const std::wstring& path, std::uint32_t access) {
  if (root == nullptr) return kInvalidHandle;
  if ((access & kBothViews) == kBothViews || hasLongName(path)) return kInvalidParameter;
  return kSuccess;
}

// A person's keys are the same in both views, but for the classes: those and what
// leads to them. Wine looks for a second view of them all the same, with a question to
// its server for each part of the path, and every setting that is read would wait.
bool hasViews(HKEY root, std::wstring_view path) {
  if (root != HKEY_CURRENT_USER) return true;
  constexpr std::wstring_view kClasses = L"Software\\Classes";
  const auto length = static_cast<int>(std::min(path.size(), kClasses.size()));
  return CompareStringOrdinal(path.data(), length, kClasses.data(), length, TRUE) == CSTR_EQUAL;
}

REGSAM withView(HKEY root, std::wstring_view path, std::uint32_t access) {
  if (!hasViews(root, path)) return access & ~kBothViews;
  return (access & kBothViews) == 0 ? access | KEY_WOW64_32KEY : access;
}

struct CloseKey {
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using OwnedKey = std::unique_ptr<HKEY__, CloseKey>;

bool beginsWith(std::wstring_view path, std::wstring_view start) {
  const auto length = static_cast<int>(start.size());
  return path.size() >= start.size() &&
         CompareStringOrdinal(path.data(), length, start.data(), length, TRUE) == CSTR_EQUAL;
}

OpenedKey opened(LSTATUS status, HKEY key, REGSAM mask) {
  if (status != ERROR_SUCCESS) return {static_cast<Status>(status), nullptr};
  OwnedKey owned(key);
  auto made = std::make_unique<Win32RegistryKey>(key, mask & kBothViews);
  (void)owned.release();
  return {kSuccess, std::move(made)};
}

}  // namespace

// The program's own settings stand in the 32-bit view of the machine's software. To
// find that view Wine asks its server a dozen questions, at each of the hundred
// settings that a run reads; from a key within it there is one. The keys of others are
// opened by their whole path: the system may share one of them between the views.
struct Win32Registry::Software {
  struct Place {
    HKEY base;
    const wchar_t* name;
    REGSAM mask;
  };

  Place place(HKEY root, const std::wstring& path, REGSAM mask) {
    const bool own = root == HKEY_LOCAL_MACHINE && (mask & KEY_WOW64_32KEY) != 0 &&
                     beginsWith(path, kOwn) &&
                     (path.size() == kOwn.size() || path[kOwn.size()] == L'\\');
    if (own && !key_) {
      HKEY key = nullptr;
      RegOpenKeyExW(root, L"Software", 0, KEY_READ | KEY_WOW64_32KEY, &key);
      key_.reset(key);
    }
    if (!own || !key_) return {root, path.c_str(), mask};
    return {key_.get(), path.c_str() + kSoftware.size(), mask & ~kBothViews};
  }

 private:
  static constexpr std::wstring_view kSoftware = L"Software\\";
  static constexpr std::wstring_view kOwn = L"Software\\Tavrwork";
  OwnedKey key_;
};

Win32Registry::Win32Registry() : software_(std::make_unique<Software>()) {}
Win32Registry::~Win32Registry() = default;

OpenedKey Win32Registry::open(Root root, std::string_view path, std::uint32_t access) {
  const HKEY base = handleOf(root);
  const std::wstring name = wide(path);
  if (const Status refused = refusal(base, name, access)) return {refused, nullptr};
  const REGSAM mask = withView(base, name, access);
  const Software::Place at = software_->place(base, name, mask);
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExW(at.base, at.name, 0, at.mask, &key);
  return opened(status, key, mask);
}

OpenedKey Win32Registry::create(Root root, std::string_view path, std::string_view key_class,
                                std::uint32_t access) {
  const HKEY base = handleOf(root);
  const std::wstring name = wide(path);
  if (const Status refused = refusal(base, name, access)) return {refused, nullptr};
  const REGSAM mask = withView(base, name, access);
  const Software::Place at = software_->place(base, name, mask);
  std::wstring class_text = wide(key_class);
  SECURITY_ATTRIBUTES attributes = {kAttributesLength, nullptr, TRUE};
  HKEY key = nullptr;
  const LSTATUS status =
      RegCreateKeyExW(at.base, at.name, 0, class_text.data(), REG_OPTION_NON_VOLATILE, at.mask,
                      &attributes, &key, nullptr);
  return opened(status, key, mask);
}

Status Win32Registry::deleteKey(Root root, std::string_view path) {
  const HKEY base = handleOf(root);
  const std::wstring name = wide(path);
  if (const Status refused = refusal(base, name, 0)) return refused;
  return static_cast<Status>(RegDeleteKeyExW(base, name.c_str(), KEY_WOW64_64KEY, 0));
}

}  // namespace tavr::win32
