#include "basic/like.h"

#include <gtest/gtest.h>

#include "basic/resume_next.h"

namespace tavr {
namespace {

int errorOf(std::string_view text, std::string_view pattern) {
  try {
    Like(text, pattern);
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}

TEST(Like, WithoutSignsItIsEquality) {
  EXPECT_TRUE(Like("t", "t"));
  EXPECT_FALSE(Like("t-c", "t"));
  EXPECT_FALSE(Like("", "t"));
  EXPECT_TRUE(Like("", ""));
}

TEST(Like, CaseCounts) { EXPECT_FALSE(Like("Chrome", "chrome")); }

TEST(Like, AStarStandsForAnyRun) {
  EXPECT_TRUE(Like("", "*"));
  EXPECT_TRUE(Like("index.dat", "*.dat"));
  EXPECT_TRUE(Like("abcbc", "a*bc"));
  EXPECT_TRUE(Like("abc", "**c**"));
  EXPECT_FALSE(Like("abc", "a*d"));
}

TEST(Like, AQuestionMarkStandsForOneCharacter) {
  EXPECT_TRUE(Like("a1", "a?"));
  EXPECT_TRUE(Like("日", "?"));
  EXPECT_FALSE(Like("a", "a?"));
  EXPECT_FALSE(Like("", "?"));
}

TEST(Like, ANumberSignStandsForADigitSoANameWithItMayMissItself) {
  EXPECT_TRUE(Like("v1", "v#"));
  EXPECT_FALSE(Like("vx", "v#"));
  EXPECT_FALSE(Like("c# builder", "c# builder"));
}

TEST(Like, ASetStandsForOneOfItsCharacters) {
  EXPECT_TRUE(Like("b", "[abc]"));
  EXPECT_FALSE(Like("d", "[abc]"));
  EXPECT_TRUE(Like("m", "[a-z]"));
  EXPECT_TRUE(Like("é", "[à-ü]"));
  EXPECT_FALSE(Like("", "[a]"));
}

TEST(Like, ASetMayBeNegated) {
  EXPECT_TRUE(Like("d", "[!abc]"));
  EXPECT_FALSE(Like("b", "[!abc]"));
  EXPECT_TRUE(Like("!", "[!]"));
  EXPECT_FALSE(Like("", "[!a]"));
}

TEST(Like, AHyphenAtAnEndOfASetIsItself) {
  EXPECT_TRUE(Like("-", "[-a]"));
  EXPECT_TRUE(Like("-", "[a-]"));
  EXPECT_FALSE(Like("b", "[a-]"));
}

TEST(Like, ASetMakesASignItself) {
  EXPECT_TRUE(Like("a*b", "a[*]b"));
  EXPECT_FALSE(Like("axb", "a[*]b"));
  EXPECT_TRUE(Like("a[b", "a[[]b"));
  EXPECT_TRUE(Like("v#1", "v[#]1"));
}

TEST(Like, AnEmptySetTakesNoCharacter) {
  EXPECT_TRUE(Like("ab", "a[]b"));
  EXPECT_FALSE(Like("axb", "a[]b"));
}

TEST(Like, AClosingBracketAloneIsItself) { EXPECT_TRUE(Like("a]", "a]")); }

TEST(Like, AnUnclosedBracketRaises) {
  EXPECT_EQ(errorOf("my plug-in [old", "my plug-in [old"), kErrBadPattern);
}

TEST(Like, AnUnclosedBracketRaisesAlsoWhereTheTextDiffersBefore) {
  EXPECT_EQ(errorOf("x", "y["), kErrBadPattern);
  EXPECT_EQ(errorOf("", "*["), kErrBadPattern);
}

TEST(Like, ARangeThatRunsDownwardsRaises) { EXPECT_EQ(errorOf("b", "[c-a]"), kErrBadPattern); }

TEST(Like, ABadPatternInAConditionCountsAsMet) {
  ResumeNext on;
  EXPECT_TRUE(on.met([] { return Like("x", "["); }));
  EXPECT_EQ(on.number(), kErrBadPattern);
}

TEST(Like, ManyStarsDoNotTakeForever) {
  const std::string text(4000, 'a');
  EXPECT_FALSE(Like(text, "*a*a*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace tavr
