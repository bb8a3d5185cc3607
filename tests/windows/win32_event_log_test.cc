// What platform/win32/win32_event_log.h leaves in the log.
#include "platform/win32/win32_event_log.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/win32/wide.h"
#include "tests/contract/win32_differences.h"

namespace tavr::win32 {
namespace {

struct Record {
  DWORD id = 0;
  WORD type = 0;
  WORD category = 0;
  WORD strings = 0;
  std::string source;
  std::string text;
};

// The youngest record of the application log.
Record lastRecord() {
  const HANDLE log = OpenEventLogW(nullptr, L"Application");
  EXPECT_NE(log, nullptr);
  std::vector<std::uint64_t> room(8192);
  DWORD size = 0;
  DWORD needed = 0;
  EXPECT_TRUE(ReadEventLogW(log, EVENTLOG_SEQUENTIAL_READ | EVENTLOG_BACKWARDS_READ, 0, room.data(),
                            static_cast<DWORD>(room.size() * sizeof(room[0])), &size, &needed))
      << GetLastError();
  CloseEventLog(log);
  if (size == 0) return {};
  const auto* const at = reinterpret_cast<const char*>(room.data());
  const auto& found = *reinterpret_cast<const EVENTLOGRECORD*>(at);
  return {found.EventID,
          found.EventType,
          found.EventCategory,
          found.NumStrings,
          narrow(reinterpret_cast<const wchar_t*>(at + sizeof(EVENTLOGRECORD))),
          narrow(reinterpret_cast<const wchar_t*>(at + found.StringOffset))};
}

TEST(Win32EventLogTest, AnEventStandsInTheApplicationLogAsItWasReported) {
  if (contract::onWine()) GTEST_SKIP() << "Wine keeps no event log to read";
  const std::string text = "tavr test, process " + std::to_string(GetCurrentProcessId());
  ASSERT_EQ(Win32EventLog().report("", "Spoorwipe", 1, 5000, text), kSuccess);
  const Record record = lastRecord();
  EXPECT_EQ(record.id, 5000U);
  EXPECT_EQ(record.type, 1);
  EXPECT_EQ(record.category, 0);
  EXPECT_EQ(record.strings, 1);
  EXPECT_EQ(record.source, "Spoorwipe");
  EXPECT_EQ(record.text, text);
}

TEST(Win32EventLogTest, AServerThatIsNotThereTakesNoEvent) {
  if (contract::onWine()) GTEST_SKIP() << "Wine takes every server for this machine";
  EXPECT_NE(Win32EventLog().report("\\\\tavr-no-such-server", "Spoorwipe", 1, 5000, "text"),
            kSuccess);
}

}  // namespace
}  // namespace tavr::win32
