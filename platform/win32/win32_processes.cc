#include "platform/win32/win32_processes.h"

#include <windows.h>
// After windows.h, which it needs.
#include <tlhelp32.h>

#include <utility>

#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

struct CloseAny {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, CloseAny>;

class OpenedProcess final : public Process {
 public:
  explicit OpenedProcess(Handle handle) : handle_(std::move(handle)) {}

  Status terminate(std::uint32_t exit_code) override {
    return TerminateProcess(handle_.get(), exit_code) ? kSuccess : lastStatus();
  }

 private:
  Handle handle_;
};

}  // namespace

Status Win32Processes::snapshot(std::vector<ProcessEntry>& entries) {
  entries.clear();
  const HANDLE taken = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  if (taken == INVALID_HANDLE_VALUE) return lastStatus();
  const Handle snapshot(taken);
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof(entry);
  if (!Process32FirstW(taken, &entry)) return lastStatus();
  do {
    entries.push_back({entry.th32ProcessID, narrow(entry.szExeFile)});
  } while (Process32NextW(taken, &entry));
  return kSuccess;
}

Status Win32Processes::open(std::uint32_t id, std::uint32_t access, std::unique_ptr<Process>& out) {
  out.reset();
  Handle handle(OpenProcess(access, FALSE, id));
  if (!handle) return lastStatus();
  out = std::make_unique<OpenedProcess>(std::move(handle));
  return kSuccess;
}

}  // namespace tavr::win32
