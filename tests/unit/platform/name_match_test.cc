#include "platform/folder/name_match.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace tavr::folder {
namespace {

bool matches(std::string_view pattern, std::string_view name) {
  return NamePattern(pattern).matches(name);
}

struct Row {
  const char* pattern;
  const char* name;
  bool matches;
};

// What FindFirstFile answers on a volume without short names.
constexpr Row kRows[] = {
    {"*.*", "README", true},
    {"*.*", "a.b.c", true},
    {"*", ".git", true},
    {"*.", "README", true},
    {"*.", "readme.txt", false},
    {"*.", ".profile", false},
    {"a*.", "abc", true},
    {"a*.", "abc.d", false},
    {"History.*", "History", true},
    {"History.*", "history.db", true},
    {"History.*", "History-journal", false},
    {"History.*", "History2", false},
    {"History*", "History-journal", true},
    {"*.txt", "a.b.TXT", true},
    {"*.txt", "a.txt.b", false},
    {"*.txt", ".txt", true},
    {"*.txt", "txt", false},
    {"*.htm", "a.html", false},
    {"*.htm?", "a.htm", true},
    {"*.htm?", "a.html", true},
    {"*.htm?", "a.htmlx", false},
    {"a?", "a", true},
    {"a?", "ab", true},
    {"a?", "abc", false},
    {"?b", "b", false},
    {"a??.txt", "a.txt", true},
    {"a??.txt", "abc.txt", true},
    {"a??.txt", "abcd.txt", false},
    {"????", "a.b", false},
    {"????????.???", "a.b", true},
    {"????????.???", "readme", true},
    {"????????.???", "a.html", false},
    {"*a", "banana", true},
    {"*an*n*", "banana", true},
    {"*x*", "banana", false},
    {"f_*", "f_00000a", true},
    {"*.t*", "a.b.tmp", true},
    {"*.*.*", "a.b", true},
    {"*.*.*", "a", true},
    {"index.dat", "INDEX.DAT", true},
    {"index.dat", "index.da", false},
    {"index.dat. ", "index.dat", true},
    {"a.*b", "a.xb", true},
    {"a.*b", "ab", false},
    {"<", "anything", true},
};

TEST(NamePattern, MatchesAsFindFirstFileDoes) {
  for (const Row& row : kRows) {
    EXPECT_EQ(matches(row.pattern, row.name), row.matches) << row.pattern << "  " << row.name;
  }
}

TEST(NamePattern, CaseDoesNotCountBeyondAsciiEither) {
  EXPECT_TRUE(matches("\xC3\x89t\xC3\xA9*", "\xC3\xA9T\xC3\x89.txt"));
  EXPECT_TRUE(matches("\xD0\x96*", "\xD0\xB6urnal"));
}

TEST(NamePattern, AMarkIsOneUtf16Unit) {
  EXPECT_TRUE(matches("?", "\xC3\xA9"));
  EXPECT_FALSE(matches("?", "\xF0\x9F\x98\x80"));
  EXPECT_TRUE(matches("??", "\xF0\x9F\x98\x80"));
}

TEST(NamePattern, AnEmptyPatternMatchesNoName) {
  EXPECT_FALSE(matches("", "a"));
  EXPECT_FALSE(matches(" . ", "a"));
}

TEST(NamePattern, KnowsThePatternsOfEveryName) {
  EXPECT_TRUE(NamePattern("*.*").matchesEveryName());
  EXPECT_TRUE(NamePattern("*").matchesEveryName());
  EXPECT_FALSE(NamePattern("*.").matchesEveryName());
  EXPECT_FALSE(NamePattern("*.txt").matchesEveryName());
}

TEST(NamePattern, ManyStarsTakeNoExponentialTime) {
  std::string pattern;
  for (int i = 0; i < 120; ++i) pattern += "*a";
  const NamePattern compiled(pattern + "*b");
  const std::string name(250, 'a');
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 20; ++i) EXPECT_FALSE(compiled.matches(name));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST(NamePattern, AnOverlongPatternMatchesNothing) {
  EXPECT_FALSE(matches(std::string(5000, '?') + "x", "a"));
}

}  // namespace
}  // namespace tavr::folder
