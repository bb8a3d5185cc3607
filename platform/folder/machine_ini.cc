#include "platform/folder/machine_ini.h"

#include <algorithm>
#include <iterator>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/fault_operations.h"
#include "platform/folder/machine_text.h"
#include "platform/folder/virtual_clock.h"

namespace tavr::folder {

namespace {

constexpr std::string_view kFile = "machine.ini";

// A key that may be missing and may not stand twice.
using Setting = std::optional<std::string>;

// Without the comment behind it: a ";" that has a blank before it.
std::string_view withoutComment(std::string_view value) {
  for (std::size_t at = 1; at < value.size(); ++at) {
    const char before = value[at - 1];
    if (value[at] == ';' && (before == ' ' || before == '\t')) return value.substr(0, at);
  }
  return value;
}

bool isUtf8(std::string_view text) {
  for (std::size_t pos = 0; pos < text.size();) {
    const std::size_t start = pos;
    if (nextCharacter(text, pos) >= 0x80 && pos == start + 1) return false;
  }
  return true;
}

// Every "<name>" in the text becomes the value.
void replaceReference(std::string& text, std::string_view name, std::string_view value) {
  for (std::size_t at = 0; (at = text.find('<', at)) != std::string::npos;) {
    const std::size_t end = at + name.size() + 1;
    if (end < text.size() && text[end] == '>' &&
        sameText(std::string_view(text).substr(at + 1, name.size()), name)) {
      text.replace(at, name.size() + 2, value);
      at += value.size();
    } else {
      ++at;
    }
  }
}

bool isOperation(std::string_view name) {
  return std::any_of(std::begin(kFaultOperations), std::end(kFaultOperations),
                     [name](std::string_view operation) { return sameText(name, operation); });
}

std::optional<LocalTime> parseTime(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00T00:00:00";
  if (text.size() != kShape.size()) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (kShape[i] == '0' ? !digit : text[i] != kShape[i]) return std::nullopt;
  }
  const auto number = [&](std::size_t from, std::size_t digits) {
    return static_cast<int>(*decimal(text.substr(from, digits)));
  };
  const LocalTime time{number(0, 4),  number(5, 2),  number(8, 2),
                       number(11, 2), number(14, 2), number(17, 2)};
  // FILETIMEs begin with 1601.
  if (time.year < 1601 || !validTime(time)) return std::nullopt;
  return time;
}

class Parser {
 public:
  MachineIni parse(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    while (!text.empty()) {
      ++number_;
      const std::size_t newline = std::min(text.find('\n'), text.size());
      std::string_view line = text.substr(0, newline);
      text.remove_prefix(std::min(newline + 1, text.size()));
      if (line.ends_with('\r')) line.remove_suffix(1);
      takeLine(line);
    }
    return finish();
  }

 private:
  using Take = void (Parser::*)(std::string_view key, std::string_view value);

  struct Section {
    std::string_view name;
    Take take = nullptr;
  };

  [[noreturn]] void refuse(std::string_view what) const { refuseLine(kFile, number_, what); }

  [[noreturn]] void refuse(std::string_view what, std::string_view text) const {
    refuse(std::string(what) + " \"" + std::string(text) + "\"");
  }

  void takeLine(std::string_view line) {
    if (line.find('\0') != std::string_view::npos) refuse("holds a NUL");
    if (!isUtf8(line)) refuse("is not UTF-8");
    line = trimBlanks(line);
    if (line.empty() || line.front() == ';') return;
    if (line.front() == '[') return takeHead(trimBlanks(withoutComment(line)));

    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos) refuse("no \"=\" in", line);
    const std::string_view key = trimBlanks(line.substr(0, sign));
    if (key.empty()) refuse("no name before \"=\"");
    if (section_ == nullptr) refuse("a key before the first section");
    (this->*section_)(key, trimBlanks(withoutComment(line.substr(sign + 1))));
  }

  void takeHead(std::string_view head) {
    static constexpr Section kSections[] = {
        {"environment", &Parser::takeEnvironment},
        {"program", &Parser::takeProgram},
        {"folders", &Parser::takeFolders},
        {"clock", &Parser::takeClock},
        {"answers", &Parser::takeAnswers},
        {"parent", &Parser::takeParent},
        {"fault", &Parser::takeFault},
    };
    if (head.back() != ']') refuse("no \"]\" behind the section's name");
    const std::string_view name = trimBlanks(head.substr(1, head.size() - 2));
    for (const Section& section : kSections) {
      if (!sameText(name, section.name)) continue;
      section_ = section.take;
      if (section_ == &Parser::takeAnswers && !ini_.answers) ini_.answers.emplace();
      return;
    }
    refuse("unknown section", name);
  }

