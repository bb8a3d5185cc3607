// Places of a test's own on a Windows machine, gone with the test.
#pragma once

#include <string>
#include <string_view>

namespace tavr::contract {

/// A path for the calls that plant: it may be longer than the program's own.
std::wstring longForm(std::string_view path);

/// Removes a folder and all that is in it, read-only or not; a link in it, but
/// nothing behind it.
void removeTree(const std::wstring& folder);

/// A folder below the user's temporary one; destroying it takes all that is in
/// it, read-only or not.
class ScratchFolder {
 public:
  explicit ScratchFolder(std::string_view name);
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

/// A key path below HKEY_CURRENT_USER and both views of HKEY_LOCAL_MACHINE,
/// without a key at first and in the end.
class ScratchKey {
 public:
  explicit ScratchKey(std::string_view name);
  ~ScratchKey();
  ScratchKey(const ScratchKey&) = delete;
  ScratchKey& operator=(const ScratchKey&) = delete;

  const std::string& path() const { return path_; }

 private:
  void remove() const;
  std::string path_;
};

}  // namespace tavr::contract
