#include "forms/form1_design.h"

namespace tavr {

namespace {

using enum ControlKind;

constexpr Box hiddenPlace(int slot) {
  return {210 + 26 * (slot % 28), 90 + 26 * (slot / 28), 24, 24};
}

constexpr ControlDesign hidden(std::string_view name, int slot) {
  return {name, -1, kTextBox, "", hiddenPlace(slot), -1, "", false, true};
}

constexpr ControlDesign tool(int index, int left, std::string_view caption, bool enabled = true) {
  return {"Toolbar1", index,   kToolbarButton, "Toolbar1", {left, 4, 32, 32},
          -1,         caption, true,           enabled};
}

constexpr ControlDesign toolSeparator(int index, int left) {
  return {"Toolbar1", index, kToolbarButton, "Toolbar1", {left, 8, 9, 24}, -1, "", true, false};
}

constexpr ControlDesign entry(std::string_view name, int top, std::string_view caption) {
  return {name, -1, kMenuEntry, "bccc", {0, top, 220, 24}, -1, caption};
}

constexpr ControlDesign menuSeparator(std::string_view name, int top) {
  return {name, -1, kMenuEntry, "bccc", {0, top, 220, 8}, -1, "-", true, false};
}

constexpr ControlDesign command(std::string_view name, int top, int tab, std::string_view caption,
                                bool enabled = true) {
  return {name, -1, kButton, "", {12, top, 200, 38}, tab, caption, true, enabled};
}

// The big buttons lie under the command column: they carry the handlers.
constexpr ControlDesign core(std::string_view name, int top, std::string_view caption) {
  return {name, -1, kButton, "", {12, top, 200, 38}, -1, caption, false};
}

constexpr ControlDesign kDesign[] = {
    // Title strip, 40 high.
    {"Label88", 6, kLabel, "", {42, 8, 240, 24}, -1, "Spoorwipe"},
    {"chameleonButton12", -1, kButton, "", {708, 4, 112, 32}, 20, "Language"},
    {"chameleonButton13", -1, kButton, "", {826, 4, 40, 32}, 21, "?"},
    {"chameleonButton10", -1, kButton, "", {870, 4, 40, 32}, 22, "\u2014"},
    {"chameleonButton9", -1, kButton, "", {914, 4, 40, 32}, 23, "\u2715"},
    {"pictrlang", -1, kPicture, "", {620, 42, 200, 40}, -1, "", false},
    {"imglangselect", -1, kPicture, "pictrlang", {6, 10, 16, 16}, -1, ""},
    {"lbllanguage", 0, kLabel, "pictrlang", {28, 6, 166, 24}, -1, "English"},
    // Toolbar.
    {"Toolbar1", -1, kFrame, "", {0, 40, 960, 40}, -1, ""},
    tool(1, 12, "Erasing Settings"),
    tool(2, 46, "Options"),
    toolSeparator(3, 80),
    tool(4, 94, "Plug-ins"),
    toolSeparator(5, 128),
    tool(6, 142, "Test"),
    toolSeparator(7, 176),
    tool(8, 190, "Erase"),
    toolSeparator(9, 224),
    tool(10, 238, "Stop", false),
    tool(11, 272, "View log"),
    tool(12, 306, "Clear log"),
    toolSeparator(13, 340),
    tool(14, 354, "Tavr Clean"),
    // Command column.
    command("cmd_settings", 94, 0, "Erasing Settings"),
    command("cmd_option", 136, 1, "Options"),
    command("cmd_plugin", 178, 2, "Plug-ins"),
    command("cmd_test", 240, 3, "Test"),
    command("cmd_start", 282, 4, "Erase"),
    command("cmd_stop", 324, 5, "Stop", false),
    command("cmd_view", 386, 6, "View log"),
    command("cmd_clear", 428, 7, "Clear log"),
    core("chameleonButton7", 94, "Erasing Settings"),
    core("chameleonButton8", 136, "Options"),
    core("chameleonButton3", 178, "Plug-ins"),
    core("chameleonButton6", 240, "Test"),
    core("chameleonButton5", 282, "Erase"),
    core("chameleonButton1", 386, "View log"),
    core("chameleonButton2", 428, "Clear log"),
    {"Image44", -1, kPicture, "", {24, 493, 15, 20}, -1, ""},
    {"chameleonButton4", -1, kButton, "", {39, 484, 173, 38}, 8, "Help"},
    {"chameleonButton11", -1, kButton, "", {12, 526, 136, 38}, 9, "Exit"},
    {"Label222", -1, kLabel, "", {156, 534, 56, 22}, -1, ""},
    // The tables.
    {"View100", -1, kListView, "", {240, 94, 704, 273}, 10, ""},
    {"View200", -1, kListView, "", {240, 379, 704, 189}, 11, ""},
    // The foot.
    {"Label1", 1, kLabel, "", {24, 590, 150, 18}, -1, "Registry"},
    {"Label3", -1, kLabel, "", {182, 590, 150, 18}, -1, "Files"},
    {"Label5", -1, kLabel, "", {340, 590, 164, 18}, -1, "Disk space"},
    {"Label2", -1, kLabel, "", {24, 608, 150, 28}, -1, "0"},
    {"Label4", -1, kLabel, "", {182, 608, 150, 28}, -1, "0"},
    {"Label6", -1, kLabel, "", {340, 608, 164, 28}, -1, "0"},
    {"bar1", -1, kProgressBar, "", {512, 606, 250, 10}, -1, "", false},
    {"Label1", 0, kLabel, "", {770, 600, 130, 22}, -1, "Working ...", false},
    {"Gif89a1", -1, kPicture, "", {908, 592, 36, 36}, -1, "", false},
    // The tray icon and its menu.
    {"TrayArea1", -1, kTray, "", {0, 0, 32, 32}, -1, "", false},
    {"bccc", -1, kFrame, "", {700, 380, 220, 200}, -1, "", false},
    entry("a10", 0, "Visit our web site"),
    entry("a9", 24, "Help"),
    menuSeparator("a8", 48),
    entry("a7", 56, "Erase Now"),
    menuSeparator("a6", 80),
    entry("a5", 88, "Options"),
    entry("a4", 112, "Erase Settings"),
    menuSeparator("a3", 136),
    entry("a2", 144, "Download Plugins"),
    menuSeparator("a1", 168),
    entry("a", 176, "Exit"),
    // Variables, triggers and work lists.
    {"Command5", -1, kButton, "", hiddenPlace(0), -1, "", false},
    {"Command6", -1, kButton, "", hiddenPlace(1), -1, "", false},
    {"Timer1", -1, kTimer, "", hiddenPlace(2), -1, "", false, false},
    {"Timer2", -1, kTimer, "", hiddenPlace(3), -1, "", false, false},
    hidden("Text2", 4),
    hidden("Text3", 5),
    hidden("Text4", 6),
    hidden("Text5", 7),
    hidden("Text7", 8),
    hidden("Text8", 9),
    hidden("Text9", 10),
    hidden("Text10", 11),
    hidden("Text11", 12),
    hidden("Text12", 13),
    hidden("Text13", 14),
    hidden("Text14", 15),
    hidden("Text15", 16),
    hidden("Text16", 17),
    hidden("txtregcount", 18),
    hidden("txtfilecount", 19),
    hidden("txtfilesize", 20),
    hidden("txtcountfil", 21),
    hidden("txtlang", 22),
    {"File1", -1, kFileList, "", hiddenPlace(23), -1, "", false},
    {"Dir1", -1, kDirList, "", hiddenPlace(24), -1, "", false},
    {"View1", -1, kListView, "", hiddenPlace(25), -1, "", false},
};

}  // namespace

std::span<const ControlDesign> form1Design() { return kDesign; }

}  // namespace tavr
