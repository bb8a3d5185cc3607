#include "engine/catalogue_dump.h"

#include <map>
#include <span>
#include <vector>

#include "basic/number.h"
#include "engine/run_tables.h"
#include "tracks/catalogue.h"

namespace tavr {

namespace {

std::string_view name(Primitive primitive) {
  constexpr std::string_view kNames[] = {"srch", "srch2", "srchd", "srchd2"};
  return kNames[static_cast<std::size_t>(primitive)];
}

std::string_view name(KeyAct act) {
  constexpr std::string_view kNames[] = {"grant", "tree", "values", "keys", "value", "read", "key"};
  return kNames[static_cast<std::size_t>(act)];
}

std::string_view name(RowTail tail) {
  constexpr std::string_view kNames[] = {"none", "full", "bold", "own"};
  return kNames[static_cast<std::size_t>(tail)];
}

std::string_view shapeName(const Shape& shape) {
  constexpr std::string_view kNames[] = {"folder", "profiles", "firefox", "own"};
  return kNames[shape.index()];
}

std::string_view name(StepCount count) {
  constexpr std::string_view kNames[] = {"trackcount", "one", "trackcount+totals"};
  return kNames[static_cast<std::size_t>(count)];
}

std::vector<const Procedure*> allProcedures() {
  std::vector<const Procedure*> all;
  for (const auto tracks :
       {windowsTracks(), internetExplorerTracks(), firefoxTracks(), chromiumTracks()}) {
    for (const Procedure& procedure : tracks) all.push_back(&procedure);
  }
  return all;
}

void line(std::string& out, std::initializer_list<std::string_view> fields) {
  std::string_view separator;
  for (const std::string_view field : fields) {
    (out += separator) += field;
    separator = "\t";
  }
  out += '\n';
}

std::string_view orNone(std::string_view name) { return name.empty() ? "none" : name; }

void procedureLines(std::string& out, const Procedure& p) {
  line(out, {"procedure", p.name, shapeName(p.shape), name(p.tail)});
  for (const Entry& e : p.searches) {
    line(out, {"search", p.name, name(e.primitive), e.folder, e.pattern, e.label});
  }
  for (const KeyUse& k : p.keys) line(out, {"key", p.name, name(k.act), k.path});
  for (const RowForm& r : p.rows) line(out, {r.ghosted ? "ghosted-row" : "row", p.name, r.text});
}

void runLines(std::string& out) {
  int row = 0;
  for (const TaskRow& task : kTaskRows) {
    line(out, {"task", numberText(++row), task.value.empty() ? "always" : task.value, task.label,
               task.icon});
  }
  int order = 0;
  for (const WindowsStep& step : kWindowsSteps) {
    line(out, {"step", numberText(++order), step.value, step.clean, step.test, name(step.count)});
  }
  for (const BrowserGroup& group : kBrowserGroups) {
    line(out, {"group", group.label, group.process, group.wmi_process, group.prompt});
  }
  for (const BrowserGroup& group : kBrowserGroups) {
    for (std::size_t i = 0; i < std::size(kBrowserValues); ++i) {
      line(out,
           {"gate", group.label, kBrowserValues[i], orNone(group.clean[i]), orNone(group.test[i])});
    }
  }
}

// Who calls a procedure: the selection value and the step or group.
std::map<std::string_view, std::string> callers() {
  std::map<std::string_view, std::string> found;
  for (const WindowsStep& step : kWindowsSteps) {
    for (const std::string_view procedure : {step.clean, step.test}) {
      found[procedure] = "Windows step, selection " + std::string(step.value);
    }
  }
  for (const BrowserGroup& group : kBrowserGroups) {
    for (std::size_t i = 0; i < std::size(kBrowserValues); ++i) {
      for (const std::string_view procedure : {group.clean[i], group.test[i]}) {
        found[procedure] =
            std::string(group.label) + " group, selection " + std::string(kBrowserValues[i]);
      }
    }
  }
  return found;
}

std::string code(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '|') escaped += '\\';
    escaped += c;
  }
  return "`" + escaped + "`";
}

