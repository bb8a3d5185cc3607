// Test, Erase, Stop and the log, pressed as a person presses them.
#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>

#include "platform/win32/wide.h"
#include "services/settings_keys.h"
#include "tests/windows/window/task_bar.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

constexpr int kSessions = 44;
constexpr int kTemporaryFiles = 10;
constexpr int kChromeRow = 2;
constexpr int kStatus = 1;
constexpr std::uint32_t kRun = 60000;   // ms
constexpr std::uint32_t kAtOnce = 250;  // ms, as a person takes it
constexpr int kManyFiles = 100000;

std::string localAppData() {
  wchar_t folder[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"LOCALAPPDATA", folder, MAX_PATH);
  return win32::narrow(folder);
}

std::string temporaryFolder() {
  wchar_t folder[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, folder);
  return win32::narrow(folder);
}

constexpr std::string_view kSessionFolder = "\\Google\\Chrome\\User Data\\Default\\Session Storage";
constexpr int kFilesOfAFolder = 250;

// The browser names its profiles below this key.
constexpr wchar_t kProfile[] = L"Software\\Google\\Chrome\\PreferenceMACs\\Default";

class Run : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, kProfile, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
    RegCloseKey(key);
    select(kSessions);
    removeFolder(place(localAppData() + std::string(kSessionFolder)));
  }
  void TearDown() override {
    WindowTest::TearDown();
    removeFolder(place(localAppData() + std::string(kSessionFolder)));
  }

  static std::string session(int number) {
    return localAppData() + std::string(kSessionFolder) + "\\" +
           std::to_string(number / kFilesOfAFolder) + "\\" + std::to_string(number) + ".log";
  }
  static void plant(int count) {
    for (int i = 0; i < count; ++i) {
      if (i % kFilesOfAFolder == 0) write(session(i), "trace");
      const HANDLE file = CreateFileW(place(session(i)).c_str(), GENERIC_WRITE, 0, nullptr,
                                      CREATE_ALWAYS, 0, nullptr);
      CloseHandle(file);
    }
  }
  bool finished() {
    return comes([this] { return program().enabled("Form1.cmd_start"); }, kRun);
  }
  std::string status(int row) { return list("Form1.View100").text(row, kStatus); }
};

TEST_F(Run, ATestCountsTheTracksAndErasesNothing) {
  plant(3);
  start();
  program().click("Form1.cmd_test");
  EXPECT_TRUE(comes([this] { return status(kChromeRow) == "Finished"; }, kRun));
  EXPECT_TRUE(finished());
  EXPECT_TRUE(program().goes("Form1.bar1"));
  EXPECT_EQ(list("Form1.View100").text(kChromeRow, 2), "3");
  EXPECT_EQ(program().text("Form1.Label4"), "3");
  EXPECT_THAT(list("Form1.View200").column(), Contains(HasSubstr("Session Storage\\0\\0.log")));
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(exists(session(i)));
}

TEST_F(Run, AnEraseTakesTheTracksAndNotesThemInTheLog) {
  plant(3);
  start();
  program().click("Form1.cmd_start");
  EXPECT_TRUE(comes([this] { return status(kChromeRow) == "Finished"; }, kRun));
  EXPECT_TRUE(finished());
  EXPECT_TRUE(program().goes("Form1.bar1"));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(exists(session(i)));
  EXPECT_THAT(contents("eraselog.txt"), HasSubstr("Session Storage"));
}

TEST_F(Run, TheToolbarsTestTakesTheToolsAwayMeanwhile) {
  plant(30000);
  start();
  program().click("Form1.Toolbar1(6)");
  EXPECT_TRUE(comes([this] { return program().enabled("Form1.Toolbar1(10)"); }));
  EXPECT_TRUE(program().comesUp("Form1.Gif89a1"));
  EXPECT_TRUE(program().sees("Form1.bar1"));
  EXPECT_FALSE(program().enabled("Form1.Toolbar1(8)"));
  EXPECT_TRUE(comes([this] { return !program().sees("Form1.Gif89a1"); }, kRun));
}

