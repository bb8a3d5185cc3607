#include "platform/win32/win32_processes.h"

#include <windows.h>
// After windows.h, which it needs.
#include <tlhelp32.h>

#include <utility>

#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

struct CloseAny {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, CloseAny>;

class OpenedProcess final : public Process {
 public:
  OpenedProcess(Handle handle, bool can_wait) : handle_(std::move(handle)), can_wait_(can_wait) {}

  // The call only begins the end; what asks for the processes next shall not
  // find this one.
  Status terminate(std::uint32_t exit_code) override {
    constexpr DWORD kLongestWait = 500;  // ms
    if (!TerminateProcess(handle_.get(), exit_code)) return GetLastError();
    if (can_wait_) WaitForSingleObject(handle_.get(), kLongestWait);
    return kSuccess;
  }

 private:
  Handle handle_;
  bool can_wait_;
};

}  // namespace

Status Win32Processes::snapshot(std::vector<ProcessEntry>& entries) {
  entries.clear();
  const HANDLE taken = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  if (taken == INVALID_HANDLE_VALUE) return GetLastError();
  const Handle snapshot(taken);
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof(entry);
  for (BOOL found = Process32FirstW(taken, &entry); found; found = Process32NextW(taken, &entry)) {
    entries.push_back({entry.th32ProcessID, narrow(entry.szExeFile)});
  }
  return kSuccess;
}

Status Win32Processes::open(std::uint32_t id, std::uint32_t access, std::unique_ptr<Process>& out) {
  out.reset();
  const bool ends = (access & PROCESS_TERMINATE) != 0;
  Handle handle(OpenProcess(ends ? access | SYNCHRONIZE : access, FALSE, id));
  const bool can_wait = ends && handle;
  if (!handle) handle.reset(OpenProcess(access, FALSE, id));
  if (!handle) return GetLastError();
  out = std::make_unique<OpenedProcess>(std::move(handle), can_wait);
  return kSuccess;
}

}  // namespace tavr::win32
