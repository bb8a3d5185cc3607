// The command button of every form: its properties, and what it makes of the
// mouse and the keys. It draws nothing: it asks for a state to be drawn, and a
// view decides how its style looks.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/property_bag.h"

namespace tavr {

enum class MouseButton : std::uint8_t { kLeft = 1, kRight = 2, kMiddle = 4 };

/// The keys that the button answers to.
enum class ButtonKey : std::uint8_t { kSpace, kLeft, kUp, kRight, kDown };

class ChameleonButton : public Button {
 public:
  static constexpr std::string_view kVersion = "2.0.6";
  static constexpr std::uint32_t kOverTimerInterval = 50;  ///< ms
  static constexpr int kNormal = 0;                        ///< states to draw
  static constexpr int kPressed = 2;
  /// No colour of its own, in a number that is neither a colour nor one of the
  /// system's: 0 is black.
  static constexpr std::int32_t kOfScheme = std::numeric_limits<std::int32_t>::min() + 0xFFFFFF;

  enum class State : std::uint8_t { kNormal, kOver, kPressed };

  explicit ChameleonButton(Events& events);

  std::int32_t color = kOfScheme;             ///< BackColor
  std::int32_t hover_color = kOfScheme;       ///< BackOver
  std::int32_t text_color = kOfScheme;        ///< ForeColor
  std::int32_t hover_text_color = kOfScheme;  ///< ForeOver
  std::int32_t mask_color = 0xC0C0C0;
  int button_type = 0;  ///< 1 to 9 and 11 to 14; any other: the plain look
  int color_scheme = 1;
  bool show_focus_rect = true;
  int mouse_pointer = 0;
  std::string mouse_icon;
  bool hand_pointer = false;
  bool soft_bevel = false;
  std::string picture_normal;
  std::string picture_over;
  int picture_position = 0;
  bool use_mask_color = true;
  bool use_greyscale = false;
  int special_effect = 0;
  bool check_box_behaviour = false;
  bool value = false;

  void writeProperties(PropertyBag& bag) const;
  /// A key that is missing takes the value of a fresh button.
  void readProperties(const PropertyBag& bag);
  /// Sets a property by its key and tells of the change; unknown keys are
  /// ignored. The notice of PictureOver goes by another key than the bag's.
  void setProperty(std::string_view key, std::string_view text);
  std::function<void(std::string_view key)> onPropertyChange;

  // Of its font, each a property of its own on the form and none in the bag.
  bool& FontBold() { return font.bold; }
  bool& FontItalic() { return font.italic; }
  bool& FontUnderline() { return font.underline; }
  std::string& FontSize() { return font.size; }
  std::string& FontName() { return font.name; }

  // What a view passes on.
  void mouseMove(bool any_button_down = false);
  void mouseDown(MouseButton button);
  /// The handlers see the click after MouseUp. One that goes up beside the
  /// button is no click.
  void mouseUp(MouseButton button, bool inside = true);
  void keyDown(ButtonKey key);
  void keyUp(ButtonKey key);
  /// What presses it will not come up on it: back to normal without a click.
  void letGo();
  /// Whether the pointer stands over it, as OverTimer finds it. A view keeps it:
  /// a move that it passes on late must not bring back a pointer that has left.
  bool pointer_inside = false;

  std::function<void(MouseButton button)> onMouseDown;
  std::function<void(MouseButton button)> onMouseUp;
  /// Keys that move the focus ("{Tab}", "+{Tab}").
  std::function<void(std::string_view keys)> onSendKeys;

  /// Asks a view to draw a state. While the refresh is disabled nothing is
  /// asked for; Refresh draws the present state and enables it again.
  std::function<void(int state)> onDraw;
  void DisableRefresh() { refresh_ = false; }
  void Refresh();

  State state() const { return state_; }
  /// The state that was asked for last, -1 before the first.
  int drawn() const { return drawn_; }

  FormTimer OverTimer;

 private:
  void draw(int state);
  void leaveWhenOutside();

  Events& events_;
  State state_ = State::kNormal;
  State before_press_ = State::kNormal;
  MouseButton down_button_ = MouseButton::kLeft;
  bool refresh_ = true;
  int drawn_ = -1;
};

}  // namespace tavr
