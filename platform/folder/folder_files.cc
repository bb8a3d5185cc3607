#include "platform/folder/folder_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/folder/dos_attributes.h"
#include "platform/folder/folder_open_file.h"
#include "platform/folder/host_error.h"

namespace tavr::folder {

namespace {

// A file that turned into a pipe meanwhile must not hold the program up.
constexpr int kOpenFlags = O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;

bool isReadOnly(const struct statx& facts) { return (facts.stx_mode & S_IWUSR) == 0; }

// Asked of the open file, so that it cannot be another one by then.
Status openExisting(const Node& node, int flags, FileDescriptor& file) {
  FileDescriptor opened(::openat(node.folder->fd(), node.name.c_str(), flags | kOpenFlags));
  if (!opened.valid()) return windowsError(errno);
  struct stat facts {};
  if (::fstat(opened.get(), &facts) != 0 || !S_ISREG(facts.st_mode)) return kAccessDenied;
  // The other name may be outside the machine.
  if (flags != O_RDONLY && facts.st_nlink > 1) return kAccessDenied;
  file = std::move(opened);
  return kSuccess;
}

Status createMissing(const Place& place, int flags, FileDescriptor& file) {
  FileDescriptor made(::openat(place.folder->fd(), place.name.c_str(),
                               flags | O_CREAT | O_EXCL | kOpenFlags, 0666));
  if (!made.valid()) {
    if (errno == ENOENT) return kPathNotFound;
    // Something that is not on the machine has the name, such as a link that
    // leads out.
    return errno == EEXIST ? kAccessDenied : windowsError(errno);
  }
  file = std::move(made);
  return kSuccess;
}

bool sameFile(int open_file, const Node& node) {
  struct statx facts {};
  return ::statx(open_file, "", AT_EMPTY_PATH, STATX_INO, &facts) == 0 &&
         facts.stx_ino == node.facts.stx_ino && facts.stx_dev_major == node.facts.stx_dev_major &&
         facts.stx_dev_minor == node.facts.stx_dev_minor;
}

}  // namespace

FolderFiles::FolderFiles(FolderTree& tree, const std::vector<std::string>& locked, Faults& faults)
    : tree_(tree),
      locked_(tree, locked),
      find_fault_(faults.point("FindFirstFile")),
      get_attributes_fault_(faults.point("GetFileAttributes")),
      set_attributes_fault_(faults.point("SetFileAttributes")),
      delete_fault_(faults.point("DeleteFile")),
      create_fault_(faults.point("CreateFile")),
      read_fault_(faults.point("ReadFile")),
      write_fault_(faults.point("WriteFile")),
      copy_fault_(faults.point("CopyFile")),
      directory_fault_(faults.point("SetCurrentDirectory")) {}

Status FolderFiles::attributes(std::string_view path, std::uint32_t& out) {
  out = 0;
  if (const Status fault = get_attributes_fault_.hit()) return fault;
  Node node;
  if (const Status status = tree_.locate(path, node)) return status;
  out = modeAttributes(node.facts) | hiddenAndSystem(node.folder->fd(), node.name.c_str());
  return kSuccess;
}

Status FolderFiles::setAttributes(std::string_view path, std::uint32_t attributes) {
  if (const Status fault = set_attributes_fault_.hit()) return fault;
  writable_folders_.clear();
  Node node;
  if (const Status status = tree_.locate(path, node)) return status;
  return setDosAttributes(node.folder->fd(), node.name.c_str(), node.facts, attributes);
}

bool FolderFiles::removeWritable(std::string_view path) {
  const std::string_view folder = path.substr(0, path.rfind('\\') + 1);
  if (!locked_.empty() || !writable_folders_.contains(folder)) return false;
  Place place;
  return tree_.place(path, place) == kSuccess && hasNameCharacters(place.name) && !place.is_drive &&
         !place.ends_in_separator && ::unlinkat(place.folder->fd(), place.name.c_str(), 0) == 0;
}

Status FolderFiles::remove(std::string_view path) {
  if (const Status fault = delete_fault_.hit()) return fault;
  if (removeWritable(path)) return kSuccess;
  Node node;
  if (const Status status = tree_.locate(path, node)) return status;
  if (node.isFolder()) return kAccessDenied;
  if (locked_.holds(path, node.facts)) return kSharingViolation;
  if (isReadOnly(node.facts)) return kAccessDenied;
  const FolderRef& folder = node.isLink() ? node.link_folder : node.folder;
  const int failed = ::unlinkat(folder->fd(), node.shownName().c_str(), 0);
  return failed == 0 ? kSuccess : windowsError(errno);
}

Status FolderFiles::openHost(std::string_view path, OpenMode mode, FileDescriptor& file) {
  if (mode != OpenMode::kInput) writable_folders_.clear();
  Place place;
  if (const Status status = tree_.place(path, place)) return status;
  Node node;
  const Status status = tree_.lookup(place, node);
  const bool writes = mode != OpenMode::kInput;
  const int flags = writes ? O_RDWR : O_RDONLY;
  if (status == kFileNotFound && writes) {
    if (place.ends_in_separator) return kInvalidName;
    if (locked_.holds(path)) return kSharingViolation;
    return createMissing(place, flags, file);
  }
  if (status != kSuccess) return status;
  if (node.isFolder() || (writes && isReadOnly(node.facts))) return kAccessDenied;
  if (locked_.holds(path, node.facts)) return kSharingViolation;
  if (const Status refused = openExisting(node, flags, file)) return refused;
  if (mode == OpenMode::kOutput && ::ftruncate(file.get(), 0) != 0) return windowsError(errno);
  return kSuccess;
}

OpenedFile FolderFiles::open(std::string_view path, OpenMode mode) {
  OpenedFile opened;
  opened.status = create_fault_.hit();
  if (opened.status != kSuccess) return opened;
  FileDescriptor file;
  opened.status = openHost(path, mode, file);
  if (opened.status == kSuccess) {
    opened.file = std::make_unique<FolderOpenFile>(std::move(file), read_fault_, write_fault_);
  }
  return opened;
}

bool FolderFiles::canOpen(std::string_view path) {
  return open(path, OpenMode::kInput).status == kSuccess;
}

Status FolderFiles::copyTo(int source, std::string_view to) {
  Node old;
  const bool existed = tree_.locate(to, old) == kSuccess;
  // The copy would empty the file that it is about to read.
  if (existed && sameFile(source, old)) return kSharingViolation;
  FileDescriptor target;
  if (const Status status = openHost(to, OpenMode::kOutput, target)) return status;
  const Status status = copyContent(source, target.get());
  if (status == kSuccess) return kSuccess;
  Node half;
  if (!existed && tree_.locate(to, half) == kSuccess) {
    ::unlinkat(half.folder->fd(), half.name.c_str(), 0);
  }
  return status;
}

Status FolderFiles::copy(std::string_view from, std::string_view to) {
  if (const Status fault = copy_fault_.hit()) return fault;
  FileDescriptor source;
  if (const Status status = openHost(from, OpenMode::kInput, source)) return status;
  Node original;
  if (const Status status = tree_.locate(from, original)) return status;
  const std::uint32_t kept = modeAttributes(original.facts) |
                             hiddenAndSystem(original.folder->fd(), original.name.c_str());
  if (const Status status = copyTo(source.get(), to)) return status;

  // A copy has the attributes and the last-write time of its source.
  Node copied;
  if (const Status status = tree_.locate(to, copied)) return status;
  const struct statx_timestamp& written = original.facts.stx_mtime;
  const timespec times[2] = {{.tv_sec = 0, .tv_nsec = UTIME_OMIT},
                             {.tv_sec = written.tv_sec, .tv_nsec = written.tv_nsec}};
  ::utimensat(copied.folder->fd(), copied.name.c_str(), times, AT_SYMLINK_NOFOLLOW);
  setDosAttributes(copied.folder->fd(), copied.name.c_str(), copied.facts, kept);
  return kSuccess;
}

Status FolderFiles::setCurrentDirectory(std::string_view path) {
  if (const Status fault = directory_fault_.hit()) return fault;
  writable_folders_.clear();  // a relative text leads elsewhere from now on
  return tree_.setCurrentDirectory(path);
}

}  // namespace tavr::folder
