// A machine folder of its own for one test, with a folder beside it that no
// operation may reach.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tavr::folder {

class FolderFixture : public ::testing::Test {
 protected:
  FolderFixture() {
    std::string name = (std::filesystem::temp_directory_path() / "tavr-folder-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
    top_ = std::filesystem::canonical(name);
    std::filesystem::create_directories(top_ / "machine/C/App");
    std::filesystem::create_directories(top_ / "outside/sub");
    std::ofstream(top_ / "outside/secret.txt") << "secret";
    std::ofstream(top_ / "outside/sub/deep.txt") << "deep";
    std::ofstream(top_ / "machine/registry.reg") << "registry";
  }
  ~FolderFixture() override {
    std::error_code ignored;
    std::filesystem::remove_all(top_, ignored);
  }

  std::filesystem::path machine() const { return top_ / "machine"; }
  std::filesystem::path outside() const { return top_ / "outside"; }

  /// A path below the machine folder: host("C/a").
  std::filesystem::path host(std::string_view path) const { return machine() / path; }
  bool exists(std::string_view path) const {
    return std::filesystem::exists(std::filesystem::symlink_status(host(path)));
  }

  void folder(std::string_view path) const { std::filesystem::create_directories(host(path)); }
  void file(std::string_view path, std::string_view content = "x") const {
    std::filesystem::create_directories(host(path).parent_path());
    std::ofstream(host(path), std::ios::binary) << content;
  }
  void link(std::string_view path, const std::filesystem::path& target) const {
    std::filesystem::create_directories(host(path).parent_path());
    std::filesystem::create_symlink(target, host(path));
  }
  void readOnly(std::string_view path) const { ::chmod(host(path).c_str(), 0444); }
  std::string content(std::string_view path) const { return contentOf(host(path)); }

  static std::string contentOf(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// Every file and folder outside the machine with its content and mode.
  std::map<std::string, std::string> outsideState() const {
    std::map<std::string, std::string> state;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(outside())) {
      const auto mode = static_cast<unsigned>(entry.status().permissions());
      state[entry.path().string()] =
          std::to_string(mode) + (entry.is_regular_file() ? contentOf(entry.path()) : "");
    }
    return state;
  }

 private:
  std::filesystem::path top_;
};

}  // namespace tavr::folder
