#include "basic/text.h"

#include <gtest/gtest.h>

namespace tavr {
namespace {

using Parts = std::vector<std::string>;

TEST(Case, LatinGreekAndCyrillicLettersChange) {
  EXPECT_EQ(UCase("chrome Ünïcode αβγ жук"), "CHROME ÜNÏCODE ΑΒΓ ЖУК");
  EXPECT_EQ(LCase("CHROME ÜNÏCODE ΑΒΓ ЖУК"), "chrome ünïcode αβγ жук");
}

TEST(Case, WhatHasNoCaseStays) {
  EXPECT_EQ(UCase("12 [x] 日本語 😀"), "12 [X] 日本語 😀");
  EXPECT_EQ(LCase("12 [X] 日本語 😀"), "12 [x] 日本語 😀");
}

TEST(Case, ALetterIsReplacedByOneLetter) {
  // Upper-casing in full would make two letters of these.
  EXPECT_EQ(UCase("straße ﬁ"), "STRAßE ﬁ");
}

TEST(Case, OnlyLettersOfTheAlphabetAreFlippedInAscii) {
  std::string all;
  for (char c = 1; c < 0x7F; ++c) all += c;
  const std::string upper = UCase(all);
  for (std::size_t i = 0; i < all.size(); ++i) {
    const bool lower = all[i] >= 'a' && all[i] <= 'z';
    EXPECT_EQ(upper[i], lower ? all[i] - 32 : all[i]) << all[i];
  }
}

TEST(Case, AByteThatIsNoUtf8CountsAsItsLatinCharacter) {
  EXPECT_TRUE(sameText("b\xE4", "B\xC4"));
  EXPECT_EQ(LCase("B\xE4"), "b\xE4");
  EXPECT_EQ(UCase("b\xA0"), "B\xA0");
}

TEST(Trim, TakesOnlyBlanksAndOnlyFromTheEnds) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\t a \r\n"), "\t a \r\n");
  EXPECT_EQ(Trim("    "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Trim, EachSideHasItsOwn) {
  EXPECT_EQ(LTrim("  a  "), "a  ");
  EXPECT_EQ(RTrim("  a  "), "  a");
  EXPECT_EQ(LTrim("   "), "");
  EXPECT_EQ(RTrim("   "), "");
}

TEST(Trim, ANulGuardsTheBlanksBeforeIt) {
  EXPECT_EQ(Trim(std::string_view(" a \0 ", 5)), std::string_view("a \0", 3));
}

TEST(SameText, ComparesWithoutCase) {
  EXPECT_TRUE(sameText("Software\\Tavrwork", "SOFTWARE\\tavrwork"));
  EXPECT_TRUE(sameText("Ärger", "äRGER"));
  EXPECT_FALSE(sameText("a", "ab"));
  EXPECT_TRUE(sameText("", ""));
}

TEST(CompareUpper, ComparesUpperCasedSoThatAnUnderscoreFollowsLetters) {
  EXPECT_LT(compareUpper("a", "_"), 0);
  EXPECT_LT(compareUpper("Z", "_"), 0);
  EXPECT_GT(compareUpper("b", "A"), 0);
  EXPECT_EQ(compareUpper("abc", "ABC"), 0);
}

TEST(CompareUpper, AShorterNameComesFirst) {
  EXPECT_LT(compareUpper("History", "history-journal"), 0);
  EXPECT_GT(compareUpper("ab", "A"), 0);
  EXPECT_LT(compareUpper("", "a"), 0);
}

TEST(CompareUpper, CountsByUtf16Unit) {
  // U+1F600 is the pair D83D DE00 and so stands before U+FF21, though its
  // number and its bytes are above.
  EXPECT_LT(compareUpper("😀", "Ａ"), 0);
  EXPECT_LT(compareUpper("Z", "é"), 0);
  EXPECT_LT(compareUpper("😀", "😁"), 0);
}

TEST(InStr, GivesThePositionFromOne) {
  EXPECT_EQ(InStr("abcabc", "abc"), 1u);
  EXPECT_EQ(InStr("c:\\$recycle.bin\\x", "$recycle.bin"), 4u);
  EXPECT_EQ(InStr("abc", "x"), 0u);
  EXPECT_EQ(InStr("abc", "ABC"), 0u);
}

TEST(InStr, AnEmptyPartStandsAtTheHeadOfATextButNotInAnEmptyOne) {
  EXPECT_EQ(InStr("abc", ""), 1u);
  EXPECT_EQ(InStr("", ""), 0u);
  EXPECT_EQ(InStr("", "a"), 0u);
}

TEST(Split, AnEmptyTextHasNoElementAtAll) { EXPECT_TRUE(Split("", '-').empty()); }

TEST(Split, EmptyPartsCount) {
  EXPECT_EQ(Split("w4", '-'), Parts({"w4"}));
  EXPECT_EQ(Split("w4-", '-'), Parts({"w4", ""}));
  EXPECT_EQ(Split("-", '-'), Parts({"", ""}));
  EXPECT_EQ(Split("a||b", '|'), Parts({"a", "", "b"}));
}

TEST(Split, PartsAreNotTrimmed) { EXPECT_EQ(Split("w4 - c4", '-'), Parts({"w4 ", " c4"})); }

TEST(UntilNul, CutsAtTheFirstNul) {
  EXPECT_EQ(untilNul(std::string_view("a\0b\0", 4)), "a");
  EXPECT_EQ(untilNul("abc"), "abc");
  EXPECT_EQ(untilNul(std::string_view("\0", 1)), "");
}

TEST(Backslash, OneIsSeenAndOneIsTaken) {
  EXPECT_TRUE(endsInBackslash("C:\\a\\"));
  EXPECT_FALSE(endsInBackslash("C:\\a"));
  EXPECT_FALSE(endsInBackslash(""));
  EXPECT_EQ(withoutBackslash("C:\\a\\\\"), "C:\\a\\");
  EXPECT_EQ(withoutBackslash("C:\\a"), "C:\\a");
}

}  // namespace
}  // namespace tavr
