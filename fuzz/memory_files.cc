#include "fuzz/memory_files.h"

#include <algorithm>
#include <memory>

namespace tavr::fuzz {

namespace {

class Handle final : public OpenFile {
 public:
  explicit Handle(std::string& text) : text_(text) {}

  std::uint64_t length() override { return text_.size(); }

  Status read(std::uint64_t offset, std::size_t size, std::string& out) override {
    out = offset < text_.size() ? text_.substr(offset, size) : std::string();
    return kSuccess;
  }

  Status write(std::uint64_t offset, std::string_view bytes) override {
    if (text_.size() < offset + bytes.size()) text_.resize(offset + bytes.size());
    std::copy(bytes.begin(), bytes.end(), text_.begin() + static_cast<std::ptrdiff_t>(offset));
    return kSuccess;
  }

 private:
  std::string& text_;
};

}  // namespace

OpenedFile MemoryFiles::open(std::string_view, OpenMode mode) {
  if (mode == OpenMode::kOutput) text_.clear();
  return {kSuccess, std::make_unique<Handle>(text_)};
}

}  // namespace tavr::fuzz
