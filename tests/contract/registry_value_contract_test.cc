// platform/registry.h: values, their types, sizes and data.
#include "tests/contract/registry_contract_test.h"

namespace tavr::contract {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kRoom = 4096;
constexpr std::uint32_t kRegQword = 11;

class RegistryValueContract : public RegistryContractTest {
 protected:
  struct Value {
    Status status = kSuccess;
    std::uint32_t type = kRegNone;
    std::uint32_t size = 0;
    std::string data;
    bool operator==(const Value&) const = default;
    friend void PrintTo(const Value& value, std::ostream* out) {
      *out << "status " << value.status << " type " << value.type << " size " << value.size << " "
           << ::testing::PrintToString(value.data);
    }
  };

  Value query(std::string_view name, std::uint32_t capacity = kRoom) {
    const OpenedKey opened = open(kRead);
    RegistryData data{99, 99, "left over"};
    if (!opened.key) return {opened.status, 0, 0, ""};
    const Status status = opened.key->queryValue(name, capacity, data);
    return {status, data.type, data.size, data.data};
  }
  Status set(std::string_view name, std::uint32_t type, std::string_view data) {
    return create().key->setValue(name, type, data);
  }
  void plant(std::string_view name, std::uint32_t type, std::string_view bytes) {
    on().plantValue(Root::kCurrentUser, View::k32, key(), name, type, bytes);
  }
};

TEST_F(RegistryValueContract, AMissingValueIsNotFound) {
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_EQ(query("n").status, kFileNotFound);
  EXPECT_EQ(query("").status, kFileNotFound) << "the default value";
  EXPECT_EQ(create().key->deleteValue("n"), kFileNotFound);
}

TEST_F(RegistryValueContract, ATextEndsInOneNulWhateverIsStored) {
  plant("with", kRegSz, utf16("text\0"s));
  plant("without", kRegSz, utf16("text"));
  plant("several", kRegExpandSz, utf16("%a%\0\0"s));
  const Value text{kSuccess, kRegSz, 5, "text\0"s};
  EXPECT_EQ(query("with"), text);
  EXPECT_EQ(query("without"), text);
  EXPECT_EQ(query("several"), (Value{kSuccess, kRegExpandSz, 4, "%a%\0"s})) << "not expanded";
}

TEST_F(RegistryValueContract, AWrittenTextReadsTheSameWithAndWithoutItsNul) {
  ASSERT_EQ(set("with", kRegSz, "text\0"s), kSuccess);
  ASSERT_EQ(set("without", kRegSz, "text"), kSuccess);
  EXPECT_EQ(query("with"), query("without"));
  EXPECT_EQ(query("with").data, "text\0"s);
}

TEST_F(RegistryValueContract, ATextOfNoBytesHasNoSizeAndNoData) {
  ASSERT_EQ(set("nothing", kRegSz, ""), kSuccess);
  ASSERT_EQ(set("empty", kRegSz, "\0"s), kSuccess);
  EXPECT_EQ(query("nothing"), (Value{kSuccess, kRegSz, 0, ""}));
  EXPECT_EQ(query("empty"), (Value{kSuccess, kRegSz, 1, "\0"s}));
}

TEST_F(RegistryValueContract, SizesOfTextCountUtf16Units) {
  ASSERT_EQ(set("n", kRegSz, "\xC3\xA4\xF0\x9F\x98\x80"), kSuccess);
  EXPECT_EQ(query("n"), (Value{kSuccess, kRegSz, 4, "\xC3\xA4\xF0\x9F\x98\x80\0"s}));
}

TEST_F(RegistryValueContract, OtherTypesAreTheirBytes) {
  ASSERT_EQ(set("binary", kRegBinary, "\0\1\xFF"s), kSuccess);
  ASSERT_EQ(set("dword", kRegDword, "\1\0\0\0"s), kSuccess);
  ASSERT_EQ(set("qword", kRegQword, "\1\0\0\0\0\0\0\0"s), kSuccess);
  ASSERT_EQ(set("none", kRegNone, ""), kSuccess);
  EXPECT_EQ(query("binary"), (Value{kSuccess, kRegBinary, 3, "\0\1\xFF"s}));
  EXPECT_EQ(query("dword"), (Value{kSuccess, kRegDword, 4, "\1\0\0\0"s}));
  EXPECT_EQ(query("qword"), (Value{kSuccess, kRegQword, 8, "\1\0\0\0\0\0\0\0"s}));
  EXPECT_EQ(query("none"), (Value{kSuccess, kRegNone, 0, ""}));
}

TEST_F(RegistryValueContract, StringsKeepTheirNulsAndSizesCountBytes) {
  plant("two", kRegMultiSz, utf16("a\0bc\0\0"s));
  plant("none", kRegMultiSz, utf16("\0"s));
  plant("nothing", kRegMultiSz, "");
  EXPECT_EQ(query("two"), (Value{kSuccess, kRegMultiSz, 12, "a\0bc\0\0"s}));
  EXPECT_EQ(query("none"), (Value{kSuccess, kRegMultiSz, 2, "\0"s}));
  EXPECT_EQ(query("nothing"), (Value{kSuccess, kRegMultiSz, 0, ""}));
}

TEST_F(RegistryValueContract, ABufferThatIsTooSmallGetsTypeAndSizeAlone) {
  ASSERT_EQ(set("text", kRegSz, "text"), kSuccess);
  ASSERT_EQ(set("binary", kRegBinary, "abc"), kSuccess);
  EXPECT_EQ(query("text", 5), (Value{kSuccess, kRegSz, 5, "text\0"s}));
  EXPECT_EQ(query("text", 4), (Value{kMoreData, kRegSz, 5, ""})) << "the NUL needs room, too";
  EXPECT_EQ(query("binary", 3).status, kSuccess);
  EXPECT_EQ(query("binary", 2), (Value{kMoreData, kRegBinary, 3, ""}));
}

TEST_F(RegistryValueContract, NoBufferAsksForTypeAndSize) {
  ASSERT_EQ(set("text", kRegSz, "text"), kSuccess);
  ASSERT_EQ(set("nothing", kRegBinary, ""), kSuccess);
  EXPECT_EQ(query("text", 0), (Value{kMoreData, kRegSz, 5, ""}));
  EXPECT_EQ(query("nothing", 0), (Value{kSuccess, kRegBinary, 0, ""}));
}

TEST_F(RegistryValueContract, ValuesAreFoundWithoutCaseAndKeepTheirName) {
  ASSERT_EQ(set("Name", kRegSz, "one"), kSuccess);
  ASSERT_EQ(set("nAME", kRegSz, "two"), kSuccess);
  EXPECT_EQ(query("NAME").data, "two\0"s);
  EXPECT_THAT(values(), ElementsAre("Name"));
}

TEST_F(RegistryValueContract, SettingReplacesTypeAndData) {
  ASSERT_EQ(set("n", kRegSz, "a long text"), kSuccess);
  ASSERT_EQ(set("n", kRegDword, "1234"), kSuccess);
  EXPECT_EQ(query("n"), (Value{kSuccess, kRegDword, 4, "1234"}));
}

TEST_F(RegistryValueContract, TheDefaultValueHasNoName) {
  ASSERT_EQ(set("", kRegSz, "default"), kSuccess);
  EXPECT_EQ(query("").data, "default\0"s);
  EXPECT_THAT(values(), ElementsAre(""));
}

TEST_F(RegistryValueContract, ValuesEnumerateAsTheyCameWithTypeAndSize) {
  ASSERT_EQ(set("a", kRegSz, "text"), kSuccess);
  ASSERT_EQ(set("b", kRegBinary, "abc"), kSuccess);
  const OpenedKey opened = open(kRead);
  std::string name;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  ASSERT_EQ(opened.key->enumValue(0, name, type, size), kSuccess);
  EXPECT_EQ(name, "a");
  EXPECT_EQ(type, kRegSz);
  EXPECT_EQ(size, 5U) << "UTF-16 units, the NUL included";
  ASSERT_EQ(opened.key->enumValue(1, name, type, size), kSuccess);
  EXPECT_EQ(name, "b");
  EXPECT_EQ(type, kRegBinary);
  EXPECT_EQ(size, 3U);
  EXPECT_EQ(opened.key->enumValue(2, name, type, size), kNoMoreItems);
}

TEST_F(RegistryValueContract, ADeletedValueIsGone) {
  ASSERT_EQ(set("a", kRegSz, "text"), kSuccess);
  ASSERT_EQ(set("b", kRegSz, "text"), kSuccess);
  EXPECT_EQ(create().key->deleteValue("A"), kSuccess);
  EXPECT_EQ(query("a").status, kFileNotFound);
  EXPECT_THAT(values(), ElementsAre("b"));
}

TEST_F(RegistryValueContract, AnEmptyKeyHasNoValues) {
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_THAT(values(), IsEmpty());
}

TEST_F(RegistryValueContract, LongDataAreReadWholeAndEnumerateWithTheirSize) {
  const std::string text(3000, 't');
  const std::string bytes(5000, 'b');
  const OpenedKey key = create();
  ASSERT_EQ(key.status, kSuccess);
  ASSERT_EQ(key.key->setValue("a text", kRegSz, text), kSuccess);
  ASSERT_EQ(key.key->setValue("b bytes", kRegBinary, bytes), kSuccess);
  RegistryData data;
  ASSERT_EQ(key.key->queryValue("a text", 4000, data), kSuccess);
  EXPECT_EQ(data.size, 3001U);
  EXPECT_EQ(data.data, text + '\0');
  ASSERT_EQ(key.key->queryValue("b bytes", 5000, data), kSuccess);
  EXPECT_EQ(data.data, bytes);
  EXPECT_EQ(key.key->queryValue("b bytes", 4999, data), kMoreData);
  std::string name;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  ASSERT_EQ(key.key->enumValue(0, name, type, size), kSuccess);
  EXPECT_EQ(size, 3001U);
  ASSERT_EQ(key.key->enumValue(1, name, type, size), kSuccess);
  EXPECT_EQ(size, 5000U);
}

TEST_F(RegistryValueContract, ALongNameIsFoundEnumeratedAndDeleted) {
  const std::string long_name(5000, 'n');
  ASSERT_EQ(create().key->setValue(long_name, kRegSz, "x"), kSuccess);
  EXPECT_THAT(values(), ElementsAre(long_name));
  RegistryData data;
  EXPECT_EQ(open(kAll).key->queryValue(long_name, 8, data), kSuccess);
  EXPECT_EQ(open(kAll).key->deleteValue(long_name), kSuccess);
  EXPECT_THAT(values(), IsEmpty());
}

}  // namespace
}  // namespace tavr::contract
