#include "forms/form4.h"

namespace tavr {

namespace {

using enum ControlKind;

constexpr ControlDesign kDesign[] = {
    {"Label1",
     -1,
     kLabel,
     "",
     {16, 16, 448, 80},
     -1,
     "bnam$ is running. Please close it first: the traces that it holds open cannot be erased."},
    {"Check1", -1, kCheckBox, "", {16, 112, 340, 24}, 0, "Don't show this window again."},
    {"command2", -1, kButton, "", {364, 140, 100, 36}, 1, "OK"},
    {"Text1", -1, kTextBox, "", {16, 148, 120, 24}, -1, "", false},
};

}  // namespace

std::span<const ControlDesign> form4Design() { return kDesign; }

Form4::Form4() : Form("Form4", "Spoorwipe", 480, 192) {
  place(kDesign, "Label1", -1, Label1);
  place(kDesign, "Check1", -1, Check1);
  place(kDesign, "command2", -1, command2);
  place(kDesign, "Text1", -1, Text1);
}

}  // namespace tavr
