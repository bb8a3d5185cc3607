// The files of the machine, by Windows paths ("C:\a\b").
//
// Names are found without case and kept in their case. A path that begins with
// one "\" is on the drive of the program's folder; a relative path starts at
// the current directory. A text of 260 UTF-16 units or more handed to an
// operation is not found (3), and nothing of the machine's own limits shows
// otherwise. What is missing gives 2, a missing folder on the way to it 3, and
// so does a file in a folder's place there; a name that no file can have gives
// 123, and so does a "\" behind the name of a file. A read-only file refuses to
// be opened for writing or deleted (5); a file that somebody else holds refuses
// to be opened or deleted (32), while searches, attributes and sizes work on it.
// Links are followed inside the machine; what leads out of it does not exist.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/security.h"
#include "platform/win_error.h"

namespace tavr {

inline constexpr std::uint32_t kAttrReadOnly = 0x1;
inline constexpr std::uint32_t kAttrHidden = 0x2;
inline constexpr std::uint32_t kAttrSystem = 0x4;
inline constexpr std::uint32_t kAttrDirectory = 0x10;
inline constexpr std::uint32_t kAttrArchive = 0x20;
inline constexpr std::uint32_t kAttrNormal = 0x80;
inline constexpr std::uint32_t kAttrTemporary = 0x100;
inline constexpr std::uint32_t kAttrCompressed = 0x800;

/// One directory entry, as WIN32_FIND_DATA gives it. Times are FILETIMEs: 100 ns
/// since 1601-01-01 UTC. A folder's size is 0.
struct FoundFile {
  std::string name;
  std::uint32_t attributes = 0;
  std::uint32_t size_high = 0;
  std::uint32_t size_low = 0;
  std::uint64_t created = 0;
  std::uint64_t accessed = 0;
  std::uint64_t written = 0;
};

/// What one folder holds for one step of a recursive search.
struct FolderListing {
  std::vector<std::string> subfolders;  ///< entries of F\*.* that are folders, without "." and ".."
  std::vector<FoundFile> files;         ///< entries of F\mask that are not folders
};

enum class OpenMode {
  kInput,   ///< read; the file must exist
  kOutput,  ///< write; made or emptied
  kAppend,  ///< write behind the end; made when missing
  kBinary,  ///< read and write anywhere; made when missing
};

/// An open file; destroying it closes it.
class OpenFile {
 public:
  virtual ~OpenFile() = default;
  virtual std::uint64_t length() = 0;
  /// Up to `size` bytes from `offset`; `out` is shorter at the end of the file.
  virtual Status read(std::uint64_t offset, std::size_t size, std::string& out) = 0;
  /// All of `bytes` at `offset`, growing the file as needed. 112: disk full.
  virtual Status write(std::uint64_t offset, std::string_view bytes) = 0;
};

struct OpenedFile {
  Status status = kFileNotFound;
  std::unique_ptr<OpenFile> file;  // set exactly when status is 0
};

class Files {
 public:
  virtual ~Files() = default;

  /// FindFirstFile ... FindClose: every entry that matches the last part of
  /// `path`, in the machine's order, "." and ".." first where the pattern
  /// matches them. 2: nothing matches; 3: no such folder, or the path is too
  /// long; 267: the folder is a file. "Name.*" matches "Name" too and "*.*" every name.
  virtual Status find(std::string_view path, std::vector<FoundFile>& found) = 0;

  /// FindFirstFile alone: the first entry that matches. The path of a folder
  /// (no pattern) gives the folder. Errors as of find().
  virtual Status findFirst(std::string_view path, FoundFile& found) = 0;

  /// One folder of a recursive search: its subfolders (as F\*.* gives them) and
  /// the files that match F\mask, both in the machine's order. `folder` ends in
  /// "\". Each of the two is empty where its own text reaches 260 characters or
  /// the folder is missing. For the files, `attributes` may lack hidden and
  /// system: `attributes()` gives these. These are two searches, the folders' one
  /// first, and one of them may fail alone.
  virtual void listFolder(std::string_view folder, std::string_view mask,
                          FolderListing& listing) = 0;

  /// GetFileAttributes. 2, 3: missing.
  virtual Status attributes(std::string_view path, std::uint32_t& out) = 0;

  /// SetFileAttributes: read-only, hidden, system and archive are set or cleared,
  /// other bits change nothing. A machine folder keeps no archive bit.
  virtual Status setAttributes(std::string_view path, std::uint32_t attributes) = 0;

  /// DeleteFile. 2, 3: missing; 5: read-only, or a folder; 32: held open;
  /// 123: wildcards, or a "\" behind a file.
  virtual Status remove(std::string_view path) = 0;

  /// CreateFile in one of the four ways a program opens a file. 2: missing, for
  /// reading alone; 3: no such folder; 5: a folder, or read-only and not for
  /// reading; 32: held open.
  virtual OpenedFile open(std::string_view path, OpenMode mode) = 0;

  /// CopyFile: attributes and last-write time go along, an existing target is
  /// replaced. 2, 3: no source; 32: source held, or its own target; 5: target
  /// read-only.
  virtual Status copy(std::string_view from, std::string_view to) = 0;

  /// OpenFile with OF_EXIST: can the file be opened for reading now?
  virtual bool canOpen(std::string_view path) = 0;

  /// SetCurrentDirectory. 2, 3: no such folder; 267: a file. Refused, it changes
  /// nothing.
  virtual Status setCurrentDirectory(std::string_view path) = 0;

  /// The names of the folders in a folder, in the machine's order. 3: no such
  /// folder.
  virtual Status subfolders(std::string_view folder, std::vector<std::string>& names) = 0;

  /// GetFileSecurity of the access list of a file or folder. 2, 3: missing;
  /// 5: it may not be read; 50: this machine's files have no lists.
  virtual Status security(std::string_view path, SecurityDescriptor& out) = 0;

  /// SetFileSecurity of the access list. Errors as of security(); 5: it may not
  /// be changed.
  virtual Status setSecurity(std::string_view path, const SecurityDescriptor& descriptor) = 0;
};

}  // namespace tavr
