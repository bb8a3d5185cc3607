// Name patterns: what becomes of the signs in them, and the walk over a name
// beside the plain definition of each sign.
#include "basic/name_expression.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tavr {
namespace {

using Expression = NameExpression<char>;

// Sign by sign, trying everything.
bool defined(std::string_view expression, std::string_view name) {
  if (expression.empty()) return name.empty();
  const std::string_view rest = expression.substr(1);
  const bool at_dot = name.starts_with('.');
  switch (expression.front()) {
    case '*':
      return defined(rest, name) || (!name.empty() && defined(expression, name.substr(1)));
    case '<': {
      const bool at_last_dot = at_dot && name.find('.', 1) == name.npos;
      return defined(rest, name) ||
             (!name.empty() && !at_last_dot && defined(expression, name.substr(1)));
    }
    case '>':
      return defined(rest, name.empty() || at_dot ? name : name.substr(1));
    case '"':
      return name.empty() ? defined(rest, name) : at_dot && defined(rest, name.substr(1));
    default:
      return name.starts_with(expression.front()) && defined(rest, name.substr(1));
  }
}

bool walked(const Expression& expression, std::string_view name) {
  Expression::Walk walk(expression);
  const std::size_t last_dot = name.rfind('.');
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (!walk.take(name[i], i == last_dot)) return false;
  }
  return walk.matches();
}

// Every text of these signs up to a length, the empty one too.
std::vector<std::string> textsOf(std::string_view signs, std::size_t longest) {
  std::vector<std::string> texts{""};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (texts[i].size() == longest) break;
    for (const char sign : signs) texts.push_back(texts[i] + sign);
  }
  return texts;
}

TEST(NameExpression, AStarBeforeADotRunsToTheLastDot) {
  EXPECT_EQ(Expression("*.txt").units(), "<.txt");
  EXPECT_EQ(Expression("a*.b*.c").units(), "a<.b<.c");
  EXPECT_EQ(Expression("*a.txt").units(), "*a.txt");
}

TEST(NameExpression, ADotBeforeAWildcardMayBeMissing) {
  EXPECT_EQ(Expression("name.*").units(), "name\"*");
  EXPECT_EQ(Expression("a.?").units(), "a\">");
  EXPECT_EQ(Expression("a.b*").units(), "a.b*");
}

TEST(NameExpression, BothTogetherChangeFromTheLeft) {
  EXPECT_EQ(Expression("*.*").units(), "<\"*");
  EXPECT_EQ(Expression("*.*.*").units(), "<\"<\"*");
  EXPECT_EQ(Expression("???.?").units(), ">>>\">");
}

TEST(NameExpression, OnlyAStarAtTheEndAsksForNamesWithoutExtension) {
  EXPECT_EQ(Expression("a*", true).units(), "a<");
  EXPECT_EQ(Expression("a", true).units(), "a");
  EXPECT_EQ(Expression("a?", true).units(), "a>");
}

TEST(NameExpression, MatchesAsItsSignsAreDefined) {
  const std::vector<std::string> names = textsOf("ab.", 4);
  for (const std::string& pattern : textsOf("a.*?", 5)) {
    for (const bool ended_in_dot : {false, true}) {
      const Expression expression(pattern, ended_in_dot);
      for (const std::string& name : names) {
        ASSERT_EQ(walked(expression, name), defined(expression.units(), name))
            << pattern << "  " << name;
      }
    }
  }
}

// Signs of the file system's own, as a person may type them.
TEST(NameExpression, TakesTheSignsOfTheFileSystemAsTheyAre) {
  const std::vector<std::string> names = textsOf("ab.", 4);
  for (const std::string& pattern : textsOf("a.<>\"*", 4)) {
    const Expression expression(pattern);
    for (const std::string& name : names) {
      ASSERT_EQ(walked(expression, name), defined(expression.units(), name))
          << pattern << "  " << name;
    }
  }
}

TEST(NameExpression, OfTheLongestSizeStillMatches) {
  const std::string name(Expression::kMaxSize, 'a');
  EXPECT_TRUE(walked(Expression(name), name));
  EXPECT_TRUE(walked(Expression(std::string(Expression::kMaxSize, '*')), name));
  EXPECT_FALSE(walked(Expression(name + "*"), name));
}

TEST(NameExpression, UnitsMayBeTheSameWithoutBeingEqual) {
  const Expression expression("ab*");
  Expression::Walk walk(expression);
  const auto same = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
  EXPECT_TRUE(walk.take('A', false, same));
  EXPECT_FALSE(walk.matches());
  EXPECT_TRUE(walk.take('B', false, same));
  EXPECT_TRUE(walk.matches());
}

}  // namespace
}  // namespace tavr
