#include "platform/folder/folder_open_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

#include "platform/folder/host_error.h"

namespace tavr::folder {

namespace {

constexpr auto kMaxOffset = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());

Status writeAll(int file, off_t offset, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::pwrite(file, bytes.data(), bytes.size(), offset);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return windowsError(errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
    offset += written;
  }
  return kSuccess;
}

std::uint64_t lengthOf(int file) {
  struct stat facts {};
  return ::fstat(file, &facts) == 0 ? static_cast<std::uint64_t>(facts.st_size) : 0;
}

}  // namespace

std::uint64_t FolderOpenFile::length() { return lengthOf(file_.get()); }

Status FolderOpenFile::read(std::uint64_t offset, std::size_t size, std::string& out) {
  out.clear();
  if (const Status fault = read_fault_.hit()) return fault;
  if (offset > kMaxOffset) return kInvalidParameter;
  const std::uint64_t end = length();
  if (offset >= end) return kSuccess;
  out.resize(std::min<std::uint64_t>(size, end - offset));
  std::size_t done = 0;
  while (done < out.size()) {
    const ssize_t got = ::pread(file_.get(), out.data() + done, out.size() - done,
                                static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) {
      const Status status = windowsError(errno);
      out.clear();
      return status;
    }
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  out.resize(done);
  return kSuccess;
}

Status FolderOpenFile::write(std::uint64_t offset, std::string_view bytes) {
  if (const Status fault = write_fault_.hit()) return fault;
  if (offset > kMaxOffset - bytes.size()) return kInvalidParameter;
  return writeAll(file_.get(), static_cast<off_t>(offset), bytes);
}

Status copyContent(int from, int to) {
  std::string block(std::size_t{1} << 16, '\0');
  for (off_t offset = 0;;) {
    const ssize_t got = ::pread(from, block.data(), block.size(), offset);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return windowsError(errno);
    if (got == 0) return kSuccess;
    const std::string_view bytes(block.data(), static_cast<std::size_t>(got));
    if (const Status status = writeAll(to, offset, bytes)) return status;
    offset += got;
  }
}

}  // namespace tavr::folder
