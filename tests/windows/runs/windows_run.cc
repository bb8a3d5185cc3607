#include "tests/windows/runs/windows_run.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <future>
#include <iterator>
#include <stdexcept>
#include <thread>

#include "basic/text.h"
#include "basic/utf.h"
#include "tests/windows/runs/machine_files.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kDesk = "C:\\pen\\";
constexpr std::string_view kProgram = "\"C:\\Program Files\\Tavr Wipe\\tavrwipe.exe\"";
constexpr std::string_view kShellFolders =
    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void writeFile(const fs::path& path, std::string_view text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error(path.string() + ": cannot be written");
}

// As the registry editor takes it: UTF-16 with its mark, CR LF.
std::string asRegistryFile(const std::string& text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : toUtf16(replaced(text, "\n", "\r\n"))) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

std::string escaped(const std::string& text) {
  return replaced(replaced(text, "\\", "\\\\"), "\"", "\\\"");
}

std::string order(std::initializer_list<std::string_view> words) {
  std::string line;
  for (const std::string_view word : words) {
    if (!line.empty()) line += '\t';
    line += word;
  }
  return line + "\n";
}

// The variables that a machine folder has without being told, and what it is told.
std::vector<std::pair<std::string, std::string>> environmentOf(const std::string& ini) {
  const auto told = section(ini, "environment");
  const auto value = [&told](std::string_view name, const std::string& otherwise) {
    for (const auto& [key, text] : told) {
      if (sameText(key, name)) return text;
    }
    return otherwise;
  };
  const std::string user = value("UserName", "user");
  const std::string profile = value("USERPROFILE", "C:\\Users\\" + user);
  std::vector<std::pair<std::string, std::string>> all = {
      {"UserName", user},
      {"USERPROFILE", profile},
      {"Temp", value("Temp", profile + "\\AppData\\Local\\Temp")},
      {"PROGRAMDATA", value("PROGRAMDATA", "C:\\ProgramData")}};
  all.insert(all.end(), told.begin(), told.end());
  return all;
}

}  // namespace

WindowsRun::WindowsRun(Pen& pen, const Scenario& scenario) : pen_(pen), scenario_(scenario) {}

void WindowsRun::plantFiles() {
  for (const Entry& entry : scenario_.before) {
    fs::path path;
    if (isPlainFile(entry.path)) {
      path = pen_.place(entry.path);
    } else if (!recycledItem(entry.path).empty()) {
      path = pen_.desk() / "recycle" / entry.path.substr(entry.path.find("$R", 14));
    } else {
      continue;
    }
    fs::create_directories(entry.kind == EntryKind::folder ? path : path.parent_path());
    if (entry.kind == EntryKind::file) writeFile(path, entry.contents);
  }
  for (const Entry& entry : scenario_.before) {
    if (isPlainFile(entry.path)) setMarks(pen_.place(entry.path), entry.marks);
  }
}

std::string WindowsRun::planting() {
  const std::string ini = contentsOf(scenario_.before, "machine.ini");
  std::string text;
  std::string profile;
  for (const auto& [name, value] : environmentOf(ini)) {
    text += order({"env", name, value});
    if (name == "USERPROFILE") profile = value;
  }
  std::string cookies = profile + "\\AppData\\Local\\Microsoft\\Windows\\INetCookies";
  for (const auto& [name, value] : section(ini, "folders")) {
    if (sameText(name, "cookies")) cookies = value;
  }
  // WinINet's own files stay out of the machine: an index.dat is a trace, too.
  std::string registry = contentsOf(scenario_.before, "registry.reg");
  if (registry.empty()) registry = "Windows Registry Editor Version 5.00\n";
  for (const char* key : {"Shell Folders]", "User Shell Folders]"}) {
    registry +=
        "\n" + std::string(kShellFolders) + key + "\n\"Cookies\"=\"" + escaped(cookies) + "\"\n";
  }
  writeFile(pen_.desk() / "registry.reg", asRegistryFile(registry));

  for (const std::string& line : linesOf(contentsOf(scenario_.before, "processes.txt"))) {
    text += order({"start", line.substr(line.find(' ') + 1)});
  }
  for (const std::string& line : linesOf(contentsOf(scenario_.before, "urlcache.txt"))) {
    text += "cache\t" + line + "\n";
  }
  for (const std::string& path : linesOf(contentsOf(scenario_.before, "locked.txt"))) {
    text += order({"hold", path});
  }
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(pen_.desk() / "recycle", none)) {
    text += order({"recycle", std::string(kDesk) + "recycle\\" + entry.path().filename().string()});
  }
  for (const auto& [name, value] : section(ini, "parent")) {
    if (sameText(name, "window") && !value.empty()) {
      text += order({"parent", value, std::string(kDesk) + "parent.log"});
    }
  }
  std::string otherwise = "no";
  for (const auto& [name, value] : section(ini, "answers")) {
    if (sameText(name, "default")) {
      otherwise = LCase(value);
    } else {
      text += order({"answer", name, LCase(value)});
    }
  }
  return text + order({"answer", "", otherwise});
}

