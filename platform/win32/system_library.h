// A library of Windows that is loaded when it is first needed, from the system's
// folder alone. One in the import table of the program would be looked for beside
// the program first, ahead of everything that the program could say about it.
#pragma once

#include <memory>

namespace tavr::win32 {

class SystemLibrary {
 public:
  explicit SystemLibrary(const wchar_t* name);

  /// An exported function by its type. Null: the library exports no such one, and
  /// the last error says so; or there is no library, and the last error is left
  /// as it was.
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
