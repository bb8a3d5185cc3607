#include "basic/resume_next.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tavr {
namespace {

[[noreturn]] void fail(int number) { throw RuntimeError{number, "failed"}; }

TEST(ResumeNext, AFailingStatementIsAbandonedAndTheNextRuns) {
  ResumeNext on;
  int reached = 0;
  on.next([&] {
    reached += 1;
    fail(kErrFileNotFound);
    reached += 10;
  });
  on.next([&] { reached += 100; });
  EXPECT_EQ(reached, 101);
}

TEST(ResumeNext, AFailingConditionCountsAsMet) {
  ResumeNext on;
  EXPECT_TRUE(on.met([]() -> bool { fail(kErrSubscript); }));
  EXPECT_EQ(on.number(), kErrSubscript);
}

TEST(ResumeNext, AConditionThatWorksGivesItsAnswer) {
  ResumeNext on;
  EXPECT_TRUE(on.met([] { return true; }));
  EXPECT_FALSE(on.met([] { return false; }));
  EXPECT_EQ(on.number(), 0);
}

TEST(ResumeNext, ASuccessfulStatementKeepsTheLastErrorsNumber) {
  ResumeNext on;
  EXPECT_EQ(on.number(), 0);
  on.next([] { fail(kErrPathNotFound); });
  on.next([] {});
  EXPECT_EQ(on.number(), kErrPathNotFound);
  EXPECT_EQ(on.last().description, "failed");
}

TEST(ResumeNext, TheLastErrorCounts) {
  ResumeNext on;
  on.next([] { fail(kErrPathNotFound); });
  on.met([]() -> bool { fail(kErrOverflow); });
  EXPECT_EQ(on.number(), kErrOverflow);
  on.clear();
  EXPECT_EQ(on.number(), 0);
}

TEST(ResumeNext, EachProcedureHasItsOwnErrors) {
  ResumeNext outer;
  outer.next([] {
    ResumeNext inner;
    inner.next([] { fail(kErrOverflow); });
    EXPECT_EQ(inner.number(), kErrOverflow);
  });
  EXPECT_EQ(outer.number(), 0);
}

TEST(ResumeNext, TheEndOfTheProcessPassesThrough) {
  ResumeNext on;
  EXPECT_THROW(on.next([] { throw ProcessEnd{}; }), ProcessEnd);
  EXPECT_THROW(on.met([]() -> bool { throw ProcessEnd{}; }), ProcessEnd);
  EXPECT_EQ(on.number(), 0);
}

TEST(ResumeNext, AMistakeOfTheProgramPassesThrough) {
  ResumeNext on;
  EXPECT_THROW(on.next([] { throw std::logic_error("wrong"); }), std::logic_error);
}

}  // namespace
}  // namespace tavr
