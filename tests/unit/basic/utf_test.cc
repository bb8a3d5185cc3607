#include "basic/utf.h"

#include <gtest/gtest.h>

namespace tavr {
namespace {

TEST(Utf16Length, CountsUnits) {
  EXPECT_EQ(utf16Length(""), 0u);
  EXPECT_EQ(utf16Length("abc"), 3u);
  EXPECT_EQ(utf16Length("äß日"), 3u);
  EXPECT_EQ(utf16Length("😀"), 2u);
}

TEST(Utf16Length, AByteThatIsNoUtf8IsOneUnit) {
  EXPECT_EQ(utf16Length("\xFF\xC3"), 2u);
  EXPECT_EQ(utf16Length("\xED\xA0\x80"), 3u);  // half a pair has no UTF-8 form
  EXPECT_EQ(utf16Length("\xC0\x80"), 2u);      // nor has a longer form than needed
}

TEST(Reaches, TheLimitIsCountedInUnits) {
  EXPECT_TRUE(reaches("abc", 3));
  EXPECT_FALSE(reaches("abc", 4));
  EXPECT_FALSE(reaches("äöü", 4));  // six bytes, three units
}

TEST(LeftUtf16, CutsAtUnits) {
  EXPECT_EQ(leftUtf16("äöü", 2), "äö");
  EXPECT_EQ(leftUtf16("abc", 5), "abc");
  EXPECT_EQ(leftUtf16("abc", 0), "");
}

TEST(LeftUtf16, APairIsNeverSplit) {
  EXPECT_EQ(leftUtf16("a😀b", 2), "a");
  EXPECT_EQ(leftUtf16("a😀b", 3), "a😀");
}

TEST(Utf16, ConvertsThereAndBack) {
  const std::string text = "a ä 日 😀";
  EXPECT_EQ(toUtf16(text), u"a ä 日 😀");
  EXPECT_EQ(fromUtf16(toUtf16(text)), text);
}

TEST(Utf16, HalfAPairBecomesTheReplacementCharacter) {
  const char16_t half[] = {0xD83D, u'x', 0};
  EXPECT_EQ(fromUtf16(half), "\xEF\xBF\xBDx");
}

TEST(NextCharacter, MovesBehindEachCharacter) {
  const std::string_view text = "a😀\xFF";
  std::size_t pos = 0;
  EXPECT_EQ(nextCharacter(text, pos), U'a');
  EXPECT_EQ(nextCharacter(text, pos), U'😀');
  EXPECT_EQ(pos, 5u);
  EXPECT_EQ(nextCharacter(text, pos), char32_t{0xFF});
  EXPECT_EQ(pos, text.size());
}

TEST(NextCharacter, ASequenceThatIsCutShortIsOneByte) {
  const std::string_view text = "\xE6\x97";
  std::size_t pos = 0;
  EXPECT_EQ(nextCharacter(text, pos), char32_t{0xE6});
  EXPECT_EQ(pos, 1u);
}

}  // namespace
}  // namespace tavr
