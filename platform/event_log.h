// The application event log.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/win_error.h"

namespace tavr {

class EventLogService {
 public:
  virtual ~EventLogService() = default;
  /// RegisterEventSource, ReportEvent with one string and category 0,
  /// DeregisterEventSource. An empty server is this machine.
  virtual Status report(std::string_view server, std::string_view source, std::uint16_t type,
                        std::uint32_t event_id, std::string_view text) = 0;
};

}  // namespace tavr
