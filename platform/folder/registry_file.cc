#include "platform/folder/registry_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string_view>
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

// A file written beside the one it is to replace; removed again unless it did.
class Replacement {
 public:
  Replacement(const std::string& target, mode_t mode) : target_(target), name_(target + ".new") {
    ::unlink(name_.c_str());  // a killed program may have left one
    number_ = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    made_ = number_ >= 0;
  }
  ~Replacement() {
    close();
    if (made_) ::unlink(name_.c_str());
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  bool write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(number_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return number_ >= 0;
  }

  bool takePlace() {
    if (::fsync(number_) != 0 || !close()) return false;
    if (std::rename(name_.c_str(), target_.c_str()) != 0) return false;
    made_ = false;
    return true;
  }

 private:
  bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

  std::string target_;
  std::string name_;
  int number_ = -1;
  bool made_ = false;
};

mode_t modeOf(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0644;
}

// The rename lasts through a loss of power only once the folder is on the disk.
void flushFolder(const std::string& folder) {
  const int number = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (number < 0) return;
  ::fsync(number);
  ::close(number);
}

}  // namespace

RegistryFile RegistryFile::load(const std::string& path) {
  const std::string name = std::filesystem::path(path).filename().string();
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
  Replacement replacement(path, modeOf(path));
  if (!replacement.write(encodeRegistry(writeRegistry(*tree_, encoding_.crlf), encoding_)) ||
      !replacement.takePlace()) {
    return false;
  }
  flushFolder(folderOf(path));
  tree_->setUnchanged();
  return true;
}

}  // namespace tavr::folder
