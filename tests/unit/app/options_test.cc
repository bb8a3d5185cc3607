// The command line of the machine-folder program.
#include "app/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavr {
namespace {

using ::testing::HasSubstr;

Options parsed(std::vector<const char*> words) {
  words.insert(words.begin(), "tavrwipe");
  return parseOptions(static_cast<int>(words.size()), words.data());
}

TEST(Options, TakesTheMachineAndTheProgramsArguments) {
  const Options options = parsed({"--machine", "/m", "w2-c2"});
  EXPECT_EQ(options.error, "");
  EXPECT_EQ(options.machine, "/m");
  EXPECT_EQ(options.arguments, "w2-c2");
  EXPECT_FALSE(options.quiet || options.rows || options.help || options.version);
}

TEST(Options, JoinsSeveralArgumentsByBlanks) {
  EXPECT_EQ(parsed({"--machine", "/m", "w4", "-c4"}).arguments, "w4 -c4");
  EXPECT_EQ(parsed({"--machine", "/m"}).arguments, "");
  EXPECT_EQ(parsed({"--machine", "/m", ""}).arguments, "");
}

TEST(Options, TakesTheSwitchesInAnyOrder) {
  const Options options = parsed({"--rows", "--quiet", "--machine", "/m", "t"});
  EXPECT_TRUE(options.rows);
  EXPECT_TRUE(options.quiet);
  EXPECT_EQ(options.error, "");
}

TEST(Options, TheLastMachineCounts) {
  EXPECT_EQ(parsed({"--machine", "/a", "--machine", "/b", "t"}).machine, "/b");
}

TEST(Options, HelpAndVersionNeedNoMachine) {
  EXPECT_TRUE(parsed({"--help"}).help);
  EXPECT_EQ(parsed({"--help"}).error, "");
  EXPECT_TRUE(parsed({"--version"}).version);
  EXPECT_EQ(parsed({"--version"}).error, "");
}

TEST(Options, AWrongCallSaysWhatIsWrongInOneLine) {
  const std::pair<std::vector<const char*>, const char*> calls[] = {
      {{}, "--machine DIR is missing"},
      {{"t"}, "--machine DIR is missing"},
      {{"--machine"}, "--machine needs a folder"},
      {{"--machine", ""}, "--machine needs a folder"},
      {{"--machine", "/m", "--verbose", "t"}, "unknown option --verbose"},
      {{"--machine=/m", "t"}, "unknown option --machine=/m"},
      {{"--machine", "/m", "t", "--rows"}, "option --rows stands behind the arguments"},
  };
  for (const auto& [words, error] : calls) {
    const Options options = parsed(words);
    EXPECT_THAT(options.error, HasSubstr(error));
    EXPECT_EQ(options.error.find('\n'), std::string::npos);
  }
}

TEST(Options, AnArgumentThatBeginsWithOneHyphenIsTheProgramsOwn) {
  const Options options = parsed({"--machine", "/m", "-t"});
  EXPECT_EQ(options.error, "");
  EXPECT_EQ(options.arguments, "-t");
}

TEST(Options, TheHelpNamesEveryOptionAndEveryArgument) {
  const std::string help = helpText();
  for (const char* word : {"--machine DIR", "--quiet", "--rows", "--help", "--version", "t-c",
                           "w2-c2", "w3-c3", "w4-c4", "Exit status"}) {
    EXPECT_THAT(help, HasSubstr(word));
  }
}

}  // namespace
}  // namespace tavr
