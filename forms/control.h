// What every control of a form has: its design, and what of it can change. A
// view shows these values and passes clicks back; a script and a test do the
// same without a view.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tavr {

enum class ControlKind : std::uint8_t {
  kButton,  ///< chameleonButton, cmd_ buttons, command buttons
  kCheckBox,
  kComboBox,
  kDirList,
  kFileList,
  kFrame,  ///< a panel that holds other controls
  kLabel,
  kList,
  kListView,
  kMenuEntry,
  kOption,
  kPicture,
  kProgressBar,
  kScrollBar,
  kTextBox,
  kTimer,
  kToolbarButton,
  kTray,
};

/// Position and size in pixels at 96 dpi, from the upper left corner of what
/// holds the control.
struct Box {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// One row of a form's design: how the control stands on the fresh form.
struct ControlDesign {
  std::string_view name;
  int index = -1;  ///< in its control array, -1 for none
  ControlKind kind = ControlKind::kLabel;
  std::string_view parent;  ///< the frame that holds it, "" for the form itself
  Box box;
  int tab = -1;  ///< tab order, -1: not reached by Tab
  std::string_view caption;
  bool visible = true;
  bool enabled = true;
};

struct ControlFont {
  std::string name = "Segoe UI";
  std::string size = "9";
  int charset = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool operator==(const ControlFont&) const = default;
};

class Control {
 public:
  Control() = default;
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  bool visible = true;
  bool enabled = true;
  std::string caption;
  std::string tool_tip;
  std::string tag;
  ControlFont font;
  Box box;
  ControlDesign design;  ///< the row it was placed by; empty for one without

  /// The mouse moves over it.
  std::function<void()> onMouseMove;

  /// A person presses it: whatever a click does to this kind of control. A
  /// disabled control does nothing.
  void press() {
    if (enabled) pressed();
  }
  /// A person types a text into it; kinds without a text ignore it.
  virtual void type(std::string_view /*text*/) {}
  /// What of it a person reads: a caption, a text, or "1" and "0" of a box.
  virtual std::string shown() const { return caption; }

 protected:
  virtual void pressed() {}
};

}  // namespace tavr
