// How the self-drawn controls look: each function draws one control in a state
// into a rectangle, and nothing beside it. A drawing depends on its arguments
// alone; nothing here knows a window.
//
// The device context has the plain left-to-right layout, also for a form that
// reads from right to left: `right_to_left` mirrors the places itself, and what
// must not be mirrored (pictures, check marks) stays as it is.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/chameleon_button.h"
#include "forms/control.h"
#include "forms/progress_bar.h"

namespace tavr::win32 {

/// The colours of a form. A drawing takes what it is given: a caller may change
/// a single colour of its copy, as for a faint label.
struct Palette {
  COLORREF window = 0;  ///< ground of the centre
  COLORREF panel = 0;   ///< ground of columns, tables, boxes and plain buttons
  COLORREF raised = 0;  ///< heads of tables, the groove of the bar
  COLORREF text = 0;
  COLORREF faint_text = 0;
  COLORREF strip = 0;  ///< the title strip: the configured colour
  COLORREF strip_text = 0;
  COLORREF accent = 0;  ///< the configured colour, as dark as it must be to be read
  COLORREF accent_text = 0;
  COLORREF border = 0;
  COLORREF hover = 0;
  COLORREF selection = 0;
  COLORREF danger = 0;
  bool high_contrast = false;

  /// With the strip in this colour, or the system's colours when the person has
  /// turned high contrast on.
  static Palette of(COLORREF strip);
  /// The system's colours, whether high contrast is on or not.
  static Palette ofSystem();
};

struct DrawnState {
  bool hovered = false;
  bool pressed = false;
  bool focused = false;
  bool enabled = true;
  bool checked = false;  ///< a button that is held down, the entry of the open panel
  bool right_to_left = false;
  double scale = 1.0;             ///< dpi / 96
  int access_key = -1;            ///< the letter to underline, in UTF-16 units of the caption
  std::string_view caption = {};  ///< shown in the place of the control's own; empty: its own
  std::string_view icon = {};     ///< a name of artwork.h, for buttons
};

/// How a view shows a button of the forms.
enum class ButtonRole : std::uint8_t {
  kPlain,
  kStrip,       ///< on the title strip
  kCommand,     ///< in the column of commands
  kPrimary,     ///< the one that matters most
  kOutlined,    ///< the one beside it
  kTool,        ///< of the toolbar: its icon alone
  kNavigation,  ///< opens a panel; checked while the panel is open
};

void drawButton(HDC dc, const RECT& area, const Control& button, ButtonRole role,
                const DrawnState& state, const Palette& palette);

/// `state` is the one that the button asked for: ChameleonButton::kNormal or
/// kPressed. A button_type with a style of its own is drawn in that style; the
/// default follows the role.
void drawChameleonButton(HDC dc, const RECT& area, const ChameleonButton& button, int state,
                         ButtonRole role, const DrawnState& drawn, const Palette& palette);

/// `value`: 0 off, 1 on, 2 grey.
void drawCheckBox(HDC dc, const RECT& area, const Control& box, int value, const DrawnState& state,
                  const Palette& palette);
void drawOption(HDC dc, const RECT& area, const Control& option, bool value,
                const DrawnState& state, const Palette& palette);

/// Breaks into lines where the box has room for them; a single line stands in
/// the middle of its box's height.
void drawLabel(HDC dc, const RECT& area, const Control& label, bool heading, bool large_figure,
               const DrawnState& state, const Palette& palette);
/// A panel is its ground; with a caption it has a line around it as well, and
/// the caption stands in the upper edge.
void drawFrame(HDC dc, const RECT& area, const Control& frame, const DrawnState& state,
               const Palette& palette);
/// Five looks, by style and progressLook.
void drawProgressBar(HDC dc, const RECT& area, const ProgressBar& bar, const DrawnState& state,
                     const Palette& palette);
/// The ground of the strip and the title on it, behind the program's sign. Of the
/// font the face, the size and the character set are taken.
void drawTitleStrip(HDC dc, const RECT& area, std::string_view title, const DrawnState& state,
                    const Palette& palette, const ControlFont& font = {});

/// What the caption takes on one line in the control's font.
SIZE captionSize(HDC dc, const Control& control, double scale, bool bold = false);
/// What a button wants at least to show icon and caption whole. `state` gives
/// scale, icon and, where it differs, the caption.
SIZE buttonSize(HDC dc, const Control& button, ButtonRole role, const DrawnState& state);
/// What a check box or an option wants at least.
SIZE boxSize(HDC dc, const Control& box, const DrawnState& state);
/// The height that a label of this width wants for all its lines.
int labelHeight(HDC dc, const Control& label, int width, bool heading, bool large_figure,
                double scale);

/// The family that is drawn for a font's name: the name itself where it is
/// installed with the character set, else the nearest that is.
std::wstring installedFamily(std::string_view name, int charset);

}  // namespace tavr::win32
