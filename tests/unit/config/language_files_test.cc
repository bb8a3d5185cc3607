// The language files that ship: every one complete and well formed, and its
// captions fit the controls they are for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "basic/text.h"
#include "basic/utf.h"
#include "config/language.h"
#include "config/language_keys.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/frmabout.h"
#include "tests/support/fake_form_host.h"
#include "tracks/primitives.h"

namespace tavr {
namespace {

using ::testing::ElementsAreArray;
using testing::FormStage;
using testing::TestMachine;

const std::string kLang = "C:\\Program Files\\Tavr Wipe\\lang\\";
const std::string kChoice =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavrwork brightbox\\tavrwipe";

std::string shipped(const std::string& name) {
  std::ifstream file(std::string(TAVR_SOURCE_DIR) + "/lang/" + name, std::ios::binary);
  std::ostringstream contents;
  contents << file.rdbuf();
  return contents.str();
}

struct Entry {
  std::string caption;
  std::string charset;
  std::string code;
};

// The entries of data.lang, by a reading of its own.
std::vector<Entry> entries() {
  std::vector<Entry> found;
  std::istringstream lines(shipped("data.lang"));
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("tavrwipe=")) continue;
    for (const std::string& entry : Split(line.substr(9), '|')) {
      const std::vector<std::string> fields = Split(entry, ',');
      EXPECT_EQ(fields.size(), 3U) << entry;
      if (fields.size() == 3) found.push_back({fields[0], fields[1], fields[2]});
    }
  }
  return found;
}

// Sections of a caption file with their lines "key", "caption", in order.
struct Section {
  std::string name;
  std::vector<std::pair<std::string, std::string>> lines;
};

std::vector<Section> sectionsOf(const std::string& contents) {
  std::vector<Section> sections;
  std::istringstream lines(contents);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(';')) continue;
    if (line.starts_with('[')) {
      sections.push_back({line.substr(1, line.size() - 2), {}});
      continue;
    }
    const std::size_t equals = line.find('=');
    EXPECT_NE(equals, std::string::npos) << line;
    EXPECT_FALSE(sections.empty()) << line;
    if (equals == std::string::npos || sections.empty()) continue;
    sections.back().lines.emplace_back(line.substr(0, equals), line.substr(equals + 1));
  }
  return sections;
}

TEST(LanguageFiles, TheListNamesTwelveLanguagesWithTheirCharacterSets) {
  std::vector<std::string> listed;
  for (const Entry& entry : entries()) listed.push_back(entry.code + " " + entry.charset);
  EXPECT_THAT(listed, ElementsAreArray({"en 0", "de 0", "fr 0", "es 0", "it 0", "pt 0", "pl 238",
                                        "ru 204", "tr 162", "zh 134", "ja 128", "ar 178"}));
}

TEST(LanguageFiles, EveryListedLanguageHasAFileAndEveryFileIsListed) {
  std::set<std::string> codes;
  for (const Entry& entry : entries()) codes.insert("tavrwipe-" + entry.code + ".lang");
  std::set<std::string> files;
  for (const auto& found :
       std::filesystem::directory_iterator(std::string(TAVR_SOURCE_DIR) + "/lang")) {
    const std::string name = found.path().filename().string();
    if (name.starts_with("tavrwipe-")) files.insert(name);
  }
  EXPECT_EQ(files, codes);
}

TEST(LanguageFiles, EveryFileHoldsEveryKeyOfEveryFormOnceInItsOrder) {
  for (const Entry& entry : entries()) {
    const std::vector<Section> sections = sectionsOf(shipped("tavrwipe-" + entry.code + ".lang"));
    ASSERT_EQ(sections.size(), kLanguageKeys.size()) << entry.code;
    for (std::size_t i = 0; i < sections.size(); ++i) {
      EXPECT_EQ(sections[i].name, kLanguageKeys[i].form) << entry.code;
      std::vector<std::string> keys;
      for (const auto& [key, caption] : sections[i].lines) keys.push_back(key);
      EXPECT_THAT(keys, ElementsAreArray(kLanguageKeys[i].keys)) << entry.code;
    }
  }
}

TEST(LanguageFiles, NoCaptionIsEmptyOrHoldsWhatTheReaderCutsOff) {
  for (const Entry& entry : entries()) {
    for (const Section& section : sectionsOf(shipped("tavrwipe-" + entry.code + ".lang"))) {
      for (const auto& [key, caption] : section.lines) {
        const std::string where = entry.code + " " + section.name + "." + key;
        EXPECT_EQ(caption.find('='), std::string::npos) << where;
        EXPECT_FALSE(Trim(caption).empty()) << where;
        const bool quoted = caption.starts_with('"');
        const std::string inner = quoted ? caption.substr(1, caption.size() - 2) : caption;
        EXPECT_EQ(inner.find('"'), std::string::npos) << where;
        EXPECT_EQ(quoted, Trim(inner) != inner) << where << ": quotes keep outer blanks, else none";
        EXPECT_EQ(fromUtf16(toUtf16(caption)), caption) << where;
      }
    }
  }
}

TEST(LanguageFiles, NoFileIsACopyOfTheEnglishOne) {
  const std::vector<Section> english = sectionsOf(shipped("tavrwipe-en.lang"));
  for (const Entry& entry : entries()) {
    if (entry.code == "en") continue;
    const std::vector<Section> sections = sectionsOf(shipped("tavrwipe-" + entry.code + ".lang"));
    int same = 0;
    for (std::size_t i = 0; i < sections.size(); ++i) {
      for (std::size_t k = 0; k < sections[i].lines.size(); ++k) {
        if (sections[i].lines[k].second == english[i].lines[k].second) ++same;
      }
    }
    EXPECT_LT(same, 18) << entry.code;
  }
}

