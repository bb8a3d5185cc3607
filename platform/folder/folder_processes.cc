#include "platform/folder/folder_processes.h"

#include <optional>
#include <utility>

#include "basic/text.h"

namespace tavr::folder {

namespace {

constexpr std::uint32_t kTerminateRight = 0x1;

// The words of the one query that the machine knows, up to its name.
constexpr std::string_view kQueryWords[] = {"select", "*",    "from", "Win32_Process",
                                            "where",  "Name", "="};

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Takes the next word, or one of the signs "*" and "=".
std::string_view takeWord(std::string_view& text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  std::size_t length = 0;
  while (length < text.size() && !isBlank(text[length]) && text[length] != '*' &&
         text[length] != '=' && text[length] != '\'') {
    ++length;
  }
  if (length == 0 && !text.empty() && text.front() != '\'') length = 1;
  const std::string_view word = text.substr(0, length);
  text.remove_prefix(length);
  return word;
}

// The text between the quotes, which must be all that is left.
std::optional<std::string> takeQuoted(std::string_view text) {
  text = trimBlanks(text);
  if (text.size() < 2 || text.front() != '\'' || text.back() != '\'') return std::nullopt;
  text.remove_prefix(1);
  std::string out;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    const bool escape = text[i] == '\\' || (text[i] == '\'' && text[i + 1] == '\'');
    if (escape && i + 2 >= text.size()) return std::nullopt;  // the closing quote is escaped
    if (text[i] == '\'' && !escape) return std::nullopt;      // something behind the text
    if (escape) ++i;
    out += text[i];
  }
  return out;
}

std::optional<std::string> queriedName(std::string_view query) {
  for (const std::string_view expected : kQueryWords) {
    if (!sameText(takeWord(query), expected)) return std::nullopt;
  }
  return takeQuoted(query);
}

}  // namespace

class FolderProcesses::Handle : public Process {
 public:
  Handle(FolderProcesses& owner, std::size_t index, std::uint32_t access)
      : owner_(owner), index_(index), access_(access) {}

  Status terminate(std::uint32_t /*exit_code*/) override {
    if (const Status fault = owner_.terminate_fault_.hit()) return fault;
    return (access_ & kTerminateRight) == 0 ? kAccessDenied : owner_.end(index_);
  }

 private:
  FolderProcesses& owner_;
  std::size_t index_;
  std::uint32_t access_;
};

FolderProcesses::FolderProcesses(const std::string& directory, Faults& faults)
    : file_(directory, "processes.txt"),
      snapshot_fault_(faults.point("Process32First")),
      open_fault_(faults.point("OpenProcess")),
      terminate_fault_(faults.point("TerminateProcess")) {
  for (std::size_t i = 0; i < file_.size(); ++i) {
    const std::string_view line = trimBlanks(file_.line(i));
    if (line.empty()) continue;
    const std::size_t blank = line.find_first_of(" \t");
    const auto id = decimal(line.substr(0, blank));
    if (!id || blank == std::string_view::npos) file_.refuse(i, "no \"pid image\"");
    entries_.push_back({i, {*id, std::string(trimBlanks(line.substr(blank)))}});
  }
}

std::vector<ProcessEntry> FolderProcesses::running() const {
  std::vector<ProcessEntry> running;
  for (const Entry& entry : entries_) {
    if (!file_.removed(entry.line)) running.push_back(entry.process);
  }
  return running;
}

Status FolderProcesses::snapshot(std::vector<ProcessEntry>& entries) {
  entries.clear();
  if (const Status fault = snapshot_fault_.hit()) return fault;
  entries = running();
  return kSuccess;
}

Status FolderProcesses::open(std::uint32_t id, std::uint32_t access,
                             std::unique_ptr<Process>& out) {
  out.reset();
  if (const Status fault = open_fault_.hit()) return fault;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    // The idle process, id 0, cannot be opened at all.
    if (id == 0 || entries_[i].process.id != id || file_.removed(entries_[i].line)) continue;
    out = std::make_unique<Handle>(*this, i, access);
    return kSuccess;
  }
  return kInvalidParameter;
}

Status FolderProcesses::end(std::size_t index) {
  const std::size_t line = entries_[index].line;
  if (file_.removed(line)) return kAccessDenied;  // it has ended already
  file_.setRemoved(line, true);
  if (file_.write()) return kSuccess;
  file_.setRemoved(line, false);
  return kAccessDenied;
}

FolderWmi::FolderWmi(FolderProcesses& processes, MakeProvider make_provider, Faults& faults)
    : processes_(processes),
      make_provider_(std::move(make_provider)),
      bind_fault_(faults.point("GetObject")),
      query_fault_(faults.point("ExecQuery")) {}

std::unique_ptr<StdRegProv> FolderWmi::bindRegistryProvider(std::string_view moniker) {
  if (bind_fault_.hit() != kSuccess || !sameText(moniker, kRegistryProviderMoniker)) return nullptr;
  return make_provider_();
}

bool FolderWmi::queryProcessIds(std::string_view query, std::vector<std::uint32_t>& ids) {
  ids.clear();
  if (bind_fault_.hit() != kSuccess || query_fault_.hit() != kSuccess) return false;
  const std::optional<std::string> name = queriedName(query);
  if (!name) return false;
  for (const ProcessEntry& process : processes_.running()) {
    if (sameText(process.image, *name)) ids.push_back(process.id);
  }
  return true;
}

}  // namespace tavr::folder
