#include "engine/plug_in_registry.h"

#include "basic/text.h"
#include "basic/utf.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

struct RootName {
  std::string_view long_name;
  std::string_view short_name;
};

constexpr RootName kRoots[] = {
    {"HKEY_CURRENT_USER", "HKCU"}, {"HKEY_LOCAL_MACHINE", "HKLM"},  {"HKEY_USERS", "HKU"},
    {"HKEY_CLASSES_ROOT", "HKCR"}, {"HKEY_CURRENT_CONFIG", "HKCC"}, {"HKEY_DYN_DATA", "HKDD"},
};
constexpr std::size_t kKindTail = 2;  // "," and the kind

void report(Program& program, const PlugInRegistryLine& line, std::string_view path,
            std::string_view name) {
  program.form.View200.addGhosted(
      {"Plug In Registry Links = ", line.root, "\\", path, "\\", name, " <OK>"});
  addTo(program.form.txtregcount, 1);
}

void key(Program& program, const PlugInRegistryLine& line, bool remove) {
  const std::size_t cut = line.path.rfind('\\');
  if (cut == std::string::npos) return;
  const std::string parent = line.path.substr(0, cut);
  const std::string name = line.path.substr(cut + 1);
  report(program, line, parent, name);
  if (remove) program.registry.fDeleteKey(line.root, parent, name);
}

void subkeys(Program& program, const PlugInRegistryLine& line, bool remove) {
  TextList& names = program.form.List12;
  program.registry.fEnumKey(line.root, line.path);
  for (int i = 0; i < names.count(); ++i) {
    report(program, line, line.path, names.at(i));
    if (remove) program.registry.fDeleteKey(line.root, line.path, names.at(i));
  }
}

void values(Program& program, const PlugInRegistryLine& line, bool remove) {
  TextList& names = program.form.List12;
  program.registry.fEnumValuec(line.root, line.path);
  for (int i = 0; i < names.count(); ++i) {
    report(program, line, line.path, names.at(i));
    if (remove) program.registry.fDeleteValue(line.root, line.path, names.at(i));
  }
}

void oneValue(Program& program, const PlugInRegistryLine& line, bool remove) {
  const std::size_t comma = line.path.find(',');
  if (comma == std::string::npos) return;
  const std::string path = line.path.substr(0, comma);
  const std::string name = line.path.substr(comma + 1);
  report(program, line, path, name);
  if (remove) program.registry.fDeleteValue(line.root, path, name);
}

}  // namespace

PlugInRegistryLine parsePlugInRegistryLine(std::string_view raw) {
  const std::string_view line = Trim(raw);
  PlugInRegistryLine parsed;
  if (!line.empty()) parsed.kind = line.back();
  for (const RootName& root : kRoots) {
    if (UCase(line.substr(0, root.long_name.size())) != root.long_name) continue;
    parsed.root = root.short_name;
    const std::u16string text = toUtf16(line);
    const std::size_t start = root.long_name.size() + 1;
    if (text.size() >= start + kKindTail) {
      parsed.path = fromUtf16(text.substr(start, text.size() - start - kKindTail));
    }
    break;
  }
  return parsed;
}

void plugInRegistryLine(Program& program, std::string_view text, bool remove) {
  const PlugInRegistryLine line = parsePlugInRegistryLine(text);
  switch (line.kind) {
    case '1':
      return key(program, line, remove);
    case '2':
      return subkeys(program, line, remove);
    case '3':
      return values(program, line, remove);
    case '4':
      return oneValue(program, line, remove);
    default:
      return;
  }
}

}  // namespace tavr
