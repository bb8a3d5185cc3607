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
constexpr std::string_view kExplorer =
    "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
constexpr std::string_view kWmiLocator =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\CLSID\\{4590F811-1D3A-11D0-891F-00AA004B2E24}";
// Where the cache has its index and its files; the name is WinINet's own.
constexpr std::string_view kContainer = "/Content.IE5";

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

bool alwaysFails(const std::string& ini, std::string_view operation) {
  for (const auto& [name, value] : section(ini, "fault")) {
    if (sameText(name, operation)) return value.starts_with("0,");
  }
  return false;
}

std::string unquoted(const std::string& text) {
  return replaced(text.substr(1, text.size() - 2), "\\\\", "\\");
}

// The head of the shell's folders in an export, as section() wants it.
std::string shellFoldersSection() {
  return LCase(std::string(kExplorer.substr(1)) + "Shell Folders");
}

std::string entryOf(const std::string& path) {
  return replaced(path.substr(0, 1) + path.substr(2), "\\", "/");
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
  const bool cached = hasEntry(scenario_.before, "urlcache.txt");
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
    // Wine sets no marks of a file that is open, as its index is for WinINet.
    const bool index = entry.path.ends_with("INetCookies/index.dat") && cached;
    if (isPlainFile(entry.path) && !index) setMarks(pen_.place(entry.path), entry.marks);
  }
}

// WinINet and the shell write the value anew at each start, as the other key says.
std::string WindowsRun::plantingRegistry(const std::string& profile) {
  const std::string ini = contentsOf(scenario_.before, "machine.ini");
  std::string registry = contentsOf(scenario_.before, "registry.reg");
  if (registry.empty()) registry = "Windows Registry Editor Version 5.00\n";
  const std::string local = profile + "\\AppData\\Local\\Microsoft\\Windows\\";
  cookies_ = local + "INetCookies";
  internet_cache_ = local + "INetCache";
  for (const auto& [name, value] : section(ini, "folders")) {
    if (sameText(name, "cookies")) cookies_ = value;
  }
  for (const auto& [name, value] : section(registry, shellFoldersSection())) {
    if (sameText(name, "\"Cookies\"")) cookies_ = unquoted(value);
    if (sameText(name, "\"Cache\"")) internet_cache_ = unquoted(value);
  }
  for (const char* key : {"Shell Folders]", "User Shell Folders]"}) {
    registry += "\n" + std::string(kExplorer) + key + "\n\"Cookies\"=\"" + escaped(cookies_) +
                "\"\n\"Cache\"=\"" + escaped(internet_cache_) + "\"\n";
  }
  if (alwaysFails(ini, "GetObject")) registry += "\n[-" + std::string(kWmiLocator) + "]\n";
  return registry;
}

std::string WindowsRun::planting() {
  const std::string ini = contentsOf(scenario_.before, "machine.ini");
  std::string text;
  std::string profile;
  for (const auto& [name, value] : environmentOf(ini)) {
    text += order({"env", name, value});
    if (name == "USERPROFILE") profile = value;
  }
  writeFile(pen_.desk() / "registry.reg", asRegistryFile(plantingRegistry(profile)));

  for (const std::string& line : linesOf(contentsOf(scenario_.before, "processes.txt"))) {
    text += order({"start", line.substr(line.find(' ') + 1)});
  }
  if (alwaysFails(ini, "OpenProcess")) text += order({"guard"});
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
  text += order({"list", "before"});
  pause("before");
  for (const Run& one : scenario_.runs) run(one.arguments);
  pause("after");
  text += order({"list", "after"});
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
  const fs::path container = pen_.place(entryOf(internet_cache_) + std::string(kContainer));
  const bool indexed = fs::exists(container);
  if (indexed) fs::permissions(container, fs::perms::owner_all);
  Moment& moment = moments_[pause];
  moment.tree = pen_.readTree();
  for (const auto& [there, asked] : moved_) {
    const fs::path file = pen_.place(entryOf(there));
    moment.tree.erase(pen_.entryName(entryOf(there)));
    if (fs::exists(file)) moment.tree[entryOf(asked)] = readNode(fs::directory_entry(file));
  }
  const std::string hidden = pen_.entryName(entryOf(internet_cache_) + std::string(kContainer));
  std::erase_if(moment.tree, [&hidden](const auto& item) {
    return item.first == hidden || item.first.starts_with(hidden + "/");
  });
  // WinINet reaches its files all the same, and no search finds its index.
  if (indexed) fs::permissions(container, fs::perms::owner_write | fs::perms::owner_exec);
  moment.registry = RegistryImage::of(read(pause + ".reg"));
  moment.processes = linesOf(read(pause + ".processes"));
  std::sort(moment.processes.begin(), moment.processes.end());
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(pen_.home() / ".local/share/Trash/files", none)) {
    moment.recycled.push_back(entry.path().filename().string());
  }
  std::sort(moment.recycled.begin(), moment.recycled.end());
}

std::vector<std::string> WindowsRun::cacheAt(const std::string& name) const {
  return linesOf(asPlanted(readFile(pen_.desk() / (name + ".cache"))));
}

Scenario WindowsRun::asFound() const {
  Scenario found = scenario_;
  const auto put = [&found](const std::string& path, const std::string& contents) {
    std::erase_if(found.before, [&path](const Entry& entry) { return entry.path == path; });
    found.before.push_back({EntryKind::file, path, contents, {}});
  };
  std::string cache;
  for (const std::string& line : cacheBefore()) cache += line + "\n";
  put("urlcache.txt", cache);
  std::string registry = contentsOf(scenario_.before, "registry.reg");
  if (registry.empty()) registry = "Windows Registry Editor Version 5.00\n";
  registry += "\n" + std::string(kExplorer) + "Shell Folders]\n";
  for (const auto& [name, value] :
       section(readFile(pen_.desk() / "before.reg"), shellFoldersSection())) {
    registry += name + "=" + value + "\n";
  }
  put("registry.reg", registry);
  std::string cookies = replaced(cookiesFolder(), "/", "\\");
  put("machine.ini", contentsOf(scenario_.before, "machine.ini") +
                         "\n[folders]\ncookies=" + cookies.insert(1, ":") + "\n");
  const std::string index = cookiesFolder() + "/index.dat";
  const auto there = at("before").tree.find(index);
  if (there != at("before").tree.end()) {
    put(index, there->second.contents);
    found.before.back().marks = there->second.marks;
  }
  return found;
}

std::string WindowsRun::cookiesFolder() const { return pen_.entryName(entryOf(cookies_)); }

std::string WindowsRun::parentLog() const { return readFile(pen_.desk() / "parent.log"); }

std::string WindowsRun::asPlanted(std::string text) const {
  for (const auto& [there, asked] : moved_) text = replaced(std::move(text), there, asked);
  return text;
}

}  // namespace tavr::testing
