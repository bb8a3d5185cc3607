// The contract suites on the machine that the test program runs on.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/win32_machine.h"
#include "tests/contract/contract_machine.h"
#include "tests/contract/win32_parent_window.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::contract {

/// Plants with plain calls of Windows. What it plants and can find again goes
/// with it; the recycle bin and the URL cache cannot be the test's own, so the
/// suites on them run only on a machine that is thrown away afterwards.
class Win32ContractMachine final : public ContractMachine {
 public:
  Win32ContractMachine();
  ~Win32ContractMachine() override;

  std::string whyNot(std::string_view test) override;
  Machine& machine() override;
  std::string scratchFolder() override { return folder_.path(); }
  std::string scratchKey() override { return key_.path(); }

  void plantFile(std::string_view path, std::string_view contents) override;
  void plantFolder(std::string_view path) override;
  void makeReadOnly(std::string_view path) override;
  void makeHidden(std::string_view path) override;
  void hold(std::string_view path) override;
  bool exists(std::string_view path) override;
  std::string contents(std::string_view path) override;

  void plantValue(Root root, View view, std::string_view path, std::string_view name,
                  std::uint32_t type, std::string_view bytes) override;
  std::uint32_t startProcess(std::string_view image) override;
  std::string plantCacheFile(std::string_view url, std::string_view name) override;
  void plantCacheEntry(std::uint32_t type, std::string_view url,
                       std::string_view local_file) override;
  void plantRecycled(std::string_view contents, bool read_only) override;
  void setVariable(std::string_view name, std::string_view text) override;
  void haveSystemRoot() override {}  // it is there
  void openParentWindow(std::string_view title) override;
  std::vector<std::string> parentTexts() override;
  void useRealClock() override {}  // it is one

 private:
  ScratchFolder folder_{"TavrContract"};
  ScratchFolder images_{"TavrContractImages"};  // of processes, and files to be recycled
  ScratchKey key_{"Tavr Contract"};
  std::map<std::string, void*, std::less<>> held_;  // HANDLEs by path
  std::vector<void*> processes_;                    // HANDLEs
  std::vector<std::wstring> variables_;
  std::unique_ptr<ParentWindow> parent_;
  std::unique_ptr<win32::Win32Machine> machine_;
  int recycled_ = 0;
};

}  // namespace tavr::contract
