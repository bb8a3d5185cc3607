// The chameleonButton: its colours from scheme and properties, its style, and
// what stands on it.
#include "ui/win32/artwork.h"
#include "ui/win32/button_face.h"
#include "ui/win32/button_styles.h"

namespace tavr::win32 {

namespace {

// ColorScheme: what the colours come from that the button does not set itself.
// Any other number is the calm scheme.
constexpr int kAccentScheme = 2;
constexpr double kSeen = 3;  // contrast of a line, as WCAG 2 asks for

struct Colors {
  COLORREF ground = 0;
  COLORREF hover = 0;
  COLORREF text = 0;
  COLORREF hover_text = 0;
  COLORREF edge = 0;
  COLORREF accent = 0;  ///< of the lines that a style is known by
};

Colors schemeColors(int scheme, const StyleTraits& traits, const Palette& palette) {
  if (traits.filled) {
    const COLORREF ground = scheme == kAccentScheme && !palette.high_contrast
                                ? mix(palette.accent, kInk, 0.3)
                                : palette.accent;
    return {.ground = ground,
            .hover = mix(ground, kWhite, 0.14),
            .text = palette.accent_text,
            .hover_text = palette.accent_text,
            .edge = mix(ground, kInk, 0.4),
            .accent = palette.accent};
  }
  if (scheme == kAccentScheme && !palette.high_contrast) {
    return {.ground = palette.selection,
            .hover = mix(palette.selection, palette.accent, 0.14),
            .text = palette.accent,
            .hover_text = palette.accent,
            .edge = mix(palette.selection, palette.accent, 0.5),
            .accent = palette.accent};
  }
  return {.ground = palette.panel,
          .hover = palette.hover,
          .text = palette.text,
          .hover_text = palette.text,
          .edge = mix(palette.border, palette.text, 0.12),
          .accent = palette.accent};
}

bool isSet(std::int32_t color) { return color != ChameleonButton::kOfScheme; }

Colors colorsOf(const ChameleonButton& button, const StyleTraits& traits, const Palette& palette) {
  Colors colors = schemeColors(button.color_scheme, traits, palette);
  if (palette.high_contrast) return colors;
  const auto take = [](std::int32_t own, COLORREF& color) {
    if (!isSet(own)) return false;
    color = fromControlColor(own);
    return true;
  };
  if (take(button.color, colors.ground)) {
    colors.text = colors.hover_text = readableOn(colors.ground);
    colors.hover = mix(colors.ground, colors.text, 0.1);
    colors.edge = mix(colors.ground, colors.text, 0.3);
    colors.accent = mix(colors.ground, colors.text, 0.45);
  }
  if (take(button.hover_color, colors.hover)) colors.hover_text = readableOn(colors.hover);
  if (take(button.text_color, colors.text)) colors.hover_text = colors.text;
  take(button.hover_text_color, colors.hover_text);
  return colors;
}

// Few colours: what is held down is told by the pair that the system has for
// what is selected, and the mouse by a line.
StyleInk systemInk(const StyleTraits& traits, const DrawnState& state, const Palette& palette) {
  StyleInk ink;
  ink.flat = true;
  ink.hovered = state.enabled && state.hovered;
  ink.pressed = state.enabled && (state.pressed || state.checked);
  const bool selected = state.enabled && (ink.pressed || traits.filled);
  ink.ground = selected ? palette.accent : palette.panel;
  ink.text = selected ? palette.accent_text : palette.text;
  ink.accent = selected ? palette.accent_text : palette.accent;
  ink.edge = palette.text;
  if (traits.filled && ink.pressed) {
    ink.ground = palette.text;
    ink.text = ink.accent = palette.window;
  }
  if (!state.enabled) ink.edge = ink.accent = ink.text = disabledText(palette, palette.panel);
  ink.light = ink.dark = ink.edge;
  return ink;
}

// A ground grows darker when it is pressed; one that is as dark as that, lighter.
COLORREF pressedToward(COLORREF ground) { return contrast(ground, kInk) < 2 ? kWhite : kInk; }

StyleInk inkOf(const ChameleonButton& button, const Colors& colors, const DrawnState& state,
               const Palette& palette) {
  StyleInk ink;
  ink.hovered = state.enabled && state.hovered;
  ink.pressed = state.enabled && (state.pressed || state.checked);
  ink.ground = ink.hovered ? colors.hover : colors.ground;
  ink.text = ink.hovered ? colors.hover_text : colors.text;
  ink.edge = colors.edge;
  ink.accent = colors.accent;
  if (ink.pressed) {
    const bool light = contrast(ink.ground, kWhite) < contrast(ink.ground, kInk);
    ink.ground = mix(ink.ground, light ? palette.accent : pressedToward(ink.ground),
                     state.pressed ? 0.2 : 0.12);
  }
  if (!state.enabled) {
    ink.ground = mix(greyOf(colors.ground), kWhite, 0.75);
    ink.text = disabledText(palette, ink.ground);
    ink.edge = ink.accent = mix(ink.text, ink.ground, 0.4);
  }
  // A soft bevel is the same with half the contrast.
  const double depth = button.soft_bevel ? 0.5 : 1;
  ink.light = mix(ink.ground, kWhite, 0.85 * depth);
  ink.dark = mix(ink.ground, kInk, 0.35 * depth);
  if (button.soft_bevel) ink.edge = mix(ink.edge, ink.ground, 0.5);
  return ink;
}

ButtonContent contentOf(const ChameleonButton& button, const DrawnState& state,
                        const Palette& palette) {
  ButtonContent content;
  const bool over = state.hovered && !button.picture_over.empty();
  content.picture = over ? button.picture_over : button.picture_normal;
  if (content.picture.empty()) content.picture = state.icon;
  if (button.picture_position >= 0 && button.picture_position <= 3) {
    content.place = static_cast<PicturePlace>(button.picture_position);
  }
  if (button.use_mask_color) content.mask = fromControlColor(button.mask_color);
  // A sign of the program's own takes the colour of its text, which is the system's.
  const bool as_text = palette.high_contrast && hasIcon(content.picture);
  content.grey = (button.use_greyscale || !state.enabled) && !as_text;
  if (!palette.high_contrast) content.effect = button.special_effect;  // it mixes colours
  return content;
}

// Where the content of a style stands.
RECT bodyOf(const Canvas& canvas, const StyleTraits& traits, bool pressed) {
  RECT body = canvas.area();
  if (traits.lip == 0) return body;
  (pressed ? body.top : body.bottom) += canvas.px(traits.lip) * (pressed ? 1 : -1);
  return body;
}

void drawStyled(Canvas& canvas, const ChameleonButton& button, const DrawnState& state,
                const Palette& palette) {
  const StyleTraits traits = traitsOf(button.button_type);
  const StyleInk ink = palette.high_contrast
                           ? systemInk(traits, state, palette)
                           : inkOf(button, colorsOf(button, traits, palette), state, palette);
  drawStyle(canvas, button.button_type, ink);
  if (ink.flat && ink.hovered) canvas.strokeRound(canvas.area(), traits.radius, 2, palette.text);
  Canvas body(canvas.dc(), bodyOf(canvas, traits, ink.pressed), canvas.scale());
  ButtonContent content = contentOf(button, state, palette);
  content.caption = {ink.text, Side::kMiddle, false};
  content.padding = traits.padding;
  content.pushed = traits.pushes && ink.pressed ? canvas.px(1) : 0;
  drawContent(body, button, content, state);
  if (state.focused && button.show_focus_rect) {
    const bool seen = contrast(ink.accent, ink.ground) >= kSeen;
    drawFocus(body, body.area(), traits.radius, seen ? ink.accent : ink.text, palette);
  }
}

// The role's face, in the button's own colours where it has set them.
ButtonFace roleFace(const ChameleonButton& button, ButtonRole role, const DrawnState& state,
                    const Palette& palette) {
  ButtonFace face = faceOf(role, state, palette);
  if (palette.high_contrast || !state.enabled) return face;
  const Colors rest = schemeColors(1, {}, palette);
  const Colors own = colorsOf(button, {}, palette);
  const bool touched = state.hovered || state.pressed;
  const bool scheme = button.color_scheme == kAccentScheme;
  if (isSet(button.color) || scheme) face.ground = own.ground;
  if (touched && (isSet(button.hover_color) || scheme)) face.ground = own.hover;
  if (face.ground && (isSet(button.color) || isSet(button.hover_color) || scheme)) {
    face.text = readableOn(*face.ground);
  }
  if (isSet(button.text_color) || (scheme && own.text != rest.text)) face.text = own.text;
  if (touched && isSet(button.hover_text_color)) face.text = own.hover_text;
  // A hover colour that is the resting one would leave the hover unseen.
  if (touched && face.ground && (own.hover == own.ground || *face.ground == palette.accent)) {
    face.edge = mix(*face.ground, face.text, state.pressed ? 0.7 : 0.45);
  }
  const bool own_ground = isSet(button.color) || isSet(button.hover_color) || scheme;
  if (own_ground && state.pressed && face.ground) {
    face.ground = mix(*face.ground, pressedToward(*face.ground), 0.14);
  }
  if (button.soft_bevel && face.edge) {
    face.edge = mix(*face.edge, face.ground.value_or(palette.window), 0.5);
  }
  return face;
}

void drawByRole(Canvas& canvas, const ChameleonButton& button, ButtonRole role,
                const DrawnState& state, const Palette& palette) {
  ButtonContent content = contentOf(button, state, palette);
  DrawnState shown = state;
  shown.icon = content.picture;
  const ButtonFace face = roleFace(button, role, shown, palette);
  drawFace(canvas, face, state, palette);
  content.picture_alone = face.icon_alone;
  content.caption = {face.text, face.side, face.bold};
  content.padding = face.padding;
  drawContent(canvas, button, content, state);
  if (state.focused && button.show_focus_rect) {
    drawFocus(canvas, canvas.area(), face.radius, face.text, palette);
  }
}

}  // namespace

void drawChameleonButton(HDC dc, const RECT& area, const ChameleonButton& button, int state,
                         ButtonRole role, const DrawnState& drawn, const Palette& palette) {
  if (IsRectEmpty(&area)) return;
  DrawnState shown = drawn;
  shown.enabled = drawn.enabled && button.enabled;
  shown.pressed = shown.enabled && (drawn.pressed || state == ChameleonButton::kPressed);
  shown.hovered = shown.enabled && drawn.hovered;
  shown.checked = drawn.checked || (button.check_box_behaviour && button.value);
  Canvas canvas(dc, area, drawn.scale);
  if (hasStyle(button.button_type)) {
    drawStyled(canvas, button, shown, palette);
  } else {
    drawByRole(canvas, button, role, shown, palette);
  }
}

}  // namespace tavr::win32
