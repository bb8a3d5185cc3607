#include "tests/support/test_machine.h"

#include <stdlib.h>
#include <fstream>
#include <iterator>
#include <map>

#include "basic/resume_next.h"
#include "engine/start.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

fs::path makeDirectory() {
  std::string pattern = (fs::temp_directory_path() / "tavr-test-XXXXXX").string();
  return mkdtemp(pattern.data());
}

std::string escaped(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\' || c == '"') out += '\\';
    out += c;
  }
  return out;
}

void writeFile(const fs::path& path, std::string_view contents) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << contents;
}

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Reading rights in the 32-bit view, where the settings are; HKCU has one view.
constexpr std::uint32_t kRead32 = 0x20019 | 0x200;

}  // namespace

TestMachine::TestMachine() : directory_(makeDirectory()) {
  folder(kProgramFolder);
  folder(kUser);
  folder("C:\\ProgramData");
}

TestMachine::~TestMachine() {
  program_.reset();
  machine_.reset();
  fs::remove_all(directory_);
}

TestMachine& TestMachine::ini(std::string_view lines) {
  ini_ += lines;
  return *this;
}

TestMachine& TestMachine::select(std::string_view name, std::string_view text) {
  return setting("tavr wipe\\option\\win", name, text);
}

TestMachine& TestMachine::setting(std::string_view key_name, std::string_view name,
                                  std::string_view text) {
  return value("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\" + std::string(key_name),
               name, text);
}

TestMachine& TestMachine::value(std::string_view key_name, std::string_view name,
                                std::string_view text) {
  return rawValue(key_name, name, "\"" + escaped(text) + "\"");
}

TestMachine& TestMachine::rawValue(std::string_view key_name, std::string_view name,
                                   std::string_view raw) {
  const std::string left = name.empty() ? "@" : "\"" + escaped(name) + "\"";
  registry_.emplace_back(key_name, left + "=" + std::string(raw));
  return *this;
}

TestMachine& TestMachine::key(std::string_view key_name) {
  registry_.emplace_back(key_name, "");
  return *this;
}

fs::path TestMachine::host(std::string_view windows_path) const {
  std::string path(windows_path);
  path.erase(1, 1);  // the colon
  for (char& c : path) {
    if (c == '\\') c = '/';
  }
  return directory_ / path;
}

TestMachine& TestMachine::file(std::string_view windows_path, std::string_view contents) {
  writeFile(host(windows_path), contents);
  return *this;
}

TestMachine& TestMachine::folder(std::string_view windows_path) {
  fs::create_directories(host(windows_path));
  return *this;
}

TestMachine& TestMachine::readOnly(std::string_view windows_path) {
  fs::permissions(host(windows_path), fs::perms::owner_write, fs::perm_options::remove);
  return *this;
}

TestMachine& TestMachine::machineFile(std::string_view name, std::string_view contents) {
  writeFile(directory_ / name, contents);
  return *this;
}

void TestMachine::writeRegistry() {
  if (registry_.empty()) return;
  std::map<std::string, std::string> keys;
  std::vector<std::string> order;
  for (const auto& [name, line] : registry_) {
    if (!keys.contains(name)) order.push_back(name);
    keys[name] += line.empty() ? "" : line + "\n";
  }
  std::string text = "Windows Registry Editor Version 5.00\n";
  for (const std::string& name : order) text += "\n[" + name + "]\n" + keys[name];
  machineFile("registry.reg", text + "\n");
  registry_.clear();  // the machine's own file counts from here on
}

Machine& TestMachine::machine() {
  if (!machine_) {
    writeRegistry();
    if (!fs::exists(directory_ / "machine.ini")) {
      const bool own_clock = ini_.find("[clock]") != std::string::npos;
      machineFile("machine.ini", (own_clock ? "" : "[clock]\nstart=2026-11-20T10:00:00\n") + ini_);
    }
    machine_ = std::make_unique<folder::MachineFolder>(directory_.string());
  }
  return machine_->machine();
}

Program& TestMachine::program() {
  if (!program_) program_ = std::make_unique<Program>(machine());
  return *program_;
}

void TestMachine::run(std::string_view arguments) {
  Form_Initialize(program(), arguments);
  try {
    Form_Load(program());
  } catch (const ProcessEnd&) {
    // The end of every unattended start.
  }
  machine_->save();
}

void TestMachine::stop() {
  program_.reset();
  if (machine_) machine_->save();
  machine_.reset();
}

bool TestMachine::exists(std::string_view windows_path) const {
  return fs::exists(fs::symlink_status(host(windows_path)));
}

std::string TestMachine::read(std::string_view windows_path) const {
  return readFile(host(windows_path));
}

std::string TestMachine::readMachineFile(std::string_view name) const {
  return readFile(directory_ / name);
}

std::vector<std::string> TestMachine::rows() {
  std::vector<std::string> texts;
  const ResultList& results = program().form.View200;
  for (std::size_t row = 1; row <= results.count(); ++row) texts.emplace_back(results.text(row));
  return texts;
}

std::string TestMachine::registryText(Root root, std::string_view key_name, std::string_view name) {
  const OpenedKey opened = machine().registry.open(root, key_name, kRead32);
  RegistryData data;
  if (opened.status != kSuccess || opened.key->queryValue(name, 65536, data) != kSuccess) {
    return "<none>";
  }
  std::string text = data.data;
  if (!text.empty() && text.back() == '\0') text.pop_back();
  return text;
}

bool TestMachine::keyExists(Root root, std::string_view key_name) {
  return machine().registry.open(root, key_name, kRead32).status == kSuccess;
}

}  // namespace tavr::testing
