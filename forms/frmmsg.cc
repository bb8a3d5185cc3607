#include "forms/frmmsg.h"

namespace tavr {

namespace {

using enum ControlKind;

constexpr ControlDesign kDesign[] = {
    {"Text1", -1, kTextBox, "", {16, 16, 388, 96}, 2, ""},
    {"chameleonButton1", -1, kButton, "", {188, 128, 104, 36}, 0, "Yes"},
    {"command2", -1, kButton, "", {300, 128, 104, 36}, 1, "No"},
};

}  // namespace

std::span<const ControlDesign> frmmsgDesign() { return kDesign; }

frmmsg::frmmsg(Events& events) : Form("frmmsg", "", 420, 180), chameleonButton1(events) {
  place(kDesign, "Text1", -1, Text1);
  place(kDesign, "chameleonButton1", -1, chameleonButton1);
  place(kDesign, "command2", -1, command2);
  const auto answer = [this](std::string_view text) {
    state = text;
    visible = false;
  };
  chameleonButton1.onClick = [answer] { answer("vbYes"); };
  command2.onClick = [answer] { answer("vbNo"); };
}

}  // namespace tavr
