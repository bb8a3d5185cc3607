// The two programs as they are started from a shell: what they print, what they
// leave, and their exit status.
#include <sys/wait.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

namespace fs = std::filesystem;

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using testing::TestMachine;

struct Outcome {
  int status = -1;
  std::string out;  // standard output and standard error, in the order written
};

Outcome started(const std::string& command_line) {
  std::FILE* const pipe = popen((command_line + " 2>&1 </dev/null").c_str(), "r");
  Outcome outcome;
  std::array<char, 4096> buffer;
  while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
    outcome.out.append(buffer.data(), got);
  }
  const int result = pclose(pipe);
  outcome.status = WIFEXITED(result) ? WEXITSTATUS(result) : -1;
  return outcome;
}

Outcome tavrwipe(const std::string& words) { return started(TAVR_PROGRAM " " + words); }
Outcome sampleMachine(const std::string& words) { return started(TAVR_SAMPLE_MACHINE " " + words); }

// A machine folder that the program starts for itself.
void prepare(TestMachine& machine) {
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a", "12345");
  machine.machine();  // writes machine.ini and registry.reg
  machine.stop();
}

// --- tavrwipe --------------------------------------------------------------------

TEST(TavrWipe, CarriesARunOutAndPrintsItsTable) {
  TestMachine machine;
  prepare(machine);
  const Outcome outcome = tavrwipe("--machine " + machine.directory().string() + " t");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, HasSubstr("Windows Temporary                 Finished      1\n"));
  EXPECT_FALSE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
  EXPECT_THAT(machine.readMachineFile("registry.reg"), HasSubstr("\"ic\"=\"1\""));
}

TEST(TavrWipe, PrintsRowsOrNothing) {
  TestMachine machine;
  prepare(machine);
  const std::string call = "--machine " + machine.directory().string();
  EXPECT_EQ(tavrwipe(call + " --rows w2").out,
            "C:\\Users\\user\\AppData\\Local\\Temp\\a windows temp folder \n");
  EXPECT_EQ(tavrwipe(call + " --quiet w2").out, "");
}

TEST(TavrWipe, AParentThatIsNotThereIsNoFailure) {
  TestMachine machine;
  prepare(machine);
  EXPECT_EQ(tavrwipe("--machine " + machine.directory().string() + " w4").status, 0);
  EXPECT_TRUE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST(TavrWipe, ArgumentsThatOpenTheWindowAreRefusedWithTheMachineUntouched) {
  for (const char* arguments : {"", "s", "d", "w5", "'w4 -c4'"}) {
    TestMachine machine;
    prepare(machine);
    const std::string registry = machine.readMachineFile("registry.reg");
    const Outcome outcome = tavrwipe("--machine " + machine.directory().string() + " " + arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_THAT(outcome.out, StartsWith("tavrwipe: ")) << arguments;
    EXPECT_EQ(outcome.out.find('\n'), outcome.out.size() - 1) << arguments;
    EXPECT_EQ(machine.readMachineFile("registry.reg"), registry) << arguments;
  }
}

TEST(TavrWipe, AWrongCallOrAFolderThatCannotBeUsedGivesOneLineAndStatusTwo) {
  TestMachine machine;
  prepare(machine);
  machine.machineFile("registry.reg", "Windows Registry Editor Version 5.00\n\nnonsense\n");
  const std::string folder = machine.directory().string();
  for (const std::string& words :
       {std::string("t"), std::string("--nonsense"), "--machine " + folder + "/missing t",
        "--machine " + folder + "/registry.reg t", "--machine " + folder + " t"}) {
    const Outcome outcome = tavrwipe(words);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_THAT(outcome.out, StartsWith("tavrwipe: ")) << words;
    EXPECT_EQ(outcome.out.find('\n'), outcome.out.size() - 1) << words;
  }
  EXPECT_THAT(tavrwipe("--machine " + folder + " t").out, HasSubstr("registry.reg"));
  EXPECT_TRUE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST(TavrWipe, TellsItsVersionAndItsOptions) {
  EXPECT_THAT(tavrwipe("--version").out, ::testing::MatchesRegex("tavrwipe [0-9.]+\n"));
  EXPECT_EQ(tavrwipe("--version").status, 0);
  EXPECT_THAT(tavrwipe("--help").out, StartsWith("usage: tavrwipe --machine DIR"));
  EXPECT_EQ(tavrwipe("--help").status, 0);
}

// --- sample-machine ----------------------------------------------------------------

class SampleMachine : public ::testing::Test {
 protected:
  SampleMachine() : scratch_(fs::temp_directory_path() / "tavr-sample-XXXXXX") {
    std::string pattern = scratch_.string();
    scratch_ = mkdtemp(pattern.data());
  }
  ~SampleMachine() override { fs::remove_all(scratch_); }

  std::string folder(const std::string& name) const { return (scratch_ / name).string(); }

  // Every file's path below the folder, with its bytes.
  static std::map<std::string, std::string> tree(const std::string& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (!entry.is_regular_file()) continue;
      std::ifstream in(entry.path(), std::ios::binary);
      files[fs::relative(entry.path(), folder).string()] = {std::istreambuf_iterator<char>(in), {}};
    }
    return files;
  }

 private:
  fs::path scratch_;
};

TEST_F(SampleMachine, WritesSixtyFilesByDefault) {
  EXPECT_EQ(sampleMachine(folder("m")).status, 0);
  const auto files = tree(folder("m"));
  EXPECT_EQ(files.size(), 60u);
  EXPECT_TRUE(files.contains("machine.ini"));
  EXPECT_TRUE(files.contains("registry.reg"));
}

TEST_F(SampleMachine, WritesExactlyAsManyFilesAsAsked) {
  for (const std::size_t count : {61u, 100u, 1234u}) {
    const std::string number = std::to_string(count);
    const Outcome outcome = sampleMachine(folder(number) + " --files " + number);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, EndsWith(": " + number + " files\n"));
    EXPECT_EQ(tree(folder(number)).size(), count);
  }
}

TEST_F(SampleMachine, NeverWritesFewerThanTheFixedTraces) {
  EXPECT_EQ(sampleMachine(folder("m") + " --files 1").status, 0);
  EXPECT_EQ(tree(folder("m")).size(), 60u);
}

TEST_F(SampleMachine, TheSameSeedGivesTheSameTreeAndAnotherOneAnother) {
  for (const char* name : {"a", "b"}) sampleMachine(folder(name) + " --files 200 --seed 7");
  sampleMachine(folder("c") + " --files 200 --seed 8");
  EXPECT_EQ(tree(folder("a")), tree(folder("b")));
  EXPECT_NE(tree(folder("a")), tree(folder("c")));
}

TEST_F(SampleMachine, AFolderThatHoldsAnythingIsRefusedAndLeftAlone) {
  fs::create_directory(folder("m"));
  std::ofstream(folder("m") + "/mine") << "mine";
  const Outcome outcome = sampleMachine(folder("m"));
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.out, HasSubstr("is not empty"));
  EXPECT_EQ(tree(folder("m")), (std::map<std::string, std::string>{{"mine", "mine"}}));
}

