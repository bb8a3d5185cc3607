// The program's own pictures, drawn from vector outlines so that they are sharp
// at every size. The outlines are made from resources/icons by scripts/artwork.
#pragma once

#include <windows.h>

#include <string_view>

namespace tavr::win32 {

/// Draws an icon into the largest square in the middle of `area`, at most as
/// large as it was designed for at this scale (24 x 24, pictures of tasks 16 x
/// 16). What an icon draws in no colour of its own takes `color`. An unknown
/// name draws nothing.
///
/// Commands: settings, options, plugins, test, erase, stop, view-log, clear-log,
/// help, exit, tool, maker, about, close, minimise, check, check-all,
/// check-none, language, link, info, warning, question. Tasks: windows,
/// internet, ie, firefox, chrome, opera, edge, yandex, vivaldi, brave, torch,
/// maxthon, plug-in, done; and the letters that the task table gives its rows.
void drawIcon(HDC dc, const RECT& area, std::string_view name, COLORREF color, double scale);

/// Whether drawIcon draws something for the name.
bool hasIcon(std::string_view name);

/// The icon in a grey of the same lightness, as a disabled button shows it.
void drawGreyIcon(HDC dc, const RECT& area, std::string_view name, COLORREF color, double scale);

/// The program's sign. The caller destroys it.
HICON programIcon(int size);

}  // namespace tavr::win32
