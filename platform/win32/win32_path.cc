#include "platform/win32/win32_path.h"

#include <windows.h>

#include <string>

#include "basic/text.h"
#include "platform/win32/program_file.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

bool isSeparator(wchar_t unit) { return unit == L'\\' || unit == L'/'; }

// Windows would take the current directory's drive, which the program changes.
wchar_t programsDrive() {
  static const wchar_t kDrive = [] {
    const std::wstring path = programFile();
    return path.size() > 1 && path[1] == L':' ? path[0] : L'C';
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
  if (text.empty()) refused_ = kPathNotFound;
  const auto separates = [text](std::size_t at) {
    return at < text.size() && (text[at] == '\\' || text[at] == '/');
  };
  if (separates(0) && !separates(1)) startAtProgramsDrive();
  const std::size_t start = length_;  // the drive is not counted
  for (std::size_t pos = 0; pos < text.size() && refused_ == kSuccess;) {
    add(nextWide(text, pos));
    if (length_ - start >= kMaxPath) refused_ = kPathNotFound;
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

Status lastStatusOfFile(const NativePath& path) {
  const Status status = lastFileStatus();
  if (!isSeparator(path.text().back())) return status;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool folder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return folder ? kAccessDenied : status;
}

}  // namespace tavr::win32
