#include "tests/machine/tree_image.h"

#include <stdlib.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr unsigned kHidden = 2;
constexpr unsigned kSystem = 4;
constexpr const char* kAttribute = "user.DOSATTRIB";
constexpr std::string_view kOutside = "{outside}";

void replaceAll(std::string& text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
}

Marks marksOf(const fs::directory_entry& entry) {
  Marks marks;
  if (entry.is_symlink()) return marks;
  marks.read_only = (entry.status().permissions() & fs::perms::owner_write) == fs::perms::none;
  std::string text(64, '\0');
  const ssize_t size = ::lgetxattr(entry.path().c_str(), kAttribute, text.data(), text.size());
  if (size <= 0) return marks;
  text.resize(static_cast<std::size_t>(size));
  const unsigned long bits = std::stoul(text, nullptr, 16);
  marks.hidden = (bits & kHidden) != 0;
  marks.system = (bits & kSystem) != 0;
  return marks;
}

// So that the temporary folder can be removed by whoever made it.
void openFolders(const fs::path& top) {
  fs::permissions(top, fs::perms::owner_all, fs::perm_options::add);
  for (const auto& entry : fs::directory_iterator(top)) {
    if (entry.is_directory() && !entry.is_symlink()) openFolders(entry.path());
  }
}

}  // namespace

void setMarks(const fs::path& path, const Marks& marks) {
  const unsigned bits = (marks.hidden ? kHidden : 0) | (marks.system ? kSystem : 0);
  if (bits != 0) {
    const std::string text = "0x" + std::to_string(bits);
    if (::lsetxattr(path.c_str(), kAttribute, text.data(), text.size(), 0) != 0) {
      throw std::system_error(errno, std::generic_category(), path.string() + ": hidden, system");
    }
  }
  if (marks.read_only) {
    constexpr auto kWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(path, kWrite, fs::perm_options::remove);
  }
}

Node readNode(const fs::directory_entry& entry) {
  Node node;
  node.marks = marksOf(entry);
  if (entry.is_symlink()) {
    node.kind = EntryKind::link;
    node.contents = fs::read_symlink(entry.path()).string();
  } else if (!entry.is_directory()) {
    node.kind = EntryKind::file;
    std::ifstream in(entry.path(), std::ios::binary);
    node.contents.assign(std::istreambuf_iterator<char>(in), {});
  }
  return node;
}

Ground::Ground() {
  std::string pattern = (fs::temp_directory_path() / "tavr-scenario-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  top_ = pattern;
  fs::create_directory(machine());
  fs::create_directory(outside());
  std::ofstream(outside() / "keep.txt") << "not the machine's\n";
}

Ground::~Ground() {
  std::error_code ignored;
  try {
    openFolders(top_);
  } catch (const fs::filesystem_error&) {
    // What cannot be opened stays; removing it is tried all the same.
  }
  fs::remove_all(top_, ignored);
}

std::string Ground::filled(std::string_view text) const {
  std::string out(text);
  replaceAll(out, "{machine}", machine().string());
  replaceAll(out, kOutside, outside().string());
  return out;
}

fs::path Ground::place(std::string_view path) const {
  return path.starts_with(kOutside) ? fs::path(filled(path)) : machine() / path;
}

void Ground::unpack(const std::vector<Entry>& entries) const {
  for (const Entry& entry : entries) {
    const fs::path path = place(entry.path);
    fs::create_directories(path.parent_path());
    if (entry.kind == EntryKind::folder) {
      fs::create_directories(path);
    } else if (entry.kind == EntryKind::link) {
      fs::create_symlink(filled(entry.contents), path);
    } else {
      std::ofstream out(path, std::ios::binary);
      out << entry.contents;
      if (!out.flush()) throw std::runtime_error(path.string() + ": cannot be written");
    }
  }
  // Last, so that a read-only folder has what belongs in it.
  for (const Entry& entry : entries) {
    if (entry.kind != EntryKind::link) setMarks(place(entry.path), entry.marks);
  }
}

void Ground::giveTo(unsigned user) const {
  const auto give = [user](const fs::path& path) {
    if (::lchown(path.c_str(), user, user) != 0) {
      throw std::system_error(errno, std::generic_category(), path.string());
    }
  };
  for (const auto& entry : fs::recursive_directory_iterator(top_)) give(entry.path());
  give(top_);
}

TreeImage readTree(const Ground& ground) {
  TreeImage tree;
  for (const auto& entry : fs::recursive_directory_iterator(ground.top())) {
    const std::string path = entry.path().lexically_relative(ground.top()).string();
    const auto named = [&](std::string_view folder) {
      return path == folder || path.starts_with(std::string(folder) + "/");
    };
    std::string name = "{beside}/" + path;
    if (named("machine")) {
      name = path.substr(std::min(path.size(), std::string_view("machine/").size()));
    } else if (named("machine.outside")) {
      name = std::string(kOutside) + path.substr(std::string_view("machine.outside").size());
    }
    tree[name] = readNode(entry);
  }
  return tree;
}

}  // namespace tavr::testing
