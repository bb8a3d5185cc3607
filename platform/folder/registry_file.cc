#include "platform/folder/registry_file.h"

#include <filesystem>
#include <optional>
#include <utility>

#include "platform/folder/machine_text.h"
#include "platform/folder/registry_reader.h"
#include "platform/folder/registry_writer.h"

namespace tavr::folder {

namespace {

std::string folderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

std::string nameOf(const std::string& path) {
  return std::filesystem::path(path).filename().string();
}

}  // namespace

RegistryFile RegistryFile::load(const std::string& path) {
  const std::string name = nameOf(path);
  RegistryFile file;
  std::optional<std::string> bytes = readMachineFile(folderOf(path), name);
  if (!bytes) return file;
  file.text_ =
      std::make_unique<const std::string>(decodeRegistry(name, std::move(*bytes), file.encoding_));
  readRegistry(name, *file.text_, *file.tree_);
  return file;
}

bool RegistryFile::save(const std::string& path) {
  if (!tree_->changed()) return true;
  const std::string bytes = encodeRegistry(writeRegistry(*tree_, encoding_.crlf), encoding_);
  if (!replaceMachineFile(folderOf(path), nameOf(path), bytes, Flush::kToDisk)) return false;
  tree_->setUnchanged();
  return true;
}

}  // namespace tavr::folder