TEST_F(SampleMachine, AnEmptyFolderIsTaken) {
  fs::create_directory(folder("m"));
  EXPECT_EQ(sampleMachine(folder("m")).status, 0);
}

TEST_F(SampleMachine, TheLanguageFilesComeOnTop) {
  const std::string lang = TAVR_SOURCE_DIR "/lang";
  const Outcome outcome = sampleMachine(folder("m") + " --language " + lang);
  EXPECT_EQ(outcome.status, 0) << outcome.out;
  const auto shipped = tree(lang);
  EXPECT_EQ(tree(folder("m")).size(), 60u + shipped.size());
  EXPECT_EQ(tree(folder("m") + "/C/Program Files/Tavr Wipe/lang"), shipped);
}

TEST_F(SampleMachine, LanguageFilesThatAreNotThereAreAnError) {
  fs::create_directory(folder("empty"));
  for (const char* name : {"missing", "empty"}) {
    const Outcome outcome =
        sampleMachine(folder(std::string("m-") + name) + " --language " + folder(name));
    EXPECT_EQ(outcome.status, 2) << name;
    EXPECT_THAT(outcome.out, StartsWith("sample-machine: " + folder(name) + ": ")) << name;
  }
}

// A person who plays on the sample finds every language, and the forms take the
// one that is picked.
TEST_F(SampleMachine, ShowsTheLanguagesToAPerson) {
  ASSERT_EQ(sampleMachine(folder("m") + " --language " TAVR_SOURCE_DIR "/lang").status, 0);
  std::ofstream(folder("play")) << "click Form1.chameleonButton12\n"
                                   "expect Form1.lbllanguage(11) العربية\n"
                                   "click Form1.lbllanguage(1)\n"
                                   "expect Form1.cmd_settings Löscheinstellungen\n";
  const Outcome outcome = tavrwipe("--machine " + folder("m") + " --play " + folder("play"));
  EXPECT_EQ(outcome.status, 0) << outcome.out;
}

TEST_F(SampleMachine, AWrongCallIsRefused) {
  for (const std::string& words :
       {std::string(""), folder("m") + " --files many", folder("m") + " --files",
        folder("m") + " --size 3", folder("m") + " " + folder("n"), folder("m") + " --files -1"}) {
    const Outcome outcome = sampleMachine(words);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_THAT(outcome.out, StartsWith("sample-machine: ")) << words;
  }
  EXPECT_FALSE(fs::exists(folder("m")));
}

// What the sample is for: a Test run finds traces, an Erase run removes them,
// and a second Test run finds fewer.
TEST_F(SampleMachine, IsAMachineThatTheProgramCanTestAndErase) {
  ASSERT_EQ(sampleMachine(folder("m")).status, 0);
  const std::string call = "--machine " + folder("m") + " --rows ";
  const Outcome before = tavrwipe(call + "w2");
  EXPECT_EQ(before.status, 0);
  EXPECT_THAT(before.out, HasSubstr("Google"));
  EXPECT_EQ(tavrwipe(call + "t").status, 0);
  const Outcome after = tavrwipe(call + "w2");
  EXPECT_LT(after.out.size(), before.out.size());
  EXPECT_LT(tree(folder("m")).size(), 60u);
}

}  // namespace
}  // namespace tavr
