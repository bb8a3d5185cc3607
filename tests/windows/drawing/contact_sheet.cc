// contact_sheet FILE.bmp [SCALE]
// Everything that the program draws, on one picture, for a person to look at.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/win32/wide.h"
#include "tests/windows/drawing/picture.h"
#include "tests/windows/drawing/sample_picture.h"
#include "tests/windows/drawing/stubs.h"
#include "ui/win32/animation.h"
#include "ui/win32/artwork.h"
#include "ui/win32/canvas.h"
#include "ui/win32/icon_outlines.h"

namespace tavr::win32 {

namespace {

constexpr int kWidth = 1180;
constexpr int kHeight = 1110;

class Sheet {
 public:
  Sheet(double scale, const Palette& palette, bool right_to_left)
      : palette_(palette),
        scale_(scale),
        right_to_left_(right_to_left),
        picture_(px(kWidth), px(kHeight), palette.window) {}

  void drawStyles(int top);
  void drawSchemes(int top);
  void drawRoles(int left, int top);
  void drawBoxes(int left, int top);
  void drawBars(int left, int top);
  void drawLabels(int left, int top);
  void drawIcons(int top);
  void drawPictures(int left, int top);
  void drawMotion(int left, int top, const char* file);
  void saveAs(const std::wstring& file) const { picture_.saveAs(file); }

 private:
  int px(int length) const { return static_cast<int>(length * scale_ + 0.5); }
  RECT box(int left, int top, int width, int height) const {
    return {px(left), px(top), px(left + width), px(top + height)};
  }
  void note(int left, int top, const std::string& text) {
    Control label;
    label.caption = text;
    DrawnState state;
    state.scale = scale_;
    state.right_to_left = right_to_left_;
    Palette faint = palette_;
    faint.text = palette_.faint_text;
    drawLabel(picture_.dc(), box(left, top, 150, 20), label, false, false, state, faint);
  }
  DrawnState stateOf(int column) const {
    DrawnState state;
    state.scale = scale_;
    state.hovered = column == 1;
    state.pressed = column == 2;
    state.focused = column == 3;
    state.enabled = column != 4;
    state.checked = column == 5;
    state.right_to_left = right_to_left_;
    return state;
  }

  Palette palette_;
  double scale_;
  bool right_to_left_;
  StillEvents events_;
  Picture32 picture_;
};

void Sheet::drawStyles(int top) {
  int row = 0;
  for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 9, 11, 13, 14}) {
    note(12, top + 34 * row + 6, "type " + std::to_string(type));
    for (int column = 0; column < 7; ++column) {
      ChameleonButton button(events_);
      button.button_type = type;
      button.caption = column == 6 ? "Picture" : "Select All";
      if (column == 6) button.picture_normal = "test";
      drawChameleonButton(picture_.dc(), box(70 + 112 * column, top + 34 * row, 104, 28), button,
                          column == 2 ? ChameleonButton::kPressed : ChameleonButton::kNormal,
                          ButtonRole::kPlain, stateOf(column), palette_);
    }
    ++row;
  }
}

void Sheet::drawSchemes(int top) {
  int row = 0;
  for (const int type : {1, 3, 4, 5, 6, 11, 13, 14}) {
    for (int column = 0; column < 3; ++column) {
      ChameleonButton button(events_);
      button.button_type = type;
      button.caption = column == 0 ? "Scheme 2" : column == 1 ? "Own" : "Effects";
      button.color_scheme = column == 0 ? 2 : 1;
      if (column == 1) {
        button.color = 0x6FAF4C;
        button.text_color = 0x203010;
      }
      button.special_effect = column == 2 ? 1 + row % 3 : 0;
      button.soft_bevel = column == 2;
      drawChameleonButton(picture_.dc(), box(864 + 104 * column, top + 34 * row, 96, 28), button, 0,
                          ButtonRole::kPlain, stateOf(0), palette_);
    }
    ++row;
  }
}

void Sheet::drawRoles(int left, int top) {
  struct Shown {
    ButtonRole role;
    const char* caption;
    const char* icon;
  };
  constexpr Shown kShown[] = {
      {ButtonRole::kCommand, "Erasing Settings", "settings"},
      {ButtonRole::kOutlined, "Test", "test"},
      {ButtonRole::kPrimary, "Erase", "erase"},
      {ButtonRole::kNavigation, "Browsers", ""},
      {ButtonRole::kPrimary, "Exit", ""},
      {ButtonRole::kTool, "", "view-log"},
      {ButtonRole::kStrip, "", "close"},
  };
  int row = 0;
  for (const Shown& shown : kShown) {
    for (int column = 0; column < 6; ++column) {
      Button button;
      button.caption = shown.caption;
      DrawnState state = stateOf(column);
      state.icon = shown.icon;
      const bool small = shown.role == ButtonRole::kTool || shown.role == ButtonRole::kStrip;
      const RECT place = box(left + 150 * column, top + 42 * row, small ? 40 : 142, 36);
      if (shown.role == ButtonRole::kStrip) {
        Canvas(picture_.dc(), place, scale_).fill(place, palette_.strip);
      }
      drawButton(picture_.dc(), place, button, shown.role, state, palette_);
    }
    ++row;
  }
}

