// The Windows shell, of the thread that makes and destroys it. Calls that open
// something come back at once; no window of the shell's own reports a failure.
#pragma once

#include "platform/shell.h"
#include "platform/win32/com.h"

namespace tavr::win32 {

class Win32Shell : public Shell {
 public:
  Win32Shell() = default;
  ~Win32Shell() override;
  Win32Shell(const Win32Shell&) = delete;
  Win32Shell& operator=(const Win32Shell&) = delete;

  Status specialFolder(int id, std::string& buffer) override;
  Status queryRecycleBin(std::int64_t& size, std::int64_t& items) override;
  Status emptyRecycleBin(std::uint32_t flags) override;
  void updateRecycleBinIcon() override;
  Status execute(std::string_view verb, std::string_view file, int show) override;
  Status run(std::string_view command, int window_style) override;
  Status htmlHelp(std::string_view file_and_window, std::uint32_t command,
                  std::uint32_t data) override;

 private:
  Status loadHelp();

  // The shell and its extensions are COM objects, and some outlive the call.
  const ComApartment apartment_;
  // HtmlHelpW, once hhctrl.ocx is loaded. It stays loaded: help windows run in it.
  void* html_help_ = nullptr;
};

}  // namespace tavr::win32
