// What the machine-folder program prints of its runs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "tests/support/browser_traces.h"
#include "tests/support/test_machine.h"
#include "ui/terminal/report.h"

namespace tavr {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::TestMachine;

// A stream whose text can be looked at.
class TextStream {
 public:
  TextStream() : stream_(open_memstream(&buffer_, &size_)) {}
  ~TextStream() {
    std::fclose(stream_);
    std::free(buffer_);
  }
  TextStream(const TextStream&) = delete;
  TextStream& operator=(const TextStream&) = delete;

  std::FILE* file() { return stream_; }
  std::string text() {
    std::fflush(stream_);
    return {buffer_, size_};
  }

 private:
  char* buffer_ = nullptr;
  std::size_t size_ = 0;
  std::FILE* stream_;
};

struct Output {
  std::string out;
  std::string progress;
};

Output printed(TestMachine& machine, std::string_view arguments, Printed what, bool progress) {
  TextStream out;
  TextStream progress_out;
  Program& program = machine.program();
  TerminalReport report(program, what, out.file(), progress ? progress_out.file() : nullptr);
  Form_Initialize(program, arguments);
  try {
    Form_Load(program);
  } catch (const ProcessEnd&) {
    // The end of every unattended start.
  }
  report.finish();
  return {out.text(), progress_out.text()};
}

void oneCookie(TestMachine& machine) {
  machine.select("52");
  testing::addCookies(machine, 2, 1, 1536);
}

TEST(TerminalReport, PrintsTheTaskTableAndTheTotalsOfARun) {
  TestMachine machine;
  oneCookie(machine);
  machine.select("53").file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "P\r\n");
  EXPECT_EQ(printed(machine, "t", Printed::tables, false).out,
            "Erase\n\n"
            "Task                              Status        # of Tracks\n"
            "Notification Area Icon Cache      Finished      0\n"
            "Internet Explorer Browser         Finished      0\n"
            "Firefox Browser                   Finished      0\n"
            "Google chrome Browser             Finished      1\n"
            "Opera Browser                     Finished      0\n"
            "Microsoft Edge Browser            Finished      0\n"
            "Yandex Browser                    Finished      0\n"
            "Vivaldi Browser                   Finished      0\n"
            "Brave Browser                     Finished      0\n"
            "Torch Browser                     Finished      0\n"
            "Maxthon Browser                   Finished      0\n"
            "P                                 Done          \n"
            "\n"
            "Registry keys 2   Files 1   Hard disk space 1.500 KB   Results 3\n\n");
}

TEST(TerminalReport, PrintsATableForEachRun) {
  TestMachine machine;
  oneCookie(machine);
  const std::string out = printed(machine, "t-x", Printed::tables, false).out;
  EXPECT_THAT(out, StartsWith("Test\n\n"));
  EXPECT_THAT(out, HasSubstr("\n\nErase\n\n"));
}

TEST(TerminalReport, APlugInNameOfManyBytesKeepsTheColumns) {
  TestMachine machine;
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln",
               "\xC3\xA4\xC3\xB6\r\n" + std::string(40, 'l') + "\r\n");
  const std::string out = printed(machine, "t", Printed::tables, false).out;
  EXPECT_THAT(out, HasSubstr("\n\xC3\xA4\xC3\xB6" + std::string(32, ' ') + "Done"));
  EXPECT_THAT(out, HasSubstr("\n" + std::string(40, 'l') + " Done"));
}

TEST(TerminalReport, PrintsEveryRowOnce) {
  TestMachine machine;
  oneCookie(machine);
  const std::string row =
      "C:\\Users\\user\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\s1\\Cookies Google "
      "cookies \n";
  EXPECT_EQ(printed(machine, "w2", Printed::rows, false).out, row);
}

TEST(TerminalReport, PrintsTheRowsOfBothRuns) {
  TestMachine machine;
  oneCookie(machine);
  const std::string row =
      "C:\\Users\\user\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\s1\\Cookies Google "
      "cookies \n";
  EXPECT_EQ(printed(machine, "t-x", Printed::rows, false).out, row + row);
}

TEST(TerminalReport, PrintsTheRowsOfARunThatWasEndedInItsMiddle) {
  TestMachine machine;
  machine.ini("[parent]\nwindow=Tavrwork Brightbox\n[fault]\nFindWindow=2,2\n");
  oneCookie(machine);
  EXPECT_THAT(printed(machine, "w4", Printed::rows, false).out, HasSubstr("Google cookies \n"));
}

TEST(TerminalReport, PrintsNothingWhenItIsToBeQuiet) {
  TestMachine machine;
  oneCookie(machine);
  const Output both = printed(machine, "t-x", Printed::nothing, false);
  EXPECT_EQ(both.out, "");
  EXPECT_EQ(both.progress, "");
}

TEST(TerminalReport, ShowsTheProgressBesideTheTablesAndClearsIt) {
  TestMachine machine;
  oneCookie(machine);
  const Output both = printed(machine, "t", Printed::tables, true);
  EXPECT_THAT(both.progress, StartsWith("\r\033[K  5 %  0 found"));
  EXPECT_THAT(both.progress, HasSubstr("\r\033[K 85 %  1 found"));
  EXPECT_THAT(both.progress, ::testing::EndsWith("\r\033[K100 %  1 found\r\033[K"));
  EXPECT_THAT(both.out, Not(HasSubstr("found")));
}

}  // namespace
}  // namespace tavr
