// An open Linux file or directory; closing it is the owner's end of it.
#pragma once

#include <unistd.h>

#include <utility>

namespace tavr::folder {

class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int fd) : fd_(fd) {}
  FileDescriptor(FileDescriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }
  ~FileDescriptor() {
    if (fd_ >= 0) ::close(fd_);
  }

  bool valid() const { return fd_ >= 0; }
  int get() const { return fd_; }

 private:
  int fd_ = -1;
};

}  // namespace tavr::folder
