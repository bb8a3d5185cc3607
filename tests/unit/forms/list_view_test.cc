#include "forms/list_view.h"

#include <gtest/gtest.h>

#include <limits>

#include "basic/resume_next.h"

namespace tavr {
namespace {

int errorOfRow(ListView& list, double row) {
  try {
    list.item(row);
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}

TEST(ListView, RowsAreNumberedFromOne) {
  ListView list;
  list.add("first", "c");
  list.add("second", "o");
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.item(1).text, "first");
  EXPECT_EQ(list.item(1).small_icon, "c");
  EXPECT_EQ(list.item(2).text, "second");
}

TEST(ListView, ARowOutsideRaises) {
  ListView list;
  EXPECT_EQ(errorOfRow(list, 1), kErrNoElement);
  list.add("only", "");
  EXPECT_EQ(errorOfRow(list, 0), kErrNoElement);
  EXPECT_EQ(errorOfRow(list, -1), kErrNoElement);
  EXPECT_EQ(errorOfRow(list, 2), kErrNoElement);
  EXPECT_EQ(errorOfRow(list, 1), 0);
}

TEST(ListView, ARowNumberBeyondEveryIntegerRaises) {
  ListView list;
  list.add("only", "");
  EXPECT_EQ(errorOfRow(list, 1e300), kErrNoElement);
  EXPECT_EQ(errorOfRow(list, std::numeric_limits<double>::infinity()), kErrNoElement);
}

TEST(ListView, ARowNumberIsRoundedHalvesToEven) {
  ListView list;
  list.add("1", "");
  list.add("2", "");
  EXPECT_EQ(list.item(1.5).text, "2");
  EXPECT_EQ(list.item(2.5).text, "2");
  EXPECT_EQ(errorOfRow(list, 0.5), kErrNoElement);
}

TEST(ListView, BothSubItemsExistFromTheStart) {
  ListView list;
  ListRow& row = list.add("row", "c");
  EXPECT_EQ(row.subItem(1).text, "");
  EXPECT_EQ(row.subItem(2).text, "");
  EXPECT_FALSE(row.subItem(2).bold);
  row.subItem(1).text = "Done";
  EXPECT_EQ(list.item(1).cells[0].text, "Done");
}

TEST(ListView, RowsStayWhereTheyAreWhileOthersAreAdded) {
  ListView list;
  ListRow& first = list.add("first", "");
  for (int i = 0; i < 1000; ++i) list.add("more", "");
  first.checked = true;
  EXPECT_TRUE(list.item(1).checked);
}

TEST(ListView, ClearingTakesEveryRow) {
  ListView list;
  list.add("row", "");
  list.clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(errorOfRow(list, 1), kErrNoElement);
}

}  // namespace
}  // namespace tavr
