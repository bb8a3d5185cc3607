#include "forms/form3.h"

#include <string>

#include "forms/form3_design.h"

namespace tavr {

namespace {

constexpr std::uint32_t kShadowInterval = 300;  // ms

struct Interval {
  std::string_view text;
  int max;
  int start;
};
// The texts of the last three differ from their scroll bars: the first move of
// a bar starts from its own value.
constexpr std::array<Interval, 5> kIntervals = {
    {{"45", 1439, 45}, {"6", 23, 6}, {"6", 365, 6}, {"2", 52, 6}, {"1", 12, 6}}};

}  // namespace

Form3::Form3(Events& events)
    : Form("Form3", "Options", kForm3Width, kForm3Height),
      chameleonButton32(events),
      chameleonButton8(events),
      chameleonButton3(events),
      chameleonButton6(events),
      chameleonButton7(events),
      chameleonButton4(events),
      chameleonButton19(events),
      chameleonButton9(events),
      chameleonButton5(events),
      chameleonButton1(events),
      chameleonButton2(events),
      Timer1(events, kShadowInterval) {
  placeAll();
  for (std::size_t i = 0; i < kIntervals.size(); ++i) {
    intervals().at(i)->setText(kIntervals.at(i).text);
    scrollBars().at(i)->min = 1;
    scrollBars().at(i)->max = kIntervals.at(i).max;
    scrollBars().at(i)->start(kIntervals.at(i).start);
  }
}

void Form3::placeAll() {
  const auto put = [&](std::string_view control_name, Control& control, int index = -1) {
    place(kForm3Design, control_name, index, control);
  };
  const auto putArray = [&](std::string_view control_name, auto& array) {
    for (int i = 0; i < static_cast<int>(array.size()); ++i) {
      if (inForm3Design(control_name, i))
        put(control_name, array.at(static_cast<std::size_t>(i)), i);
    }
  };
  put("Image1", Image1);
  putArray("Label222", Label222);
  put("chameleonButton32", chameleonButton32);
  put("cmd_plugin", cmd_plugin);
  put("chameleonButton8", chameleonButton8);
  put("chameleonButton3", chameleonButton3);
  put("chameleonButton6", chameleonButton6);
  put("chameleonButton7", chameleonButton7);
  put("chameleonButton4", chameleonButton4);
  put("chameleonButton19", chameleonButton19);
  put("Frame1", Frame1);
  put("Frame2", Frame2);
  put("Frame3", Frame3);
  put("Frame4", Frame4);
  put("Frame6", Frame6);
  putArray("Toolbar1", Toolbar1);
  putArray("Check1", Check1);
  putArray("Label1", Label1);
  putArray("Label2", Label2);
  putArray("Label3", Label3);
  put("Combo1", Combo1);
  put("Combo2", Combo2);
  put("chameleonButton9", chameleonButton9);
  for (std::size_t i = 0; i < options().size(); ++i) {
    put("Option" + std::to_string(i + 1), *options().at(i));
  }
  for (std::size_t i = 0; i < intervals().size(); ++i) {
    put("Text" + std::to_string(i + 1), *intervals().at(i));
    put("VScroll" + std::to_string(i + 1), *scrollBars().at(i));
  }
  put("chameleonButton5", chameleonButton5);
  put("Text10", Text10);
  put("Text20", Text20);
  put("chameleonButton1", chameleonButton1);
  put("chameleonButton2", chameleonButton2);
  put("Timer1", Timer1);
}

}  // namespace tavr
