#include "ui/win32/caption.h"

#include <cmath>
#include <map>
#include <span>

#include "basic/number.h"
#include "platform/win32/wide.h"
#include "ui/win32/canvas.h"

namespace tavr::win32 {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kUsualPoints = 9;
// In the order in which they come close to the face that the forms ask for.
constexpr const wchar_t* kFamilies[] = {L"Segoe UI",  L"Selawik",        L"Open Sans",
                                        L"Noto Sans", L"Tahoma",         L"DejaVu Sans",
                                        L"Arial",     L"Liberation Sans"};
// For the letters that none of those has.
constexpr const wchar_t* kChineseFamilies[] = {L"Microsoft YaHei UI", L"Noto Sans CJK SC"};
constexpr const wchar_t* kJapaneseFamilies[] = {L"Yu Gothic UI", L"Meiryo UI", L"Noto Sans CJK JP"};

int CALLBACK noteFamily(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
  *reinterpret_cast<bool*>(found) = true;
  return 0;
}

bool isInstalled(const std::wstring& family, int charset) {
  bool found = false;
  const HDC dc = CreateCompatibleDC(nullptr);
  LOGFONTW asked{};
  asked.lfCharSet = static_cast<BYTE>(charset);
  family.copy(asked.lfFaceName, LF_FACESIZE - 1);
  EnumFontFamiliesExW(dc, &asked, &noteFamily, reinterpret_cast<LPARAM>(&found), 0);
  DeleteDC(dc);
  return found;
}

std::wstring nearestFamily(int charset) {
  std::span<const wchar_t* const> families = kFamilies;
  if (charset == GB2312_CHARSET) families = kChineseFamilies;
  if (charset == SHIFTJIS_CHARSET) families = kJapaneseFamilies;
  for (const wchar_t* family : families) {
    if (isInstalled(family, charset)) return family;
  }
  return kFamilies[0];
}

HFONT makeFont(const ControlFont& font, double scale, bool bold, double larger) {
  const double points = Val(font.size) > 0 ? Val(font.size) : kUsualPoints;
  const int height = -static_cast<int>(std::lround(points * larger * kPixelsPerPoint * scale));
  return CreateFontW(height, 0, 0, 0, font.bold || bold ? FW_SEMIBOLD : FW_NORMAL,
                     font.italic ? TRUE : FALSE, font.underline ? TRUE : FALSE, FALSE,
                     static_cast<DWORD>(font.charset), OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                     CLEARTYPE_QUALITY, DEFAULT_PITCH,
                     installedFamily(font.name, font.charset).c_str());
}

// The system's own mark for the access key; a caption's "&" is a plain "and".
std::wstring withMark(std::wstring_view text, int access_key) {
  std::wstring marked;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (static_cast<int>(i) == access_key) marked += L'&';
    marked += text[i];
    if (text[i] == L'&') marked += L'&';
  }
  return marked;
}

UINT drawFormat(const CaptionLook& look, const DrawnState& state) {
  UINT format = look.breaks_lines ? DT_WORDBREAK : DT_SINGLELINE | DT_VCENTER;
  format |= DT_END_ELLIPSIS;
  if (state.right_to_left) format |= DT_RTLREADING;
  if (look.side == Side::kMiddle) return format | DT_CENTER;
  return (look.side == Side::kEnd) != state.right_to_left ? format | DT_RIGHT : format;
}

}  // namespace

std::wstring installedFamily(std::string_view name, int charset) {
  std::wstring family = wide(name);
  // Only the forms' own face is looked for: any other was chosen by a person.
  if (family != kFamilies[0]) return family;
  static std::map<int, std::wstring> nearest;  // asked at every drawing
  const auto [found, is_new] = nearest.try_emplace(charset);
  if (is_new) found->second = nearestFamily(charset);
  return found->second;
}

SelectedFont::SelectedFont(HDC dc, const ControlFont& font, double scale, bool bold, double larger)
    : dc_(dc), font_(makeFont(font, scale, bold, larger)), before_(SelectObject(dc, font_)) {}

SelectedFont::~SelectedFont() {
  SelectObject(dc_, before_);
  DeleteObject(font_);
}

std::string_view shownCaption(const Control& control, const DrawnState& state) {
  return state.caption.empty() ? std::string_view(control.caption) : state.caption;
}

void drawCaption(HDC dc, const RECT& box, const Control& control, const CaptionLook& look,
                 const DrawnState& state) {
  std::wstring text = withMark(wide(shownCaption(control, state)), state.access_key);
  if (text.empty() || IsRectEmpty(&box)) return;
  const SelectedFont font(dc, control.font, state.scale, look.bold, look.larger);
  const ClippedTo within(dc, box);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, look.color);
  RECT place = box;
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &place, drawFormat(look, state));
}

SIZE textSize(HDC dc, std::string_view text, const ControlFont& font, double scale, bool bold,
              double larger) {
  const SelectedFont selected(dc, font, scale, bold, larger);
  const std::wstring units = wide(text);
  RECT box{};
  DrawTextW(dc, units.c_str(), static_cast<int>(units.size()), &box,
            DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
  return {box.right - box.left, box.bottom - box.top};
}

SIZE captionSize(HDC dc, const Control& control, double scale, bool bold) {
  return textSize(dc, control.caption, control.font, scale, bold);
}

COLORREF disabledText(const Palette& palette, COLORREF ground) {
  if (palette.high_contrast) return GetSysColor(COLOR_GRAYTEXT);
  return mix(palette.faint_text, ground, 0.4);
}

}  // namespace tavr::win32
