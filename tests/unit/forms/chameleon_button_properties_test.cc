#include <gtest/gtest.h>

#include <string>

#include "forms/chameleon_button.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

class ChameleonButtonProperties : public ::testing::Test {
 protected:
  testing::TestMachine machine;
  ChameleonButton button{machine.machine().events};
};

TEST_F(ChameleonButtonProperties, AFreshButtonHasTheDefaultsInItsBag) {
  PropertyBag bag;
  button.writeProperties(bag);
  EXPECT_EQ(bag.size(), 23u);
  EXPECT_EQ(bag["MCOL"], std::to_string(0xC0C0C0));
  EXPECT_EQ(bag["TX"], "");
  EXPECT_EQ(bag["COLTYPE"], "1");
  for (const char* on : {"ENAB", "FOCUSR", "UMCOL"}) EXPECT_EQ(bag[on], "True") << on;
  for (const char* off : {"HAND", "SOFT", "NGREY", "CHECK", "VALUE"}) {
    EXPECT_EQ(bag[off], "False") << off;
  }
  for (const char* zero : {"MPTR", "PICPOS", "FX"}) EXPECT_EQ(bag[zero], "0") << zero;
  for (const char* none : {"MICON", "PICN", "PICH"}) EXPECT_EQ(bag[none], "") << none;
  for (const char* color : {"BCOL", "BCOLO", "FCOL", "FCOLO"}) {
    EXPECT_EQ(bag[color], std::to_string(ChameleonButton::kOfScheme)) << color;
  }
  EXPECT_EQ(ChameleonButton::kVersion, "2.0.6");
}

TEST_F(ChameleonButtonProperties, ReadsBackWhatItWroteAndDefaultsForTheRest) {
  button.caption = "Erase";
  button.button_type = 12;
  button.soft_bevel = true;
  button.hover_color = 255;
  PropertyBag bag;
  button.writeProperties(bag);
  bag.erase("FX");
  ChameleonButton other(machine.machine().events);
  other.special_effect = 3;
  other.readProperties(bag);
  EXPECT_EQ(other.caption, "Erase");
  EXPECT_EQ(other.button_type, 12);
  EXPECT_TRUE(other.soft_bevel);
  EXPECT_EQ(other.hover_color, 255);
  EXPECT_EQ(other.special_effect, 0);
}

TEST_F(ChameleonButtonProperties, ABagWithoutAColourLeavesItToTheSchemeAndZeroIsBlack) {
  button.color = button.text_color = 255;
  button.readProperties({{"BCOL", "0"}});
  EXPECT_EQ(button.color, 0);
  EXPECT_EQ(button.text_color, ChameleonButton::kOfScheme);
}

TEST_F(ChameleonButtonProperties, TheNoticeOfTheHoverPictureGoesByItsOwnKey) {
  std::string notices;
  button.onPropertyChange = [&](std::string_view key) { notices += std::string(key) + " "; };
  button.setProperty("PICH", "over.png");
  button.setProperty("PICN", "normal.png");
  button.setProperty("PICO", "nothing");
  EXPECT_EQ(button.picture_over, "over.png");
  EXPECT_EQ(notices, "PICO PICN ");
}

TEST_F(ChameleonButtonProperties, TheFontPropertiesAreThoseOfTheFont) {
  button.FontBold() = true;
  button.FontItalic() = true;
  button.FontUnderline() = true;
  button.FontSize() = "11";
  button.FontName() = "Tahoma";
  EXPECT_EQ(button.font, (ControlFont{"Tahoma", "11", 0, true, true, true}));
}

TEST_F(ChameleonButtonProperties, TheWholeFontIsStoredUnderItsKey) {
  button.font = {"Tahoma", "11", 204, true, false, true};
  PropertyBag bag;
  button.writeProperties(bag);
  ChameleonButton other(machine.machine().events);
  other.readProperties(bag);
  EXPECT_EQ(other.font, button.font);
  other.setProperty("FONT", "Arial");
  EXPECT_EQ(other.font, (ControlFont{"Arial", "9", 0, false, false, false}));
}

}  // namespace
}  // namespace tavr
