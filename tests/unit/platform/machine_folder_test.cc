#include "platform/folder/machine_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>

#include "tests/unit/platform/scratch_folder.h"

namespace tavr::folder {
namespace {

using namespace std::string_literals;

constexpr std::string_view kMoniker =
    "winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv";
constexpr std::string_view kRegistryHead = "Windows Registry Editor Version 5.00\n";
constexpr std::uint32_t kQuerySetCreate = 0x7;

class MachineFolderTest : public ::testing::Test {
 protected:
  testing::ScratchFolder folder;

  // What the folder is refused with, its own path cut off; "" when it is taken.
  std::string refusal() const {
    try {
      const MachineFolder machine(folder.path());
    } catch (const UnusableMachine& error) {
      const std::string what = error.what();
      EXPECT_TRUE(what.starts_with(folder.path())) << what;
      EXPECT_EQ(what.find('\n'), std::string::npos);
      return what.substr(folder.path().size());
    }
    return "";
  }

  std::map<std::string, std::string> everyFile() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
      const std::string name = entry.path().lexically_relative(folder.path()).string();
      files[name] = entry.is_regular_file() ? folder.read(name) : "";
    }
    return files;
  }

  static std::string text(Machine& machine, std::string_view key, std::string_view name) {
    const OpenedKey opened = machine.registry.open(Root::kCurrentUser, key, 0x1);
    RegistryData data;
    if (opened.status != kSuccess || opened.key->queryValue(name, 1024, data) != kSuccess) {
      return "(missing)";
    }
    return data.data.substr(0, data.data.find('\0'));
  }

  static void setText(Machine& machine, std::string_view key, std::string_view value) {
    const OpenedKey opened = machine.registry.create(Root::kCurrentUser, key, "", kQuerySetCreate);
    ASSERT_EQ(opened.status, kSuccess);
    ASSERT_EQ(opened.key->setValue("v", kRegSz, value), kSuccess);
  }
};

TEST_F(MachineFolderTest, AnEmptyFolderIsAMachineWithDefaults) {
  MachineFolder owner(folder.path());
  Machine& machine = owner.machine();
  EXPECT_EQ(machine.environment.get("userprofile"), "C:\\Users\\user");
  EXPECT_EQ(machine.environment.appPath(), "C:\\Program Files\\Tavr Wipe");
  std::string cookies;
  EXPECT_EQ(machine.shell.specialFolder(33, cookies), kSuccess);
  EXPECT_EQ(cookies, "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies\0"s);
  std::vector<ProcessEntry> running;
  EXPECT_EQ(machine.processes.snapshot(running), kSuccess);
  EXPECT_TRUE(running.empty());
  EXPECT_EQ(machine.parent.findWindow("Tavrwork Brightbox"), 0U);
  EXPECT_EQ(machine.dialogs.messageBox("Close it?", 52, ""), kAnswerNo);
  CacheEntry entry;
  EXPECT_EQ(machine.url_cache.findFirst(entry), nullptr);
}

TEST_F(MachineFolderTest, ReadingAndSavingAnUnchangedMachineTouchesNothing) {
  folder.write("machine.ini", "[clock]\nstart=2026-11-20T10:00:00\n");
  folder.write("registry.reg", std::string(kRegistryHead) + "\n; kept\n[HKEY_CURRENT_USER\\a]\n");
  folder.write("processes.txt", " 1   a.exe");
  folder.write("urlcache.txt", "1\tu\t\n\n");
  folder.write("notes.txt", "somebody else's");
  folder.write("C/x.txt", "x");
  const auto before = everyFile();
  {
    MachineFolder machine(folder.path());
    machine.machine().events.wait(100);
    EXPECT_TRUE(machine.save());
  }
  EXPECT_EQ(everyFile(), before);
}

