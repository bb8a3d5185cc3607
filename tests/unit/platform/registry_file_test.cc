#include "platform/folder/registry_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <filesystem>
#include <iterator>
#include <string>

#include "platform/folder/malformed_file.h"
#include "platform/folder/registry_encoding.h"
#include "tests/unit/platform/scratch_folder.h"

namespace tavr::folder {
namespace {

namespace fs = std::filesystem;

const std::string kHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

std::string withLf(std::string text) {
  std::string out;
  for (const char c : text) {
    if (c != '\r') out += c;
  }
  return out;
}

class RegistryFileTest : public ::testing::Test {
 protected:
  void write(const std::string& bytes) { scratch_.write("registry.reg", bytes); }
  std::string bytes() const { return scratch_.read("registry.reg"); }

  // What the file is after a change that is taken back: all of it written anew.
  std::string rewritten(const std::string& original) {
    write(original);
    RegistryFile file = RegistryFile::load(path_);
    touch(file);
    EXPECT_TRUE(file.save(path_));
    return bytes();
  }

  static void touch(RegistryFile& file) {
    const RegistryNodePtr root = file.tree().root("HKEY_USERS");
    const RegistryNodePtr key = file.tree().makeSubkey(*root, "touched");
    file.tree().removeSubkey(*root, *key);
  }

  // The message of the refusal, "" when the text is taken.
  std::string refusal(const std::string& text) {
    write(text);
    try {
      RegistryFile::load(path_);
    } catch (const MalformedFile& refused) {
      return refused.what();
    }
    return "";
  }

  // How many files and folders there are beside the registry, itself included.
  std::ptrdiff_t entries() const {
    return std::distance(fs::directory_iterator(scratch_.path()), fs::directory_iterator());
  }

