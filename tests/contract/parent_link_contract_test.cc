// platform/parent_link.h.
#include <algorithm>
#include <string>

#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kSize = 256;
constexpr std::uint32_t kAllAccess = 0xF001F;
constexpr std::uint32_t kUserMessage = 1025;
constexpr std::string_view kTitle = "Tavr Contract Parent";
constexpr std::string_view kName = "TavrContractMapping";

class ParentLinkContract : public ContractTest {
 protected:
  ParentLink& link() { return machine().parent; }

  static void put(MappingView& view, std::string_view text) {
    std::fill(view.bytes().begin(), view.bytes().end(), '\0');
    std::copy(text.begin(), text.end(), view.bytes().begin());
  }
};

TEST_F(ParentLinkContract, AWindowIsFoundByExactlyItsTitle) {
  on().openParentWindow(kTitle);
  EXPECT_NE(link().findWindow(kTitle), 0U);
  EXPECT_EQ(link().findWindow("Tavr Contract"), 0U);
  EXPECT_EQ(link().findWindow("Tavr Contract Parents"), 0U);
}

TEST_F(ParentLinkContract, ATitleInAnotherCaseIsAnother) {
  on().openParentWindow("TAVR contract parent");
  EXPECT_EQ(link().findWindow(kTitle), 0U);
  EXPECT_NE(link().findWindow("TAVR contract parent"), 0U);
}

TEST_F(ParentLinkContract, WithoutTheWindowNothingIsFound) {
  EXPECT_EQ(link().findWindow(kTitle), 0U);
}

TEST_F(ParentLinkContract, AViewHasTheBytesThatWereAskedFor) {
  const auto mapping = link().createMapping(kName, kSize);
  ASSERT_NE(mapping, nullptr);
  const auto view = mapping->map(kAllAccess, 100);
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(view->bytes().size(), 100U);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(view->bytes().data()), view->address());
  EXPECT_TRUE(
      std::all_of(view->bytes().begin(), view->bytes().end(), [](char c) { return c == '\0'; }));
}

TEST_F(ParentLinkContract, ViewsOfOneNameShareTheirBytes) {
  const auto first = link().createMapping(kName, kSize);
  const auto second = link().createMapping(kName, kSize);
  ASSERT_TRUE(first && second);
  const auto written = first->map(kAllAccess, kSize);
  const auto read = second->map(kAllAccess, kSize);
  ASSERT_TRUE(written && read);
  put(*written, "text");
  EXPECT_EQ(written->flush(), kSuccess);
  EXPECT_STREQ(read->bytes().data(), "text");
}

TEST_F(ParentLinkContract, AViewOutlivesItsMapping) {
  auto mapping = link().createMapping(kName, kSize);
  ASSERT_NE(mapping, nullptr);
  const auto view = mapping->map(kAllAccess, kSize);
  ASSERT_NE(view, nullptr);
  mapping.reset();
  put(*view, "text");
  EXPECT_STREQ(view->bytes().data(), "text");
}

TEST_F(ParentLinkContract, AMappingOfNoBytesIsRefused) {
  EXPECT_EQ(link().createMapping(kName, 0), nullptr);
}

TEST_F(ParentLinkContract, AViewBeyondTheMappingIsRefused) {
  const auto mapping = link().createMapping(kName, kSize);
  ASSERT_NE(mapping, nullptr);
  EXPECT_EQ(mapping->map(kAllAccess, 1U << 20), nullptr);
}

TEST_F(ParentLinkContract, TheParentReadsTheTextAtTheAddress) {
  on().openParentWindow(kTitle);
  const auto mapping = link().createMapping(kName, kSize);
  ASSERT_NE(mapping, nullptr);
  const auto view = mapping->map(kAllAccess, kSize);
  ASSERT_NE(view, nullptr);
  const WindowHandle window = link().findWindow(kTitle);
  put(*view, "t|1|0");
  link().sendMessage(window, kUserMessage, view->address(), 0);
  put(*view, "t|2|100");
  link().sendMessage(window, kUserMessage, view->address(), 0);
  EXPECT_THAT(on().parentTexts(), ElementsAre("t|1|0", "t|2|100"));
}

TEST_F(ParentLinkContract, AMessageToNoWindowGoesNowhere) {
  on().openParentWindow(kTitle);
  const auto mapping = link().createMapping(kName, kSize);
  ASSERT_NE(mapping, nullptr);
  const auto view = mapping->map(kAllAccess, kSize);
  ASSERT_NE(view, nullptr);
  put(*view, "text");
  link().sendMessage(0, kUserMessage, view->address(), 0);
  EXPECT_THAT(on().parentTexts(), IsEmpty());
}

}  // namespace
}  // namespace tavr::contract
