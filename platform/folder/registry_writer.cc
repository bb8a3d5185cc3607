#include "platform/folder/registry_writer.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "basic/number.h"
#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/registry_encoding.h"
#include "platform/registry.h"

namespace tavr::folder {

namespace {

// The editor breaks a line behind the byte that reaches this column, so that no
// line of short names is longer than 80.
constexpr std::size_t kBreakColumn = 77;

class Writer {
 public:
  explicit Writer(bool crlf) : line_end_(crlf ? "\r\n" : "\n") {}

  std::string write(const RegistryTree& tree) {
    out_ = "Windows Registry Editor Version 5.00";
    out_ += line_end_;
    out_ += line_end_;
    for (const RegistryNodePtr& root : tree.roots()) {
      path_ = root->name();
      keys(*root, root->listed() || !root->values().empty());
    }
    return std::move(out_);
  }

 private:
  void keys(const RegistryNode& key, bool section) {
    if (section) {
      out_ += '[';
      out_ += path_;
      out_ += ']';
      out_ += line_end_;
      for (const auto& each : key.values()) value(*each);
      out_ += line_end_;
    }
    for (const RegistryNodePtr& subkey : key.subkeys()) {
      const std::size_t length = path_.size();
      path_ += '\\';
      path_ += subkey->name();
      // A key on the way to others needs no section of its own.
      keys(*subkey, subkey->listed() || !subkey->values().empty() || subkey->subkeys().empty());
      path_.resize(length);
    }
  }

  void value(const RegistryValue& value) {
    const std::size_t begin = out_.size();
    if (value.name.empty()) {
      out_ += '@';
    } else {
      quoted(value.name);
    }
    out_ += '=';
    if (!value.written.empty()) {
      out_ += value.written;
    } else {
      data(value, utf16Length(std::string_view(out_).substr(begin)));
    }
    out_ += line_end_;
  }

  void data(const RegistryValue& value, std::size_t column) {
    if (value.type == kRegSz && isPlainText(value.data)) {
      quoted(fromUtf16Bytes(value.data.substr(0, value.data.size() - 2)));
    } else if (value.type == kRegDword && value.data.size() == 4) {
      out_ += "dword:";
      for (std::size_t i = 4; i-- > 0;) hexByte(value.data[i]);
    } else {
      std::string prefix = "hex:";
      if (value.type != kRegBinary) prefix = "hex(" + LCase(Hex(value.type)) + "):";
      out_ += prefix;
      hexBytes(value.data, column + prefix.size());
    }
  }

  // Ends in its NUL and reads back as the same bytes.
  static bool isPlainText(std::string_view data) {
    if (data.size() < 2 || data.size() % 2 != 0) return false;
    const std::string text = fromUtf16Bytes(data);
    if (text.find('\0') != text.size() - 1) return false;
    for (std::size_t pos = 0; pos < text.size();) {
      const std::size_t start = pos;
      const bool ascii = static_cast<unsigned char>(text[pos]) < 0x80;
      nextCharacter(text, pos);
      if (!ascii && pos - start == 1) return false;  // half a pair of surrogates
    }
    return true;
  }

  void quoted(std::string_view text) {
    out_ += '"';
    for (const char c : text) {
      if (c == '"' || c == '\\') out_ += '\\';
      out_ += c;
    }
    out_ += '"';
  }

  void hexByte(char byte) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out_ += kDigits[static_cast<unsigned char>(byte) >> 4];
    out_ += kDigits[static_cast<unsigned char>(byte) & 0xF];
  }

  void hexBytes(std::string_view data, std::size_t column) {
    for (std::size_t i = 0; i < data.size(); ++i) {
      hexByte(data[i]);
      if (i + 1 == data.size()) return;
      out_ += ',';
      column += 3;
      if (column < kBreakColumn) continue;
      out_ += '\\';
      out_ += line_end_;
      out_ += "  ";
      column = 2;
    }
  }

  std::string_view line_end_;
  std::string out_;
  std::string path_;
};

}  // namespace

std::string writeRegistry(const RegistryTree& tree, bool crlf) { return Writer(crlf).write(tree); }

}  // namespace tavr::folder
