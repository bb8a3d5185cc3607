#include "config/plug_ins.h"

#include "basic/like.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "basic/utf.h"
#include "services/cookies_folder.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::uint32_t kArchive = 32;
constexpr int kNumber = 1;
constexpr std::string_view kSelection = "slectplg.cln";
constexpr std::string_view kFileList = "plgfile.cln";
constexpr std::string_view kFolderList = "plgfoldr.cln";
constexpr std::string_view kRegistryList = "plgreg.cln";
constexpr std::size_t kExtension = 3;   // ".tv"
constexpr std::size_t kFileHead = 5;    // "file="
constexpr std::size_t kFileTail = 2;    // two characters that are not looked at
constexpr std::size_t kFolderHead = 7;  // "folder="
constexpr std::size_t kFolderTail = 5;  // two skipped, the mask's two, the flag

std::string_view withoutExtension(std::string_view name) {
  if (name.size() < kExtension) throw RuntimeError{kErrInvalidCall, "Invalid procedure call"};
  return name.substr(0, name.size() - kExtension);
}

}  // namespace

void PlugIns::listDefinitions() {
  ResumeNext on;
  controls_.View1.clear();
  if (const auto folder = cookiesFolder(machine_)) {
    controls_.Text3.setText(*folder);
    registry_.fSaveString(Root::kLocalMachine, settings::kMainKey, "cookies", Trim(*folder));
  }
  bool listed = false;
  on.next([&] {
    controls_.File1.setPath(programFile(machine_, "plugins"));
    listed = true;
  });
  controls_.File1.setPattern("*.tv");
  if (!listed) return;  // without the folder nothing is listed
  const int count = controls_.File1.count();
  for (int i = 0; i < count; ++i) {
    machine_.events.doEvents();
    const std::string name = controls_.File1.list(i);
    on.next([&] { controls_.View1.add(Trim(withoutExtension(name)), "b"); });
  }
}

bool PlugIns::hasSelection() const {
  return !Dir(machine_, programFile(machine_, kSelection)).empty();
}

void PlugIns::restoreTicks(const std::function<void(const std::string& text)>& ticked) {
  ResumeNext on;
  forEachLine(numbers_, programFile(machine_, kSelection), [&](const std::string& line) {
    machine_.events.doEvents();
    const std::string lower = LCase(line);
    for (int row = 1; row <= controls_.View1.count(); ++row) {
      ListRow& item = controls_.View1.item(row);
      if (!on.met([&] { return Like(Trim(LCase(item.text)), Trim(lower)); })) continue;
      item.checked = true;
      ticked(item.text);
    }
  });
}

void PlugIns::startFile(const std::string& path) {
  ResumeNext on;
  on.next([&] { SetAttr(machine_, path, kArchive); });
  on.next([&] { Kill(machine_, path); });
}

void PlugIns::writeSelection() {
  ResumeNext on;
  const std::string path = programFile(machine_, kSelection);
  startFile(path);
  numbers_.Reset();
  on.next([&] { numbers_.open(kNumber, path, OpenMode::kOutput); });
  int row = 1;
  do {
    machine_.events.doEvents();
    if (on.met([&] { return controls_.View1.item(row).checked; })) {
      on.next([&] { numbers_.print(kNumber, controls_.View1.item(row).text); });
    }
    ++row;
  } while (row <= controls_.View1.count());
  on.next([&] { numbers_.close(kNumber); });
}

void PlugIns::addFolder(std::string_view line) {
  const std::u16string value = toUtf16(line).substr(kFolderHead);
  if (value.size() < kFolderTail) return;
  const std::u16string_view folder(value.data(), value.size() - kFolderTail);
  const std::u16string_view tail = std::u16string_view(value).substr(folder.size());
  controls_.List5.add(GetPath(machine_, fromUtf16(folder)));
  controls_.List5.add(fromUtf16(tail.substr(2, 2)));
  controls_.List5.add(fromUtf16(tail.substr(4)));
}

// Once a registry section has been followed by a file section, both are open: a
// line then counts in both.
void PlugIns::readLine(const std::string& line, bool& files, bool& registry) {
  const std::string word(Trim(LCase(line)));
  if (word == "files") {
    files = true;
    return;
  }
  if (word == "registry") {
    registry = true;
    files = false;
    return;
  }
  if (files && line.starts_with("file")) {
    const std::u16string text = toUtf16(line);
    if (text.size() >= kFileHead + kFileTail) {
      controls_.List4.add(GetPath(
          machine_, fromUtf16(text.substr(kFileHead, text.size() - kFileHead - kFileTail))));
    }
  }
  if (files && line.starts_with("folder") && line.size() >= kFolderHead) addFolder(line);
  if (registry) controls_.List6.add(line);
}

void PlugIns::readDefinition(const std::string& name) {
  const std::string path = programFile(machine_, "plugins\\" + std::string(Trim(name)) + ".tv");
  bool files = false;
  bool registry = false;
  forEachLine(numbers_, path, [&](const std::string& line) { readLine(line, files, registry); });
}

void PlugIns::writeList(const TextList& list, std::string_view name) {
  ResumeNext on;
  const std::string path = programFile(machine_, name);
  startFile(path);
  const int number = numbers_.freeFile();
  on.next([&] { numbers_.open(number, path, OpenMode::kOutput); });
  for (int i = 0; i < list.count(); ++i) {
    machine_.events.doEvents();
    const std::string_view line = Trim(list.at(i));
    if (!line.empty()) on.next([&] { numbers_.print(number, line); });
  }
  on.next([&] { numbers_.close(number); });
}

void PlugIns::Command1() {
  writeSelection();
  controls_.List4.clear();
  controls_.List5.clear();
  controls_.List6.clear();
  for (int row = 1; row <= controls_.View1.count(); ++row) {
    const ListRow& item = controls_.View1.item(row);
    if (item.checked) readDefinition(item.text);
  }
  writeList(controls_.List4, kFileList);
  writeList(controls_.List5, kFolderList);
  writeList(controls_.List6, kRegistryList);
}

bool PlugIns::readList(std::string_view name,
                       const std::function<void(const std::string& line)>& line) {
  const std::string path = programFile(machine_, name);
  if (Dir(machine_, path).empty()) return false;
  forEachLine(numbers_, path, line);
  return true;
}

void PlugIns::Command3() {
  for (TextList* list : {&controls_.List7, &controls_.List8, &controls_.List9, &controls_.List10,
                         &controls_.List11}) {
    list->clear();
  }
  const bool files = readList(kFileList, [&](const std::string& line) {
    if (!Trim(line).empty()) controls_.List7.add(line);
  });
  if (!files) return;
  TextList* const fields[] = {&controls_.List8, &controls_.List9, &controls_.List10};
  std::size_t field = 0;
  const bool folders =
      readList(kFolderList, [&](const std::string& line) { fields[field++ % 3]->add(line); });
  while (field % 3 != 0) fields[field++ % 3]->add("");  // a short last record
  if (!folders) return;
  readList(kRegistryList, [&](const std::string& line) { controls_.List11.add(line); });
}

int search_found(const TextList& list6, std::string_view name) {
  ResumeNext on;
  const std::string lower = LCase(name);
  for (int i = 0; i < list6.count(); ++i) {
    if (on.met([&] { return Like(lower, LCase(list6.at(i))); })) return i;
  }
  return -1;
}

}  // namespace tavr
