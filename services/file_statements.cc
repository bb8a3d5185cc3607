#include "services/file_statements.h"

#include "basic/resume_next.h"

namespace tavr {

namespace {

constexpr std::size_t kPrintBuffer = std::size_t{64} * 1024;

bool hasWildcard(std::string_view path) { return path.find_first_of("*?") != path.npos; }

}  // namespace

void raiseFileError(Status status) {
  switch (status) {
    case kSuccess:
      return;
    case kFileNotFound:
    case kNoMoreFiles:
      throw RuntimeError{kErrFileNotFound, "File not found"};
    case kDirectory:
    case kPathNotFound:
      throw RuntimeError{kErrPathNotFound, "Path not found"};
    case kSharingViolation:
      throw RuntimeError{kErrPermission, "Permission denied"};
    case kDiskFull:
      throw RuntimeError{kErrDiskFull, "Disk full"};
    case kInvalidName:
      throw RuntimeError{kErrBadFileNumber, "Bad file name or number"};
    default:
      throw RuntimeError{kErrFileAccess, "Path/File access error"};
  }
}

// A name with a wildcard deletes nothing here: no caller means more than one
// file, and a URL that holds "?" must never become a pattern.
void Kill(Machine& machine, std::string_view path) {
  raiseFileError(path.empty() || hasWildcard(path) ? kFileNotFound : machine.files.remove(path));
}

void SetAttr(Machine& machine, std::string_view path, std::uint32_t attributes) {
  raiseFileError(path.empty() ? kFileNotFound : machine.files.setAttributes(path, attributes));
}

// The empty text takes the same error as a folder that is not there.
void ChDir(Machine& machine, std::string_view path) {
  if (path.empty() || machine.files.setCurrentDirectory(path) != kSuccess) {
    raiseFileError(kPathNotFound);
  }
}

std::string Dir(Machine& machine, std::string_view path) {
  std::vector<FoundFile> found;
  if (path.empty() || machine.files.find(path, found) != kSuccess) return "";
  for (const FoundFile& file : found) {
    if ((file.attributes & (kAttrDirectory | kAttrHidden | kAttrSystem)) == 0) return file.name;
  }
  return "";
}

double FileLen(Machine& machine, std::string_view path) {
  FoundFile file;
  const bool named = !path.empty() && !hasWildcard(path);
  raiseFileError(named ? machine.files.findFirst(path, file) : kFileNotFound);
  return static_cast<double>(file.size_high) * 4294967296.0 + file.size_low;
}

void FileNumbers::open(int number, std::string_view path, OpenMode mode) {
  if (numbers_.contains(number)) throw RuntimeError{kErrFileAlreadyOpen, "File already open"};
  OpenedFile opened = machine_.files.open(path, mode);
  raiseFileError(opened.status);
  Number entry{std::move(opened.file), {}, 0, {}, false};
  if (mode == OpenMode::kAppend) entry.position = entry.file->length();
  numbers_.emplace(number, std::move(entry));
}

int FileNumbers::freeFile() const {
  int number = 1;
  while (numbers_.contains(number)) ++number;
  return number;
}

void FileNumbers::close(int number) {
  const auto entry = numbers_.find(number);
  if (entry == numbers_.end()) return;
  Number closing = std::move(entry->second);
  numbers_.erase(entry);
  flush(closing);
}

void FileNumbers::Reset() {
  while (!numbers_.empty()) {
    try {
      close(numbers_.begin()->first);
    } catch (const RuntimeError&) {
      // The number is closed all the same; what could not be written is lost.
    }
  }
}

FileNumbers::Number& FileNumbers::number(int number) {
  const auto entry = numbers_.find(number);
  if (entry == numbers_.end()) throw RuntimeError{kErrBadFileNumber, "Bad file name or number"};
  return entry->second;
}

void FileNumbers::flush(Number& number) {
  if (number.pending.empty()) return;
  const std::string bytes = std::move(number.pending);
  number.pending.clear();
  const Status status = number.file->write(number.position, bytes);
  raiseFileError(status);
  number.position += bytes.size();
}

void FileNumbers::print(int file, std::string_view line) {
  Number& entry = number(file);
  entry.pending += line;
  entry.pending += "\r\n";
  if (entry.pending.size() >= kPrintBuffer) flush(entry);
}

bool FileNumbers::eof(int file) {
  Number& entry = number(file);
  if (!entry.loaded)
    entry.file->read(0, static_cast<std::size_t>(entry.file->length()), entry.contents);
  entry.loaded = true;
  return entry.position >= entry.contents.size();
}

std::string FileNumbers::lineInput(int file) {
  Number& entry = number(file);
  if (eof(file)) throw RuntimeError{kErrPastEnd, "Input past end of file"};
  const std::string_view rest =
      std::string_view(entry.contents).substr(static_cast<std::size_t>(entry.position));
  const std::size_t end = rest.find_first_of("\r\n");
  std::string line(rest.substr(0, end));
  std::size_t taken = line.size();
  if (end != rest.npos) taken += rest.substr(end).starts_with("\r\n") ? 2 : 1;
  entry.position += taken;
  return line;
}

double FileNumbers::length(int file) { return static_cast<double>(number(file).file->length()); }

void FileNumbers::put(int file, double position, std::string_view bytes) {
  raiseFileError(number(file).file->write(static_cast<std::uint64_t>(position) - 1, bytes));
}

void forEachLine(FileNumbers& numbers, std::string_view path,
                 const std::function<void(const std::string& line)>& line) {
  ResumeNext on;
  const int number = numbers.freeFile();
  on.next([&] {
    numbers.open(number, path, OpenMode::kInput);
    while (!numbers.eof(number)) line(numbers.lineInput(number));
  });
  on.next([&] { numbers.close(number); });
}

}  // namespace tavr
