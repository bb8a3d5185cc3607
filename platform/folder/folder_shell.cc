#include "platform/folder/folder_shell.h"

#include <algorithm>
#include <utility>

#include "basic/text.h"

namespace tavr::folder {

namespace {

constexpr std::string_view kTaskPlanner = "schtasks";

std::string_view fileName(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);
}

bool hasExtension(std::string_view path) {
  return fileName(path).find('.') != std::string_view::npos;
}

// "http:", "mailto:" and the like; one letter before the ":" is a drive.
bool isAddress(std::string_view text) {
  const std::size_t colon = text.find(':');
  return colon != std::string_view::npos && colon > 1 &&
         text.substr(0, colon).find_first_of("\\/ ") == std::string_view::npos;
}

// "help.chm::/page.htm>window" without page and window.
std::string_view helpFile(std::string_view text) {
  text = text.substr(0, text.find("::"));
  return text.substr(0, text.find('>'));
}

}  // namespace

FolderShell::FolderShell(const std::string& directory, std::string cookies, RecycleBin& recycle_bin,
                         Files& files, Environment& environment, Faults& faults)
    : log_(directory, "shell.log"),
      cookies_(std::move(cookies)),
      recycle_bin_(recycle_bin),
      files_(files),
      environment_(environment),
      folder_fault_(faults.point("SHGetSpecialFolderLocation")),
      execute_fault_(faults.point("ShellExecute")),
      run_fault_(faults.point("CreateProcess")),
      help_fault_(faults.point("HtmlHelp")) {}

Status FolderShell::specialFolder(int id, std::string& buffer) {
  buffer.clear();
  if (const Status fault = folder_fault_.hit()) return fault;
  if (id != kFolderCookies) return kFileNotFound;
  buffer = cookies_;
  buffer += '\0';
  return kSuccess;
}

Status FolderShell::queryRecycleBin(std::int64_t& size, std::int64_t& items) {
  return recycle_bin_.query(size, items);
}

Status FolderShell::emptyRecycleBin(std::uint32_t /*flags*/) { return recycle_bin_.empty(); }

Status FolderShell::execute(std::string_view verb, std::string_view file, int show) {
  log_.addLine("execute " + std::to_string(show) + " " + (verb.empty() ? "-" : std::string(verb)) +
               " " + std::string(file));
  if (const Status fault = execute_fault_.hit()) return fault;
  if (isAddress(file)) return kSuccess;
  std::uint32_t attributes = 0;
  return files_.attributes(file, attributes);
}

Status FolderShell::run(std::string_view command, int window_style) {
  log_.addLine("run " + std::to_string(window_style) + " " + std::string(command));
  if (const Status fault = run_fault_.hit()) return fault;
  command = Trim(command);
  if (command.starts_with('"')) {
    return isProgram(command.substr(1, command.find('"', 1) - 1)) ? kSuccess : kFileNotFound;
  }
  // Without quotes the program's path ends at any of the blanks; the shortest
  // that is a program is started.
  for (std::size_t end = 0; end < command.size();) {
    end = std::min(command.find(' ', end + 1), command.size());
    if (isProgram(command.substr(0, end))) return kSuccess;
  }
  return kFileNotFound;
}

Status FolderShell::htmlHelp(std::string_view file_and_window, std::uint32_t command,
                             std::uint32_t data) {
  log_.addLine("htmlhelp " + std::to_string(command) + " " + std::to_string(data) + " " +
               std::string(file_and_window));
  if (const Status fault = help_fault_.hit()) return fault;
  std::uint32_t attributes = 0;
  return files_.attributes(helpFile(file_and_window), attributes);
}

bool FolderShell::isFile(std::string_view path) {
  std::uint32_t attributes = 0;
  return files_.attributes(path, attributes) == kSuccess && (attributes & kAttrDirectory) == 0;
}

bool FolderShell::isProgram(std::string_view name) {
  if (name.empty()) return false;
  if (sameText(fileName(name), kTaskPlanner) ||
      sameText(fileName(name), std::string(kTaskPlanner) + ".exe")) {
    return true;
  }
  const std::string path = std::string(name) + (hasExtension(name) ? "" : ".exe");
  // A bare name is looked for beside the program first, then where it stands.
  const bool bare = name.find_first_of("\\/:") == std::string_view::npos;
  return (bare && isFile(environment_.appPath() + "\\" + path)) || isFile(path);
}

}  // namespace tavr::folder
