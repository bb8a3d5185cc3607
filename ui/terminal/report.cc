#include "ui/terminal/report.h"

#include <algorithm>
#include <string>

#include "basic/utf.h"

namespace tavr {

namespace {

constexpr std::size_t kTaskWidth = 34;
constexpr std::size_t kStatusWidth = 14;

// A table cell: the text, and blanks up to the width in characters.
std::string cell(const std::string& text, std::size_t width) {
  const std::size_t length = utf16Length(text);
  return text + std::string(length < width ? width - length : 1, ' ');
}

}  // namespace

TerminalReport::TerminalReport(Program& program, Printed what, std::FILE* out,
                               std::FILE* progress_out)
    : program_(program), what_(what), out_(out), progress_out_(progress_out) {
  program_.onRunFinished = [this](RunKind kind) { runFinished(kind); };
  if (what_ == Printed::rows) {
    program_.form.View200.onClear = [this] { printRows(); };
  }
  if (progress_out_ != nullptr) {
    program_.form.bar1.onValue = [this](int value) { showProgress(value); };
  }
}

void TerminalReport::finish() {
  clearProgress();
  if (what_ == Printed::rows) printRows();
  std::fflush(out_);
}

void TerminalReport::runFinished(RunKind kind) {
  clearProgress();
  if (what_ == Printed::tables) printTables(kind);
}

// The rows are printed when the list is about to be cleared and at the end, so
// each is printed once.
void TerminalReport::printRows() {
  const ResultList& results = program_.form.View200;
  for (std::size_t row = 1; row <= results.count(); ++row) {
    const std::string_view text = results.text(row);
    std::fwrite(text.data(), 1, text.size(), out_);
    std::fputc('\n', out_);
  }
}

void TerminalReport::printTables(RunKind kind) {
  Form1& form = program_.form;
  std::fprintf(out_, "%s\n\n%s%s# of Tracks\n", kind == RunKind::erase ? "Erase" : "Test",
               cell("Task", kTaskWidth).c_str(), cell("Status", kStatusWidth).c_str());
  for (int row = 1; row <= form.View100.count(); ++row) {
    ListRow& item = form.View100.item(row);
    std::fprintf(out_, "%s%s%s\n", cell(item.text, kTaskWidth).c_str(),
                 cell(item.subItem(1).text, kStatusWidth).c_str(), item.subItem(2).text.c_str());
  }
  std::fprintf(out_, "\nRegistry keys %s   Files %s   Hard disk space %s   Results %zu\n\n",
               form.Label2.caption.c_str(), form.Label4.caption.c_str(),
               form.Label6.caption.c_str(), form.View200.count());
}

void TerminalReport::showProgress(int value) {
  const std::size_t found = program_.form.View200.count();
  // The bar is set at every row of the log; the line need not be.
  if (value == 0 || (value == progress_value_ && found == progress_found_)) return;
  progress_value_ = value;
  progress_found_ = found;
  progress_shown_ = true;
  std::fprintf(progress_out_, "\r\033[K%3d %%  %zu found", value, found);
  std::fflush(progress_out_);
}

void TerminalReport::clearProgress() {
  if (!progress_shown_) return;
  progress_shown_ = false;
  std::fputs("\r\033[K", progress_out_);
  std::fflush(progress_out_);
}

}  // namespace tavr