void procedureSection(std::string& out, const Procedure& p, const std::string& caller) {
  out += "\n### " + std::string(p.name) + " - " + std::string(p.track) + "\n\n";
  out += "Called by: " + (caller.empty() ? "no run" : caller) +
         ". Shape: " + std::string(shapeName(p.shape)) +
         ". Row tail: " + std::string(name(p.tail)) + ".\n";
  if (!p.searches.empty()) {
    out += "\n| Primitive | Folder | Pattern | Label |\n|---|---|---|---|\n";
    for (const Entry& e : p.searches) {
      out += "| " + std::string(name(e.primitive)) + " | " + code(e.folder) + " | " +
             code(e.pattern) + " | " + code("\"" + std::string(e.label) + "\"") + " |\n";
    }
  }
  if (!p.keys.empty()) {
    out += "\n| Key use | Key |\n|---|---|\n";
    for (const KeyUse& k : p.keys) {
      out += "| " + std::string(name(k.act)) + " | " + code(k.path) + " |\n";
    }
  }
  for (const RowForm& r : p.rows) {
    out += std::string("\nRow") + (r.ghosted ? " (greyed)" : "") + ": " +
           code("\"" + std::string(r.text) + "\"") + "\n";
  }
}

constexpr std::string_view kPageHead = R"(# The catalogue

Written by `scripts/catalogue` from the table in `tracks/` and `engine/run_tables.h`; not edited by
hand, and a test fails when it is stale.

`cN` cleans a track and `tN` tests it. Where the two differ, they are meant to.

- Primitive: `srch` lists, `srchd` lists and deletes; `srch2` and `srchd2` skip files that wait on
  the pending rename list. Every search goes into all subfolders.
- Places: `%NAME%` an environment variable; `{P}` the folder of a profile that the browser's
  `PreferenceMACs` key names; `{R}` and `{L}` the roaming and local folder of a Firefox profile;
  other braces are put in at run time.
- Key use: `grant` access, `tree` deletes the key with everything below it, `values` and `keys`
  enumerate, `value` and `key` delete one, `read` reads. Keys lie under `HKEY_CURRENT_USER` unless
  they begin with another root.
- Row tail: the count turns bold and dark red, and the results scroll to their end (`full`); `bold`
  does not scroll; `own` is done inside the procedure.
)";

void runSection(std::string& out) {
  out += "\n## What a run calls\n\n### Windows steps, in order\n\n";
  out += "| Selection | Erase | Test |\n|---|---|---|\n";
  for (const WindowsStep& step : kWindowsSteps) {
    out += "| " + std::string(step.value) + " | " + std::string(step.clean) + " | " +
           std::string(step.test) + " |\n";
  }
  out += "\n### Browser groups, in order\n\n| Group | Process |";
  for (const std::string_view value : kBrowserValues) out += " " + std::string(value) + " |";
  out += "\n|---|---|---|---|---|---|---|\n";
  for (const BrowserGroup& group : kBrowserGroups) {
    out += "| " + std::string(group.label) + " | " + std::string(group.process) + " |";
    for (std::size_t i = 0; i < std::size(kBrowserValues); ++i) {
      out += " " + std::string(orNone(group.clean[i])) + " / " +
             std::string(orNone(group.test[i])) + " |";
    }
    out += "\n";
  }
}

}  // namespace

std::string catalogueLines() {
  std::string out;
  for (const Procedure* procedure : allProcedures()) procedureLines(out, *procedure);
  runLines(out);
  return out;
}

std::string cataloguePage() {
  std::string out(kPageHead);
  runSection(out);
  const auto found = callers();
  const struct {
    std::string_view title;
    std::span<const Procedure> tracks;
  } families[] = {{"Windows", windowsTracks()},
                  {"Internet Explorer", internetExplorerTracks()},
                  {"Firefox", firefoxTracks()},
                  {"Chromium family", chromiumTracks()}};
  for (const auto& family : families) {
    out += "\n## " + std::string(family.title) + "\n";
    for (const Procedure& procedure : family.tracks) {
      const auto caller = found.find(procedure.name);
      procedureSection(out, procedure, caller == found.end() ? "" : caller->second);
    }
  }
  return out;
}

}  // namespace tavr
