// A library of Windows that is loaded when it is first needed, from the system's
// folder alone. One in the import table of the program would be looked for beside
// the program first, ahead of everything that the program could say about it.
#pragma once

#include <memory>

namespace tavr::win32 {

class SystemLibrary {
 public:
  explicit SystemLibrary(const wchar_t* name);

  /// False: there is none, and the last error says why.
  explicit operator bool() const { return module_ != nullptr; }
  /// An exported function by its type. Null: it exports no such one, or there is
  /// no library; the last error says why, if nothing was called in between.
  template <class Function>
  Function find(const char* function) const {
    return reinterpret_cast<Function>(address(function));
  }
  /// It stays loaded until the process ends.
  void keep() { (void)module_.release(); }

 private:
  struct Free {
    void operator()(void* module) const;
  };
  void* address(const char* function) const;

  std::unique_ptr<void, Free> module_;  // HMODULE
};

}  // namespace tavr::win32
