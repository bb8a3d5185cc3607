#include "platform/folder/windows_path.h"

#include <algorithm>
#include <array>

#include "basic/text.h"
#include "basic/utf.h"

namespace tavr::folder {

namespace {

constexpr std::array<bool, 256> makeForbidden() {
  std::array<bool, 256> forbidden{};
  for (std::size_t c = 0; c < 0x20; ++c) forbidden[c] = true;
  for (const char c : std::string_view("<>:\"/\\|?*")) {
    forbidden[static_cast<unsigned char>(c)] = true;
  }
  return forbidden;
}

constexpr std::array<bool, 256> kForbidden = makeForbidden();

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// The path that a text starts from; what is left of the text is taken from there.
WindowsPath startOf(std::string_view& text, const PathBase& base) {
  WindowsPath start;
  if (text.size() >= 2 && isLetter(text[0]) && text[1] == ':') {
    start.drive = static_cast<char>(text[0] & ~0x20);
    text.remove_prefix(2);
    if (text.empty() || !isSeparator(text[0])) {
      // "C:name" is relative to where the drive stands; another drive than the
      // current one stands at its root.
      if (start.drive == base.current.drive) start.components = base.current.components;
    }
  } else if (isSeparator(text[0])) {
    start.drive = base.program_drive;
  } else {
    start.drive = base.current.drive;
    start.components = base.current.components;
  }
  return start;
}

// A "." or ".." at the end of the text leaves the component before it as the
// last one, which loses its dots and blanks like any other.
void endInDots(WindowsPath& path) {
  if (path.components.empty()) return;
  std::string& name = path.components.back();
  name.resize(withoutTrailingDots(name).size());
  if (!name.empty()) return;
  path.components.pop_back();
  path.ends_in_separator = true;
}

void addPiece(std::string_view piece, bool last, WindowsPath& path) {
  if (piece == "." || piece == "..") {
    if (piece == ".." && !path.components.empty()) path.components.pop_back();
    if (last) endInDots(path);
    return;
  }
  if (!last && piece.empty()) return;
  if (last) {
    piece = withoutTrailingDots(piece);
  } else if (piece.ends_with('.') && !piece.ends_with("..")) {
    piece.remove_suffix(1);
  }
  if (!piece.empty()) {
    path.components.emplace_back(piece);
  } else if (last) {
    path.ends_in_separator = true;
  }
}

}  // namespace

std::string_view withoutTrailingDots(std::string_view name) {
  const std::size_t last = name.find_last_not_of(". ");
  return last == std::string_view::npos ? std::string_view() : name.substr(0, last + 1);
}

bool hasNameCharacters(std::string_view name) {
  return std::none_of(name.begin(), name.end(),
                      [](char c) { return kForbidden[static_cast<unsigned char>(c)]; });
}

bool isMachineName(std::string_view name) {
  return !name.empty() && name.back() != '.' && name.back() != ' ' && hasNameCharacters(name);
}

Status parsePath(std::string_view text, const PathBase& base, WindowsPath& path) {
  text = untilNul(text);
  if (text.empty() || reaches(text, kMaxPath)) return kPathNotFound;
  if (text.size() >= 2 && isSeparator(text[0]) && isSeparator(text[1])) return kPathNotFound;

  path = startOf(text, base);
  for (;;) {
    const std::size_t end = text.find_first_of("\\/");
    addPiece(text.substr(0, end), end == std::string_view::npos, path);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  for (std::size_t i = 0; i + 1 < path.components.size(); ++i) {
    if (!hasNameCharacters(path.components[i])) return kInvalidName;
  }
  return kSuccess;
}

std::string pathText(const WindowsPath& path) {
  std::string text{path.drive, ':'};
  for (const std::string& component : path.components) {
    text += '\\';
    text += component;
  }
  if (path.components.empty()) text += '\\';
  return text;
}

}  // namespace tavr::folder
