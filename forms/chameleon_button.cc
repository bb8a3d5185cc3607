#include "forms/chameleon_button.h"

#include <vector>

#include "basic/text.h"

namespace tavr {

namespace {

// Every stored property with its key, in the order of the control's interface.
template <class ButtonT, class Visit>
void eachProperty(ButtonT& button, Visit&& visit) {
  visit("BCOL", button.color);
  visit("BCOLO", button.hover_color);
  visit("FCOL", button.text_color);
  visit("FCOLO", button.hover_text_color);
  visit("MCOL", button.mask_color);
  visit("BTYPE", button.button_type);
  visit("TX", button.caption);
  visit("ENAB", button.enabled);
  visit("FONT", button.font);
  visit("COLTYPE", button.color_scheme);
  visit("FOCUSR", button.show_focus_rect);
  visit("MPTR", button.mouse_pointer);
  visit("MICON", button.mouse_icon);
  visit("HAND", button.hand_pointer);
  visit("SOFT", button.soft_bevel);
  visit("PICN", button.picture_normal);
  visit("PICH", button.picture_over);
  visit("PICPOS", button.picture_position);
  visit("UMCOL", button.use_mask_color);
  visit("NGREY", button.use_greyscale);
  visit("FX", button.special_effect);
  visit("CHECK", button.check_box_behaviour);
  visit("VALUE", button.value);
}

// A font is kept as its name, size and character set, and its three marks.
std::string storedText(const ControlFont& font) {
  std::string text = font.name + "," + font.size + "," + tavr::storedText(font.charset);
  for (const bool mark : {font.bold, font.italic, font.underline}) {
    text += "," + tavr::storedText(mark);
  }
  return text;
}

// What is missing behind the name is as on a fresh button.
void fromStored(std::string_view text, ControlFont& font) {
  font = ControlFont();
  const std::vector<std::string> fields = Split(text, ',');
  const auto take = [&fields](std::size_t index, auto& property) {
    if (index < fields.size()) tavr::fromStored(fields[index], property);
  };
  take(0, font.name);
  take(1, font.size);
  take(2, font.charset);
  take(3, font.bold);
  take(4, font.italic);
  take(5, font.underline);
}

}  // namespace

ChameleonButton::ChameleonButton(Events& events)
    : OverTimer(events, kOverTimerInterval), events_(events) {
  OverTimer.onTick = [this] { leaveWhenOutside(); };
}

void ChameleonButton::writeProperties(PropertyBag& bag) const {
  eachProperty(*this,
               [&](const char* key, const auto& property) { bag[key] = storedText(property); });
}

void ChameleonButton::readProperties(const PropertyBag& bag) {
  PropertyBag fresh;
  ChameleonButton(events_).writeProperties(fresh);
  eachProperty(*this, [&](const char* key, auto& property) {
    const auto stored = bag.find(key);
    fromStored(stored == bag.end() ? fresh.at(key) : stored->second, property);
  });
}

void ChameleonButton::setProperty(std::string_view key, std::string_view text) {
  eachProperty(*this, [&](std::string_view own, auto& property) {
    if (own != key) return;
    fromStored(text, property);
    if (onPropertyChange) onPropertyChange(own == "PICH" ? "PICO" : own);
  });
}

void ChameleonButton::mouseMove(bool any_button_down) {
  if (state_ == State::kNormal && !any_button_down) {
    state_ = State::kOver;
    OverTimer.setEnabled(true);
    draw(kNormal);
  }
  if (onMouseMove) onMouseMove();
}

void ChameleonButton::mouseDown(MouseButton button) {
  if (button != MouseButton::kRight && state_ != State::kPressed) {
    before_press_ = state_;
    state_ = State::kPressed;
    down_button_ = button;
    if (onMouseDown) onMouseDown(button);
    draw(kPressed);
    return;
  }
  if (onMouseDown) onMouseDown(button);
}

void ChameleonButton::mouseUp(MouseButton button, bool inside) {
  const bool releases = state_ == State::kPressed && button == down_button_;
  if (releases) state_ = before_press_;
  if (onMouseUp) onMouseUp(button);
  if (!releases) return;
  draw(kNormal);
  if (button == MouseButton::kLeft && inside) press();
}

void ChameleonButton::keyDown(ButtonKey key) {
  if (key == ButtonKey::kSpace) {
    if (state_ != State::kPressed) before_press_ = state_;
    state_ = State::kPressed;
    draw(kPressed);
    return;
  }
  const bool back = key == ButtonKey::kLeft || key == ButtonKey::kUp;
  if (onSendKeys) onSendKeys(back ? "+{Tab}" : "{Tab}");
}

void ChameleonButton::keyUp(ButtonKey key) {
  if (key != ButtonKey::kSpace || state_ != State::kPressed) return;
  letGo();
  press();
}

void ChameleonButton::letGo() {
  if (state_ != State::kPressed) return;
  state_ = State::kNormal;
  draw(kNormal);
}

void ChameleonButton::Refresh() {
  refresh_ = true;
  draw(state_ == State::kPressed ? kPressed : kNormal);
}

void ChameleonButton::draw(int state) {
  if (!refresh_) return;
  drawn_ = state;
  if (onDraw) onDraw(state);
}

void ChameleonButton::leaveWhenOutside() {
  if (pointer_inside || state_ == State::kPressed) return;
  OverTimer.setEnabled(false);
  state_ = State::kNormal;
  draw(kNormal);
}

}  // namespace tavr
