#include "platform/folder/folder_dialogs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/folder/folder_events.h"

namespace tavr::folder {
namespace {

constexpr std::uint32_t kOkOnly = 0;
constexpr std::uint32_t kOkCancel = 1;
constexpr std::uint32_t kYesNoQuestion = 36;
constexpr std::uint32_t kYesNoWarning = 52;

class FolderDialogsTest : public ::testing::Test {
 protected:
  VirtualClock clock{{2026, 11, 20, 10, 0, 0}};
  FolderEvents events{clock};
};

TEST_F(FolderDialogsTest, TheFirstTextInFileOrderThatStandsInTheBoxAnswers) {
  FolderDialogs dialogs(Answers{false, {{"google chrome", true}, {"chrome", false}}}, nullptr,
                        events);
  EXPECT_EQ(dialogs.messageBox("Google CHROME is running", kYesNoWarning, ""), kAnswerYes);
  EXPECT_EQ(dialogs.messageBox("Chrome is running", kYesNoWarning, ""), kAnswerNo);
  FolderDialogs reversed(Answers{false, {{"CHROME", false}, {"google chrome", true}}}, nullptr,
                         events);
  EXPECT_EQ(reversed.messageBox("Google Chrome is running", kYesNoWarning, ""), kAnswerNo);
}

TEST_F(FolderDialogsTest, WithoutAMatchTheDefaultAnswers) {
  FolderDialogs no(Answers{false, {{"opera", true}}}, nullptr, events);
  FolderDialogs yes(Answers{true, {{"opera", false}}}, nullptr, events);
  EXPECT_EQ(no.messageBox("Edge", kYesNoQuestion, ""), kAnswerNo);
  EXPECT_EQ(yes.messageBox("Edge", kYesNoQuestion, ""), kAnswerYes);
}

TEST_F(FolderDialogsTest, TheTitleIsNotSearched) {
  FolderDialogs dialogs(Answers{false, {{"opera", true}}}, nullptr, events);
  EXPECT_EQ(dialogs.messageBox("Close it?", kYesNoQuestion, "Opera"), kAnswerNo);
}

TEST_F(FolderDialogsTest, LettersBeyondAsciiCompareWithoutCaseToo) {
  FolderDialogs dialogs(Answers{false, {{"БРАУЗЕР", true}}}, nullptr, events);
  EXPECT_EQ(dialogs.messageBox("Яндекс Браузер", kYesNoQuestion, ""), kAnswerYes);
}

TEST_F(FolderDialogsTest, APersonSeesTheApplicationsTitleWhereTheBoxHasNone) {
  std::vector<std::string> titles;
  FolderDialogs dialogs(
      std::nullopt,
      [&](auto, std::string_view title) { return titles.emplace_back(title), kAnswerYes; }, events);
  dialogs.messageBox("Restore it?", kYesNoWarning, "");
  dialogs.messageBox("Restore it?", kYesNoWarning, "Own");
  EXPECT_EQ(titles, (std::vector<std::string>{"Spoorwipe", "Own"}));
}

TEST_F(FolderDialogsTest, ABoxThatAsksNothingIsAnsweredOk) {
  int asked = 0;
  FolderDialogs dialogs(
      std::nullopt, [&](auto, auto) { return ++asked, kAnswerYes; }, events);
  EXPECT_EQ(dialogs.messageBox("Done", kOkOnly | 0x40, ""), 1);
  EXPECT_EQ(dialogs.messageBox("Done", kOkCancel | 0x30, ""), 1);
  EXPECT_EQ(asked, 0);
}

TEST_F(FolderDialogsTest, WithoutAnswersThePersonIsAsked) {
  std::string seen;
  FolderDialogs dialogs(
      std::nullopt,
      [&](std::string_view text, std::string_view title) {
        seen = std::string(text) + "|" + std::string(title);
        return kAnswerYes;
      },
      events);
  EXPECT_EQ(dialogs.messageBox("Close it?", kYesNoQuestion, "Warning"), kAnswerYes);
  EXPECT_EQ(seen, "Close it?|Warning");
}

TEST_F(FolderDialogsTest, AnswersOfTheFileGoBeforeThePerson) {
  FolderDialogs dialogs(
      Answers{}, [](auto, auto) -> int { throw std::runtime_error("asked"); }, events);
  EXPECT_EQ(dialogs.messageBox("Close it?", kYesNoQuestion, ""), kAnswerNo);
}

TEST_F(FolderDialogsTest, WithoutAnswersAndAPersonTheAnswerIsNo) {
  FolderDialogs dialogs(std::nullopt, nullptr, events);
  EXPECT_EQ(dialogs.messageBox("Close it?", kYesNoQuestion, ""), kAnswerNo);
}

TEST_F(FolderDialogsTest, ABoxPumpsWhatIsDue) {
  int ticks = 0;
  events.startTimer(100, [&] { ++ticks; });
  clock.passUntil(100);
  FolderDialogs dialogs(std::nullopt, nullptr, events);
  dialogs.messageBox("Close it?", kYesNoQuestion, "");
  EXPECT_EQ(ticks, 1);
}

}  // namespace
}  // namespace tavr::folder
