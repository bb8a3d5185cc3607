// Where every control of Form2 stands on the fresh form. Captions are kept as
// the form has always had them, odd spellings included: the language files
// name the controls, not the texts.
#include "forms/form2.h"

namespace tavr {

namespace {

using enum ControlKind;

// clang-format off
constexpr ControlDesign kDesign[] = {
    // The form itself.
    {"Label222", 1, kLabel, "", {16, 8, 480, 24}, -1, "Erasing Settings", true, true},
    {"Image44", -1, kPicture, "", {722, 11, 18, 18}, -1, "", true, true},
    {"chameleonButton32", -1, kButton, "", {754, 4, 40, 32}, 0, "", true, true},
    {"cmd_plugin", -1, kButton, "", {16, 56, 192, 36}, 1, "Browsers", true, true},
    {"chameleonButton30", -1, kButton, "", {16, 100, 192, 36}, 2, "Windows", true, true},
    {"chameleonButton31", -1, kButton, "", {16, 144, 192, 36}, 3, "Applications", true, true},
    {"chameleonButton4", -1, kButton, "", {16, 488, 192, 36}, 4, "Exit", true, true},
    {"Text3", -1, kTextBox, "", {16, 200, 96, 20}, -1, "", false, true},
    {"Text4", -1, kTextBox, "", {120, 200, 96, 20}, -1, "", false, true},
    {"File1", -1, kFileList, "", {16, 228, 200, 60}, -1, "", false, true},

    // Browsers: the panel of the fresh form.
    {"Frame9", -1, kFrame, "", {240, 56, 544, 468}, -1, "", true, true},
    {"Label2", 6, kLabel, "Frame9", {8, 8, 528, 28}, -1, "Web Browser Trace", true, true},
    {"Check1", 44, kCheckBox, "Frame9", {5, 52, 24, 24}, 5, "", true, true},
    {"Label2", 3, kLabel, "Frame9", {36, 52, 500, 24}, -1, "Sessions", true, true},
    {"Check1", 45, kCheckBox, "Frame9", {5, 88, 24, 24}, 6, "", true, true},
    {"Label2", 0, kLabel, "Frame9", {36, 88, 500, 24}, -1, "Local Storage", true, true},
    {"Check1", 46, kCheckBox, "Frame9", {5, 124, 24, 24}, 7, "", true, true},
    {"Label2", 1, kLabel, "Frame9", {36, 124, 500, 24}, -1, "Auto Compleate Form History", true, true},
    {"Check1", 49, kCheckBox, "Frame9", {5, 160, 24, 24}, 8, "", true, true},
    {"Label2", 2, kLabel, "Frame9", {36, 160, 500, 24}, -1, "Saved Passwords", true, true},
    {"Check1", 52, kCheckBox, "Frame9", {5, 196, 24, 24}, 9, "", true, true},
    {"Label2", 4, kLabel, "Frame9", {36, 196, 500, 24}, -1, "Cookies", true, true},
    {"Check1", 43, kCheckBox, "Frame9", {5, 232, 24, 24}, 10, "", false, true},
    {"Label2", 5, kLabel, "Frame9", {36, 232, 500, 24}, -1, "Show warning before cleaning, if the browser is running.", false, true},
    {"Check1", 50, kCheckBox, "Frame9", {5, 268, 240, 24}, 11, "Sellect All ", false, true},
    {"Check1", 51, kCheckBox, "Frame9", {260, 268, 240, 24}, 12, "Select None", false, true},
    {"chameleonButton27", -1, kButton, "Frame9", {8, 432, 168, 36}, 13, "Select All", true, true},
    {"chameleonButton28", -1, kButton, "Frame9", {188, 432, 168, 36}, 14, "Select None", true, true},
    {"chameleonButton29", -1, kButton, "Frame9", {368, 432, 168, 36}, 15, "Recommended", true, true},

    // Windows.
    {"Frame2", -1, kFrame, "", {240, 56, 544, 468}, -1, "", false, true},
    {"Label2", 15, kLabel, "Frame2", {8, 8, 528, 28}, -1, "Windows", true, true},
    {"Check1", 13, kCheckBox, "Frame2", {5, 52, 24, 24}, 16, "", true, true},
    {"Label2", 7, kLabel, "Frame2", {36, 52, 500, 24}, -1, "Recent Documents History", true, true},
    {"Check1", 12, kCheckBox, "Frame2", {5, 88, 24, 24}, 17, "", true, true},
    {"Label2", 8, kLabel, "Frame2", {36, 88, 500, 24}, -1, "Start Menu Search History", true, true},
    {"Check1", 11, kCheckBox, "Frame2", {5, 124, 24, 24}, 18, "", true, true},
    {"Label2", 9, kLabel, "Frame2", {36, 124, 500, 24}, -1, "Start Menu Run History", true, true},
    {"Check1", 10, kCheckBox, "Frame2", {5, 160, 24, 24}, 19, "", true, true},
    {"Label2", 10, kLabel, "Frame2", {36, 160, 500, 24}, -1, "Windows Temp", true, true},
    {"Check1", 9, kCheckBox, "Frame2", {5, 196, 24, 24}, 20, "", true, true},
    {"Label2", 12, kLabel, "Frame2", {36, 196, 500, 24}, -1, "Open /Save Dialog Box History", true, true},
    {"Check1", 8, kCheckBox, "Frame2", {5, 232, 24, 24}, 21, "", true, true},
    {"Label2", 11, kLabel, "Frame2", {36, 232, 500, 24}, -1, "Recycle Bin", true, true},
    {"Check1", 53, kCheckBox, "Frame2", {5, 268, 24, 24}, 22, "", true, true},
    {"Label2", 13, kLabel, "Frame2", {36, 268, 500, 24}, -1, "Notification Area Icon Cache", true, true},
    {"Check1", 54, kCheckBox, "Frame2", {5, 304, 24, 24}, 23, "", true, true},
    {"Label2", 14, kLabel, "Frame2", {36, 304, 500, 24}, -1, "Windows Searching History", true, true},
    {"Check1", 7, kCheckBox, "Frame2", {5, 340, 24, 24}, 24, "", false, true},
    {"Check1", 16, kCheckBox, "Frame2", {36, 340, 300, 24}, 25, "Select None", false, true},
    {"chameleonButton17", -1, kButton, "Frame2", {8, 432, 168, 36}, 26, "", true, true},
    {"chameleonButton18", -1, kButton, "Frame2", {188, 432, 168, 36}, 27, "", true, true},

    // Applications.
    {"Frame3", -1, kFrame, "", {240, 56, 544, 468}, -1, "", false, true},
    {"View1", -1, kListView, "Frame3", {8, 8, 304, 460}, 28, "", true, true},
    {"chameleonButton5", -1, kButton, "Frame3", {328, 8, 208, 36}, 29, "Select All", true, true},
    {"chameleonButton14", -1, kButton, "Frame3", {328, 52, 208, 36}, 30, "Select None", true, true},
    {"chameleonButton8", -1, kButton, "Frame3", {328, 96, 208, 36}, 31, "Refresh", true, true},
    {"chameleonButton9", -1, kButton, "Frame3", {328, 140, 208, 36}, 32, "Delete", true, true},
    {"chameleonButton10", -1, kButton, "Frame3", {328, 184, 208, 36}, 33, "Plug in Info", true, true},
    {"chameleonButton11", -1, kButton, "Frame3", {328, 228, 208, 36}, 34, "Import Plug In", true, true},
    {"chameleonButton12", -1, kButton, "Frame3", {328, 272, 208, 36}, 35, "Download Plug-in", true, true},
    {"chameleonButton13", -1, kButton, "Frame3", {328, 316, 208, 36}, 36, "Run PLUGIN MAKER", true, true},
    {"Check1", 14, kCheckBox, "Frame3", {328, 372, 24, 24}, 37, "", false, true},
    {"Check1", 15, kCheckBox, "Frame3", {360, 372, 24, 24}, 38, "", false, true},

    // Beyond the right edge: what held the tracks of single browsers.
    {"Frame1", -1, kFrame, "", {1000, 56, 712, 480}, -1, "", false, true},
    {"Check1", 0, kCheckBox, "Frame1", {24, 12, 400, 24}, 39, "Location Bar History", true, true},
    {"Check1", 1, kCheckBox, "Frame1", {24, 52, 400, 24}, 40, "Cookies", true, true},
    {"Check1", 2, kCheckBox, "Frame1", {24, 92, 400, 24}, 41, "Temporary Internet Files (cache)", true, true},
    {"Check1", 3, kCheckBox, "Frame1", {24, 132, 400, 24}, 42, "Internet History", false, true},
    {"Check1", 4, kCheckBox, "Frame1", {24, 172, 400, 24}, 43, "Index.dat", true, true},
    {"Check1", 5, kCheckBox, "Frame1", {24, 212, 400, 24}, 44, "Sellect All ", false, true},
    {"Check1", 6, kCheckBox, "Frame1", {24, 252, 400, 24}, 45, "Select None", false, true},
    {"chameleonButton7", -1, kButton, "Frame1", {456, 8, 240, 32}, 46, "View ", true, true},
    {"chameleonButton6", -1, kButton, "Frame1", {456, 48, 240, 32}, 47, "View ", true, true},
    {"Label1", 0, kLabel, "Frame1", {24, 300, 664, 24}, -1, "(You need to restart windows)", true, true},
    {"chameleonButton15", -1, kButton, "Frame1", {16, 430, 216, 32}, 48, "", true, true},
    {"chameleonButton16", -1, kButton, "Frame1", {248, 430, 216, 32}, 49, "", true, true},
    {"Frame4", -1, kFrame, "", {1740, 56, 712, 480}, -1, "", false, true},
    {"Check1", 17, kCheckBox, "Frame4", {24, 12, 664, 24}, 50, "Select None", false, true},
    {"Check1", 18, kCheckBox, "Frame4", {24, 52, 664, 24}, 51, "Sellect All ", false, true},
    {"Check1", 19, kCheckBox, "Frame4", {24, 92, 664, 24}, 52, "Stored form data", true, true},
    {"Check1", 20, kCheckBox, "Frame4", {24, 132, 664, 24}, 53, "Download history", true, true},
    {"Check1", 21, kCheckBox, "Frame4", {24, 172, 664, 24}, 54, "History or visited pages", true, true},
    {"Check1", 22, kCheckBox, "Frame4", {24, 212, 664, 24}, 55, "Cookies", true, true},
    {"Check1", 23, kCheckBox, "Frame4", {24, 252, 664, 24}, 56, "Data in browser cache", true, true},
    {"Check1", 37, kCheckBox, "Frame4", {24, 292, 664, 24}, 57, "Show warning before cleaning, if the browser is running.", true, true},
    {"chameleonButton21", -1, kButton, "Frame4", {16, 430, 216, 32}, 58, "", true, true},
    {"chameleonButton22", -1, kButton, "Frame4", {248, 430, 216, 32}, 59, "", true, true},
    {"Frame5", -1, kFrame, "", {2480, 56, 712, 480}, -1, "", false, true},
    {"Check1", 24, kCheckBox, "Frame5", {24, 12, 664, 24}, 60, "Files in the cache of the browser", true, true},
    {"Check1", 25, kCheckBox, "Frame5", {24, 52, 664, 24}, 61, "Cookies", true, true},
    {"Check1", 26, kCheckBox, "Frame5", {24, 92, 664, 56}, 62, "History or visited pages, download history, saved form information and Passwords", true, true},
    {"Check1", 29, kCheckBox, "Frame5", {24, 164, 664, 24}, 63, "Sellect All ", false, true},
    {"Check1", 30, kCheckBox, "Frame5", {24, 204, 664, 24}, 64, "Select None", false, true},
    {"Check1", 35, kCheckBox, "Frame5", {24, 244, 664, 24}, 65, "Show warning before cleaning, if the browser is running.", true, true},
    {"Check1", 38, kCheckBox, "Frame5", {24, 284, 664, 24}, 66, "Session", true, true},
    {"chameleonButton19", -1, kButton, "Frame5", {16, 430, 216, 32}, 67, "", true, true},
    {"chameleonButton20", -1, kButton, "Frame5", {248, 430, 216, 32}, 68, "", true, true},
    {"Frame7", -1, kFrame, "", {3220, 56, 712, 480}, -1, "", false, true},
    {"Check1", 27, kCheckBox, "Frame7", {24, 12, 664, 24}, 69, "Select None", false, true},
    {"Check1", 28, kCheckBox, "Frame7", {24, 52, 664, 24}, 70, "Sellect All ", false, true},
    {"Check1", 31, kCheckBox, "Frame7", {24, 92, 664, 24}, 71, "History or visited pages and passwords", true, true},
    {"Check1", 32, kCheckBox, "Frame7", {24, 132, 664, 24}, 72, "Cookies", true, true},
    {"Check1", 33, kCheckBox, "Frame7", {24, 172, 664, 24}, 73, "Data in browser cache", true, true},
    {"Check1", 34, kCheckBox, "Frame7", {24, 212, 664, 24}, 74, "Saved icons of visited sites", true, true},
    {"Check1", 36, kCheckBox, "Frame7", {24, 252, 664, 24}, 75, "Show warning before cleaning, if the browser is running.", true, true},
    {"chameleonButton23", -1, kButton, "Frame7", {16, 430, 216, 32}, 76, "", true, true},
    {"chameleonButton24", -1, kButton, "Frame7", {248, 430, 216, 32}, 77, "", true, true},
    {"Frame8", -1, kFrame, "", {3960, 56, 712, 480}, -1, "", false, true},
    {"Check1", 39, kCheckBox, "Frame8", {24, 12, 664, 24}, 78, "Cookies", true, true},
    {"Check1", 40, kCheckBox, "Frame8", {24, 52, 664, 24}, 79, "History or visited pages", true, true},
    {"Check1", 41, kCheckBox, "Frame8", {24, 92, 664, 24}, 80, "Sellect All ", false, true},
    {"Check1", 42, kCheckBox, "Frame8", {24, 132, 664, 24}, 81, "Select None", false, true},
    {"Check1", 47, kCheckBox, "Frame8", {24, 172, 664, 24}, 82, "Saved form data", true, true},
    {"Check1", 48, kCheckBox, "Frame8", {24, 212, 664, 24}, 83, "Data in browser cache", true, true},
    {"chameleonButton25", -1, kButton, "Frame8", {16, 430, 216, 32}, 84, "", true, true},
    {"chameleonButton26", -1, kButton, "Frame8", {248, 430, 216, 32}, 85, "", true, true},

    // Beyond the right edge too, and nothing moves it in: the earlier toolbar.
    {"Frame6", -1, kFrame, "", {1000, 552, 712, 60}, -1, "", true, true},
    {"Toolbar1", 1, kToolbarButton, "Frame6", {8, 8, 40, 40}, -1, "", true, true},
    {"Toolbar1", 2, kToolbarButton, "Frame6", {52, 8, 40, 40}, -1, "", true, true},
    {"Toolbar1", 3, kToolbarButton, "Frame6", {96, 8, 40, 40}, -1, "", true, true},
    {"Toolbar1", 4, kToolbarButton, "Frame6", {140, 8, 40, 40}, -1, "", true, true},
    {"Toolbar1", 5, kToolbarButton, "Frame6", {184, 8, 40, 40}, -1, "", true, true},
    {"Toolbar1", 6, kToolbarButton, "Frame6", {228, 8, 40, 40}, -1, "", true, true},
    {"Toolbar1", 7, kToolbarButton, "Frame6", {272, 8, 40, 40}, -1, "", true, true},
    {"chameleonButton1", -1, kButton, "Frame6", {340, 8, 104, 40}, 86, "", true, true},
    {"chameleonButton2", -1, kButton, "Frame6", {452, 8, 104, 40}, 87, "", true, true},
    {"chameleonButton3", -1, kButton, "Frame6", {564, 8, 104, 40}, 88, "", true, true},
};
// clang-format on

}  // namespace

std::span<const ControlDesign> form2Design() { return kDesign; }

}  // namespace tavr
