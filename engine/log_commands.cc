#include "engine/log_commands.h"

#include "basic/resume_next.h"
#include "services/program_folder.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr int kShowNormal = 1;
constexpr int kNumber = 1;

}  // namespace

void viewLog(Program& program) {
  program.machine.shell.execute("", programFile(program.machine, "eraselog.txt"), kShowNormal);
}

void clearLog(Program& program) {
  ResumeNext on;
  const std::string path = programFile(program.machine, "eraselog.txt");
  on.next([&] { Kill(program.machine, path); });
  on.next([&] { program.numbers.open(kNumber, path, OpenMode::kOutput); });
  on.next([&] { program.numbers.close(kNumber); });
  LangText(program.tracks, "019");  // read, and the text goes no further
  program.message.showMessage("Spoorwipe", "Successfully Cleaned Log File", "Log File");
}

}  // namespace tavr