  testing::ScratchFolder scratch_;
  std::string path_ = scratch_.at("registry.reg");
};

const RegistryValue* valueAt(RegistryFile& file, const std::string& key, const std::string& name) {
  RegistryNodePtr node = file.tree().root("HKEY_CURRENT_USER")->subkey(key);
  return node == nullptr ? nullptr : node->value(name);
}

// Every type, laid out as the registry editor lays it out.
const std::string kExport =
    kHeader +
    "[HKEY_CURRENT_USER\\Software\\Tavrwork]\r\n"
    "@=\"the default\"\r\n"
    "\"quote \\\" and \\\\ slash\"=\"C:\\\\Program Files\\\\\\\"x\\\"\"\r\n"
    "\"lines\"=\"first\r\nsecond\r\n\"\r\n"
    "\"empty\"=\"\"\r\n"
    "\"unended\"=hex(1):61,00,62,00\r\n"
    "\"no bytes\"=hex(1):\r\n"
    "\"number\"=dword:0000001f\r\n"
    "\"short number\"=hex(4):01,00\r\n"
    "\"none\"=hex(0):\r\n"
    "\"expand\"=hex(2):25,00,53,00,79,00,73,00,74,00,65,00,6d,00,52,00,6f,00,6f,00,\\\r\n"
    "  74,00,25,00,5c,00,73,00,79,00,73,00,74,00,65,00,6d,00,33,00,32,00,5c,00,63,\\\r\n"
    "  00,00,00\r\n"
    "\"binary\"=hex:de,ad,BE,EF\r\n"
    "\"big endian\"=hex(5):00,00,00,01\r\n"
    "\"link\"=hex(6):61,00\r\n"
    "\"strings\"=hex(7):61,00,00,00,00,00,62,00,00,00,00,00\r\n"
    "\"resources\"=hex(8):01\r\n"
    "\"eight\"=hex(b):01,02,03,04,05,06,07,08\r\n"
    "\"unknown\"=hex(20000):ff\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Tavrwork\\an [odd] name]\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Tavrwork\\B\xC3\xA4r \xF0\x9F\x90\xBB]\r\n"
    "\"\xE2\x82\xAC\"=\"\xF0\x9F\x90\xBB\"\r\n"
    "\r\n"
    "[HKEY_CURRENT_CONFIG\\System]\r\n"
    "\"x\"=dword:ffffffff\r\n"
    "\r\n";

TEST_F(RegistryFileTest, AnExportInUtf8ComesBackByteForByte) {
  EXPECT_EQ(rewritten(kExport), kExport);
}

TEST_F(RegistryFileTest, AByteOrderMarkIsKept) {
  EXPECT_EQ(rewritten("\xEF\xBB\xBF" + kExport), "\xEF\xBB\xBF" + kExport);
}

TEST_F(RegistryFileTest, LineFeedsAreKept) {
  const std::string text = withLf(kExport);
  EXPECT_EQ(rewritten(text), text);
}

TEST_F(RegistryFileTest, AnExportInUtf16ComesBackByteForByte) {
  const std::string text = "\xFF\xFE" + utf16Bytes(kExport);
  EXPECT_EQ(rewritten(text), text);
}

TEST_F(RegistryFileTest, HalfAPairOfSurrogatesInANameIsKept) {
  const std::string half("\x3D\xD8", 2);
  const std::string text = "\xFF\xFE" + utf16Bytes(kHeader + "[HKEY_USERS\\") + half +
                           utf16Bytes("x]\r\n\"") + half + utf16Bytes("\"=dword:00000001\r\n\r\n");
  EXPECT_EQ(rewritten(text), text);
}

TEST_F(RegistryFileTest, ValuesAreReadAsTheBytesThatTheRegistryHolds) {
  write(kHeader +
        "[HKEY_CURRENT_USER\\K]\r\n"
        "@=\"a\\\\b\"\r\n\"Two\"=\"l1\r\nl2\"\r\n\"d\"=dword:00000105\r\n\"h\"=hex(1):\\\r\n"
        "  61,\\\r\n  00\r\n\"e\"=hex:\r\n\"u\"=\"\xC3\xA4\"\r\n");
  RegistryFile file = RegistryFile::load(path_);
  ASSERT_NE(valueAt(file, "k", ""), nullptr);
  EXPECT_EQ(valueAt(file, "K", "")->data, utf16Bytes("a\\b") + std::string(2, '\0'));
  EXPECT_EQ(valueAt(file, "K", "two")->data, utf16Bytes("l1\r\nl2") + std::string(2, '\0'));
  EXPECT_EQ(valueAt(file, "K", "d")->data, std::string("\x05\x01\0\0", 4));
  EXPECT_EQ(valueAt(file, "K", "h")->type, 1u);
  EXPECT_EQ(valueAt(file, "K", "h")->data, std::string("a\0", 2));
  EXPECT_EQ(valueAt(file, "K", "e")->type, 3u);
  EXPECT_EQ(valueAt(file, "K", "e")->data, "");
  EXPECT_EQ(valueAt(file, "K", "u")->data, std::string("\xE4\0\0\0", 4));
}

TEST_F(RegistryFileTest, NewValuesAreWrittenAsTheRegistryEditorWritesThem) {
  RegistryFile file = RegistryFile::load(path_);
  RegistryTree& tree = file.tree();
  const RegistryNodePtr key = tree.makeSubkey(*tree.root("HKEY_CURRENT_USER"), "New");
  tree.setValue(*key, "text", 1, utf16Bytes("a\"\\") + std::string(2, '\0'));
  tree.setValue(*key, "unended", 1, utf16Bytes("a"));
  tree.setValue(*key, "two NULs", 1, utf16Bytes("a") + std::string(4, '\0'));
  tree.setValue(*key, "odd", 1, std::string("a\0\0", 3));
  tree.setValue(*key, "half a pair", 1, std::string("\x3D\xD8\0\0", 4));
  tree.setValue(*key, "number", 4, std::string("\x1F\0\0\0", 4));
  tree.setValue(*key, "long", 11, std::string(40, '\xAB'));
  tree.setValue(*key, "", 7, std::string(2, '\0'));
  ASSERT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), withLf(kHeader) +
                         "[HKEY_CURRENT_USER\\New]\n"
                         "\"text\"=\"a\\\"\\\\\"\n"
                         "\"unended\"=hex(1):61,00\n"
                         "\"two NULs\"=hex(1):61,00,00,00,00,00\n"
                         "\"odd\"=hex(1):61,00,00\n"
                         "\"half a pair\"=hex(1):3d,d8,00,00\n"
                         "\"number\"=dword:0000001f\n"
                         "\"long\"=hex(b):ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,"
                         "ab,ab,\\\n  ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab\n"
                         "@=hex(7):00,00\n\n");
}

