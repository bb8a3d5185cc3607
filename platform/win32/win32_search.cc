// The searching half of Win32Files: FindFirstFile in its several uses.
#include <windows.h>

#include <algorithm>
#include <utility>

#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"
#include "platform/win32/win32_files.h"
#include "platform/win32/win32_name_pattern.h"
#include "platform/win32/win32_path.h"

namespace tavr::win32 {

namespace {

// One FindFirstFile ... FindClose. Short names are not asked for: nobody reads
// them.
class Search {
 public:
  explicit Search(const wchar_t* path, DWORD flags = FIND_FIRST_EX_LARGE_FETCH)
      : handle_(FindFirstFileExW(path, FindExInfoBasic, &entry_, FindExSearchNameMatch, nullptr,
                                 flags)) {
    if (handle_ == INVALID_HANDLE_VALUE) status_ = lastFileStatus();
  }
  ~Search() {
    if (handle_ != INVALID_HANDLE_VALUE) FindClose(handle_);
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  /// Not 0: there is no entry.
  Status status() const { return status_; }
  const WIN32_FIND_DATAW& entry() const { return entry_; }
  std::wstring_view name() const { return entry_.cFileName; }
  bool isFolder() const { return (entry_.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
  bool isDots() const { return name() == L"." || name() == L".."; }
  bool next() { return FindNextFileW(handle_, &entry_) != FALSE; }

 private:
  WIN32_FIND_DATAW entry_{};
  HANDLE handle_;
  Status status_ = kSuccess;
};

// Nearly every name is plain ASCII.
void assignName(std::wstring_view name, std::string& out) {
  const bool ascii =
      std::all_of(name.begin(), name.end(), [](wchar_t unit) { return unit < 0x80; });
  if (!ascii) {
    out = narrow(name);
    return;
  }
  out.resize(name.size());
  std::transform(name.begin(), name.end(), out.begin(),
                 [](wchar_t unit) { return static_cast<char>(unit); });
}

std::uint64_t fileTime(const FILETIME& time) {
  return std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

void describe(const Search& search, FoundFile& found) {
  const WIN32_FIND_DATAW& entry = search.entry();
  assignName(search.name(), found.name);
  found.attributes = entry.dwFileAttributes;
  found.size_high = search.isFolder() ? 0 : entry.nFileSizeHigh;
  found.size_low = search.isFolder() ? 0 : entry.nFileSizeLow;
  found.created = fileTime(entry.ftCreationTime);
  found.accessed = fileTime(entry.ftLastAccessTime);
  found.written = fileTime(entry.ftLastWriteTime);
}

// The entries that a path stands for. A plain pattern is matched here, among all
// names of its folder: Windows would match the short forms of names, too.
class Matches {
 public:
  explicit Matches(const NativePath& path, DWORD flags = FIND_FIRST_EX_LARGE_FETCH)
      : filters_(path.lastPart().find_first_of(L"*?") != std::wstring_view::npos &&
                 NamePattern::isPlain(path.lastPart())),
        pattern_(path.lastPart()),
        search_(filters_ ? everyName(path).c_str() : path.c_str(), flags) {}

  Status status() const { return search_.status(); }
  /// Calls `visit(entry)` until it answers false; not where status() is not 0.
  template <typename Visit>
  void forEach(const Visit& visit) {
    do {
      if (filters_ && !pattern_.matches(search_.name())) continue;
      if (!visit(search_)) return;
    } while (search_.next());
  }

 private:
  static std::wstring everyName(const NativePath& path) {
    const std::wstring_view text = path.text();
    return std::wstring(text.substr(0, text.size() - path.lastPart().size())) + L'*';
  }

  const bool filters_;
  const NamePattern pattern_;
  Search search_;
};

// Appends what `wanted` lets through.
template <typename Wanted>
Status collect(std::string_view path, const Wanted& wanted, std::vector<FoundFile>& found) {
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  Matches matches(native);
  if (matches.status() != kSuccess) return matches.status();
  matches.forEach([&](const Search& entry) {
    if (wanted(entry)) describe(entry, found.emplace_back());
    return true;
  });
  return kSuccess;
}

void addSubfolder(const Search& search, std::vector<std::string>& names) {
  if (search.isFolder() && !search.isDots()) assignName(search.name(), names.emplace_back());
}

}  // namespace

Status Win32Files::find(std::string_view path, std::vector<FoundFile>& found) {
  found.clear();
  const Status status = collect(
      path, [](const Search&) { return true; }, found);
  return status == kSuccess && found.empty() ? kFileNotFound : status;
}

Status Win32Files::findFirst(std::string_view path, FoundFile& found) {
  found = {};
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  Matches matches(native, 0);
  if (matches.status() != kSuccess) return matches.status();
  bool any = false;
  matches.forEach([&](const Search& entry) {
    describe(entry, found);
    any = true;
    return false;
  });
  return any ? kSuccess : kFileNotFound;
}

// Both searches see the same entries, so one pass serves the two where the text
// of each is one that Windows takes.
void Win32Files::listFolder(std::string_view folder, std::string_view mask,
                            FolderListing& listing) {
  listing.subfolders.clear();
  listing.files.clear();
  std::string text(folder);
  const NativePath all(text + "*.*");
  const NativePath matching(text.append(mask));
  const std::wstring pattern = wide(mask);
  const bool one_pass =
      all.refused() == kSuccess && matching.refused() == kSuccess && NamePattern::isPlain(pattern);
  if (all.refused() == kSuccess) {
    Search search(all.c_str());
    const NamePattern wanted(one_pass ? std::wstring_view(pattern) : std::wstring_view());
    if (search.status() == kSuccess) {
      do {
        addSubfolder(search, listing.subfolders);
        if (one_pass && !search.isFolder() && wanted.matches(search.name())) {
          describe(search, listing.files.emplace_back());
        }
      } while (search.next());
    }
  }
  if (one_pass) return;
  collect(
      text, [](const Search& search) { return !search.isFolder(); }, listing.files);
}

Status Win32Files::subfolders(std::string_view folder, std::vector<std::string>& names) {
  names.clear();
  std::string text(folder);
  if (!text.empty() && text.back() != '\\' && text.back() != '/') text += '\\';
  const NativePath all(text + "*");
  if (folder.empty() || all.refused() != kSuccess) {
    return folder.empty() ? kPathNotFound : all.refused();
  }
  Search search(all.c_str());
  if (search.status() != kSuccess) {
    return search.status() == kDirectory ? kPathNotFound : search.status();
  }
  do {
    addSubfolder(search, names);
  } while (search.next());
  return kSuccess;
}

}  // namespace tavr::win32
