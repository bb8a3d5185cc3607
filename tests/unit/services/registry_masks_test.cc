// With which access mask each routine opens a key, and in which order.
#include "services/access.h"
#include "services/deletion.h"
#include "services/settings_keys.h"
#include "tests/support/machine_with.h"
#include "tests/unit/services/registry_fixture.h"

namespace tavr {
namespace {

std::string hex(std::uint32_t number) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%X", number);
  return text;
}

// Notes every key that is opened or made, and what is written.
class RecordingRegistry : public Registry {
 public:
  explicit RecordingRegistry(Registry& inner) : inner_(inner) {}

  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override {
    calls.push_back("open " + hex(access) + " " + std::string(path));
    return inner_.open(root, path, access);
  }
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override {
    calls.push_back("create " + hex(access) + " " + std::string(path) + " class " +
                    std::string(key_class));
    OpenedKey made = inner_.create(root, path, key_class, access);
    if (made.key) made.key = std::make_unique<Key>(*this, std::move(made.key));
    return made;
  }
  Status deleteKey(Root root, std::string_view path) override {
    return inner_.deleteKey(root, path);
  }

  std::vector<std::string> calls;

 private:
  class Key : public RegistryKey {
   public:
    Key(RecordingRegistry& owner, std::unique_ptr<RegistryKey> inner)
        : owner_(owner), inner_(std::move(inner)) {}
    Status enumKey(std::uint32_t index, std::string& name) override {
      return inner_->enumKey(index, name);
    }
    Status enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                     std::uint32_t& size) override {
      return inner_->enumValue(index, name, type, size);
    }
    Status queryValue(std::string_view name, std::uint32_t capacity, RegistryData& out) override {
      return inner_->queryValue(name, capacity, out);
    }
    Status setValue(std::string_view name, std::uint32_t type, std::string_view data) override {
      owner_.calls.push_back("set " + std::string(name) + " type " + std::to_string(type) +
                             " length " + std::to_string(data.size()));
      return inner_->setValue(name, type, data);
    }
    Status deleteValue(std::string_view name) override { return inner_->deleteValue(name); }
    Status deleteKey(std::string_view subkey) override { return inner_->deleteKey(subkey); }
    Status security(SecurityDescriptor& out) override { return inner_->security(out); }
    Status setSecurity(const SecurityDescriptor& descriptor) override {
      return inner_->setSecurity(descriptor);
    }

   private:
    RecordingRegistry& owner_;
    std::unique_ptr<RegistryKey> inner_;
  };

  Registry& inner_;
};

class RegistryMasksTest : public ::testing::Test {
 protected:
  RegistryMasksTest() : recorder(made.machine().registry) {}

  RegistryLayer layer() { return {machine(), List12, List20, Text2}; }
  Machine& machine() {
    if (!machine_) {
      Machine& real = made.machine();
      machine_.emplace(testing::machineWith(real, recorder));
    }
    return *machine_;
  }

  testing::TestMachine made;
  RecordingRegistry recorder;
  TextList List12;
  TextList List20;
  TextBox Text2;

 private:
  std::optional<Machine> machine_;
};

using Calls = std::vector<std::string>;

TEST_F(RegistryMasksTest, TrackRoutinesAskForThe64BitView) {
  RegistryLayer registry = layer();
  std::string packed;
  registry.fEnumKey("HKCU", "a", packed);
  registry.fEnumValue("HKCU", "b", packed);
  registry.fEnumValueb("HKCU", "c");
  registry.fEnumValuec("HKCU", "d");
  registry.fDeleteKey("HKCU", "e", "x");
  registry.fDeleteValue("HKCU", "f", "x");
  registry.GetRegistryValue(Root::kCurrentUser, "g", "x");
  EXPECT_EQ(recorder.calls,
            Calls({"open 0x2013F a", "open 0x2013F b", "open 0x2013F c", "open 0x2013F d",
                   "open 0x2013F e", "open 0x2013F f", "open 0x2013F g"}));
}

TEST_F(RegistryMasksTest, TheReaderAsksForQueryingAloneAndNamesNoView) {
  ReadValue out;
  layer().fReadValue("HKLM", "a", "x", "s", "", out);
  EXPECT_EQ(recorder.calls, Calls({"open 0x1 a"}));
}

TEST_F(RegistryMasksTest, ASettingIsReadAfterTheGrant) {
  std::string text;
  layer().fGetString(Root::kLocalMachine, "software\\a", "x", text);
  EXPECT_EQ(recorder.calls, Calls({"open 0x6013F software\\a", "open 0x2003F software\\a"}));
}

TEST_F(RegistryMasksTest, ASettingIsWrittenAfterTheGrantWithItsClassAndWithoutANul) {
  layer().fSaveString(Root::kLocalMachine, "software\\a", "x", "abc");
  EXPECT_EQ(recorder.calls, Calls({"open 0x6013F software\\a", "create 0x2003F software\\a class 1",
                                   "set x type 1 length 3"}));
}

