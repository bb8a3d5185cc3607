// The entries of the URL cache: one cursor that walks them, and the list that
// the cache tracks work from.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "forms/form1.h"
#include "platform/machine.h"

namespace tavr {

class CacheEntries {
 public:
  CacheEntries(Machine& machine, Form1& form) : machine_(machine), form_(form) {}

  /// True when a first entry exists. Closes a walk that is still open.
  bool fFirstCacheEntry();
  /// True when a next entry exists; false without an open walk.
  bool fNextCacheEntry();
  void fCloseCacheEnum() { walk_.reset(); }

  /// Of the current entry; "" when it has none.
  std::string fCacheEntryFile() const { return entry_.local_file.value_or(""); }
  std::string fCacheEntryUrl() const { return entry_.url.value_or(""); }
  std::uint32_t fCacheEntryType() const { return entry_.type; }

  bool fDeleteCacheEntry(std::string_view url);

  /// Local files into List20, their URLs into List21, row for row, and the sum
  /// of the sizes onto txtcountfil. Cookie files (".txt") stay out, apart from
  /// a first entry, which is not filtered and whose size is not counted.
  void fListCacheFiles();

 private:
  double addCurrent();

  Machine& machine_;
  Form1& form_;
  std::unique_ptr<CacheWalk> walk_;
  CacheEntry entry_;
};

}  // namespace tavr
