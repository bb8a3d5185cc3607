#include "services/parent_totals.h"

#include <algorithm>

#include "basic/resume_next.h"

namespace tavr {

namespace {

constexpr std::string_view kMappingName = "MyFileMappingObject";
constexpr std::uint32_t kMappingSize = 256;
constexpr std::uint32_t kAllMappingAccess = 0xF001F;
constexpr std::string_view kParentTitle = "Tavrwork Brightbox";
constexpr std::uint32_t kTotalsMessage = 1025;  // WM_USER + 1

}  // namespace

// The parent is told the view's address; it reads the text by the mapping's
// name, so the address serves it as a sign and no more.
void ParentTotals::notify(WindowHandle window, MappingView& view) {
  machine_.parent.sendMessage(window, kTotalsMessage, view.address(), 0);
}

void ParentTotals::send(std::string_view text) {
  const auto mapping = machine_.parent.createMapping(kMappingName, kMappingSize);
  if (!mapping) return;
  const auto view = mapping->map(kAllMappingAccess, kMappingSize);
  if (!view) return;
  const std::span<char> bytes = view->bytes();
  std::copy_n(text.begin(), std::min(text.size(), bytes.size()), bytes.begin());
  view->flush();
  const WindowHandle window = machine_.parent.findWindow(kParentTitle);
  if (window == 0) throw ProcessEnd{};
  notify(window, *view);
}

}  // namespace tavr
