#include "ui/win32/bound_button.h"

#include <optional>
#include <utility>

#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

// Left goes back in every language, as on all that takes the arrows.
std::optional<ButtonKey> buttonKey(WPARAM key) {
  switch (key) {
    case VK_SPACE:
      return ButtonKey::kSpace;
    case VK_LEFT:
      return ButtonKey::kLeft;
    case VK_RIGHT:
      return ButtonKey::kRight;
    case VK_UP:
      return ButtonKey::kUp;
    case VK_DOWN:
      return ButtonKey::kDown;
    default:
      return std::nullopt;
  }
}

std::string drawnProperties(const ChameleonButton& button) {
  std::string drawn = "\n" + button.picture_normal + "\n" + button.picture_over;
  for (const int property : {button.color, button.hover_color, button.text_color,
                             button.hover_text_color, button.mask_color, button.button_type,
                             button.color_scheme, button.picture_position, button.special_effect}) {
    drawn += "\n" + std::to_string(property);
  }
  for (const bool property : {button.show_focus_rect, button.soft_bevel, button.use_mask_color,
                              button.use_greyscale, button.check_box_behaviour, button.value}) {
    drawn += property ? '1' : '0';
  }
  return drawn;
}

}  // namespace

BoundButton::BoundButton(FormWindow& form, Button& button)
    : DrawnControl(form, button),
      button_(button),
      chameleon_(dynamic_cast<ChameleonButton*>(&button)) {
  if (!chameleon_) return;
  chameleon_->onDraw = [this](int) { invalidate(); };
  chameleon_->onSendKeys = [this](std::string_view keys) {
    form_.moveFocus(keys.starts_with('+'));
  };
}

// The button may outlive its window.
BoundButton::~BoundButton() {
  if (!chameleon_) return;
  chameleon_->onDraw = nullptr;
  chameleon_->onSendKeys = nullptr;
  chameleon_->pointer_inside = false;
  chameleon_->letGo();
}

bool BoundButton::isSeparator() const {
  return button_.design.kind == ControlKind::kToolbarButton && button_.caption.empty();
}

bool BoundButton::isOpen() const {
  if (look_.panel.empty()) return false;
  const Control* const panel = form_.form().find(look_.panel);
  return panel && panel->visible;
}

std::string BoundButton::drawnOf() const {
  std::string drawn = button_.caption + (isOpen() ? "\n1" : "\n0");
  if (chameleon_) drawn += drawnProperties(*chameleon_);
  return drawn;
}

bool BoundButton::showsHand() const { return chameleon_ && chameleon_->hand_pointer; }

void BoundButton::draw(HDC dc, const RECT& area, const DrawnState& state) {
  DrawnState shown = state;
  shown.checked = isOpen();
  shown.access_key = form_.accessKeyPosition(button_);
  const std::string caption = form_.captionOf(button_);
  shown.caption = caption;
  shown.icon = look_.icon;
  if (isSeparator()) return form_.drawSeparator(dc, area);
  if (chameleon_) {
    // The state that it asked for last: with its refresh disabled, not its own.
    shown.pressed = false;
    // Nor is the mouse over it that came with a button down.
    shown.hovered = state.hovered && chameleon_->state() != ChameleonButton::State::kNormal;
    drawChameleonButton(dc, area, *chameleon_, chameleon_->drawn(), look_.role, shown,
                        form_.palette());
  } else {
    drawButton(dc, area, button_, look_.role, shown, form_.palette());
  }
}

void BoundButton::onMove(bool any_button_down) {
  if (!chameleon_) {
    if (button_.onMouseMove) postMove(button_.onMouseMove);
    return;
  }
  chameleon_->pointer_inside = hovered_;
  plain_move_ |= !any_button_down;  // one of the moves that wait
  postMove([this] { chameleon_->mouseMove(!std::exchange(plain_move_, false)); });
}

void BoundButton::onLeave() {
  if (chameleon_) chameleon_->pointer_inside = false;
}

void BoundButton::onDown(MouseButton button) {
  if (chameleon_) post([&chameleon = *chameleon_, button] { chameleon.mouseDown(button); });
}

void BoundButton::onUp(MouseButton button, bool inside) {
  if (!chameleon_) return DrawnControl::onUp(button, inside);
  post([&chameleon = *chameleon_, button, inside] { chameleon.mouseUp(button, inside); });
}

void BoundButton::onCancel() {
  if (chameleon_) post([&chameleon = *chameleon_] { chameleon.letGo(); });
}

bool BoundButton::onKey(WPARAM key, bool down) {
  if (key == VK_RETURN) {
    if (down) postPress();
    return true;
  }
  return chameleon_ ? onChameleonKey(key, down) : onPlainKey(key, down);
}

bool BoundButton::onChameleonKey(WPARAM key, bool down) {
  const std::optional<ButtonKey> known = buttonKey(key);
  if (!known) return false;
  if (down) form_.showFocus();
  post([&chameleon = *chameleon_, known, down] {
    if (down) {
      chameleon.keyDown(*known);
    } else {
      chameleon.keyUp(*known);
    }
  });
  return true;
}

bool BoundButton::onPlainKey(WPARAM key, bool down) {
  const std::optional<ButtonKey> known = buttonKey(key);
  if (!known) return false;
  if (*known == ButtonKey::kSpace) {
    if (held_ && !down) postPress();
    held_ = down;
    invalidate();
  } else if (down) {
    form_.moveFocus(*known == ButtonKey::kLeft || *known == ButtonKey::kUp, isGrouped(button_));
  }
  return true;
}

void BoundButton::onAccessKey() {
  SetFocus(window_);
  postPress();
}

}  // namespace tavr::win32
