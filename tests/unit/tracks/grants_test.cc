// The grant that a procedure makes on a key: to the account that the environment
// names, on a machine that knows that one alone.
#include <optional>

#include "services/access_list.h"
#include "tests/support/access_lists.h"
#include "tests/support/machine_with.h"
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

const std::string kAnn = std::string("\1\1\0\0\0\0\0\5a\0\0\0", 12);
constexpr std::string_view kTray =
    "software\\classes\\local settings\\software\\microsoft\\windows\\currentversion\\traynotify";

class TrackGrants : public TrackTest {
 protected:
  TrackGrants() {
    world_.ini("[environment]\nUserName=ann\n").value(hkcu(kTray), "IconStreams", "x");
  }
  Machine machineBelow(const Machine& m) override {
    lists_.emplace(m.registry);
    return testing::machineWith(m, *lists_, accounts_);
  }
  // How many entries of the key's new list are Ann's.
  std::size_t entriesOfAnn() {
    const SecurityDescriptor& list = lists_->lists[std::string(kTray)];
    if (!list.dacl) return 0;
    const AccessList entries(*list.dacl);
    std::size_t found = 0;
    for (const AccessEntry& entry : entries.entries()) found += entry.sid() == kAnn ? 1 : 0;
    return found;
  }

  ListedAccounts accounts_;
  std::optional<ListedRegistry> lists_;
};

TEST_F(TrackGrants, NameTheUserOfTheEnvironment) {
  accounts_.sids["ann"] = kAnn;
  form().grant_failed = true;
  call("c96");
  EXPECT_EQ(entriesOfAnn(), 2u);
  EXPECT_FALSE(form().grant_failed);
}

TEST_F(TrackGrants, ThatNobodyCanBeFoundForFailInSilenceAndTheTrackGoesOn) {
  accounts_.sids["user"] = kAnn;
  call("c96");
  EXPECT_EQ(entriesOfAnn(), 0u);
  EXPECT_TRUE(form().grant_failed);
  EXPECT_EQ(value(kTray, "IconStreams"), "<none>");
}

}  // namespace
}  // namespace tavr::testing
