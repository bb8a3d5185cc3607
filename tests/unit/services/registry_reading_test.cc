// fReadValue and GetRegistryValue.
#include "basic/resume_next.h"
#include "services/registry_layer.h"
#include "tests/unit/services/registry_fixture.h"

namespace tavr {
namespace {

class RegistryReadingTest : public RegistryTest {
 protected:
  /// The value after a read whose status must be `expected`.
  ReadValue read(std::string_view root, std::string_view key, std::string_view name,
                 std::string_view kind, const ReadValue& fallback, Status expected) {
    ReadValue out = std::string("untouched");
    EXPECT_EQ(layer().fReadValue(root, key, name, kind, fallback, out), expected);
    return out;
  }
  ReadValue readTest(std::string_view name, std::string_view kind, const ReadValue& fallback,
                     Status expected) {
    return read("HKCU", "Software\\Test", name, kind, fallback, expected);
  }
  static ReadValue text(std::string_view text) { return std::string(text); }

  RegistryVariant value(std::string_view name, const RegistryVariant& fallback = {}) {
    return layer().GetRegistryValue(Root::kCurrentUser, "Software\\Test", name, fallback);
  }
  int errorOf(std::string_view name) {
    try {
      value(name);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.description, "Unsupported value type");
      return error.number;
    }
    return 0;
  }
};

TEST_F(RegistryReadingTest, ReadsATextOfAnyLength) {
  machine.value(kKey, "short", "a").value(kKey, "long", std::string(5000, 'x'));
  EXPECT_EQ(readTest("short", "s", text("d"), kSuccess), text("a"));
  EXPECT_EQ(readTest("LONG", "S", text("d"), kSuccess), text(std::string(5000, 'x')));
}

TEST_F(RegistryReadingTest, EveryFailureLeavesTheDefault) {
  machine.value(kKey, "a", "1");
  EXPECT_EQ(readTest("gone", "s", text("d"), kFileNotFound), text("d"));
  EXPECT_EQ(read("HKCU", "Software\\Gone", "a", "s", text("d"), kFileNotFound), text("d"));
  EXPECT_EQ(read("HKXX", "Software\\Test", "a", "s", text("d"), kUnknownRoot), text("d"));
}

TEST_F(RegistryReadingTest, AnEmptyStoredTextLeavesTheDefault) {
  layer().fSaveString(Root::kCurrentUser, "Software\\Test", "empty", "");
  EXPECT_EQ(readTest("empty", "s", text("d"), kSuccess), text("d"));
}

TEST_F(RegistryReadingTest, ATruthValueIsFalseWheneverItExists) {
  machine.rawValue(kKey, "true", "hex:ff,ff").rawValue(kKey, "long", "hex:ff,ff,ff");
  EXPECT_EQ(readTest("true", "b", true, kSuccess), ReadValue(false));
  EXPECT_EQ(readTest("long", "B", true, kMoreData), ReadValue(false));
  EXPECT_EQ(readTest("gone", "B", true, kFileNotFound), ReadValue(true));
}

TEST_F(RegistryReadingTest, ANumberIsZeroWheneverItExists) {
  machine.rawValue(kKey, "number", "dword:00000007");
  EXPECT_EQ(readTest("number", "d", std::int32_t{5}, kSuccess), ReadValue(std::int32_t{0}));
  EXPECT_EQ(readTest("gone", "D", std::int32_t{5}, kFileNotFound), ReadValue(std::int32_t{5}));
}

TEST_F(RegistryReadingTest, AnyOtherKindGivesTheDefault) {
  machine.value(kKey, "a", "1");
  EXPECT_EQ(readTest("a", "x", text("d"), kSuccess), text("d"));
  EXPECT_EQ(readTest("a", "", text("d"), kSuccess), text("d"));
}

TEST_F(RegistryReadingTest, ReadsInTheViewOfThe32BitProcess) {
  machine.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Test", "a", "64")
      .value("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Test", "a", "32");
  EXPECT_EQ(read("HKLM", "SOFTWARE\\Test", "a", "s", text(""), kSuccess), text("32"));
}

TEST_F(RegistryReadingTest, ReadsALineOfAFile) {
  machine.file("C:\\d\\a.lang", "[001]\r\n175=\" Delete \"\r\n176 = x \r\n");
  EXPECT_EQ(read("C:\\d\\a.lang", "001", "175", "s", text("d"), kSuccess), text(" Delete "));
  EXPECT_EQ(read("C:\\d\\a.lang", "001", "176", "S", text("d"), kSuccess), text("x"));
}

TEST_F(RegistryReadingTest, AMissingLineOfAFileGivesTheDefaultAndSuccess) {
  machine.file("C:\\d\\a.lang", "[001]\r\n175=x\r\n");
  EXPECT_EQ(read("C:\\d\\a.lang", "001", "999", "s", text("d"), kSuccess), text("d"));
  EXPECT_EQ(read("C:\\d\\a.lang", "002", "175", "s", text("d"), kSuccess), text("d"));
}

TEST_F(RegistryReadingTest, ALineOfAFileIsCutAt254Characters) {
  machine.file("C:\\d\\a.ini", "[s]\r\nfits=" + std::string(254, 'f') +
                                   "\r\nlong=" + std::string(300, 'x') + "\r\n");
  EXPECT_EQ(read("C:\\d\\a.ini", "s", "fits", "s", text(""), kSuccess),
            text(std::string(254, 'f')));
  EXPECT_EQ(read("C:\\d\\a.ini", "s", "long", "s", text(""), kSuccess),
            text(std::string(254, 'x')));
}

TEST_F(RegistryReadingTest, AnotherKindOfAFileDropsTheAnswer) {
  machine.file("C:\\d\\a.ini", "[s]\r\na=7\r\n");
  EXPECT_EQ(read("C:\\d\\a.ini", "s", "a", "d", std::int32_t{5}, kSuccess),
            ReadValue(std::int32_t{5}));
  EXPECT_EQ(read("C:\\d\\a.ini", "s", "a", "b", true, kSuccess), ReadValue(true));
}

TEST_F(RegistryReadingTest, AVariantHoldsANumberATextOrBytes) {
  machine.rawValue(kKey, "number", "dword:fffffffe")
      .value(kKey, "text", "abc")
      .rawValue(kKey, "none", "hex(0):61,62,00")
      .rawValue(kKey, "bytes", "hex:01,00,02");
  EXPECT_EQ(value("number"), RegistryVariant(std::int32_t{-2}));
  EXPECT_EQ(value("text"), RegistryVariant(std::string("abc")));
  EXPECT_EQ(value("none"), RegistryVariant(std::string("ab")));
  EXPECT_EQ(value("bytes"), RegistryVariant(ByteArray{bytes("\1\0\2")}));
}

TEST_F(RegistryReadingTest, AVariantGrowsBeyond1024Bytes) {
  machine.value(kKey, "text", std::string(3000, 'x'));
  EXPECT_EQ(value("text"), RegistryVariant(std::string(3000, 'x')));
}

TEST_F(RegistryReadingTest, AVariantOfAMissingKeyIsTheDefault) {
  EXPECT_EQ(value("a", std::string("d")), RegistryVariant(std::string("d")));
  EXPECT_EQ(value("a"), RegistryVariant());
}

TEST_F(RegistryReadingTest, AVariantOfAnyOtherTypeRaises) {
  machine.rawValue(kKey, "expand", "hex(2):25,00,00,00")
      .rawValue(kKey, "multi", "hex(7):61,00,00,00,00,00")
      .rawValue(kKey, "wide", "hex(b):01,00,00,00,00,00,00,00");
  EXPECT_EQ(errorOf("expand"), 1001);
  EXPECT_EQ(errorOf("multi"), 1001);
  EXPECT_EQ(errorOf("wide"), 1001);
}

}  // namespace
}  // namespace tavr