// A machine with the shipped files, the language chosen.
void install(TestMachine& machine, const Entry& entry) {
  const std::string name = "tavrwipe-" + entry.code + ".lang";
  machine.file(kLang + name, shipped(name));
  machine.value(kChoice, "lang", entry.code).value(kChoice, "langcode", entry.charset);
}

// The forms that take a language.
struct Forms {
  explicit Forms(Machine& machine) : form2(machine), form3(machine.events), about(machine.events) {}
  Form2 form2;
  Form3 form3;
  frmabout about;
  std::vector<Form*> all(Form1& form1) { return {&form1, &form2, &form3, &about}; }
};

TEST(LanguageFiles, ApplyingAFileShowsWhatStandsInIt) {
  for (const Entry& entry : entries()) {
    TestMachine machine;
    install(machine, entry);
    FormStage stage(machine);
    Forms forms(stage.program.machine);
    const std::vector<Section> sections = sectionsOf(shipped("tavrwipe-" + entry.code + ".lang"));
    const std::vector<Form*> all = forms.all(stage.program.form);
    for (std::size_t i = 0; i < all.size(); ++i) {
      stage.language.apply(*all[i]);
      for (const auto& [key, caption] : sections[i].lines) {
        if (key.find("ColumnHeaders") != std::string::npos) continue;
        const Control* const control = all[i]->find(key);
        ASSERT_NE(control, nullptr) << all[i]->name() << "." << key;
        std::string wanted = caption;
        std::erase(wanted, '"');
        EXPECT_EQ(control->caption, wanted) << entry.code << " " << all[i]->name() << "." << key;
        EXPECT_EQ(std::to_string(control->font.charset), entry.charset);
      }
    }
    EXPECT_EQ(stage.program.form.View100.columns[2], sections[0].lines[3].second);
    EXPECT_EQ(forms.form2.View1.columns[0], sections[1].lines[2].second);
  }
}

TEST(LanguageFiles, EnglishIsTheDesign) {
  TestMachine machine;
  install(machine, {"English", "0", "en"});
  FormStage stage(machine);
  Forms forms(stage.program.machine);
  for (Form* const form : forms.all(stage.program.form)) {
    stage.language.apply(*form);
    for (const Control* const control : form->controls()) {
      EXPECT_EQ(control->caption, control->design.caption)
          << form->name() << "." << fullName(control->design.name, control->design.index);
    }
  }
  EXPECT_THAT(stage.program.form.View100.columns,
              ElementsAreArray({"Task", "Status", "# of Tracks"}));
  EXPECT_THAT(stage.program.form.View200.columns, ElementsAreArray({"Cleaning Results"}));
  EXPECT_THAT(forms.form2.View1.columns, ElementsAreArray({"Application Plugins"}));
}

// Pixels a text takes at most: 7 a character, 14 a wide one.
int pixels(std::string_view text) {
  int width = 0;
  for (const char16_t unit : toUtf16(text)) width += unit >= 0x2E80 ? 14 : 7;
  return width;
}

TEST(LanguageFiles, EveryCaptionFitsItsControl) {
  constexpr int kLineHeight = 18;
  for (const Entry& entry : entries()) {
    TestMachine machine;
    install(machine, entry);
    FormStage stage(machine);
    Forms forms(stage.program.machine);
    for (Form* const form : forms.all(stage.program.form)) {
      stage.language.apply(*form);
      for (const std::string_view key : languageKeys(form->name())) {
        const Control* const control = form->find(key);
        if (!control) continue;  // a column
        const Box& box = control->box;
        const bool wraps = control->design.kind == ControlKind::kLabel;
        const int lines = wraps ? std::max(1, box.height / kLineHeight) : 1;
        // Lines break between words, so they are not filled to the end.
        const int room = lines == 1 ? box.width : box.width * lines * 85 / 100;
        EXPECT_LE(pixels(control->caption), room)
            << entry.code << " " << form->name() << "." << key << " " << control->caption;
      }
    }
  }
}

TEST(MessageFile, HoldsEveryNumberInUseOnce) {
  const std::vector<Section> sections = sectionsOf(shipped("english.ini"));
  ASSERT_EQ(sections.size(), 1U);
  EXPECT_EQ(sections[0].name, "001");
  std::vector<std::string> keys;
  for (const auto& [key, text] : sections[0].lines) {
    keys.push_back(key);
    EXPECT_FALSE(Trim(text).empty()) << key;
  }
  EXPECT_THAT(
      keys, ElementsAreArray({"016", "018", "019", "029", "031", "033", "035", "046", "049", "050",
                              "120", "121", "122", "123", "125", "127", "128", "129", "175"}));
}

TEST(MessageFile, IsReadByTheNumberOfTheMessage) {
  TestMachine machine;
  machine.file(kLang + "english.ini", shipped("english.ini"));
  FormStage stage(machine);
  stage.program.form.txtlang.setText("english.ini");
  EXPECT_EQ(LangText(stage.program.tracks, "033"), "Start Menu: ");
  EXPECT_EQ(LangText(stage.program.tracks, "050"), " from the list");
  EXPECT_EQ(LangText(stage.program.tracks, "125"), "Close the program");
  EXPECT_EQ(LangText(stage.program.tracks, "017"), "");
}

}  // namespace
}  // namespace tavr
