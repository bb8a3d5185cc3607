#include "forms/form2.h"

#include <cstddef>
#include <string>
#include <utility>

namespace tavr {

namespace {

std::string numbered(const char* name, std::size_t number) { return name + std::to_string(number); }

// A button is neither copied nor moved: each is made in its place.
template <std::size_t kNumber>
ChameleonButton button(Events& events) {
  return ChameleonButton(events);
}

template <std::size_t... kNumbers>
std::array<ChameleonButton, sizeof...(kNumbers)> buttons(
    Events& events, std::index_sequence<kNumbers...> /*numbers*/) {
  return {{button<kNumbers>(events)...}};
}

}  // namespace

Form2::Form2(Machine& machine)
    : Form("Form2", "Erasing Settings", 800, 540),
      chameleonButton(buttons(machine.events, std::make_index_sequence<32>())),
      chameleonButton32(machine.events),
      File1(machine.files) {
  const std::span<const ControlDesign> design = form2Design();
  for (std::size_t i = 0; i < Check1.size(); ++i) {
    place(design, "Check1", static_cast<int>(i), Check1[i]);
  }
  for (std::size_t i = 0; i < Label2.size(); ++i) {
    place(design, "Label2", static_cast<int>(i), Label2[i]);
  }
  place(design, "Label1", 0, Label1);
  place(design, "Label222", 1, Label222);
  place(design, "cmd_plugin", -1, cmd_plugin);
  for (std::size_t i = 1; i < chameleonButton.size(); ++i) {
    place(design, numbered("chameleonButton", i), -1, chameleonButton[i]);
  }
  place(design, "chameleonButton32", -1, chameleonButton32);
  for (std::size_t i = 1; i < Toolbar1.size(); ++i) {
    place(design, "Toolbar1", static_cast<int>(i), Toolbar1[i]);
  }
  place(design, "Image44", -1, Image44);
  for (std::size_t i = 1; i < frame.size(); ++i) {
    place(design, numbered("Frame", i), -1, frame[i]);
  }
  place(design, "View1", -1, View1);
  View1.columns = {"Application Plugins"};
  place(design, "File1", -1, File1);
  place(design, "Text3", -1, Text3);
  place(design, "Text4", -1, Text4);
}

}  // namespace tavr
