#include "platform/folder/registry_path.h"

#include <algorithm>
#include <cstddef>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/registry_tree.h"

namespace tavr::folder {

namespace {

constexpr std::string_view k32BitNode = "WOW6432Node";

std::string_view rootName(Root root) {
  switch (root) {
    case Root::kClassesRoot:
      return "HKEY_CLASSES_ROOT";
    case Root::kCurrentUser:
      return "HKEY_CURRENT_USER";
    case Root::kLocalMachine:
      return "HKEY_LOCAL_MACHINE";
    case Root::kUsers:
      return "HKEY_USERS";
  }
  return {};  // callers hand numbers through
}

}  // namespace

RegistryPath resolvePath(Root root, std::string_view path, std::uint32_t access) {
  RegistryPath resolved;
  resolved.root = rootName(root);
  if (resolved.root.empty()) {
    resolved.status = kInvalidHandle;
    return resolved;
  }
  if ((access & k64BitView) != 0 && (access & k32BitView) != 0) resolved.status = kInvalidParameter;

  // Only HKEY_CLASSES_ROOT takes a path that begins with a separator.
  if (path.starts_with('\\') && root != Root::kClassesRoot) resolved.status = kBadPathname;

  std::vector<std::string_view>& names = resolved.names;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t end = std::min(path.find('\\', at), path.size());
    if (end > at) names.push_back(path.substr(at, end - at));
    at = end + 1;
  }
  if (root == Root::kLocalMachine && (access & k64BitView) == 0 && !names.empty() &&
      sameText(names[0], "SOFTWARE") && (names.size() == 1 || !sameText(names[1], k32BitNode))) {
    names.insert(names.begin() + 1, k32BitNode);
  }

  const bool long_name = std::any_of(names.begin(), names.end(),
                                     [](auto name) { return reaches(name, kMaxKeyName + 1); });
  if (long_name || names.size() > kMaxKeyDepth) resolved.status = kInvalidParameter;
  return resolved;
}

}  // namespace tavr::folder
