#include "tests/contract/win32_contract_machine.h"

#include <windows.h>

#include "platform/win32/wide.h"
#include "tests/contract/win32_differences.h"
#include "tests/contract/win32_planting.h"

namespace tavr::contract {

namespace {

using win32::wide;

// Under Wine the tests run in a prefix of their own; elsewhere somebody has to
// say that recycle bin and URL cache are nobody's.
bool isThrowAway() {
  return onWine() || GetEnvironmentVariableW(L"TAVR_THROW_AWAY_MACHINE", nullptr, 0) != 0;
}

void addAttribute(std::string_view path, DWORD attribute) {
  const std::wstring name = longForm(path);
  require(SetFileAttributesW(name.c_str(), GetFileAttributesW(name.c_str()) | attribute), path);
}

bool needsAWindow(std::string_view test) {
  return test == "ParentLinkContract.AWindowIsFoundByExactlyItsTitle" ||
         test == "ParentLinkContract.ATitleInAnotherCaseIsAnother" ||
         test == "ParentLinkContract.TheParentReadsTheTextAtTheAddress" ||
         test == "ParentLinkContract.AMessageToNoWindowGoesNowhere";
}

HANDLE openToRead(std::string_view path, DWORD share) {
  return CreateFileW(longForm(path).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

Win32ContractMachine::Win32ContractMachine() {
  if (!isThrowAway()) return;
  emptyUrlCache();
  emptyRecycleBin();
}

Win32ContractMachine::~Win32ContractMachine() {
  machine_.reset();
  for (const auto& [path, handle] : held_) CloseHandle(handle);
  for (void* process : processes_) {
    TerminateProcess(process, 0);
    WaitForSingleObject(process, INFINITE);  // until then its image cannot be removed
    CloseHandle(process);
  }
  for (const std::wstring& name : variables_) SetEnvironmentVariableW(name.c_str(), nullptr);
}

std::string Win32ContractMachine::whyNot(std::string_view test) {
  const bool shared = test.starts_with("UrlCacheContract.") || test.starts_with("ShellContract.");
  if (shared && !isThrowAway()) return "this machine's recycle bin and URL cache are somebody's";
  if (needsAWindow(test) && !ParentWindow::possible()) {
    return "without a display there are no windows";
  }
  return wineDifference(test);
}

Machine& Win32ContractMachine::machine() {
  if (machine_ == nullptr) machine_ = std::make_unique<win32::Win32Machine>();
  return machine_->machine();
}

// Files -------------------------------------------------------------------------

void Win32ContractMachine::plantFolder(std::string_view path) {
  const std::size_t end = path.rfind('\\');
  if (end == std::string_view::npos) return;  // a drive
  if (exists(path)) return;
  plantFolder(path.substr(0, end));
  require(CreateDirectoryW(longForm(path).c_str(), nullptr), path);
}

void Win32ContractMachine::plantFile(std::string_view path, std::string_view contents) {
  plantFolder(path.substr(0, path.rfind('\\')));
  const HANDLE file = CreateFileW(longForm(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  require(file != INVALID_HANDLE_VALUE, path);
  DWORD written = 0;
  const BOOL done =
      WriteFile(file, contents.data(), static_cast<DWORD>(contents.size()), &written, nullptr);
  CloseHandle(file);
  require(done, path);
}

void Win32ContractMachine::makeReadOnly(std::string_view path) {
  addAttribute(path, FILE_ATTRIBUTE_READONLY);
}

void Win32ContractMachine::makeHidden(std::string_view path) {
  addAttribute(path, FILE_ATTRIBUTE_HIDDEN);
}

void Win32ContractMachine::hold(std::string_view path) {
  const HANDLE file = openToRead(path, 0);
  require(file != INVALID_HANDLE_VALUE, path);
  held_.emplace(path, file);
}

bool Win32ContractMachine::exists(std::string_view path) {
  return GetFileAttributesW(longForm(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string Win32ContractMachine::contents(std::string_view path) {
  const auto held = held_.find(path);
  const bool own = held == held_.end();
  const HANDLE file = own ? openToRead(path, FILE_SHARE_READ | FILE_SHARE_WRITE) : held->second;
  require(file != INVALID_HANDLE_VALUE, path);
  std::string text(GetFileSize(file, nullptr), '\0');
  DWORD size = 0;
  SetFilePointer(file, 0, nullptr, FILE_BEGIN);
  const BOOL done = ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &size, nullptr);
  if (own) CloseHandle(file);
  require(done, path);
  return text;
}

// The rest ----------------------------------------------------------------------

void Win32ContractMachine::plantValue(Root root, View view, std::string_view path,
                                      std::string_view name, std::uint32_t type,
                                      std::string_view bytes) {
  plantRegistryValue(static_cast<std::uint32_t>(root), view == View::k64, path, name, type, bytes);
}

std::uint32_t Win32ContractMachine::startProcess(std::string_view image) {
  const RunningProcess started = startSleeper(images_.path() + "\\" + std::string(image));
  processes_.push_back(started.handle);
  return started.id;
}

std::string Win32ContractMachine::plantCacheFile(std::string_view url, std::string_view name) {
  std::string path = cacheFilePath(url, name);
  plantFile(path, "x");
  return path;
}

void Win32ContractMachine::plantCacheEntry(std::uint32_t type, std::string_view url,
                                           std::string_view local_file) {
  commitCacheEntry(type, url, local_file);
}

void Win32ContractMachine::plantRecycled(std::string_view contents, bool read_only) {
  const std::string path = images_.path() + "\\" + std::to_string(++recycled_) + ".txt";
  plantFile(path, contents);
  if (read_only) makeReadOnly(path);
  recycle(path);
}

void Win32ContractMachine::setVariable(std::string_view name, std::string_view text) {
  variables_.push_back(wide(name));
  require(SetEnvironmentVariableW(variables_.back().c_str(), wide(text).c_str()), name);
}

void Win32ContractMachine::openParentWindow(std::string_view title) {
  parent_ = std::make_unique<ParentWindow>(title);
}

std::vector<std::string> Win32ContractMachine::parentTexts() {
  return parent_ == nullptr ? std::vector<std::string>() : parent_->texts();
}

std::unique_ptr<ContractMachine> makeContractMachine() {
  return std::make_unique<Win32ContractMachine>();
}

}  // namespace tavr::contract
