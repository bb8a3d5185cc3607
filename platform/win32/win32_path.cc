#include "platform/win32/win32_path.h"

#include <windows.h>

#include <string>

#include "basic/text.h"
#include "basic/utf.h"

namespace tavr::win32 {

namespace {

bool isSeparator(wchar_t unit) { return unit == L'\\' || unit == L'/'; }

// Windows would take the current directory's drive, which the program changes.
wchar_t programsDrive() {
  static const wchar_t kDrive = [] {
    wchar_t path[MAX_PATH] = L"";
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    return length > 1 && path[1] == L':' ? path[0] : L'C';
  }();
  return kDrive;
}

// "\\.\" and "\\?\" name devices and lift every check off a path.
bool isDevicePath(std::wstring_view text) {
  return text.size() >= 3 && isSeparator(text[0]) && isSeparator(text[1]) &&
         (text[2] == L'.' || text[2] == L'?');
}

// Not every text that Windows takes is the path of a file.
Status refusalOf(std::wstring_view path) {
  if (isDevicePath(path)) return kPathNotFound;
  // Behind the drive's letter a colon names a stream of a file.
  return path.find(L':', 2) != std::wstring_view::npos ? kInvalidName : kSuccess;
}

}  // namespace

NativePath::NativePath(std::string_view text) {
  text = untilNul(text);
  if (text.empty() || reaches(text, kMaxPath)) refused_ = kPathNotFound;
  if (refused_ == kSuccess) {
    const bool one_separator = (text[0] == '\\' || text[0] == '/') &&
                               (text.size() == 1 || (text[1] != '\\' && text[1] != '/'));
    if (one_separator) startAtProgramsDrive();
    for (std::size_t pos = 0; pos < text.size();) add(nextCharacter(text, pos));
  }
  units_[length_] = L'\0';
  if (refused_ == kSuccess) refused_ = refusalOf(this->text());
}

void NativePath::startAtProgramsDrive() {
  add(static_cast<char32_t>(programsDrive()));
  add(U':');
}

void NativePath::add(char32_t character) {
  if (character > 0xFFFF) {
    units_[length_++] = static_cast<wchar_t>(0xD7C0 + (character >> 10));
    character = 0xDC00 | (character & 0x3FF);
  }
  units_[length_++] = static_cast<wchar_t>(character);
}

std::wstring_view NativePath::lastPart() const {
  const std::wstring_view all = text();
  return all.substr(all.find_last_of(L"\\/") + 1);
}

Status fileStatus(unsigned long error) {
  switch (error) {
    case ERROR_NO_MORE_FILES:
      return kFileNotFound;
    // Drives, shares and paths that are not there.
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_CANT_RESOLVE_FILENAME:
      return kPathNotFound;
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_CANNOT_MAKE:
    case ERROR_DELETE_PENDING:
    case ERROR_PRIVILEGE_NOT_HELD:
      return kAccessDenied;
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return kSharingViolation;
    case ERROR_HANDLE_DISK_FULL:
      return kDiskFull;
    default:
      return error;
  }
}

Status lastFileStatus() {
  const DWORD error = GetLastError();
  // A call that failed must not look like one that did not.
  return error == ERROR_SUCCESS ? kInvalidParameter : fileStatus(error);
}

Status lastStatusOfFile(const NativePath& path) {
  const Status status = lastFileStatus();
  if (!isSeparator(path.text().back())) return status;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool folder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return folder ? kAccessDenied : status;
}

}  // namespace tavr::win32
