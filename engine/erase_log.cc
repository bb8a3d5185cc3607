#include "engine/erase_log.h"

#include "basic/resume_next.h"
#include "basic/text.h"
#include "services/program_folder.h"

namespace tavr {

namespace {

constexpr int kNumber = 1;
constexpr std::uint32_t kArchive = 32;
constexpr std::size_t kRuleLength = 155;

// Date, two blanks, time, read from the clock at this moment.
std::string moment(Machine& machine) {
  const LocalTime now = machine.clock.now();
  return machine.locale.shortDate(now) + "  " + machine.locale.longTime(now);
}

void printRows(Program& program) {
  ResumeNext on;
  std::string line;
  std::size_t row = 1;
  // Tested behind the body: without rows it runs once, and the read fails.
  do {
    program.machine.events.doEvents();
    program.form.bar1.setValue(100);
    on.next([&] {
      line = "Test Mode : Erasing ";
      line += Trim(program.form.View200.text(row));
      program.numbers.print(kNumber, line);
    });
    ++row;
  } while (row <= program.form.View200.count());
}

}  // namespace

void appendEraseLog(Program& program) {
  ResumeNext on;
  const Form1& form = program.form;
  const std::string path = programFile(program.machine, "eraselog.txt");
  const auto print = [&](const std::string& line) {
    on.next([&] { program.numbers.print(kNumber, line); });
  };
  on.next([&] { SetAttr(program.machine, path, kArchive); });
  program.numbers.Reset();
  on.next([&] { program.numbers.open(kNumber, path, OpenMode::kAppend); });
  print("");
  print("");
  print("Test Mode: Test Start --------------------at " + moment(program.machine));
  printRows(program);
  print(std::string(kRuleLength, '-'));
  print("Test Mode: --Test Completed ----Registry Keys Scanned: " + form.Label2.caption +
        ", Files : " + form.Label4.caption + " , Hard Disk Space: " + form.Label6.caption +
        " *********  at " + moment(program.machine));
  on.next([&] { program.numbers.close(kNumber); });
}

}  // namespace tavr