void Sheet::drawBoxes(int left, int top) {
  for (int column = 0; column < 6; ++column) {
    Control control;
    control.caption = "Cookies";
    const int x = left + 110 * column;
    drawCheckBox(picture_.dc(), box(x, top, 100, 24), control, column % 2, stateOf(column),
                 palette_);
    drawCheckBox(picture_.dc(), box(x, top + 30, 100, 24), control, 2 - column % 2, stateOf(column),
                 palette_);
    drawOption(picture_.dc(), box(x, top + 60, 100, 24), control, column % 2 == 0, stateOf(column),
               palette_);
  }
}

void Sheet::drawBars(int left, int top) {
  NotingDialogs dialogs;
  constexpr int kLooks[][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}};
  int row = 0;
  for (const auto& look : kLooks) {
    for (int column = 0; column < 3; ++column) {
      ProgressBar bar(dialogs);
      bar.setStyle(look[0]);
      bar.setProgressLook(look[1]);
      bar.setValue(column == 0 ? 45 : column == 1 ? 2 : 100);
      drawProgressBar(picture_.dc(), box(left + 140 * column, top + 22 * row, 130, 12), bar,
                      stateOf(0), palette_);
    }
    ++row;
  }
}

void Sheet::drawLabels(int left, int top) {
  Control label;
  label.caption = "Web Browser Trace";
  drawLabel(picture_.dc(), box(left, top, 250, 26), label, true, false, stateOf(0), palette_);
  label.caption = "84.512 MB";
  drawLabel(picture_.dc(), box(left, top + 28, 250, 28), label, false, true, stateOf(0), palette_);
  label.caption =
      "Let Tavr Wipe operate in an invisible mode. This won't show an icon on the system tray but "
      "it will continue running in background.";
  drawLabel(picture_.dc(), box(left, top + 58, 250, 70), label, false, false, stateOf(0), palette_);
  label.caption = "Run Erasing";
  drawFrame(picture_.dc(), box(left, top + 130, 250, 40), label, stateOf(0), palette_);
  drawTitleStrip(picture_.dc(), box(0, 0, kWidth, 40), "Tavr Wipe", stateOf(0), palette_);
}

void Sheet::drawIcons(int top) {
  int place = 0;
  for (const IconOutline& icon : iconOutlines()) {
    const int left = 12 + 60 * (place % 19);
    const int row = top + 56 * (place / 19);
    drawIcon(picture_.dc(), box(left, row, 24, 24), icon.name, palette_.text, scale_);
    drawIcon(picture_.dc(), box(left + 26, row, 24, 24), icon.name, palette_.accent, scale_ * 0.75);
    drawGreyIcon(picture_.dc(), box(left, row + 27, 24, 24), icon.name, palette_.faint_text,
                 scale_);
    ++place;
  }
}

// A file's picture: masked, whole, grey, disabled, under the mouse, and at each
// side of the caption.
void Sheet::drawPictures(int left, int top) {
  const std::string normal = "sheet-normal.bmp";
  const std::string over = "sheet-over.bmp";
  saveSign(wide(normal), kSignRed);
  saveSign(wide(over), kSignBlue);
  for (int place = 0; place < 9; ++place) {
    ChameleonButton button(events_);
    button.button_type = 3;
    button.caption = "Picture";
    button.picture_normal = normal;
    button.picture_over = over;
    button.use_mask_color = place != 1;
    button.use_greyscale = place == 2;
    button.picture_position = place < 5 ? 0 : place - 5;
    DrawnState state = stateOf(place == 3 ? 4 : place == 4 ? 1 : 0);
    drawChameleonButton(picture_.dc(),
                        box(left + 104 * (place % 3), top + 46 * (place / 3), 96, 42), button, 0,
                        ButtonRole::kPlain, state, palette_);
  }
}

void Sheet::drawMotion(int left, int top, const char* file) {
  Animation animation;
  if (!animation.load(file)) return;
  for (int place = 0; place < 8; ++place) {
    animation.draw(picture_.dc(), box(left + 44 * place, top, 36, 36));
    for (int i = 0; i < 3; ++i) animation.advance();
  }
}

}  // namespace

}  // namespace tavr::win32

int main(int argc, char** argv) {
  using namespace tavr::win32;
  if (argc < 2) {
    std::fprintf(stderr, "usage: contact_sheet FILE.bmp [SCALE] [system] [right] [FILE.gif]\n");
    return 2;
  }
  bool system = false;
  bool right_to_left = false;
  double scale = 1;
  const char* motion = "search.gif";
  for (int i = 2; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "system") {
      system = true;
    } else if (word == "right") {
      right_to_left = true;
    } else if (word.ends_with(".gif")) {
      motion = argv[i];
    } else {
      scale = std::atof(argv[i]);
    }
  }
  Sheet sheet(scale, system ? Palette::ofSystem() : Palette::of(kStripColor), right_to_left);
  sheet.drawStyles(50);
  sheet.drawSchemes(50);
  sheet.drawPictures(864, 325);
  sheet.drawRoles(12, 470);
  sheet.drawBoxes(12, 775);
  sheet.drawLabels(900, 775);
  sheet.drawBars(12, 880);
  sheet.drawMotion(460, 890, motion);
  sheet.drawIcons(1000);
  sheet.saveAs(wide(argv[1]));
  return 0;
}
