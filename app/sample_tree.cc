#include "app/sample_tree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tavr::sample {
namespace {

[[noreturn]] void fail(const std::string& path, int error) {
  throw std::runtime_error(path + ": " + std::strerror(error));
}

}  // namespace

std::uint64_t Dice::next() {
  state_ += 0x9E3779B97F4A7C15ULL;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
  return mixed ^ (mixed >> 31);
}

OpenFolder::OpenFolder(const std::string& path)
    : path_(path), descriptor_(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (descriptor_ < 0) fail(path, errno);
}

OpenFolder::~OpenFolder() { close(descriptor_); }

void OpenFolder::addFile(const char* name, std::size_t size) const {
  const int file = openat(descriptor_, name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (file < 0) fail(path_ + "/" + name, errno);
  // Only the length matters, and a hole of it costs no page of a memory disk.
  const int error = size != 0 && ftruncate(file, static_cast<off_t>(size)) != 0 ? errno : 0;
  close(file);
  if (error != 0) fail(path_ + "/" + name, error);
}

SampleTree::SampleTree(std::string directory, std::uint64_t seed)
    : directory_(std::move(directory)), dice_(seed) {
  std::error_code error;
  const auto status = std::filesystem::status(directory_, error);
  if (std::filesystem::exists(status)) {
    if (!std::filesystem::is_directory(status)) fail(directory_, ENOTDIR);
    if (!std::filesystem::is_empty(directory_, error) || error) {
      throw std::runtime_error(directory_ + ": is not empty, nothing was written");
    }
  }
  std::filesystem::create_directories(directory_, error);
  if (error) fail(directory_, error.value());
}

std::string SampleTree::makeFolder(std::string_view path) {
  std::string full = directory_ + "/" + std::string(path);
  std::error_code error;
  std::filesystem::create_directories(full, error);
  if (error) fail(full, error.value());
  return full;
}

void SampleTree::write(std::string_view path, std::string_view bytes) {
  const std::size_t slash = path.rfind('/');
  if (slash != std::string_view::npos) makeFolder(path.substr(0, slash));
  const std::string full = directory_ + "/" + std::string(path);
  std::ofstream file(full, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) fail(full, errno);
  ++files_;
}

void SampleTree::copyFiles(const std::string& from, std::string_view to) {
  std::error_code error;
  std::vector<std::filesystem::path> found;
  for (const auto& entry : std::filesystem::directory_iterator(from, error)) {
    if (entry.is_regular_file()) found.push_back(entry.path());
  }
  if (error) fail(from, error.value());
  if (found.empty()) throw std::runtime_error(from + ": holds no files");
  const std::string target = makeFolder(to);
  for (const std::filesystem::path& file : found) {
    const std::string copy = target + "/" + file.filename().string();
    if (!std::filesystem::copy_file(file, copy, error)) fail(copy, error.value());
  }
}

}  // namespace tavr::sample
