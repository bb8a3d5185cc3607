// The URL cache of a machine folder (urlcache.txt: type, URL and local file, a
// TAB between them).
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/folder/faults.h"
#include "platform/folder/machine_text.h"
#include "platform/url_cache.h"

namespace tavr::folder {

class FolderUrlCache : public UrlCache {
 public:
  /// Raises MalformedFile. Walks may not outlive the cache.
  FolderUrlCache(const std::string& directory, Files& files, Faults& faults);
  ~FolderUrlCache() override;

  /// A walk gives the entries that were there when it began.
  std::unique_ptr<CacheWalk> findFirst(CacheEntry& entry) override;
  Status remove(std::string_view url) override;

  /// Writes urlcache.txt if lines are still to be taken out of it. A small file
  /// never waits for this; see remove.
  bool save();

 private:
  class Walk;

  struct Entry {
    std::uint32_t type = 0;
    std::uint32_t removed_at = 0;  // number of the removal, 0: still there
    std::size_t line = 0;
    std::string_view url;  // into the file's text
    std::string_view local_file;
  };

  void parse(std::size_t line);
  Entry* find(std::string_view url);

  LineFile file_;
  Files& files_;
  std::vector<Entry> entries_;
  std::vector<std::uint32_t> by_url_;  // places in entries_, sorted by URL
  std::uint32_t removals_ = 0;
  std::uint32_t unwritten_ = 0;
  Faults::Point& first_fault_;
  Faults::Point& next_fault_;
  Faults::Point& delete_fault_;
};

}  // namespace tavr::folder
