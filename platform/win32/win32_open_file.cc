#include "platform/win32/win32_open_file.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

// One call of the system moves less than 4 GiB.
constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;

struct CloseFile {
  using pointer = HANDLE;
  void operator()(HANDLE file) const { CloseHandle(file); }
};
using FileHandle = std::unique_ptr<HANDLE, CloseFile>;

OVERLAPPED at(std::uint64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

class Win32OpenFile final : public OpenFile {
 public:
  explicit Win32OpenFile(FileHandle file) : file_(std::move(file)) {}

  std::uint64_t length() override {
    LARGE_INTEGER size{};
    return GetFileSizeEx(file_.get(), &size) ? static_cast<std::uint64_t>(size.QuadPart) : 0;
  }
  Status read(std::uint64_t offset, std::size_t size, std::string& out) override;
  Status write(std::uint64_t offset, std::string_view bytes) override;

 private:
  FileHandle file_;
};

Status Win32OpenFile::read(std::uint64_t offset, std::size_t size, std::string& out) {
  const std::uint64_t end = length();
  const std::uint64_t left = offset < end ? end - offset : 0;
  out.resize(static_cast<std::size_t>(std::min<std::uint64_t>(size, left)));
  std::size_t done = 0;
  Status status = kSuccess;
  while (done < out.size()) {
    OVERLAPPED place = at(offset + done);
    const auto wanted = static_cast<DWORD>(std::min(out.size() - done, kMaxTransfer));
    DWORD got = 0;
    if (!ReadFile(file_.get(), out.data() + done, wanted, &got, &place)) {
      // Somebody else may have cut the file meanwhile.
      if (GetLastError() != ERROR_HANDLE_EOF) status = lastFileStatus();
      break;
    }
    if (got == 0) break;
    done += got;
  }
  out.resize(done);
  return status;
}

Status Win32OpenFile::write(std::uint64_t offset, std::string_view bytes) {
  while (!bytes.empty()) {
    OVERLAPPED place = at(offset);
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMaxTransfer));
    DWORD put = 0;
    if (!WriteFile(file_.get(), bytes.data(), wanted, &put, &place)) return lastFileStatus();
    if (put == 0) return kDiskFull;
    bytes.remove_prefix(put);
    offset += put;
  }
  return kSuccess;
}

}  // namespace

OpenedFile openFile(const NativePath& path, OpenMode mode) {
  OpenedFile opened;
  const bool writes = mode != OpenMode::kInput;
  FileHandle file(CreateFileW(path.c_str(), writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              writes ? OPEN_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                              nullptr));
  if (file.get() == INVALID_HANDLE_VALUE) {
    (void)file.release();
    opened.status = lastStatusOfFile(path);
    return opened;
  }
  // "con", "nul" and the like are no files, in whatever folder they stand.
  if (GetFileType(file.get()) != FILE_TYPE_DISK) {
    opened.status = kAccessDenied;
    return opened;
  }
  // Emptied here and not by CREATE_ALWAYS, which refuses hidden and system files.
  if (mode == OpenMode::kOutput && !SetEndOfFile(file.get())) {
    opened.status = lastFileStatus();
    return opened;
  }
  opened.status = kSuccess;
  opened.file = std::make_unique<Win32OpenFile>(std::move(file));
  return opened;
}

}  // namespace tavr::win32
