#include "ui/win32/bound_frame.h"

#include "ui/win32/form_window.h"

namespace tavr::win32 {

void BoundFrame::draw(HDC dc, const RECT& area, const DrawnState& state) {
  if (frame_.design.name == "Toolbar1") return form_.drawToolbarEdge(dc, area);
  drawFrame(dc, area, frame_, state, form_.palette());
}

}  // namespace tavr::win32
