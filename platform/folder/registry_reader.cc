#include "platform/folder/registry_reader.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "basic/utf.h"
#include "platform/folder/machine_text.h"
#include "platform/folder/registry_encoding.h"
#include "platform/registry.h"

namespace tavr::folder {

namespace {

constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";

class Reader {
 public:
  Reader(std::string_view file, std::string_view text, RegistryTree& tree)
      : file_(file), text_(text), tree_(tree) {}

  void read() {
    if (!take(kHeader)) refuse("does not begin with \"" + std::string(kHeader) + "\"");
    endLine(line_);
    while (pos_ < text_.size()) {
      skipBlanks();
      const char first = pos_ < text_.size() ? text_[pos_] : '\n';
      if (first == '[') {
        section();
      } else if (first == '"' || first == '@') {
        value();
      } else if (first == ';' || atLineEnd()) {
        endLine(line_);
      } else {
        refuse("neither a key nor a value");
      }
    }
  }

 private:
  [[noreturn]] void refuse(std::string_view what) const { refuseLine(file_, line_, what); }

  char peek() const { return pos_ < text_.size() ? text_[pos_] : '\0'; }

  bool take(std::string_view token) {
    if (!text_.substr(pos_).starts_with(token)) return false;
    pos_ += token.size();
    return true;
  }

  void skipBlanks() {
    while (peek() == ' ' || peek() == '\t') ++pos_;
  }

  bool atLineEnd() const {
    const std::string_view rest = text_.substr(pos_);
    return rest.empty() || rest[0] == '\n' || rest.starts_with("\r\n") || rest == "\r";
  }

  void nextLine() {
    const std::size_t end = text_.find('\n', pos_);
    pos_ = end == std::string_view::npos ? text_.size() : end + 1;
    ++line_;
  }

  // Only blanks or a comment may stand before the line's end.
  void endLine(std::size_t begun_on) {
    skipBlanks();
    if (peek() != ';' && !atLineEnd()) {
      refuseLine(file_, begun_on, "something stands behind what the line says");
    }
    nextLine();
  }

  void section();
  void openKey(std::string_view path);
  void value();
  std::string quoted();
  std::string hexBytes();
  std::uint32_t hexNumber();
  void continueLine();

  struct Level {
    std::size_t end;  // where its name ends in path_
    RegistryNodePtr key;
  };

