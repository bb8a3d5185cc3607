// The texts of Windows paths: a current path and a path, parted by a NUL. The
// full text of what was taken apart is taken apart the same way.
#include <string>
#include <string_view>

#include "basic/utf.h"
#include "fuzz/checks.h"
#include "platform/folder/windows_path.h"

namespace {

using tavr::folder::WindowsPath;
using tavr::fuzz::require;

void check(const WindowsPath& path) {
  require(path.drive >= 'A' && path.drive <= 'Z', "a drive is a letter");
  for (std::size_t i = 0; i < path.components.size(); ++i) {
    const std::string& name = path.components[i];
    require(!name.empty() && name != "." && name != "..", "a component is a name");
    require(name.find_first_of("\\/") == std::string::npos, "a component has no separator");
    require(i + 1 == path.components.size() || tavr::folder::hasNameCharacters(name),
            "a folder has the name of a folder");
  }
}

void checkAgain(const WindowsPath& path) {
  std::string text = tavr::folder::pathText(path);
  if (path.ends_in_separator && !path.components.empty()) text += '\\';
  if (tavr::reaches(text, tavr::folder::kMaxPath)) return;  // grown by the current path
  WindowsPath again;
  require(tavr::folder::parsePath(text, {}, again) == tavr::kSuccess, "the full text is a path");
  require(again.drive == path.drive, "the drive stays");
  require(again.components == path.components, "the components stay");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input = tavr::fuzz::asText(data, size);
  tavr::folder::PathBase base;
  base.program_drive = 'D';
  tavr::folder::parsePath(tavr::fuzz::takePart(input), {}, base.current);
  WindowsPath path;
  const tavr::Status status = tavr::folder::parsePath(input, base, path);
  require(status == tavr::kSuccess || status == tavr::kPathNotFound || status == tavr::kInvalidName,
          "a path is taken, too long or no path");
  if (status != tavr::kSuccess) return 0;
  check(path);
  checkAgain(path);
  return 0;
}
