// What the link to a parent program needs of Windows: a named file mapping in
// the paging file, and a message to a window.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/win_error.h"

namespace tavr {

/// A mapped view; destroying it is UnmapViewOfFile.
class MappingView {
 public:
  virtual ~MappingView() = default;
  virtual std::span<char> bytes() = 0;
  /// The view's address, as a message carries it.
  virtual std::uintptr_t address() = 0;
  /// FlushViewOfFile with length 0.
  virtual Status flush() = 0;
};

/// An open mapping; destroying it is CloseHandle.
class FileMapping {
 public:
  virtual ~FileMapping() = default;
  /// MapViewOfFile from offset 0; size 0 is the whole mapping. The view may
  /// outlive the mapping. Null: refused, as a size beyond the mapping is.
  virtual std::unique_ptr<MappingView> map(std::uint32_t access, std::size_t size) = 0;
};

using WindowHandle = std::uintptr_t;

class ParentLink {
 public:
  virtual ~ParentLink() = default;
  /// CreateFileMapping on the paging file, read-write, zeroed. A name in use
  /// gives the mapping that is there. Null: refused, as size 0 is.
  virtual std::unique_ptr<FileMapping> createMapping(std::string_view name, std::uint32_t size) = 0;
  /// FindWindow without a class. 0: no window has exactly that title.
  virtual WindowHandle findWindow(std::string_view title) = 0;
  /// SendMessage. A handle that is no window's: nothing.
  virtual void sendMessage(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                           std::intptr_t lparam) = 0;
};

}  // namespace tavr
