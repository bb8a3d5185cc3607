#include "tests/windows/drawing/picture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tavr::win32 {

namespace {

BITMAPINFOHEADER header(int width, int height) {
  BITMAPINFOHEADER made{};
  made.biSize = sizeof(made);
  made.biWidth = width;
  made.biHeight = -height;
  made.biPlanes = 1;
  made.biBitCount = 32;
  return made;
}

}  // namespace

Picture32::Picture32(int width, int height, COLORREF ground)
    : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO format{};
  format.bmiHeader = header(width, height);
  void* memory = nullptr;
  bitmap_ = CreateDIBSection(dc_, &format, DIB_RGB_COLORS, &memory, nullptr, 0);
  pixels_ = static_cast<std::uint32_t*>(memory);
  before_ = SelectObject(dc_, bitmap_);
  const HBRUSH brush = CreateSolidBrush(ground);
  const RECT whole = area();
  FillRect(dc_, &whole, brush);
  DeleteObject(brush);
}

Picture32::~Picture32() {
  SelectObject(dc_, before_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

std::span<const std::uint32_t> Picture32::pixels() const {
  GdiFlush();
  return {pixels_, static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)};
}

COLORREF Picture32::at(int x, int y) const {
  const std::uint32_t pixel = pixels()[static_cast<std::size_t>(y * width_ + x)];
  return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

int Picture32::differing(const Picture32& other) const { return differing(other, area()); }

int Picture32::differing(const Picture32& other, const RECT& part) const {
  int count = 0;
  for (int y = part.top; y < part.bottom; ++y) {
    for (int x = part.left; x < part.right; ++x) count += at(x, y) != other.at(x, y);
  }
  return count;
}

int Picture32::differing(const RECT& part, COLORREF from) const {
  int count = 0;
  for (int y = part.top; y < part.bottom; ++y) {
    for (int x = part.left; x < part.right; ++x) count += at(x, y) != from;
  }
  return count;
}

int Picture32::count(const RECT& part, COLORREF color) const {
  const int whole = (part.right - part.left) * (part.bottom - part.top);
  return whole - differing(part, color);
}

int Picture32::colored() const {
  return static_cast<int>(std::ranges::count_if(pixels(), [](std::uint32_t p) {
    return (p >> 16 & 0xFF) != (p >> 8 & 0xFF) || (p >> 8 & 0xFF) != (p & 0xFF);
  }));
}

void Picture32::saveAs(const std::wstring& file) const {
  const BITMAPINFOHEADER info = header(width_, height_);
  const auto data = std::as_bytes(pixels());
  // The file's own header is laid out without gaps, which a structure is not.
  const std::uint32_t offset = 14 + sizeof(info);
  const auto size = static_cast<std::uint32_t>(offset + data.size());
  std::ofstream out(std::filesystem::path(file), std::ios::binary);
  const auto number = [&out](std::uint32_t value) {
    out.write(reinterpret_cast<const char*>(&value), sizeof(value));
  };
  out.write("BM", 2);
  number(size);
  number(0);
  number(offset);
  out.write(reinterpret_cast<const char*>(&info), sizeof(info));
  out.write(reinterpret_cast<const char*>(data.data()), static_cast<std::streamsize>(data.size()));
}

std::unique_ptr<Picture32> drawn(SIZE size, const Draw& draw, COLORREF ground) {
  auto picture = std::make_unique<Picture32>(size.cx, size.cy, ground);
  draw(picture->dc(), picture->area());
  return picture;
}

int touchedOutside(const Draw& draw, SIZE size) {
  constexpr COLORREF kGround = RGB(1, 200, 3);
  constexpr int kAround = 12;
  Picture32 picture(size.cx + 2 * kAround, size.cy + 2 * kAround, kGround);
  const RECT part{kAround, kAround, kAround + size.cx, kAround + size.cy};
  draw(picture.dc(), part);
  return picture.differing(picture.area(), kGround) - picture.differing(part, kGround);
}

}  // namespace tavr::win32
