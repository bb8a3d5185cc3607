// The picture and the caption on a button.
#include <algorithm>
#include <cmath>
#include <memory>

#include "platform/win32/wide.h"
#include "ui/win32/artwork.h"
#include "ui/win32/button_face.h"
#include "ui/win32/gdi_plus.h"

namespace tavr::win32 {

namespace {

struct Places {
  RECT picture{};
  RECT caption{};
};

RECT centredBox(const RECT& box, int width, int height) {
  const int left = box.left + (box.right - box.left - width) / 2;
  const int top = box.top + (box.bottom - box.top - height) / 2;
  return {left, top, left + width, top + height};
}

Places beside(const RECT& box, int size, int gap, int text_width, const ButtonContent& content) {
  Places places;
  const int wanted = size + gap + text_width;
  const int room = box.right - box.left;
  const int left = content.caption.side == Side::kMiddle && wanted < room
                       ? box.left + (room - wanted) / 2
                       : box.left;
  const int top = box.top + (box.bottom - box.top - size) / 2;
  const int end = content.caption.side == Side::kMiddle ? std::min<int>(left + wanted, box.right)
                                                        : static_cast<int>(box.right);
  if (content.place == PicturePlace::kEnd) {
    places.picture = {end - size, top, end, top + size};
    places.caption = {left, box.top, end - size - gap, box.bottom};
  } else {
    places.picture = {left, top, left + size, top + size};
    places.caption = {left + size + gap, box.top, end, box.bottom};
  }
  return places;
}

Places stacked(const RECT& box, int size, int gap, int text_height, bool above) {
  const RECT group = centredBox(box, box.right - box.left, size + gap + text_height);
  Places places;
  RECT sign = group;
  places.caption = group;
  if (above) {
    sign.bottom = sign.top + size;
    places.caption.top = group.bottom - text_height;
  } else {
    sign.top = sign.bottom - size;
    places.caption.bottom = group.top + text_height;
  }
  places.picture = centredBox(sign, size, size);
  return places;
}

Places placesOf(Canvas& canvas, const Control& button, const ButtonContent& content,
                const DrawnState& state) {
  const RECT& area = canvas.area();
  RECT box = inset(area, 1);
  box.left += canvas.px(content.padding) - 1;
  box.right -= canvas.px(content.padding) - 1;
  const int size = canvas.px(kPictureSize);
  const std::string_view text = shownCaption(button, state);
  Places places;
  if (content.picture.empty()) {
    places.caption = box;
  } else if (content.picture_alone || text.empty()) {
    places.picture = centredBox(area, size, size);
  } else {
    const SIZE taken = textSize(canvas.dc(), text, button.font, state.scale, content.caption.bold,
                                content.caption.larger);
    const bool above = content.place == PicturePlace::kAbove;
    if (above || content.place == PicturePlace::kBelow) {
      places = stacked(box, size, canvas.px(kPictureGap / 3), taken.cy, above);
    } else {
      places = beside(box, size, canvas.px(kPictureGap), taken.cx, content);
    }
  }
  places.picture = mirrored(places.picture, area, state.right_to_left);
  places.caption = mirrored(places.caption, area, state.right_to_left);
  OffsetRect(&places.picture, content.pushed, content.pushed);
  OffsetRect(&places.caption, content.pushed, content.pushed);
  return places;
}

// Grey by lightness, as the eye weighs the three colours.
constexpr Gdiplus::ColorMatrix kGrey = {{{0.299F, 0.299F, 0.299F, 0, 0},
                                         {0.587F, 0.587F, 0.587F, 0, 0},
                                         {0.114F, 0.114F, 0.114F, 0, 0},
                                         {0, 0, 0, 1, 0},
                                         {0, 0, 0, 0, 1}}};

// The picture in its own size, without what is in the mask's colour. It is scaled
// only then: between two pixels the mask's colour would be mixed in.
std::unique_ptr<Gdiplus::Bitmap> cutOut(Gdiplus::Bitmap& picture, const ButtonContent& content) {
  Gdiplus::ImageAttributes attributes;
  if (content.mask) {
    const COLORREF mask = *content.mask;
    const Gdiplus::Color key(GetRValue(mask), GetGValue(mask), GetBValue(mask));
    attributes.SetColorKey(key, key);
  }
  if (content.grey) attributes.SetColorMatrix(&kGrey);
  const auto width = static_cast<INT>(picture.GetWidth());
  const auto height = static_cast<INT>(picture.GetHeight());
  auto cut = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
  Gdiplus::Graphics graphics(cut.get());
  graphics.DrawImage(&picture, Gdiplus::Rect(0, 0, width, height), 0, 0, width, height,
                     Gdiplus::UnitPixel, &attributes);
  return cut;
}

void drawFile(Canvas& canvas, const RECT& place, const ButtonContent& content) {
  startGdiPlus();
  Gdiplus::Bitmap picture(wide(content.picture).c_str());
  if (picture.GetLastStatus() != Gdiplus::Ok) return;
  const std::unique_ptr<Gdiplus::Bitmap> cut = cutOut(picture, content);
  const double width = picture.GetWidth();
  const double height = picture.GetHeight();
  const double fit =
      std::min((place.right - place.left) / width, (place.bottom - place.top) / height);
  const RECT drawn = centredBox(place, static_cast<int>(std::lround(width * fit)),
                                static_cast<int>(std::lround(height * fit)));
  Gdiplus::Graphics graphics(canvas.dc());
  graphics.SetInterpolationMode(fit == 1 ? Gdiplus::InterpolationModeNearestNeighbor
                                         : Gdiplus::InterpolationModeHighQualityBicubic);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  graphics.DrawImage(cut.get(), Gdiplus::Rect(drawn.left, drawn.top, drawn.right - drawn.left,
                                              drawn.bottom - drawn.top));
}

void drawPicture(Canvas& canvas, const RECT& place, const ButtonContent& content) {
  const ClippedTo area(canvas.dc(), canvas.area());
  if (!hasIcon(content.picture)) {
    drawFile(canvas, place, content);
  } else if (content.grey) {
    drawGreyIcon(canvas.dc(), place, content.picture, content.caption.color, canvas.scale());
  } else {
    drawIcon(canvas.dc(), place, content.picture, content.caption.color, canvas.scale());
  }
}

void drawEffect(Canvas& canvas, const RECT& place, const Control& button,
                const ButtonContent& content, const DrawnState& state) {
  constexpr int kRaised = 1;
  constexpr int kSunken = 2;
  constexpr int kShadow = 3;
  if (content.effect < kRaised || content.effect > kShadow) return;
  const int shift = content.effect == kRaised ? -canvas.px(1) : canvas.px(1);
  CaptionLook copy = content.caption;
  const COLORREF text = content.caption.color;
  copy.color = mix(text, readableOn(text), content.effect == kShadow ? 0.7 : 0.85);
  RECT moved = place;
  OffsetRect(&moved, content.effect == kSunken ? 0 : shift, shift);
  IntersectRect(&moved, &moved, &canvas.area());
  drawCaption(canvas.dc(), moved, button, copy, state);
}

}  // namespace

void drawContent(Canvas& canvas, const Control& button, const ButtonContent& content,
                 const DrawnState& state) {
  Places places = placesOf(canvas, button, content, state);
  if (!content.picture.empty()) drawPicture(canvas, places.picture, content);
  drawEffect(canvas, places.caption, button, content, state);
  IntersectRect(&places.caption, &places.caption, &canvas.area());
  drawCaption(canvas.dc(), places.caption, button, content.caption, state);
}

}  // namespace tavr::win32
