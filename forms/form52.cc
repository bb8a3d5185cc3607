#include "forms/form52.h"

namespace tavr {

namespace {

using enum ControlKind;

// clang-format off
constexpr ControlDesign kDesign[] = {
    {"Label1", 16, kLabel, "", {16, 8, 480, 24}, -1, "Keep List", true, true},
    {"Label1", 1, kLabel, "", {16, 48, 384, 24}, -1, "Current List", true, true},
    {"Label1", 0, kLabel, "", {456, 48, 384, 24}, -1, "Keep list", true, true},
    {"List1", -1, kList, "", {16, 76, 384, 300}, 0, "", true, true},
    {"List2", -1, kList, "", {456, 76, 384, 300}, 1, "", true, true},
    {"chameleonButton1", -1, kButton, "", {16, 384, 184, 32}, 2, "Select All", true, true},
    {"keepbutton11", -1, kButton, "", {216, 384, 184, 32}, 3, "  Refresh", true, true},
    {"chameleonButton2", -1, kButton, "", {456, 384, 184, 32}, 4, "Select All", true, true},
    {"keepbutton3", -1, kButton, "", {656, 384, 184, 32}, 5, " Delete", true, true},
    {"keepbutton2", -1, kButton, "", {16, 428, 384, 32}, 6, "Click to add selected to keep list", true, true},
    {"keepbutton7", -1, kButton, "", {456, 428, 184, 32}, 7, "  OK", true, true},
    {"keepbutton10", -1, kButton, "", {656, 428, 184, 32}, 8, " Cancel", true, true},
    {"Text1", -1, kTextBox, "", {16, 468, 80, 20}, -1, "", false, true},
    {"Text2", -1, kTextBox, "", {104, 468, 80, 20}, -1, "", false, true},
    {"List3", -1, kList, "", {192, 468, 80, 20}, -1, "", false, true},
    {"Dir1", -1, kDirList, "", {280, 468, 80, 20}, -1, "", false, true},
    {"File1", -1, kFileList, "", {368, 468, 80, 20}, -1, "", false, true},
    {"Command1", -1, kButton, "", {456, 468, 80, 20}, -1, "cookies", false, true},
    {"command2", -1, kButton, "", {544, 468, 80, 20}, -1, "urls", false, true},
    {"Command3", -1, kButton, "", {632, 468, 80, 20}, -1, "Command3", false, true},
};
// clang-format on

}  // namespace

std::span<const ControlDesign> form52Design() { return kDesign; }

Form52::Form52(Events& events, Files& files)
    : Form("Form52", "Keep List", 856, 496),
      Dir1(files),
      File1(files),
      chameleonButton1(events),
      chameleonButton2(events) {
  place(kDesign, "Label1", 16, Label1_16);
  place(kDesign, "Label1", 1, Label1_1);
  place(kDesign, "Label1", 0, Label1_0);
  place(kDesign, "List1", -1, List1);
  place(kDesign, "List2", -1, List2);
  place(kDesign, "chameleonButton1", -1, chameleonButton1);
  place(kDesign, "keepbutton11", -1, keepbutton11);
  place(kDesign, "chameleonButton2", -1, chameleonButton2);
  place(kDesign, "keepbutton3", -1, keepbutton3);
  place(kDesign, "keepbutton2", -1, keepbutton2);
  place(kDesign, "keepbutton7", -1, keepbutton7);
  place(kDesign, "keepbutton10", -1, keepbutton10);
  place(kDesign, "Text1", -1, Text1);
  place(kDesign, "Text2", -1, Text2);
  place(kDesign, "List3", -1, List3);
  place(kDesign, "Dir1", -1, Dir1);
  place(kDesign, "File1", -1, File1);
  place(kDesign, "Command1", -1, Command1);
  place(kDesign, "command2", -1, command2);
  place(kDesign, "Command3", -1, Command3);
}

}  // namespace tavr
