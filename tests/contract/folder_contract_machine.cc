// The contract suites on a machine folder.
#include <sys/xattr.h>

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "basic/number.h"
#include "basic/text.h"
#include "tests/contract/contract_machine.h"
#include "tests/support/test_machine.h"

namespace tavr::contract {

namespace {

std::string rootName(Root root) {
  switch (root) {
    case Root::kClassesRoot:
      return "HKEY_CLASSES_ROOT";
    case Root::kCurrentUser:
      return "HKEY_CURRENT_USER";
    case Root::kLocalMachine:
      return "HKEY_LOCAL_MACHINE";
    default:
      return "HKEY_USERS";
  }
}

// In the file's own notation for any type.
std::string hexNotation(std::uint32_t type, std::string_view bytes) {
  std::string text = "hex(" + LCase(Hex(type)) + "):";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::string digits = LCase(Hex(static_cast<unsigned char>(bytes[i])));
    text += (i > 0 ? "," : "") + std::string(2 - digits.size(), '0') + digits;
  }
  return text;
}

class FolderContractMachine final : public ContractMachine {
 public:
  FolderContractMachine() { test_.folder(scratchFolder()); }

  Machine& machine() override {
    if (!started_) start();
    return test_.machine();
  }

  std::string scratchFolder() override { return "C:\\Scratch"; }
  std::string scratchKey() override { return "Software\\Tavr Contract"; }

  void plantFile(std::string_view path, std::string_view contents) override {
    test_.file(path, contents);
  }
  void plantFolder(std::string_view path) override { test_.folder(path); }
  void makeReadOnly(std::string_view path) override { test_.readOnly(path); }
  void makeHidden(std::string_view path) override {
    if (::setxattr(test_.host(path).c_str(), "user.DOSATTRIB", "0x2", 3, 0) != 0) {
      throw std::runtime_error("the host keeps no extended attributes here");
    }
  }
  void hold(std::string_view path) override { locked_.append(path).append("\n"); }
  bool exists(std::string_view path) override { return test_.exists(path); }
  std::string contents(std::string_view path) override { return test_.read(path); }

  void plantValue(Root root, View view, std::string_view path, std::string_view name,
                  std::uint32_t type, std::string_view bytes) override {
    constexpr std::string_view kSoftware = "SOFTWARE\\";
    std::string below(path);
    if (root == Root::kLocalMachine && view == View::k32 &&
        sameText(path.substr(0, kSoftware.size()), kSoftware)) {
      below.insert(kSoftware.size(), "WOW6432Node\\");
    }
    test_.rawValue(rootName(root) + "\\" + below, name, hexNotation(type, bytes));
  }

  std::uint32_t startProcess(std::string_view image) override {
    processes_.append(std::to_string(++last_id_)).append(" ").append(image).append("\n");
    return last_id_;
  }
  void plantCacheEntry(std::uint32_t type, std::string_view url,
                       std::string_view local_file) override {
    cache_.append(std::to_string(type)).append("\t").append(url).append("\t");
    cache_.append(local_file).append("\n");
  }
  void plantRecycled(std::string_view contents, bool read_only) override {
    const std::string bin = "C:\\$Recycle.Bin\\S-1-5-21-1\\";
    const std::string name = std::to_string(++recycled_) + ".txt";
    test_.file(bin + "$R" + name, contents).file(bin + "$I" + name, "where it came from");
    if (read_only) test_.readOnly(bin + "$R" + name);
  }
  void setVariable(std::string_view name, std::string_view text) override {
    variables_.append(name).append("=").append(text).append("\n");
  }
  void openParentWindow(std::string_view title) override {
    test_.ini("[parent]\nwindow=" + std::string(title) + "\n");
  }
  std::vector<std::string> parentTexts() override {
    std::vector<std::string> lines = Split(test_.readMachineFile("parent.log"), '\n');
    if (!lines.empty()) lines.pop_back();  // behind the last line's end
    return lines;
  }
  void useRealClock() override { test_.ini("[clock]\nstart=\n"); }

 private:
  void start() {
    started_ = true;
    test_.ini("[environment]\n" + variables_);
    test_.machineFile("locked.txt", locked_);
    test_.machineFile("processes.txt", processes_);
    test_.machineFile("urlcache.txt", cache_);
  }

  testing::TestMachine test_;
  bool started_ = false;
  std::string locked_;
  std::string processes_;
  std::string cache_;
  std::string variables_;
  std::uint32_t last_id_ = 100;
  int recycled_ = 0;
};

}  // namespace

std::unique_ptr<ContractMachine> makeContractMachine() {
  return std::make_unique<FolderContractMachine>();
}

}  // namespace tavr::contract
