// The values that go to WMI and come from it, and its monikers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/win32/com.h"
#include "platform/win32/wmi_session.h"
#include "platform/wmi.h"

namespace tavr::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Win32VariantTest, TextsKeepTheirOrderAndTheEmptyOnes) {
  const std::vector<std::string> pending{"\\??\\C:\\\xC3\xA4", "", "\\??\\C:\\b", ""};
  const Variant value(pending);
  std::vector<std::string> read{"left over"};
  EXPECT_TRUE(value.read(read));
  EXPECT_EQ(read, pending);
}

TEST(Win32VariantTest, NoTextsAreAnEmptyArrayAndNotNothing) {
  const Variant value(std::vector<std::string>{});
  std::vector<std::string> read{"left over"};
  EXPECT_FALSE(value.isNull());
  EXPECT_TRUE(value.read(read));
  EXPECT_THAT(read, IsEmpty());
}

TEST(Win32VariantTest, AnArrayMayBeginAnywhere) {
  Variant value;
  SAFEARRAY* const array = SafeArrayCreateVector(VT_BSTR, 5, 2);
  ASSERT_NE(array, nullptr);
  value.get()->vt = VT_ARRAY | VT_BSTR;
  value.get()->parray = array;
  for (LONG i = 5; i < 7; ++i) {
    const BasicString text(i == 5 ? "a" : "b");
    ASSERT_EQ(SafeArrayPutElement(array, &i, text.get()), S_OK);
  }
  std::vector<std::string> read;
  EXPECT_TRUE(value.read(read));
  EXPECT_THAT(read, ElementsAre("a", "b"));
}

TEST(Win32VariantTest, NumbersKeepTheirBits) {
  std::uint32_t number = 0;
  EXPECT_TRUE(Variant(static_cast<std::int32_t>(0x80000002)).read(number));
  EXPECT_EQ(number, 0x80000002);
}

TEST(Win32VariantTest, AnotherKindIsNotRead) {
  std::uint32_t number = 7;
  std::string text = "kept";
  std::vector<std::string> texts;
  const Variant nothing;
  EXPECT_TRUE(nothing.isNull());
  EXPECT_FALSE(nothing.read(text));
  EXPECT_FALSE(nothing.read(texts));
  EXPECT_FALSE(Variant("1").read(number));
  EXPECT_FALSE(Variant(1).read(text));
  EXPECT_EQ(number, 7U);
  EXPECT_EQ(text, "kept");
}

TEST(Win32WmiMonikerTest, TheRegistryProvidersNamesNamespaceAndClass) {
  const auto moniker = parseWmiMoniker(kRegistryProviderMoniker);
  ASSERT_TRUE(moniker);
  EXPECT_EQ(moniker->name_space, "\\\\.\\root\\default");
  EXPECT_EQ(moniker->class_name, "StdRegProv");
}

TEST(Win32WmiMonikerTest, WithoutANamespaceItIsTheDefaultOne) {
  const auto moniker = parseWmiMoniker("WinMgmts:");
  ASSERT_TRUE(moniker);
  EXPECT_EQ(moniker->name_space, "root\\cimv2");
  EXPECT_EQ(moniker->class_name, "");
}

TEST(Win32WmiMonikerTest, WhatIsNoMonikerIsNone) {
  EXPECT_FALSE(parseWmiMoniker(""));
  EXPECT_FALSE(parseWmiMoniker("\\\\.\\root\\default:StdRegProv"));
  EXPECT_FALSE(parseWmiMoniker("winmgmts:{impersonationLevel=impersonate"));
}

}  // namespace
}  // namespace tavr::win32
