#include "services/parent_totals.h"

#include <gtest/gtest.h>

#include "basic/resume_next.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using Calls = std::vector<std::string>;

constexpr std::uintptr_t kAddress = 0x7A0000;
constexpr WindowHandle kWindow = 0x4711;
constexpr char kLeftOver = '~';  // of whoever wrote to the mapping before

// A parent program's side: notes every call, and what the view holds when the
// message comes.
class FakeParent : public ParentLink {
 public:
  std::unique_ptr<FileMapping> createMapping(std::string_view name, std::uint32_t size) override {
    calls.push_back("mapping " + std::string(name) + " " + std::to_string(size));
    if (!has_mapping) return nullptr;
    contents.assign(size, kLeftOver);
    return std::make_unique<Mapping>(*this);
  }
  WindowHandle findWindow(std::string_view title) override {
    calls.push_back("find " + std::string(title));
    return has_window ? kWindow : 0;
  }
  void sendMessage(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                   std::intptr_t lparam) override {
    EXPECT_EQ(window, kWindow);
    EXPECT_EQ(wparam, kAddress);
    EXPECT_EQ(lparam, 0);
    calls.push_back("message " + std::to_string(message) + " " +
                    contents.substr(0, contents.find(kLeftOver)));
  }

  bool has_mapping = true;
  bool has_view = true;
  bool has_window = true;
  Calls calls;
  std::string contents;

 private:
  class View : public MappingView {
   public:
    explicit View(FakeParent& parent) : parent_(parent) {}
    ~View() override { parent_.calls.emplace_back("unmap"); }
    std::span<char> bytes() override { return parent_.contents; }
    std::uintptr_t address() override { return kAddress; }
    Status flush() override {
      parent_.calls.emplace_back("flush");
      return kSuccess;
    }

   private:
    FakeParent& parent_;
  };
  class Mapping : public FileMapping {
   public:
    explicit Mapping(FakeParent& parent) : parent_(parent) {}
    ~Mapping() override { parent_.calls.emplace_back("close"); }
    std::unique_ptr<MappingView> map(std::uint32_t access, std::size_t size) override {
      parent_.calls.push_back("view " + std::to_string(access) + " " + std::to_string(size));
      if (!parent_.has_view) return nullptr;
      return std::make_unique<View>(parent_);
    }

   private:
    FakeParent& parent_;
  };
};

class ParentTotalsTest : public ::testing::Test {
 protected:
  ParentTotalsTest() {
    Machine& real = machine.machine();
    fake_.emplace(testing::machineWith(real, parent));
  }
  void send(std::string_view text) { ParentTotals(*fake_).send(text); }

  testing::TestMachine machine;
  FakeParent parent;

 private:
  std::optional<Machine> fake_;
};

TEST_F(ParentTotalsTest, TheTextIsInTheMappingWhenTheMessageTellsTheViewsAddress) {
  send("t|5|1024");
  EXPECT_EQ(parent.calls,
            Calls({"mapping MyFileMappingObject 256", "view 983071 256", "flush",
                   "find Tavrwork Brightbox", "message 1025 t|5|1024", "unmap", "close"}));
}

TEST_F(ParentTotalsTest, NothingIsWrittenBehindTheText) {
  send("t|5|1024");
  EXPECT_EQ(parent.contents, "t|5|1024" + std::string(248, kLeftOver));
}

TEST_F(ParentTotalsTest, ATextLongerThanTheMappingIsCut) {
  send(std::string(300, 'x'));
  EXPECT_EQ(parent.contents, std::string(256, 'x'));
}

TEST_F(ParentTotalsTest, WithoutAMappingNothingIsSentAndNoWindowIsLookedFor) {
  parent.has_mapping = false;
  parent.has_window = false;
  send("t|5|");
  EXPECT_EQ(parent.calls, Calls({"mapping MyFileMappingObject 256"}));
}

TEST_F(ParentTotalsTest, WithoutAViewTheMappingIsClosedAndNothingIsSent) {
  parent.has_view = false;
  parent.has_window = false;
  send("t|5|");
  EXPECT_EQ(parent.calls, Calls({"mapping MyFileMappingObject 256", "view 983071 256", "close"}));
}

TEST_F(ParentTotalsTest, WithoutAWindowTheProcessEndsAtOnce) {
  parent.has_window = false;
  EXPECT_THROW(send("t|5|"), ProcessEnd);
}

TEST_F(ParentTotalsTest, NoStatementOfARunSwallowsThatEnd) {
  parent.has_window = false;
  ResumeNext on;
  EXPECT_THROW(on.next([&] { send("t|5|"); }), ProcessEnd);
}

TEST(ParentLinkOfTheForm, EveryChangeOfTheFileCountSendsTheSumAndTheSizeText) {
  testing::TestMachine machine;
  machine.ini("[parent]\nwindow=Tavrwork Brightbox\n");
  Form1& form = machine.program().form;
  form.parentMode = 2;
  form.txtfilecount.setText("0");
  form.txtregcount.setText("2");
  form.txtfilesize.setText("1024");
  form.txtfilecount.setText("3");
  form.txtfilecount.setText("3");
  EXPECT_EQ(machine.readMachineFile("parent.log"), "t|0|\nt|5|1024\n");
}

TEST(ParentLinkOfTheForm, WithoutAParentNothingIsSent) {
  testing::TestMachine machine;
  Form1& form = machine.program().form;
  form.txtfilecount.setText("3");
  EXPECT_EQ(machine.readMachineFile("parent.log"), "");
}

TEST(ParentLinkOfTheForm, AParentWithoutItsWindowEndsTheProcess) {
  testing::TestMachine machine;
  Form1& form = machine.program().form;
  form.parentMode = 1;
  EXPECT_THROW(form.txtfilecount.setText("0"), ProcessEnd);
}

}  // namespace
}  // namespace tavr
