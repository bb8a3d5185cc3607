// registry.reg: the registry editor's export text, "Windows Registry Editor
// Version 5.00", read whole and replaced whole. The text itself is the business
// of registry_reader.h and registry_writer.h.
#pragma once

#include <memory>
#include <string>

#include "platform/folder/registry_encoding.h"
#include "platform/folder/registry_tree.h"

namespace tavr::folder {

class RegistryFile {
 public:
  /// Reads the file; a missing one is an empty registry, to be saved as UTF-8
  /// with LF. Raises MalformedFile with the line for a text that the format
  /// does not have, and for a link or a folder of this name.
  static RegistryFile load(const std::string& path);

  RegistryTree& tree() { return *tree_; }

  /// Writes the file beside, flushes it and renames it; nothing when the registry
  /// is as loaded or last saved. Encoding and line ends stay as found, comments
  /// do not. False: it could not be written, and the old file stands.
  bool save(const std::string& path);

 private:
  RegistryFile() = default;

  RegistryEncoding encoding_;
  std::unique_ptr<const std::string> text_;  // the tree's values point into it
  std::unique_ptr<RegistryTree> tree_ = std::make_unique<RegistryTree>();
};

}  // namespace tavr::folder
