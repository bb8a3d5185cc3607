#include "forms/form1.h"

#include <initializer_list>
#include <span>
#include <string>
#include <utility>

#include "forms/form1_design.h"

namespace tavr {

namespace {

constexpr std::uint32_t kSchedulePeriod = 10000;  // ms
constexpr std::uint32_t kTotalsPeriod = 100;

// The members of the form under their names.
template <class Place>
void placeVisible(Form1& f, Place&& place) {
  place("Label88", 6, f.Label88[6]);
  place("chameleonButton12", -1, f.chameleonButton12);
  place("chameleonButton13", -1, f.chameleonButton13);
  place("chameleonButton10", -1, f.chameleonButton10);
  place("chameleonButton9", -1, f.chameleonButton9);
  place("pictrlang", -1, f.pictrlang);
  place("imglangselect", -1, f.imglangselect);
  place("lbllanguage", 0, f.lbllanguage[0]);
  place("Toolbar1", -1, f.Toolbar1);
  for (int index = 1; index <= 14; ++index) {
    place("Toolbar1", index, f.toolbar[static_cast<std::size_t>(index)]);
  }
  for (const auto& [name, control] : std::initializer_list<std::pair<const char*, Control*>>{
           {"cmd_settings", &f.cmd_settings},
           {"cmd_option", &f.cmd_option},
           {"cmd_plugin", &f.cmd_plugin},
           {"cmd_test", &f.cmd_test},
           {"cmd_start", &f.cmd_start},
           {"cmd_stop", &f.cmd_stop},
           {"cmd_view", &f.cmd_view},
           {"cmd_clear", &f.cmd_clear},
           {"chameleonButton7", &f.chameleonButton7},
           {"chameleonButton8", &f.chameleonButton8},
           {"chameleonButton3", &f.chameleonButton3},
           {"chameleonButton6", &f.chameleonButton6},
           {"chameleonButton5", &f.chameleonButton5},
           {"chameleonButton1", &f.chameleonButton1},
           {"chameleonButton2", &f.chameleonButton2},
           {"Image44", &f.Image44},
           {"chameleonButton4", &f.chameleonButton4},
           {"chameleonButton11", &f.chameleonButton11},
           {"Label222", &f.Label222},
           {"View100", &f.View100},
           {"View200", &f.View200},
           {"Label3", &f.Label3},
           {"Label5", &f.Label5},
           {"Label2", &f.Label2},
           {"Label4", &f.Label4},
           {"Label6", &f.Label6},
           {"bar1", &f.bar1},
           {"Gif89a1", &f.Gif89a1},
           {"TrayArea1", &f.TrayArea1},
           {"bccc", &f.bccc},
       }) {
    place(name, -1, *control);
  }
  place("Label1", 0, f.Label1[0]);
  place("Label1", 1, f.Label1[1]);
  for (int index = 10; index >= 0; --index) {
    const std::string name = index == 0 ? "a" : "a" + std::to_string(index);
    place(name, -1, f.menu[static_cast<std::size_t>(index)]);
  }
}

template <class Place>
void placeHidden(Form1& f, Place&& place) {
  for (const auto& [name, control] : std::initializer_list<std::pair<const char*, Control*>>{
           {"Command5", &f.Command5},
           {"Command6", &f.Command6},
           {"Timer1", &f.Timer1},
           {"Timer2", &f.Timer2},
           {"Text2", &f.Text2},
           {"Text3", &f.Text3},
           {"Text4", &f.Text4},
           {"Text5", &f.Text5},
           {"Text7", &f.Text7},
           {"Text8", &f.Text8},
           {"Text9", &f.Text9},
           {"Text10", &f.Text10},
           {"Text11", &f.Text11},
           {"Text12", &f.Text12},
           {"Text13", &f.Text13},
           {"Text14", &f.Text14},
           {"Text15", &f.Text15},
           {"Text16", &f.Text16},
           {"txtregcount", &f.txtregcount},
           {"txtfilecount", &f.txtfilecount},
           {"txtfilesize", &f.txtfilesize},
           {"txtcountfil", &f.txtcountfil},
           {"txtlang", &f.txtlang},
           {"File1", &f.File1},
           {"Dir1", &f.Dir1},
           {"View1", &f.View1},
       }) {
    place(name, -1, *control);
  }
}

}  // namespace

Form1::Form1(Machine& machine)
    : Form("Form1", "Spoorwipe", 960, 640),
      chameleonButton9(machine.events),
      chameleonButton10(machine.events),
      chameleonButton12(machine.events),
      chameleonButton13(machine.events),
      bar1(machine.dialogs),
      chameleonButton1(machine.events),
      chameleonButton2(machine.events),
      chameleonButton3(machine.events),
      chameleonButton4(machine.events),
      chameleonButton5(machine.events),
      chameleonButton6(machine.events),
      chameleonButton7(machine.events),
      chameleonButton8(machine.events),
      chameleonButton11(machine.events),
      Timer1(machine.events, kSchedulePeriod),
      Timer2(machine.events, kTotalsPeriod),
      TrayArea1(machine.desktop),
      File1(machine.files),
      Dir1(machine.files) {
  visible = true;
  View100.columns = {"Task", "Status", "# of Tracks"};
  View200.columns = {"Cleaning Results"};
  TrayArea1.tool_tip = "Spoorwipe";
  TrayArea1.setIcon("tray.ico");
  lbllanguage[0].tag = "en";
  const auto put = [this](std::string_view control_name, int index, Control& control) {
    place(form1Design(), control_name, index, control);
  };
  placeVisible(*this, put);
  placeHidden(*this, put);
}

void Form1::takeLanguageRow(Label& row) {
  const ControlDesign design = row.design;
  place(std::span(&design, 1), design.name, design.index, row);
}

}  // namespace tavr
