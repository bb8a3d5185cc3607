// The files of the machine that the program runs on. Paths go to Windows as they
// stand, without the prefix that lifts the limit of 260.
#pragma once

#include "platform/files.h"

namespace tavr::win32 {

class Win32Files : public Files {
 public:
  Status find(std::string_view path, std::vector<FoundFile>& found) override;
  Status findFirst(std::string_view path, FoundFile& found) override;
  void listFolder(std::string_view folder, std::string_view mask, FolderListing& listing) override;
  Status subfolders(std::string_view folder, std::vector<std::string>& names) override;

  Status attributes(std::string_view path, std::uint32_t& out) override;
  Status setAttributes(std::string_view path, std::uint32_t attributes) override;
  Status remove(std::string_view path) override;
  OpenedFile open(std::string_view path, OpenMode mode) override;
  Status copy(std::string_view from, std::string_view to) override;
  bool canOpen(std::string_view path) override;
  Status setCurrentDirectory(std::string_view path) override;
  Status security(std::string_view path, SecurityDescriptor& out) override;
  Status setSecurity(std::string_view path, const SecurityDescriptor& descriptor) override;
};

}  // namespace tavr::win32
