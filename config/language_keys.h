// The keys of the caption files, in the order in which a form applies them. A
// key is the control's name as it stands on the form; one with "ColumnHeaders"
// is a column of a list.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tavr {

inline constexpr std::array<std::string_view, 18> kForm1Keys = {
    "cmd_settings",
    "View100.ColumnHeaders.Item(1)",
    "View100.ColumnHeaders.Item(2)",
    "View100.ColumnHeaders.Item(3)",
    "View200.ColumnHeaders.Item(1)",
    "cmd_option",
    "cmd_plugin",
    "cmd_test",
    "cmd_start",
    "cmd_stop",
    "cmd_view",
    "cmd_clear",
    "Label88(6)",
    "Label1(1)",
    "Label1(0)",
    "Label3",
    "Label5",
    "Label6",  // the size of the last run: overwritten until the next one begins
};

inline constexpr std::array<std::string_view, 38> kForm2Keys = {
    "chameleonButton5",  "chameleonButton14", "View1.ColumnHeaders.Item(1)",
    "chameleonButton8",  "chameleonButton9",  "chameleonButton10",
    "chameleonButton11", "chameleonButton12", "chameleonButton13",
    "Label2(15)",        "Label2(14)",        "Label2(13)",
    "Label2(12)",        "Label2(11)",        "Label2(10)",
    "Label2(9)",         "Label2(8)",         "Label2(7)",
    "Check1(51)",        "Check1(50)",        "chameleonButton27",
    "chameleonButton28", "chameleonButton29", "Label2(6)",
    "Label2(5)",         "Label2(4)",         "Label2(3)",
    "Label2(2)",         "Label2(1)",         "Label2(0)",
    "chameleonButton7",  "chameleonButton6",  "Label1(0)",
    "chameleonButton4",  "cmd_plugin",        "chameleonButton30",
    "chameleonButton31", "Label222(1)",
};

inline constexpr std::array<std::string_view, 29> kForm3Keys = {
    "chameleonButton5", "Label2(19)", "Label3(7)",        "Label3(6)",   "Label3(5)",
    "Label3(4)",        "Label3(3)",  "Label3(2)",        "Label3(1)",   "Label3(0)",
    "Label1(0)",        "Label2(11)", "Label2(10)",       "Label2(7)",   "Label2(6)",
    "Label2(9)",        "Label2(8)",  "Label2(17)",       "Label2(3)",   "Label2(2)",
    "chameleonButton9", "Label2(16)", "Label2(13)",       "Label2(15)",  "Label2(14)",
    "Label2(18)",       "cmd_plugin", "chameleonButton8", "Label222(1)",
};

inline constexpr std::array<std::string_view, 5> kAboutKeys = {
    "Label2(3)", "Label2(2)", "Label2(1)", "Label2(0)", "Label222(1)",
};

struct FormKeys {
  std::string_view form;  ///< section of the caption file
  std::span<const std::string_view> keys;
};

inline constexpr std::array<FormKeys, 4> kLanguageKeys = {{
    {"Form1", kForm1Keys},
    {"Form2", kForm2Keys},
    {"Form3", kForm3Keys},
    {"frmabout", kAboutKeys},
}};

/// The keys of a form; none for a form whose captions stay English.
constexpr std::span<const std::string_view> languageKeys(std::string_view form) {
  for (const FormKeys& row : kLanguageKeys) {
    if (row.form == form) return row.keys;
  }
  return {};
}

}  // namespace tavr
