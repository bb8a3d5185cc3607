#include "services/deletion.h"

#include <cmath>

#include "basic/text.h"
#include "services/access.h"

namespace tavr {

namespace {

constexpr std::uint32_t kGenericAll = 0x10000000;
constexpr std::string_view kSessionManager = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr std::string_view kPendingValue = "PendingFileRenameOperations";
constexpr auto kLocalMachine = static_cast<std::uint32_t>(Root::kLocalMachine);
constexpr std::size_t kBlock = 8192;
constexpr int kLastPass = 10;

// Most paths hold no "$" at all, which is quicker to see than their lower case.
bool isRecycled(const std::string& path) {
  return path.find('$') != std::string::npos && InStr(LCase(path), "$recycle.bin") != 0;
}

std::unique_ptr<StdRegProv> bindProvider(Machine& machine) {
  auto provider = machine.wmi.bindRegistryProvider(kRegistryProviderMoniker);
  if (!provider) throw RuntimeError{kErrNoObject, "Object variable not set"};
  return provider;
}

}  // namespace

void Deletion::changepermission(std::string& path) {
  if (isRecycled(path)) return;
  const std::string user = machine_.environment.get("username");
  path = std::string(Trim(path));
  GrantFileAccess(machine_, user, path, kGenericAll);
}

void Deletion::DeleteAFile(std::string_view file) {
  std::string path(file);
  changepermission(path);
  // The file's attributes are left alone here: a read-only file must stay.
  if (!form_.file_system_object) return;
  machine_.files.remove(path);
}

bool Deletion::fFileRemains(std::string_view file) {
  ResumeNext on;
  std::string path(file);
  changepermission(path);
  double length = 0;
  on.next([&] { length = FileLen(machine_, path); });
  const bool opens = machine_.files.canOpen(path);
  return length > 0 || opens || Dir(machine_, path).empty();
}

void Deletion::grantSessionManager() {
  form_.grant_failed = !GrantKeyAccess(machine_, Root::kLocalMachine, kSessionManager,
                                       machine_.environment.get("UserName"));
}

void Deletion::pndtxt() {
  ResumeNext on;
  form_.Text16.setText("");
  grantSessionManager();
  std::unique_ptr<StdRegProv> provider;
  on.next([&] { provider = bindProvider(machine_); });
  std::vector<std::string> entries;
  if (on.number() != 0 || provider->getMultiStringValue(kLocalMachine, kSessionManager,
                                                        kPendingValue, entries) != kSuccess) {
    entries.clear();
  }
  std::string text;
  for (const std::string& entry : entries) text += "|" + entry;
  form_.Text16.setText(LCase(text));
}

void Deletion::growPending() {
  form_.pendingpairs.resize(static_cast<std::size_t>(form_.pending_count) + 2);
}

void Deletion::savepending() {
  ResumeNext on;
  grantSessionManager();
  on.next([&] {
    const auto provider = bindProvider(machine_);
    provider->createKey(kLocalMachine, kSessionManager);
    provider->setMultiStringValue(kLocalMachine, kSessionManager, kPendingValue,
                                  form_.pendingpairs);
    std::vector<std::string> read_back;  // asked for, and not looked at
    provider->getMultiStringValue(kLocalMachine, kSessionManager, kPendingValue, read_back);
  });
}

void Deletion::fOverwriteFile(std::string_view path) {
  ResumeNext on;
  numbers_.Reset();
  const int number = 1;
  double length = 0;
  on.next([&] {
    numbers_.open(number, path, OpenMode::kInput);
    length = numbers_.length(number);
    numbers_.close(number);
  });
  const double last_block = std::nearbyint(length / static_cast<double>(kBlock));  // halves to even
  on.next([&] { SetAttr(machine_, path, 0); });
  const std::string block(kBlock, '#');
  for (int pass = 0; pass <= kLastPass; ++pass) {
    on.next([&] { numbers_.open(number, path, OpenMode::kBinary); });
    for (double index = 0; index <= last_block; ++index) {
      on.next([&] { numbers_.put(number, index * static_cast<double>(kBlock) + 1, block); });
      machine_.events.doEvents();
    }
    on.next([&] { numbers_.close(number); });
    machine_.events.doEvents();
  }
}

}  // namespace tavr
