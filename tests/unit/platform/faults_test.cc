#include "platform/folder/faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;

std::vector<Status> calls(Faults::Point& point, int count) {
  std::vector<Status> answers;
  for (int i = 0; i < count; ++i) answers.push_back(point.hit());
  return answers;
}

TEST(Faults, AnOperationWithoutAFaultNeverFails) {
  Faults faults;
  faults.add("DeleteFile", 1, 5);
  EXPECT_THAT(calls(faults.point("CopyFile"), 3), ElementsAre(0, 0, 0));
}

TEST(Faults, OneOperationFailsAtSeveralCalls) {
  Faults faults;
  Faults::Point& point = faults.point("DeleteFile");
  faults.add("DELETEFILE", 4, 32);
  faults.add("DeleteFile", 2, 5);
  EXPECT_THAT(calls(point, 5), ElementsAre(0, 5, 0, 32, 0));
}

TEST(Faults, AFaultOfEveryCallLeavesTheCallsThatOthersName) {
  Faults faults;
  faults.add("DeleteFile", 0, 5);
  faults.add("DeleteFile", 2, 32);
  EXPECT_THAT(calls(faults.point("DeleteFile"), 3), ElementsAre(5, 32, 5));
  Faults reversed;
  reversed.add("DeleteFile", 2, 32);
  reversed.add("DeleteFile", 0, 5);
  EXPECT_THAT(calls(reversed.point("DeleteFile"), 3), ElementsAre(5, 32, 5));
}

}  // namespace
}  // namespace tavr::folder