std::string WindowsRun::orders() {
  std::string text = planting();
  const auto run = [&text](std::string_view arguments) {
    text += order({"run", std::string(kProgram) + " " + std::string(arguments)});
  };
  const auto pause = [&](const std::string& name) {
    text += order({"pause", name});
    pauses_.push_back(name);
  };
  pause("before");
  for (const Run& one : scenario_.runs) run(one.arguments);
  pause("after");
  if (scenario_.second_run) {
    if (endsWithTest(scenario_)) run("t-c");
    pause("first");
    run("t-c");
    pause("second");
  }
  return text;
}

void WindowsRun::carryOut() {
  using namespace std::chrono_literals;
  plantFiles();
  writeFile(pen_.desk() / "session.txt", orders());
  // Ahead of every process that reads its settings as it starts.
  pen_.run("regedit.exe", {"/S", std::string(kDesk) + "registry.reg"});
  auto session = std::async(std::launch::async, [this] {
    return pen_.run("C:\\pen\\planter.exe", {std::string(kDesk) + "session.txt"});
  });
  for (const std::string& pause : pauses_) {
    const fs::path written = pen_.desk() / (pause + ".reg");
    while (!fs::exists(written) && session.wait_for(5ms) != std::future_status::ready) {
    }
    if (!fs::exists(written)) break;
    readAt(pause);
    writeFile(pen_.desk() / (pause + ".go"), "");
  }
  session_ = session.get();
  pen_.stop();
}

void WindowsRun::readAt(const std::string& pause) {
  const auto read = [&](const std::string& name) { return readFile(pen_.desk() / name); };
  moved_.clear();
  for (const std::string& line : linesOf(read("moved"))) {
    const std::size_t tab = line.find('\t');
    moved_.emplace_back(line.substr(0, tab), line.substr(tab + 1));
  }
  Moment& moment = moments_[pause];
  const auto entryOf = [](const std::string& path) {
    return replaced("C" + path.substr(2), "\\", "/");
  };
  moment.tree = pen_.readTree();
  for (const auto& [there, asked] : moved_) {
    const fs::path file = pen_.place(entryOf(there));
    moment.tree.erase(pen_.entryName(entryOf(there)));
    if (fs::exists(file)) moment.tree[entryOf(asked)] = readNode(fs::directory_entry(file));
  }
  moment.registry = RegistryImage::of(read(pause + ".reg"));
  moment.processes = linesOf(read(pause + ".processes"));
  std::sort(moment.processes.begin(), moment.processes.end());
  moment.url_cache = linesOf(asPlanted(read(pause + ".cache")));
  std::sort(moment.url_cache.begin(), moment.url_cache.end());
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(pen_.home() / ".local/share/Trash/files", none)) {
    moment.recycled.push_back(entry.path().filename().string());
  }
  std::sort(moment.recycled.begin(), moment.recycled.end());
}

std::string WindowsRun::parentLog() const { return readFile(pen_.desk() / "parent.log"); }

std::string WindowsRun::asPlanted(std::string text) const {
  for (const auto& [there, asked] : moved_) text = replaced(std::move(text), there, asked);
  return text;
}

}  // namespace tavr::testing