TEST_F(Run, TotalsAndProgressMoveDuringARun) {
  plant(20000);
  start();
  program().click("Form1.cmd_start");
  EXPECT_TRUE(program().comesUp("Form1.bar1"));
  EXPECT_TRUE(comes([this] { return list("Form1.View200").rows() > 100; }, kRun));
  const int before = list("Form1.View200").rows();
  EXPECT_TRUE(comes([&] { return list("Form1.View200").rows() > before; }, kRun));
  EXPECT_EQ(status(kChromeRow), "Test Erasing");
  EXPECT_TRUE(program().enabled("Form1.cmd_stop"));
}

// The totals come behind each group: those of Windows while a browser's is at work.
TEST_F(Run, TheFiguresOfWhatIsDoneAreShownAndKeptWhileTheRunGoesOn) {
  const std::string folder = temporaryFolder();
  write(folder + "one.tmp", std::string(2048, 'x'));
  write(folder + "two.tmp", "x");
  select(kTemporaryFiles);
  plant(30000);
  start();
  program().click("Form1.cmd_start");
  EXPECT_TRUE(comes([this] { return list("Form1.View200").rows() > 1000; }, kRun));
  ASSERT_TRUE(program().enabled("Form1.cmd_stop"));
  const int files = std::atoi(program().text("Form1.Label4").c_str());
  EXPECT_GE(files, 2);
  EXPECT_THAT(program().text("Form1.Label6"), HasSubstr(" KB"));
  EXPECT_TRUE(comes([&] { return setting(settings::kLiveKey, "tracks-file-count") != ""; }));
  EXPECT_GE(std::atoi(setting(settings::kLiveKey, "tracks-file-count").c_str()), files);
  EXPECT_NE(setting(settings::kLiveKey, "tracks-size-count"), "");
  EXPECT_NE(setting(settings::kLiveKey, "tracks-reg-count"), "");
  EXPECT_TRUE(program().enabled("Form1.cmd_stop")) << "still at work";
}

TEST_F(Run, TheToolbarErasesAndStops) {
  plant(30000);
  start();
  program().click("Form1.Toolbar1(8)");
  EXPECT_TRUE(comes([this] { return list("Form1.View200").rows() > 100; }, kRun));
  EXPECT_TRUE(program().enabled("Form1.Toolbar1(10)"));
  program().click("Form1.Toolbar1(10)");
  EXPECT_TRUE(comes([this] { return !program().enabled("Form1.Toolbar1(10)"); }));
  EXPECT_TRUE(comes([] { return exists("eraselog.txt"); }, kRun));
  EXPECT_TRUE(exists(session(0)) || exists(session(29999)) || exists(session(15000)));
}

// A browser that runs, as far as its name goes.
class RunningBrowser : public Run {
 protected:
  void SetUp() override {
    Run::SetUp();
    ASSERT_TRUE(CopyFileW(place("form_alone.exe").c_str(), file_.c_str(), FALSE));
    browser_ = std::make_unique<DrivenProgram>("Form4", L"chrome.exe");
    ASSERT_TRUE(browser_->comesUp("Form4.command2"));
    plant(2);
  }
  void TearDown() override {
    browser_.reset();
    Run::TearDown();
    EXPECT_TRUE(comes([this] { return DeleteFileW(file_.c_str()) != FALSE; }));
  }
  void eraseAndAnswer(int button) {
    start();
    program().click("Form1.cmd_start");
    const HWND box = program().waitForBox(kRun);
    ASSERT_NE(box, nullptr);
    EXPECT_THAT(DrivenProgram::textOfBox(box), HasSubstr("Google chrome is running"));
    wchar_t title[32] = L"";
    GetWindowTextW(box, title, 32);
    EXPECT_STREQ(title, L"confirmation");
    EXPECT_FALSE(IsWindowEnabled(program().form("Form1")));
    DrivenProgram::answer(box, button);
    EXPECT_TRUE(comes([this] { return status(kChromeRow) == "Finished"; }, kRun));
  }

  std::unique_ptr<DrivenProgram> browser_;

 private:
  const std::wstring file_ = place("chrome.exe");
};