  void takeEnvironment(std::string_view key, std::string_view value) {
    const bool taken =
        std::any_of(ini_.environment.begin(), ini_.environment.end(),
                    [&](const auto& variable) { return sameText(variable.first, key); });
    if (taken) refuse("given twice:", key);
    ini_.environment.emplace_back(key, value);
  }

  void takeProgram(std::string_view key, std::string_view value) {
    if (!sameText(key, "path")) refuse("unknown key", key);
    set(path_, key, value);
    path_line_ = number_;
  }

  void takeFolders(std::string_view key, std::string_view value) {
    if (!sameText(key, "cookies")) refuse("unknown key", key);
    set(cookies_, key, value);
  }

  void takeClock(std::string_view key, std::string_view value) {
    if (!sameText(key, "start")) refuse("unknown key", key);
    set(start_, key, value);
    if (value.empty()) return;
    ini_.clock_start = parseTime(value);
    if (!ini_.clock_start) refuse("no time such as 2026-11-20T10:00:00:", value);
  }

  void takeAnswers(std::string_view key, std::string_view value) {
    const bool yes = sameText(value, "yes");
    if (!yes && !sameText(value, "no")) refuse("an answer is yes or no, not", value);
    if (sameText(key, "default")) {
      set(default_answer_, key, value);
      ini_.answers->yes_by_default = yes;
    } else {
      ini_.answers->texts.emplace_back(key, yes);
    }
  }

  void takeParent(std::string_view key, std::string_view value) {
    if (!sameText(key, "window")) refuse("unknown key", key);
    set(window_, key, value);
  }

  void takeFault(std::string_view key, std::string_view value) {
    if (!isOperation(key)) refuse("unknown operation", key);
    const std::size_t comma = value.find(',');
    if (comma == std::string_view::npos) refuse("a fault is nth,error, not", value);
    const auto nth = decimal(trimBlanks(value.substr(0, comma)));
    const auto error = decimal(trimBlanks(value.substr(comma + 1)));
    if (!nth || !error || *error == kSuccess) refuse("a fault is nth,error, not", value);
    for (const FaultLine& fault : ini_.faults) {
      if (sameText(fault.operation, key) && fault.nth == *nth) refuse("given twice:", key);
    }
    ini_.faults.push_back({std::string(key), *nth, *error});
  }

  void set(Setting& setting, std::string_view key, std::string_view value) const {
    if (setting) refuse("given twice:", key);
    setting = std::string(value);
  }

  // The variable, added with `text` when the file does not name it.
  std::string& variable(std::string_view name, std::string_view text) {
    for (auto& [key, value] : ini_.environment) {
      if (sameText(key, name)) return value;
    }
    return ini_.environment.emplace_back(name, text).second;
  }

  MachineIni finish() {
    const std::string user = variable("UserName", "user");
    std::string& profile_variable = variable("USERPROFILE", "C:\\Users\\<UserName>");
    replaceReference(profile_variable, "UserName", user);
    const std::string profile = profile_variable;
    const auto expand = [&](std::string& text) {
      replaceReference(text, "USERPROFILE", profile);
      replaceReference(text, "UserName", user);
    };
    expand(variable("Temp", "<USERPROFILE>\\AppData\\Local\\Temp"));
    expand(variable("PROGRAMDATA", "C:\\ProgramData"));
    ini_.cookies =
        cookies_.value_or("<USERPROFILE>\\AppData\\Local\\Microsoft\\Windows\\INetCookies");
    expand(ini_.cookies);
    ini_.parent_window = window_.value_or("");
    ini_.program_path = path_.value_or("C:\\Program Files\\Tavr Wipe");
    if (!isFullWindowsPath(ini_.program_path)) {
      number_ = path_line_;
      refuse("no full path such as C:\\Program Files\\Tavr Wipe:", ini_.program_path);
    }
    while (endsInBackslash(ini_.program_path)) ini_.program_path.pop_back();
    return std::move(ini_);
  }

  MachineIni ini_;
  std::size_t number_ = 0;
  Take section_ = nullptr;
  Setting path_;
  std::size_t path_line_ = 0;
  Setting cookies_;
  Setting start_;
  Setting default_answer_;
  Setting window_;
};

}  // namespace

MachineIni parseMachineIni(std::string_view text) { return Parser().parse(text); }

}  // namespace tavr::folder
