// The runtime's file statements. Each raises a RuntimeError when it cannot be
// carried out (53 no such file, 76 no such folder, 70 held open, 75 refused,
// 52 no such number, 55 number in use), and knows nothing of what it is for.
// forEachLine is put together of them and raises nothing.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/machine.h"

namespace tavr {

/// Raises the runtime error that a Windows error stands for; nothing for 0.
void raiseFileError(Status status);

void Kill(Machine& machine, std::string_view path);
void SetAttr(Machine& machine, std::string_view path, std::uint32_t attributes);
void ChDir(Machine& machine, std::string_view path);
/// The first visible file (no hidden, system or folder entry) that matches the
/// path, "" when there is none.
std::string Dir(Machine& machine, std::string_view path);
/// Raises 53 when there is no such file.
double FileLen(Machine& machine, std::string_view path);

/// Open file numbers of the process. A number belongs to nobody: a nested run
/// that resets takes the outer run's files away, as on Windows.
class FileNumbers {
 public:
  explicit FileNumbers(Machine& machine) : machine_(machine) {}
  /// What has been printed is written, also when the process ends in between.
  ~FileNumbers() { Reset(); }
  FileNumbers(const FileNumbers&) = delete;
  FileNumbers& operator=(const FileNumbers&) = delete;

  void open(int number, std::string_view path, OpenMode mode);
  int freeFile() const;
  void close(int number);
  /// Closes everything.
  void Reset();

  /// One line, CR LF behind it.
  void print(int number, std::string_view line);
  /// The next line without its end (CR LF, CR, or LF as files made elsewhere
  /// have it). Raises 62 past the end.
  std::string lineInput(int number);
  bool eof(int number);
  double length(int number);
  /// Bytes at a position counted from 1.
  void put(int number, double position, std::string_view bytes);

 private:
  struct Number {
    std::unique_ptr<OpenFile> file;
    std::string pending;         // printed, not yet written
    std::uint64_t position = 0;  // where pending goes, or where reading stands
    std::string contents;        // read with the first line
    bool loaded = false;
  };
  Number& number(int number);
  static void flush(Number& number);

  Machine& machine_;
  std::map<int, Number> numbers_;
};

/// Opens the file under a free number, hands over its lines one by one and
/// closes it. An error ends the reading and is passed over, one of `line` too: a
/// file that cannot be opened has no lines.
void forEachLine(FileNumbers& numbers, std::string_view path,
                 const std::function<void(const std::string& line)>& line);

}  // namespace tavr
