// platform/environment.h.
#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

class EnvironmentContract : public ContractTest {
 protected:
  std::string expand(std::string_view text) { return machine().environment.expand(text); }
};

TEST_F(EnvironmentContract, AVariableIsFoundWithoutCase) {
  on().setVariable("TavrContract", "C:\\some folder");
  EXPECT_EQ(machine().environment.get("TavrContract"), "C:\\some folder");
  EXPECT_EQ(machine().environment.get("TAVRcontract"), "C:\\some folder");
}

TEST_F(EnvironmentContract, AnAbsentVariableIsEmpty) {
  EXPECT_EQ(machine().environment.get("TavrContractAbsent"), "");
  EXPECT_EQ(machine().environment.get(""), "");
}

TEST_F(EnvironmentContract, EveryMachineHasTheVariablesOfItsUser) {
  for (const char* name : {"UserName", "USERPROFILE", "Temp", "PROGRAMDATA"}) {
    EXPECT_NE(machine().environment.get(name), "") << name;
  }
}

TEST_F(EnvironmentContract, ReferencesAreReplaced) {
  on().setVariable("TavrContract", "x");
  EXPECT_EQ(expand("a %TavrContract% b %TAVRCONTRACT%"), "a x b x");
}

TEST_F(EnvironmentContract, AnUnknownReferenceStays) {
  on().setVariable("TavrContract", "x");
  EXPECT_EQ(expand("%TavrContractAbsent%\\a"), "%TavrContractAbsent%\\a");
  EXPECT_EQ(expand("%TavrContractAbsent%TavrContract%"), "%TavrContractAbsentx");
}

TEST_F(EnvironmentContract, ALonePercentSignIsText) {
  EXPECT_EQ(expand("100 %"), "100 %");
  EXPECT_EQ(expand("%%"), "%%");
  EXPECT_EQ(expand(""), "");
}

TEST_F(EnvironmentContract, TheExpandedTextIsNotExpandedAgain) {
  on().setVariable("TavrContract", "%TavrOther%");
  on().setVariable("TavrOther", "x");
  EXPECT_EQ(expand("%TavrContract%"), "%TavrOther%");
}

TEST_F(EnvironmentContract, TheResultCarriesNoNul) {
  on().setVariable("TavrContract", "x");
  EXPECT_EQ(expand("%TavrContract%").find('\0'), std::string::npos);
  EXPECT_EQ(expand(std::string_view("a\0b", 3)), "a") << "a text ends at its NUL";
}

TEST_F(EnvironmentContract, TheProgramsFolderIsAFullPathWithoutABackslash) {
  const std::string path = machine().environment.appPath();
  ASSERT_GT(path.size(), 3U);
  EXPECT_EQ(path.substr(1, 2), ":\\");
  EXPECT_NE(path.back(), '\\');
}

TEST_F(EnvironmentContract, TheProgramsNameHasNeitherFolderNorExtension) {
  const std::string name = machine().environment.exeName();
  EXPECT_NE(name, "");
  EXPECT_EQ(name.find_first_of("\\./:"), std::string::npos);
}

TEST_F(EnvironmentContract, ALongTextIsWhole) {
  const std::string text(3000, 'x');
  on().setVariable("TavrContract", text);
  EXPECT_EQ(machine().environment.get("TavrContract"), text);
  EXPECT_EQ(expand("a %TavrContract% b"), "a " + text + " b");
}

}  // namespace
}  // namespace tavr::contract
