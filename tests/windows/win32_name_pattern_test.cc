// platform/win32/win32_name_pattern.h beside the system that it stands for.
#include "platform/win32/win32_name_pattern.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/win32/wide.h"
#include "tests/contract/win32_differences.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::win32 {
namespace {

constexpr const wchar_t* kNames[] = {
    L"a",        L"ab",         L"abc",          L"a.b",     L"a.b.c",    L".a",     L"History",
    L"History",  L"History.db", L"History2",     L"x.y.txt", L"Txt",      L"TXT",    L"a.txt",
    L"a.TXT.b",  L"a-journal",  L"a-journal.db", L"journal", L"\u00E4.B", L"\u00C4", L"a[1].gif",
    L"f_00001f", L"data_0",     L"index",        L"a b.c d",
};
constexpr const wchar_t* kPatterns[] = {
    L"*",     L"*.*",    L"*.txt", L"History.*", L"*-journal.*", L"a*",       L"*a",
    L"*.*.*", L"a.*",    L".*",    L"*b*",       L"f_*",         L"history",  L"\u00E4.*",
    L"*.b",   L"a[1].*", L"**",    L"*.t*t",     L"*y*.*",       L"data_*.*",
};
// Wine takes a "?" for exactly one character everywhere.
constexpr const wchar_t* kMarks[] = {L"?",    L"a?",   L"??",     L"?.*",    L"*.?",
                                     L"a.b?", L"a?.b", L"*?.txt", L"???.???"};

class NamePatternTest : public ::testing::Test {
 protected:
  NamePatternTest() {
    for (const wchar_t* name : kNames) {
      CloseHandle(CreateFileW((folder() + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    }
  }
  std::wstring folder() const { return wide(scratch_.path()) + L"\\"; }

  // Windows finds a name by its short form, too; where that matches, its answer
  // tells nothing.
  std::vector<std::wstring> systems(const std::wstring& text, const NamePattern& pattern) const {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((folder() + text).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
      const std::wstring name = entry.cFileName;
      const std::wstring short_form = entry.cAlternateFileName;
      const bool telling = short_form.empty() || !pattern.matches(short_form);
      if (name != L"." && name != L".." && telling) names.push_back(name);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return names;
  }
  void expectTheSystemsAnswer(const std::wstring& text) const {
    const NamePattern pattern(text);
    std::vector<std::wstring> own = systems(L"*", pattern);
    std::erase_if(own, [&](const std::wstring& name) { return !pattern.matches(name); });
    EXPECT_EQ(own, systems(text, pattern)) << text;
  }

 private:
  contract::ScratchFolder scratch_{"TavrNamePattern"};
};

TEST_F(NamePatternTest, ItFindsWhatTheSystemFinds) {
  ASSERT_GT(systems(L"*", NamePattern(L"none")).size(), 20U);
  for (const wchar_t* text : kPatterns) expectTheSystemsAnswer(text);
  if (contract::onWine()) return;
  for (const wchar_t* text : kMarks) expectTheSystemsAnswer(text);
}

TEST_F(NamePatternTest, AMarkIsNothingBeforeADotAndAtTheEnd) {
  EXPECT_TRUE(NamePattern(L"a?.b").matches(L"a.b"));
  EXPECT_TRUE(NamePattern(L"a?").matches(L"a"));
  EXPECT_TRUE(NamePattern(L"???.???").matches(L"a.b"));
  EXPECT_FALSE(NamePattern(L"a?c").matches(L"ac"));
  EXPECT_FALSE(NamePattern(L"?").matches(L"ab"));
}

TEST_F(NamePatternTest, AnUnusualTextIsLeftToTheSystem) {
  EXPECT_TRUE(NamePattern::isPlain(L"*.*"));
  EXPECT_TRUE(NamePattern::isPlain(L"a b.c"));
  for (const wchar_t* text :
       {L"", L"a.", L"a ", L"sub\\*", L"sub/a", L"a:b", L"<", L"a\"b", L"|"}) {
    EXPECT_FALSE(NamePattern::isPlain(text)) << text;
  }
}

}  // namespace
}  // namespace tavr::win32
