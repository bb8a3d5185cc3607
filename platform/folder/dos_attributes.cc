#include "platform/folder/dos_attributes.h"

#include <fcntl.h>
#include <sys/xattr.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <string>
#include <string_view>

#include "basic/number.h"
#include "platform/files.h"
#include "platform/folder/host_error.h"

namespace tavr::folder {

namespace {

constexpr const char* kAttributeName = "user.DOSATTRIB";
constexpr std::uint32_t kKept = kAttrHidden | kAttrSystem;

// Extended attributes take no directory handle; the handle's own entry in /proc
// stands for it, so that no path is walked.
std::string entryPath(int directory, const char* name) {
  return "/proc/self/fd/" + std::to_string(directory) + "/" + name;
}

Status setHiddenAndSystem(int directory, const char* name, std::uint32_t bits) {
  const std::string path = entryPath(directory, name);
  if (bits == 0) {
    if (::lremovexattr(path.c_str(), kAttributeName) == 0 || errno == ENODATA) return kSuccess;
    return windowsError(errno);
  }
  const std::string text = "0x" + Hex(bits);
  const int failed = ::lsetxattr(path.c_str(), kAttributeName, text.data(), text.size(), 0);
  return failed == 0 ? kSuccess : windowsError(errno);
}

Status changeMode(int directory, const char* name, mode_t mode) {
  if (::fchmodat(directory, name, mode & 07777, AT_SYMLINK_NOFOLLOW) == 0) return kSuccess;
  return windowsError(errno);
}

}  // namespace

std::uint32_t modeAttributes(const struct statx& facts) {
  const std::uint32_t kind = S_ISDIR(facts.stx_mode) ? kAttrDirectory : kAttrArchive;
  return (facts.stx_mode & S_IWUSR) != 0 ? kind : kind | kAttrReadOnly;
}

std::uint32_t hiddenAndSystem(int directory, const char* name) {
  std::array<char, 512> value;  // file servers append a record of their own to the text
  const ssize_t size =
      ::lgetxattr(entryPath(directory, name).c_str(), kAttributeName, value.data(), value.size());
  if (size < 3) return 0;
  const std::string_view text(value.data(), static_cast<std::size_t>(size));
  if (text[0] != '0' || (text[1] != 'x' && text[1] != 'X')) return 0;
  std::uint32_t bits = 0;
  std::from_chars(text.data() + 2, text.data() + text.size(), bits, 16);
  return bits & kKept;
}

Status setDosAttributes(int directory, const char* name, const struct statx& facts,
                        std::uint32_t attributes) {
  const mode_t mode = facts.stx_mode;
  const bool was_read_only = (mode & S_IWUSR) == 0;
  const bool read_only = (attributes & kAttrReadOnly) != 0;
  const bool keeps = (attributes & kKept) == hiddenAndSystem(directory, name);
  if (keeps && read_only == was_read_only) return kSuccess;
  // Attributes are the file's, not the name's, and its other name may be outside
  // the machine.
  if (!S_ISDIR(mode) && facts.stx_nlink > 1) return kAccessDenied;

  // A file must be writable for its extended attributes to change.
  if (was_read_only) {
    if (const Status status = changeMode(directory, name, mode | S_IWUSR)) return status;
  }
  const Status status = keeps ? kSuccess : setHiddenAndSystem(directory, name, attributes & kKept);
  const bool ends_read_only = status == kSuccess ? read_only : was_read_only;
  if (!ends_read_only) return status;
  const Status closed = changeMode(directory, name, was_read_only ? mode : mode & ~mode_t{0222});
  return status != kSuccess ? status : closed;
}

std::uint64_t fileTime(const struct statx_timestamp& time) {
  constexpr std::int64_t kSecondsFrom1601 = 11'644'473'600;
  const std::int64_t seconds = time.tv_sec + kSecondsFrom1601;
  if (seconds < 0) return 0;
  return static_cast<std::uint64_t>(seconds) * 10'000'000 + time.tv_nsec / 100;
}

std::uint64_t creationTime(const struct statx& facts) {
  return fileTime((facts.stx_mask & STATX_BTIME) != 0 ? facts.stx_btime : facts.stx_mtime);
}

}  // namespace tavr::folder
