#include "tests/support/whole_state.h"

#include <algorithm>
#include <filesystem>

#include "basic/text.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kRead64 = 0x20019 | 0x100;
constexpr const char* kKey = "key";

std::string readable(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c == '\0') continue;
    if (c == '\r') {
      out += "\\r";
    } else if (c == '\n') {
      out += "\\n";
    } else {
      out += c;
    }
  }
  return out;
}

// Paths as the machine sees them, "C:\..."; its own files by their names.
void addFiles(TestMachine& machine, WholeState& state) {
  for (const auto& entry : fs::recursive_directory_iterator(machine.directory())) {
    std::string path = fs::relative(entry.path(), machine.directory()).string();
    if (path.starts_with("C/")) {
      std::replace(path.begin(), path.end(), '/', '\\');
      path.insert(1, ":");
      state[path] = entry.is_directory() ? "folder" : readable(machine.read(path));
    } else if (!entry.is_directory()) {
      state[path] = readable(machine.readMachineFile(path));
    }
  }
}

void addKey(Machine& machine, Root root, const std::string& name, const std::string& path,
            WholeState& state) {
  const OpenedKey opened = machine.registry.open(root, path, kRead64);
  if (opened.status != kSuccess) return;
  std::string child;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  for (std::uint32_t i = 0; opened.key->enumValue(i, child, type, size) == kSuccess; ++i) {
    RegistryData data;
    opened.key->queryValue(child, 65536, data);
    state[name + LCase(path) + "\\\\" + child] = readable(data.data);
  }
  for (std::uint32_t i = 0; opened.key->enumKey(i, child) == kSuccess; ++i) {
    std::string below = path;
    if (!below.empty()) below += "\\";
    below += child;
    state[name + LCase(below)] = kKey;
    addKey(machine, root, name, below, state);
  }
}

const char* yesOrNo(bool value) { return value ? "yes" : "no"; }

// Hidden text boxes are the variables of the program's procedures: no state that
// anybody sees.
void addForm(const Form& form, WholeState& state) {
  const std::string name(form.name());
  state[name] = "open";
  state[name + ".visible"] = yesOrNo(form.visible);
  state[name + ".enabled"] = yesOrNo(form.enabled);
  for (const Control* const control : form.controls()) {
    const ControlDesign& design = control->design;
    if (design.kind == ControlKind::kTextBox && !design.visible) continue;
    const std::string own = name + "." + fullName(design.name, design.index);
    state[own] = readable(control->shown());
    state[own + ".visible"] = yesOrNo(control->visible);
    state[own + ".enabled"] = yesOrNo(control->enabled);
  }
}

// "Form2.Check1(44)" while there is no "Form2".
bool isControlOfNone(const std::string& name, const WholeState& state) {
  const bool control = name.starts_with("F") || name.starts_with("f");
  return control && name.find('.') != name.npos && !state.contains(name.substr(0, name.find('.')));
}

}  // namespace

WholeState wholeState(TestMachine& machine, StartedProgram& program) {
  WholeState state;
  addFiles(machine, state);
  addKey(machine.machine(), Root::kLocalMachine, "HKLM\\", "", state);
  addKey(machine.machine(), Root::kCurrentUser, "HKCU\\", "", state);
  for (const char* name : kForms) {
    if (const Form* form = program.program().desk.loaded(name)) addForm(*form, state);
  }
  return state;
}

std::vector<std::string> changes(const WholeState& before, const WholeState& after) {
  std::vector<std::string> found;
  for (const auto& [name, text] : before) {
    if (!after.contains(name) && !isControlOfNone(name, after)) found.push_back("-" + name);
  }
  for (const auto& [name, text] : after) {
    const auto old = before.find(name);
    if (old != before.end()) {
      if (old->second != text) found.push_back(name + "=" + text);
    } else if (text == kKey || isControlOfNone(name, before)) {
      continue;
    } else {
      found.push_back("+" + name + "=" + text);
    }
  }
  return found;
}

}  // namespace tavr::testing
