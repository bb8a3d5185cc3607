// A picture in memory that the drawing code draws on; no display is needed.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
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
  /// With the opacity in the upper byte, the upper row first.
  std::span<const std::uint32_t> pixels() const;
  /// Pixels that differ from another picture's of the same size.
  int differing(const Picture32& other) const;
  /// The same in a part.
  int differing(const Picture32& other, const RECT& part) const;
  /// Pixels of a part that differ from a colour.
  int differing(const RECT& part, COLORREF from) const;
  /// Pixels of a part in a colour.
  int count(const RECT& part, COLORREF color) const;
  /// Pixels that are not a grey.
  int colored() const;
  void saveAs(const std::wstring& file) const;

 private:
  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
};

inline constexpr COLORREF kStripColor = 10118205;

using Draw = std::function<void(HDC, const RECT&)>;

/// What is drawn over a whole picture of the size.
std::unique_ptr<Picture32> drawn(SIZE size, const Draw& draw, COLORREF ground = RGB(255, 255, 255));

/// Draws into a part of a larger picture and answers how many pixels beside the
/// part were touched.
int touchedOutside(const Draw& draw, SIZE size);

}  // namespace tavr::win32
