#include "platform/win32/win32_parent_link.h"

#include <windows.h>

#include <string>
#include <utility>

#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

struct CloseMapping {
  using pointer = HANDLE;
  void operator()(HANDLE mapping) const { CloseHandle(mapping); }
};
using MappingHandle = std::unique_ptr<HANDLE, CloseMapping>;

struct Unmap {
  void operator()(void* start) const { UnmapViewOfFile(start); }
};
using ViewStart = std::unique_ptr<void, Unmap>;

class View final : public MappingView {
 public:
  View(ViewStart start, std::size_t size) : start_(std::move(start)), size_(size) {}

  std::span<char> bytes() override { return {static_cast<char*>(start_.get()), size_}; }
  std::uintptr_t address() override { return reinterpret_cast<std::uintptr_t>(start_.get()); }
  Status flush() override { return FlushViewOfFile(start_.get(), 0) ? kSuccess : lastStatus(); }

 private:
  ViewStart start_;
  std::size_t size_;
};

class Mapping final : public FileMapping {
 public:
  explicit Mapping(MappingHandle handle) : handle_(std::move(handle)) {}

  std::unique_ptr<MappingView> map(std::uint32_t access, std::size_t size) override {
    ViewStart start(MapViewOfFile(handle_.get(), access, 0, 0, size));
    if (!start) return nullptr;
    const std::size_t bytes = size != 0 ? size : pagesAt(start.get());
    return std::make_unique<View>(std::move(start), bytes);
  }

 private:
  // Somebody else may have made the mapping, of a size that only it knows.
  static std::size_t pagesAt(const void* start) {
    MEMORY_BASIC_INFORMATION region{};
    return VirtualQuery(start, &region, sizeof(region)) != 0 ? region.RegionSize : 0;
  }

  MappingHandle handle_;
};

// Windows finds titles without case. The title is read where the system keeps it:
// a program that hangs is not asked.
bool hasTitle(HWND window, const std::wstring& title) {
  std::wstring own(title.size() + 2, L'\0');
  const int length = InternalGetWindowText(window, own.data(), static_cast<int>(own.size()));
  own.resize(static_cast<std::size_t>(length));
  return own == title;
}

}  // namespace

std::unique_ptr<FileMapping> Win32ParentLink::createMapping(std::string_view name,
                                                            std::uint32_t size) {
  MappingHandle handle(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, size,
                                          wide(name).c_str()));
  return handle ? std::make_unique<Mapping>(std::move(handle)) : nullptr;
}

WindowHandle Win32ParentLink::findWindow(std::string_view title) {
  const std::wstring text = wide(title);
  HWND window = nullptr;
  do {
    window = FindWindowExW(nullptr, window, nullptr, text.c_str());
  } while (window != nullptr && !hasTitle(window, text));
  return reinterpret_cast<WindowHandle>(window);
}

void Win32ParentLink::sendMessage(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                  std::intptr_t lparam) {
  const auto handle = reinterpret_cast<HWND>(window);
  if (IsWindow(handle)) SendMessageW(handle, message, wparam, lparam);
}

}  // namespace tavr::win32
