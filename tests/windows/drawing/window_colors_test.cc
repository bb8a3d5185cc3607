// The colours and signs that the windows show of their forms' values, as they come
// to the screen.
#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <memory>
#include <string>

#include "tests/windows/accessible/shown_program.h"
#include "tests/windows/drawing/picture.h"
#include "ui/win32/artwork.h"
#include "ui/win32/form_window.h"

namespace tavr::win32::testing {
namespace {

constexpr int kSign = 16;

// A window with its edge, also of a mirrored one as it is seen.
std::unique_ptr<Picture32> seen(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_FRAME);
  RECT place;
  GetWindowRect(window, &place);
  auto picture = std::make_unique<Picture32>(place.right - place.left, place.bottom - place.top);
  const HDC dc = GetWindowDC(window);
  SetLayout(dc, 0);
  BitBlt(picture->dc(), 0, 0, picture->width(), picture->height(), dc, 0, 0, SRCCOPY);
  ReleaseDC(window, dc);
  return picture;
}

bool standsAt(const Picture32& sign, const Picture32& picture, int left, int top) {
  for (int y = 0; y < sign.height(); ++y) {
    for (int x = 0; x < sign.width(); ++x) {
      if (picture.at(left + x, top + y) != sign.at(x, y)) return false;
    }
  }
  return true;
}

int countOf(const Picture32& sign, const Picture32& picture) {
  int count = 0;
  for (int top = 0; top + sign.height() <= picture.height(); ++top) {
    for (int left = 0; left + sign.width() <= picture.width(); ++left) {
      count += standsAt(sign, picture, left, top);
    }
  }
  return count;
}

std::unique_ptr<Picture32> fromBehind(const Picture32& sign) {
  auto turned = std::make_unique<Picture32>(sign.width(), sign.height());
  StretchBlt(turned->dc(), sign.width() - 1, 0, -sign.width(), sign.height(), sign.dc(), 0, 0,
             sign.width(), sign.height(), SRCCOPY);
  return turned;
}

class WindowColors : public ::testing::Test {
 protected:
  Form1& main() { return shown_.program().form; }
  const Palette& palette(std::string_view form) const {
    return FormWindow::of(shown_.formWindow(form))->palette();
  }

