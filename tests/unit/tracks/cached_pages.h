// Three cached pages: a.htm of 10 bytes, b.htm of 20, c.htm of 30.
#pragma once

#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {

class CachedPages : public TrackTest {
 protected:
  CachedPages() {
    world_.file("C:\\cache\\a.htm", std::string(10, 'a'));
    world_.file("C:\\cache\\b.htm", std::string(20, 'b'));
    world_.file("C:\\cache\\c.htm", std::string(30, 'c'));
    world_.machineFile("urlcache.txt",
                       "1\thttp://x/a\tC:\\cache\\a.htm\n"
                       "1\thttp://x/b\tC:\\cache\\b.htm\n"
                       "1\thttp://x/c\tC:\\cache\\c.htm\n");
  }
  // Keeps the walk's own removal out of the way, to see what became of a file.
  void keepEntries() { world_.ini("[fault]\nDeleteUrlCacheEntry=0,5\n"); }
  void keepEntriesAndFiles() { world_.ini("[fault]\nDeleteUrlCacheEntry=0,5\nDeleteFile=0,5\n"); }
  void secure(std::string_view clean, std::string_view option, std::string_view rounds) {
    world_.setting("tavr wipe", "secure_clean", clean);
    world_.setting("tavr wipe\\option\\option", "3", option);
    world_.setting("tavr wipe", "secure_value", rounds);
  }
  std::string left(std::string_view name) {
    const std::string path = "C:\\cache\\" + std::string(name);
    if (!world_.exists(path)) return "<gone>";
    const std::string text = world_.read(path);
    return text == std::string(8192, '#') ? "<overwritten>" : text;
  }
};

}  // namespace tavr::testing
