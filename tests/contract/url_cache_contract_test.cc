// platform/url_cache.h.
#include <algorithm>
#include <vector>

#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr std::uint32_t kNormalEntry = 1;
constexpr std::uint32_t kCookieEntry = 0x100001;

class UrlCacheContract : public ContractTest {
 protected:
  std::vector<CacheEntry> entries() {
    std::vector<CacheEntry> all;
    CacheEntry entry;
    const auto walk = machine().url_cache.findFirst(entry);
    if (!walk) return all;
    do {
      all.push_back(entry);
    } while (walk->next(entry));
    return all;
  }
  std::string cached(std::string_view url, std::string_view name) {
    return on().plantCacheFile(url, name);
  }
  std::vector<std::string> urls() {
    std::vector<std::string> all;
    for (const CacheEntry& entry : entries()) all.push_back(entry.url.value_or("(absent)"));
    return all;
  }
};

TEST_F(UrlCacheContract, AnEmptyCacheHasNoWalk) {
  CacheEntry entry;
  EXPECT_EQ(machine().url_cache.findFirst(entry), nullptr);
}

TEST_F(UrlCacheContract, AWalkGivesEveryEntryOnce) {
  on().plantCacheEntry(kNormalEntry, "http://example.org/a", "");
  on().plantCacheEntry(kCookieEntry, "Cookie:user@example.org/", "");
  on().plantCacheEntry(kNormalEntry, "http://example.org/b", "");
  EXPECT_THAT(urls(), UnorderedElementsAre("http://example.org/a", "Cookie:user@example.org/",
                                           "http://example.org/b"));
}

TEST_F(UrlCacheContract, AnEntryHasTypeUrlAndLocalFile) {
  const std::string local = cached("Cookie:user@example.org/", "a[1].gif");
  on().plantCacheEntry(kCookieEntry, "Cookie:user@example.org/", local);
  const std::vector<CacheEntry> all = entries();
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(all[0].type, kCookieEntry);
  EXPECT_EQ(all[0].url, "Cookie:user@example.org/");
  EXPECT_EQ(all[0].local_file, local);
}

TEST_F(UrlCacheContract, AnAbsentLocalFileIsAbsentAndNotEmpty) {
  on().plantCacheEntry(kNormalEntry, "http://example.org/a",
                       cached("http://example.org/a", "a.gif"));
  on().plantCacheEntry(kNormalEntry, "http://example.org/b", "");
  for (const CacheEntry& entry : entries()) {
    EXPECT_EQ(entry.local_file.has_value(), entry.url == "http://example.org/a");
  }
}

TEST_F(UrlCacheContract, BehindTheLastEntryAWalkStaysAtItsEnd) {
  on().plantCacheEntry(kNormalEntry, "http://example.org/a", "");
  CacheEntry entry;
  const auto walk = machine().url_cache.findFirst(entry);
  ASSERT_NE(walk, nullptr);
  EXPECT_FALSE(walk->next(entry));
  EXPECT_FALSE(walk->next(entry));
}

TEST_F(UrlCacheContract, RemovingAnEntryTakesItsFileAndNoOther) {
  const std::string removed = cached("http://example.org/a", "a.gif");
  const std::string kept = cached("http://example.org/b", "b.gif");
  on().plantCacheEntry(kNormalEntry, "http://example.org/a", removed);
  on().plantCacheEntry(kNormalEntry, "http://example.org/b", kept);
  EXPECT_EQ(machine().url_cache.remove("http://example.org/a"), kSuccess);
  EXPECT_THAT(urls(), UnorderedElementsAre("http://example.org/b"));
  EXPECT_FALSE(on().exists(removed));
  EXPECT_TRUE(on().exists(kept));
}

TEST_F(UrlCacheContract, AnEntryGoesEvenWhenItsFileCannot) {
  const std::string held = cached("http://example.org/held", "held.gif");
  const std::string gone = cached("http://example.org/gone", "gone.gif");
  on().hold(held);
  on().plantCacheEntry(kNormalEntry, "http://example.org/held", held);
  on().plantCacheEntry(kNormalEntry, "http://example.org/gone", gone);
  machine().files.remove(gone);
  EXPECT_EQ(machine().url_cache.remove("http://example.org/held"), kSuccess);
  EXPECT_EQ(machine().url_cache.remove("http://example.org/gone"), kSuccess);
  EXPECT_THAT(urls(), IsEmpty());
  EXPECT_TRUE(on().exists(held));
}

TEST_F(UrlCacheContract, RemovingWhatIsNotThereIsNotFound) {
  on().plantCacheEntry(kNormalEntry, "http://example.org/a", "");
  EXPECT_EQ(machine().url_cache.remove("http://example.org/b"), kFileNotFound);
  EXPECT_EQ(machine().url_cache.remove("http://example.org/a"), kSuccess);
  EXPECT_EQ(machine().url_cache.remove("http://example.org/a"), kFileNotFound) << "a second time";
}

TEST_F(UrlCacheContract, AWalkGoesOnWhileItsEntriesAreRemoved) {
  for (const char* name : {"a", "b", "c", "d"}) {
    on().plantCacheEntry(kNormalEntry, "http://example.org/" + std::string(name), "");
  }
  CacheEntry entry;
  const auto walk = machine().url_cache.findFirst(entry);
  ASSERT_NE(walk, nullptr);
  int steps = 0;
  do {
    ++steps;
    EXPECT_EQ(machine().url_cache.remove(entry.url.value_or("")), kSuccess);
  } while (walk->next(entry));
  EXPECT_EQ(steps, 4);
  EXPECT_THAT(urls(), IsEmpty());
}

TEST_F(UrlCacheContract, ALongAddressIsWhole) {
  const std::string url = "http://tavr.example/" + std::string(2050, 'a');
  const std::string file = on().plantCacheFile(url, "a.txt");
  on().plantCacheEntry(kNormalEntry, url, file);
  CacheEntry entry;
  ASSERT_NE(machine().url_cache.findFirst(entry), nullptr);
  EXPECT_EQ(entry.url, url);
  EXPECT_EQ(entry.local_file, file);
  EXPECT_EQ(machine().url_cache.remove(url), kSuccess);
  EXPECT_EQ(machine().url_cache.findFirst(entry), nullptr);
}

}  // namespace
}  // namespace tavr::contract
