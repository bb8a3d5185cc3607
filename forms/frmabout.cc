#include "forms/frmabout.h"

namespace tavr {

namespace {

using enum ControlKind;

constexpr ControlDesign kDesign[] = {
    {"Label222", 1, kLabel, "", {16, 8, 388, 24}, -1, "About"},
    {"Label1", -1, kLabel, "", {24, 52, 372, 28}, -1, "Spoorwipe"},
    {"Label3", -1, kLabel, "", {24, 84, 372, 22}, -1, ""},
    {"Label2", 3, kLabel, "", {24, 124, 300, 22}, 0, "Visit our web site"},
    {"Label2", 2, kLabel, "", {24, 152, 300, 22}, 1, "Download plug-ins"},
    {"Label2", 1, kLabel, "", {24, 180, 300, 22}, 2, "Contact support"},
    {"Label2", 0, kLabel, "", {24, 208, 300, 22}, 3, "Translate the program"},
    {"chameleonButton1", -1, kButton, "", {292, 236, 112, 36}, 4, "OK"},
};

}  // namespace

std::span<const ControlDesign> frmaboutDesign() { return kDesign; }

frmabout::frmabout(Events& events) : Form("frmabout", "About", 420, 288), chameleonButton1(events) {
  place(kDesign, "Label222", 1, Label222);
  place(kDesign, "Label1", -1, Label1);
  place(kDesign, "Label3", -1, Label3);
  for (int index = 3; index >= 0; --index) {
    place(kDesign, "Label2", index, Label2[static_cast<std::size_t>(index)]);
  }
  place(kDesign, "chameleonButton1", -1, chameleonButton1);
}

}  // namespace tavr
