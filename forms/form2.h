// The form "Erasing Settings": which tracks a run touches, and the plug-ins.
// Its controls alone; what they do is put in by config/form2_code.h.
#pragma once

#include <array>
#include <span>

#include "forms/chameleon_button.h"
#include "forms/controls.h"
#include "forms/file_boxes.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "platform/machine.h"

namespace tavr {

/// Its place for every control of Form2.
std::span<const ControlDesign> form2Design();

struct Form2 : Form {
  explicit Form2(Machine& machine);

  bool shadow = false;  ///< a view draws the shadow behind the window

  /// The index of a box is the name of its value in the selection key.
  std::array<CheckBox, 55> Check1;
  std::array<Label, 16> Label2;
  Label Label1;    ///< Label1(0)
  Label Label222;  ///< Label222(1), the title

  Button cmd_plugin;
  std::array<ChameleonButton, 32> chameleonButton;  ///< chameleonButton1 to 31 at their numbers
  ChameleonButton chameleonButton32;                ///< the close button of the title strip
  std::array<Button, 8> Toolbar1;                   ///< 1 to 7
  Picture Image44;

  /// Frame1 to Frame9 at their numbers; only 9, 2 and 3 are within reach.
  std::array<Frame, 10> frame;

  ListView View1;
  FileListBox File1;
  TextBox Text3, Text4;
  TextList List4, List5, List6, List7, List8, List9, List10, List11;
};

}  // namespace tavr
