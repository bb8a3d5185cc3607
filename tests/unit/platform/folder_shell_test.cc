#include "platform/folder/folder_shell.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/folder/folder_environment.h"
#include "platform/folder/folder_files.h"
#include "platform/folder/folder_tree.h"
#include "platform/folder/recycle_bin.h"
#include "tests/unit/platform/scratch_folder.h"

namespace tavr::folder {
namespace {

using namespace std::string_literals;

constexpr std::string_view kAppPath = "C:\\Program Files\\Tavr Wipe";

class FolderShellTest : public ::testing::Test {
 protected:
  FolderShellTest() {
    folder.write("C/Program Files/Tavr Wipe/tavrclean.exe", "MZ");
    folder.write("C/Program Files/Tavr Wipe/plug-in maker.exe", "MZ");
    folder.write("C/Program Files/Tavr Wipe/eraselog.txt", "log");
    folder.write("C/Program Files/Tavr Wipe/help.chm", "ITSF");
  }

  testing::ScratchFolder folder;
  Faults faults;
  FolderTree tree{folder.path(), std::string(kAppPath)};
  FolderFiles files{tree, {}, faults};
  RecycleBin recycle_bin{tree, {}, faults};
  FolderEnvironment environment{{}, std::string(kAppPath)};
  FolderShell shell{folder.path(), "C:\\Cookies", recycle_bin, files, environment, faults};
};

TEST_F(FolderShellTest, TheCookiesFolderIsAPathAndANul) {
  std::string buffer;
  EXPECT_EQ(shell.specialFolder(33, buffer), kSuccess);
  EXPECT_EQ(buffer, "C:\\Cookies\0"s);
}

TEST_F(FolderShellTest, NoOtherFolderIsKnown) {
  std::string buffer = "old";
  EXPECT_EQ(shell.specialFolder(32, buffer), kFileNotFound);
  EXPECT_EQ(buffer, "");
}

TEST_F(FolderShellTest, TheRecycleBinIsTheMachines) {
  folder.write("C/$Recycle.Bin/S-1-5/$RABC.txt", "12345");
  folder.write("C/$Recycle.Bin/S-1-5/$IABC.txt", "x");
  std::int64_t size = 0;
  std::int64_t items = 0;
  EXPECT_EQ(shell.queryRecycleBin(size, items), kSuccess);
  EXPECT_EQ(size, 5);
  EXPECT_EQ(items, 1);
  EXPECT_EQ(shell.emptyRecycleBin(7), kSuccess);
  EXPECT_FALSE(folder.has("C/$Recycle.Bin/S-1-5/$RABC.txt"));
  EXPECT_FALSE(folder.has("C/$Recycle.Bin/S-1-5/$IABC.txt"));
}

TEST_F(FolderShellTest, OpeningIsWrittenDownAndSucceedsForWhatExists) {
  EXPECT_EQ(shell.execute("open", "C:\\Program Files\\Tavr Wipe\\ERASELOG.TXT", 1), kSuccess);
  EXPECT_EQ(shell.execute("", "C:\\Program Files\\Tavr Wipe\\gone.txt", 5), kFileNotFound);
  EXPECT_EQ(shell.execute("", "C:\\gone\\gone.txt", 1), kPathNotFound);
  EXPECT_EQ(shell.execute("open", "http://localhost/a\nb", 1), kSuccess);
  EXPECT_EQ(shell.execute("", "mailto:a@b", 1), kSuccess);
  EXPECT_EQ(folder.read("shell.log"),
            "execute 1 open C:\\Program Files\\Tavr Wipe\\ERASELOG.TXT\n"
            "execute 5 - C:\\Program Files\\Tavr Wipe\\gone.txt\n"
            "execute 1 - C:\\gone\\gone.txt\n"
            "execute 1 open http://localhost/a b\n"
            "execute 1 - mailto:a@b\n");
}

TEST_F(FolderShellTest, AProgramOfTheMachineRuns) {
  for (const std::string_view command :
       {"C:\\Program Files\\Tavr Wipe\\tavrclean.exe", "tavrclean.exe", "tavrclean -x",
        "\"C:\\Program Files\\Tavr Wipe\\plug-in maker.exe\" a b",
        "C:\\Program Files\\Tavr Wipe\\plug-in maker.exe a b", "  tavrclean.exe", "\"tavrclean"}) {
    EXPECT_EQ(shell.run(command, 1), kSuccess) << command;
  }
}

TEST_F(FolderShellTest, TheTaskPlannerIsPartOfEveryMachine) {
  EXPECT_EQ(shell.run("schtasks /create /tn \"Tavrwork Spoorwipe\"", 0), kSuccess);
  EXPECT_EQ(shell.run("SCHTASKS.EXE /delete", 0), kSuccess);
  EXPECT_EQ(shell.run("C:\\Windows\\System32\\schtasks.exe /delete", 0), kSuccess);
  EXPECT_EQ(folder.read("shell.log"),
            "run 0 schtasks /create /tn \"Tavrwork Spoorwipe\"\n"
            "run 0 SCHTASKS.EXE /delete\n"
            "run 0 C:\\Windows\\System32\\schtasks.exe /delete\n");
}

TEST_F(FolderShellTest, WhatIsNoProgramDoesNotRun) {
  for (const std::string_view command :
       {"", " ", "\"\"", "Start http://localhost/", "gone.exe", "C:\\Program Files\\Tavr Wipe",
        "\"tavrclean.exe x\"", "schtasks2"}) {
    EXPECT_EQ(shell.run(command, 1), kFileNotFound) << command;
  }
}

TEST_F(FolderShellTest, HelpNeedsItsFile) {
  EXPECT_EQ(shell.htmlHelp("C:\\Program Files\\Tavr Wipe\\help.chm::/a.htm>main", 0, 7), kSuccess);
  EXPECT_EQ(shell.htmlHelp("C:\\Program Files\\Tavr Wipe\\gone.chm>main", 1, 0), kFileNotFound);
  EXPECT_EQ(folder.read("shell.log"),
            "htmlhelp 0 7 C:\\Program Files\\Tavr Wipe\\help.chm::/a.htm>main\n"
            "htmlhelp 1 0 C:\\Program Files\\Tavr Wipe\\gone.chm>main\n");
}

TEST_F(FolderShellTest, FaultsFailTheirOperation) {
  faults.add("SHGetSpecialFolderLocation", 1, kAccessDenied);
  faults.add("ShellExecute", 1, kAccessDenied);
  faults.add("CreateProcess", 1, kAccessDenied);
  faults.add("HtmlHelp", 1, kAccessDenied);
  std::string buffer;
  EXPECT_EQ(shell.specialFolder(33, buffer), kAccessDenied);
  EXPECT_EQ(buffer, "");
  EXPECT_EQ(shell.execute("", "http://localhost/", 1), kAccessDenied);
  EXPECT_EQ(shell.run("schtasks", 1), kAccessDenied);
  EXPECT_EQ(shell.htmlHelp("C:\\Program Files\\Tavr Wipe\\help.chm", 0, 0), kAccessDenied);
  EXPECT_EQ(shell.specialFolder(33, buffer), kSuccess);
  EXPECT_EQ(shell.run("schtasks", 1), kSuccess);
}

}  // namespace
}  // namespace tavr::folder
