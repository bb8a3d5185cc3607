#include "services/cache_entries.h"

#include "basic/number.h"
#include "basic/text.h"
#include "services/file_properties.h"

namespace tavr {

namespace {

constexpr std::uint32_t kNormalCacheEntry = 1;

}  // namespace

bool CacheEntries::fFirstCacheEntry() {
  walk_.reset();
  entry_ = {};
  walk_ = machine_.url_cache.findFirst(entry_);
  return walk_ != nullptr;
}

bool CacheEntries::fNextCacheEntry() {
  if (!walk_) return false;
  CacheEntry next;
  if (!walk_->next(next)) return false;
  entry_ = std::move(next);
  return true;
}

bool CacheEntries::fDeleteCacheEntry(std::string_view url) {
  return machine_.url_cache.remove(url) == kSuccess;
}

// Adds the current entry if it is a cached page; returns its size in bytes.
double CacheEntries::addCurrent() {
  if ((fCacheEntryType() & kNormalCacheEntry) == 0) return 0;
  const std::string file = fCacheEntryFile();
  const std::string path(Trim(file.empty() ? fCacheEntryUrl() : file));
  if (path.empty() || LCase(path).ends_with(".txt")) return 0;
  form_.List20.add(path);
  form_.List21.add(fCacheEntryUrl());
  clsFileProp properties(machine_);
  properties.FindFileInfo(path);
  return Val(properties.ByteSize());
}

void CacheEntries::fListCacheFiles() {
  double total = 0;
  form_.List20.clear();
  form_.List21.clear();
  if (fFirstCacheEntry()) {
    form_.List20.add(fCacheEntryFile());
    form_.List21.add(fCacheEntryUrl());
    while (fNextCacheEntry()) total += addCurrent();
  }
  form_.txtcountfil.setText(numberText(Val(form_.txtcountfil.text()) + total));
  fCloseCacheEnum();
}

}  // namespace tavr
