// The profile services over the machine's files: each call reads the file
// anew, a write puts it back whole. Text is UTF-8, a byte order mark at the head
// is passed over.
#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/ini.h"

namespace tavr::folder {

/// A section or key that stands in the file several times is the first of them.
/// A line that begins with ";" is a comment. Blanks are U+0020 and tabs.
class FolderIniFiles final : public IniFiles {
 public:
  /// `files` outlives this object.
  explicit FolderIniFiles(Files& files) : files_(files) {}

  std::string getString(std::string_view section, std::string_view key, std::string_view fallback,
                        std::uint32_t capacity, std::string_view file) override;
  std::int32_t getInt(std::string_view section, std::string_view key, std::int32_t fallback,
                      std::string_view file) override;
  std::string getSection(std::string_view section, std::uint32_t capacity,
                         std::string_view file) override;
  /// The file is emptied and written again, unless the line is the same already.
  Status writeString(std::string_view section, std::string_view key, std::string_view value,
                     std::string_view file) override;

 private:
  Status read(std::string_view file, std::string& text);
  std::optional<std::string> value(std::string_view section, std::string_view key,
                                   std::string_view file);

  Files& files_;
};

}  // namespace tavr::folder
