// An open file of the machine folder.
#pragma once

#include <memory>

#include "platform/files.h"
#include "platform/folder/faults.h"
#include "platform/folder/file_descriptor.h"

namespace tavr::folder {

class FolderOpenFile : public OpenFile {
 public:
  FolderOpenFile(FileDescriptor file, Faults::Point& read_fault, Faults::Point& write_fault)
      : file_(std::move(file)), read_fault_(read_fault), write_fault_(write_fault) {}

  std::uint64_t length() override;
  Status read(std::uint64_t offset, std::size_t size, std::string& out) override;
  Status write(std::uint64_t offset, std::string_view bytes) override;

 private:
  FileDescriptor file_;
  Faults::Point& read_fault_;
  Faults::Point& write_fault_;
};

/// Everything of `from` over everything of `to`, both open.
Status copyContent(int from, int to);

}  // namespace tavr::folder
