#include "platform/folder/folder_url_cache.h"

#include <algorithm>
#include <numeric>

namespace tavr::folder {

namespace {

// The file is rewritten at every removal while it has fewer entries than this;
// a larger one once in size / 64 removals, or emptying it would be quadratic.
constexpr std::size_t kEntriesPerWrite = 64;

std::optional<std::string> textOrAbsent(std::string_view text) {
  if (text.empty()) return std::nullopt;
  return std::string(text);
}

}  // namespace

class FolderUrlCache::Walk : public CacheWalk {
 public:
  explicit Walk(FolderUrlCache& cache) : cache_(cache), started_after_(cache.removals_) {}

  bool next(CacheEntry& entry) override {
    return cache_.next_fault_.hit() == kSuccess && step(entry);
  }

  bool step(CacheEntry& entry) {
    while (place_ < cache_.entries_.size()) {
      const Entry& at = cache_.entries_[place_++];
      if (at.removed_at != 0 && at.removed_at <= started_after_) continue;
      entry = {textOrAbsent(at.url), textOrAbsent(at.local_file), at.type};
      return true;
    }
    return false;
  }

 private:
  FolderUrlCache& cache_;
  std::uint32_t started_after_;
  std::size_t place_ = 0;
};

FolderUrlCache::FolderUrlCache(const std::string& directory, Files& files, Faults& faults)
    : file_(directory, "urlcache.txt"),
      files_(files),
      first_fault_(faults.point("FindFirstUrlCacheEntry")),
      next_fault_(faults.point("FindNextUrlCacheEntry")),
      delete_fault_(faults.point("DeleteUrlCacheEntry")) {
  for (std::size_t i = 0; i < file_.size(); ++i) parse(i);
  by_url_.resize(entries_.size());
  std::iota(by_url_.begin(), by_url_.end(), 0U);
  std::sort(by_url_.begin(), by_url_.end(), [this](std::uint32_t a, std::uint32_t b) {
    const int order = entries_[a].url.compare(entries_[b].url);
    return order != 0 ? order < 0 : a < b;
  });
}

FolderUrlCache::~FolderUrlCache() { save(); }

void FolderUrlCache::parse(std::size_t line) {
  const std::string_view text = file_.line(line);
  if (trimBlanks(text).empty()) return;
  const std::size_t first = text.find('\t');
  const std::size_t second = first == std::string_view::npos ? first : text.find('\t', first + 1);
  if (second == std::string_view::npos) file_.refuse(line, "no type<TAB>url<TAB>local file");
  const auto type = decimal(text.substr(0, first));
  if (!type) file_.refuse(line, "the type is no decimal number");
  const std::string_view local_file = text.substr(second + 1);
  if (local_file.find('\t') != std::string_view::npos) file_.refuse(line, "a fourth field");
  entries_.push_back({*type, 0, line, text.substr(first + 1, second - first - 1), local_file});
}

std::unique_ptr<CacheWalk> FolderUrlCache::findFirst(CacheEntry& entry) {
  if (first_fault_.hit() != kSuccess) return nullptr;
  auto walk = std::make_unique<Walk>(*this);
  if (!walk->step(entry)) return nullptr;
  return walk;
}

FolderUrlCache::Entry* FolderUrlCache::find(std::string_view url) {
  auto place = std::lower_bound(
      by_url_.begin(), by_url_.end(), url,
      [this](std::uint32_t index, std::string_view text) { return entries_[index].url < text; });
  for (; place != by_url_.end() && entries_[*place].url == url; ++place) {
    if (entries_[*place].removed_at == 0) return &entries_[*place];
  }
  return nullptr;
}

Status FolderUrlCache::remove(std::string_view url) {
  if (const Status fault = delete_fault_.hit()) return fault;
  Entry* const entry = find(url);
  if (entry == nullptr) return kFileNotFound;
  entry->removed_at = ++removals_;
  file_.setRemoved(entry->line, true);
  if (++unwritten_ > entries_.size() / kEntriesPerWrite) save();
  // A file that somebody holds, or that is gone, leaves the entry removed.
  if (!entry->local_file.empty()) files_.remove(entry->local_file);
  return kSuccess;
}

bool FolderUrlCache::save() {
  if (unwritten_ == 0) return true;
  if (!file_.write()) return false;
  unwritten_ = 0;
  return true;
}

}  // namespace tavr::folder
