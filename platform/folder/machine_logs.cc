#include "platform/folder/machine_logs.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/folder/file_descriptor.h"
#include "platform/folder/malformed_file.h"

namespace tavr::folder {

namespace {

constexpr Status kServerUnavailable = 1722;

// In one write, so that a killed program leaves no half line.
bool appendTo(int descriptor, std::string_view bytes) {
  struct stat status {};
  const bool known = ::fstat(descriptor, &status) == 0;
  if (!known || !S_ISREG(status.st_mode) || status.st_nlink > 1) return false;
  return ::write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

std::string onOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return line;
}

}  // namespace

MachineLog::MachineLog(const std::string& directory, std::string_view name)
    : path_(directory + "/" + std::string(name)) {
  struct stat status {};
  if (::lstat(path_.c_str(), &status) != 0) return;  // made when first written
  const std::string_view what = S_ISLNK(status.st_mode)    ? "is a link"
                                : !S_ISREG(status.st_mode) ? "is not a file"
                                : status.st_nlink > 1      ? "has a second name"
                                                           : "";
  if (!what.empty()) throw MalformedFile(std::string(name) + ": " + std::string(what));
}

bool MachineLog::addLine(std::string_view text) const { return add(onOneLine(text) + "\n"); }

bool MachineLog::add(std::string_view bytes) const {
  // No link is followed: it could lead out of the machine.
  const FileDescriptor file(::open(
      path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0644));
  return file.valid() && appendTo(file.get(), bytes);
}

FolderEventLog::FolderEventLog(const std::string& directory, Faults& faults)
    : log_(directory, "events.log"), report_fault_(faults.point("ReportEvent")) {}

Status FolderEventLog::report(std::string_view server, std::string_view source, std::uint16_t type,
                              std::uint32_t event_id, std::string_view text) {
  if (const Status fault = report_fault_.hit()) return fault;
  if (!server.empty()) return kServerUnavailable;  // there is no other machine
  std::string entry =
      std::to_string(event_id) + " " + std::to_string(type) + " " + onOneLine(source) + "\n";
  while (!text.empty()) {
    const std::size_t newline = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, newline);
    if (line.ends_with('\r')) line.remove_suffix(1);
    entry += "\t" + std::string(line) + "\n";
    text.remove_prefix(std::min(newline + 1, text.size()));
  }
  return log_.add(entry) ? kSuccess : kAccessDenied;
}

}  // namespace tavr::folder
