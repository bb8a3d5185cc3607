// What the contract machine of Windows plants outside its scratch places, with
// the plain calls of Windows. A call that fails throws: the test has no ground.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavr::contract {

/// Throws with the last error's number unless `done`.
void require(bool done, std::string_view what);
inline void require(int done, std::string_view what) { require(done != 0, what); }

/// The bytes as they are, whatever the type.
void plantRegistryValue(std::uint32_t root, bool in_64_bit_view, std::string_view path,
                        std::string_view name, std::uint32_t type, std::string_view bytes);

struct RunningProcess {
  std::uint32_t id = 0;
  void* handle = nullptr;  // HANDLE, to be closed
};

/// Starts a copy of the sleeper that is made at this path; returns when it runs.
RunningProcess startSleeper(const std::string& image_path);

/// A free path where the cache can keep a file of this URL. The extension is
/// the name's, the rest is the cache's choice.
std::string cacheFilePath(std::string_view url, std::string_view name);
void commitCacheEntry(std::uint32_t type, std::string_view url, std::string_view local_file);
void emptyUrlCache();

void recycle(std::string_view path);
void emptyRecycleBin();

}  // namespace tavr::contract