TEST_F(RegistryMasksTest, AccessIsGrantedBeforeEverySingleRead) {
  std::string text;
  RegistryLayer registry = layer();
  registry.fGetString(Root::kLocalMachine, "a", "x", text);
  registry.fGetString(Root::kLocalMachine, "a", "x", text);
  EXPECT_EQ(recorder.calls,
            Calls({"open 0x6013F a", "open 0x2003F a", "open 0x6013F a", "open 0x2003F a"}));
}

TEST_F(RegistryMasksTest, TheGrantMissesASettingsKeyAndTheReadGoesOn) {
  RegistryLayer registry = layer();
  ASSERT_TRUE(registry.fSaveString(Root::kLocalMachine, settings::kMainKey, "key", "A"));
  EXPECT_FALSE(GrantKeyAccess(machine(), Root::kLocalMachine, settings::kMainKey, "user"));
  EXPECT_EQ(registry.setting(settings::kMainKey, "key"), "A");
}

TEST_F(RegistryMasksTest, TheGrantReachesAKeyOfThe64BitViewAndOfTheUser) {
  RegistryLayer registry = layer();
  ASSERT_TRUE(registry.fSaveString(Root::kCurrentUser, "Software\\a", "x", "1"));
  EXPECT_TRUE(GrantKeyAccess(machine(), Root::kCurrentUser, "Software\\a", "user"));
  EXPECT_FALSE(GrantKeyAccess(machine(), Root::kCurrentUser, "Software\\gone", "user"));
}

TEST_F(RegistryMasksTest, TheGrantReachesAKeyOfTheMachineInThe64BitViewAlone) {
  constexpr std::uint32_t kIn64 = 0x2013F;
  constexpr std::uint32_t kIn32 = 0x2023F;
  Registry& registry = machine().registry;
  ASSERT_EQ(registry.create(Root::kLocalMachine, "software\\in64", "", kIn64).status, kSuccess);
  ASSERT_EQ(registry.create(Root::kLocalMachine, "software\\in32", "", kIn32).status, kSuccess);
  EXPECT_TRUE(GrantKeyAccess(machine(), Root::kLocalMachine, "software\\in64", "user"));
  EXPECT_FALSE(GrantKeyAccess(machine(), Root::kLocalMachine, "software\\in32", "user"));
}

TEST_F(RegistryMasksTest, TheGrantComesBeforeTheKeyIsMade) {
  bool failed = false;
  const RegistryLayer registry(machine(), List12, List20, Text2, &failed);
  ASSERT_TRUE(registry.fSaveString(Root::kCurrentUser, "Software\\a", "x", "1"));
  EXPECT_TRUE(failed);
  std::string text;
  EXPECT_FALSE(registry.fGetString(Root::kCurrentUser, "Software\\a", "gone", text));
  EXPECT_FALSE(failed) << "a missing value is no matter of the grant";
}

TEST_F(RegistryMasksTest, TrackRoutinesLeaveTheOutcomeOfTheLastGrant) {
  bool failed = true;
  RegistryLayer registry(machine(), List12, List20, Text2, &failed);
  ASSERT_TRUE(registry.fSaveString(Root::kCurrentUser, "Software\\a", "x", "1"));
  failed = true;
  ReadValue value;
  registry.fReadValue("HKCU", "Software\\a", "x", "s", std::string(), value);
  registry.fEnumValuec("HKCU", "Software\\a");
  registry.fDeleteValue("HKCU", "Software\\a", "x");
  EXPECT_TRUE(failed);
}

TEST_F(RegistryMasksTest, ThePendingListIsReadAfterTheGrant) {
  Form1 form(machine());
  FileNumbers numbers(machine());
  Deletion(machine(), form, numbers).pndtxt();
  EXPECT_EQ(recorder.calls,
            Calls({"open 0x6013F SYSTEM\\CurrentControlSet\\Control\\Session Manager"}));
}

TEST_F(RegistryMasksTest, AFileAsRootTouchesNoKeyButInTheRoutinesThatKnowNoFiles) {
  made.file("C:\\d\\a.ini", "[s]\r\na=1\r\n");
  RegistryLayer registry = layer();
  ReadValue out;
  registry.fEnumValueb("C:\\d\\a.ini", "s");
  registry.fDeleteValue("C:\\d\\a.ini", "s", "a");
  registry.fReadValue("C:\\d\\a.ini", "s", "a", "s", "", out);
  EXPECT_TRUE(recorder.calls.empty());
  registry.fEnumKey("C:\\d\\a.ini", "s");
  registry.fDeleteKey("C:\\d\\a.ini", "s", "a");
  EXPECT_EQ(recorder.calls, Calls({"open 0x2013F s", "open 0x2013F s"}));
}

}  // namespace
}  // namespace tavr
