#include "services/event_log.h"

#include <gtest/gtest.h>

#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

// Keeps the last event; refuses when told to.
class FakeService : public EventLogService {
 public:
  Status report(std::string_view server, std::string_view source, std::uint16_t type,
                std::uint32_t event_id, std::string_view text) override {
    ++events;
    last = std::string(server) + "," + std::string(source) + "," + std::to_string(type) + "," +
           std::to_string(event_id) + "," + std::string(text);
    return answer;
  }

  int events = 0;
  std::string last;
  Status answer = kSuccess;
};

// Counts the beeps.
class Beeps : public Dialogs {
 public:
  int messageBox(std::string_view, std::uint32_t, std::string_view) override {
    ADD_FAILURE() << "nothing is shown";
    return 1;
  }
  void beep() override { ++count; }

  int count = 0;
};

class EventLogTest : public ::testing::Test {
 protected:
  FakeService service;
  EventLog log{service};
};

TEST_F(EventLogTest, WritesAnEvent) {
  EXPECT_TRUE(log.WriteEvent("text", "Spoorwipe", "5000", 1));
  EXPECT_EQ(service.last, ",Spoorwipe,1,5000,text");
}

TEST_F(EventLogTest, OnlyErrorsWarningsAndInformationAreTypes) {
  for (const int type : {1, 2, 4})
    EXPECT_TRUE(log.WriteEvent("t", "a", "1", static_cast<std::int16_t>(type)));
  for (const int type : {3, 5, 8, 16, -1}) {
    EXPECT_FALSE(log.WriteEvent("t", "a", "1", static_cast<std::int16_t>(type))) << type;
  }
  EXPECT_EQ(service.events, 3);
}

TEST_F(EventLogTest, ATypeThatWasNeverGivenIsNone) {
  EXPECT_FALSE(log.WriteEvent("t", "a", "1"));
  EXPECT_EQ(service.events, 0);
}

TEST_F(EventLogTest, AnEmptyDescriptionOrApplicationWritesNothing) {
  EXPECT_FALSE(log.WriteEvent("", "a", "1", 1));
  EXPECT_EQ(log.Application, "a");
  log.Application.clear();
  EXPECT_FALSE(log.WriteEvent("t", "", "1", 1));
  EXPECT_EQ(service.events, 0);
}

TEST_F(EventLogTest, AnIdThatIsNoNumberCountsAsZeroAndIsValid) {
  EXPECT_TRUE(log.WriteEvent("t", "a", "abc", 1));
  EXPECT_EQ(service.last, ",a,1,0,t");
  log.EventID.clear();
  EXPECT_TRUE(log.WriteEvent("t", "a", "", 1));
}

TEST_F(EventLogTest, ANegativeIdWritesNothing) {
  EXPECT_FALSE(log.WriteEvent("t", "a", "-1", 1));
  EXPECT_EQ(service.events, 0);
}

TEST_F(EventLogTest, AnEmptyArgumentKeepsTheProperty) {
  log.Server = "other";
  ASSERT_TRUE(log.WriteEvent("first", "a", "7", 2));
  EXPECT_TRUE(log.WriteEvent());
  EXPECT_EQ(service.last, "other,a,2,7,first");
  EXPECT_TRUE(log.WriteEvent("second"));
  EXPECT_EQ(service.last, "other,a,2,7,second");
}

TEST_F(EventLogTest, ARefusedEventIsFalse) {
  service.answer = kAccessDenied;
  EXPECT_FALSE(log.WriteEvent("t", "a", "1", 1));
}

class ReportTest : public ::testing::Test {
 protected:
  ReportTest() {
    Machine& real = machine.machine();
    fake_.emplace(testing::machineWith(real, service, beeps));
  }
  void report() { fReportError(*fake_, stack, {6, "Overflow"}, "Search", "FileSizeToDouble", 12); }

  testing::TestMachine machine;
  FakeService service;
  Beeps beeps;
  CallStack stack;

 private:
  std::optional<Machine> fake_;
};

TEST_F(ReportTest, TheErrorItsPlaceAndTheStackAreOneEventAndABeep) {
  const auto outer = stack.enter("Search", "SearchFiles", "FilePath: C:\\d", ", FileName: *.*");
  const auto inner = stack.enter("Search", "FileSizeToDouble");
  report();
  EXPECT_EQ(service.last,
            ",Spoorwipe,1,5000,"
            "RunTime Error: 6 - Overflow\r\n"
            "\tModule: Search\r\n"
            "\tMethod: FileSizeToDouble\r\n"
            "\tLine Number: 12\r\n"
            "\tDescription: :Overflow\r\n"
            "Call Stack:\r\n"
            "Search.FileSizeToDouble \r\n"
            "Search.SearchFiles FilePath: C:\\d, FileName: *.*\r\n");
  EXPECT_EQ(beeps.count, 1);
}

TEST_F(ReportTest, AnEventThatCannotBeWrittenIsLostInSilence) {
  service.answer = kAccessDenied;
  report();
  EXPECT_EQ(service.events, 1);
}

TEST(CallStack, ShrinksWhenACallIsLeftAlsoByAnError) {
  CallStack stack;
  EXPECT_EQ(stack.text(), "");
  try {
    const auto call = stack.enter("Search", "SearchFiles");
    EXPECT_EQ(stack.depth(), 1u);
    throw RuntimeError{6, "Overflow"};
  } catch (const RuntimeError&) {
    EXPECT_EQ(stack.depth(), 0u);
  }
}

}  // namespace
}  // namespace tavr