  std::string_view file_;
  std::string_view text_;
  RegistryTree& tree_;
  std::size_t pos_ = 0;
  std::size_t line_ = 1;
  std::string_view path_;      // of the section being read ...
  std::vector<Level> levels_;  // ... and the keys on its way, the root first
};

void Reader::section() {
  const std::string_view line = text_.substr(pos_, text_.find('\n', pos_) - pos_);
  // A key's name may hold "]".
  const std::size_t close = line.rfind(']');
  if (close == std::string_view::npos) refuse("the key has no closing ]");
  const std::string_view path = line.substr(1, close - 1);
  if (path.starts_with('-')) refuse("a line that deletes a key");
  openKey(path);
  pos_ += close + 1;
  endLine(line_);
}

// Neighbouring sections share most of their path: only what differs is looked up.
void Reader::openKey(std::string_view path) {
  const auto differ = std::mismatch(path.begin(), path.end(), path_.begin(), path_.end()).first;
  const auto same = static_cast<std::size_t>(differ - path.begin());
  const auto shared = [&](const Level& level) {
    return level.end <= same && (level.end == path.size() || path[level.end] == '\\');
  };
  while (!levels_.empty() && !shared(levels_.back())) levels_.pop_back();
  path_ = path;

  for (std::size_t at = levels_.empty() ? 0 : levels_.back().end; at < path.size();) {
    const std::size_t end = std::min(path.find('\\', at), path.size());
    const std::string_view name = path.substr(at, end - at);
    if (levels_.empty()) {
      RegistryNodePtr root = tree_.root(name);
      if (root == nullptr) refuse("no such root: " + std::string(name));
      levels_.push_back({end, std::move(root)});
    } else if (!name.empty()) {
      if (reaches(name, kMaxKeyName + 1)) refuse("a key name of more than 255 characters");
      if (levels_.size() > kMaxKeyDepth) refuse("more than 512 keys below one another");
      levels_.push_back({end, tree_.makeSubkey(*levels_.back().key, name)});
    }
    at = end + 1;
  }
  if (levels_.empty()) refuse("a key without a name");
  tree_.list(*levels_.back().key);
}

void Reader::value() {
  const std::size_t begun_on = line_;
  if (levels_.empty()) refuse("a value before the first key");
  const std::string name = take("@") ? std::string() : quoted();
  skipBlanks();
  if (!take("=")) refuseLine(file_, begun_on, "no = behind the value's name");
  skipBlanks();

  const std::size_t start = pos_;
  std::uint32_t type = kRegSz;
  std::string data;
  std::size_t last_line = begun_on;  // a quote that closes lines later was forgotten here
  if (peek() == '"') {
    data = utf16Bytes(quoted());
    data.append(2, '\0');
  } else if (take("dword:")) {
    type = kRegDword;
    const std::uint32_t number = hexNumber();
    for (int shift = 0; shift < 32; shift += 8) data += static_cast<char>(number >> shift & 0xFF);
  } else if (take("hex")) {
    type = kRegBinary;
    if (take("(")) {
      type = hexNumber();
      if (!take(")")) refuse("no ) behind the type");
    }
    if (!take(":")) refuse("no : behind the type");
    data = hexBytes();
    last_line = line_;
  } else {
    refuse(peek() == '-' ? "a line that deletes a value" : "no such type of value");
  }
  const std::string_view written = text_.substr(start, pos_ - start);
  endLine(last_line);
  tree_.setValue(*levels_.back().key, name, type, std::move(data), written);
}

// A quoted text; line ends may stand in it as they do in real exports.
std::string Reader::quoted() {
  std::string out;
  const std::size_t begin = pos_;
  for (std::size_t from = pos_ + 1;;) {
    const std::size_t at = text_.find_first_of("\"\\", from);
    if (at == std::string_view::npos) refuse("a quote that is not closed");
    out += text_.substr(from, at - from);
    pos_ = at + 1;
    if (text_[at] == '"') break;
    if (peek() != '"' && peek() != '\\') refuse("a \\ before neither \\ nor \"");
    out += text_[pos_];
    from = pos_ + 1;
  }
  const std::string_view all = text_.substr(begin, pos_ - begin);
  line_ += static_cast<std::size_t>(std::count(all.begin(), all.end(), '\n'));
  return out;
}

// Up to eight hexadecimal digits.
std::uint32_t Reader::hexNumber() {
  std::uint32_t number = 0;
  const char* begin = text_.data() + pos_;
  const auto [end, error] = std::from_chars(begin, text_.data() + text_.size(), number, 16);
  if (error != std::errc() || end - begin > 8) refuse("no hexadecimal number");
  pos_ += static_cast<std::size_t>(end - begin);
  return number;
}

void Reader::continueLine() {
  ++pos_;
  skipBlanks();
  if (!atLineEnd()) refuse("something stands behind the \\ that continues the line");
  nextLine();
  skipBlanks();
}

std::string Reader::hexBytes() {
  std::string data;
  bool more = false;  // a comma or a continued line asks for another byte
  for (;;) {
    skipBlanks();
    if (peek() == '\\') {
      continueLine();
      more = true;
    }
    if (!more && (atLineEnd() || peek() == ';')) return data;
    const std::string_view digits = text_.substr(pos_, 2);
    const char* end = digits.data() + digits.size();
    std::uint8_t byte = 0;
    if (digits.size() < 2 || std::from_chars(digits.data(), end, byte, 16).ptr != end) {
      refuse("no hexadecimal byte of two digits");
    }
    data += static_cast<char>(byte);
    pos_ += 2;
    skipBlanks();
    if (!take(",")) return data;
    more = true;
  }
}

}  // namespace

void readRegistry(std::string_view file, std::string_view text, RegistryTree& tree) {
  Reader(file, text, tree).read();
  tree.setUnchanged();
}

}  // namespace tavr::folder