TEST_F(RegistryFileTest, KeysThatOnlyLedToOthersAreKeptWhenTheOthersGo) {
  write(kHeader + "[HKEY_CURRENT_USER\\A\\B]\r\n\r\n[HKEY_CURRENT_USER\\A\\C]\r\n\r\n");
  RegistryFile file = RegistryFile::load(path_);
  const RegistryNodePtr a = file.tree().root("HKEY_CURRENT_USER")->subkey("A");
  file.tree().removeSubkey(*a, *a->subkey("B"));
  ASSERT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), kHeader + "[HKEY_CURRENT_USER\\A\\C]\r\n\r\n");
  file.tree().removeSubkey(*a, *a->subkey("C"));
  ASSERT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), kHeader + "[HKEY_CURRENT_USER\\A]\r\n\r\n");
}

TEST_F(RegistryFileTest, CommentsBlankLinesAndBlanksAreTaken) {
  EXPECT_EQ(refusal(kHeader + "; a comment\r\n\r\n [HKEY_CURRENT_USER\\K] ; more\r\n"
                              "  ;another\r\n \"n\" = \"v\"  \r\n\"h\"=hex:00, 01 ; end"),
            "");
  RegistryFile file = RegistryFile::load(path_);
  ASSERT_NE(valueAt(file, "K", "n"), nullptr);
  EXPECT_EQ(valueAt(file, "K", "h")->data, std::string("\0\1", 2));
}

TEST_F(RegistryFileTest, ASectionMayComeTwiceAndInAnyCaseAndTheLastValueCounts) {
  write(kHeader +
        "[HKEY_CURRENT_USER\\K\\]\r\n\"n\"=\"1\"\r\n[hkey_current_user\\\\k]\r\n\"N\"=\"2\"\r\n");
  RegistryFile file = RegistryFile::load(path_);
  EXPECT_EQ(file.tree().root("HKEY_CURRENT_USER")->subkeys().size(), 1u);
  EXPECT_EQ(valueAt(file, "K", "n")->data, utf16Bytes("2") + std::string(2, '\0'));
}

TEST_F(RegistryFileTest, NeighbouringNamesThatBeginAlikeAreDifferentKeys) {
  write(kHeader +
        "[HKEY_CURRENT_USER\\ab\\x]\r\n[HKEY_CURRENT_USER\\abc]\r\n"
        "[HKEY_CURRENT_USER\\a]\r\n[HKEY_CURRENT_USER\\a\\x]\r\n");
  RegistryFile file = RegistryFile::load(path_);
  const RegistryNodePtr root = file.tree().root("HKEY_CURRENT_USER");
  ASSERT_EQ(root->subkeys().size(), 3u);
  EXPECT_NE(root->subkey("ab")->subkey("x"), nullptr);
  EXPECT_TRUE(root->subkey("abc")->subkeys().empty());
  EXPECT_NE(root->subkey("a")->subkey("x"), nullptr);
}

struct Refused {
  const char* lines;  // behind the header, so they begin at line 3
  int line;
  const char* what;
};