  ShownProgram shown_;
};

TEST_F(WindowColors, ANumberIsDrawnInTheRedThatItsCellAsksFor) {
  main().View100.clear();
  ListCell& cell = main().View100.add("Cookies", "a").cells[1];
  cell.text = "888888";
  cell.bold = true;
  shown_.pump();
  const HWND table = shown_.window("Form1", "View100");
  const auto before = seen(table);
  EXPECT_EQ(before->count(before->area(), RGB(192, 0, 0)), 0);
  cell.fore_color = 192;
  shown_.pump();
  const auto after = seen(table);
  EXPECT_GT(after->count(after->area(), RGB(192, 0, 0)), 10);
  EXPECT_EQ(after->count(after->area(), palette("Form1").danger), 0);
}

// Until the mouse is over the list beside all of them, and not only over it.
TEST_F(WindowColors, ALanguageThatIsHighlightedByItsFormIsShownSo) {
  main().chameleonButton12.press();
  shown_.pump();
  const auto ground = [this](std::string_view row) {
    return seen(shown_.window("Form1", row))->at(1, 1);
  };
  const COLORREF hover = palette("Form1").hover;
  ASSERT_NE(hover, palette("Form1").panel);
  auto& row = dynamic_cast<Label&>(shown_.control("Form1", "lbllanguage(2)"));
  EXPECT_EQ(ground("lbllanguage(2)"), palette("Form1").panel);
  row.highlighted = true;
  shown_.pump();
  EXPECT_EQ(ground("lbllanguage(2)"), hover);
  EXPECT_EQ(ground("lbllanguage(3)"), palette("Form1").panel);
  row.highlighted = false;
  shown_.pump();
  EXPECT_EQ(ground("lbllanguage(2)"), palette("Form1").panel);
}

// The first row stays lit, as the panel looks after the others only.
TEST_F(WindowColors, ALanguageLightsUpUnderTheMouseUntilItIsBesideTheRows) {
  main().chameleonButton12.press();
  shown_.pump();
  const auto lit = [this](std::string_view row) {
    return seen(shown_.window("Form1", row))->at(1, 1) == palette("Form1").hover;
  };
  const auto moveOver = [this](std::string_view name) {
    SendMessageW(shown_.window("Form1", name), WM_MOUSEMOVE, 0, MAKELPARAM(2, 2));
    shown_.pump();
  };
  moveOver("lbllanguage(0)");
  moveOver("lbllanguage(2)");
  EXPECT_TRUE(lit("lbllanguage(0)"));
  EXPECT_TRUE(lit("lbllanguage(2)"));
  EXPECT_FALSE(lit("lbllanguage(3)"));
  moveOver("pictrlang");
  EXPECT_TRUE(lit("lbllanguage(0)"));
  EXPECT_FALSE(lit("lbllanguage(2)"));
}

// A row shows the sign of its letter; a plug-in that has the browser's name its own.
TEST_F(WindowColors, ATaskShowsTheSignOfItsLetter) {
  constexpr std::string_view kBrowser = "Internet Explorer Browser";
  const HWND table = shown_.window("Form1", "View100");
  const auto show = [&](std::string_view text, std::string_view letter) {
    main().View100.clear();
    main().View100.add(text, letter);
    shown_.pump();
    return seen(table);
  };
  const auto browser = show(kBrowser, "a");
  const auto plug_in = show(kBrowser, "c");
  EXPECT_GE(browser->differing(*plug_in), 12);
  EXPECT_GE(plug_in->differing(*show(kBrowser, "o")), 12);
  EXPECT_GE(show("Cookies", "a")->differing(*show("Cookies", "c")), 12);
  EXPECT_GE(show("Cookies", "c")->differing(*show("Cookies", "d")), 12);
}

TEST_F(WindowColors, TheTitleIsWrittenInTheFontOfItsLanguage) {
  const HWND form = shown_.formWindow("Form1");
  const auto before = seen(form);
  shown_.control("Form1", "Label88(6)").font.size = "12";
  shown_.pump();
  EXPECT_GE(before->differing(*seen(form)), 20);
}

TEST_F(WindowColors, AScrollBarShowsThatItHasTheKeyboard) {
  open(shown_, {"Form3", "chameleonButton8"});
  const HWND bar = shown_.window("Form3", "VScroll1");
  SetFocus(shown_.window("Form3", "Text1"));
  EXPECT_EQ(seen(bar)->at(0, 8), palette("Form3").border);
  SetFocus(bar);
  EXPECT_EQ(seen(bar)->at(0, 8), palette("Form3").accent);
}

// A mirrored list turns whatever is drawn on it, but a tick is a tick.
class WindowSigns : public ::testing::TestWithParam<const char*> {};

TEST_P(WindowSigns, AreNeverSeenFromBehind) {
  ShownProgram shown(GetParam());
  ListView& table = shown.program().form.View100;
  table.clear();
  table.add("Cookies", "a").cells[0].report_icon = "o";
  shown.pump();
  const HWND window = shown.window("Form1", "View100");
  EXPECT_EQ((GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0,
            std::string_view(GetParam()) == "ar");
  const Palette& palette = FormWindow::of(shown.formWindow("Form1"))->palette();
  const auto sign = drawn(
      {kSign, kSign},
      [](HDC dc, const RECT& area) { drawIcon(dc, area, "done", RGB(0x2E, 0x7D, 0x32), 1); },
      palette.panel);
  const auto turned = fromBehind(*sign);
  ASSERT_GT(sign->differing(*turned), 20);
  const auto picture = seen(window);
  EXPECT_EQ(countOf(*sign, *picture), 1);
  EXPECT_EQ(countOf(*turned, *picture), 0);
}

INSTANTIATE_TEST_SUITE_P(Directions, WindowSigns, ::testing::Values("en", "ar"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace tavr::win32::testing
