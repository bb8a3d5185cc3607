// A picture in memory that the drawing code draws on; no display is needed.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "ui/win32/drawing.h"

namespace tavr::win32 {

class Picture32 {
 public:
  Picture32(int width, int height, COLORREF ground = RGB(255, 255, 255));
  ~Picture32();
  Picture32(const Picture32&) = delete;
  Picture32& operator=(const Picture32&) = delete;

  HDC dc() const { return dc_; }
  int width() const { return width_; }
  int height() const { return height_; }
  RECT area() const { return {0, 0, width_, height_}; }
  COLORREF at(int x, int y) const;
  /// Whether both show the same, pixel by pixel.
  bool sameAs(const Picture32& other) const;
  /// Pixels of a part that differ from a colour.
  int differing(const RECT& part, COLORREF from) const;
  /// Pixels that are not a grey.
  int colored() const;
  void saveAs(const std::wstring& file) const;

 private:
  std::span<const std::uint32_t> pixels() const;

  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
};

inline constexpr COLORREF kStripColor = 10118205;

using Draw = std::function<void(HDC, const RECT&)>;

/// Draws into a part of a larger picture and answers how many pixels beside the
/// part were touched.
int touchedOutside(const Draw& draw, SIZE size);

}  // namespace tavr::win32
