#include "platform/win32/win32_event_log.h"

#include <windows.h>

#include <memory>
#include <string>

#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

struct CloseSource {
  using pointer = HANDLE;
  void operator()(HANDLE source) const { DeregisterEventSource(source); }
};

}  // namespace

Status Win32EventLog::report(std::string_view server, std::string_view source, std::uint16_t type,
                             std::uint32_t event_id, std::string_view text) {
  const std::wstring machine = wide(server);
  const std::unique_ptr<HANDLE, CloseSource> log(
      RegisterEventSourceW(server.empty() ? nullptr : machine.c_str(), wide(source).c_str()));
  if (!log) return lastStatus(kInvalidHandle);
  const std::wstring message = wide(text);
  LPCWSTR strings[] = {message.c_str()};
  return ReportEventW(log.get(), type, 0, event_id, nullptr, 1, 0, strings, nullptr)
             ? kSuccess
             : lastStatus(kInvalidHandle);
}

}  // namespace tavr::win32
