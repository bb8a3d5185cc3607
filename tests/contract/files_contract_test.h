// The fixture of the suites of platform/files.h: short forms of asking about
// the scratch folder.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/contract/contract_test.h"

namespace tavr::contract {

class FilesContractTest : public ContractTest {
 protected:
  Files& files() { return machine().files; }

  Status open(std::string_view path, OpenMode mode = OpenMode::kInput) {
    const OpenedFile opened = files().open(path, mode);
    EXPECT_EQ(opened.file != nullptr, opened.status == kSuccess) << path;
    return opened.status;
  }
  Status attributesStatus(std::string_view path) {
    std::uint32_t bits = 0;
    return files().attributes(path, bits);
  }
  std::uint32_t attributes(std::string_view path) {
    std::uint32_t bits = 0;
    EXPECT_EQ(files().attributes(path, bits), kSuccess) << path;
    return bits;
  }
  Status findStatus(std::string_view path) {
    std::vector<FoundFile> found;
    return files().find(path, found);
  }
  /// What a search of the scratch folder finds, without "." and "..".
  std::vector<std::string> found(std::string_view pattern) {
    std::vector<FoundFile> entries;
    files().find(at(pattern), entries);
    std::vector<std::string> names;
    for (const FoundFile& entry : entries) {
      if (entry.name != "." && entry.name != "..") names.push_back(entry.name);
    }
    return names;
  }
  FolderListing listed(std::string_view folder, std::string_view mask) {
    FolderListing listing;
    files().listFolder(folder, mask, listing);
    return listing;
  }
  static std::vector<std::string> namesOf(const std::vector<FoundFile>& entries) {
    std::vector<std::string> names;
    for (const FoundFile& entry : entries) names.push_back(entry.name);
    return names;
  }
  /// A path in the scratch folder of exactly `length` units, its folders made.
  std::string longPath(std::size_t length) {
    std::string path = at();
    while (length - path.size() > 120) path += "\\" + std::string(99, 'f');
    on().plantFolder(path);
    return path + "\\" + std::string(length - path.size() - 1, 'n');
  }
};

}  // namespace tavr::contract
