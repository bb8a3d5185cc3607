#include "ui/win32/button_face.h"

#include <algorithm>

namespace tavr::win32 {

namespace {

constexpr double kBarWidth = 3;
constexpr double kFocusInset = 2;

ButtonFace restingFace(ButtonRole role, bool has_icon, const Palette& palette) {
  ButtonFace face;
  face.text = palette.text;
  switch (role) {
    case ButtonRole::kPlain:
      face.ground = palette.panel;
      face.edge = palette.high_contrast ? palette.border : mix(palette.border, palette.text, 0.12);
      break;
    case ButtonRole::kStrip:
      face.text = palette.strip_text;
      face.padding = 6;
      face.icon_alone = has_icon;
      break;
    case ButtonRole::kCommand:
      face.radius = 6;
      face.side = Side::kStart;
      break;
    case ButtonRole::kPrimary:
      face.ground = palette.accent;
      face.text = palette.accent_text;
      face.radius = has_icon ? 6 : 4;
      face.bold = true;
      face.side = has_icon ? Side::kStart : Side::kMiddle;
      break;
    case ButtonRole::kOutlined:
      face.ground = palette.panel;
      face.edge = face.text = palette.high_contrast ? palette.text : palette.accent;
      face.radius = has_icon ? 6 : 4;
      face.bold = true;
      face.side = has_icon ? Side::kStart : Side::kMiddle;
      break;
    case ButtonRole::kTool:
      face.padding = 4;
      face.icon_alone = has_icon;
      break;
    case ButtonRole::kNavigation:
      face.radius = 6;
      face.side = Side::kStart;
      break;
  }
  return face;
}

bool isBare(ButtonRole role) {
  return role == ButtonRole::kCommand || role == ButtonRole::kTool ||
         role == ButtonRole::kNavigation;
}

void touch(ButtonFace& face, ButtonRole role, const DrawnState& state, const Palette& palette) {
  if (role == ButtonRole::kStrip) {
    const bool closes = state.icon == "close";
    const COLORREF toward = closes ? palette.danger : palette.strip_text;
    const double part = closes ? (state.pressed ? 0.75 : 1) : (state.pressed ? 0.28 : 0.16);
    face.ground = mix(palette.strip, toward, part);
    if (closes) face.text = readableOn(*face.ground);
  } else if (role == ButtonRole::kPrimary) {
    face.ground = mix(palette.accent, state.pressed ? kInk : kWhite, state.pressed ? 0.28 : 0.14);
  } else {
    face.ground = state.pressed ? palette.selection : palette.hover;
    if (!isBare(role)) face.edge = palette.accent;
  }
}

void check(ButtonFace& face, ButtonRole role, const Palette& palette) {
  if (role == ButtonRole::kPrimary || role == ButtonRole::kStrip) {
    const bool primary = role == ButtonRole::kPrimary;
    face.ground =
        mix(face.ground.value_or(palette.strip), primary ? kInk : palette.strip_text, 0.2);
    return;
  }
  face.ground = palette.selection;
  face.text = palette.accent;
  if (role == ButtonRole::kNavigation) {
    face.bar = face.bold = true;
  } else {
    face.edge = palette.accent;
  }
}

void disable(ButtonFace& face, ButtonRole role, const Palette& palette) {
  if (role == ButtonRole::kPrimary) face.ground = palette.raised;
  if (role == ButtonRole::kOutlined) face.edge = palette.border;
  const COLORREF ground = role == ButtonRole::kStrip ? palette.strip : palette.panel;
  face.text = role == ButtonRole::kStrip && !palette.high_contrast
                  ? mix(palette.strip_text, palette.strip, 0.45)
                  : disabledText(palette, face.ground.value_or(ground));
}

// Few colours: a state is told by the line and by the pair that the system has
// for what is selected.
void highContrast(ButtonFace& face, ButtonRole role, const DrawnState& state,
                  const Palette& palette) {
  const bool held = state.pressed || state.checked || role == ButtonRole::kPrimary;
  if (!state.enabled) {
    face.ground = palette.panel;
    face.edge = face.text = disabledText(palette, palette.panel);
    return;
  }
  if (held) {
    face.ground = palette.accent;
    face.text = palette.accent_text;
  }
  // What looks held at rest is turned round.
  if (role == ButtonRole::kPrimary && (state.pressed || state.checked)) {
    face.ground = palette.text;
    face.text = palette.window;
  }
  if (state.hovered || held) {
    face.edge = role == ButtonRole::kStrip ? palette.strip_text : palette.text;
    face.edge_width = state.hovered ? 2 : 1;
  }
}

}  // namespace

ButtonFace faceOf(ButtonRole role, const DrawnState& state, const Palette& palette) {
  ButtonFace face = restingFace(role, !state.icon.empty(), palette);
  if (palette.high_contrast) {
    highContrast(face, role, state, palette);
    return face;
  }
  if (!state.enabled) {
    disable(face, role, palette);
    return face;
  }
  if (state.hovered || state.pressed) touch(face, role, state, palette);
  if (state.checked) check(face, role, palette);
  return face;
}

void drawFace(Canvas& canvas, const ButtonFace& face, const DrawnState& state,
              const Palette& palette) {
  const RECT& area = canvas.area();
  if (face.ground) canvas.fillRound(area, face.radius, *face.ground);
  if (face.bar) {
    RECT bar = area;
    bar.right = bar.left + canvas.px(kBarWidth);
    bar = mirrored(bar, area, state.right_to_left);
    // The round end of the whole face, as far as the bar goes.
    Canvas end(canvas.dc(), bar, canvas.scale());
    end.fillRound(area, face.radius, palette.accent);
  }
  if (face.edge) canvas.strokeRound(area, face.radius, face.edge_width, *face.edge);
}

void drawFocus(Canvas& canvas, const RECT& box, double radius, COLORREF color,
               const Palette& palette) {
  const RECT line = inset(box, canvas.px(kFocusInset));
  canvas.strokeRound(line, std::max(0.0, radius - kFocusInset), 1.5, color,
                     palette.high_contrast ? 1 : 0.85);
}

}  // namespace tavr::win32
