// The system in high contrast, as far as this process sees it. A system may not
// have the setting, and a person's is left alone, so the question for it is
// answered here; the colours are the system's own, and put back.
#pragma once

#include <windows.h>

#include <array>

namespace tavr::win32::testing {

/// Colours that nothing else has, at the places of those of the system.
inline constexpr std::array<int, 7> kContrastPlaces = {
    COLOR_WINDOW,        COLOR_WINDOWTEXT,  COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT,
    COLOR_ACTIVECAPTION, COLOR_CAPTIONTEXT, COLOR_HOTLIGHT};
inline constexpr std::array<COLORREF, 7> kContrastColors = {
    RGB(0, 0, 32),   RGB(255, 255, 64), RGB(0, 224, 224), RGB(32, 0, 0),
    RGB(96, 0, 128), RGB(64, 255, 64),  RGB(255, 128, 0)};

class SystemColors {
 public:
  SystemColors();
  /// Puts everything back that was changed.
  ~SystemColors();
  SystemColors(const SystemColors&) = delete;
  SystemColors& operator=(const SystemColors&) = delete;

  /// What the question for high contrast is answered. Tells nobody.
  void setHighContrast(bool on);
  /// The colours above, or those from before. The system tells every window.
  void setContrastColors(bool on);

 private:
  std::array<COLORREF, 7> before_{};
};

}  // namespace tavr::win32::testing
