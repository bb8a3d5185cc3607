#include "basic/number.h"

#include <gtest/gtest.h>

#include <limits>

#include "basic/resume_next.h"

namespace tavr {
namespace {

int errorOf(std::string_view text) {
  try {
    toInteger(text);
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}

TEST(Val, ReadsTheLeadingNumber) {
  EXPECT_EQ(Val("12abc"), 12);
  EXPECT_EQ(Val("-7"), -7);
  EXPECT_EQ(Val("+7"), 7);
  EXPECT_EQ(Val("1.5.2"), 1.5);
  EXPECT_EQ(Val(".5"), 0.5);
}

TEST(Val, ATextWithoutANumberIsZero) {
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val("-"), 0);
  EXPECT_EQ(Val("."), 0);
  EXPECT_EQ(Val("e5"), 0);
}

TEST(Val, BlanksCountNowhere) {
  EXPECT_EQ(Val("  1 2\t3\n4"), 1234);
  EXPECT_EQ(Val("- 5"), -5);
}

TEST(Val, OnlyAPointIsADecimalSign) {
  EXPECT_EQ(Val("1.0"), 1);
  EXPECT_EQ(Val("1,9"), 1);
}

TEST(Val, AnExponentCounts) {
  EXPECT_EQ(Val("1e0"), 1);
  EXPECT_EQ(Val("1D2"), 100);
  EXPECT_EQ(Val("12E-1"), 1.2);
  EXPECT_EQ(Val("3e"), 3);
  EXPECT_EQ(Val("3e+x"), 3);
}

TEST(Val, HexadecimalAndOctalDigitsAreReadUnsigned) {
  EXPECT_EQ(Val("&H15"), 21);
  EXPECT_EQ(Val("&hFFFFFFFF"), 4294967295.0);
  EXPECT_EQ(Val("&hFFFF"), 65535);
  EXPECT_EQ(Val("&o17"), 15);
  EXPECT_EQ(Val("&h1g"), 1);
  EXPECT_EQ(Val("&h"), 0);
}

TEST(NumberText, AWholeNumberHasNoPointAndNoGrouping) {
  EXPECT_EQ(numberText(0), "0");
  EXPECT_EQ(numberText(-0.0), "0");
  EXPECT_EQ(numberText(1234567), "1234567");
  EXPECT_EQ(numberText(-2147483648.0), "-2147483648");
}

TEST(NumberText, KeepsFifteenSignificantDigits) {
  EXPECT_EQ(numberText(999999999999999.0), "999999999999999");
  EXPECT_EQ(numberText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(numberText(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(numberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(numberText(100000.0 / 3), "33333.3333333333");
}

TEST(NumberText, AnExponentComesWithTheSixteenthDigit) {
  EXPECT_EQ(numberText(1e15), "1E+15");
  EXPECT_EQ(numberText(1.5e20), "1.5E+20");
  EXPECT_EQ(numberText(-1e15), "-1E+15");
  EXPECT_EQ(numberText(1234567890123456.0), "1.23456789012346E+15");
}

TEST(NumberText, ANumberThatRoundsUpToTheSixteenthDigitHasAnExponentToo) {
  EXPECT_EQ(numberText(999999999999999.9), "1E+15");
}

TEST(NumberText, TheLocalesSignStandsForThePoint) {
  EXPECT_EQ(numberText(1.5, ','), "1,5");
  EXPECT_EQ(numberText(1.5e20, ','), "1,5E+20");
}

TEST(NumberText, ANumberBeyondEveryDoubleHasATextOfItsOwn) {
  EXPECT_EQ(numberText(std::numeric_limits<double>::infinity()), "1.#INF");
  EXPECT_EQ(numberText(-std::numeric_limits<double>::infinity()), "-1.#INF");
  EXPECT_EQ(numberText(Val("1e400")), "1.#INF");
}

TEST(Str, APositiveNumberHasALeadingBlankAndAPoint) {
  EXPECT_EQ(Str(5), " 5");
  EXPECT_EQ(Str(-5), "-5");
  EXPECT_EQ(Str(1.5), " 1.5");
}

TEST(FormatThousandths, RoundsHalfAwayFromZero) {
  EXPECT_EQ(formatThousandths(0.9765625, '.'), "0.977");
  EXPECT_EQ(formatThousandths(0.0625, '.'), "0.063");
  EXPECT_EQ(formatThousandths(-0.0625, '.'), "-0.063");
  EXPECT_EQ(formatThousandths(999.9996, '.'), "1000.000");
}

TEST(FormatThousandths, AlwaysShowsThreeDecimals) {
  EXPECT_EQ(formatThousandths(0, '.'), "0.000");
  EXPECT_EQ(formatThousandths(1.5, '.'), "1.500");
  EXPECT_EQ(formatThousandths(1048576, ','), "1048576,000");
  EXPECT_EQ(formatThousandths(-0.0001, '.'), "0.000");
}

TEST(FormatThousandths, AHugeNumberIsWrittenInFull) {
  EXPECT_EQ(formatThousandths(1e100, '.').substr(0, 3), "100");
  EXPECT_EQ(formatThousandths(1e100, '.').size(), 105u);
}

TEST(ToInteger, RoundsHalvesToEven) {
  EXPECT_EQ(toInteger("2.5"), 2);
  EXPECT_EQ(toInteger("3.5"), 4);
  EXPECT_EQ(toInteger(" 7 "), 7);
  EXPECT_EQ(toInteger("&H10"), 16);
}

TEST(ToInteger, ATextThatIsNoNumberRaises) {
  EXPECT_EQ(errorOf(""), kErrTypeMismatch);
  EXPECT_EQ(errorOf("abc"), kErrTypeMismatch);
  EXPECT_EQ(errorOf("12abc"), kErrTypeMismatch);
}

TEST(ToInteger, AHexadecimalSignNeedsItsDigits) {
  EXPECT_EQ(errorOf("&H"), kErrTypeMismatch);
  EXPECT_EQ(errorOf("&Hxy"), kErrTypeMismatch);
  EXPECT_EQ(errorOf("&H1g"), kErrTypeMismatch);
}

TEST(ToInteger, ANumberBeyondSixteenBitsRaises) {
  EXPECT_EQ(toInteger("32767"), 32767);
  EXPECT_EQ(errorOf("32768"), kErrOverflow);
  EXPECT_EQ(toInteger("-32768"), -32768);
  EXPECT_EQ(errorOf("-32769"), kErrOverflow);
}

TEST(Hex, HasNoLeadingZeros) {
  EXPECT_EQ(Hex(0), "0");
  EXPECT_EQ(Hex(5), "5");
  EXPECT_EQ(Hex(0xAB), "AB");
  EXPECT_EQ(Hex(0xFFFFFFFF), "FFFFFFFF");
}

}  // namespace
}  // namespace tavr
