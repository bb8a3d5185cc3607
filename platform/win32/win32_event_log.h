// The event log of Windows.
#pragma once

#include "platform/event_log.h"

namespace tavr::win32 {

class Win32EventLog : public EventLogService {
 public:
  Status report(std::string_view server, std::string_view source, std::uint16_t type,
                std::uint32_t event_id, std::string_view text) override;
};

}  // namespace tavr::win32
