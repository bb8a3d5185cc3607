// The table of tracks against its transcription by hand, and its promises.
#include "tracks/catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "engine/catalogue_dump.h"
#include "engine/run_tables.h"
#include "tests/unit/tracks/track_fixture.h"

namespace tavr {
namespace {

constexpr std::size_t kProcedures = 119;
constexpr std::size_t kOwnProcedures = 32;

std::string readSource(const std::string& name) {
  std::ifstream in(TAVR_SOURCE_DIR "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string field(const std::string& line, int number) {
  std::istringstream in(line);
  std::string text;
  for (int i = 0; i <= number; ++i) std::getline(in, text, '\t');
  return text;
}

// One block of lines per procedure, and all lines of the runs' tables under "".
std::map<std::string, std::string> blocks(const std::string& lines) {
  const std::set<std::string> of_runs = {"task", "step", "group", "gate"};
  std::map<std::string, std::string> found;
  std::istringstream in(lines);
  for (std::string line; std::getline(in, line);) {
    found[of_runs.contains(field(line, 0)) ? "" : field(line, 1)] += line + "\n";
  }
  return found;
}

std::vector<const Procedure*> allProcedures() {
  std::vector<const Procedure*> all;
  for (const auto family :
       {windowsTracks(), internetExplorerTracks(), firefoxTracks(), chromiumTracks()}) {
    for (const Procedure& procedure : family) all.push_back(&procedure);
  }
  return all;
}

TEST(Catalogue, EveryProcedureIsAsTranscribedByHand) {
  const auto expected = blocks(readSource("tests/golden/catalogue.txt"));
  const auto actual = blocks(catalogueLines());
  ASSERT_GT(expected.size(), kProcedures);
  for (const auto& [name, block] : expected) {
    const auto found = actual.find(name);
    EXPECT_EQ(found == actual.end() ? "" : found->second, block) << "procedure " << name;
  }
  for (const auto& [name, block] : actual) {
    EXPECT_TRUE(expected.contains(name)) << name << " is not in the transcription:\n" << block;
  }
}

TEST(Catalogue, TheTablesOfTheRunsStandInTheTranscribedOrder) {
  const std::string expected = blocks(readSource("tests/golden/catalogue.txt"))[""];
  ASSERT_FALSE(expected.empty());
  EXPECT_EQ(blocks(catalogueLines())[""], expected);
}

TEST(Catalogue, ThePageForPeopleIsFresh) {
  EXPECT_EQ(readSource("docs/catalogue.md"), cataloguePage())
      << "docs/catalogue.md is stale: run scripts/catalogue";
}

TEST(Catalogue, NamesAreUniqueAndFound) {
  std::set<std::string_view> names;
  for (const Procedure* const procedure : allProcedures()) {
    EXPECT_TRUE(names.insert(procedure->name).second) << procedure->name << " stands twice";
    EXPECT_EQ(findProcedure(procedure->name), procedure);
  }
  EXPECT_EQ(names.size(), kProcedures);
}

TEST(Catalogue, ANameThatIsNotInItIsNotFound) {
  for (const std::string_view name : {"", "c", "c12", "t231", "C24", "c24 "}) {
    EXPECT_EQ(findProcedure(name), nullptr) << name;
  }
}

class CallByName : public testing::TrackTest {};

TEST_F(CallByName, ANameThatIsNotInTheCatalogueRaisesAnError) {
  try {
    call("c12");
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number, kErrInvalidCall);
  }
  EXPECT_EQ(form().View200.count(), 0u);
}

TEST(Catalogue, EveryProcedureHasATwinApartFromOne) {
  std::vector<std::string> alone;
  for (const Procedure* const procedure : allProcedures()) {
    const bool cleans = procedure->name.starts_with('c');
    const std::string twin = (cleans ? "t" : "c") + std::string(procedure->name.substr(1));
    if (findProcedure(twin) == nullptr) alone.emplace_back(procedure->name);
  }
  EXPECT_THAT(alone, ::testing::ElementsAre("c231"));
}

TEST(Catalogue, EveryProcedureThatARunCallsIsThere) {
  int called = 0;
  const auto check = [&](std::string_view name, char side) {
    if (name.empty()) return;
    ++called;
    EXPECT_NE(findProcedure(name), nullptr) << name;
    EXPECT_EQ(name.front(), side) << name;
  };
  for (const WindowsStep& step : kWindowsSteps) {
    check(step.clean, 'c');
    check(step.test, 't');
  }
  for (const BrowserGroup& group : kBrowserGroups) {
    for (const std::string_view name : group.clean) check(name, 'c');
    for (const std::string_view name : group.test) check(name, 't');
  }
  EXPECT_EQ(called, 16 + 49 + 48);
}

TEST(Catalogue, OnlyTheOlderProceduresAreCalledByNoRun) {
  std::set<std::string_view> called;
  for (const WindowsStep& step : kWindowsSteps) called.insert({step.clean, step.test});
  for (const BrowserGroup& group : kBrowserGroups) {
    called.insert(std::begin(group.clean), std::end(group.clean));
    called.insert(std::begin(group.test), std::end(group.test));
  }
  std::vector<std::string_view> idle;
  for (const Procedure* const procedure : allProcedures()) {
    if (!called.contains(procedure->name)) idle.push_back(procedure->name);
  }
  EXPECT_THAT(idle, ::testing::UnorderedElementsAre("c11", "t11", "c19", "t19", "c20", "t20"));
}

TEST(Catalogue, TheNumberOfProceduresWithAFunctionOfTheirOwnIsKnown) {
  std::size_t own = 0;
  for (const Procedure* const procedure : allProcedures()) {
    if (const auto* const shape = std::get_if<OwnProcedure>(&procedure->shape)) {
      ++own;
      EXPECT_NE(shape->run, nullptr) << procedure->name;
    }
  }
  EXPECT_EQ(own, kOwnProcedures);
}

TEST(Catalogue, NoSearchFolderEndsInABackslashButTheCacheFolderOfIndexDat) {
  std::vector<std::string> ending;
  for (const Procedure* const procedure : allProcedures()) {
    for (const Entry& entry : procedure->searches) {
      if (entry.folder.ends_with('\\')) ending.emplace_back(procedure->name);
    }
  }
  EXPECT_THAT(ending, ::testing::ElementsAre("c9", "t9"));
}

TEST(Catalogue, TestsDeleteInTwoPlacesOnly) {
  std::vector<std::string> deleting;
  for (const Procedure* const procedure : allProcedures()) {
    if (!procedure->name.starts_with('t')) continue;
    for (const Entry& entry : procedure->searches) {
      if (entry.primitive == Primitive::srchd || entry.primitive == Primitive::srchd2) {
        deleting.push_back(std::string(procedure->name) + " " + std::string(entry.pattern));
      }
    }
  }
  EXPECT_THAT(deleting,
              ::testing::UnorderedElementsAre("t24 Top Sites.*", "t24 History.*", "t80 History.*"));
}

}  // namespace
}  // namespace tavr
