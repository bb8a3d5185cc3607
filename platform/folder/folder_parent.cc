#include "platform/folder/folder_parent.h"

#include <utility>
#include <vector>

#include "basic/text.h"

namespace tavr::folder {

namespace {

constexpr WindowHandle kParentWindow = 0x10001;

}  // namespace

struct FolderParent::Section {
  std::vector<char> bytes;
};

class FolderParent::View : public MappingView {
 public:
  View(FolderParent& owner, std::shared_ptr<Section> section, std::size_t size)
      : owner_(owner), section_(std::move(section)), size_(size) {
    owner_.views_.emplace(View::address(), View::bytes());
  }
  ~View() override { owner_.views_.erase(owner_.views_.find(View::address())); }
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  std::span<char> bytes() override { return {section_->bytes.data(), size_}; }
  std::uintptr_t address() override {
    return reinterpret_cast<std::uintptr_t>(section_->bytes.data());
  }
  Status flush() override { return kSuccess; }

 private:
  FolderParent& owner_;
  std::shared_ptr<Section> section_;
  std::size_t size_;
};

class FolderParent::Mapping : public FileMapping {
 public:
  Mapping(FolderParent& owner, std::shared_ptr<Section> section)
      : owner_(owner), section_(std::move(section)) {}

  std::unique_ptr<MappingView> map(std::uint32_t /*access*/, std::size_t size) override {
    if (owner_.view_fault_.hit() != kSuccess || size > section_->bytes.size()) return nullptr;
    return std::make_unique<View>(owner_, section_, size == 0 ? section_->bytes.size() : size);
  }

 private:
  FolderParent& owner_;
  std::shared_ptr<Section> section_;
};

FolderParent::FolderParent(const std::string& directory, std::string window, Faults& faults)
    : window_(std::move(window)),
      log_(directory, "parent.log"),
      mapping_fault_(faults.point("CreateFileMapping")),
      view_fault_(faults.point("MapViewOfFile")),
      window_fault_(faults.point("FindWindow")) {}

FolderParent::~FolderParent() = default;

std::unique_ptr<FileMapping> FolderParent::createMapping(std::string_view name,
                                                         std::uint32_t size) {
  if (mapping_fault_.hit() != kSuccess || size == 0) return nullptr;
  // A name that is in use gives what is there, in its own size.
  std::weak_ptr<Section>& known = sections_[std::string(name)];
  std::shared_ptr<Section> section = name.empty() ? nullptr : known.lock();
  if (!section) {
    section = std::make_shared<Section>();
    section->bytes.resize(size);
    known = section;
  }
  return std::make_unique<Mapping>(*this, std::move(section));
}

WindowHandle FolderParent::findWindow(std::string_view title) {
  if (window_fault_.hit() != kSuccess) return 0;
  return !window_.empty() && window_ == title ? kParentWindow : 0;
}

void FolderParent::sendMessage(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                               std::intptr_t lparam) {
  if (window_.empty() || window != kParentWindow) return;
  const auto view = views_.find(wparam);
  if (view == views_.end()) {
    log_.addLine("message " + std::to_string(message) + " " + std::to_string(wparam) + " " +
                 std::to_string(lparam));
    return;
  }
  log_.addLine(untilNul({view->second.data(), view->second.size()}));
}

}  // namespace tavr::folder
