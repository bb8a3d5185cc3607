#include "forms/result_list.h"

#include <gtest/gtest.h>

#include "basic/resume_next.h"

namespace tavr {
namespace {

template <class Statement>
int errorOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}

TEST(ResultList, ARowIsItsPiecesJoined) {
  ResultList list;
  list.add({"C:\\a", " = ", "", " <OK>"});
  list.add({});
  ASSERT_EQ(list.count(), 2u);
  EXPECT_EQ(list.text(1), "C:\\a =  <OK>");
  EXPECT_EQ(list.text(2), "");
}

TEST(ResultList, APlainRowIsNeitherGhostedNorScrolledTo) {
  ResultList list;
  list.add({"plain"});
  EXPECT_FALSE(list.ghosted(1));
  EXPECT_EQ(list.ensuredRow(), 0u);
}

TEST(ResultList, AGhostedRowIsScrolledIntoView) {
  ResultList list;
  list.add({"plain"});
  list.addGhosted({"ghosted"});
  list.add({"behind"});
  EXPECT_FALSE(list.ghosted(1));
  EXPECT_TRUE(list.ghosted(2));
  EXPECT_FALSE(list.ghosted(3));
  EXPECT_EQ(list.ensuredRow(), 2u);
  EXPECT_EQ(list.ensurings(), 1u);
}

TEST(ResultList, TheLastRowCanBeScrolledIntoViewUnlessThereIsNone) {
  ResultList list;
  EXPECT_EQ(errorOf([&] { list.ensureLastVisible(); }), kErrNoElement);
  EXPECT_EQ(list.ensuredRow(), 0u);
  EXPECT_EQ(list.ensurings(), 0u);
  list.add({"row"});
  list.ensureLastVisible();
  list.ensureLastVisible();
  EXPECT_EQ(list.ensuredRow(), 1u);
  EXPECT_EQ(list.ensurings(), 2u);
}

TEST(ResultList, ARowOutsideRaises) {
  ResultList list;
  list.add({"row"});
  EXPECT_EQ(errorOf([&] { list.text(0); }), kErrNoElement);
  EXPECT_EQ(errorOf([&] { list.text(2); }), kErrNoElement);
  EXPECT_EQ(errorOf([&] { list.ghosted(2); }), kErrNoElement);
  EXPECT_EQ(errorOf([&] { list.text(1); }), 0);
}

TEST(ResultList, TensOfThousandsOfRowsKeepTextAndShade) {
  ResultList list;
  constexpr std::size_t kRows = 20'000;
  for (std::size_t i = 1; i <= kRows; ++i) {
    const std::string number = std::to_string(i);
    if (i % 3 == 0) {
      list.addGhosted({"row ", number});
    } else {
      list.add({"row ", number});
    }
  }
  ASSERT_EQ(list.count(), kRows);
  for (std::size_t i = 1; i <= kRows; ++i) {
    ASSERT_EQ(list.text(i), "row " + std::to_string(i));
    ASSERT_EQ(list.ghosted(i), i % 3 == 0) << i;
  }
}

TEST(ResultList, ARowLongerThanABlockFitsBetweenShortOnes) {
  ResultList list;
  const std::string longest(1'000'000, 'x');
  list.add({"before"});
  list.add({longest, "!"});
  list.add({"behind"});
  EXPECT_EQ(list.text(1), "before");
  EXPECT_EQ(list.text(2), longest + "!");
  EXPECT_EQ(list.text(3), "behind");
}

TEST(ResultList, AViewSeesTheRowsBeforeTheyAreCleared) {
  ResultList list;
  list.add({"row"});
  std::size_t seen = 0;
  list.onClear = [&] { seen = list.count(); };
  list.clear();
  EXPECT_EQ(seen, 1u);
  EXPECT_EQ(list.count(), 0u);
}

TEST(ResultList, AClearedListTakesRowsAgain) {
  ResultList list;
  for (int i = 0; i < 5000; ++i) list.addGhosted({"old"});
  list.clear();
  EXPECT_EQ(list.ensuredRow(), 0u);
  EXPECT_EQ(list.ensurings(), 5000u);
  list.add({"new"});
  ASSERT_EQ(list.count(), 1u);
  EXPECT_EQ(list.text(1), "new");
  EXPECT_FALSE(list.ghosted(1));
}

}  // namespace
}  // namespace tavr
