// UTF-8 through services that know a code page alone.
#include "platform/win32/ini_text.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/wide.h"

namespace tavr::win32 {
namespace {

constexpr unsigned kPages[] = {1250, 1251, 1252, 1254, CP_UTF8};

// What a service makes of a file's bytes, and what it writes for a text.
std::wstring asRead(std::string_view bytes, unsigned page) {
  std::wstring text(bytes.size(), L'\0');
  text.resize(static_cast<std::size_t>(
      MultiByteToWideChar(page, 0, bytes.data(), static_cast<int>(bytes.size()), text.data(),
                          static_cast<int>(text.size()))));
  return text;
}
std::string asWritten(std::wstring_view text, unsigned page) {
  std::string bytes(text.size() * 4, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(page, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

TEST(IniText, Utf8IsReadAndWrittenAsItsBytesInEveryPage) {
  for (const std::string_view text :
       {"plain", "\u00dc\u011f\u0131\u015f\u00e7 \u0130zleri", "\u5c65\u6b74\u3092\u6d88\u53bb",
        "\u0645\u0633\u062d \u0627\u0644\u0622\u062b\u0627\u0631", "\U0001F600 x"}) {
    for (const unsigned page : kPages) {
      EXPECT_EQ(fromIniText(asRead(text, page), page), text) << page;
      EXPECT_EQ(asWritten(toIniText(text, page), page), text) << page;
    }
  }
}

TEST(IniText, ATextOfThePageStaysWhatItIs) {
  EXPECT_EQ(fromIniText(L"L\u00f6schen", 1252), "L\u00f6schen");
  EXPECT_EQ(fromIniText(L"\u0421\u043b\u0435\u0434\u044b", 1251), "\u0421\u043b\u0435\u0434\u044b");
}

// From a file of UTF-16, which needs no page.
TEST(IniText, WhatThePageLacksStaysWhatItIs) {
  EXPECT_EQ(fromIniText(L"\u5c65\u6b74", 1252), "\u5c65\u6b74");
  EXPECT_EQ(fromIniText(L"\u0100", 1252), "\u0100") << "the page has an A that resembles it";
  EXPECT_EQ(fromIniText(L"", 1252), "");
}

}  // namespace
}  // namespace tavr::win32