TEST_F(RegistryFileTest, AMalformedTextIsRefusedWithItsLine) {
  const Refused cases[] = {
      {"\"a\"=\"b\"", 3, "a value before the first key"},
      {"[HKCU\\Software]", 3, "no such root: HKCU"},
      {"[]", 3, "a key without a name"},
      {"[HKEY_USERS\\x", 3, "the key has no closing ]"},
      {"[HKEY_USERS\\x]y", 3, "something stands behind what the line says"},
      {"[-HKEY_USERS\\x]", 3, "a line that deletes a key"},
      {"[HKEY_USERS]\nx=\"y\"", 4, "neither a key nor a value"},
      {"[HKEY_USERS]\n\"a\"=-", 4, "a line that deletes a value"},
      {"[HKEY_USERS]\n\"a\"", 4, "no = behind the value's name"},
      {"[HKEY_USERS]\n\"a\"=", 4, "no such type of value"},
      {"[HKEY_USERS]\n\"a\"=word:1", 4, "no such type of value"},
      {"[HKEY_USERS]\n\"a\"=\"b", 4, "a quote that is not closed"},
      {"[HKEY_USERS]\n\"a\"=\"b\n\"c\"=\"d\"", 4, "something stands behind what the line says"},
      {"[HKEY_USERS]\n\"a\n\"c\"=\"d\"", 4, "no = behind the value's name"},
      {"[HKEY_USERS]\n\"a\"=\"b\"c", 4, "something stands behind what the line says"},
      {"[HKEY_USERS]\n\"a\"=\"C:\\x\"", 4, "a \\ before neither \\ nor \""},
      {"[HKEY_USERS]\n\"a\"=dword:", 4, "no hexadecimal number"},
      {"[HKEY_USERS]\n\"a\"=dword:-1", 4, "no hexadecimal number"},
      {"[HKEY_USERS]\n\"a\"=dword:000000001", 4, "no hexadecimal number"},
      {"[HKEY_USERS]\n\"a\"=dword:12x", 4, "something stands behind what the line says"},
      {"[HKEY_USERS]\n\"a\"=hex(:00", 4, "no hexadecimal number"},
      {"[HKEY_USERS]\n\"a\"=hex(2:00", 4, "no ) behind the type"},
      {"[HKEY_USERS]\n\"a\"=hex(2)00", 4, "no : behind the type"},
      {"[HKEY_USERS]\n\"a\"=hex:zz", 4, "no hexadecimal byte of two digits"},
      {"[HKEY_USERS]\n\"a\"=hex:0", 4, "no hexadecimal byte of two digits"},
      {"[HKEY_USERS]\n\"a\"=hex:00,", 4, "no hexadecimal byte of two digits"},
      {"[HKEY_USERS]\n\"a\"=hex:00 01", 4, "something stands behind what the line says"},
      {"[HKEY_USERS]\n\"a\"=hex:00,\\\n  01,\\\n  0g", 6, "no hexadecimal byte of two digits"},
      {"[HKEY_USERS]\n\"a\"=hex:00,\\ 01", 4,
       "something stands behind the \\ that continues the line"},
      {"[HKEY_USERS]\n\"a\"=hex:00,\\\n", 5, "no hexadecimal byte of two digits"},
      {"[HKEY_USERS]\n\"two\"=\"l\nines\"\n\"a\"=x", 6, "no such type of value"},
      {"[HKEY_USERS]\n\"\xC3\"=\"\"", 4, "bytes that are neither UTF-8 nor UTF-16"},
  };
  for (const Refused& each : cases) {
    EXPECT_EQ(refusal(withLf(kHeader) + each.lines),
              "registry.reg:" + std::to_string(each.line) + ": " + each.what)
        << each.lines;
  }
}

TEST_F(RegistryFileTest, AnotherHeaderIsRefused) {
  for (const char* text :
       {"", "REGEDIT4\r\n\r\n", "\r\nWindows Registry Editor Version 5.00\r\n"}) {
    EXPECT_EQ(refusal(text),
              "registry.reg:1: does not begin with \"Windows Registry Editor Version 5.00\"")
        << text;
  }
  EXPECT_EQ(refusal("Windows Registry Editor Version 5.000\n"),
            "registry.reg:1: something stands behind what the line says");
}

