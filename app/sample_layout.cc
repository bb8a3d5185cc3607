// The two machines: the believable one, and the one for measuring.
#include <algorithm>
#include <array>
#include <cstdio>

#include "app/sample_registry.h"
#include "app/sample_traces.h"

namespace tavr::sample {
namespace {

constexpr std::size_t kFilesPerFolder = 200;

constexpr std::string_view kMachineIni =
    "[environment]\n"
    "UserName=user\n"
    "[clock]\n"
    "start=2026-11-20T10:00:00\n"
    "[answers]\n"
    "default=yes\n";

constexpr std::string_view kProcesses =
    "4 System\n"
    "612 svchost.exe\n"
    "1880 explorer.exe\n"
    "5204 chrome.exe\n"
    "5336 chrome.exe\n"
    "6120 notepad.exe\n";

// A page's picture, a cookie, and a visited page that has no file.
constexpr std::string_view kUrlCache =
    "1\thttps://www.example.com/logo.png\t"
    "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCache\\IE\\4QZ81XJC\\logo[1].png\n"
    "1048577\tcookie:user@example.com/\t"
    "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\7F3K2M1Q.txt\n"
    "2097153\tVisited: user@https://www.example.com/\t\n";

// What the recycle bin notes of a file: version 2, size, time of deletion,
// length of the old path with its NUL, the old path.
std::string recycleNote(std::string_view old_path, std::uint64_t size) {
  constexpr std::uint64_t kDeleted = 0x01DD17A2C3F4B000;
  std::string note;
  const auto put = [&note](std::uint64_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) note += static_cast<char>(value >> (8 * i));
  };
  put(2, 8);
  put(size, 8);
  put(kDeleted, 8);
  put(old_path.size() + 1, 4);
  for (const char c : old_path) put(static_cast<unsigned char>(c), 2);
  put(0, 2);
  return note;
}

void writeTraces(SampleTree& tree, std::span<const TraceGroup> groups, Wanted wanted,
                 std::size_t files) {
  for (const TraceGroup& group : groups) {
    for (const Trace& trace : group.traces) {
      if (trace.wanted != wanted) continue;
      if (wanted == Wanted::kMore && tree.files() >= files) return;
      tree.write(std::string(group.folder) + "/" + std::string(trace.path),
                 contentOf(trace, tree.dice()));
    }
  }
}

// Most cache files are tiny; a few fill a page of the disk.
std::size_t cacheFileSize(Dice& dice) {
  const std::uint64_t kind = dice.roll(100);
  if (kind < 8) return 0;
  if (kind < 85) return 1 + dice.roll(199);
  if (kind < 98) return 200 + dice.roll(800);
  return 1000 + dice.roll(3097);
}

// Folder number `number` below `root`: two levels, so that no folder grows
// beyond a few hundred entries until there are tens of thousands of them.
void fillFolder(SampleTree& tree, std::string_view root, std::size_t number, std::size_t files) {
  char name[32];
  std::snprintf(name, sizeof name, "/%02zx/%02zx", number / 100, number % 100);
  const OpenFolder folder(tree.makeFolder(std::string(root) + name));
  for (std::size_t i = 0; i < files; ++i) {
    std::snprintf(name, sizeof name, "f_%06zx", number * kFilesPerFolder + i);
    folder.addFile(name, cacheFileSize(tree.dice()));
  }
  tree.count(files);
}

// The caches of two browsers. A cleaner finds all but the last, which is the
// one browsers fill most.
void fillCaches(SampleTree& tree, std::size_t files) {
  constexpr std::string_view kChrome =
      "C/Users/user/AppData/Local/Google/Chrome/User Data/Default/";
  constexpr std::array<std::string_view, 5> kShares = {
      "IndexedDB/https_mail.example.com_0.indexeddb.blob/1",
      "IndexedDB/https_shop.example.net_0.indexeddb.blob/1",
      "Session Storage",
      "Storage/ext/nmmhkkegccagdldgiimedpiccmgmieda/def/Session Storage",
      "Cache/Cache_Data",
  };
  constexpr std::string_view kFirefox =
      "C/Users/user/AppData/Local/Mozilla/Firefox/Profiles/k3x9w2ab.default-release/cache2/entries";
  for (std::size_t number = 0; files != 0; ++number) {
    const std::size_t share = number % (kShares.size() + 1);
    const std::size_t now = std::min(files, kFilesPerFolder);
    fillFolder(tree,
               share < kShares.size() ? std::string(kChrome) + std::string(kShares[share])
                                      : std::string(kFirefox),
               number, now);
    files -= now;
  }
}

}  // namespace

void writeMachine(SampleTree& tree, std::size_t files) {
  tree.write("machine.ini", kMachineIni);
  tree.write("registry.reg", machineRegistry());
  tree.write("processes.txt", kProcesses);
  tree.write("urlcache.txt", kUrlCache);
  tree.write("C/$Recycle.Bin/S-1-5-21-2113004051-1874906722-903312647-1001/$I4T8ZQA.txt",
             recycleNote("C:\\Users\\user\\Documents\\shopping.txt", 34));
  for (const Wanted wanted : {Wanted::kAlways, Wanted::kMore}) {
    writeTraces(tree, browserTraces(), wanted, files);
    writeTraces(tree, windowsTraces(), wanted, files);
  }
  if (files > tree.files()) fillCaches(tree, files - tree.files());
}

void copyLanguages(SampleTree& tree, const std::string& from) {
  tree.copyFiles(from, "C/Program Files/Tavr Wipe/lang");
}

void writeChromeCacheMachine(SampleTree& tree, std::size_t files) {
  tree.write("machine.ini", kMachineIni);
  tree.write("registry.reg", chromeCacheRegistry());
  constexpr std::string_view kFolder =
      "C/Users/user/AppData/Local/Google/Chrome/User Data/Default/Session Storage";
  tree.makeFolder(kFolder);
  tree.makeFolder("C/Program Files/Tavr Wipe");  // where the log goes
  for (std::size_t number = 0; files != 0; ++number) {
    const std::size_t now = std::min(files, kFilesPerFolder);
    fillFolder(tree, kFolder, number, now);
    files -= now;
  }
}

}  // namespace tavr::sample
