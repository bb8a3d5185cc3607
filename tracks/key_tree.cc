// Deleting a registry key with everything below it, in the 64-bit view.
#include <vector>

#include "basic/text.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::uint32_t kAccess = 0x2013F;

void fDeleteSubkeys(Registry& registry, Root root, const std::string& path) {
  const OpenedKey opened = registry.open(root, path, kAccess);
  if (opened.status != kSuccess) return;
  // All names first: deleting would move the index under the walk.
  std::vector<std::string> names;
  std::string name;
  for (std::uint32_t i = 0; opened.key->enumKey(i, name) == kSuccess; ++i) {
    names.emplace_back(untilNul(name));
  }
  for (const std::string& subkey : names) {
    // A name that begins with a NUL would lead to this key again.
    if (!subkey.empty()) fDeleteSubkeys(registry, root, path + "\\" + subkey);
    opened.key->deleteKey(subkey);
  }
}

}  // namespace

void fDeleteKeyTree(TrackContext& context, Root root, std::string_view key) {
  Registry& registry = context.machine.registry;
  const std::string path(withoutBackslash(key));
  fDeleteSubkeys(registry, root, path);
  const std::size_t cut = path.rfind('\\');
  if (cut == std::string::npos) {
    registry.deleteKey(root, path);
    return;
  }
  const OpenedKey parent = registry.open(root, path.substr(0, cut), kAccess);
  if (parent.status == kSuccess) parent.key->deleteKey(path.substr(cut + 1));
}

}  // namespace tavr