TEST_F(RegistryFileTest, AKeyBeyondTheLimitsOfWindowsIsRefused) {
  std::string deep = kHeader + "[HKEY_USERS";
  for (int i = 0; i < 512; ++i) deep += "\\k";
  EXPECT_EQ(refusal(deep + "]\r\n"), "");
  EXPECT_EQ(refusal(deep + "\\k]\r\n"), "registry.reg:3: more than 512 keys below one another");
  const std::string wide = kHeader + "[HKEY_USERS\\" + std::string(255, 'k');
  EXPECT_EQ(refusal(wide + "]\r\n"), "");
  EXPECT_EQ(refusal(wide + "k]\r\n"), "registry.reg:3: a key name of more than 255 characters");
}

TEST_F(RegistryFileTest, DamagedUtf16AndNulsAreRefused) {
  EXPECT_EQ(refusal("\xFF\xFE" + utf16Bytes(kHeader) + "x"),
            "registry.reg:3: half a character at the end");
  EXPECT_EQ(refusal(kHeader + std::string("\0", 1)), "registry.reg:3: a NUL character");
}

TEST_F(RegistryFileTest, AMissingFileIsAnEmptyRegistryAndIsNotMadeWithoutAChange) {
  RegistryFile file = RegistryFile::load(path_);
  EXPECT_TRUE(file.save(path_));
  EXPECT_FALSE(fs::exists(path_));
  touch(file);
  EXPECT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), withLf(kHeader));
}

TEST_F(RegistryFileTest, AnUnchangedRegistryIsNotWritten) {
  const std::string text = kHeader + "; kept\r\n[HKEY_USERS]";
  write(text);
  RegistryFile file = RegistryFile::load(path_);
  EXPECT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), text);
  touch(file);
  EXPECT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), kHeader + "[HKEY_USERS]\r\n\r\n");
  write("later");
  EXPECT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), "later");
}

TEST_F(RegistryFileTest, ALinkOrAFolderIsNoRegistry) {
  scratch_.write("elsewhere", kHeader);
  fs::create_symlink(scratch_.at("elsewhere"), path_);
  EXPECT_THROW(RegistryFile::load(path_), MalformedFile);
  fs::remove(path_);
  fs::create_directory(path_);
  EXPECT_THROW(RegistryFile::load(path_), MalformedFile);
}

TEST_F(RegistryFileTest, SavingKeepsTheMode) {
  write(kExport);
  fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
  RegistryFile file = RegistryFile::load(path_);
  touch(file);
  EXPECT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), kExport);
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(entries(), 1);
}

TEST_F(RegistryFileTest, SavingNeedsNoCertainNameBesideTheFile) {
  write(kExport);
  fs::create_directories(path_ + ".new/in the way");
  RegistryFile file = RegistryFile::load(path_);
  touch(file);
  EXPECT_TRUE(file.save(path_));
  EXPECT_EQ(bytes(), kExport);
  EXPECT_TRUE(fs::exists(path_ + ".new/in the way"));
  EXPECT_EQ(entries(), 2);
}

TEST_F(RegistryFileTest, AWriteThatFailsHalfWayLeavesTheOldFile) {
  write(kExport);
  RegistryFile file = RegistryFile::load(path_);
  touch(file);

  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{100, before.rlim_max};
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool saved = file.save(path_);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  signal(SIGXFSZ, handler);

  EXPECT_FALSE(saved);
  EXPECT_EQ(bytes(), kExport);
  EXPECT_EQ(entries(), 1);
  EXPECT_TRUE(file.save(path_));  // the change is still there to be saved
  EXPECT_EQ(bytes(), kExport);
}

TEST_F(RegistryFileTest, ARenameThatFailsLeavesNothingBehind) {
  RegistryFile file = RegistryFile::load(path_);
  touch(file);
  fs::create_directories(path_ + "/in the way");
  EXPECT_FALSE(file.save(path_));
  EXPECT_EQ(entries(), 1);
  EXPECT_FALSE(file.save(scratch_.at("missing/registry.reg")));
}

}  // namespace
}  // namespace tavr::folder
