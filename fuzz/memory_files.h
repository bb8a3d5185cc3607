// One file in memory behind the seam of the machine's files: enough for what
// opens, reads and replaces a file by one path, and nothing else.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace tavr::fuzz {

class MemoryFiles final : public Files {
 public:
  explicit MemoryFiles(std::string_view text) : text_(text) {}

  const std::string& text() const { return text_; }

  OpenedFile open(std::string_view path, OpenMode mode) override;

  Status find(std::string_view, std::vector<FoundFile>&) override { return kNotSupported; }
  Status findFirst(std::string_view, FoundFile&) override { return kNotSupported; }
  void listFolder(std::string_view, std::string_view, FolderListing&) override {}
  Status attributes(std::string_view, std::uint32_t&) override { return kNotSupported; }
  Status setAttributes(std::string_view, std::uint32_t) override { return kNotSupported; }
  Status remove(std::string_view) override { return kNotSupported; }
  Status copy(std::string_view, std::string_view) override { return kNotSupported; }
  bool canOpen(std::string_view) override { return true; }
  Status setCurrentDirectory(std::string_view) override { return kNotSupported; }
  Status subfolders(std::string_view, std::vector<std::string>&) override { return kNotSupported; }
  Status security(std::string_view /*path*/, SecurityDescriptor& /*out*/) override {
    return kNotSupported;
  }
  Status setSecurity(std::string_view /*path*/, const SecurityDescriptor& /*descriptor*/) override {
    return kNotSupported;
  }

 private:
  std::string text_;
};

}  // namespace tavr::fuzz
