// The form "Keep List": cookies or typed addresses to be kept. Its controls
// alone; what they do is put in by config/form52_code.h.
#pragma once

#include <span>

#include "forms/chameleon_button.h"
#include "forms/controls.h"
#include "forms/file_boxes.h"
#include "forms/form.h"
#include "platform/files.h"

namespace tavr {

/// Its place for every control of Form52.
std::span<const ControlDesign> form52Design();

struct Form52 : Form {
  Form52(Events& events, Files& files);

  TextBox Text1;  ///< mode: "1" cookies, "2" location bar history
  TextBox Text2;  ///< value names, a comma before each but the first
  ListBox List1;  ///< what there is
  ListBox List2;  ///< what is kept
  ListBox List3;  ///< texts of the addresses
  DirListBox Dir1;
  FileListBox File1;
  /// Label1(1) heads List1, Label1(0) List2, Label1(16) is the title.
  Label Label1_0, Label1_1, Label1_16;

  Button keepbutton2, keepbutton3;   ///< add, delete
  Button keepbutton11;               ///< refresh
  Button keepbutton7, keepbutton10;  ///< OK, cancel
  ChameleonButton chameleonButton1;  ///< all rows of List1
  ChameleonButton chameleonButton2;  ///< all rows of List2
  Button Command1, command2;         ///< fill List1 with cookies, with addresses
  Button Command3;                   ///< a leftover without effect
};

}  // namespace tavr
