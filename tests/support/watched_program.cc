#include "tests/support/watched_program.h"

#include <algorithm>

#include "basic/resume_next.h"
#include "engine/runs.h"
#include "engine/start.h"
#include "tests/support/machine_with.h"

namespace tavr::testing {

namespace {

bool endsProcess(const std::function<void()>& action) {
  try {
    action();
  } catch (const ProcessEnd&) {
    return true;
  }
  return false;
}

}  // namespace

int RecordingDialogs::messageBox(std::string_view text, std::uint32_t flags,
                                 std::string_view title) {
  asked.push_back({std::string(text), flags, std::string(title)});
  return answerTo ? answerTo(asked.back()) : answer;
}

void HookedEvents::when(std::function<bool()> condition, std::function<void()> action) {
  actions_.emplace_back(std::move(condition), std::move(action));
}

void HookedEvents::next(std::function<void()> action) {
  when([] { return true; }, std::move(action));
}

// An action may pump itself, and so come back here: it is taken out first.
void HookedEvents::doEvents() {
  const auto due = std::find_if(actions_.begin(), actions_.end(),
                                [](const auto& entry) { return entry.first(); });
  if (due != actions_.end()) {
    const std::function<void()> action = std::move(due->second);
    actions_.erase(due);
    action();
  }
  ObservedEvents::doEvents();
}

Status RecordingFiles::setAttributes(std::string_view path, std::uint32_t attributes) {
  attributes_set.emplace_back(path, attributes);
  return ForwardingFiles::setAttributes(path, attributes);
}

Status RecordingFiles::remove(std::string_view path) {
  removed.emplace_back(path);
  return ForwardingFiles::remove(path);
}

OpenedFile RecordingFiles::open(std::string_view path, OpenMode mode) {
  opened.emplace_back(path, mode);
  return ForwardingFiles::open(path, mode);
}

int RecordingFiles::openings(std::string_view path, OpenMode mode) const {
  return static_cast<int>(
      std::count(opened.begin(), opened.end(), std::pair<std::string, OpenMode>(path, mode)));
}

WatchedProgram::WatchedProgram(TestMachine& test)
    : events(test.machine().events),
      files(test.machine().files),
      wmi(test.machine().wmi),
      machine(machineWith(test.machine(), events, files, wmi, dialogs)),
      program(machine),
      form(program.form) {}

bool WatchedProgram::start(std::string_view arguments) {
  Form_Initialize(program, arguments);
  return endsProcess([&] { Form_Load(program); });
}

bool WatchedProgram::run(RunKind kind) {
  const Button& button = kind == RunKind::erase ? form.chameleonButton5 : form.chameleonButton6;
  return endsProcess([&] { button.click(); });
}

std::vector<std::string> WatchedProgram::rows() const {
  std::vector<std::string> texts;
  for (std::size_t row = 1; row <= form.View200.count(); ++row) {
    texts.emplace_back(form.View200.text(row));
  }
  return texts;
}

std::vector<std::string> WatchedProgram::table() {
  std::vector<std::string> lines;
  for (int row = 1; row <= form.View100.count(); ++row) {
    ListRow& item = form.View100.item(row);
    lines.push_back(item.text + "|" + item.subItem(1).text + "|" + item.subItem(2).text);
  }
  return lines;
}

std::string WatchedProgram::task(std::string_view label) {
  for (const std::string& line : table()) {
    if (line.starts_with(std::string(label) + "|")) return line.substr(label.size() + 1);
  }
  return "<no row>";
}

}  // namespace tavr::testing
