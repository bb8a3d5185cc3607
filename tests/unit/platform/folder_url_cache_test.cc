#include "platform/folder/folder_url_cache.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "platform/folder/folder_files.h"
#include "platform/folder/folder_tree.h"
#include "platform/folder/malformed_file.h"
#include "tests/unit/platform/scratch_folder.h"

namespace tavr::folder {
namespace {

class FolderUrlCacheTest : public ::testing::Test {
 protected:
  testing::ScratchFolder folder;
  Faults faults;
  std::unique_ptr<FolderTree> tree;
  std::unique_ptr<FolderFiles> files;

  std::unique_ptr<FolderUrlCache> with(std::string_view text) {
    std::filesystem::create_directories(folder.at("C/cache"));
    folder.write("urlcache.txt", text);
    tree = std::make_unique<FolderTree>(folder.path(), "C:\\Program Files\\Tavr Wipe");
    files = std::make_unique<FolderFiles>(*tree, std::vector<std::string>{"C:\\cache\\held.gif"},
                                          faults);
    return std::make_unique<FolderUrlCache>(folder.path(), *files, faults);
  }

  static std::string shown(const CacheEntry& entry) {
    return std::to_string(entry.type) + "," + entry.url.value_or("(none)") + "," +
           entry.local_file.value_or("(none)") + ";";
  }

