// The tables that a run walks: the task table's rows, the eight Windows steps
// and the ten browser groups with their procedures.
#pragma once

#include <cstdint>
#include <string_view>

namespace tavr {

/// A row of View100. It stands in the table when the selection value is 1, or
/// always.
struct TaskRow {
  std::string_view value;  ///< "" for always
  std::string_view label;
  std::string_view icon;
};

// A selected "2" or "4" adds a row that no step of a run belongs to: from there
// on the results stand one row higher than their labels.
inline constexpr TaskRow kTaskRows[] = {
    {"2", "Temporary Internet File (cache)", "a"},
    {"13", "Recent Documents History", "b"},
    {"12", "Start Menu Search History", "b"},
    {"11", "Start Menu Run History", "b"},
    {"10", "Windows Temporary", "b"},
    {"9", "Open / Save Dialog Box History", "b"},
    {"8", "Recycle Bin", "b"},
    {"4", "Index.dat", "a"},
    {"53", "Notification Area Icon Cache", "b"},
    {"54", "Windows Searching History", "b"},
    {"", "Internet Explorer Browser", "a"},
    {"", "Firefox Browser", "ffo"},
    {"", "Google chrome Browser", "chr"},
    {"", "Opera Browser", "opr"},
    {"", "Microsoft Edge Browser", "edg"},
    {"", "Yandex Browser", "ydx"},
    {"", "Vivaldi Browser", "viv"},
    {"", "Brave Browser", "brv"},
    {"", "Torch Browser", "tor"},
    {"", "Maxthon Browser", "max"},
};
inline constexpr std::string_view kPlugInIcon = "c";
inline constexpr std::string_view kReportIcon = "o";

/// What a step writes behind its procedure.
enum class StepCount : std::uint8_t { trackcount, one, trackcountAndTotals };

struct WindowsStep {
  std::string_view value;
  std::string_view clean;
  std::string_view test;
  StepCount count = StepCount::trackcount;
};

inline constexpr WindowsStep kWindowsSteps[] = {
    {"13", "c3", "t3", StepCount::trackcount},
    {"12", "c2", "t2", StepCount::trackcount},
    {"11", "c1", "t1", StepCount::one},
    {"10", "c10", "t10", StepCount::trackcountAndTotals},
    {"9", "c5", "t5", StepCount::trackcount},
    {"8", "c4", "t4", StepCount::trackcount},
    {"53", "c96", "t96", StepCount::trackcount},
    {"54", "c95", "t95", StepCount::trackcount},
};

/// The shared browser selections, in the order of a group's sub-steps.
inline constexpr std::string_view kBrowserValues[] = {"45", "46", "49", "44", "52"};

struct BrowserGroup {
  std::string_view label;
  std::string_view process;
  std::string_view wmi_process;  ///< what the second closing operation ends
  std::string_view prompt;
  std::string_view clean[5];  ///< "" for none
  std::string_view test[5];
};

inline constexpr BrowserGroup kBrowserGroups[] = {
    // The second closing operation ends Firefox here: a fixed pair.
    {"Internet Explorer",
     "iexplore.exe",
     "firefox.exe",
     "Internet Explorer is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c8", "c6", "", "c9", "c7"},
     {"t8", "t6", "", "t9", "t7"}},
    // c231 has no test twin.
    {"Firefox",
     "firefox.exe",
     "firefox.exe",
     "FireFox is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c23", "c21", "c22", "c231", "c223"},
     {"t23", "t21", "t22", "", "t223"}},
    {"Chrome",
     "chrome.exe",
     "chrome.exe",
     "Google chrome is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c24", "c25", "c26", "c27", "c28"},
     {"t24", "t25", "t26", "t27", "t28"}},
    {"Opera",
     "launcher.exe",
     "launcher.exe",
     "Opera browser is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c31", "c33", "c32", "c34", "c35"},
     {"t31", "t33", "t32", "t34", "t35"}},
    {"Edge",
     "msedge.exe",
     "msedge.exe",
     "Microsoft Edge browser is running. would you like to close it? otherwise tracks can't be "
     "cleaned.",
     {"c40", "c43", "c41", "c42", "c44"},
     {"t40", "t43", "t41", "t42", "t44"}},
    {"Yandex",
     "browser.exe",
     "browser.exe",
     "Yandex browser is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c50", "c51", "c52", "c53", "c54"},
     {"t50", "t51", "t52", "t53", "t54"}},
    {"Vivaldi",
     "vivaldi.exe",
     "vivaldi.exe",
     "Vivaldi browser is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c60", "c61", "c62", "c63", "c64"},
     {"t60", "t61", "t62", "t63", "t64"}},
    {"Brave",
     "brave.exe",
     "brave.exe",
     "Brave browser is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c70", "c71", "c72", "c73", "c74"},
     {"t70", "t71", "t72", "t73", "t74"}},
    {"Torch",
     "torch.exe",
     "torch.exe",
     "Torch browser is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c80", "c81", "c82", "c83", "c84"},
     {"t80", "t81", "t82", "t83", "t84"}},
    {"Maxthon",
     "Maxthon.exe",
     "Maxthon.exe",
     "Maxthon browser is running. would you like to close it? otherwise tracks can't be cleaned.",
     {"c90", "c91", "c92", "c93", "c94"},
     {"t90", "t91", "t92", "t93", "t94"}},
};

}  // namespace tavr
