#include "platform/folder/ini_files.h"

#include <cstddef>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/machine_text.h"

namespace tavr::folder {

namespace {

// Where a line stands in the text.
struct Line {
  std::size_t begin = 0;
  std::size_t end = 0;   // without its line end
  std::size_t next = 0;  // begin of the next line
};

Line lineAt(std::string_view text, std::size_t begin) {
  const std::size_t newline = text.find('\n', begin);
  if (newline == std::string_view::npos) return {begin, text.size(), text.size()};
  const bool crlf = newline > begin && text[newline - 1] == '\r';
  return {begin, crlf ? newline - 1 : newline, newline + 1};
}

std::string_view contentOf(std::string_view text, const Line& line) {
  return trimBlanks(text.substr(line.begin, line.end - line.begin));
}

std::size_t headOf(std::string_view text) { return text.starts_with("\xEF\xBB\xBF") ? 3 : 0; }

// The lines between a section's heading and the next one.
struct Body {
  std::size_t begin = 0;
  std::size_t end = 0;
};

std::optional<Body> findSection(std::string_view text, std::string_view name) {
  std::optional<Body> body;
  for (std::size_t at = headOf(text); at < text.size();) {
    const Line line = lineAt(text, at);
    at = line.next;
    const std::string_view content = contentOf(text, line);
    const std::size_t close = content.find(']');
    if (!content.starts_with('[') || close == std::string_view::npos) continue;
    if (body) return Body{body->begin, line.begin};
    if (sameText(trimBlanks(content.substr(1, close - 1)), name)) {
      body = Body{line.next, text.size()};
    }
  }
  return body;
}

bool isEntry(std::string_view content) { return !content.empty() && content[0] != ';'; }

// Where the value of a key stands: behind its "=", up to the line's end.
std::optional<Body> findValue(std::string_view text, const Body& body, std::string_view key) {
  for (std::size_t at = body.begin; at < body.end;) {
    const Line line = lineAt(text, at);
    at = line.next;
    const std::string_view whole = text.substr(line.begin, line.end - line.begin);
    const std::size_t equals = whole.find('=');
    if (equals == std::string_view::npos || !isEntry(trimBlanks(whole))) continue;
    const std::string_view name = trimBlanks(whole.substr(0, equals));
    if (!name.empty() && sameText(name, key)) return Body{line.begin + equals + 1, line.end};
  }
  return std::nullopt;
}

std::string_view withoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// Behind the last line of the section that holds something, so that the blank
// lines before the next section stay there.
std::size_t placeForKey(std::string_view text, const Body& body) {
  std::size_t place = body.begin;
  for (std::size_t at = body.begin; at < body.end;) {
    const Line line = lineAt(text, at);
    at = line.next;
    if (!contentOf(text, line).empty()) place = line.next;
  }
  return place;
}

void insertLine(std::string& text, std::size_t place, const std::string& line) {
  const bool open_line = place > headOf(text) && text[place - 1] != '\n';
  text.insert(place, (open_line ? "\r\n" : "") + line + "\r\n");
}

void setValue(std::string& text, std::string_view section, std::string_view key,
              std::string_view value) {
  const std::string line = std::string(key) + "=" + std::string(value);
  const std::optional<Body> body = findSection(text, section);
  if (!body) {
    insertLine(text, text.size(), "[" + std::string(section) + "]\r\n" + line);
    return;
  }
  if (const std::optional<Body> found = findValue(text, *body, key)) {
    text.replace(found->begin, found->end - found->begin, value);
    return;
  }
  insertLine(text, placeForKey(text, *body), line);
}

// The digits at the head of a value, with a sign; wraps as the service does.
std::int32_t leadingNumber(std::string_view value) {
  const bool negative = value.starts_with('-');
  if (negative || value.starts_with('+')) value.remove_prefix(1);
  std::uint32_t number = 0;
  for (const char c : value) {
    if (c < '0' || c > '9') break;
    number = number * 10 + static_cast<std::uint32_t>(c - '0');
  }
  return static_cast<std::int32_t>(negative ? 0 - number : number);
}

}  // namespace

Status FolderIniFiles::read(std::string_view file, std::string& text) {
  OpenedFile opened = files_.open(file, OpenMode::kInput);
  if (opened.status != kSuccess) return opened.status;
  const auto length = static_cast<std::size_t>(opened.file->length());
  return opened.file->read(0, length, text);
}

std::optional<std::string> FolderIniFiles::value(std::string_view section, std::string_view key,
                                                 std::string_view file) {
  std::string text;
  if (read(file, text) != kSuccess) return std::nullopt;
  const std::optional<Body> body = findSection(text, section);
  if (!body) return std::nullopt;
  const std::optional<Body> found = findValue(text, *body, key);
  if (!found) return std::nullopt;
  return std::string(trimBlanks(text.substr(found->begin, found->end - found->begin)));
}

std::string FolderIniFiles::getString(std::string_view section, std::string_view key,
                                      std::string_view fallback, std::uint32_t capacity,
                                      std::string_view file) {
  if (capacity == 0) return {};
  const std::optional<std::string> found = value(section, key, file);
  // The service takes the blanks off the end of a default, too.
  const std::string_view text = found ? withoutQuotes(*found) : RTrim(fallback);
  return std::string(leftUtf16(text, capacity - 1));
}

std::int32_t FolderIniFiles::getInt(std::string_view section, std::string_view key,
                                    std::int32_t fallback, std::string_view file) {
  const std::optional<std::string> found = value(section, key, file);
  return found ? leadingNumber(*found) : fallback;
}

std::string FolderIniFiles::getSection(std::string_view section, std::uint32_t capacity,
                                       std::string_view file) {
  std::string text;
  if (read(file, text) != kSuccess) return {};
  const std::optional<Body> body = findSection(text, section);
  if (!body || capacity < 2) return {};
  std::string lines;
  for (std::size_t at = body->begin; at < body->end;) {
    const Line line = lineAt(text, at);
    at = line.next;
    const std::string_view content = contentOf(text, line);
    if (!isEntry(content)) continue;
    const std::size_t equals = content.find('=');
    lines += trimBlanks(content.substr(0, equals));
    if (equals != std::string_view::npos) {
      lines += '=';
      lines += trimBlanks(content.substr(equals + 1));
    }
    lines += '\0';
  }
  if (lines.empty()) return {};
  if (reaches(lines, capacity)) {  // no room for the closing NUL
    lines = std::string(leftUtf16(lines, capacity - 2)) + '\0';
  }
  return lines + '\0';
}

Status FolderIniFiles::writeString(std::string_view section, std::string_view key,
                                   std::string_view value, std::string_view file) {
  std::string text;
  const Status status = read(file, text);
  if (status != kSuccess && status != kFileNotFound) return status;
  std::string changed = text;
  setValue(changed, section, key, value);
  if (status == kSuccess && changed == text) return kSuccess;
  OpenedFile opened = files_.open(file, OpenMode::kOutput);
  if (opened.status != kSuccess) return opened.status;
  return opened.file->write(0, changed);
}

}  // namespace tavr::folder