  static std::string list(FolderUrlCache& cache) {
    CacheEntry entry;
    const auto walk = cache.findFirst(entry);
    if (!walk) return "";
    std::string text = shown(entry);
    while (walk->next(entry)) text += shown(entry);
    return text;
  }
};

TEST_F(FolderUrlCacheTest, WithoutAFileOrEntriesTheWalkIsEmpty) {
  CacheEntry entry;
  EXPECT_EQ(with("\n")->findFirst(entry), nullptr);
  std::filesystem::remove(folder.at("urlcache.txt"));
  FolderUrlCache cache(folder.path(), *files, faults);
  EXPECT_EQ(cache.findFirst(entry), nullptr);
  EXPECT_EQ(cache.remove("http://a/"), kFileNotFound);
  EXPECT_FALSE(folder.has("urlcache.txt"));
}

TEST_F(FolderUrlCacheTest, AWalkGoesInFileOrderAndAnEmptyLocalFileIsAbsent) {
  const auto cache = with("1\thttp://b/\tC:\\cache\\b.gif\r\n1048577\tCookie:a@b\t\n\n0\t\tx\n");
  EXPECT_EQ(list(*cache), "1,http://b/,C:\\cache\\b.gif;1048577,Cookie:a@b,(none);0,(none),x;");
}

TEST_F(FolderUrlCacheTest, RemovingAnEntryRemovesItsLineAndItsFile) {
  const auto cache = with("1\thttp://a/\tC:\\cache\\A.gif\r\n1\thttp://b/\tC:\\cache\\b.gif\n");
  folder.write("C/cache/a.gif", "a");
  folder.write("C/cache/b.gif", "b");
  EXPECT_EQ(cache->remove("http://a/"), kSuccess);
  EXPECT_EQ(folder.read("urlcache.txt"), "1\thttp://b/\tC:\\cache\\b.gif\n");
  EXPECT_FALSE(folder.has("C/cache/a.gif"));
  EXPECT_TRUE(folder.has("C/cache/b.gif"));
  EXPECT_EQ(list(*cache), "1,http://b/,C:\\cache\\b.gif;");
}

TEST_F(FolderUrlCacheTest, AnUrlIsTheWholeTextWithItsCase) {
  const auto cache = with("1\thttp://a/\t\n");
  EXPECT_EQ(cache->remove("HTTP://A/"), kFileNotFound);
  EXPECT_EQ(cache->remove("http://a"), kFileNotFound);
  EXPECT_EQ(cache->remove(""), kFileNotFound);
  EXPECT_EQ(cache->remove("http://a/"), kSuccess);
  EXPECT_EQ(cache->remove("http://a/"), kFileNotFound);
  EXPECT_EQ(folder.read("urlcache.txt"), "");
}

TEST_F(FolderUrlCacheTest, AnEntryGoesEvenWhenItsFileStays) {
  const auto cache = with("1\thttp://a/\tC:\\cache\\held.gif\n1\thttp://b/\tC:\\cache\\ro.gif\n");
  folder.write("C/cache/held.gif", "a");
  folder.write("C/cache/ro.gif", "b");
  std::filesystem::permissions(folder.at("C/cache/ro.gif"), std::filesystem::perms(0444));
  EXPECT_EQ(cache->remove("http://a/"), kSuccess);
  EXPECT_EQ(cache->remove("http://b/"), kSuccess);
  EXPECT_TRUE(folder.has("C/cache/held.gif"));
  EXPECT_TRUE(folder.has("C/cache/ro.gif"));
  EXPECT_EQ(folder.read("urlcache.txt"), "");
}

TEST_F(FolderUrlCacheTest, OfTwoEntriesWithOneUrlTheFirstGoesFirst) {
  const auto cache = with("1\thttp://a/\tx\n2\thttp://a/\ty\n");
  EXPECT_EQ(cache->remove("http://a/"), kSuccess);
  EXPECT_EQ(list(*cache), "2,http://a/,y;");
  EXPECT_EQ(cache->remove("http://a/"), kSuccess);
  EXPECT_EQ(list(*cache), "");
}

TEST_F(FolderUrlCacheTest, AWalkGivesWhatWasThereWhenItBegan) {
  const auto cache = with("1\ta\t\n1\tb\t\n1\tc\t\n");
  EXPECT_EQ(cache->remove("a"), kSuccess);
  CacheEntry entry;
  const auto walk = cache->findFirst(entry);
  ASSERT_NE(walk, nullptr);
  EXPECT_EQ(shown(entry), "1,b,(none);");
  EXPECT_EQ(cache->remove("b"), kSuccess);
  EXPECT_EQ(cache->remove("c"), kSuccess);
  EXPECT_TRUE(walk->next(entry));
  EXPECT_EQ(shown(entry), "1,c,(none);");
  EXPECT_FALSE(walk->next(entry));
  EXPECT_EQ(list(*cache), "");
}

TEST_F(FolderUrlCacheTest, ALargeCacheIsWrittenNowAndThenAndWholeAtTheEnd) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "1\thttp://a/" + std::to_string(i) + "\t\n";
  auto cache = with(text);
  for (int i = 0; i < 1999; ++i) {
    EXPECT_EQ(cache->remove("http://a/" + std::to_string(i)), kSuccess);
  }
  EXPECT_LT(folder.read("urlcache.txt").size(), 1000U);
  EXPECT_TRUE(cache->save());
  EXPECT_EQ(folder.read("urlcache.txt"), "1\thttp://a/1999\t\n");
  EXPECT_EQ(cache->remove("http://a/1999"), kSuccess);
  cache.reset();
  EXPECT_EQ(folder.read("urlcache.txt"), "");
}

TEST_F(FolderUrlCacheTest, AMalformedLineIsRefusedWithItsNumber) {
  const auto refusal = [&](std::string_view line) -> std::string {
    try {
      with("1\ta\t\n" + std::string(line) + "\n");
    } catch (const MalformedFile& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refusal("1 http://a/ x"), "urlcache.txt:2: no type<TAB>url<TAB>local file");
  EXPECT_EQ(refusal("1\thttp://a/"), "urlcache.txt:2: no type<TAB>url<TAB>local file");
  EXPECT_EQ(refusal("0x1\thttp://a/\t"), "urlcache.txt:2: the type is no decimal number");
  EXPECT_EQ(refusal("\thttp://a/\t"), "urlcache.txt:2: the type is no decimal number");
  EXPECT_EQ(refusal("1\ta\tb\tc"), "urlcache.txt:2: a fourth field");
  EXPECT_EQ(refusal(std::string_view("1\ta\tb\0", 6)), "urlcache.txt:2: holds a NUL");
}

TEST_F(FolderUrlCacheTest, FaultsFailTheirOperation) {
  faults.add("FindFirstUrlCacheEntry", 1, kAccessDenied);
  faults.add("FindNextUrlCacheEntry", 2, kAccessDenied);
  faults.add("DeleteUrlCacheEntry", 1, kAccessDenied);
  const auto cache = with("1\ta\t\n1\tb\t\n1\tc\t\n");
  EXPECT_EQ(list(*cache), "");
  EXPECT_EQ(list(*cache), "1,a,(none);1,b,(none);");
  EXPECT_EQ(list(*cache), "1,a,(none);1,b,(none);1,c,(none);");
  EXPECT_EQ(cache->remove("a"), kAccessDenied);
  EXPECT_EQ(cache->remove("a"), kSuccess);
}

}  // namespace
}  // namespace tavr::folder
