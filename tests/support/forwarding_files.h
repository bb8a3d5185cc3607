// The files of another machine, handed through: a test derives from it and
// overrides the one operation that it counts or lets answer otherwise.
#pragma once

#include "platform/files.h"

namespace tavr::testing {

class ForwardingFiles : public Files {
 public:
  explicit ForwardingFiles(Files& inner) : inner_(inner) {}

  Status find(std::string_view path, std::vector<FoundFile>& found) override {
    return inner_.find(path, found);
  }
  Status findFirst(std::string_view path, FoundFile& found) override {
    return inner_.findFirst(path, found);
  }
  void listFolder(std::string_view folder, std::string_view mask, FolderListing& listing) override {
    inner_.listFolder(folder, mask, listing);
  }
  Status attributes(std::string_view path, std::uint32_t& out) override {
    return inner_.attributes(path, out);
  }
  Status setAttributes(std::string_view path, std::uint32_t attributes) override {
    return inner_.setAttributes(path, attributes);
  }
  Status remove(std::string_view path) override { return inner_.remove(path); }
  OpenedFile open(std::string_view path, OpenMode mode) override { return inner_.open(path, mode); }
  Status copy(std::string_view from, std::string_view to) override { return inner_.copy(from, to); }
  bool canOpen(std::string_view path) override { return inner_.canOpen(path); }
  Status setCurrentDirectory(std::string_view path) override {
    return inner_.setCurrentDirectory(path);
  }
  Status subfolders(std::string_view folder, std::vector<std::string>& names) override {
    return inner_.subfolders(folder, names);
  }
  Status security(std::string_view path, SecurityDescriptor& out) override {
    return inner_.security(path, out);
  }
  Status setSecurity(std::string_view path, const SecurityDescriptor& descriptor) override {
    return inner_.setSecurity(path, descriptor);
  }

 private:
  Files& inner_;
};

}  // namespace tavr::testing
