// The options form: secure erasing, stealth mode, the schedule, and the
// browser's start page. Its controls; the handlers are put in by its code
// (config/form3_code.h).
#pragma once

#include <array>
#include <cstddef>

#include "forms/chameleon_button.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "platform/events.h"

namespace tavr {

struct Form3 : Form {
  explicit Form3(Events& events);

  /// A text box that keeps its caret where the code puts it.
  struct CaretBox : TextBox {
    std::size_t caret = 0;  ///< characters before it
  };

  // The title strip and the way to the panels.
  Picture Image1;
  std::array<Label, 2> Label222;      ///< (1): the heading of the form
  ChameleonButton chameleonButton32;  ///< the close button, in the colour of the form
  Button cmd_plugin;                  ///< General settings
  ChameleonButton chameleonButton8;   ///< Schedule
  ChameleonButton chameleonButton3, chameleonButton6, chameleonButton7;  // show a panel; hidden
  ChameleonButton chameleonButton4, chameleonButton19;                   // both leave and save

  // The panels: start page, schedule, general settings and in it security. The
  // toolbar's panel stands beside the form, where nobody reaches it.
  Frame Frame1, Frame2, Frame3, Frame4, Frame6;
  std::array<Button, 7> Toolbar1;  ///< 1, 2, 3, 5 and 6; the others are separators

  std::array<CheckBox, 6> Check1;
  std::array<Label, 1> Label1;
  std::array<Label, 20> Label2;  ///< 2, 3 and 6 to 19
  std::array<Label, 8> Label3;

  ComboBox Combo1, Combo2;           ///< number of overwrites; letter of the hot key
  ChameleonButton chameleonButton9;  ///< saves both

  OptionButton Option1, Option2, Option3, Option4, Option5, Option6;
  CaretBox Text1, Text2, Text3, Text4, Text5;
  ScrollBar VScroll1, VScroll2, VScroll3, VScroll4, VScroll5;
  ChameleonButton chameleonButton5;  ///< saves the schedule

  TextBox Text10, Text20;                              ///< the browser's start page and title
  ChameleonButton chameleonButton1, chameleonButton2;  // a blank page; saves both

  FormTimer Timer1;     ///< sets the shadow up
  bool shadow = false;  ///< a view draws the shadow behind the window

  /// The options in their order, 1 to 6, at 0 to 5.
  std::array<OptionButton*, 6> options() {
    return {&Option1, &Option2, &Option3, &Option4, &Option5, &Option6};
  }
  /// Text1 to Text5 and VScroll1 to VScroll5, at 0 to 4.
  std::array<CaretBox*, 5> intervals() { return {&Text1, &Text2, &Text3, &Text4, &Text5}; }
  std::array<ScrollBar*, 5> scrollBars() {
    return {&VScroll1, &VScroll2, &VScroll3, &VScroll4, &VScroll5};
  }

 private:
  void placeAll();
};

}  // namespace tavr
