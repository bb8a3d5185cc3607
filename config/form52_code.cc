#include "config/form52_code.h"

#include <vector>

#include "basic/resume_next.h"
#include "basic/text.h"
#include "services/cookies_folder.h"
#include "services/program_folder.h"

namespace tavr {

namespace {

constexpr std::uint32_t kArchive = 32;
constexpr std::string_view kCookiesFile = "cookies.tvr";
constexpr std::string_view kAddressFile = "url.tvr";
constexpr std::string_view kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr std::string_view kTypedUrls = "software\\microsoft\\internet explorer\\typedurls";
constexpr std::string_view kTypedUrlsRead = "software\\microsoft\\internet explorer\\typedurls\\";

// A name ends at a comma. What stands behind the last one is the buffer of the
// pass that found no more values, and no name.
std::vector<std::string> namesOf(std::string_view text) {
  std::vector<std::string> names;
  std::string name;
  for (const char c : text) {
    if (c != ',') {
      name += c;
      continue;
    }
    names.push_back(name);
    name.clear();
  }
  return names;
}

bool holds(const ListBox& list, const std::string& entry) {
  for (const ListBox::Row& row : list.rows) {
    if (Trim(LCase(row.text)) == entry) return true;
  }
  return false;
}

void selectAll(ListBox& list) {
  for (ListBox::Row& row : list.rows) row.selected = true;
}

}  // namespace

Form52Code::Form52Code(FormContext& context)
    : form(context.machine.events, context.machine.files),
      context_(context),
      enumerator_(context.machine, no_list12_, no_list20_, form.Text2) {
  form.Text1.onChange = [this] { Text1_Change(); };
  form.keepbutton2.onClick = [this] { addSelected(); };
  form.List1.onDoubleClick = [this] { addSelected(); };
  form.keepbutton3.onClick = [this] { deleteSelected(); };
  form.List2.onDoubleClick = [this] { deleteSelected(); };
  form.keepbutton11.onClick = [this] { refresh(); };
  form.keepbutton7.onClick = [this] { ok(); };
  form.keepbutton10.onClick = [this] { context_.host.unload(form.name()); };
  form.chameleonButton1.onClick = [this] { selectAll(form.List1); };
  form.chameleonButton2.onClick = [this] { selectAll(form.List2); };
  form.Command1.onClick = [this] { Command1_Click(); };
  form.command2.onClick = [this] { command2_Click(); };
}

void Form52Code::Form_Load() { form.topmost = true; }

void Form52Code::open(std::string_view heading, std::string_view mode) {
  form.Label1_1.caption = heading;
  form.Text1.setText(mode);
}

void Form52Code::Text1_Change() {
  if (form.Text1.text() == "1") {
    Command1_Click();
    readKept(kCookiesFile);
  } else if (form.Text1.text() == "2") {
    command2_Click();
    readKept(kAddressFile);
  }
}

// The length of a missing file cannot be had, which counts as a length; the
// opening then fails and nothing is read. Lines are kept as they stand.
void Form52Code::readKept(std::string_view name) {
  ResumeNext on;
  const std::string path = programFile(context_.machine, name);
  if (!on.met([&] { return FileLen(context_.machine, path) != 0; })) return;
  forEachLine(context_.numbers, path, [&](const std::string& line) {
    if (!Trim(line).empty()) form.List2.add(line);
  });
}

void Form52Code::setDir1(std::string_view path) {
  const std::string before = form.Dir1.path();
  form.Dir1.setPath(path);
  if (form.Dir1.path() != before) Dir1_Change();
}

void Form52Code::readCookiesFolder() {
  ResumeNext on;
  on.next([&] {
    std::string folder;
    context_.registry.fGetString(Root::kCurrentUser, kShellFolders, "Cookies", folder);
    setDir1(folder);
  });
  if (on.number() != kErrPathNotFound) return;
  const auto folder = cookiesFolder(context_.machine);
  if (folder) on.next([&] { setDir1(*folder); });
}

void Form52Code::Command1_Click() {
  readCookiesFolder();
  Dir1_Change();
}

void Form52Code::Dir1_Change() {
  ResumeNext on;
  form.List1.clear();
  on.next([&] { form.File1.setPath(form.Dir1.path()); });
  form.File1.setPattern("*.txt");
  for (int i = 0; i < form.File1.count(); ++i) form.List1.add(form.File1.list(i));
}

// The names are listed first and replaced by the addresses behind them. Text2
// starts empty, or a second filling would list everything twice.
void Form52Code::command2_Click() {
  form.List1.clear();
  form.List3.clear();
  form.Text2.setText("");
  std::string packed;
  enumerator_.fEnumValue("HKCU", kTypedUrls, packed);
  for (const std::string& name : namesOf(form.Text2.text())) form.List1.add(name);
  for (int i = 0; i < form.List1.count(); ++i) {
    std::string address;
    context_.registry.fGetString(Root::kCurrentUser, kTypedUrlsRead, form.List1.list(i), address);
    form.List3.add(address);
  }
  form.List1.clear();
  for (int i = 0; i < form.List3.count(); ++i) form.List1.add(form.List3.list(i));
}

void Form52Code::addSelected() {
  for (const ListBox::Row& row : form.List1.rows) {
    if (!row.selected) continue;
    const std::string entry(Trim(LCase(row.text)));
    if (entry.empty() || holds(form.List2, entry)) continue;
    form.List2.add(row.text);
  }
}

void Form52Code::deleteSelected() {
  std::erase_if(form.List2.rows, [](const ListBox::Row& row) { return row.selected; });
}

void Form52Code::refresh() {
  form.List1.clear();
  if (form.Text1.text() == "1") Command1_Click();
  if (form.Text1.text() == "2") command2_Click();
}

void Form52Code::writeKept(std::string_view name) {
  ResumeNext on;
  Machine& machine = context_.machine;
  FileNumbers& numbers = context_.numbers;
  const std::string path = programFile(context_.machine, name);
  on.next([&] { SetAttr(machine, path, kArchive); });
  on.next([&] { Kill(machine, path); });
  const int number = numbers.freeFile();
  on.next([&] { numbers.open(number, path, OpenMode::kOutput); });
  for (const ListBox::Row& row : form.List2.rows) {
    const std::string_view line = Trim(row.text);
    if (!line.empty()) on.next([&] { numbers.print(number, line); });
  }
  on.next([&] { numbers.close(number); });
}

void Form52Code::ok() {
  if (form.Text1.text() == "1") writeKept(kCookiesFile);
  if (form.Text1.text() == "2") writeKept(kAddressFile);
  context_.host.unload(form.name());
}

}  // namespace tavr
