// How each procedure closes its task row: the count bold and dark red, the
// results scrolled to their end. The table is kept by hand, beside the
// catalogue's own.
#include <set>

#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

enum class Tail { none, bold, full };
using enum Tail;

struct Closing {
  std::string_view procedure;
  Tail tail;
  /// Its rows are ghosted, and each is scrolled to as it is added.
  bool scrolls_by_its_rows;
};

constexpr Closing kClosings[] = {
    {"c1", full, true},    {"t1", full, true},    {"c2", full, false},   {"t2", full, false},
    {"c3", none, true},    {"t3", none, true},    {"c4", full, true},    {"t4", full, true},
    {"c5", full, true},    {"t5", full, true},    {"c10", bold, false},  {"t10", none, false},
    {"c95", none, false},  {"t95", none, false},  {"c96", none, true},   {"t96", none, true},
    {"c6", none, false},   {"t6", none, false},   {"c7", none, false},   {"t7", none, false},
    {"c8", none, true},    {"t8", none, true},    {"c9", none, true},    {"t9", full, true},
    {"c11", full, false},  {"t11", full, false},  {"c19", bold, true},   {"t19", bold, true},
    {"c20", bold, true},   {"t20", bold, true},   {"c21", full, false},  {"t21", full, false},
    {"c22", full, false},  {"t22", full, false},  {"c23", full, false},  {"t23", full, false},
    {"c231", none, false}, {"c223", full, false}, {"t223", full, false}, {"c24", full, false},
    {"t24", full, false},  {"c25", full, false},  {"t25", full, false},  {"c26", full, false},
    {"t26", full, false},  {"c27", full, false},  {"t27", full, false},  {"c28", full, false},
    {"t28", full, false},  {"c31", full, false},  {"t31", full, false},  {"c32", full, false},
    {"t32", full, false},  {"c33", full, false},  {"t33", full, false},  {"c34", full, false},
    {"t34", full, false},  {"c35", full, false},  {"t35", full, false},  {"c40", full, false},
    {"t40", full, false},  {"c41", full, false},  {"t41", full, false},  {"c42", full, false},
    {"t42", full, false},  {"c43", full, false},  {"t43", full, false},  {"c44", none, false},
    {"t44", none, false},  {"c50", full, false},  {"t50", full, false},  {"c51", full, false},
    {"t51", full, false},  {"c52", full, false},  {"t52", full, false},  {"c53", full, false},
    {"t53", full, false},  {"c54", full, false},  {"t54", full, false},  {"c60", none, false},
    {"t60", full, false},  {"c61", none, false},  {"t61", full, false},  {"c62", none, false},
    {"t62", full, false},  {"c63", none, false},  {"t63", full, false},  {"c64", none, false},
    {"t64", full, false},  {"c70", none, false},  {"t70", full, false},  {"c71", none, false},
    {"t71", full, false},  {"c72", none, false},  {"t72", full, false},  {"c73", none, false},
    {"t73", full, false},  {"c74", none, false},  {"t74", full, false},  {"c80", full, false},
    {"t80", full, false},  {"c81", full, false},  {"t81", full, false},  {"c82", full, false},
    {"t82", full, false},  {"c83", full, false},  {"t83", full, false},  {"c84", full, false},
    {"t84", full, false},  {"c90", full, false},  {"t90", full, false},  {"c91", full, false},
    {"t91", full, false},  {"c92", full, false},  {"t92", full, false},  {"c93", full, false},
    {"t93", full, false},  {"c94", full, false},  {"t94", full, false},
};

class RowTail : public TrackTest, public ::testing::WithParamInterface<Closing> {
 protected:
  // One profile for Firefox's procedures that end without one; the rest of the
  // machine is empty.
  RowTail() { world_.folder(user("\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\one")); }
};

TEST_P(RowTail, IsAsTheTableSays) {
  const Closing& closing = GetParam();
  form().View100.add("Another task", "a");
  form().View200.add({"an earlier row"});
  call(closing.procedure);
  EXPECT_EQ(countCell().bold, closing.tail != none);
  EXPECT_EQ(countCell().fore_color, closing.tail == none ? 0u : 192u);
  const bool scrolls = closing.tail == full || closing.scrolls_by_its_rows;
  EXPECT_EQ(form().View200.ensuredRow(), scrolls ? form().View200.count() : 0u);
  EXPECT_EQ(closing.scrolls_by_its_rows, ghosted(form().View200.count()));
  // Behind the scrolling of its rows there is one of the tail's own, or more.
  std::size_t by_rows = 0;
  for (std::size_t row = 1; row <= form().View200.count(); ++row) by_rows += ghosted(row) ? 1 : 0;
  EXPECT_EQ(form().View200.ensurings() > by_rows, closing.tail == full);
  // Only the task in progress, and only its count.
  ListRow& task = form().View100.item(1);
  EXPECT_FALSE(task.subItem(1).bold);
  EXPECT_FALSE(form().View100.item(2).subItem(2).bold);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, RowTail, ::testing::ValuesIn(kClosings),
                         [](const auto& test) { return std::string(test.param.procedure); });

TEST(RowTailTable, NamesEveryProcedureOnce) {
  std::set<std::string_view> names;
  for (const Closing& closing : kClosings) {
    EXPECT_TRUE(names.insert(closing.procedure).second) << closing.procedure;
    EXPECT_NE(findProcedure(closing.procedure), nullptr) << closing.procedure;
  }
  EXPECT_EQ(names.size(), 119u);
}

class RowTailOf : public TrackTest {};

TEST_F(RowTailOf, AnEmptyResultListIsAbandonedAfterTheBoldCount) {
  call("c25");
  EXPECT_TRUE(countCell().bold);
  EXPECT_EQ(form().View200.ensuredRow(), 0u);
}

TEST_F(RowTailOf, AMissingTaskRowStillScrollsTheResults) {
  form().taskrow = 7;
  form().View200.add({"an earlier row"});
  call("c25");
  EXPECT_FALSE(countCell().bold);
  EXPECT_EQ(form().View200.ensuredRow(), 1u);
}

}  // namespace
}  // namespace tavr::testing
