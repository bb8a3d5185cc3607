#include "ui/win32/common_controls.h"

#include "platform/win32/system_library.h"

namespace tavr::win32 {

namespace {

// Of the version that the program's manifest names, as if it were imported. Never
// let go: windows of its classes may live as long as the process.
const SystemLibrary& library() {
  static const SystemLibrary& kept = *new SystemLibrary(L"comctl32.dll");
  return kept;
}

}  // namespace

void loadCommonControls() {
  INITCOMMONCONTROLSEX controls{};
  controls.dwSize = sizeof(controls);
  controls.dwICC = ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES;
  if (const auto load = library().find<decltype(&InitCommonControlsEx)>("InitCommonControlsEx")) {
    load(&controls);
  }
}

HIMAGELIST createImageList(int width, int height) {
  const auto create = library().find<decltype(&ImageList_Create)>("ImageList_Create");
  return create != nullptr ? create(width, height, ILC_COLOR, 1, 1) : nullptr;
}

void destroyImageList(HIMAGELIST images) {
  const auto destroy = library().find<decltype(&ImageList_Destroy)>("ImageList_Destroy");
  if (destroy != nullptr && images != nullptr) destroy(images);
}

}  // namespace tavr::win32
