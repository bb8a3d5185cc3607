// What the contract suites need of a machine beside the platform seam itself:
// to plant things behind its back and to look at what is left. One
// implementation for each kind of machine; the suites know none of them.
//
// Whatever a machine reads at its start (registry, processes, URL cache, held
// files, variables, parent window) is planted before machine() is first called;
// files and their attributes at any time.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"

namespace tavr::contract {

/// Which half of HKEY_LOCAL_MACHINE\SOFTWARE; other keys have one view alone.
enum class View { k32, k64 };

class ContractMachine {
 public:
  virtual ~ContractMachine() = default;

  /// Why the test of this name ("Suite.Test") cannot be run on this machine; ""
  /// when it can.
  virtual std::string whyNot(std::string_view /*test*/) { return {}; }

  /// The machine, started at the first call.
  virtual Machine& machine() = 0;

  /// An empty folder for this test alone, without a trailing "\".
  virtual std::string scratchFolder() = 0;
  /// A key path below HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE where this test
  /// may do what it likes; it begins with "Software\". Neither key exists yet.
  virtual std::string scratchKey() = 0;

  // Files -----------------------------------------------------------------------

  /// Makes a file and the folders on its way.
  virtual void plantFile(std::string_view path, std::string_view contents) = 0;
  virtual void plantFolder(std::string_view path) = 0;
  virtual void makeReadOnly(std::string_view path) = 0;
  virtual void makeHidden(std::string_view path) = 0;
  /// Somebody else holds the file open and shares it with nobody.
  virtual void hold(std::string_view path) = 0;
  virtual bool exists(std::string_view path) = 0;
  virtual std::string contents(std::string_view path) = 0;

  // The rest, before the start ----------------------------------------------------

  /// The key and a value of these stored bytes (text as UTF-16LE, with its NUL
  /// or without). `path` names no view.
  virtual void plantValue(Root root, View view, std::string_view path, std::string_view name,
                          std::uint32_t type, std::string_view bytes) = 0;
  /// A process of this image name; its id.
  virtual std::uint32_t startProcess(std::string_view image) = 0;
  /// A file where the URL cache can keep what it holds of that URL; its path.
  virtual std::string plantCacheFile(std::string_view /*url*/, std::string_view name) {
    std::string path = scratchFolder().append("\\").append(name);
    plantFile(path, "x");
    return path;
  }
  /// An entry of the URL cache; an empty file name is none.
  virtual void plantCacheEntry(std::uint32_t type, std::string_view url,
                               std::string_view local_file) = 0;
  /// A file in the recycle bin, with what the system keeps beside it.
  virtual void plantRecycled(std::string_view contents, bool read_only) = 0;
  virtual void setVariable(std::string_view name, std::string_view text) = 0;
  /// The variable SystemRoot, in every process of the machine.
  virtual void haveSystemRoot() { setVariable("SystemRoot", "C:\\Windows"); }
  virtual void openParentWindow(std::string_view title) = 0;
  /// The texts that the parent window has read from the addresses sent to it.
  virtual std::vector<std::string> parentTexts() = 0;
  /// The machine's clock is a real one: time passes by itself.
  virtual void useRealClock() = 0;
};

/// The machine of the test program at hand.
std::unique_ptr<ContractMachine> makeContractMachine();

}  // namespace tavr::contract
