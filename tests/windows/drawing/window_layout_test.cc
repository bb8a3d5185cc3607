// Every form as its windows stand, in every language and resolution: measured
// with what draws them and the fonts that there are.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <tuple>

#include "basic/text.h"
#include "config/language.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"
#include "tests/windows/accessible/shown_program.h"
#include "tests/windows/drawing/measured_form.h"

namespace tavr::win32::testing {
namespace {

constexpr const char* kLanguages[] = {"en", "de", "fr", "es", "it", "pt",
                                      "pl", "ru", "tr", "zh", "ja", "ar"};
constexpr int kResolutions[] = {96, 144, 192, 288};

using FormInLanguage = std::tuple<int, FormPanel>;

// In force as after a choice from the list of languages, which knows the program
// by its file's name alone.
class WindowLayout : public ::testing::TestWithParam<FormInLanguage> {
 protected:
  void SetUp() override {
    const auto& [language, panel] = GetParam();
    Program& program = shown_.program();
    const std::string file = programFile(program.machine, "lang\\data.lang");
    const auto rows = Split(readlangfile(program.machine, file, "lang", "tavrwipe"), '|');
    ASSERT_EQ(rows.size(), std::size(kLanguages)) << "the languages are not beside the program";
    const auto fields = Split(rows[static_cast<std::size_t>(language)], ',');
    ASSERT_EQ(fields.at(2), kLanguages[language]);
    program.registry.saveSetting(settings::kLanguageKey, "langcode", fields.at(1));
    program.registry.saveSetting(settings::kLanguageKey, "lang", fields.at(2));
    program.language.apply(program.form);
    shown_.pump();
    open(shown_, panel);
    // What only a run shows.
    program.form.Label1[0].visible = true;
    program.form.bar1.setVisible(true);
    shown_.pump();
    ASSERT_FALSE(shown_.shown(panel.form).empty());
  }

  ShownProgram shown_;
};

TEST_P(WindowLayout, ClipsNoCaptionAndOverlapsNowhere) {
  MeasuredForm measured(shown_, std::get<1>(GetParam()).form);
  for (const int dpi : kResolutions) {
    SCOPED_TRACE(std::to_string(dpi) + " dpi");
    measured.at(dpi);
    EXPECT_EQ(measured.clipped(), "");
    measured.holdAlt(true);
    EXPECT_EQ(measured.clipped(), "") << "with the letters of the access keys";
    measured.holdAlt(false);
    EXPECT_EQ(measured.overlapping(), "");
    EXPECT_EQ(measured.outside(), "");
    EXPECT_EQ(measured.title(), "");
  }
}

std::string nameOfForm(const ::testing::TestParamInfo<FormInLanguage>& form) {
  const auto& [language, panel] = form.param;
  return std::string(kLanguages[language]) + "_" +
         nameOfPanel(::testing::TestParamInfo<FormPanel>(panel, 0));
}

constexpr int kLanguageCount = static_cast<int>(std::size(kLanguages));
INSTANTIATE_TEST_SUITE_P(Forms, WindowLayout,
                         ::testing::Combine(::testing::Range(0, kLanguageCount),
                                            ::testing::ValuesIn(kFormPanels)),
                         nameOfForm);

TEST(WindowLayoutOfLanguages, TheOpenListShowsEveryNameWhole) {
  for (const char* const language : {"en", "ar"}) {
    SCOPED_TRACE(language);
    ShownProgram shown(language);
    shown.control("Form1", "chameleonButton12").press();
    shown.pump();
    const auto names = std::ranges::count_if(shown.shown("Form1"), [](const BoundControl* bound) {
      return bound->control().design.name == "lbllanguage";
    });
    EXPECT_EQ(names, kLanguageCount);
    MeasuredForm measured(shown, "Form1");
    for (const int dpi : kResolutions) {
      SCOPED_TRACE(std::to_string(dpi) + " dpi");
      measured.at(dpi);
      EXPECT_EQ(measured.clipped(), "");
      EXPECT_EQ(measured.overlapping(), "");
      EXPECT_EQ(measured.outside(), "");
    }
  }
}

}  // namespace
}  // namespace tavr::win32::testing