TEST_F(MachineFolderTest, TheIniReachesEveryPartOfTheMachine) {
  folder.write("machine.ini",
               "[environment]\nUserName=ann\nX=1\n[program]\npath=D:\\T\\\n[folders]\n"
               "cookies=D:\\<UserName>\n[clock]\nstart=2026-11-20T10:00:00\n[answers]\n"
               "default=yes\nopera=no\n[parent]\nwindow=Tavrwork Brightbox\n"
               "[fault]\nOpenProcess=1,5\n");
  folder.write("processes.txt", "7 a.exe\n");
  MachineFolder owner(folder.path() + "//");
  Machine& machine = owner.machine();
  EXPECT_EQ(machine.environment.get("temp"), "C:\\Users\\ann\\AppData\\Local\\Temp");
  EXPECT_EQ(machine.environment.get("x"), "1");
  EXPECT_EQ(machine.environment.appPath(), "D:\\T");
  std::string cookies;
  machine.shell.specialFolder(33, cookies);
  EXPECT_EQ(cookies, "D:\\ann\0"s);
  machine.events.wait(61'000);
  EXPECT_EQ(machine.locale.longTime(machine.clock.now()), "10:01:01 AM");
  EXPECT_EQ(machine.clock.ticks(), 61'000U);
  EXPECT_EQ(machine.dialogs.messageBox("Opera", 52, ""), kAnswerNo);
  EXPECT_EQ(machine.dialogs.messageBox("Edge", 52, ""), kAnswerYes);
  EXPECT_NE(machine.parent.findWindow("Tavrwork Brightbox"), 0U);
  std::unique_ptr<Process> process;
  EXPECT_EQ(machine.processes.open(7, 1, process), kAccessDenied);
  EXPECT_EQ(machine.processes.open(7, 1, process), kSuccess);
}

TEST_F(MachineFolderTest, AFolderThatIsMissingOrNoFolderIsRefused) {
  const auto refused = [](const std::string& path) -> std::string {
    try {
      const MachineFolder machine(path);
    } catch (const UnusableMachine& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refused(folder.at("gone")), folder.at("gone") + ": no such folder");
  folder.write("file", "x");
  EXPECT_EQ(refused(folder.at("file")), folder.at("file") + ": is not a folder");
}

TEST_F(MachineFolderTest, AFolderThatCannotBeWrittenToIsRefused) {
  if (::geteuid() == 0) {
    // Everything may be written to by root, but /proc takes no files.
    EXPECT_THROW(MachineFolder("/proc/self"), UnusableMachine);
    return;
  }
  ASSERT_EQ(::chmod(folder.path().c_str(), 0500), 0);
  EXPECT_EQ(refusal(), ": cannot be written to");
  ASSERT_EQ(::chmod(folder.path().c_str(), 0700), 0);
}

TEST_F(MachineFolderTest, AMalformedFileIsRefusedWithItsLineAndNothingIsTouched) {
  const std::pair<std::string, std::string> bad[] = {
      {"machine.ini", "[clock]\nstart=now\n"},
      {"registry.reg", std::string(kRegistryHead) + "\nnonsense\n"},
      {"processes.txt", "1 a.exe\nb.exe\n"},
      {"urlcache.txt", "1\tu\t\nu\n"},
      {"locked.txt", "C:\\a\nb\n"},
  };
  for (const auto& [name, text] : bad) {
    folder.write(name, text);
    const auto before = everyFile();
    const std::string what = refusal();
    const std::string line = name == "registry.reg" ? ":3: " : ":2: ";
    EXPECT_TRUE(what.starts_with("/" + name + line)) << what;
    EXPECT_GT(what.size(), name.size() + 5);
    EXPECT_EQ(everyFile(), before);
    std::filesystem::remove(folder.at(name));
  }
  EXPECT_EQ(refusal(), "");
}

TEST_F(MachineFolderTest, ALinkOrAFolderInPlaceOfAFileIsRefused) {
  folder.write("elsewhere", "");
  for (const std::string name :
       {"machine.ini", "registry.reg", "processes.txt", "urlcache.txt", "locked.txt"}) {
    std::filesystem::create_symlink(folder.at("elsewhere"), folder.at(name));
    EXPECT_TRUE(refusal().starts_with("/" + name + ": ")) << name << refusal();
    std::filesystem::remove(folder.at(name));
    std::filesystem::create_directory(folder.at(name));
    EXPECT_TRUE(refusal().starts_with("/" + name + ": ")) << name << refusal();
    std::filesystem::remove(folder.at(name));
  }
}

TEST_F(MachineFolderTest, ALogThatIsNoFileOfItsOwnIsRefused) {
  folder.write("elsewhere", "kept\n");
  for (const std::string name : {"events.log", "shell.log", "parent.log"}) {
    SCOPED_TRACE(name);
    std::filesystem::create_symlink(folder.at("elsewhere"), folder.at(name));
    EXPECT_EQ(refusal(), "/" + name + ": is a link");
    std::filesystem::remove(folder.at(name));
    std::filesystem::create_symlink(folder.at("missing"), folder.at(name));
    EXPECT_EQ(refusal(), "/" + name + ": is a link");
    std::filesystem::remove(folder.at(name));
    std::filesystem::create_directory(folder.at(name));
    EXPECT_EQ(refusal(), "/" + name + ": is not a file");
    std::filesystem::remove(folder.at(name));
    ASSERT_EQ(::mkfifo(folder.at(name).c_str(), 0600), 0);
    EXPECT_EQ(refusal(), "/" + name + ": is not a file");
    std::filesystem::remove(folder.at(name));
    std::filesystem::create_hard_link(folder.at("elsewhere"), folder.at(name));
    EXPECT_EQ(refusal(), "/" + name + ": has a second name");
    std::filesystem::remove(folder.at(name));
    folder.write(name, "an earlier run\n");
  }
  EXPECT_EQ(refusal(), "");
  EXPECT_EQ(folder.read("elsewhere"), "kept\n");
}

TEST_F(MachineFolderTest, EveryFileIsThatOfTheFolderFoundFirst) {
  folder.write("one/processes.txt", "7 a.exe\n");
  folder.write("two/processes.txt", "7 a.exe\n");
  std::filesystem::create_directory_symlink("one", folder.at("way"));
  MachineFolder owner(folder.at("way"));
  std::filesystem::remove(folder.at("way"));
  std::filesystem::create_directory_symlink("two", folder.at("way"));
  setText(owner.machine(), "Software\\a", "1");
  EXPECT_EQ(owner.machine().shell.execute("open", "http://a", 1), kSuccess);
  std::unique_ptr<Process> process;
  ASSERT_EQ(owner.machine().processes.open(7, 1, process), kSuccess);
  EXPECT_EQ(process->terminate(0), kSuccess);
  EXPECT_TRUE(owner.save());
  EXPECT_EQ(folder.read("one/processes.txt"), "");
  EXPECT_TRUE(folder.has("one/registry.reg"));
  EXPECT_TRUE(folder.has("one/shell.log"));
  EXPECT_EQ(folder.read("two/processes.txt"), "7 a.exe\n");
  EXPECT_FALSE(folder.has("two/registry.reg"));
  EXPECT_FALSE(folder.has("two/shell.log"));
}

TEST_F(MachineFolderTest, AnOperationFailsAtEveryCallThatALineNames) {
  folder.write("machine.ini", "[fault]\nDeleteFile=1,5\nDeleteFile=3,32\n");
  for (const char* name : {"C/a", "C/b"}) folder.write(name, "");
  MachineFolder owner(folder.path());
  EXPECT_EQ(owner.machine().files.remove("C:\\a"), kAccessDenied);
  EXPECT_EQ(owner.machine().files.remove("C:\\a"), kSuccess);
  EXPECT_EQ(owner.machine().files.remove("C:\\b"), kSharingViolation);
  EXPECT_EQ(owner.machine().files.remove("C:\\b"), kSuccess);
}

TEST_F(MachineFolderTest, TheRegistryIsWrittenBySaveAndByTheNextWait) {
  folder.write("machine.ini", "[clock]\nstart=2026-11-20T10:00:00\n");
  MachineFolder owner(folder.path());
  setText(owner.machine(), "Software\\a", "1");
  EXPECT_FALSE(folder.has("registry.reg"));
  owner.machine().events.wait(1);
  EXPECT_EQ(text(MachineFolder(folder.path()).machine(), "Software\\a", "v"), "1");
  setText(owner.machine(), "Software\\a", "2");
  EXPECT_EQ(text(MachineFolder(folder.path()).machine(), "Software\\a", "v"), "1");
  EXPECT_TRUE(owner.save());
  EXPECT_EQ(text(MachineFolder(folder.path()).machine(), "Software\\a", "v"), "2");
}

TEST_F(MachineFolderTest, WithoutSavingTheOldRegistryStands) {
  folder.write("registry.reg",
               std::string(kRegistryHead) + "\n[HKEY_CURRENT_USER\\a]\n\"v\"=\"0\"\n");
  const std::string before = folder.read("registry.reg");
  {
    MachineFolder owner(folder.path());
    setText(owner.machine(), "a", "1");
    EXPECT_EQ(text(owner.machine(), "a", "v"), "1");
  }
  EXPECT_EQ(folder.read("registry.reg"), before);
}

TEST_F(MachineFolderTest, ALockedFileIsHeldBySomebodyElse) {
  folder.write("locked.txt", "c:\\A\\held.txt  \r\n\nC:\\missing.txt\n");
  folder.write("C/a/held.txt", "x");
  folder.write("C/a/free.txt", "x");
  MachineFolder owner(folder.path());
  EXPECT_EQ(owner.machine().files.remove("C:\\a\\held.txt"), kSharingViolation);
  EXPECT_EQ(owner.machine().files.remove("C:\\a\\free.txt"), kSuccess);
}

TEST_F(MachineFolderTest, TheRegistryProviderExpandsTheMachinesVariables) {
  folder.write("registry.reg", std::string(kRegistryHead) +
                                   "\n[HKEY_CURRENT_USER\\a]\n\"v\"=\"%USERPROFILE%\\\\x\"\n");
  MachineFolder owner(folder.path());
  const auto provider = owner.machine().wmi.bindRegistryProvider(kMoniker);
  ASSERT_NE(provider, nullptr);
  std::string value;
  EXPECT_EQ(provider->getExpandedStringValue(0x80000001, "a", "v", value), kSuccess);
  EXPECT_EQ(value, "C:\\Users\\user\\x");
}

TEST_F(MachineFolderTest, AFaultOfTheProgramsRegistryCallsSparesTheProvider) {
  folder.write("machine.ini", "[fault]\nRegOpenKeyEx=0,5\n");
  folder.write("registry.reg",
               std::string(kRegistryHead) + "\n[HKEY_CURRENT_USER\\a]\n\"v\"=\"x\"\n");
  MachineFolder owner(folder.path());
  EXPECT_EQ(owner.machine().registry.open(Root::kCurrentUser, "a", 1).status, kAccessDenied);
  const auto provider = owner.machine().wmi.bindRegistryProvider(kMoniker);
  ASSERT_NE(provider, nullptr);
  std::string value;
  EXPECT_EQ(provider->getExpandedStringValue(0x80000001, "a", "v", value), kSuccess);
  EXPECT_EQ(value, "x");
}

TEST_F(MachineFolderTest, AFaultOfTheProgramsDeletionsSparesTheUrlCache) {
  folder.write("machine.ini", "[fault]\nDeleteFile=1,5\n");
  folder.write("urlcache.txt", "1\tu\tC:\\a.gif\n");
  folder.write("C/a.gif", "a");
  folder.write("C/b.gif", "b");
  MachineFolder owner(folder.path());
  EXPECT_EQ(owner.machine().url_cache.remove("u"), kSuccess);
  EXPECT_FALSE(folder.has("C/a.gif"));
  EXPECT_EQ(owner.machine().files.remove("C:\\b.gif"), kAccessDenied);
  EXPECT_EQ(owner.machine().files.remove("C:\\b.gif"), kSuccess);
}

TEST_F(MachineFolderTest, AnInterruptReachesTheHandlerAtTheNextPump) {
  MachineFolder owner(folder.path());
  owner.setInterruptHandler([] { throw std::runtime_error("interrupted"); });
  owner.machine().events.doEvents();
  owner.interrupt();
  EXPECT_THROW(owner.machine().events.doEvents(), std::runtime_error);
  EXPECT_NO_THROW(owner.machine().events.doEvents());
}

TEST_F(MachineFolderTest, ThePersonIsAskedWithoutAnswersInTheIni) {
  int asked = 0;
  const auto ask = [&](std::string_view, std::string_view) { return ++asked, kAnswerYes; };
  EXPECT_EQ(MachineFolder(folder.path(), ask).machine().dialogs.messageBox("?", 52, ""),
            kAnswerYes);
  folder.write("machine.ini", "[answers]\n");
  EXPECT_EQ(MachineFolder(folder.path(), ask).machine().dialogs.messageBox("?", 52, ""), kAnswerNo);
  EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace tavr::folder
