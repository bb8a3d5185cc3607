// The files of one test's machine folder, and short forms of asking them.
#pragma once

#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/folder_files.h"
#include "tests/unit/platform/folder_fixture.h"

namespace tavr::folder {

class FolderFilesFixture : public FolderFixture {
 protected:
  std::vector<std::string> names(std::string_view path) {
    std::vector<FoundFile> found;
    files_.find(path, found);
    std::vector<std::string> all;
    for (const FoundFile& file : found) all.push_back(file.name);
    return all;
  }
  FolderListing list(std::string_view folder, std::string_view mask) {
    FolderListing listing;
    files_.listFolder(folder, mask, listing);
    return listing;
  }
  std::vector<std::string> listed(std::string_view folder, std::string_view mask) {
    std::vector<std::string> all;
    for (const FoundFile& file : list(folder, mask).files) all.push_back(file.name);
    return all;
  }
  Status find(std::string_view path) {
    std::vector<FoundFile> found;
    return files_.find(path, found);
  }
  std::uint32_t attributes(std::string_view path) {
    std::uint32_t bits = 0;
    return files_.attributes(path, bits) == kSuccess ? bits : 0xFFFFFFFF;
  }
  Status attributesStatus(std::string_view path) {
    std::uint32_t bits = 0;
    return files_.attributes(path, bits);
  }
  Status open(std::string_view path, OpenMode mode = OpenMode::kInput) {
    return files_.open(path, mode).status;
  }
  Status open(FolderFiles& files, std::string_view path, OpenMode mode) {
    return files.open(path, mode).status;
  }
  std::string xattr(std::string_view path) {
    char value[64];
    const ssize_t size = ::getxattr(host(path).c_str(), "user.DOSATTRIB", value, sizeof value);
    return size < 0 ? "none" : std::string(value, static_cast<std::size_t>(size));
  }
  void setXattr(std::string_view path, std::string_view value) {
    ASSERT_EQ(::setxattr(host(path).c_str(), "user.DOSATTRIB", value.data(), value.size(), 0), 0);
  }

  FolderTree tree_{machine().string(), "C:\\App"};
  Faults faults_;
  FolderFiles files_{tree_, {}, faults_};
};

}  // namespace tavr::folder
