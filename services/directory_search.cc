#include "services/directory_search.h"

#include "basic/text.h"

namespace tavr {

namespace {

// How long a paused search sleeps between two looks at its flags.
constexpr std::uint32_t kPauseStep = 10;

bool isDots(const std::string& name) { return name == "." || name == ".."; }

}  // namespace

void clsdirsearch::findfiles(std::string_view start, std::string_view masks) {
  files_.clear();
  seen_.clear();
  cancel_ = false;
  pause = false;
  masks_ = Split(masks, '|');
  walk(std::string(start));
}

bool clsdirsearch::goOn() {
  while (pause && !cancel_) machine_.events.wait(kPauseStep);
  return !cancel_;
}

void clsdirsearch::walk(std::string folder) {
  if (!endsInBackslash(folder)) folder += '\\';
  if (searching) searching(folder);
  std::vector<std::string> subfolders;
  if (!findSubfolders(folder, subfolders)) return;
  for (const std::string& mask : masks_) {
    if (!findMask(folder, mask)) return;
  }
  if (!searchinsubfolders) return;
  for (const std::string& name : subfolders) {
    if (!goOn()) return;
    walk(folder + name);
  }
}

bool clsdirsearch::findSubfolders(const std::string& folder, std::vector<std::string>& names) {
  std::vector<FoundFile> entries;
  machine_.files.find(folder + "*", entries);
  for (const FoundFile& entry : entries) {
    machine_.events.doEvents();
    // What cannot be asked answers with every bit, that of a folder included.
    std::uint32_t attributes = 0;
    if (machine_.files.attributes(folder + entry.name, attributes) != kSuccess) attributes = ~0U;
    if (!isDots(entry.name) && (attributes & kAttrDirectory) != 0) {
      names.push_back(entry.name);
    }
    if (!goOn()) return false;
  }
  return true;
}

bool clsdirsearch::findMask(const std::string& folder, const std::string& mask) {
  std::vector<FoundFile> entries;
  machine_.files.find(folder + mask, entries);
  for (const FoundFile& entry : entries) {
    machine_.events.doEvents();
    const bool file = !isDots(entry.name) && (entry.attributes & kAttrDirectory) == 0;
    // A path that two masks match is its own key the second time: no event.
    if (file && seen_.insert(LCase(folder + entry.name)).second) {
      files_.push_back(folder + entry.name);
      if (found) found(entry.name, folder);
    }
    if (!goOn()) return false;
  }
  return true;
}

}  // namespace tavr
