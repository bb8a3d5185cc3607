// The colours of a form, made from the one that is configured.
#include "ui/win32/color.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

namespace {

constexpr double kReadable = 4.5;  // contrast of text, as WCAG 2 asks for

// A light strip colour would vanish as the colour of a text on white.
COLORREF readableAccent(COLORREF strip) {
  COLORREF accent = strip;
  for (double part = 0.05; contrast(accent, kWhite) < kReadable && part <= 1; part += 0.05) {
    accent = mix(strip, kInk, part);
  }
  return accent;
}

bool highContrast() {
  HIGHCONTRASTW setting{};
  setting.cbSize = sizeof(setting);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(setting), &setting, 0) &&
         (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace

Palette Palette::of(COLORREF strip) {
  if (highContrast()) return ofSystem();
  // A colour number from the settings may carry more than the three channels.
  strip &= 0xFFFFFF;
  Palette palette;
  palette.accent = readableAccent(strip);
  palette.accent_text = readableOn(palette.accent);
  palette.strip = strip;
  palette.strip_text = readableOn(strip);
  palette.window = RGB(247, 248, 250);
  palette.panel = kWhite;
  palette.raised = RGB(238, 241, 246);
  palette.text = kInk;
  palette.faint_text = RGB(98, 107, 124);
  palette.border = RGB(214, 219, 228);
  palette.hover = mix(kWhite, palette.accent, 0.09);
  palette.selection = mix(kWhite, palette.accent, 0.15);
  palette.danger = RGB(179, 38, 30);
  return palette;
}

Palette Palette::ofSystem() {
  Palette palette;
  palette.high_contrast = true;
  palette.window = palette.panel = GetSysColor(COLOR_WINDOW);
  palette.raised = palette.hover = GetSysColor(COLOR_WINDOW);
  palette.text = palette.faint_text = palette.border = GetSysColor(COLOR_WINDOWTEXT);
  palette.strip = GetSysColor(COLOR_ACTIVECAPTION);
  palette.strip_text = GetSysColor(COLOR_CAPTIONTEXT);
  palette.accent = palette.selection = GetSysColor(COLOR_HIGHLIGHT);
  palette.accent_text = GetSysColor(COLOR_HIGHLIGHTTEXT);
  palette.danger = GetSysColor(COLOR_HOTLIGHT);
  return palette;
}

}  // namespace tavr::win32
