// Plants a machine and runs programs on it: planter.exe FILE, one order a line,
// its words between TABs, in UTF-8.
//
//   env NAME VALUE        for every program started from here on
//   start IMAGE           a process of that name, which does nothing
//   guard                 nobody may open the processes started so far
//   hold PATH             opens the file and shares it with nobody
//   cache TYPE URL FILE   an entry of the URL cache; FILE may be empty
//   recycle PATH          the file or folder, into the recycle bin
//   parent TITLE FILE     a window; the texts it is told go to FILE
//   answer TEXT yes|no    message boxes that hold TEXT (or any, if it is empty)
//   run COMMAND           a program, to its end; prints its status
//   list NAME             writes the URL cache to NAME.cache beside the orders; to
//                         look makes an index of the cache that is missing
//   pause NAME            writes NAME.reg and NAME.processes beside the orders, then
//                         waits until there is NAME.go
//
// What cannot be planted is printed and ends it with status 1.
#include <windows.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "basic/text.h"
#include "platform/win32/wide.h"
#include "tests/contract/win32_planting.h"
#include "tests/windows/box_answers.h"
#include "tests/windows/cache_plants.h"
#include "tests/windows/parent_window.h"
#include "tests/windows/registry_export.h"

namespace tavr::windows_test {

namespace {

using contract::require;
using win32::narrow;
using win32::wide;

constexpr DWORD kLongestRun = 60'000;     // ms
constexpr DWORD kLongestPause = 120'000;  // ms; nobody waits for it any more
constexpr DWORD kBetweenLooks = 10;       // ms
constexpr int kStarts = 3;

void writeFile(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);  // ASCII only
  out << text;
  require(static_cast<bool>(out.flush()), path);
}

// Under load Wine gives up a start now and then, with ERROR_INTERNAL_ERROR.
HANDLE startSleeper(const std::string& image) {
  for (int i = 1; i < kStarts; ++i) {
    try {
      return contract::startSleeper(image).handle;
    } catch (const std::runtime_error&) {
    }
  }
  return contract::startSleeper(image).handle;
}

class Session {
 public:
  explicit Session(std::string folder) : folder_(std::move(folder)) {}

  ~Session() {
    for (const auto& [image, process] : processes_) {
      TerminateProcess(process, 0);
      CloseHandle(process);
    }
    for (const HANDLE file : held_) CloseHandle(file);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void carryOut(const std::vector<std::string>& words) {
    const std::string& order = words[0];
    const auto word = [&words](std::size_t i) { return i < words.size() ? words[i] : ""; };
    if (order == "env") {
      SetEnvironmentVariableW(wide(word(1)).c_str(), wide(word(2)).c_str());
    } else if (order == "start") {
      start(word(1));
    } else if (order == "guard") {
      for (const auto& [image, process] : processes_) guard(process);
    } else if (order == "hold") {
      hold(word(1));
    } else if (order == "cache") {
      moved_ += plantCacheEntry(std::stoul(word(1)), word(2), word(3));
    } else if (order == "recycle") {
      contract::recycle(word(1));
    } else if (order == "parent") {
      openParent(word(1), word(2));
    } else if (order == "answer") {
      std::wstring text = wide(word(1));
      CharLowerW(text.data());
      answers_.emplace_back(text, word(2) == "yes");
    } else if (order == "run") {
      if (!answering_ && !answers_.empty()) answering_ = std::make_unique<BoxAnswers>(answers_);
      std::printf("status %lu\n", run(word(1)));
    } else if (order == "list") {
      writeFile(folder_ + word(1) + ".cache", listCacheEntries());
    } else if (order == "pause") {
      pause(word(1));
    } else {
      throw std::runtime_error("unknown order " + order);
    }
  }

 private:
  void start(const std::string& image) {
    const std::string place = folder_ + "processes\\" + std::to_string(processes_.size());
    CreateDirectoryW(wide(folder_ + "processes").c_str(), nullptr);
    CreateDirectoryW(wide(place).c_str(), nullptr);
    processes_.emplace_back(image, startSleeper(place + "\\" + image));
  }

  // By an access list without an entry.
  static void guard(HANDLE process) {
    ACL list = {};
    SECURITY_DESCRIPTOR descriptor = {};
    require(InitializeAcl(&list, sizeof(list), ACL_REVISION), "an access list");
    require(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION), "guard");
    require(SetSecurityDescriptorDacl(&descriptor, TRUE, &list, FALSE), "guard");
    require(SetKernelObjectSecurity(process, DACL_SECURITY_INFORMATION, &descriptor), "guard");
  }

  void hold(const std::string& path) {
    const HANDLE file = CreateFileW(wide(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_NOT_FOUND) return;
    require(file != INVALID_HANDLE_VALUE, path);
    held_.push_back(file);
  }

  void openParent(const std::string& title, const std::string& file) {
    parent_ = std::make_unique<TotalsWindow>(wide(title), [file](const std::string& totals) {
      std::ofstream(file, std::ios::binary | std::ios::app) << totals << '\n';
    });
  }

  unsigned long run(const std::string& command) {
    std::wstring line = wide(command);
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    for (int i = 0; i < kStarts && process.hProcess == nullptr; ++i) {
      CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process);
    }
    require(process.hProcess != nullptr, command);
    CloseHandle(process.hThread);
    DWORD status = 0;
    if (WaitForSingleObject(process.hProcess, kLongestRun) != WAIT_OBJECT_0) {
      TerminateProcess(process.hProcess, 1);
      std::printf("too long: %s\n", command.c_str());
    }
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hProcess);
    return status;
  }

  void pause(const std::string& name) {
    std::string alive;
    for (const auto& [image, process] : processes_) {
      if (WaitForSingleObject(process, 0) == WAIT_TIMEOUT) alive += image + "\n";
    }
    writeFile(folder_ + name + ".processes", alive);
    writeFile(folder_ + "moved", moved_);
    writeFile(folder_ + name + ".part", exportRegistry());
    // Under its name when it is whole: it is what is waited for.
    require(
        MoveFileW(wide(folder_ + name + ".part").c_str(), wide(folder_ + name + ".reg").c_str()),
        name);
    const std::wstring go = wide(folder_ + name + ".go");
    for (DWORD waited = 0; waited < kLongestPause; waited += kBetweenLooks) {
      if (GetFileAttributesW(go.c_str()) != INVALID_FILE_ATTRIBUTES) return;
      Sleep(kBetweenLooks);
    }
    throw std::runtime_error("nobody goes on from " + name);
  }

  std::string folder_;  // of the orders, with its "\"
  std::vector<std::pair<std::string, HANDLE>> processes_;
  std::vector<HANDLE> held_;
  std::string moved_;
  BoxAnswers::Answers answers_;
  std::unique_ptr<BoxAnswers> answering_;
  std::unique_ptr<TotalsWindow> parent_;
};

void carryOutAll(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  Session session(file.substr(0, file.rfind('\\') + 1));
  for (const std::string& line : Split(text, '\n')) {
    if (line.empty()) continue;
    session.carryOut(Split(line, '\t'));
    std::fflush(stdout);
  }
}

}  // namespace

}  // namespace tavr::windows_test

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  try {
    tavr::windows_test::carryOutAll(argv[1]);
  } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return 1;
  }
  return 0;
}
