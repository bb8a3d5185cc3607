#include "ui/win32/bound_picture.h"

#include "ui/win32/artwork.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundPicture::BoundPicture(FormWindow& form, Picture& picture)
    : DrawnControl(form, picture), picture_(picture) {}

BoundPicture::~BoundPicture() { animation_.stop(); }

bool BoundPicture::isAnimation() const { return picture_.design.name == "Gif89a1"; }

void BoundPicture::syncOwn() {
  DrawnControl::syncOwn();
  if (!isAnimation()) return;
  if (loaded_ != picture_.file) {
    loaded_ = picture_.file;
    animation_.load(loaded_);
  }
  // One that could not be loaded never runs.
  if (picture_.visible == animation_.running() || animation_.frames() == 0) return;
  if (picture_.visible) {
    animation_.start(window_);
  } else {
    animation_.stop();
  }
}

bool BoundPicture::isPanel() const { return picture_.design.name == "pictrlang"; }

void BoundPicture::draw(HDC dc, const RECT& area, const DrawnState& state) {
  const Palette& palette = form_.palette();
  if (isPanel()) return form_.drawPanel(dc, area);
  if (isAnimation()) return animation_.draw(dc, area);
  const bool on_strip = look_.role == ButtonRole::kStrip;
  const COLORREF color = on_strip        ? palette.strip_text
                         : state.hovered ? palette.accent
                                         : palette.faint_text;
  drawIcon(dc, area, look_.icon, color, state.scale);
  if (!state.focused) return;
  SetDCBrushColor(dc, color);
  FrameRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void BoundPicture::onMove(bool /*any_button_down*/) {
  if (picture_.onMouseMove) postMove(picture_.onMouseMove);
}

bool BoundPicture::onKey(WPARAM key, bool down) {
  if (!picture_.onClick || (key != VK_RETURN && key != VK_SPACE)) return false;
  if (down) postPress();
  return true;
}

}  // namespace tavr::win32
