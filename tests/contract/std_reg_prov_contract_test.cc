// The registry provider of WMI (platform/registry.h, bound by platform/wmi.h).
#include <vector>

#include "tests/contract/registry_contract_test.h"

namespace tavr::contract {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kUser = 0x80000001;
constexpr std::uint32_t kLocalMachine = 0x80000002;
constexpr std::string_view kMoniker =
    "winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv";

class StdRegProvContract : public RegistryContractTest {
 protected:
  StdRegProv& provider() {
    if (!provider_) provider_ = machine().wmi.bindRegistryProvider(kMoniker);
    return *provider_;
  }
  void plant(std::string_view name, std::uint32_t type, std::string_view bytes) {
    on().plantValue(Root::kCurrentUser, View::k32, key(), name, type, bytes);
  }
  std::vector<std::string> strings(std::string_view name) {
    std::vector<std::string> read{"left over"};
    EXPECT_EQ(provider().getMultiStringValue(kUser, key(), name, read), kSuccess);
    return read;
  }
  // Those that fail leave their out parameter empty.
  Status textStatus(std::string_view name) {
    std::string text = "left over";
    const Status status = provider().getExpandedStringValue(kUser, key(), name, text);
    EXPECT_TRUE(status == kSuccess || text.empty()) << text;
    return status;
  }
  Status stringsStatus(std::string_view name) {
    std::vector<std::string> read{"left over"};
    const Status status = provider().getMultiStringValue(kUser, key(), name, read);
    EXPECT_TRUE(status == kSuccess || read.empty());
    return status;
  }

 private:
  std::unique_ptr<StdRegProv> provider_;
};

TEST_F(StdRegProvContract, AnotherMonikerBindsNothing) {
  EXPECT_EQ(machine().wmi.bindRegistryProvider("winmgmts:nothing"), nullptr);
}

TEST_F(StdRegProvContract, BothKindsOfTextAreReadWithReferencesExpanded) {
  // A variable of the system: the provider runs in a process of its own.
  on().haveSystemRoot();
  plant("plain", kRegSz, utf16("a %SystemRoot%\0"s));
  plant("expand", kRegExpandSz, utf16("b %SystemRoot%"));
  const std::string value = machine().environment.get("SystemRoot");
  ASSERT_NE(value, "");
  std::string text;
  EXPECT_EQ(provider().getExpandedStringValue(kUser, key(), "plain", text), kSuccess);
  EXPECT_EQ(text, "a " + value);
  EXPECT_EQ(provider().getExpandedStringValue(kUser, key(), "expand", text), kSuccess);
  EXPECT_EQ(text, "b " + value);
}

TEST_F(StdRegProvContract, ALongTextIsReadWhole) {
  const std::string text(5000, 'x');
  plant("n", kRegSz, utf16(text + '\0'));
  std::string read;
  EXPECT_EQ(provider().getExpandedStringValue(kUser, key(), "n", read), kSuccess);
  EXPECT_EQ(read, text);
}

TEST_F(StdRegProvContract, AnotherTypeIsRefused) {
  plant("number", kRegDword, "\1\0\0\0"s);
  plant("strings", kRegMultiSz, utf16("a\0\0"s));
  plant("text", kRegSz, utf16("a\0"s));
  EXPECT_NE(textStatus("number"), kSuccess);
  EXPECT_NE(textStatus("strings"), kSuccess);
  EXPECT_NE(stringsStatus("text"), kSuccess);
}

TEST_F(StdRegProvContract, AMissingValueOrKeyIsRefused) {
  EXPECT_NE(textStatus("n"), kSuccess) << "no key";
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_NE(textStatus("n"), kSuccess) << "no value";
  EXPECT_NE(stringsStatus("n"), kSuccess);
}

TEST_F(StdRegProvContract, EmptyStringsAreKept) {
  plant("pairs", kRegMultiSz, utf16("a\0\0b\0\0\0"s));
  plant("ends empty", kRegMultiSz, utf16("a\0\0\0"s));
  EXPECT_THAT(strings("pairs"), ElementsAre("a", "", "b", ""));
  EXPECT_THAT(strings("ends empty"), ElementsAre("a", ""));
}

TEST_F(StdRegProvContract, NStringsAndTheClosingNulGiveNEntries) {
  plant("two", kRegMultiSz, utf16("a\0b\0\0"s));
  plant("none", kRegMultiSz, utf16("\0"s));
  EXPECT_THAT(strings("two"), ElementsAre("a", "b"));
  EXPECT_THAT(strings("none"), IsEmpty());
}

TEST_F(StdRegProvContract, WrittenStringsReadBackWithTheEmptyOnes) {
  ASSERT_EQ(create().status, kSuccess);
  const std::vector<std::string> pending{"\\??\\C:\\a", "", "\\??\\C:\\b", ""};
  ASSERT_EQ(provider().setMultiStringValue(kUser, key(), "n", pending), kSuccess);
  EXPECT_EQ(strings("n"), pending);
  ASSERT_EQ(provider().setMultiStringValue(kUser, key(), "n", {"one"}), kSuccess);
  EXPECT_THAT(strings("n"), ElementsAre("one")) << "replaced";
}

TEST_F(StdRegProvContract, StringsAreStoredWithTheirNulsAndTheClosingOne) {
  ASSERT_EQ(create().status, kSuccess);
  ASSERT_EQ(provider().setMultiStringValue(kUser, key(), "two", {"a", "bc"}), kSuccess);
  ASSERT_EQ(provider().setMultiStringValue(kUser, key(), "none", {}), kSuccess);
  RegistryData data;
  ASSERT_EQ(open(kRead).key->queryValue("two", 64, data), kSuccess);
  EXPECT_EQ(data.type, kRegMultiSz);
  EXPECT_EQ(data.data, "a\0bc\0\0"s);
  EXPECT_EQ(data.size, 12U);
  ASSERT_EQ(open(kRead).key->queryValue("none", 64, data), kSuccess);
  EXPECT_EQ(data.data, "\0"s);
}

TEST_F(StdRegProvContract, WritingNeedsTheKey) {
  EXPECT_EQ(provider().setMultiStringValue(kUser, key(), "n", {"a"}), kFileNotFound);
  EXPECT_EQ(open(kRead).status, kFileNotFound);
}

TEST_F(StdRegProvContract, CreatingMakesEveryKeyOnTheWayAndTakesAnExistingOne) {
  EXPECT_EQ(provider().createKey(kUser, key("\\a\\b")), kSuccess);
  EXPECT_EQ(open(kRead, "\\a\\b").status, kSuccess);
  EXPECT_EQ(provider().createKey(kUser, key("\\a\\b")), kSuccess);
}

TEST_F(StdRegProvContract, ItsViewIsThe32BitOne) {
  EXPECT_EQ(provider().createKey(kLocalMachine, key()), kSuccess);
  EXPECT_EQ(machine().registry.open(Root::kLocalMachine, key(), kRead | k32).status, kSuccess);
  EXPECT_EQ(machine().registry.open(Root::kLocalMachine, key(), kRead | k64).status, kFileNotFound);
}

}  // namespace
}  // namespace tavr::contract