TEST_F(RunningBrowser, IsEndedWhenThePersonAgreesAndItsTracksGo) {
  eraseAndAnswer(IDYES);
  EXPECT_EQ(browser_->waitForEnd(), 0U);
  EXPECT_FALSE(exists(session(0)));
}

TEST_F(RunningBrowser, StaysWithItsTracksWhenThePersonDoesNot) {
  eraseAndAnswer(IDNO);
  EXPECT_TRUE(browser_->running());
  EXPECT_TRUE(exists(session(0)));
}

TEST_F(Run, TheWindowGoesToTheTrayAndComesBackDuringARun) {
  plant(30000);
  TaskBar bar;
  start();
  program().click("Form1.cmd_start");
  EXPECT_TRUE(comes([this] { return list("Form1.View200").rows() > 100; }, kRun));
  program().click("Form1.chameleonButton10");
  EXPECT_TRUE(program().goes("Form1"));
  ASSERT_TRUE(bar.showsIcon());
  bar.mouse(WM_LBUTTONDOWN);
  EXPECT_TRUE(program().comesUp("Form1"));
  EXPECT_TRUE(program().enabled("Form1.cmd_stop"));
  program().click("Form1.cmd_stop");
  EXPECT_TRUE(finished());
}

TEST_F(Run, ClosingDuringARunEndsBoth) {
  plant(30000);
  start();
  program().click("Form1.cmd_start");
  EXPECT_TRUE(comes([this] { return list("Form1.View200").rows() > 100; }, kRun));
  program().click("Form1.chameleonButton9");
  EXPECT_EQ(program().waitForEnd(), 0U);
  EXPECT_TRUE(exists(session(0)) || exists(session(29999)) || exists(session(15000)));
}

TEST_F(Run, StopIsServedAtOnceWhileManyFilesAreErased) {
  plant(kManyFiles);
  start();
  program().click("Form1.cmd_start");
  EXPECT_TRUE(comes([this] { return list("Form1.View200").rows() > 1000; }, kRun));
  const HWND stop = program().window("Form1.cmd_stop");
  POINT at = middleOf(stop);
  ClientToScreen(stop, &at);
  movePointer(at);
  pressMouse();
  const ULONGLONG pressed = GetTickCount64();
  EXPECT_TRUE(comes([&] { return !IsWindowEnabled(stop); }, kRun));
  EXPECT_LE(GetTickCount64() - pressed, kAtOnce);
  EXPECT_TRUE(finished());
  EXPECT_TRUE(exists(session(0)) || exists(session(kManyFiles - 1)) ||
              exists(session(kManyFiles / 2)));
}

TEST_F(Run, TheLogIsClearedAndTheProgramSaysSo) {
  write("eraselog.txt", "an old line\r\n");
  start();
  program().click("Form1.cmd_clear");
  EXPECT_TRUE(program().comesUp("frmmsg"));
  EXPECT_EQ(program().text("frmmsg"), "Spoorwipe");
  EXPECT_EQ(program().text("frmmsg.Text1"), "Successfully Cleaned Log File");
  EXPECT_EQ(contents("eraselog.txt"), "");
  program().click("frmmsg.chameleonButton1");
  EXPECT_TRUE(program().goes("frmmsg"));
}

// Wine has the editor, but leaves it to the person which files it opens.
TEST_F(Run, TheLogIsShownByTheProgramThatOpensTexts) {
  constexpr wchar_t kTexts[] = L"txtfile";
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\.txt", nullptr, REG_SZ, kTexts,
                  sizeof(kTexts));
  write("eraselog.txt", "one line\r\n");
  start();
  program().click("Form1.cmd_view");
  HWND viewer = nullptr;
  EXPECT_TRUE(comes([&] { return (viewer = FindWindowW(L"Notepad", nullptr)) != nullptr; }));
  EXPECT_TRUE(comes([&] {
    wchar_t title[256] = L"";
    GetWindowTextW(viewer, title, 256);
    return std::wstring_view(title).find(L"eraselog") != std::wstring_view::npos;
  }));
  SendMessageW(viewer, WM_CLOSE, 0, 0);
}

}  // namespace
}  // namespace tavr::testing
