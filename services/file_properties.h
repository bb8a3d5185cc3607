// The properties of one named file, as the counters of a run read them.
#pragma once

#include <string>
#include <string_view>

#include "platform/machine.h"

namespace tavr {

class clsFileProp {
 public:
  explicit clsFileProp(Machine& machine) : machine_(machine) {}

  /// Fills the properties; 0 for an empty path, which changes nothing, else 1,
  /// also for a file that is gone: its dates are then those of 1601.
  int FindFileInfo(std::string_view path);

  // In their order; those that FindFileInfo does not fill keep their defaults.
  int IconIndex() const { return 0; }
  std::string FileType() const { return ""; }
  bool Compress() const { return has(kAttrCompressed); }
  bool Temporary() const { return has(kAttrTemporary); }
  bool Normal() const { return has(kAttrNormal); }
  bool Archive() const { return has(kAttrArchive); }
  bool Directory() const { return false; }
  bool System() const { return has(kAttrSystem); }
  bool Hidden() const { return has(kAttrHidden); }
  bool ReadOnly() const { return has(kAttrReadOnly); }
  const std::string& LastWriteTime() const { return last_write_time_; }
  const std::string& LastAccessTime() const { return last_access_time_; }
  const std::string& CreationTime() const { return creation_time_; }
  /// The high word of the size unless that is 0, else the low word, signed;
  /// "" for 0. A file of 4 GiB or more thus reports a small number.
  const std::string& ByteSize() const { return byte_size_; }
  std::string ProductVersion() const { return ""; }
  std::string ProductName() const { return ""; }
  std::string OriginalFileName() const { return ""; }
  std::string LegalCopyright() const { return ""; }
  std::string InternalName() const { return ""; }
  std::string FileVersion() const { return ""; }
  std::string FileDescription() const { return ""; }
  std::string CompanyName() const { return ""; }
  /// The path in upper case.
  const std::string& FileName() const { return file_name_; }

 private:
  bool has(std::uint32_t attribute) const { return (attributes_ & attribute) != 0; }

  Machine& machine_;
  std::uint32_t attributes_ = 0;
  std::string last_write_time_;
  std::string last_access_time_;
  std::string creation_time_;
  std::string byte_size_;
  std::string file_name_;
};

}  // namespace tavr
