// The commands that leave the program: the tools that stand beside it, started
// from every place that has a control for them, and the help.
#include <memory>

#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr std::string_view kShown = "1";
constexpr std::string_view kMinimised = "2";

// A program beside this one that writes down how it was started.
class Tool {
 public:
  Tool(const std::wstring& recorder, const std::wstring& tool) : file_(tool) {
    EXPECT_TRUE(CopyFileW(recorder.c_str(), file_.c_str(), FALSE));
  }
  ~Tool() {
    EXPECT_TRUE(comes([this] { return DeleteFileW(file_.c_str()) != FALSE; }));
    DeleteFileW((file_ + L".txt").c_str());
  }
  Tool(const Tool&) = delete;
  Tool& operator=(const Tool&) = delete;

 private:
  std::wstring file_;
};

class Commands : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    for (const char* const name : {kMaker, kCleaner, kTranslator}) {
      tools_.push_back(std::make_unique<Tool>(place("recorder.exe"), place(name)));
    }
  }
  void TearDown() override {
    WindowTest::TearDown();
    tools_.clear();
  }
  // Whether the tool is started now, and in that style.
  bool starts(std::string_view tool, std::string_view style) {
    const std::string note = std::string(tool) + ".txt";
    if (!comes([&] { return exists(note); })) return false;
    const std::string text = contents(note);
    EXPECT_TRUE(text.find(tool) != text.npos) << text;
    EXPECT_TRUE(text.ends_with("\n" + std::string(style) + "\n")) << text;
    return DeleteFileW(place(note).c_str()) != FALSE;
  }

  static constexpr const char* kMaker = "plug-in maker.exe";
  static constexpr const char* kCleaner = "tavrclean.exe";
  static constexpr const char* kTranslator = "tavrlocale.exe";

 private:
  std::vector<std::unique_ptr<Tool>> tools_;
};

TEST_F(Commands, ThePlugInMakerIsStartedFromTheColumnAndTheToolbar) {
  start();
  program().click("Form1.cmd_plugin");
  EXPECT_TRUE(starts(kMaker, kMinimised));
  program().click("Form1.Toolbar1(4)");
  EXPECT_TRUE(starts(kMaker, kMinimised));
}

TEST_F(Commands, ThePlugInMakerIsStartedFromThePanelOfThePlugIns) {
  start();
  program().click("Form1.cmd_settings");
  ASSERT_TRUE(program().comesUp("Form2"));
  program().click("Form2.chameleonButton31");
  ASSERT_TRUE(program().comesUp("Form2.chameleonButton13"));
  program().click("Form2.chameleonButton13");
  EXPECT_TRUE(starts(kMaker, kShown));
}

TEST_F(Commands, TheLastToolStartsTheMakersCleaner) {
  start();
  program().click("Form1.Toolbar1(14)");
  EXPECT_TRUE(starts(kCleaner, kShown));
}

TEST_F(Commands, TheLastLinkOfTheAboutBoxStartsTheTranslator) {
  start();
  program().click("Form1.chameleonButton13");
  ASSERT_TRUE(program().comesUp("frmabout"));
  program().click("frmabout.Label2(0)");
  EXPECT_TRUE(starts(kTranslator, kShown));
  EXPECT_TRUE(program().sees("frmabout"));
}

}  // namespace
}  // namespace tavr::testing
