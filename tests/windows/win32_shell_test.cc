// What platform/win32/win32_shell.h starts, and how: the recorder, under the names
// of the programs that are meant.
#include "platform/win32/win32_shell.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <thread>
#include <utility>

#include "platform/win32/com.h"
#include "platform/win32/program_file.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_files.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::win32 {
namespace {

std::string ownFolder() { return Win32Environment().appPath() + "\\"; }

// A copy of the recorder; it and its note go with it.
class Recorder {
 public:
  explicit Recorder(std::string path) : path_(std::move(path)) {
    EXPECT_TRUE(CopyFileW(wide(ownFolder() + "recorder.exe").c_str(), wide(path_).c_str(), FALSE))
        << path_;
  }
  ~Recorder() {
    constexpr int kLooks = 100;  // its process may be about to end
    for (int i = 0; i < kLooks && !DeleteFileW(wide(path_).c_str()); ++i) Sleep(20);
    DeleteFileW(wide(path_ + ".txt").c_str());
  }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  const std::string& path() const { return path_; }
  /// Command line and style, each with its line's end; "" when nothing has started.
  std::string note(DWORD longest_wait = 10'000) const {
    Win32Files files;
    for (const ULONGLONG end = GetTickCount64() + longest_wait; GetTickCount64() < end; Sleep(20)) {
      const OpenedFile opened = files.open(path_ + ".txt", OpenMode::kInput);
      std::string text;
      if (opened.file && opened.file->read(0, 4096, text) == kSuccess) return text;
    }
    return {};
  }

 private:
  std::string path_;
};

class Win32ShellTest : public ::testing::Test {
 protected:
  std::string at(std::string_view name) const { return scratch_.path() + "\\" + std::string(name); }
  Win32Shell shell_;

 private:
  contract::ScratchFolder scratch_{"TavrWin32Shell"};
};

// A thread without COM may share another's apartment, but never one of this kind.
bool hasItsOwnApartment() {
  APTTYPE type{};
  APTTYPEQUALIFIER qualifier{};
  return CoGetApartmentType(&type, &qualifier) == S_OK &&
         (type == APTTYPE_STA || type == APTTYPE_MAINSTA);
}

// A run binds WMI late or not at all, and the shell must not depend on it.
TEST_F(Win32ShellTest, ComIsThereForTheShellsObjectsForAsLongAsTheShellIs) {
  std::thread elsewhere([] {
    EXPECT_FALSE(hasItsOwnApartment());
    {
      const Win32Shell shell;
      EXPECT_TRUE(hasItsOwnApartment());
    }
    EXPECT_FALSE(hasItsOwnApartment());
  });
  elsewhere.join();
}

// The texts of the task that starts the program at log-on.
TEST_F(Win32ShellTest, ATaskIsMadeAndDeletedWithItsTextAsItStandsAndWithoutAWindow) {
  const std::string make =
      "schtasks /create /SC ONLOGON /rl highest /tn \"Tavrwork Spoorwipe\" "
      "/tr \"'" +
      ownFolder() + "tavrwipe.exe s'\"";
  for (const std::string& text :
       {make, std::string("schtasks /Delete /TN \"Tavrwork Spoorwipe\" /F")}) {
    const Recorder schtasks(ownFolder() + "schtasks.exe");
    ASSERT_EQ(shell_.run(text, 0), kSuccess);
    EXPECT_EQ(schtasks.note(), text + "\n0\n");
  }
}

TEST_F(Win32ShellTest, TheStyleOfTheWindowArrives) {
  for (const int style : {1, 6}) {
    const Recorder program(at("a program.exe"));
    const std::string text = "\"" + program.path() + "\" one \"two three\"";
    ASSERT_EQ(shell_.run(text, style), kSuccess);
    EXPECT_EQ(program.note(), text + "\n" + std::to_string(style) + "\n");
  }
}

TEST_F(Win32ShellTest, AProgramInTheCurrentDirectoryIsNoneByItsNameAlone) {
  const Recorder planted(at("tavrplanted.exe"));
  ASSERT_EQ(Win32Files().setCurrentDirectory(at("")), kSuccess);
  EXPECT_EQ(shell_.run("tavrplanted", 0), kFileNotFound);
  EXPECT_EQ(planted.note(200), "");
  EXPECT_EQ(shell_.run(".\\tavrplanted.exe", 0), kSuccess) << "named by its place it is one";
  EXPECT_NE(planted.note(), "");
}

TEST_F(Win32ShellTest, OpeningAProgramStartsIt) {
  for (const char* verb : {"open", ""}) {
    const Recorder program(at("opened.exe"));
    ASSERT_EQ(shell_.execute(verb, program.path(), 0), kSuccess);
    EXPECT_NE(program.note().find("opened.exe"), std::string::npos);
  }
}

TEST_F(Win32ShellTest, HelpThatIsNotThereIsNotShown) {
  EXPECT_EQ(shell_.htmlHelp(at("none.chm") + "::/page.htm>window", 0, 0), kFileNotFound);
  EXPECT_EQ(shell_.htmlHelp(at("none\\none.chm"), 0, 0), kPathNotFound);
}

TEST(Win32ProgramFileTest, ALiftedLimitIsNoPartOfTheProgramsPlace) {
  EXPECT_EQ(withoutLiftedLimit(L"\\\\?\\C:\\a\\b.exe"), L"C:\\a\\b.exe");
  EXPECT_EQ(withoutLiftedLimit(L"\\\\?\\UNC\\server\\share\\b.exe"), L"\\\\server\\share\\b.exe");
  EXPECT_EQ(withoutLiftedLimit(L"C:\\a\\b.exe"), L"C:\\a\\b.exe");
  EXPECT_EQ(withoutLiftedLimit(L"\\\\server\\b.exe"), L"\\\\server\\b.exe");
}

}  // namespace
}  // namespace tavr::win32
