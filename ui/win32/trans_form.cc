#include "ui/win32/trans_form.h"

#include <cstdint>
#include <vector>

#include "ui/win32/color.h"
#include "ui/win32/subclass.h"

namespace tavr::win32 {

namespace {

constexpr UINT kExclamation = 48;
// How many stand on the form, and whether it has been told that they are too
// many.
constexpr wchar_t kCountProperty[] = L"TransFormCount";
constexpr wchar_t kToldProperty[] = L"TransFormTold";

int countOn(HWND form) {
  return static_cast<int>(reinterpret_cast<INT_PTR>(GetPropW(form, kCountProperty)));
}

void keepCount(HWND form, int count) {
  if (count > 0) {
    SetPropW(form, kCountProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(count)));
    return;
  }
  RemovePropW(form, kCountProperty);
  RemovePropW(form, kToldProperty);
}

bool isEvent(UINT message) {
  return message == WM_SIZE || message == WM_SHOWWINDOW || message == WM_DPICHANGED;
}

BITMAPINFO rowFormat(int width, int height) {
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof(format.bmiHeader);
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = -height;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  return format;
}

// Where the client area begins in the window.
POINT frameOf(HWND form) {
  RECT window;
  GetWindowRect(form, &window);
  POINT client{0, 0};
  ClientToScreen(form, &client);
  return {client.x - window.left, client.y - window.top};
}

}  // namespace

TransForm::TransForm(HWND form, Dialogs& dialogs) : form_(form), dialogs_(dialogs) {
  keepCount(form_, countOn(form_) + 1);
}

TransForm::~TransForm() {
  removeSubclass(form_, &formProcedure, reinterpret_cast<UINT_PTR>(this));
  keepCount(form_, countOn(form_) - 1);
}

void TransForm::writeProperties(PropertyBag& bag) const {
  bag["MaskColor"] = storedText(MaskColor);
  bag["Transparent"] = storedText(Transparent);
  bag["AutoDrag"] = storedText(AutoDrag);
}

void TransForm::readProperties(const PropertyBag& bag) {
  if (const auto mask = bag.find("MaskColor"); mask != bag.end()) {
    fromStored(mask->second, MaskColor);
  }
  if (const auto shape = bag.find("Transparent"); shape != bag.end()) {
    fromStored(shape->second, Transparent);
  }
  if (const auto drag = bag.find("AutoDrag"); drag != bag.end()) {
    fromStored(drag->second, AutoDrag);
  }
}

void TransForm::load() {
  if (countOn(form_) > 1) {
    // Told once for all that stand there; marked first, as the box pumps.
    if (GetPropW(form_, kToldProperty) != nullptr) return;
    SetPropW(form_, kToldProperty, reinterpret_cast<HANDLE>(INT_PTR{1}));
    dialogs_.messageBox(kSeveralText, kExclamation, kSeveralTitle);
    return;
  }
  working_ = true;
  setSubclass(form_, &formProcedure, reinterpret_cast<UINT_PTR>(this),
              reinterpret_cast<DWORD_PTR>(this));
  Refresh();
}

// One that came later stops those that worked before.
bool TransForm::working() const { return working_ && countOn(form_) == 1; }

void TransForm::setPicture(HBITMAP picture) {
  picture_ = picture;
  Refresh();
}

void TransForm::Refresh() {
  if (!working() || shaping_) return;
  shaping_ = true;
  shapeForm();
  shaping_ = false;
}

void TransForm::shapeForm() {
  HRGN shape = Transparent && picture_ != nullptr ? regionOf(picture_, fromControlColor(MaskColor))
                                                  : nullptr;
  if (shape == nullptr) {
    SetWindowRgn(form_, nullptr, TRUE);
    return;
  }
  const POINT frame = frameOf(form_);
  OffsetRgn(shape, frame.x, frame.y);
  // From here on the region is the system's.
  SetWindowRgn(form_, shape, TRUE);
}

void TransForm::PopupSysMenu() const {
  if (!working()) return;
  POINT mouse;
  GetCursorPos(&mouse);
  const HMENU menu = GetSystemMenu(form_, FALSE);
  if (menu == nullptr) return;
  const int chosen =
      TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, mouse.x, mouse.y, 0, form_, nullptr);
  if (chosen != 0) PostMessageW(form_, WM_SYSCOMMAND, static_cast<WPARAM>(chosen), 0);
}

void TransForm::startDrag() const {
  ReleaseCapture();
  SendMessageW(form_, WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

LRESULT CALLBACK TransForm::formProcedure(HWND form, UINT message, WPARAM wparam, LPARAM lparam,
                                          UINT_PTR, DWORD_PTR object) {
  auto& self = *reinterpret_cast<TransForm*>(object);
  if (message == WM_LBUTTONDOWN && self.working() && self.AutoDrag) {
    self.startDrag();
    return 0;
  }
  const LRESULT answer = nextProcedure(form, message, wparam, lparam);
  if (isEvent(message)) self.Refresh();
  return answer;
}

HRGN regionOf(HBITMAP picture, COLORREF mask_color) {
  BITMAP size{};
  if (GetObjectW(picture, sizeof(size), &size) == 0) return nullptr;
  BITMAPINFO format = rowFormat(size.bmWidth, size.bmHeight);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size.bmWidth) *
                                    static_cast<std::size_t>(size.bmHeight));
  const HDC dc = CreateCompatibleDC(nullptr);
  const int rows = GetDIBits(dc, picture, 0, static_cast<UINT>(size.bmHeight), pixels.data(),
                             &format, DIB_RGB_COLORS);
  DeleteDC(dc);
  if (rows != size.bmHeight) return nullptr;
  const std::uint32_t mask = static_cast<std::uint32_t>(
      GetRValue(mask_color) << 16 | GetGValue(mask_color) << 8 | GetBValue(mask_color));
  const HRGN shape = CreateRectRgn(0, 0, 0, 0);
  const HRGN run = CreateRectRgn(0, 0, 0, 0);
  auto pixel = pixels.cbegin();
  for (int y = 0; y < size.bmHeight; ++y) {
    int start = -1;
    for (int x = 0; x <= size.bmWidth; ++x) {
      const bool drawn = x < size.bmWidth && (*pixel++ & 0xFFFFFF) != mask;
      if (drawn && start < 0) start = x;
      if (drawn || start < 0) continue;
      SetRectRgn(run, start, y, x, y + 1);
      CombineRgn(shape, shape, run, RGN_OR);
      start = -1;
    }
  }
  DeleteObject(run);
  return shape;
}

HBITMAP roundedPicture(SIZE size, int radius, COLORREF mask_color) {
  const HDC dc = CreateCompatibleDC(nullptr);
  void* pixels = nullptr;
  const BITMAPINFO format = rowFormat(size.cx, size.cy);
  const HBITMAP picture = CreateDIBSection(dc, &format, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (picture != nullptr) {
    const HGDIOBJ before = SelectObject(dc, picture);
    const RECT whole{0, 0, size.cx, size.cy};
    SetDCBrushColor(dc, mask_color);
    FillRect(dc, &whole, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    SelectObject(dc, GetStockObject(NULL_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetDCBrushColor(dc, mask_color == kWhite ? kInk : kWhite);
    // The right and lower edge are the pen's, which draws nothing.
    RoundRect(dc, 0, 0, size.cx + 1, size.cy + 1, 2 * radius, 2 * radius);
    SelectObject(dc, before);
  }
  DeleteDC(dc);
  return picture;
}

}  // namespace tavr::win32
