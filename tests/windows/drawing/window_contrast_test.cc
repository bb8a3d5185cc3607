// High contrast that comes and goes while the windows are open.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string_view>
#include <vector>

#include "tests/windows/accessible/shown_program.h"
#include "tests/windows/drawing/picture.h"
#include "tests/windows/drawing/system_colors.h"

namespace tavr::win32::testing {
namespace {

constexpr COLORREF kGround = kContrastColors[0];
constexpr COLORREF kText = kContrastColors[1];
constexpr COLORREF kChosen = kContrastColors[2];
constexpr COLORREF kTextOfChosen = kContrastColors[3];
constexpr COLORREF kStrip = kContrastColors[4];
constexpr COLORREF kWhite = RGB(255, 255, 255);

// Nothing is asked to be drawn anew but what waits for it already.
std::unique_ptr<Picture32> seen(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  RECT place;
  GetWindowRect(window, &place);
  auto picture = std::make_unique<Picture32>(place.right - place.left, place.bottom - place.top);
  const HDC dc = GetWindowDC(window);
  BitBlt(picture->dc(), 0, 0, picture->width(), picture->height(), dc, 0, 0, SRCCOPY);
  ReleaseDC(window, dc);
  return picture;
}

int part(const Picture32& picture, COLORREF color) {
  return 100 * picture.count(picture.area(), color) / (picture.width() * picture.height());
}

class WindowContrast : public ::testing::Test {
 protected:
  void SetUp() override {
    ListView& table = shown_.program().form.View100;
    table.clear();
    table.add("Cookies", "a").cells[0].text = "Finished";
    shown_.pump();
  }
  std::unique_ptr<Picture32> look(std::string_view form, std::string_view control) {
    return seen(control.empty() ? shown_.formWindow(form) : shown_.window(form, control));
  }
  std::unique_ptr<Picture32> look(std::string_view control) { return look("Form1", control); }
  // As the person's switch does it: the setting, and the message of it.
  void tell(std::string_view form = "Form1") {
    SendMessageW(shown_.formWindow(form), WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0);
    shown_.pump();
  }
  void turnOn() {
    system_.setContrastColors(true);
    system_.setHighContrast(true);
    tell();
  }

  SystemColors system_;
  ShownProgram shown_;
};

TEST_F(WindowContrast, TheFormTakesTheColoursOfTheSystem) {
  ASSERT_EQ(look("")->count(look("")->area(), kGround), 0);
  turnOn();
  const auto form = look("");
  EXPECT_EQ(form->at(form->width() / 2, 5), kStrip);
  EXPECT_GT(part(*form, kGround), 40);
  EXPECT_GT(form->count(form->area(), kText), 100);
  EXPECT_EQ(form->count(form->area(), kStripColor), 0);
}

TEST_F(WindowContrast, ASelfDrawnButtonTakesThem) {
  turnOn();
  const auto plain = look("cmd_view");
  EXPECT_GT(part(*plain, kGround), 60);
  EXPECT_GT(plain->count(plain->area(), kText), 20);
  EXPECT_EQ(plain->count(plain->area(), kWhite), 0);
  const auto primary = look("cmd_start");
  EXPECT_GT(part(*primary, kChosen), 50);
  EXPECT_GT(primary->count(primary->area(), kTextOfChosen), 20);
}

TEST_F(WindowContrast, AListTakesThemWithItsHeaderAndItsEmptyGround) {
  turnOn();
  const auto table = look("View100");
  EXPECT_GT(part(*table, kGround), 80);
  EXPECT_GT(table->count(table->area(), kText), 20);
  EXPECT_EQ(table->count(table->area(), kWhite), 0);
  EXPECT_EQ(table->at(1, table->height() - 2), kGround) << "below the rows";
}

TEST_F(WindowContrast, ABoxOfTheSystemTakesThem) {
  open(shown_, {"Form3", "chameleonButton8"});
  ASSERT_GT(part(*look("Form3", "Text1"), kWhite), 50);
  system_.setContrastColors(true);
  system_.setHighContrast(true);
  tell("Form3");
  const auto box = look("Form3", "Text1");
  EXPECT_GT(part(*box, kGround), 50);
  EXPECT_EQ(box->count(box->area(), kWhite), 0);
}

TEST_F(WindowContrast, TheColoursFollowWhenTheSystemChangesThemLater) {
  system_.setHighContrast(true);
  tell();
  ASSERT_EQ(look("cmd_view")->count(look("cmd_view")->area(), kGround), 0);
  system_.setContrastColors(true);
  shown_.pump();
  EXPECT_GT(part(*look("cmd_view"), kGround), 60);
  EXPECT_GT(part(*look("View100"), kGround), 80);
}

TEST_F(WindowContrast, ColoursAloneChangeNothingOfTheForm) {
  const auto before = look("cmd_view");
  system_.setContrastColors(true);
  shown_.pump();
  EXPECT_EQ(look("cmd_view")->differing(*before), 0);
}

TEST_F(WindowContrast, WhenItGoesEverythingLooksAsBefore) {
  const std::string_view controls[] = {"", "cmd_view", "cmd_start", "View100", "View200"};
  std::vector<std::unique_ptr<Picture32>> before;
  for (const std::string_view control : controls) before.push_back(look(control));
  turnOn();
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_GT(look(controls[i])->differing(*before[i]), 0) << controls[i];
  }
  system_.setHighContrast(false);
  system_.setContrastColors(false);
  tell();
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_EQ(look(controls[i])->differing(*before[i]), 0) << controls[i];
  }
}

}  // namespace
}  // namespace tavr::win32::testing
