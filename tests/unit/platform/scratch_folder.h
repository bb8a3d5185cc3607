// A folder of its own for one test, below /dev/shm or /tmp, gone with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include <stdlib.h>

namespace tavr::folder::testing {

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tavr-test.XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& path() const { return path_; }
  std::string at(std::string_view name) const { return path_ + "/" + std::string(name); }

  void write(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories(std::filesystem::path(at(name)).parent_path());
    std::ofstream out(at(name), std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) throw std::runtime_error("cannot write " + at(name));
  }

  /// The file's bytes; "(missing)" without it.
  std::string read(std::string_view name) const {
    std::ifstream in(at(name), std::ios::binary);
    if (!in) return "(missing)";
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

  bool has(std::string_view name) const {
    return std::filesystem::exists(std::filesystem::symlink_status(at(name)));
  }

 private:
  std::string path_;
};

}  // namespace tavr::folder::testing
